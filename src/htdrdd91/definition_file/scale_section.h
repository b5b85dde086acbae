/// Grade scales: the sections [Scale] and [SubtestScale], and the same keys in [Subtest].
#pragma once

#include "htdrdd91/definition_file/section_lines.h"
#include "htdrdd91/grade_scales/clsHTDRDDGradeScale.h"

#include <cstdint>

namespace htdrdd::basTemplate {

/// The keys of a grade scale, which is held: a report may make the host replace it. The name goes to the
/// scale at once, the rest is kept up to the section's end.
struct ScaleKeys {
    Ref<clsHTDRDDGradeScale> scale;
    std::int32_t numValues = 0; ///< number of rows that the section announces
    Array<Text> grades{};       ///< both without storage until the key is read
    Array<Text> startValues{};

    /// False for a key of something else.
    bool Take(const SectionLines::Pair& pair, Where at = Where::current());
    /// Adds the rows behind those that the scale has. Whether it has as many as announced then.
    [[nodiscard]] bool AddRows() const;
};

/// Adds the rows of a section to a grade scale. False, with a stop message, where they don't match NumValues
/// or are none, and after a failure, which is reported; rows added up to then stay.
[[nodiscard]] bool ReadScale(SectionLines& lines, clsHTDRDDGradeScale& oScale) noexcept;

/// Writes the keys, with "." in place of the decimal mark in start values, which are texts.
void WriteScaleKeys(TextWriter& out, const clsHTDRDDGradeScale& oScale, TextView sDecimalMark,
                    Where at = Where::current());

} // namespace htdrdd::basTemplate
