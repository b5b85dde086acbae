/// Libraries of grade scales, and the arithmetic of scores.
#pragma once

#include "htdrdd91/foundation/record_library.h"
#include "htdrdd91/grade_scales/clsHTDRDDGradeScale.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <cstdint>

namespace htdrdd {

extern template class RecordLibrary<clsHTDRDDGradeScale, u"clsHTDGradeScaleManager">;

/// Grade scales. A scale is stored as its name and its rows, each after a tab: start value, "&", grade. Start
/// values are stored as plain numbers: 90% becomes 90. An empty piece ends LoadFromString with a failure. A
/// scale without a name and without rows is stored, but Item returns an empty reference for it. An empty
/// reference is treated alike, and reported.
class clsHTDGradeScaleManager final : public RecordLibrary<clsHTDRDDGradeScale, u"clsHTDGradeScaleManager"> {
public:
    /// A new scale from the clip form, which spreadsheets paste: one line per row, with the grade, a tab and
    /// the start value. The start value may have a "%" and the region's decimal mark; without a tab it is 0.
    /// One line end at the end is dropped. Returns an empty reference for an empty text and after a failure,
    /// such as an empty line, which is reported.
    [[nodiscard]] Ref<clsHTDRDDGradeScale> ClipToScale(TextView ScaleName, TextView ScaleClip) const noexcept;
    /// The clip form of a scale: start values with the region's decimal mark, no line end after the last row.
    /// Empty after a failure, which is reported.
    [[nodiscard]] Text ScaleToClip(const Ref<clsHTDRDDGradeScale>& oScale) const noexcept;

    /// Percent and points, not rounded. 0 after a failure, such as a division by 0, which is reported.
    [[nodiscard]] double CalcPercentScore(double dTotalScore, double dTotalPossibleScore) const noexcept;
    [[nodiscard]] double CalcTotalScore(double dPercentScore, double dTotalPossibleScore) const noexcept;
    /// The points that a respondent can earn in the learning objective at a position; a missing position
    /// counts as the overall one. Every question counts unless it is excluded from the learning objective: a
    /// graded question with CorrectPoints, any other subjective question with SubjectivePoints. Extra credit,
    /// partial credit and weights make no difference. 0 after a failure, which is reported.
    [[nodiscard]] double CalcTotalPossibleScore(const Ref<clsHTDRDD>& oRDD,
                                                std::int16_t lObjectiveIndex = 1) const noexcept;

private:
    [[nodiscard]] Text ScaleToString(const Ref<clsHTDRDDGradeScale>& oScale) const noexcept;
    [[nodiscard]] Ref<clsHTDRDDGradeScale> StringToScale(TextView sRecord) const noexcept;

    [[nodiscard]] Text ToText(const Ref<clsHTDRDDGradeScale>& oScale) const override;
    [[nodiscard]] Ref<clsHTDRDDGradeScale> FromText(TextView sRecord) const override;
    void Load(TextView sPiece) override;
};

} // namespace htdrdd
