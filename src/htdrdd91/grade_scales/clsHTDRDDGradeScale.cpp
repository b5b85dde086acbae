#include "htdrdd91/grade_scales/clsHTDRDDGradeScale.h"

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/basPublicText.h"

namespace htdrdd {

bool clsHTDRDDGradeScale::AddArrays(const Array<Text>& sGradesArr,
                                    const Array<Text>& sStartValuesArr) noexcept {
    bool result = false;
    IgnoreFailure([&] {
        if (sGradesArr.LowerBound() != sStartValuesArr.LowerBound() ||
            sGradesArr.UpperBound() != sStartValuesArr.UpperBound())
            return;
        for (std::int32_t l = sGradesArr.LowerBound(); l <= sGradesArr.UpperBound(); ++l) {
            auto item = Make<clsHTDRDDGradeScaleItem>();
            item->Grade = sGradesArr.At(l);
            item->StartValue = sStartValuesArr.At(l);
            Add(std::move(item));
        }
        result = true;
    });
    return result;
}

bool clsHTDRDDGradeScale::AddDelimitedStrings(TextView sGrades, TextView sStartValues, TextView sDelimiter) {
    return AddArrays(Split(sGrades, sDelimiter), Split(sStartValues, sDelimiter));
}

Array<Text> clsHTDRDDGradeScale::AsArray(bool bAsStartValues, std::int32_t lLowerBound) const {
    if (Count() == 0) return {};
    std::vector<Text> texts;
    texts.reserve(static_cast<std::size_t>(Count()));
    for (const auto& item : mItems) texts.push_back(bAsStartValues ? item->StartValue : item->Grade);
    return Array<Text>(std::move(texts), lLowerBound);
}

Text clsHTDRDDGradeScale::AsString(bool bAsStartValues, TextView sDelimiter) const {
    return Join(AsArray(bAsStartValues), sDelimiter);
}

Ref<clsHTDRDDGradeScale> clsHTDRDDGradeScale::Copy() const {
    auto copy = Make<clsHTDRDDGradeScale>();
    copy->AddArrays(AsArray(false), AsArray(true)); // without rows this adds nothing and reports nothing
    copy->ScaleName = ScaleName;
    return copy;
}

Text clsHTDRDDGradeScale::CalculateGrade(double dPercentScore, std::int16_t iDecimalPlaces) const noexcept {
    Text result;
    try {
        if (iDecimalPlaces < 0) throw Failure(Err::Argument, Where::current());
        if (Count() == 0) return result;
        // The number must equal that of a start value with the digits of the rounded score.
        const auto fixed = FixedNumber(dPercentScore, iDecimalPlaces);
        const double score =
            fixed ? *fixed : basPublic::TextToDouble(FixedText(dPercentScore, iDecimalPlaces));
        for (const auto& row : mItems)
            if (basPublic::TextToDouble(row->StartValue) <= score) return row->Grade;
        result = mItems.Item(Count())->Grade;
    } catch (...) { ReportFailure(u"clsHTDRDDGradeScale.CalculateGrade"); }
    return result;
}

} // namespace htdrdd
