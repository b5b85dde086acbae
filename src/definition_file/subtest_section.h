/// The [Subtest] section.
#pragma once

#include "definition_file/section_lines.h"
#include "model/clsHTDRDDSubtests.h"

namespace htdrdd::basTemplate {

/// Reads one learning objective with its grade scale and its scaled score, and adds it. False, with a stop
/// message, where the rows of the scale don't match NumValues, and after a failure, which is reported;
/// nothing is added then.
[[nodiscard]] bool VB_RT_read_subtest(SectionLines& lines, clsHTDRDDSubtests& oSubtests) noexcept;

} // namespace htdrdd::basTemplate
