#include "htdrdd91/scaled_scores/scaled_score_rules.h"

#include "htdrdd91/base/late_bound.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/rules.h"

#include <array>

namespace htdrdd {
namespace {

enum ScaledScoreRule : std::size_t {
    NotDefined,
    PercentileOfPart,
    ObjectiveNeedsOverall,
    ObjectiveNeedsNoSecondary,
    NoPrimaryCriterion,
    NoConnection,
    NoScoreField,
    NoPrimaryFields,
    UnknownPrimaryObjective,
    NoSecondaryFields,
    UnknownSecondaryObjective,
    ScaledScoreRuleCount
};

constexpr TextView kInvalid = u"Invalid Scaled Score";
constexpr Rule UnknownObjective(ScaledScoreRule rule) {
    return {rule, u"Missing Learning Objective",
            u"The specified learning objective could not be found. Please define the learning objective or "
            u"choose "
            u"another lookup criteria for the scaled score.",
            u"Learning Objective: "};
}

constexpr std::array<Rule, ScaledScoreRuleCount> kScaledScoreRules{{
    {NotDefined, u"Scaled Scores", u"Please define your scaled scores."},
    {PercentileOfPart, kInvalid,
     u"Percentiles are not calculated for individual objective and subjective scores and therefore "
     u"cannot be used as a lookup value."},
    {ObjectiveNeedsOverall, kInvalid,
     u"This scaled score cannot be used with a learning objective. The scaled scores primary lookup "
     u"criteria must be set to Overall for use with learning objectives."},
    {ObjectiveNeedsNoSecondary, kInvalid,
     u"This scaled score cannot be used with a learning objective. The scaled scores secondary "
     u"lookup criteria must be set to None for use with learning objectives."},
    {NoPrimaryCriterion, u"Primary Lookup Criteria",
     u"Please specify the primary lookup criteria for your scaled score."},
    {NoConnection, u"Database Connection", u"Please verify your scaled score's database connection."},
    {NoScoreField, u"Invalid Field Name", u"The scaled score field name is missing or invalid."},
    {NoPrimaryFields, kInvalid, u"The primary minimum and/or maximum score field is missing or invalid."},
    UnknownObjective(UnknownPrimaryObjective),
    {NoSecondaryFields, kInvalid, u"The secondary minimum and/or maximum score field is missing or invalid."},
    UnknownObjective(UnknownSecondaryObjective),
}};
static_assert(InOrder(kScaledScoreRules), "each rule stands at the place of its enumerator");

bool HasSubtest(const Variant& oRDD, const Text& name, Where at = Where::current()) {
    const auto subtests = BoundObject(BoundObject(oRDD, at)->Get(u"Subtests"), at);
    Variant sought(name);
    return subtests->Call(u"Find", {&sought, 1}).ToDouble(at) > 0;
}

} // namespace

void WalkScaledScoreRules(const clsHTDRDDScaledScore& oScaledScore, const Variant& oRDD,
                          bool bForLearningObjective, bool& result, const FindingSink& found) {
    const FindingsOf ends(kScaledScoreRules, found);
    const auto& score = oScaledScore;
    const auto isPart = [](HTDScaledScoreCriteria criteria) {
        return criteria == HTDScaledScoreCriteriaObjective || criteria == HTDScaledScoreCriteriaSubjective;
    };
    const auto primaryIsDefined = [&] {
        return score.ScaledScoreCriteriaPrimary >= HTDScaledScoreCriteriaOverall &&
               score.ScaledScoreCriteriaPrimary <= HTDScaledScoreCriteriaLearningObjective;
    };
    const auto hasPrimaryFields = [&] {
        return !score.DB->MinFieldPrimary.empty() && !score.DB->MaxFieldPrimary.empty();
    };
    result = false;

    if ((score.ScaledScoreValues < HTDScaledScoreValuesDBTotal ||
         score.ScaledScoreValues > HTDScaledScoreValuesDBPercentile) &&
        ends(NotDefined))
        return;
    if (score.ScaledScoreValues == HTDScaledScoreValuesDBPercentile &&
        (isPart(score.ScaledScoreCriteriaPrimary) || isPart(score.ScaledScoreCriteriaSecondary)) &&
        ends(PercentileOfPart))
        return;
    if (bForLearningObjective) {
        if (score.ScaledScoreCriteriaPrimary != HTDScaledScoreCriteriaOverall && ends(ObjectiveNeedsOverall))
            return;
        if (score.ScaledScoreCriteriaSecondary != HTDScaledScoreCriteriaNone &&
            ends(ObjectiveNeedsNoSecondary))
            return;
    }
    if (!primaryIsDefined() && ends(NoPrimaryCriterion)) return;
    if (!(score.DB->Valid && score.DB->DBType > -1 && !score.DB->Connect.empty()) && ends(NoConnection))
        return;
    if (score.DB->ScoreField.empty() && ends(NoScoreField)) return;
    result = hasPrimaryFields();
    if (!result && ends(NoPrimaryFields)) return;
    // This is meant: if the search fails, the result of the rule above stays.
    if (score.ScaledScoreCriteriaPrimary == HTDScaledScoreCriteriaLearningObjective) {
        const Text name = score.LearningObjectivePrimary;
        result = HasSubtest(oRDD, name);
        if (!result && ends(UnknownPrimaryObjective, {}, name)) return;
    }
    // This is meant: this checks the primary fields once more; the secondary fields may be empty.
    if (primaryIsDefined() && !hasPrimaryFields()) {
        result = false;
        if (ends(NoSecondaryFields)) return;
    }
    if (score.ScaledScoreCriteriaSecondary == HTDScaledScoreCriteriaLearningObjective) {
        const Text name = score.LearningObjectiveSecondary;
        result = HasSubtest(oRDD, name);
        if (!result && ends(UnknownSecondaryObjective, {}, name)) return;
    }
}

bool clsHTDRDDScaledScore::IsValid(const Variant& oRDD, bool bForLearningObjective,
                                   bool bVerbose) const noexcept {
    bool result = false;
    try {
        const auto self = Held(*this);
        const auto finding = FirstFinding([&](const FindingSink& found) {
            WalkScaledScoreRules(*this, oRDD, bForLearningObjective, result, found);
        });
        if (finding && bVerbose)
            ShowStopMessage(finding->sCaption, finding->sMessage, Ref<Object>(), finding->at);
    } catch (...) { ReportFailure(u"clsHTDRDDScaledScore.IsValid"); }
    return result;
}

} // namespace htdrdd
