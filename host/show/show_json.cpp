#include "host/show/show_json.h"

#include "host/console/json.h"
#include "host/console/record_json.h"
#include "htdrdd91/definition_file/report_members.h"
#include "htdrdd91/model/model_members.h"
#include "htdrdd91/platform/encoding.h"

namespace htdrdd::host {
namespace {

using host::JsonOf;
using Json = nlohmann::ordered_json;

Json JsonOf(const clsHTDRDDStrings& strings) {
    Json items = Json::array();
    for (std::int32_t l = 1; l <= strings.Count(); ++l) items.push_back(JsonOf(strings.Item(l)));
    return items;
}

Json JsonOf(const clsHTDRDDQuestionSubtests& memberships) {
    Json items = Json::array();
    for (std::int32_t l = 1; l <= memberships.Count(); ++l)
        items.push_back({{"Include", memberships.Includes(l)}, {"Weight", memberships.WeightOf(l)}});
    return items;
}

template <class T>
Json JsonOf(const Ref<T>& object) {
    return JsonOf(*object);
}

Json JsonOf(const clsHTDRDDQuestion& question) {
    Json::object_t items;
    EachMember<clsHTDRDDQuestion>(
        [&](auto row) { items.emplace_back(ToUtf8(row.name), JsonOf(question.*row.member)); });
    return items;
}

Json JsonOf(const clsHTDRDDVersions& versions) {
    Json sequences = Json::array();
    for (std::int32_t l = 1; l <= versions.Sequences->Count(); ++l) {
        const auto sequence = versions.Sequences->Item(l);
        Json positions = Json::array();
        for (std::int32_t n = 1; n <= sequence->Count(); ++n) positions.push_back(sequence->Item(n));
        sequences.push_back(std::move(positions));
    }
    return {{"Question", versions.Question},
            {"VType", static_cast<std::int32_t>(versions.VType())},
            {"Answers", JsonOf(*versions.Answers)},
            {"Sequences", std::move(sequences)}};
}

Json JsonOf(clsHTDRDDSubtest& subtest, bool bSecrets) {
    static_assert(kMemberCount<clsHTDRDDSubtest> == 5, "Each member of a learning objective is shown.");
    return {{"SubtestName", JsonOf(subtest.SubtestName)},
            {"Description", JsonOf(subtest.Description)},
            {"Benchmark", subtest.Benchmark},
            {"GradeScale", RecordAsJson(subtest.GradeScale.Peek())},
            {"ScaledScore", RecordAsJson(*subtest.ScaledScore, bSecrets)}};
}

Json JsonOf(const Dictionary& header) {
    Json::object_t items;
    // Appended without a lookup: files may hold any number of keys, and each lookup by name walks them all.
    for (const auto& entry : header.Entries())
        items.emplace_back(ToUtf8(entry.key.ToText()), JsonOf(entry.item.ToText()));
    return items;
}

Json JsonOf(const clsHTDRDD& definition, bool bSecrets) {
    Json questions = Json::array();
    for (std::int32_t l = 1; l <= definition.Questions->Count(); ++l)
        questions.push_back(JsonOf(*definition.Questions->Item(l)));
    Json subtests = Json::array();
    for (std::int32_t l = 1; l <= definition.Subtests->Count(); ++l)
        subtests.push_back(JsonOf(*definition.Subtests->Item(l), bSecrets));
    Json object{{"FileName", JsonOf(definition.FileName)}};
    EachMember<clsHTDRDD>([&](auto row) { object[ToUtf8(row.name)] = JsonOf(definition.*row.member); });
    object["Questions"] = std::move(questions);
    object["Versions"] = JsonOf(*definition.Versions);
    object["Subtests"] = std::move(subtests);
    object["GradeScale"] = RecordAsJson(*definition.GradeScale);
    object["SubtestGradeScale"] = RecordAsJson(*definition.SubtestGradeScale);
    object["ScaledScore"] = RecordAsJson(*definition.ScaledScore, bSecrets);
    object["SubtestScaledScore"] = RecordAsJson(*definition.SubtestScaledScore, bSecrets);
    object["Header"] = JsonOf(*definition.Header);
    return object;
}

} // namespace

std::string DefinitionAsJson(const clsHTDRDD& definition, bool bSecrets) {
    return JsonText(JsonOf(definition, bSecrets), 2) + '\n';
}

} // namespace htdrdd::host
