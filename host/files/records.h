/// The shared parts of commands for grade scales and scaled scores.
#pragma once

#include "host/console/wording.h"
#include "host/files/definitions.h"
#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"
#include "htdrdd91/scaled_scores/clsHTDScaledScoreManager.h"

namespace htdrdd::host {

struct GradeScales {
    using Record = clsHTDRDDGradeScale;
    using Library = clsHTDGradeScaleManager;
    static constexpr const char* kNoun = "grade scale";
    static constexpr const char* kMember = "GradeScale"; ///< in JSON
    static constexpr auto kName = &Record::ScaleName;
    static constexpr auto kOfDefinition = &clsHTDRDD::GradeScale;
    static constexpr auto kOfObjective = &clsHTDRDDSubtest::GradeScale;
    static constexpr auto Of = GradeScaleOf;
    static bool IsDefined(const Record& scale) { return scale.Count() > 0; }
    /// All texts in one.
    static Text TextsOf(const Record& scale) { return scale.ScaleName + scale.AsString(false, u""); }
};

struct ScaledScores {
    using Record = clsHTDRDDScaledScore;
    using Library = clsHTDScaledScoreManager;
    static constexpr const char* kNoun = "scaled score";
    static constexpr const char* kMember = "ScaledScore";
    static constexpr auto kName = &Record::ScaledScoreName;
    static constexpr auto kOfDefinition = &clsHTDRDD::ScaledScore;
    static constexpr auto kOfObjective = &clsHTDRDDSubtest::ScaledScore;
    static constexpr auto Of = ScaledScoreOf;
    static bool IsDefined(const Record& score) { return score.ScaledScoreValues != HTDScaledScoreValuesNone; }
    static Text TextsOf(const Record& score) { return score.ToString(u""); }
};

/// A grade scale or scaled score, and its origin.
template <class Kind>
struct Found {
    Ref<typename Kind::Record> record; ///< a copy for the caller; empty if the file was refused
    Text file;
    Ref<clsHTDRDD> definition{}; ///< empty for an exchange file
    std::int32_t objective = 1;
};

/// Reads the record of a learning objective in a definition, or the record of an exchange file, which has no
/// learning objectives.
template <class Kind>
[[nodiscard]] Found<Kind> ReadRecord(Definitions& definitions, const std::string& file,
                                     const std::optional<std::string>& objective);

/// The first broken rule. Without a definition a scaled score isn't checked.
[[nodiscard]] std::optional<Finding> Judge(const clsHTDRDDGradeScale& scale,
                                           const Ref<clsHTDRDD>& definition = {}, std::int32_t objective = 1);
[[nodiscard]] std::optional<Finding> Judge(const clsHTDRDDScaledScore& score,
                                           const Ref<clsHTDRDD>& definition, std::int32_t objective);
/// "The minimum scale values must be in descending order. (row 2)"
[[nodiscard]] std::string FindingText(const Finding& finding);

/// Whether a text contains a separator of definitions or libraries, so that it would be split there.
[[nodiscard]] inline bool ComesApart(TextView text) {
    return text.find_first_of(u"\t\v\r\n") != TextView::npos;
}

} // namespace htdrdd::host
