#include "htdrdd91/model/basPublicAnswers.h"

#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/basPublicText.h"

namespace htdrdd::basPublic {
namespace {

/// Appends the codes of the pieces that are answer values, in the form that files use.
void MakeCodes(Text& codes, const clsHTDRDDQuestion& question, TextView answer) {
    EachPiece(answer, u",", [&](TextView piece) {
        const std::int32_t position = question.AnswerValues->Locate(piece);
        if (position > 0) codes.append(question.AnswerCodes->Item(position)).append(u",");
    });
    if (!codes.empty()) codes.pop_back();
    if (codes.find(u',') != Text::npos) codes.insert(0, 1, u'(').append(u")");
}

void Lengthen(clsHTDRDDStrings& list, std::int32_t lKey) {
    if (!list.Lengthen(lKey)) throw Failure(Err::Memory);
}

} // namespace

Text CorrectAnswerToIndices(const clsHTDRDDQuestion& oQuestion, std::int32_t lKey) noexcept {
    Text result;
    try {
        if (oQuestion.CorrectAnswers->Count() < lKey || oQuestion.AnswerValues->Count() == 0) return result;
        TextView answer = oQuestion.CorrectAnswers->Item(lKey);
        if (answer.size() >= 2 && answer.front() == u'(' && answer.back() == u')')
            answer = answer.substr(1, answer.size() - 2);
        MakeCodes(result, oQuestion, answer);
    } catch (...) {
        ReportFailure(u"basPublic.CorrectAnswerToIndices");
        result.clear();
    }
    return result;
}

Text CorrectAnswerToCode(const clsHTDRDDQuestion& oQuestion, std::int32_t lKey) noexcept {
    Text result;
    try {
        if (oQuestion.CorrectAnswers->Count() < lKey) return result;
        const Text& answer = oQuestion.CorrectAnswers->Item(lKey);
        if (oQuestion.AnswerValues->Count() == 0) return answer;
        Text without;
        TextView bare = answer;
        if (bare.find_first_of(u"()") != TextView::npos) {
            without = Replaced(Replaced(bare, u"(", u""), u")", u"");
            bare = without;
        }
        MakeCodes(result, oQuestion, bare);
        if (!result.empty()) return result;
        // This is meant: the comparisons are for difference, and stored definitions contain such codes.
        if (!SameText(bare, oQuestion.BlankText))
            result = InvariantText(oQuestion.BlankValue);
        else if (!SameText(bare, oQuestion.MultipleText))
            result = InvariantText(oQuestion.MultipleValue);
        else
            result = InvariantText(oQuestion.MissingValue);
    } catch (...) {
        ReportFailure(u"basPublic.CorrectAnswerToCode");
        result.clear();
    }
    return result;
}

void AssignCorrectAnswer(clsHTDRDDQuestion& oQuestion, TextView sAnswer, std::int32_t lKey,
                         TextView sPoints) noexcept {
    try {
        Text answer(sAnswer); // either may be an item of the lists that grow
        const Text points(sPoints);
        Lengthen(*oQuestion.CorrectAnswers, lKey);
        Lengthen(*oQuestion.CorrectCodes, lKey);
        Lengthen(*oQuestion.CorrectAnswerPoints, lKey);
        if (oQuestion.SubjectiveField) {
            oQuestion.SubjectivePoints = TextToDouble(answer);
            answer = InvariantText(oQuestion.SubjectivePoints);
        }
        oQuestion.CorrectAnswers->Item(lKey, answer);
        oQuestion.CorrectAnswerPoints->Item(lKey, points);
        const Text code = CorrectAnswerToCode(oQuestion, lKey); // a report may release the list
        oQuestion.CorrectCodes->Item(lKey, code);
        if (lKey >= 2) return;
        oQuestion.NumCorrect = NumStringItems(answer, u",");
        if (oQuestion.CorrectAnd && oQuestion.NumCorrect >= 2)
            oQuestion.MultiplesPermitted = HTDMultiplesPermittedAll;
    } catch (...) { ReportFailure(u"basPublic.AssignCorrectAnswer"); }
}

} // namespace htdrdd::basPublic
