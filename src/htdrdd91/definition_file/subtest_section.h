/// The [Subtest] section.
#pragma once

#include "htdrdd91/definition_file/section_lines.h"
#include "htdrdd91/model/clsHTDRDDSubtests.h"

namespace htdrdd::basTemplate {

/// Reads one learning objective with its grade scale and its scaled score, and adds it. Returns false, with a
/// stop message, if the rows of the scale don't match NumValues, and false after a failure, which is
/// reported; nothing is added then.
[[nodiscard]] bool ReadSubtest(SectionLines& lines, clsHTDRDDSubtests& oSubtests) noexcept;

/// Writes one learning objective and a blank line: its grade scale if it has rows, its scaled score if it is
/// usable. The scaled score's learning objectives are searched in oRDD.
void WriteSubtest(TextWriter& out, const clsHTDRDDSubtest& oSubtest, const Variant& oRDD,
                  bool bForLearningObjective, TextView sDecimalMark, Where at = Where::current());

} // namespace htdrdd::basTemplate
