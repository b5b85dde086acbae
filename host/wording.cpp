#include "host/wording.h"

#include "host/output.h"

namespace htdrdd::host {

std::string TypeName(HTDReportType type) {
    switch (type) {
    case HTDReportTypeGrade: return "test";
    case HTDReportTypeSurvey: return "survey";
    case HTDReportTypeGenericGrade: return "generic key";
    }
    return "unknown (" + std::to_string(static_cast<std::int32_t>(type)) + ")";
}

std::string VersionsText(const clsHTDRDDVersions& versions) {
    const HTDVersionType type = versions.VType();
    if (type == HTDVersionTypeNone) return "none";
    std::string text = std::to_string(versions.Answers->Count());
    text += type == HTDVersionTypeKey ? " standard versions (" : " scrambled versions (";
    text += Harmless(versions.Answers->AsString(u", "));
    text += "), told by question " + std::to_string(versions.Question);
    return text;
}

const clsHTDRDDScaledScore& ScaledScoreOf(const clsHTDRDD& definition, std::int32_t objective) {
    const clsHTDRDDScaledScore& own = definition.Subtests->Item(objective)->ScaledScore.Peek();
    if (own.ScaledScoreValues != HTDScaledScoreValuesNone) return own;
    return objective == 1 ? *definition.ScaledScore : *definition.SubtestScaledScore;
}

} // namespace htdrdd::host
