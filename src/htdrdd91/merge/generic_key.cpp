#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/merge/merging.h"
#include "htdrdd91/model/basPublicAnswers.h"
#include "htdrdd91/model/model_members.h"

#include <array>
#include <utility>

namespace htdrdd {
namespace {

constexpr TextView kLocation = u"clsHTDRDD.MergeGenericKey";
constexpr TextView kTooManyGraded =
    u"The generic key contains more graded questions than the active key. Please select additional items to "
    u"be graded in the active key or select a different generic key to import.";
constexpr TextView kTooManySubjective =
    u"The generic key contains more subjective questions than the active key. Please select additional items "
    u"to be subjective in the active key or select a different generic key to import.";
constexpr TextView kNoSuchAnswer = // this wording is meant
    u"The generic key contains defines one more more correct answers that do not exist in the active key.";

/// A kind of question, and the form of its correct answers in a generic key.
struct QuestionKind {
    bool clsHTDRDDQuestion::*flag;
    std::int32_t (clsHTDRDDQuestions::*next)(std::int32_t) const noexcept;
    bool takesNumbers; ///< answers are the numbers of response choices
};
constexpr QuestionKind kGraded{&clsHTDRDDQuestion::IncludeGrade, &clsHTDRDDQuestions::NextGraded, true};
constexpr QuestionKind kSubjective{&clsHTDRDDQuestion::SubjectiveField, &clsHTDRDDQuestions::NextSubjective,
                                   false};

void TurnOffLast(clsHTDRDDQuestions& questions, std::int64_t surplus, bool clsHTDRDDQuestion::*flag) {
    TurnOffLast(questions, surplus,
                [flag](clsHTDRDDQuestion& question) { return std::exchange(question.*flag, false); });
}

/// The rows pass as texts: a scale with tabs in its grades may change or get lost.
void TakeOver(clsHTDRDDGradeScale& scale, const clsHTDRDDGradeScale& generic) {
    scale.ScaleName = generic.ScaleName;
    scale.AddDelimitedStrings(generic.AsString(false), generic.AsString(true));
}

/// The members that a question keeps when a generic one is merged over it: its name and form, and the
/// answers, which are assigned afterwards.
constexpr std::array<TextView, 12> kKept{u"QuestionName",   u"AnswerValues", u"AnswerCodes",
                                         u"BlankText",      u"BlankValue",   u"MultipleText",
                                         u"MultipleValue",  u"MinValue",     u"MaxValue",
                                         u"CorrectAnswers", u"CorrectCodes", u"CorrectAnswerPoints"};
/// The members copied last, in this order: those before a failure stay.
constexpr std::array<TextView, 2> kLast{u"Subtests", u"Topic"};
static_assert(AreMembers<clsHTDRDDQuestion>(kKept) && AreMembers<clsHTDRDDQuestion>(kLast));

void TakeOver(clsHTDRDDQuestion& question, const clsHTDRDDQuestion& generic) {
    EachMember<clsHTDRDDQuestion>([&](auto row) {
        if constexpr (!Holds(kKept, row.name) && !Holds(kLast, row.name))
            question.*row.member = generic.*row.member;
    });
    question.Subtests->RemoveAll();
    const Array<bool> includes = generic.Subtests->AsArray(); // a report may release either
    question.Subtests->AddArray(includes);
    question.Topic = generic.Topic;
}

/// Copies the members of the document, except its questions, header and versions.
void TakeOverDocument(clsHTDRDD& rdd, const clsHTDRDD& generic) {
    rdd.GradeScale->RemoveAll();
    rdd.SubtestGradeScale->RemoveAll();
    TakeOver(*rdd.GradeScale, *generic.GradeScale);
    TakeOver(*rdd.SubtestGradeScale, *generic.SubtestGradeScale);
    rdd.ScaledScore->Clear();
    rdd.SubtestScaledScore->Clear();
    rdd.ScaledScore = generic.ScaledScore->Copy();
    rdd.SubtestScaledScore = generic.SubtestScaledScore->Copy();
    rdd.Subtests->RemoveAll();
    for (std::int32_t l = 1; l <= generic.Subtests->Count(); ++l)
        rdd.Subtests->Add(generic.Subtests->Item(l));
}

/// Leaves a question without answers and only in the overall learning objective.
void StartAnew(clsHTDRDDQuestion& question, std::int32_t lSubtests) {
    question.Subtests->RemoveAll();
    if (lSubtests > 0) question.Subtests->Add(true);
    question.Subtests->AddMany(lSubtests - 1);
    RemoveAnswers(question);
}

void TakeOverHeader(clsHTDRDD& rdd, const clsHTDRDD& generic) {
    rdd.CustomHeader = generic.CustomHeader;
    rdd.Header->RemoveAll();
    for (const auto& [key, item] : generic.Header->Entries()) rdd.Header->Item(key, item);
}

/// Merges the questions of a kind over those of the definition, in order. Returns false after a complaint.
bool MergeQuestions(clsHTDRDD& rdd, const clsHTDRDD& generic, const QuestionKind& kind,
                    const ImportComplaint& fails) {
    std::int32_t position = ((*rdd.Questions).*kind.next)(0);
    std::int32_t lGeneric = ((*generic.Questions).*kind.next)(0);
    while (position > 0 && lGeneric > 0) {
        const auto question = rdd.Questions->Item(position);
        const auto source = generic.Questions->Item(lGeneric);
        TakeOver(*question, *source);
        if (source->CorrectAnswers->Count() > 0) {
            const Text& stored = source->CorrectAnswers->Item(1);
            Text answer;
            if (!kind.takesNumbers || question->AnswerValues->Count() == 0)
                answer = stored;
            else if (!AnswersByNumber(answer, *question, WithoutParentheses(stored), ChoiceOrder::AsWritten))
                return fails(WithAnswers(kNoSuchAnswer, u"Generic question index: ", lGeneric, stored));
            const bool hasPoints = source->PartialCredit && source->CorrectAnswerPoints->Exists(1);
            basPublic::AssignCorrectAnswer(*question, answer, 1,
                                           hasPoints ? source->CorrectAnswerPoints->Item(1) : TextView());
        }
        position = ((*rdd.Questions).*kind.next)(position);
        lGeneric = ((*generic.Questions).*kind.next)(lGeneric);
    }
    return true;
}

bool IsUsed(const clsHTDRDD& rdd, std::int32_t lSubtest) {
    for (std::int32_t l = 1; l <= rdd.Questions->Count(); ++l)
        if (rdd.Questions->Item(l)->Subtests->Includes(lSubtest)) return true;
    return false;
}

/// Removes the learning objectives without questions, except the overall one.
void RemoveUnusedSubtests(clsHTDRDD& rdd) {
    for (std::int32_t subtest = rdd.Subtests->Count(); subtest >= 2; --subtest) {
        if (IsUsed(rdd, subtest)) continue;
        rdd.Subtests->Remove(subtest);
        for (std::int32_t l = 1; l <= rdd.Questions->Count(); ++l)
            rdd.Questions->Item(l)->Subtests->Remove(subtest);
    }
}

} // namespace

bool clsHTDRDD::MergeGenericKey(const Ref<clsHTDRDD>& oGenericRDD, bool bVerbose) noexcept {
    bool result = false;
    try {
        const auto self = Held(*this);
        const Ref<clsHTDRDD> generic(oGenericRDD.Get());
        if (!generic || generic->ReportType != HTDReportTypeGenericGrade) return false;
        const ImportComplaint fails(kLocation, bVerbose);

        const auto graded = std::int64_t{Questions->NumGraded()} - generic->Questions->NumGraded();
        const auto subjective =
            std::int64_t{Questions->NumSubjective()} - generic->Questions->NumSubjective();
        if (graded < 0) return fails(kTooManyGraded);
        TurnOffLast(*Questions, graded, kGraded.flag);
        if (subjective < 0) return fails(kTooManySubjective);
        TurnOffLast(*Questions, subjective, kSubjective.flag);

        TakeOverDocument(*this, *generic);
        for (std::int32_t l = 1; l <= Questions->Count(); ++l)
            StartAnew(*Questions->Item(l), Subtests->Count());
        TakeOverHeader(*this, *generic);
        Versions->Question = 0;
        RemoveVersions(*this);

        if (!MergeQuestions(*this, *generic, kGraded, fails)) return false;
        if (!MergeQuestions(*this, *generic, kSubjective, fails)) return false;
        RemoveUnusedSubtests(*this);
        result = true;
    } catch (...) { ReportFailure(kLocation); }
    return result;
}

} // namespace htdrdd
