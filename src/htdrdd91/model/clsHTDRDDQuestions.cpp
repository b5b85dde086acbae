#include "htdrdd91/model/clsHTDRDDQuestions.h"

#include "htdrdd91/foundation/basError.h"

namespace htdrdd {
namespace {

using Question = clsHTDRDDQuestion;

} // namespace

template <class Wanted>
std::int32_t clsHTDRDDQuestions::Number(TextView sLocation, Wanted wanted) const noexcept {
    std::int32_t result = 0;
    try {
        std::int32_t number = 0;
        for (const auto& question : mItems)
            if (wanted(*question)) ++number;
        result = number;
    } catch (...) { ReportFailure(sLocation); }
    return result;
}

template <class Wanted>
std::int32_t clsHTDRDDQuestions::Next(std::int32_t lCurrentPosition, TextView sLocation,
                                      Wanted wanted) const noexcept {
    std::int32_t result = 0;
    try {
        if (lCurrentPosition >= 0) result = FirstPosition(wanted, lCurrentPosition);
    } catch (...) { ReportFailure(sLocation); }
    return result;
}

std::int32_t clsHTDRDDQuestions::NumGraded() const noexcept {
    return Number(u"clsHTDRDDQuestions.NumGraded", [](const Question& q) { return q.IncludeGrade; });
}

std::int32_t clsHTDRDDQuestions::NextGraded(std::int32_t lCurrentPosition) const noexcept {
    return Next(lCurrentPosition, u"clsHTDRDDQuestions.NextGraded",
                [](const Question& q) { return q.IncludeGrade; });
}

std::int32_t clsHTDRDDQuestions::NumPartialCredit() const noexcept {
    return Number(u"clsHTDRDDQuestions.NumPartialCredit", [](const Question& q) { return q.PartialCredit; });
}

std::int32_t clsHTDRDDQuestions::NumExtraCredit() const noexcept {
    return Number(u"clsHTDRDDQuestions.NumExtraCredit", [](const Question& q) { return q.ExtraCredit; });
}

std::int32_t clsHTDRDDQuestions::NextPartialCredit(std::int32_t lCurrentPosition) const noexcept {
    return Next(lCurrentPosition, u"clsHTDRDDQuestions.NextPartialCredit",
                [](const Question& q) { return q.IncludeGrade && q.PartialCredit; });
}

std::int32_t clsHTDRDDQuestions::NextExtraCredit(std::int32_t lCurrentPosition) const noexcept {
    return Next(lCurrentPosition, u"clsHTDRDDQuestions.NextExtraCredit",
                [](const Question& q) { return (q.IncludeGrade || q.SubjectiveField) && q.ExtraCredit; });
}

std::int32_t clsHTDRDDQuestions::NumSubjective() const noexcept {
    return Number(u"clsHTDRDDQuestions.NumSubjective", [](const Question& q) { return q.SubjectiveField; });
}

std::int32_t clsHTDRDDQuestions::NextSubjective(std::int32_t lCurrentPosition) const noexcept {
    return Next(lCurrentPosition, u"clsHTDRDDQuestions.NextSubjective",
                [](const Question& q) { return q.SubjectiveField; });
}

std::int32_t clsHTDRDDQuestions::NumTallied() const noexcept {
    return Number(u"clsHTDRDDQuestions.NumTallied", [](const Question& q) { return q.IncludeTally; });
}

std::int32_t clsHTDRDDQuestions::NextTallied(std::int32_t lCurrentPosition) const noexcept {
    return Next(lCurrentPosition, u"clsHTDRDDQuestions.NextTallied",
                [](const Question& q) { return q.IncludeTally; });
}

void clsHTDRDDQuestions::Add(Ref<clsHTDRDDQuestion> Item, const NewKey& Key, const Index& Before,
                             const Index& After) noexcept {
    try {
        ObjectList::Add(std::move(Item), Key, Before, After);
    } catch (...) { ReportFailure(u"clsHTDRDDQuestions.Add"); }
}

void clsHTDRDDQuestions::Remove(const Index& Index) noexcept {
    try {
        ObjectList::Remove(Index);
    } catch (...) { ReportFailure(u"clsHTDRDDQuestions.Remove"); }
}

std::int32_t clsHTDRDDQuestions::Find(TextView sQuestionName, Compare eCompare) const noexcept {
    return Next(0, u"clsHTDRDDQuestions.Find",
                [&](const Question& q) { return SameText(q.QuestionName, sQuestionName, eCompare); });
}

} // namespace htdrdd
