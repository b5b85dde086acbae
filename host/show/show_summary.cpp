#include "host/show/show_summary.h"

#include "host/console/output.h"
#include "host/console/table.h"
#include "host/console/wording.h"
#include "host/show/show_objectives.h"
#include "host/show/show_questions.h"

namespace htdrdd::host {
namespace {

/// "50: 44 graded, 2 subjective"
std::string QuestionCounts(const clsHTDRDDQuestions& questions) {
    std::string text = std::to_string(questions.Count());
    const char* separator = ": ";
    const auto count = [&](std::int32_t number, const char* kind) {
        if (number == 0) return;
        text.append(separator).append(std::to_string(number)).append(kind);
        separator = ", ";
    };
    count(questions.NumGraded(), " graded");
    count(questions.NumSubjective(), " subjective");
    count(questions.NumTallied(), " tallied");
    count(questions.NumExtraCredit(), " for extra credit");
    count(questions.NumPartialCredit(), " with partial credit");
    return text;
}

/// "2 standard versions (A, B), identified by question 2, Test form"
std::string VersionsLine(const clsHTDRDD& definition) {
    const clsHTDRDDVersions& versions = *definition.Versions;
    std::string text = VersionsText(versions);
    if (versions.VType() == HTDVersionTypeNone) return text;
    if (const auto question = definition.Questions->Item(versions.Question))
        if (!question->QuestionName.empty()) text += ", " + Harmless(question->QuestionName);
    return text;
}

} // namespace

std::string Summary(const clsHTDRDD& definition, const Terminal& terminal) {
    const std::string file = Harmless(definition.FileName);
    const std::string name = Harmless(Trimmed(definition.TemplateName));
    const Memberships memberships(definition);
    std::string text = terminal.Bold(Fitted(name.empty() ? file : name, terminal.width)) + '\n';
    text += FactLines({{"File", file},
                       {"Type", TypeName(definition.ReportType)},
                       {"Description", Harmless(definition.Description)},
                       {"Notes", Harmless(definition.Notes)},
                       {"Pages", std::to_string(definition.NumPages)},
                       {"Questions", QuestionCounts(*definition.Questions)},
                       {"Versions", VersionsLine(definition)},
                       {"Header", definition.CustomHeader ? "custom" : ""}},
                      terminal);
    text += ObjectivesText(definition, memberships, terminal);
    text += QuestionsText(definition, memberships, terminal);
    return text;
}

} // namespace htdrdd::host
