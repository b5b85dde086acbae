/// Grade scales: the sections [Scale] and [SubtestScale], and the same keys in [Subtest].
#pragma once

#include "definition_file/section_lines.h"
#include "grade_scales/clsHTDRDDGradeScale.h"

#include <cstdint>

namespace htdrdd::basTemplate {

/// The keys of a grade scale. The name goes to the scale at once, the rest is kept for AddArrays.
struct ScaleKeys {
    clsHTDRDDGradeScale& scale;
    std::int32_t NumValues = 0;
    Array<Text> Grades = {}; ///< without storage until the key is read
    Array<Text> StartValues = {};

    /// False for a key of something else.
    bool Take(const SectionLines::Pair& pair, Where at = Where::current());
};

/// Adds the rows of a section to a grade scale. False, with a stop message, where they don't match NumValues
/// or are none, and after a failure, which is reported; rows added up to then stay.
[[nodiscard]] bool VB_RT_read_scale(SectionLines& lines, clsHTDRDDGradeScale& oScale) noexcept;

} // namespace htdrdd::basTemplate
