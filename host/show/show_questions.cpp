#include "host/show/show_questions.h"

#include "host/console/numbers.h"
#include "host/console/output.h"
#include "host/console/table.h"

namespace htdrdd::host {
namespace {

std::string Kind(const clsHTDRDDQuestion& question, bool tellsVersion) {
    std::string text;
    const auto add = [&](bool holds, const char* word) {
        if (holds) text.append(text.empty() ? "" : ", ").append(word);
    };
    add(tellsVersion, "version");
    add(question.IDField, "identifier");
    add(question.IncludeGrade, "graded");
    add(question.SubjectiveField, "subjective");
    add(question.ExtraCredit, "extra");
    add(question.PartialCredit, "partial");
    add(question.IncludeTally, "tallied");
    return text;
}

/// Whether the values are marks such as A, B and C, and not words.
bool AreShort(const clsHTDRDDStrings& values) {
    constexpr std::size_t kMark = 2;
    for (std::int32_t l = 1; l <= values.Count(); ++l)
        if (values.Item(l).size() > kMark) return false;
    return true;
}

/// The answer values, or the bounds of a question without any.
std::string Answers(const clsHTDRDDQuestion& question) {
    const clsHTDRDDStrings& values = *question.AnswerValues;
    if (values.Count() > 0) return Harmless(values.AsString(AreShort(values) ? u" " : u", "));
    const bool fromBelow = HasValue(question.MinValue);
    const bool toAbove = HasValue(question.MaxValue);
    if (fromBelow && toAbove) return NumberText(question.MinValue) + " to " + NumberText(question.MaxValue);
    if (fromBelow) return "from " + NumberText(question.MinValue);
    return toAbove ? "to " + NumberText(question.MaxValue) : "";
}

/// The correct answer of each key. Empty for a subjective question, whose correct answers are its points,
/// which have their own column.
std::string Correct(const clsHTDRDDQuestion& question) {
    return question.SubjectiveField ? "" : Harmless(question.CorrectAnswers->AsString(u" / "));
}

std::string Points(const clsHTDRDDQuestion& question) {
    if (question.SubjectiveField) return NumberText(question.SubjectivePoints);
    if (!question.IncludeGrade) return {};
    std::string text = question.PartialCredit ? Harmless(question.CorrectAnswerPoints->AsString(u" / "))
                                              : NumberText(question.CorrectPoints);
    if (question.IncorrectPoints != 0) text += ", wrong " + NumberText(question.IncorrectPoints);
    if (question.NoResponsePoints != 0) text += ", blank " + NumberText(question.NoResponsePoints);
    return text;
}

} // namespace

std::string QuestionsText(const clsHTDRDD& definition, const Memberships& memberships,
                          const Terminal& terminal) {
    const clsHTDRDDVersions& versions = *definition.Versions;
    const bool keys = versions.VType() == HTDVersionTypeKey;
    const std::string correct = keys ? "Correct " + Harmless(versions.Answers->AsString(u" / ")) : "Correct";
    Table table(
        {{"#", Table::Align::Right}, {"Name"}, {"Kind"}, {"Answers"}, {correct}, {"Points"}, {"Objectives"}});
    for (std::int32_t l = 1; l <= definition.Questions->Count(); ++l) {
        const clsHTDRDDQuestion& question = *definition.Questions->Item(l);
        table.Add({std::to_string(l), Harmless(question.QuestionName), Kind(question, l == versions.Question),
                   Answers(question), Correct(question), Points(question),
                   memberships.ofQuestion[static_cast<std::size_t>(l) - 1]});
    }
    if (table.Empty()) return {};
    return '\n' + terminal.Bold("Questions") + '\n' + table.Drawn(terminal);
}

} // namespace htdrdd::host
