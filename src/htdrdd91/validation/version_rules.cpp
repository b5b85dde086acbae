#include "htdrdd91/validation/version_rules.h"

#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/basPublicText.h"
#include "htdrdd91/foundation/rules.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace htdrdd {
namespace {

enum VersionRule : std::size_t {
    MissingIdentifier,
    DuplicateIdentifier,
    TooFewGraded,
    DisparateChoices,
    QuestionCount,
    LearningObjectives,
    NumberOfCorrectAnswers,
    DisparateCorrectPoints,
    DisparateIncorrectPoints,
    DisparateNoResponsePoints,
    DisparateCorrectAnd,
    DisparateSubjective,
    VersionRuleCount
};

constexpr TextView kUnique = u"All test versions must have a unique version ID.";
constexpr TextView kVersion = u"Test Version: ";
constexpr TextView kFlagged = u"Flagged Question: ";

constexpr std::array<Rule, VersionRuleCount> kVersionRules{{
    {MissingIdentifier, u"Missing Version ID", kUnique, u"Please select an answer to identify test version (",
     u") or delete the version."},
    {DuplicateIdentifier, u"Duplicate Version ID", kUnique, u"Duplicate Versions: "},
    {TooFewGraded, u"Graded Questions",
     u"The test must contain at least two graded questions when defining multiple test versions."},
    {DisparateChoices, u"Disparate Response Choices",
     u"When scrambling test questions, all graded questions that occupy the same position must have the same "
     u"response choices.",
     kFlagged},
    {QuestionCount, u"Question Count", u"All test versions must contain the same number of questions.",
     kVersion},
    {LearningObjectives, u"Learning Objectives",
     u"You cannot define learning objectives when using standard test versions."},
    {NumberOfCorrectAnswers, u"Invalid Correct Answers",
     u"All graded questions must have a correct answer defined for each version of the test.", kFlagged},
    {DisparateCorrectPoints, u"Disparate Correct Points",
     u"All graded questions must have the same number of correct points when defining multiple test "
     u"versions.",
     kFlagged},
    {DisparateIncorrectPoints, u"Disparate Incorrect Points",
     u"All graded questions must have the same number of incorrect points when defining multiple test "
     u"versions.",
     kFlagged},
    {DisparateNoResponsePoints, u"Disparate No Response Points",
     u"All graded questions must have the same number of no response points when defining multiple test "
     u"versions.",
     kFlagged},
    {DisparateCorrectAnd, u"Correct Answer Determination",
     u"All graded questions must use the same method for determining whether an answer is correct when "
     u"defining multiple test versions.",
     kFlagged},
    {DisparateSubjective, u"Subjective Questions",
     u"All test versions must contain the same set of subjective questions.", kVersion},
}};
static_assert(InOrder(kVersionRules), "each rule stands at the place of its enumerator");

/// The response choices of the questions. Equal lists are represented by the first of them, so that repeated
/// comparisons of two questions don't compare texts.
class ResponseChoices {
public:
    explicit ResponseChoices(const clsHTDRDDQuestions& questions) : lists_(Slot(questions.Count()) + 1) {
        for (std::int32_t l = 1; l <= questions.Count(); ++l)
            if (const auto question = questions.Item(l); question && question->AnswerValues)
                lists_[Slot(l)] = *distinct_.insert(question->AnswerValues.Get()).first;
    }
    /// Fails with 91 if the position has no response choices.
    [[nodiscard]] const clsHTDRDDStrings& Of(std::int32_t position, Where at = Where::current()) const {
        const bool isThere = position > 0 && Slot(position) < lists_.size();
        if (!isThere || lists_[Slot(position)] == nullptr) throw Failure(Err::NotSet, at);
        return *lists_[Slot(position)];
    }

private:
    using List = clsHTDRDDStrings;
    struct Hash {
        std::size_t operator()(const List* list) const noexcept {
            std::size_t hash = 0;
            for (const Text& text : *list) hash = hash * 31 + std::hash<Text>()(text);
            return hash;
        }
    };
    struct Equal {
        bool operator()(const List* a, const List* b) const noexcept {
            return std::equal(a->begin(), a->end(), b->begin(), b->end());
        }
    };
    static std::size_t Slot(std::int32_t position) { return static_cast<std::size_t>(position); }

