#include "host/files/records.h"

#include "host/console/output.h"
#include "htdrdd91/grade_scales/grade_scale_rules.h"
#include "htdrdd91/scaled_scores/scaled_score_rules.h"

namespace htdrdd::host {
namespace {

/// The first finding of `walk(const FindingSink&)`. A failure of the walk is a finding, too.
template <class Walk>
std::optional<Finding> Judged(Walk walk) {
    try {
        return FirstFinding(walk);
    } catch (const Failure& failure) {
        return Finding{0, {}, u"It could not be checked: " + Text(failure.Text()), {}, {}};
    }
}

} // namespace

template <class Kind>
Found<Kind> ReadRecord(Definitions& definitions, const std::string& file,
                       const std::optional<std::string>& objective) {
    const Input input(file);
    Found<Kind> found{definitions.ReadExchange<typename Kind::Record>(input, {}), input.Name()};
    if (found.record && objective) {
        definitions.Refuse(found.file, "it is an exchange file, which has no learning objectives.");
        found.record = nullptr;
    }
    if (found.record || definitions.AnyRefused()) return found;
    found.definition = definitions.Read(
        input, std::string("it is neither a definition nor an exchange file of a ") + Kind::kNoun + '.');
    if (!found.definition) return found;
    found.objective = definitions.FindObjective(*found.definition, objective);
    if (found.objective > 0) found.record = Kind::Of(*found.definition, found.objective).Copy();
    return found;
}
template Found<GradeScales> ReadRecord(Definitions&, const std::string&, const std::optional<std::string>&);
template Found<ScaledScores> ReadRecord(Definitions&, const std::string&, const std::optional<std::string>&);

std::optional<Finding> Judge(const clsHTDRDDGradeScale& scale, const Ref<clsHTDRDD>& /*definition*/,
                             std::int32_t /*objective*/) {
    return Judged([&](const FindingSink& found) { WalkGradeScaleRules(scale, found); });
}

std::optional<Finding> Judge(const clsHTDRDDScaledScore& score, const Ref<clsHTDRDD>& definition,
                             std::int32_t objective) {
    if (!definition) return {};
    bool result = false;
    return Judged([&](const FindingSink& found) {
        WalkScaledScoreRules(score, definition, objective > 1, result, found);
    });
}

std::string FindingText(const Finding& finding) {
    const std::int32_t row = finding.offender.lItem;
    return OnOneLine(finding.sMessage) + (row > 0 ? " (row " + std::to_string(row) + ")" : "");
}

} // namespace htdrdd::host
