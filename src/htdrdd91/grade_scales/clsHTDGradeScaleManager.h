/// Libraries of grade scales, and the arithmetic of scores.
#pragma once

#include "htdrdd91/foundation/record_library.h"
#include "htdrdd91/grade_scales/clsHTDRDDGradeScale.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <cstdint>

namespace htdrdd {

extern template class RecordLibrary<clsHTDRDDGradeScale, u"clsHTDGradeScaleManager">;

/// Grade scales. A scale is held as its name and, each behind a tab, its rows: start value, "&", grade. Start
/// values are put down as plain numbers, so that 90% becomes 90. An empty piece ends LoadFromString with a
/// failure. A scale without a name and without rows is stored, but Item gives an empty reference for it; so
/// is an empty reference, which is reported.
class clsHTDGradeScaleManager final : public RecordLibrary<clsHTDRDDGradeScale, u"clsHTDGradeScaleManager"> {
public:
    /// A new scale from the clip form, which spreadsheets paste: a line for each row, with the grade, a tab
    /// and the start value, which may have a "%" and the region's decimal mark, and is 0 where there is no
    /// tab. One line end is dropped at the end. An empty reference for an empty text, and after a failure,
    /// such as an empty line, which is reported.
    [[nodiscard]] Ref<clsHTDRDDGradeScale> ClipToScale(TextView ScaleName, TextView ScaleClip) const noexcept;
    /// The clip form of a scale: start values with the region's decimal mark, no line end behind the last
    /// row. Empty after a failure, which is reported.
    [[nodiscard]] Text ScaleToClip(const Ref<clsHTDRDDGradeScale>& oScale) const noexcept;

    /// Percent and points, not rounded. 0 after a failure, such as a division by 0, which is reported.
    [[nodiscard]] double CalcPercentScore(double dTotalScore, double dTotalPossibleScore) const noexcept;
    [[nodiscard]] double CalcTotalScore(double dPercentScore, double dTotalPossibleScore) const noexcept;
    /// The points that a respondent can earn in a learning objective, given by its position; one that isn't
    /// there counts as the overall one. Each question counts that isn't kept out of the learning objective,
    /// with CorrectPoints where it is graded and else, where it is subjective, with SubjectivePoints; extra
    /// credit, partial credit and weights make no difference. 0 after a failure, which is reported.
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
