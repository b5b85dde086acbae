#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"

#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/basPublicText.h"
#include "htdrdd91/foundation/record_library_members.h"

namespace htdrdd {

template class RecordLibrary<clsHTDRDDGradeScale, u"clsHTDGradeScaleManager">;

namespace {

constexpr TextView kTab = u"\t";
constexpr TextView kLineEnd = u"\r\n";

/// A field, split at the first delimiter.
struct Halves {
    /// Fails with 9 for an empty field, which has no first half.
    Halves(TextView field, TextView delimiter, Where at) {
        if (field.empty()) throw Failure(Err::Subscript, at);
        const std::size_t end = field.find(delimiter);
        first = field.substr(0, end);
        if (end != TextView::npos) second = field.substr(end + delimiter.size());
    }
    TextView first;
    std::optional<TextView> second;
};

Ref<clsHTDRDDGradeScaleItem> Row(TextView grade, Text startValue) {
    auto row = Make<clsHTDRDDGradeScaleItem>();
    row->Grade = grade;
    row->StartValue = std::move(startValue);
    return row;
}

} // namespace

Text clsHTDGradeScaleManager::ScaleToString(const Ref<clsHTDRDDGradeScale>& oScale) const noexcept {
    Text result;
    try {
        Text record = oScale->ScaleName;
        for (std::int32_t l = 1; l <= oScale->Count(); ++l) {
            const auto row = oScale->Item(l);
            record.append(kTab).append(InvariantText(LeadingNumber(row->StartValue)));
            record.append(u"&").append(row->Grade);
        }
        result = std::move(record);
    } catch (...) { ReportFailure(u"clsHTDGradeScaleManager.ScaleToString"); }
    return result;
}

Ref<clsHTDRDDGradeScale> clsHTDGradeScaleManager::StringToScale(TextView sRecord) const noexcept {
    Ref<clsHTDRDDGradeScale> result;
    try {
        if (sRecord.empty()) return result;
        auto scale = Make<clsHTDRDDGradeScale>();
        Pieces pieces(sRecord, kTab);
        scale->ScaleName = pieces.Next().value_or(TextView());
        while (const auto piece = pieces.Next()) {
            const Halves halves(*piece, u"&", Where::current());
            scale->Add(Row(halves.second.value_or(TextView()), InvariantText(LeadingNumber(halves.first))));
        }
        result = std::move(scale);
    } catch (...) { ReportFailure(u"clsHTDGradeScaleManager.StringToScale"); }
    return result;
}

Ref<clsHTDRDDGradeScale> clsHTDGradeScaleManager::ClipToScale(TextView ScaleName,
                                                              TextView ScaleClip) const noexcept {
    Ref<clsHTDRDDGradeScale> result;
    try {
        if (ScaleClip.empty()) return result;
        auto scale = Make<clsHTDRDDGradeScale>();
        if (ScaleClip.ends_with(kLineEnd)) ScaleClip.remove_suffix(kLineEnd.size());
        scale->ScaleName = ScaleName;
        EachPiece(ScaleClip, kLineEnd, [&](TextView line) {
            const Halves halves(line, kTab, Where::current());
            scale->Add(
                Row(halves.first, InvariantText(basPublic::TextToDouble(halves.second.value_or(u"0")))));
        });
        result = std::move(scale);
    } catch (...) { ReportFailure(u"clsHTDGradeScaleManager.ClipToScale"); }
    return result;
}

Text clsHTDGradeScaleManager::ScaleToClip(const Ref<clsHTDRDDGradeScale>& oScale) const noexcept {
    Text result;
    try {
        Text clip;
        for (std::int32_t l = 1; l <= oScale->Count(); ++l) {
            const auto row = oScale->Item(l);
            clip.append(row->Grade).append(kTab);
            clip.append(RegionalText(LeadingNumber(row->StartValue))).append(kLineEnd);
        }
        if (!clip.empty()) clip.resize(clip.size() - kLineEnd.size());
        result = std::move(clip);
    } catch (...) { ReportFailure(u"clsHTDGradeScaleManager.ScaleToClip"); }
    return result;
}

double clsHTDGradeScaleManager::CalcPercentScore(double dTotalScore,
                                                 double dTotalPossibleScore) const noexcept {
    double result = 0;
    try {
        result = InRange(Quotient(dTotalScore, dTotalPossibleScore) * 100);
    } catch (...) { ReportFailure(u"clsHTDGradeScaleManager.CalcPercentScore"); }
    return result;
}

double clsHTDGradeScaleManager::CalcTotalScore(double dPercentScore,
                                               double dTotalPossibleScore) const noexcept {
    double result = 0;
    try {
        result = InRange(dPercentScore / 100 * dTotalPossibleScore);
    } catch (...) { ReportFailure(u"clsHTDGradeScaleManager.CalcTotalScore"); }
    return result;
}

double clsHTDGradeScaleManager::CalcTotalPossibleScore(const Ref<clsHTDRDD>& oRDD,
                                                       std::int16_t lObjectiveIndex) const noexcept {
    double result = 0;
    try {
        if (lObjectiveIndex < 1 || !oRDD->Subtests->Exists(lObjectiveIndex)) lObjectiveIndex = 1;
        double total = 0;
        const clsHTDRDDQuestions& questions = *oRDD->Questions;
        for (std::int32_t l = 1; l <= questions.Count(); ++l) {
            const auto question = questions.Item(l);
            if (question->Subtests->Exists(lObjectiveIndex) && !question->Subtests->Includes(lObjectiveIndex))
                continue;
            if (question->IncludeGrade)
                total += question->CorrectPoints;
            else if (question->SubjectiveField)
                total += question->SubjectivePoints;
        }
        result = InRange(total);
    } catch (...) { ReportFailure(u"clsHTDGradeScaleManager.CalcTotalPossibleScore"); }
    return result;
}

Text clsHTDGradeScaleManager::ToText(const Ref<clsHTDRDDGradeScale>& oScale) const {
    return ScaleToString(oScale);
}

Ref<clsHTDRDDGradeScale> clsHTDGradeScaleManager::FromText(TextView sRecord) const {
    return StringToScale(sRecord);
}

void clsHTDGradeScaleManager::Load(TextView sPiece) {
    const auto scale = StringToScale(sPiece);
    Text name = scale->ScaleName;
    Add(name, scale);
}

} // namespace htdrdd
