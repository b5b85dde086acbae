#include "htdrdd91/merge/text_key_fields.h"

namespace htdrdd {

Text NoSuchAnswers(std::int32_t lPosition, TextView sAnswers) {
    return WithAnswers(
        u"The text key contains one or more correct answers that do not exist in the active key.",
        u"Text key question index: ", lPosition, sAnswers);
}

TextKeyField::TextKeyField(TextView field) : isEmpty(field.empty()) {
    const std::size_t bar = field.find(u'|');
    answer = field.substr(0, bar);
    if (bar != TextView::npos) questionText = field.substr(bar + 1);
}

TextView WithoutTrailing(TextView text, TextView what) noexcept {
    while (text.ends_with(what)) text.remove_suffix(what.size());
    return text;
}

std::int64_t NumKeyQuestions(const clsHTDRDD& rdd) {
    const std::int64_t graded = rdd.Questions->NumGraded(); // a report may release the questions
    return graded + rdd.Questions->NumSubjective();
}

bool TakesNumbers(const clsHTDRDDQuestion& question) {
    return question.AnswerValues->Count() > 0 && question.IncludeGrade;
}

Text NumbersOf(TextView part) {
    Text numbers;
    for (const char16_t unit : part)
        if (unit != u'+') numbers += unit == u'&' ? u',' : unit;
    return numbers;
}

bool TurnOff(clsHTDRDDQuestion& question) noexcept {
    const bool wasOn = question.IncludeGrade || question.SubjectiveField;
    question.IncludeGrade = false;
    question.SubjectiveField = false;
    return wasOn;
}

KeyQuestions::KeyQuestions(const clsHTDRDD& rdd)
    : rdd_(rdd), lSubjective_(rdd.Questions->NextSubjective(0)), lGraded_(rdd.Questions->NextGraded(0)) {}

std::int32_t KeyQuestions::Next() {
    // A position that isn't reached yet stays the next one, since flags change only before it. Searching for
    // both kinds at each step would scan all remaining questions if one kind is missing.
    if (lSubjective_ != 0 && lSubjective_ <= lPosition_)
        lSubjective_ = rdd_.Questions->NextSubjective(lPosition_);
    if (lGraded_ != 0 && lGraded_ <= lPosition_) lGraded_ = rdd_.Questions->NextGraded(lPosition_);
    const bool isSubjective = lSubjective_ > 0 && (lSubjective_ < lGraded_ || lGraded_ == 0);
    lPosition_ = isSubjective ? lSubjective_ : lGraded_;
    return lPosition_;
}

} // namespace htdrdd
