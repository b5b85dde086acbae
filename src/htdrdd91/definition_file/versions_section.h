/// The [Versions] section, and [Sequence], its form in older files.
#pragma once

#include "htdrdd91/definition_file/section_lines.h"
#include "htdrdd91/model/clsHTDRDDVersions.h"

#include <cstdint>

namespace htdrdd::basTemplate {

/// Both add behind what the versions hold. False, with a stop message, for a sequence whose length isn't the
/// number of questions that [Report] announced, and after a failure, which is reported; what was read before
/// stays.
[[nodiscard]] bool ReadVersions(SectionLines& lines, clsHTDRDDVersions& oVersions,
                                std::int32_t lNumQuestions) noexcept;
[[nodiscard]] bool ReadSequence(SectionLines& lines, clsHTDRDDVersions& oVersions,
                                std::int32_t lNumQuestions) noexcept;

/// Writes the section and the blank line behind it. Only scrambled versions have their sequences written.
void WriteVersions(TextWriter& out, const clsHTDRDDVersions& oVersions);

} // namespace htdrdd::basTemplate
