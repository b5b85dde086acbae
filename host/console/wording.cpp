#include "host/console/wording.h"

#include "host/console/output.h"

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
    text += "), identified by question " + std::to_string(versions.Question);
    return text;
}

const char* LookupText(HTDScaledScoreValues values) {
    switch (values) {
    case HTDScaledScoreValuesNone: return "";
    case HTDScaledScoreValuesDBTotal: return "total score";
    case HTDScaledScoreValuesDBPercent: return "percent score";
    case HTDScaledScoreValuesDBPercentile: return "percentile";
    }
    return "unknown";
}

std::string RecordText(const clsHTDRDDGradeScale& scale) {
    std::string text;
    for (std::int32_t l = 1; l <= scale.Count(); ++l) {
        const auto item = scale.Item(l);
        text.append(text.empty() ? "" : ", ").append(Harmless(item->Grade));
        text.append(" ").append(Harmless(item->StartValue));
    }
    return text;
}

std::string RecordText(const clsHTDRDDScaledScore& score) {
    std::string text = LookupText(score.ScaledScoreValues);
    if (text.empty()) return text;
    if (!score.DB->Table.empty()) text += " in table " + Harmless(score.DB->Table);
    if (!score.DB->Name.empty()) text += " of " + Harmless(score.DB->Name);
    return text;
}

const clsHTDRDDGradeScale& GradeScaleOf(const clsHTDRDD& definition, std::int32_t objective) {
    const clsHTDRDDGradeScale& own = definition.Subtests->Item(objective)->GradeScale.Peek();
    if (own.Count() > 0) return own;
    const bool shared = objective > 1 && definition.SubtestGradeScale->Count() > 0;
    return shared ? *definition.SubtestGradeScale : *definition.GradeScale;
}

const clsHTDRDDScaledScore& ScaledScoreOf(const clsHTDRDD& definition, std::int32_t objective) {
    const clsHTDRDDScaledScore& own = definition.Subtests->Item(objective)->ScaledScore.Peek();
    if (own.ScaledScoreValues != HTDScaledScoreValuesNone) return own;
    return objective == 1 ? *definition.ScaledScore : *definition.SubtestScaledScore;
}

} // namespace htdrdd::host