    std::vector<const List*> lists_; ///< by position
    std::unordered_set<const List*, Hash, Equal> distinct_;
};

/// Whether `other` has only texts of `choices`, and as many. Case-sensitive.
bool SameChoices(const clsHTDRDDStrings& choices, const clsHTDRDDStrings& other) {
    if (&choices == &other) return true;
    if (choices.Count() != other.Count()) return false;
    const std::unordered_set<TextView> known(choices.begin(), choices.end());
    return std::all_of(other.begin(), other.end(), [&](TextView text) { return known.contains(text); });
}

/// "(A,C)": several answers, of which CorrectAnd demands all or any.
bool IsMultiple(TextView answer) {
    return answer.starts_with(u'(') && answer.ends_with(u')') && answer.find(u',') != TextView::npos;
}

/// The result of a walk over one part of the rules: true if the sink ends the walk.
using Enough = bool;

/// The rules of version identifiers, for every version type. `position` is the last version reached.
Enough WalkIdentifiers(const clsHTDRDDStrings& answers, std::int32_t& position, const FindingsOf& ends) {
    if (answers.Count() <= 1) return false;
    std::unordered_map<Text, std::int32_t> versionOf;
    for (position = 1; position <= answers.Count(); ++position) {
        const Text& answer = answers.Item(position);
        const Offender offender{.lVersion = position};
        if (answer.empty()) {
            if (ends(MissingIdentifier, offender, DecimalText(position))) return true;
            continue;
        }
        const auto [first, isNew] = versionOf.try_emplace(UpperCased(answer), position);
        if (isNew) continue;
        const Text named =
            DecimalText(first->second) + u", " + DecimalText(position) + u"\r\nDuplicate Answer: " + answer;
        if (ends(DuplicateIdentifier, offender, named)) return true;
    }
    return false;
}

Enough WalkScrambled(const clsHTDRDD& oRDD, std::int32_t position, const FindingsOf& ends) {
    const auto& questions = oRDD.Questions;
    const auto sequences = oRDD.Versions->Sequences;
    if (questions->NumGraded() < 2 && ends(TooFewGraded)) return true;

    // This is meant: the walk starts after the position that the version identifiers reached.
    const ResponseChoices choices(*questions);
    while ((position = questions->NextGraded(position)) > 0) {
        const auto& own = choices.Of(position);
        for (std::int32_t sequence = 2; sequence <= sequences->Count(); ++sequence) {
            const auto& other = choices.Of(sequences->Item(sequence)->Item(position));
            if (SameChoices(own, other)) continue;
            if (ends(DisparateChoices, {.lQuestion = position}, questions->Item(position)->QuestionName))
                return true;
            break; // the finding is the same for each sequence
        }
    }
    for (std::int32_t sequence = 1; sequence <= sequences->Count(); ++sequence)
        if (sequences->Item(sequence)->Count() != questions->Count() &&
            ends(QuestionCount, {.lVersion = sequence}, DecimalText(sequence)))
            return true;
    return false;
}

Enough WalkStandard(const clsHTDRDD& oRDD, const FindingsOf& ends) {
    const auto& questions = oRDD.Questions;
    const std::int32_t versions = oRDD.Versions->Answers->Count();
    if (oRDD.Subtests->Count() > 1 && ends(LearningObjectives)) return true;

    const auto standard = questions->Item(questions->NextGraded(0));
    std::optional<bool> correctAnd; // of the first multiple answer
    for (std::int32_t position = 0; (position = questions->NextGraded(position)) > 0;) {
        const auto question = questions->Item(position);
        const auto flagged = [&](VersionRule rule, Where at = Where::current()) {
            return ends(rule, {.lQuestion = position}, question->QuestionName, at);
        };
        const auto& answers = question->CorrectAnswers;
        if (versions > 1 && answers->Count() != versions && flagged(NumberOfCorrectAnswers)) return true;
        if (question->CorrectPoints != standard->CorrectPoints && flagged(DisparateCorrectPoints))
            return true;
        if (question->IncorrectPoints != standard->IncorrectPoints && flagged(DisparateIncorrectPoints))
            return true;
        if (question->NoResponsePoints != standard->NoResponsePoints && flagged(DisparateNoResponsePoints))
            return true;
        if (!std::any_of(answers->begin(), answers->end(), IsMultiple)) continue;
        if (!correctAnd) correctAnd = question->CorrectAnd;
        if (question->CorrectAnd != correctAnd && flagged(DisparateCorrectAnd)) return true;
    }

    std::vector<Ref<clsHTDRDDQuestion>> subjective;
    double reference = 0;
    for (std::int32_t version = 1; version <= versions; ++version) {
        if (version == 1)
            for (std::int32_t position = 0; (position = questions->NextSubjective(position)) > 0;)
                subjective.push_back(questions->Item(position));
        double sum = 0;
        for (const auto& question : subjective)
            sum += basPublic::TextToDouble(question->CorrectAnswers->Item(version));
        if (version == 1) reference = sum;
        if (sum != reference && ends(DisparateSubjective, {.lVersion = version}, DecimalText(version)))
            return true;
    }
    return false;
}

/// Converts a value to a version type, compared as a number. A value that is no type, such as 1.5 or null,
/// becomes a value that is none of the enumerators.
HTDVersionType TypeOf(const Variant& value, Where at = Where::current()) {
    constexpr auto kNoType = static_cast<HTDVersionType>(-1);
    if (value.Is() == Variant::Kind::Null) return kNoType;
    const double number = value.ToDouble(at);
    for (const auto type : {HTDVersionTypeNone, HTDVersionTypeKey, HTDVersionTypeSequence})
        if (number == static_cast<std::int32_t>(type)) return type;
    return kNoType;
}

} // namespace

