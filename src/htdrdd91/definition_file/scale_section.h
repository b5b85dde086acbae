/// Grade scales: the sections [Scale] and [SubtestScale], and the same keys in [Subtest].
#pragma once

#include "htdrdd91/definition_file/section_lines.h"
#include "htdrdd91/grade_scales/clsHTDRDDGradeScale.h"

#include <cstdint>

namespace htdrdd::basTemplate {

/// The keys of a grade scale, which is held: a report may release it. The name goes to the scale at once; the
/// other values are kept until the section's end.
struct ScaleKeys {
    Ref<clsHTDRDDGradeScale> scale;
    std::int32_t numValues = 0; ///< without storage until the key is read, like startValues
    Array<Text> grades{};       ///< both without storage until the key is read
    Array<Text> startValues{};

    /// Returns false if the key doesn't belong to a grade scale.
    bool Take(const SectionLines::Pair& pair, Where at = Where::current());
    /// Adds the rows after those that the scale has. Returns whether it then has the announced number.
    [[nodiscard]] bool AddRows() const;
};

/// Adds the rows of a section to a grade scale. Returns false, with a stop message, if their number doesn't
/// match NumValues or is 0, and false after a failure, which is reported; rows added before it stay.
[[nodiscard]] bool ReadScale(SectionLines& lines, clsHTDRDDGradeScale& oScale) noexcept;

/// Writes the keys. In start values, which are texts, "." replaces the decimal mark.
void WriteScaleKeys(TextWriter& out, const clsHTDRDDGradeScale& oScale, TextView sDecimalMark,
                    Where at = Where::current());

} // namespace htdrdd::basTemplate
