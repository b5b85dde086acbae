/// The [Report] section.
#pragma once

#include "htdrdd91/definition_file/section_lines.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <cstdint>

namespace htdrdd::basTemplate {

/// Reads the document's own members and the counts that the file announces. Returns false, with a stop
/// message, if nothing follows the section, and false after a failure, which is reported.
[[nodiscard]] bool ReadReport(SectionLines& lines, clsHTDRDD& oRDD, std::int32_t& lNumQuestions,
                              std::int32_t& lNumVersions, std::int32_t& lNumSubtests) noexcept;

/// Writes the section and a blank line.
void WriteReport(TextWriter& out, clsHTDRDD& oRDD);

} // namespace htdrdd::basTemplate
