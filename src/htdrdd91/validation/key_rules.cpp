#include "htdrdd91/validation/key_rules.h"

#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/rules.h"

#include <algorithm>
#include <array>
#include <vector>

namespace htdrdd {
namespace {

enum KeyRule : std::size_t {
    NoGradedQuestions,
    PartialCreditWithVersions,
    NumberOfMemberships,
    NumberOfCorrectAnswers,
    NoCorrectAnswer,
    NoPartialPoints,
    TooFewPartialPoints,
    EmptyPartialPoints,
    GradedAndSubjective,
    GradedAndIdentifier,
    PartialCreditForOneAnswer,
    SubjectiveAndIdentifier,
    SubjectiveWithPartialCredit,
    NotAllInOverall,
    EmptyObjective,
    OnlyExtraCredit,
    KeyRuleCount
};

constexpr TextView kCaption = u"Invalid Answer Key";
constexpr TextView kQuestion = u"Question: ";
constexpr TextView kObjective = u"Learning Objective: ";
constexpr TextView kPointsForEachAnswer =
    u"One or more graded questions with partial credit turned on do not have partial credit points defined "
    u"for each correct answer. Please provide partial credit points for each correct answer for each "
    u"question with partial credit defined.";

constexpr std::array<Rule, KeyRuleCount> kKeyRules{{
    {NoGradedQuestions, kCaption, u"The answer key does not contain any graded questions"},
    {PartialCreditWithVersions, kCaption,
     u"One or more graded questions allow partial credit; however, partial credit is not supported when "
     u"using multiple standard test versions. Please discontinue use of partial credit or multiple standard "
     u"answer keys.",
     kQuestion},
    {NumberOfMemberships, kCaption,
     u"One or more graded questions do not have the appropriate number of learning objectives associations "
     u"defined. Please provide the appropriate number of learning objectives associations for each question.",
     kQuestion},
    {NumberOfCorrectAnswers, kCaption,
     u"One or more graded questions do not have the appropriate number of correct answers specified. Please "
     u"provide the appropriate number of correct answers for each graded question.",
     kQuestion},
    {NoCorrectAnswer, kCaption,
     u"One or more graded questions do not have a correct answer specified. Please provide a correct answer "
     u"for each graded question.",
     kQuestion},
    {NoPartialPoints, kCaption,
     u"One or more graded questions with partial credit turned on do not have partial credit points "
     u"defined. Please provide partial credit points for each question with partial credit defined.",
     kQuestion},
    {TooFewPartialPoints, kCaption, kPointsForEachAnswer, kQuestion},
    {EmptyPartialPoints, kCaption, kPointsForEachAnswer, kQuestion},
    {GradedAndSubjective, kCaption,
     u"One or more graded questions are also marked subjective questions. Please mark the question as "
     u"either subjective or graded, but not both.",
     kQuestion},
    {GradedAndIdentifier, kCaption,
     u"One or more graded questions are also marked respondent identifiers. Please mark the question as "
     u"either a respondent identifier or graded, but not both.",
     kQuestion},
    {PartialCreditForOneAnswer, kCaption,
     u"One or more questions are marked as partial credit, but do not contain multiple correct or partially "
     u"correct answers. Partial credit only applies to questions with more than one correct or partially "
     u"correct answer.",
     kQuestion},
    {SubjectiveAndIdentifier, kCaption,
     u"One or more questions are marked respondent identifiers and subjective questions. Please mark the "
     u"question as either a respondent identifier or subjective, but not both.",
     kQuestion},
    {SubjectiveWithPartialCredit, kCaption,
     u"One or more questions are subjective and also marked as partial credit. Partial credit only applies "
     u"to objective questions.",
     kQuestion},
    {NotAllInOverall, kCaption,
     u"The overall test learning objective is missing one or more test questions. The overall test learning "
     u"objective must contain every question on the test."},
    {EmptyObjective, kCaption, u"One or more learning objectives don't contain any questions.", kObjective},
    {OnlyExtraCredit, kCaption,
     u"One or more learning objectives contain only extra credit questions. Learning objectives can contain "
     u"extra credit questions, but they must also contain at least one question that is not marked as extra "
     u"credit.",
     kObjective},
}};
static_assert(InOrder(kKeyRules), "each rule stands at the place of its enumerator");

/// The number of pieces between commas, at most `lNumber`, and whether any of them is empty.
struct PartialPoints {
    std::int32_t lFound = 0;
    bool anyEmpty = false;
};
PartialPoints PointsOf(TextView text, std::int32_t lNumber) {
    PartialPoints points;
    Pieces pieces(text, u",");
    while (points.lFound < lNumber) {
        const auto piece = pieces.Next();
        if (!piece) break;
        ++points.lFound;
        if (piece->empty()) points.anyEmpty = true;
    }
    return points;
}

/// How many questions are in a learning objective, and whether all memberships are known.
struct Members {
    std::int32_t lAll = 0;
    std::int32_t lExtraCredit = 0;
    bool isKnown = true;
};
/// By position from 1, for all learning objectives in one walk over the questions.
std::vector<Members> MembersOfObjectives(const clsHTDRDD& oRDD) {
    std::vector<Members> members(static_cast<std::size_t>(oRDD.Subtests->Count()) + 1);
    if (members.size() <= 2) return members;
    for (std::int32_t l = 1; l <= oRDD.Questions->Count(); ++l) {
        const auto question = oRDD.Questions->Item(l);
        question->Subtests->EachMembership([&](std::int32_t objective, std::optional<bool> included) {
            if (static_cast<std::size_t>(objective) >= members.size()) return;
            Members& own = members[static_cast<std::size_t>(objective)];
            if (!included) own.isKnown = false;
            if (!included.value_or(false)) return;
            ++own.lAll;
            if (question->ExtraCredit) ++own.lExtraCredit;
        });
    }
    return members;
}

} // namespace

void WalkKeyRules(const clsHTDRDD& oRDD, const FindingSink& found) {
    const FindingsOf ends(kKeyRules, found);
    const auto& questions = oRDD.Questions;

    const std::int32_t graded = questions->NextGraded(0);
    const std::int32_t subjective = questions->NextSubjective(0);
    if (graded <= 0 && subjective <= 0 && ends(NoGradedQuestions)) return;

    const bool standardVersions = oRDD.Versions->VType() == HTDVersionTypeKey;
    const std::int32_t keys = standardVersions ? oRDD.Versions->Answers->Count() : 1;
    const std::int32_t partial = questions->NextPartialCredit(0);
    if (keys > 1 && partial > 0 &&
        ends(PartialCreditWithVersions, {.lQuestion = partial}, questions->Item(partial)->QuestionName))
        return;

    std::int32_t overall = 0;
    for (std::int32_t l = 1; l <= questions->Count(); ++l) {
        const auto question = questions->Item(l);
        const auto flagged = [&](KeyRule rule, std::int32_t key = 0, Where at = Where::current()) {
            return ends(rule, {.lQuestion = l, .lKey = key}, question->QuestionName, at);
        };
        const bool fits = question->Subtests->Count() == oRDD.Subtests->Count();
        if (!fits && flagged(NumberOfMemberships)) return;
        if (question->IncludeGrade) {
            const std::int32_t answers = question->CorrectAnswers->Count();
            if (answers != keys && flagged(NumberOfCorrectAnswers)) return;
            const std::int32_t there = std::min(keys, answers); // missing answers are already reported
            for (std::int32_t key = 1; key <= there; ++key) {
                if (question->CorrectAnswers->Item(key).empty() && flagged(NoCorrectAnswer, key)) return;
                if (!question->PartialCredit) continue;
                const Text& points = question->CorrectAnswerPoints->Item(key);
                const PartialPoints pieces = PointsOf(points, question->NumCorrect);
                if (points.empty()) {
                    if (flagged(NoPartialPoints, key)) return;
                } else if (pieces.lFound < question->NumCorrect) {
                    if (flagged(TooFewPartialPoints, key)) return;
                } else if (pieces.anyEmpty) {
                    if (flagged(EmptyPartialPoints, key)) return;
                }
            }
            if (question->SubjectiveField && flagged(GradedAndSubjective)) return;
            if (question->IDField && flagged(GradedAndIdentifier)) return;
            if (question->PartialCredit && question->NumCorrect <= 1 && flagged(PartialCreditForOneAnswer))
                return;
        } else if (question->SubjectiveField) {
            if (question->IDField && flagged(SubjectiveAndIdentifier)) return;
            if (question->PartialCredit && flagged(SubjectiveWithPartialCredit)) return;
        }
        if (fits && question->Subtests->Includes(1)) ++overall; // fails if there are no learning objectives
    }

    if (overall < questions->Count() && ends(NotAllInOverall)) return;

    const std::vector<Members> members = MembersOfObjectives(oRDD);
    for (std::int32_t objective = 2; objective <= oRDD.Subtests->Count(); ++objective) {
        const Members& own = members[static_cast<std::size_t>(objective)];
        if (!own.isKnown) throw Failure(Err::NotSet, Where::current());
        const auto flagged = [&](KeyRule rule, Where at = Where::current()) {
            return ends(rule, {.lSubtest = objective}, oRDD.Subtests->Item(objective)->SubtestName, at);
        };
        if (own.lAll == 0) {
            if (flagged(EmptyObjective)) return;
        } else if (own.lAll == own.lExtraCredit) {
            if (flagged(OnlyExtraCredit)) return;
        }
    }
}

bool clsHTDRDD::ValidateKey(bool bVerbose, std::int32_t* lInvalidQuestion, std::int32_t* lInvalidKey,
                            std::int32_t* lInvalidSubtest) const noexcept {
    constexpr TextView kLocation = u"clsHTDRDD.ValidateKey";
    bool result = false;
    try {
        const auto self = Held(*this);
        const auto finding = FirstFinding([this](const FindingSink& found) { WalkKeyRules(*this, found); });
        if (finding) {
            ReportFinding(*finding, kLocation, bVerbose);
            WriteOffender(lInvalidQuestion, finding->offender.lQuestion);
            WriteOffender(lInvalidKey, finding->offender.lKey);
            WriteOffender(lInvalidSubtest, finding->offender.lSubtest);
        }
        result = !finding;
    } catch (...) { ReportFailure(kLocation); }
    return result;
}

} // namespace htdrdd
