#include "host/show/show_json.h"

#include "host/json_text.h"
#include "host/record_json.h"
#include "htdrdd91/platform/encoding.h"

namespace htdrdd::host {
namespace {

using Json = nlohmann::ordered_json;

Json Of(TextView text) { return ToUtf8(text); }

Json Of(const clsHTDRDDStrings& strings) {
    Json items = Json::array();
    for (std::int32_t l = 1; l <= strings.Count(); ++l) items.push_back(Of(strings.Item(l)));
    return items;
}

Json Of(const clsHTDRDDQuestionSubtests& memberships) {
    Json items = Json::array();
    for (std::int32_t l = 1; l <= memberships.Count(); ++l)
        items.push_back({{"Include", memberships.Includes(l)}, {"Weight", memberships.WeightOf(l)}});
    return items;
}

Json Of(const clsHTDRDDQuestion& question) {
    return {{"AnswerValues", Of(*question.AnswerValues)},
            {"AnswerCodes", Of(*question.AnswerCodes)},
            {"Subtests", Of(*question.Subtests)},
            {"CorrectAnswers", Of(*question.CorrectAnswers)},
            {"CorrectCodes", Of(*question.CorrectCodes)},
            {"CorrectAnswerPoints", Of(*question.CorrectAnswerPoints)},
            {"QuestionName", Of(question.QuestionName)},
            {"QuestionText", Of(question.QuestionText)},
            {"IncludeGrade", question.IncludeGrade},
            {"IncludeTally", question.IncludeTally},
            {"DataType", static_cast<std::int32_t>(question.DataType)},
            {"ExtraCredit", question.ExtraCredit},
            {"PartialCredit", question.PartialCredit},
            {"BlankText", Of(question.BlankText)},
            {"BlankValue", question.BlankValue},
            {"MultipleText", Of(question.MultipleText)},
            {"MultipleValue", question.MultipleValue},
            {"MissingText", Of(question.MissingText)},
            {"MissingValue", question.MissingValue},
            {"NAValue", question.NAValue},
            {"MultiplesPermitted", question.MultiplesPermitted},
            {"IDField", question.IDField},
            {"SubjectiveField", question.SubjectiveField},
            {"NumCorrect", question.NumCorrect},
            {"CorrectAnd", question.CorrectAnd},
            {"CorrectPoints", question.CorrectPoints},
            {"IncorrectPoints", question.IncorrectPoints},
            {"NoResponsePoints", question.NoResponsePoints},
            {"SubjectivePoints", question.SubjectivePoints},
            {"MinValue", question.MinValue},
            {"MaxValue", question.MaxValue},
            {"Benchmark", question.Benchmark},
            {"Difficulty", Of(question.Difficulty)},
            {"Reference", Of(question.Reference)},
            {"Topic", Of(question.Topic)},
            {"Keywords", Of(question.Keywords)},
            {"Miscellaneous", Of(question.Miscellaneous)},
            {"Notes", Of(question.Notes)}};
}

Json Of(const clsHTDRDDVersions& versions) {
    Json sequences = Json::array();
    for (std::int32_t l = 1; l <= versions.Sequences->Count(); ++l) {
        const auto sequence = versions.Sequences->Item(l);
        Json positions = Json::array();
        for (std::int32_t n = 1; n <= sequence->Count(); ++n) positions.push_back(sequence->Item(n));
        sequences.push_back(std::move(positions));
    }
    return {{"Question", versions.Question},
            {"VType", static_cast<std::int32_t>(versions.VType())},
            {"Answers", Of(*versions.Answers)},
            {"Sequences", std::move(sequences)}};
}

Json Of(clsHTDRDDSubtest& subtest, bool bSecrets) {
    return {{"SubtestName", Of(subtest.SubtestName)},
            {"Description", Of(subtest.Description)},
            {"Benchmark", subtest.Benchmark},
            {"GradeScale", RecordAsJson(subtest.GradeScale.Peek())},
            {"ScaledScore", RecordAsJson(*subtest.ScaledScore, bSecrets)}};
}

Json Of(const Dictionary& header) {
    Json::object_t items;
    // Not by name: files may hold any number of keys, and each lookup walks them all.
    for (const auto& entry : header.Entries())
        items.emplace_back(ToUtf8(entry.key.ToText()), Of(entry.item.ToText()));
    return items;
}

Json Of(const clsHTDRDD& definition, bool bSecrets) {
    Json questions = Json::array();
    for (std::int32_t l = 1; l <= definition.Questions->Count(); ++l)
        questions.push_back(Of(*definition.Questions->Item(l)));
    Json subtests = Json::array();
    for (std::int32_t l = 1; l <= definition.Subtests->Count(); ++l)
        subtests.push_back(Of(*definition.Subtests->Item(l), bSecrets));
    Json object{{"FileName", Of(definition.FileName)},
                {"TemplateName", Of(definition.TemplateName)},
                {"Description", Of(definition.Description)},
                {"Notes", Of(definition.Notes)},
                {"ReportType", static_cast<std::int32_t>(definition.ReportType)},
                {"NumPages", definition.NumPages},
                {"CustomHeader", definition.CustomHeader}};
    object["Questions"] = std::move(questions);
    object["Versions"] = Of(*definition.Versions);
    object["Subtests"] = std::move(subtests);
    object["GradeScale"] = RecordAsJson(*definition.GradeScale);
    object["SubtestGradeScale"] = RecordAsJson(*definition.SubtestGradeScale);
    object["ScaledScore"] = RecordAsJson(*definition.ScaledScore, bSecrets);
    object["SubtestScaledScore"] = RecordAsJson(*definition.SubtestScaledScore, bSecrets);
    object["Header"] = Of(*definition.Header);
    return object;
}

} // namespace

std::string DefinitionAsJson(const clsHTDRDD& definition, bool bSecrets) {
    return JsonText(Of(definition, bSecrets), 2) + '\n';
}

} // namespace htdrdd::host
