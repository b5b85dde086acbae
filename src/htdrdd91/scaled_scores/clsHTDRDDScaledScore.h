/// Scaled scores: how a score is looked up in an external table.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/base/variant.h"
#include "htdrdd91/scaled_scores/clsHTDRDDScaledScoreDB.h"

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

    /// All members but DB->Valid as pairs of a key, "=" and a value, with the delimiter between them. User,
    /// password and connection string are enciphered. Values aren't protected against the delimiter. After a
    /// failure, which is reported, the pairs up to then.
    [[nodiscard]] Text ToString(TextView sDelimiter = u"\t") const noexcept;
    /// Clears the record and fills it from such pairs, in any order; values lose their outer blanks, and what
    /// is no pair or has an unknown key is passed over. True where there is no pair at all, too. False after
    /// a failure, which is reported, such as a number out of range, with what was filled up to then and what
    /// was enciphered still so.
    bool FromString(TextView sScaledScore, TextView sDelimiter = u"\t") noexcept;

    /// Writes an exchange file with what ToString gives; an existing one is replaced. Whether the file is
    /// there then. False after a failure, which is reported, such as a text with characters that XML can't
    /// hold; an existing file is then still what it was.
    bool Export(TextView sFileName) const noexcept;
    /// Clears the record and fills it from an exchange file. False in silence, with nothing changed, where
    /// the file can't be read or is none of a scaled score. False after a failure, which is reported, with
    /// what was filled up to then.
    bool Import(TextView sFileName) noexcept;
};

} // namespace htdrdd
