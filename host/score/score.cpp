#include "host/score/score.h"

#include "host/console/json.h"
#include "host/console/numbers.h"
#include "host/console/output.h"
#include "host/files/definitions.h"
#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"

#include <limits>

namespace htdrdd::host {
namespace {

void PrintScore(const char* name, double score, bool bJson) {
    const double plain = Plain(score);
    Print((bJson ? JsonText({{name, plain}}) : NumberText(plain)) + '\n');
}

using Calculation = double (clsHTDGradeScaleManager::*)(double, double) const noexcept;

ExitCode PrintScore(const char* name, Calculation calculation, std::optional<double> first,
                    const ScoreOptions& options) {
    const auto possible = NumberOf(options.possible);
    if (!first || !possible) {
        Complain(Harmless(std::string_view(first ? options.possible : options.first)) + " is not a number.");
        return ExitCode::Usage;
    }
    const Definitions definitions;
    definitions.Heard().Silent(true);
    const double score = (*Make<clsHTDGradeScaleManager>().*calculation)(*first, *possible);
    if (definitions.Heard().Any()) {
        Complain(*possible == 0 ? "there is no percentage of 0 possible points."
                                : "the result is too large.");
        return ExitCode::Findings;
    }
    PrintScore(name, score, options.json);
    return ExitCode::Fine;
}

} // namespace

ExitCode PercentScore(const ScoreOptions& options) {
    return PrintScore("percent", &clsHTDGradeScaleManager::CalcPercentScore, NumberOf(options.first),
                      options);
}

ExitCode TotalScore(const ScoreOptions& options) {
    return PrintScore("total", &clsHTDGradeScaleManager::CalcTotalScore, PercentOf(options.first), options);
}

ExitCode PossibleScore(const ScoreOptions& options) {
    Definitions definitions;
    const auto definition = definitions.Read(options.file);
    const auto objective = definition ? definitions.FindObjective(*definition, options.objective) : 0;
    if (objective == 0) return ExitCode::Refused;
    if (objective > std::numeric_limits<std::int16_t>::max()) {
        definitions.Refuse(definition->FileName, "it has too many learning objectives.");
        return ExitCode::Refused;
    }
    PrintScore("possible",
               Make<clsHTDGradeScaleManager>()->CalcTotalPossibleScore(definition,
                                                                       static_cast<std::int16_t>(objective)),
               options.json);
    return definitions.Heard().Any() ? ExitCode::Findings : ExitCode::Fine;
}

} // namespace htdrdd::host
