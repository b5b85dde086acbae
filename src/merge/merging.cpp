#include "merge/merging.h"

#include "foundation/basError.h"
#include "foundation/basPublicSort.h"
#include "platform/number.h"

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

std::optional<Text> AnswersByNumber(const clsHTDRDDQuestion& question, TextView sNumbers, ChoiceOrder order) {
    const clsHTDRDDStrings& choices = *question.AnswerValues;
    Text answers;
    bool all = true;
    const auto append = [&](TextView number) {
        const double choice = std::nearbyint(LeadingNumber(number));
        if (choice >= 1 && choice <= choices.Count())
            answers.append(choices.Item(static_cast<std::int32_t>(choice))).append(u",");
        else
            all = false;
    };
    const bool several = sNumbers.find(u',') != TextView::npos;
    if (several && order == ChoiceOrder::Sorted) {
        Array<Text> numbers = Split(sNumbers, u",");
        basPublic::QuickSortNumericStringArray(numbers, 0, numbers.UpperBound(), false);
        for (const Text& number : numbers.Items()) append(number);
    } else {
        EachPiece(sNumbers, u",", append);
    }
    if (!all) return {};
    if (!answers.empty()) answers.pop_back();
    if (several) answers.insert(0, 1, u'(').append(u")");
    return answers;
}

} // namespace htdrdd
