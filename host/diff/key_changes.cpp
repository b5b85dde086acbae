#include "host/diff/key_changes.h"

#include "host/console/numbers.h"
#include "host/console/wording.h"
#include "htdrdd91/foundation/basPublicText.h"
#include "htdrdd91/model/model_members.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/scaled_scores/scaled_score_members.h"

#include <algorithm>

namespace htdrdd::host {
namespace {

using Json = nlohmann::ordered_json;

Json Of(const clsHTDRDDStrings& strings) {
    Json items = Json::array();
    for (const Text& item : strings) items.push_back(ToUtf8(item));
    return items;
}

/// "1" or, with a weight, "3 ×0.5".
Json MembershipsOf(const clsHTDRDDQuestion& question, std::int32_t objectives) {
    Json items = Json::array();
    question.Subtests->EachMembership([&](std::int32_t l, std::optional<bool> included) {
        if (!included.value_or(false) || l > objectives) return;
        const double weight = question.Subtests->WeightOf(l);
        items.push_back(std::to_string(l) + (weight == 1 ? "" : " ×" + NumberText(weight)));
    });
    return items;
}

/// The correct answers of a subjective question are its points.
Json PointsOf(const clsHTDRDDQuestion& question, HTDVersionType versions) {
    if (question.SubjectiveField && versions == HTDVersionTypeKey) return Of(*question.CorrectAnswers);
    if (question.SubjectiveField) return question.SubjectivePoints;
    return question.PartialCredit ? Of(*question.CorrectAnswerPoints) : Json(question.CorrectPoints);
}

constexpr std::size_t kWorth = 5; ///< number of members for the answer and its points

static_assert(kMemberCount<clsHTDRDDQuestion> == 38, "A new member that changes grades is compared, too.");

/// Null for a question that doesn't count.
Json Of(const clsHTDRDDQuestion& q, const clsHTDRDD& definition) {
    const bool tallied = definition.ReportType == HTDReportTypeSurvey && q.IncludeTally;
    if (!q.IncludeGrade && !q.SubjectiveField && !tallied) return {};
    const bool isList = q.CorrectAnswers->AsString().find(u',') != Text::npos;
    return {{"answer", q.SubjectiveField ? Json::array() : Of(*q.CorrectAnswers)},
            {"points", PointsOf(q, definition.Versions->VType())},
            {"incorrectPoints", q.IncludeGrade ? q.IncorrectPoints : 0},
            {"noResponsePoints", q.IncludeGrade ? q.NoResponsePoints : 0},
            {"extraCredit", q.ExtraCredit},
            {"graded", q.IncludeGrade},
            {"subjective", q.SubjectiveField},
            {"identifier", q.IDField},
            {"allAnswersRequired", isList && q.CorrectAnd},
            {"partialCredit", q.PartialCredit},
            {"severalMarks", q.MultiplesPermitted != HTDMultiplesPermittedNo},
            {"learningObjectives", MembershipsOf(q, definition.Subtests->Count())},
            {"choices", Of(*q.AnswerValues)},
            {"choiceCodes", Of(*q.AnswerCodes)},
            {"answerCodes", q.SubjectiveField ? Json::array() : Of(*q.CorrectCodes)},
            {"answerCount", q.SubjectiveField ? 0 : q.NumCorrect},
            {"formOfResponses",
             Json::array({static_cast<std::int32_t>(q.DataType), q.MinValue, q.MaxValue, ToUtf8(q.BlankText),
                          q.BlankValue, ToUtf8(q.MultipleText), q.MultipleValue, ToUtf8(q.MissingText),
                          q.MissingValue, q.NAValue})}};
}

/// "A 90, F 0; from 2: none" for a thing of each learning objective: `of(l)` returns the thing, and
/// `words(thing)` its text.
template <class Of, class Words>
std::string ByObjective(const clsHTDRDD& definition, Of of, Words words) {
    std::string all;
    std::string last;
    const void* seen = nullptr; // several learning objectives may share a thing
    for (std::int32_t l = 1; l <= definition.Subtests->Count(); ++l) {
        const auto& thing = of(l);
        if (std::exchange(seen, &thing) == &thing) continue;
        const Text text = words(thing);
        if (std::string now = text.empty() ? "none" : ToUtf8(text); now != last) {
            all.append(l == 1 ? "" : "; from " + std::to_string(l) + ": ").append(now);
            last = std::move(now);
        }
    }
    return all;
}

std::string GradeScales(const clsHTDRDD& definition) {
    const auto of = [&](std::int32_t l) -> const auto& { return GradeScaleOf(definition, l); };
    return ByObjective(definition, of, [](const clsHTDRDDGradeScale& scale) {
        Text text;
        for (std::int32_t l = 1; l <= scale.Count(); ++l) {
            const double start = basPublic::TextToDouble(scale.Item(l)->StartValue);
            text.append(l == 1 ? u"" : u", ").append(scale.Item(l)->Grade);
            text.append(u" ").append(FromUtf8(NumberText(start)));
        }
        return text;
    });
}

/// All members except the name, including those that must not be shown.
std::string ScaledScores(const clsHTDRDD& definition) {
    const auto of = [&](std::int32_t l) -> const auto& { return ScaledScoreOf(definition, l); };
    return ByObjective(definition, of, [](const clsHTDRDDScaledScore& score) {
        Text text;
        for (const ScaledScoreRow& row : kScaledScoreMembers)
            if (score.ScaledScoreValues != HTDScaledScoreValuesNone && row.key != u"ScaledScoreName")
                row.append(text += u'\n', score, Where::current());
        return text;
    });
}

/// The text after a line end is compared, but not shown.
Json OtherOf(const clsHTDRDD& definition) {
    const clsHTDRDDVersions& versions = *definition.Versions;
    std::string orders;
    if (versions.VType() == HTDVersionTypeSequence)
        for (std::int32_t l = 1; l <= versions.Sequences->Count(); ++l)
            orders += '\n' + ToUtf8(versions.Sequences->Item(l)->AsString());
    const std::string scores = ScaledScores(definition);
    Json objectives = Json::array();
    for (std::int32_t l = 1; l <= definition.Subtests->Count(); ++l)
        objectives.push_back(ToUtf8(definition.Subtests->Item(l)->SubtestName));
    return {{"reportType", TypeName(definition.ReportType)},
            {"numberOfQuestions", definition.Questions->Count()},
            {"testVersions", VersionsText(versions) + orders},
            {"learningObjectives", std::move(objectives)},
            {"gradeScales", GradeScales(definition)},
            {"scaledScores", scores == "none" ? scores : "defined\n" + scores}};
}

Json Pair(const Json& before, const Json& after) { return {{"before", before}, {"after", after}}; }

/// Adds the differences between two questions, one of which may be null.
void AddChanges(Json& changes, const Json& before, const Json& after) {
    std::size_t place = 0;
    for (const auto& [name, value] : (after.is_null() ? before : after).items()) {
        const Json was = before.is_null() ? Json() : before[name];
        const Json is = after.is_null() ? Json() : value;
        const bool begins = was.is_null() && is != 0 && is != false && place < kWorth;
        const bool follows = (name == "answerCodes" || name == "answerCount") && changes.contains("answer");
        const bool isTold = was.is_null() || is.is_null() ? begins || place == 0 : !follows;
        if (was != is && isTold) changes[name] = Pair(was, is);
        ++place;
    }
}

} // namespace

Json KeySnapshot(const clsHTDRDD& definition) {
    Json questions = Json::array();
    for (std::int32_t l = 1; l <= definition.Questions->Count(); ++l) {
        const clsHTDRDDQuestion& question = *definition.Questions->Item(l);
        // As text, which takes less memory.
        questions.push_back(
            {{"name", ToUtf8(question.QuestionName)}, {"key", Of(question, definition).dump()}});
    }
    return {{"questions", std::move(questions)}, {"other", OtherOf(definition)}};
}

Json KeyChanges(const Json& before, const Json& after) {
    const Json& olds = before["questions"];
    const Json& news = after["questions"];
    Json questions = Json::array();
    for (std::size_t i = 0; i < std::max(olds.size(), news.size()); ++i) {
        const bool stood = i < olds.size();
        const bool stands = i < news.size();
        if (stood && stands && olds[i]["key"] == news[i]["key"]) continue;
        const Json was = stood ? Json::parse(olds[i]["key"].get<std::string>()) : Json();
        const Json is = stands ? Json::parse(news[i]["key"].get<std::string>()) : Json();
        Json changes = Json::object();
        if (stood != stands)
            changes[stands ? "added" : "removed"] = Pair(false, true);
        else if (was.is_null() != is.is_null())
            changes[is.is_null() ? "turnedOff" : "turnedOn"] = Pair(false, true);
        AddChanges(changes, was, is);
        if (changes.empty()) continue;
        Json question{{"position", i + 1}, {"name", (stood ? olds : news)[i]["name"]}};
        question.update(changes);
        questions.push_back(std::move(question));
    }
    Json other = Json::object();
    const auto told = [](const Json& value) {
        if (!value.is_string()) return value;
        const auto text = value.get<std::string>();
        return Json(text.substr(0, text.find('\n')));
    };
    for (const auto& [name, is] : after["other"].items())
        if (const Json& was = before["other"][name]; was != is) other[name] = Pair(told(was), told(is));
    const bool differs = !questions.empty() || !other.empty();
    return {{"gradingDiffers", differs}, {"questions", std::move(questions)}, {"other", std::move(other)}};
}

} // namespace htdrdd::host
