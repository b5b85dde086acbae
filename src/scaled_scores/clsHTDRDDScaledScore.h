/// Scaled scores: how a score is looked up in an external table.
#pragma once

#include "platform/object.h"
#include "platform/text.h"
#include "platform/variant.h"
#include "scaled_scores/clsHTDRDDScaledScoreDB.h"

#include <cstdint>

namespace htdrdd {

/// Which number of the respondent is looked up.
enum HTDScaledScoreValues : std::int32_t {
    HTDScaledScoreValuesNone = 0, ///< no scaled score is defined
    HTDScaledScoreValuesDBTotal = 1,
    HTDScaledScoreValuesDBPercent = 2,
    HTDScaledScoreValuesDBPercentile = 3,
};

/// Which score a lookup criterion is taken from.
enum HTDScaledScoreCriteria : std::int32_t {
    HTDScaledScoreCriteriaNone = 0,
    HTDScaledScoreCriteriaOverall = 1,
    HTDScaledScoreCriteriaObjective = 2,  ///< the objective questions
    HTDScaledScoreCriteriaSubjective = 3, ///< the subjective questions
    HTDScaledScoreCriteriaLearningObjective = 4,
};

class clsHTDRDDScaledScore final : public Object {
public:
    /// A new scaled score starts on HTDScaledScoreCriteriaOverall, a cleared one on
    /// HTDScaledScoreCriteriaNone. A failure is reported.
    clsHTDRDDScaledScore() noexcept;
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDScaledScore"; }

    Text LearningObjectivePrimary;
    Text LearningObjectiveSecondary;
    std::int16_t Precision = -1; ///< -1: not set
    Text ScaledScoreName;
    HTDScaledScoreValues ScaledScoreValues = HTDScaledScoreValuesNone;
    HTDScaledScoreCriteria ScaledScoreCriteriaPrimary = HTDScaledScoreCriteriaOverall;
    HTDScaledScoreCriteria ScaledScoreCriteriaSecondary = HTDScaledScoreCriteriaNone;
    Ref<clsHTDRDDScaledScoreDB> DB;

    /// Empties the record; DB stays the same object and is reset. A failure is reported.
    void Clear() noexcept;

    /// A new record with a DB of its own. Password is copied without its outer blanks. Empty after a failure,
    /// which is reported.
    [[nodiscard]] Ref<clsHTDRDDScaledScore> Copy() const noexcept;

    /// Whether the record can be used for a lookup. Learning objectives that it names are searched in oRDD,
    /// which is bound by name as `oRDD.Subtests.Find(name)` and touched for nothing else. False for the first
    /// broken rule, which is shown to the user only if bVerbose is true. A failure is reported and gives
    /// what was found up to then: true, where only the search failed.
    bool IsValid(const Variant& oRDD, bool bForLearningObjective, bool bVerbose = false) const noexcept;
};

} // namespace htdrdd
