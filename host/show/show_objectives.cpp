#include "host/show/show_objectives.h"

#include "host/console/numbers.h"
#include "host/console/output.h"
#include "host/console/table.h"
#include "host/console/wording.h"

#include <algorithm>
#include <unordered_map>

namespace htdrdd::host {
namespace {

/// Texts that several learning objectives share; each is listed once, under its own label.
class Shared {
public:
    /// Lists a new text and returns the label of the text; empty if there is no text.
    std::string Label(const std::string& name, const std::string& content) {
        if (content.empty()) return {};
        const auto [entry, isNew] = labels_.try_emplace(name + '\n' + content);
        if (!isNew) return entry->second;
        const std::string base = name.empty() ? "unnamed" : name;
        const std::int32_t number = ++uses_[base];
        entry->second = number == 1 ? base : base + " (" + std::to_string(number) + ")";
        listed_.emplace_back(entry->second, content);
        return entry->second;
    }
    [[nodiscard]] std::string Listed(const char* heading, const Terminal& terminal) const {
        constexpr std::size_t kWidestLabel = 30;
        std::size_t label = 0;
        for (const auto& entry : listed_) label = std::max(label, DisplayWidth(entry.first) + 2);
        label = std::min({label, kWidestLabel, terminal.width / 2});
        std::string text = listed_.empty() ? "" : '\n' + terminal.Bold(heading) + '\n';
        for (const auto& [name, content] : listed_) {
            const std::string fitted = Fitted(name, label - 2);
            text += fitted + std::string(label - DisplayWidth(fitted), ' ');
            text += Wrapped(content, terminal.width - label, label) + '\n';
        }
        return text;
    }

private:
    std::unordered_map<std::string, std::string> labels_;
    std::unordered_map<std::string, std::int32_t> uses_;
    std::vector<std::pair<std::string, std::string>> listed_;
};

} // namespace

Memberships::Memberships(const clsHTDRDD& definition)
    : ofQuestion(static_cast<std::size_t>(definition.Questions->Count())),
      questionsOfObjective(static_cast<std::size_t>(definition.Subtests->Count())) {
    for (std::size_t i = 0; i < ofQuestion.size(); ++i) {
        const auto own = definition.Questions->Item(static_cast<std::int32_t>(i) + 1)->Subtests;
        const std::int32_t count = std::min(own->Count(), definition.Subtests->Count());
        for (std::int32_t l = 1; l <= count; ++l) {
            if (!own->Includes(l)) continue;
            ++questionsOfObjective[static_cast<std::size_t>(l) - 1];
            ofQuestion[i].append(ofQuestion[i].empty() ? "" : ", ").append(std::to_string(l));
            if (const double weight = own->WeightOf(l); weight != 1)
                ofQuestion[i].append(" ×").append(NumberText(weight));
        }
    }
}

std::string ObjectivesText(const clsHTDRDD& definition, const Memberships& memberships,
                           const Terminal& terminal) {
    using Align = Table::Align;
    Table table({{"#", Align::Right},
                 {"Name"},
                 {"Questions", Align::Right},
                 {"Benchmark", Align::Right},
                 {"Grade scale"},
                 {"Scaled score"}});
    Shared scales;
    Shared scores;
    for (std::int32_t l = 1; l <= definition.Subtests->Count(); ++l) {
        const auto subtest = definition.Subtests->Item(l);
        const clsHTDRDDGradeScale& scale = subtest->GradeScale.Peek();
        const clsHTDRDDScaledScore& score = ScaledScoreOf(definition, l);
        table.Add({std::to_string(l), Harmless(subtest->SubtestName),
                   std::to_string(memberships.questionsOfObjective[static_cast<std::size_t>(l) - 1]),
                   HasValue(subtest->Benchmark) ? NumberText(subtest->Benchmark) : "",
                   scales.Label(Harmless(scale.ScaleName), RecordText(scale)),
                   scores.Label(Harmless(score.ScaledScoreName), RecordText(score))});
    }
    if (table.Empty()) return {};
    return '\n' + terminal.Bold("Learning objectives") + '\n' + table.Drawn(terminal) +
           scales.Listed("Grade scales", terminal) + scores.Listed("Scaled scores", terminal);
}

} // namespace htdrdd::host
