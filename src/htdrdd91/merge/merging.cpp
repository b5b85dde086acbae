#include "htdrdd91/merge/merging.h"

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/basPublicSort.h"

#include <cmath>

namespace htdrdd {

bool ImportComplaint::operator()(TextView sMessage, Where at) const noexcept {
    constexpr std::int32_t kImportError = 9999;
    basError::ReportError({.lLine = at.line,
                           .vError = kImportError,
                           .lKind = 2,
                           .sDescription = sMessage,
                           .sLocation = sLocation_,
                           .sTitle = u"Key Import Error",
                           .vSilent = !bVerbose_});
    return false;
}

Text WithAnswers(TextView sMessage, TextView sLabel, std::int32_t lPosition, TextView sAnswers) {
    return Text(sMessage)
        .append(u"\r\n\r\n")
        .append(sLabel)
        .append(DecimalText(lPosition))
        .append(u"\r\nCorrect answer(s): ")
        .append(sAnswers);
}

void RemoveAnswers(clsHTDRDDQuestion& question) {
    question.CorrectAnswers->RemoveAll();
    question.CorrectCodes->RemoveAll();
    question.CorrectAnswerPoints->RemoveAll();
    question.PartialCredit = false;
    question.CorrectAnd = false;
}

void RemoveVersions(clsHTDRDD& rdd) {
    rdd.Versions->Answers->RemoveAll();
    rdd.Versions->Sequences->RemoveAll();
    rdd.Versions->Sequences->AddDefault(rdd.Questions->Count());
}

TextView WithoutParentheses(TextView text) noexcept {
    return text.starts_with(u'(') && text.ends_with(u')') ? text.substr(1, text.size() - 2) : text;
}

bool AnswersByNumber(Text& sAnswers, const clsHTDRDDQuestion& question, TextView sNumbers,
                     ChoiceOrder order) {
    const auto append = [&](TextView number) {
        const double choice = std::nearbyint(LeadingNumber(number));
        if (!(choice >= 1 && choice <= question.AnswerValues->Count())) return false;
        sAnswers += question.AnswerValues->Item(static_cast<std::int32_t>(choice));
        return true;
    };
    sAnswers.clear();
    if (sNumbers.empty()) return true;
    if (sNumbers.find(u',') == TextView::npos) return append(sNumbers);
    Array<Text> numbers = Split(sNumbers, u",");
    if (order == ChoiceOrder::Sorted)
        basPublic::QuickSortNumericStringArray(numbers, 0, numbers.UpperBound(), false);
    for (const Text& number : numbers.Items()) {
        sAnswers += sAnswers.empty() ? u'(' : u',';
        if (!append(number)) return false;
    }
    sAnswers += u')';
    return true;
}

} // namespace htdrdd
