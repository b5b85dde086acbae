/// Scaled scores: how a score is looked up in an external table.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/base/variant.h"
#include "htdrdd91/scaled_scores/clsHTDRDDScaledScoreDB.h"

#include <cstdint>

namespace htdrdd {

/// The number of the respondent that is looked up.
enum HTDScaledScoreValues : std::int32_t {
    HTDScaledScoreValuesNone = 0, ///< no scaled score is defined
    HTDScaledScoreValuesDBTotal = 1,
    HTDScaledScoreValuesDBPercent = 2,
    HTDScaledScoreValuesDBPercentile = 3,
};

/// The score that is a lookup criterion.
enum HTDScaledScoreCriteria : std::int32_t {
    HTDScaledScoreCriteriaNone = 0,
    HTDScaledScoreCriteriaOverall = 1,
    HTDScaledScoreCriteriaObjective = 2,  ///< the objective questions
    HTDScaledScoreCriteriaSubjective = 3, ///< the subjective questions
    HTDScaledScoreCriteriaLearningObjective = 4,
};

class clsHTDRDDScaledScore final : public Object {
public:
    /// The primary criterion of a new scaled score is HTDScaledScoreCriteriaOverall, that of a cleared one
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

    /// A new record with its own DB. Password is copied without its outer blanks. Empty after a failure,
    /// which is reported.
    [[nodiscard]] Ref<clsHTDRDDScaledScore> Copy() const noexcept;

    /// Whether the record can be used for a lookup. The learning objectives that it names are searched in
    /// oRDD, bound by name as `oRDD.Subtests.Find(name)`; oRDD has no other use. Returns false for the first
    /// broken rule, which is shown to the user only if bVerbose is true. A failure is reported, and the
    /// result is the one reached so far: true if only the search failed.
    bool IsValid(const Variant& oRDD, bool bForLearningObjective, bool bVerbose = false) const noexcept;

    /// All members except DB->Valid as pairs of a key, "=" and a value, with the delimiter between them.
    /// User, password and connection string are enciphered. Values aren't protected against the delimiter. A
    /// failure is reported, and the result contains the pairs before it.
    [[nodiscard]] Text ToString(TextView sDelimiter = u"\t") const noexcept;
    /// Clears the record and fills it from such pairs, in any order. Values lose their outer blanks; a piece
    /// that isn't a pair or has an unknown key is skipped. Returns true even if there are no pairs. Returns
    /// false after a failure, which is reported, such as a number out of range; the values read before it
    /// stay, and enciphered ones stay enciphered.
    bool FromString(TextView sScaledScore, TextView sDelimiter = u"\t") noexcept;

    /// Writes the values of ToString to an exchange file, replacing an existing one. Returns whether the file
    /// exists afterwards. False after a failure, which is reported, such as a text with characters that XML
    /// can't hold; an existing file is then unchanged.
    bool Export(TextView sFileName) const noexcept;
    /// Clears the record and fills it from an exchange file. Returns false without a report, and changes
    /// nothing, if the file can't be read or holds no scaled score. False after a failure, which is reported;
    /// the values read before it stay.
    bool Import(TextView sFileName) noexcept;
};

} // namespace htdrdd
