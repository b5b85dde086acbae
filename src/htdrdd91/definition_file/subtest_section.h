/// The [Subtest] section.
#pragma once

#include "htdrdd91/definition_file/section_lines.h"
#include "htdrdd91/model/clsHTDRDDSubtests.h"

namespace htdrdd::basTemplate {

/// Reads one learning objective with its grade scale and its scaled score, and adds it. False, with a stop
/// message, where the rows of the scale don't match NumValues, and after a failure, which is reported;
/// nothing is added then.
[[nodiscard]] bool ReadSubtest(SectionLines& lines, clsHTDRDDSubtests& oSubtests) noexcept;

/// Writes one learning objective and the blank line behind it: its grade scale where it has rows, its scaled
/// score where it can be used, with learning objectives searched in oRDD.
void WriteSubtest(TextWriter& out, const clsHTDRDDSubtest& oSubtest, const Variant& oRDD,
                  bool bForLearningObjective, TextView sDecimalMark, Where at = Where::current());

} // namespace htdrdd::basTemplate