void WalkVersionRules(const clsHTDRDD& oRDD, HTDVersionType eVersionType, const FindingSink& found) {
    const FindingsOf ends(kVersionRules, found);
    if (eVersionType == HTDVersionTypeNone) return;
    std::int32_t position = 0;
    if (WalkIdentifiers(*oRDD.Versions->Answers, position, ends)) return;
    if (eVersionType == HTDVersionTypeSequence)
        WalkScrambled(oRDD, position, ends);
    else if (eVersionType == HTDVersionTypeKey)
        WalkStandard(oRDD, ends);
}

bool clsHTDRDD::ValidateVersions(bool bVerbose, std::int32_t* lInvalidVersion,
                                 Variant* eVersionType) const noexcept {
    constexpr TextView kLocation = u"clsHTDRDD.ValidateVersions";
    bool result = false;
    try {
        const auto self = Held(*this);
        Variant type;
        if (eVersionType != nullptr) type = *eVersionType;
        if (type.IsMissing() || type.Is() == Variant::Kind::Empty) {
            type = Versions->VType();
            if (eVersionType != nullptr) *eVersionType = type;
        }
        const HTDVersionType kind = TypeOf(type);
        const auto finding =
            FirstFinding([&](const FindingSink& found) { WalkVersionRules(*this, kind, found); });
        if (finding) {
            ReportFinding(*finding, kLocation, bVerbose);
            WriteOffender(lInvalidVersion, finding->offender.lVersion);
        }
        result = !finding;
    } catch (...) { ReportFailure(kLocation); }
    return result;
}

} // namespace htdrdd
