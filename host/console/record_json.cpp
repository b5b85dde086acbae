#include "host/console/record_json.h"

#include "host/console/json.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/scaled_scores/scaled_score_list.h"

#include <array>

namespace htdrdd::host {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::array<TextView, 3> kSecrets{u"Connect", u"User", u"Password"};
static_assert(AreMembers<clsHTDRDDScaledScoreDB>(kSecrets));

Json ConnectionAsJson(const clsHTDRDDScaledScoreDB& db, bool bSecrets) {
    Json::object_t items;
    EachMember<clsHTDRDDScaledScoreDB>([&](auto row) {
        const auto& value = db.*row.member;
        if constexpr (Holds(kSecrets, row.name))
            items.emplace_back(ToUtf8(row.name), JsonOf(Masked(value, bSecrets)));
        else
            items.emplace_back(ToUtf8(row.name), JsonOf(value));
    });
    return items;
}

} // namespace

TextView Masked(TextView secret, bool bSecrets) { return bSecrets || secret.empty() ? secret : u"***"; }

Json RecordAsJson(const clsHTDRDDGradeScale& scale, bool /*bSecrets*/) {
    Json items = Json::array();
    for (std::int32_t l = 1; l <= scale.Count(); ++l) {
        const auto item = scale.Item(l);
        items.push_back({{"Grade", JsonOf(item->Grade)}, {"StartValue", JsonOf(item->StartValue)}});
    }
    return {{"ScaleName", JsonOf(scale.ScaleName)}, {"Items", std::move(items)}};
}

Json RecordAsJson(const clsHTDRDDScaledScore& score, bool bSecrets) {
    Json::object_t items;
    EachMember<clsHTDRDDScaledScore>([&](auto row) {
        if constexpr (row.name == u"DB")
            items.emplace_back("DB", ConnectionAsJson(*score.DB, bSecrets));
        else
            items.emplace_back(ToUtf8(row.name), JsonOf(score.*row.member));
    });
    return items;
}

} // namespace htdrdd::host
