#include "host/record_json.h"

#include "htdrdd91/platform/encoding.h"

namespace htdrdd::host {
namespace {

using Json = nlohmann::ordered_json;

Json Of(TextView text) { return ToUtf8(text); }

Json Of(const clsHTDRDDScaledScoreDB& db, bool bSecrets) {
    return {{"Name", Of(db.Name)},
            {"Catalog", Of(db.Catalog)},
            {"Table", Of(db.Table)},
            {"MinFieldPrimary", Of(db.MinFieldPrimary)},
            {"MaxFieldPrimary", Of(db.MaxFieldPrimary)},
            {"MinFieldSecondary", Of(db.MinFieldSecondary)},
            {"MaxFieldSecondary", Of(db.MaxFieldSecondary)},
            {"ScoreField", Of(db.ScoreField)},
            {"ScoreGrade", Of(db.ScoreGrade)},
            {"DBType", db.DBType},
            {"Connect", Of(Masked(db.Connect, bSecrets))},
            {"DirectoryBased", db.DirectoryBased},
            {"DSNBased", db.DSNBased},
            {"DSNName", Of(db.DSNName)},
            {"User", Of(Masked(db.User, bSecrets))},
            {"Password", Of(Masked(db.Password, bSecrets))},
            {"Valid", db.Valid}};
}

} // namespace

TextView Masked(TextView secret, bool bSecrets) { return bSecrets || secret.empty() ? secret : u"***"; }

Json RecordAsJson(const clsHTDRDDGradeScale& scale, bool /*bSecrets*/) {
    Json items = Json::array();
    for (std::int32_t l = 1; l <= scale.Count(); ++l) {
        const auto item = scale.Item(l);
        items.push_back({{"Grade", Of(item->Grade)}, {"StartValue", Of(item->StartValue)}});
    }
    return {{"ScaleName", Of(scale.ScaleName)}, {"Items", std::move(items)}};
}

Json RecordAsJson(const clsHTDRDDScaledScore& score, bool bSecrets) {
    return {{"LearningObjectivePrimary", Of(score.LearningObjectivePrimary)},
            {"LearningObjectiveSecondary", Of(score.LearningObjectiveSecondary)},
            {"Precision", score.Precision},
            {"ScaledScoreName", Of(score.ScaledScoreName)},
            {"ScaledScoreValues", static_cast<std::int32_t>(score.ScaledScoreValues)},
            {"ScaledScoreCriteriaPrimary", static_cast<std::int32_t>(score.ScaledScoreCriteriaPrimary)},
            {"ScaledScoreCriteriaSecondary", static_cast<std::int32_t>(score.ScaledScoreCriteriaSecondary)},
            {"DB", Of(*score.DB, bSecrets)}};
}

} // namespace htdrdd::host
