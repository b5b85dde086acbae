/// The [Versions] section, and [Sequence], its form in older files.
#pragma once

#include "htdrdd91/definition_file/section_lines.h"
#include "htdrdd91/model/clsHTDRDDVersions.h"

#include <cstdint>

namespace htdrdd::basTemplate {

/// Both add to the present content of the versions. They return false, with a stop message, for a sequence
/// whose length isn't the number of questions that [Report] announced, and false after a failure, which is
/// reported; the part read before it stays.
[[nodiscard]] bool ReadVersions(SectionLines& lines, clsHTDRDDVersions& oVersions,
                                std::int32_t lNumQuestions) noexcept;
[[nodiscard]] bool ReadSequence(SectionLines& lines, clsHTDRDDVersions& oVersions,
                                std::int32_t lNumQuestions) noexcept;

/// Writes the section and a blank line. Sequences are written only for scrambled versions.
void WriteVersions(TextWriter& out, const clsHTDRDDVersions& oVersions);

} // namespace htdrdd::basTemplate
