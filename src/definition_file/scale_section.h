/// Grade scales: the sections [Scale] and [SubtestScale], and the same keys in [Subtest].
#pragma once

#include "definition_file/section_lines.h"
#include "grade_scales/clsHTDRDDGradeScale.h"

#include <cstdint>

namespace htdrdd::basTemplate {

/// The keys of a grade scale, which is held: a report may make the host replace it. The name goes to the
/// scale at once, the rest is kept up to the section's end.
class ScaleKeys {
public:
    explicit ScaleKeys(Ref<clsHTDRDDGradeScale> scale) : scale_(std::move(scale)) {}
    /// False for a key of something else.
    bool Take(const SectionLines::Pair& pair, Where at = Where::current());
    /// The number of rows that the section announced.
    [[nodiscard]] std::int32_t NumValues() const noexcept { return numValues_; }
    /// Adds the rows behind those that the scale has. Whether it has as many as announced then.
    bool AddRows();

private:
    Ref<clsHTDRDDGradeScale> scale_;
    std::int32_t numValues_ = 0;
    Array<Text> grades_; ///< both without storage until the key is read
    Array<Text> startValues_;
};

/// Adds the rows of a section to a grade scale. False, with a stop message, where they don't match NumValues
/// or are none, and after a failure, which is reported; rows added up to then stay.
[[nodiscard]] bool VB_RT_read_scale(SectionLines& lines, clsHTDRDDGradeScale& oScale) noexcept;

} // namespace htdrdd::basTemplate
