#include "host/record/record.h"

#include "host/console/json.h"
#include "host/console/output.h"
#include "host/console/record_json.h"
#include "host/console/table.h"
#include "htdrdd91/platform/encoding.h"

#include <array>
#include <type_traits>

namespace htdrdd::host {
namespace {

using Json = nlohmann::ordered_json;

std::string LinesOf(const clsHTDRDDGradeScale& scale, bool /*bSecrets*/, const Terminal& terminal) {
    Table table({{"#", Table::Align::Right}, {"Grade"}, {"From", Table::Align::Right}});
    for (std::int32_t l = 1; l <= scale.Count(); ++l)
        table.Add({std::to_string(l), Harmless(scale.Item(l)->Grade), Harmless(scale.Item(l)->StartValue)});
    return table.Empty() ? "" : table.Drawn(terminal);
}

/// "overall score between from and to"
std::string CriterionText(HTDScaledScoreCriteria criterion, TextView objective, TextView from, TextView to) {
    constexpr std::array kNames{"", "overall score", "score of the objective questions",
                                "score of the subjective questions", "learning objective "};
    if (criterion == HTDScaledScoreCriteriaNone) return {};
    const auto place = static_cast<std::size_t>(criterion);
    std::string text = place < kNames.size() ? kNames[place] : "unknown";
    if (criterion == HTDScaledScoreCriteriaLearningObjective) text += Harmless(objective);
    return from.empty() && to.empty() ? text : text + " between " + Harmless(from) + " and " + Harmless(to);
}

std::string LinesOf(const clsHTDRDDScaledScore& score, bool bSecrets, const Terminal& terminal) {
    const clsHTDRDDScaledScoreDB& db = *score.DB;
    return FactLines(
        {{"Looked up", RecordText(score)},
         {"Primary", CriterionText(score.ScaledScoreCriteriaPrimary, score.LearningObjectivePrimary,
                                   db.MinFieldPrimary, db.MaxFieldPrimary)},
         {"Secondary", CriterionText(score.ScaledScoreCriteriaSecondary, score.LearningObjectiveSecondary,
                                     db.MinFieldSecondary, db.MaxFieldSecondary)},
         {"Precision", score.Precision < 0 ? "" : std::to_string(score.Precision)},
         {"Score", Harmless(db.ScoreField)},
         {"Grade", Harmless(db.ScoreGrade)},
         {"Catalog", Harmless(db.Catalog)},
         {"Data source", Harmless(db.DSNName)},
         {"Connection", Harmless(Masked(db.Connect, bSecrets))},
         {"User", Harmless(Masked(db.User, bSecrets))},
         {"Password", Harmless(Masked(db.Password, bSecrets))}},
        terminal);
}

/// The definition of a command and the learning objective in it; empty if either was refused.
struct Place {
    Place(Definitions& definitions, const RecordOptions& options)
        : definition(definitions.Read(options.file)) {
        if (definition) objective = definitions.FindObjective(*definition, options.objective);
    }
    Ref<clsHTDRDD> definition;
    std::int32_t objective = 0; ///< 0: refused
};

/// The reason why a definition can't hold a record; empty if it can.
template <class Kind>
std::string WhyNotFiled(const typename Kind::Record& record, const Place& place) {
    if (!Kind::IsDefined(record)) return "it is empty.";
    if (ComesApart(Kind::TextsOf(record))) return "a definition can't hold texts with tabs or line ends.";
    if constexpr (std::is_same_v<Kind, ScaledScores>) // a saved definition omits invalid ones
        if (const auto finding = Judge(record, place.definition, place.objective))
            return FindingText(*finding);
    return {};
}

} // namespace

template <class Kind>
ExitCode ShowRecord(const RecordOptions& options) {
    Definitions definitions;
    const auto found = ReadRecord<Kind>(definitions, options.file, options.objective);
    if (!found.record) return ExitCode::Refused;
    const auto finding = Judge(*found.record, found.definition, found.objective);
    if (options.json) {
        Json findings = Json::array();
        if (finding)
            findings.push_back({{"rule", finding->lRule},
                                {"caption", ToUtf8(finding->sCaption)},
                                {"message", ToUtf8(finding->sMessage)}});
        if (finding && finding->offender.lItem > 0) findings[0]["row"] = finding->offender.lItem;
        const Json object{{"file", ToUtf8(found.file)},
                          {Kind::kMember, RecordAsJson(*found.record, options.secrets)},
                          {"valid", !finding},
                          {"findings", findings}};
        Print(JsonText(object, 2) + '\n');
        return ExitCode::Fine;
    }
    const Terminal terminal = Terminal::OfOutput();
    const std::string name = Harmless((*found.record).*Kind::kName);
    std::string text = name.empty() ? "" : terminal.Bold(name) + '\n';
    text += LinesOf(*found.record, options.secrets, terminal);
    const std::string sentence = std::string("This ") + Kind::kNoun + " can't be used: ";
    if (finding) text += Wrapped(sentence + FindingText(*finding), terminal.width, 0) + '\n';
    Print(text);
    return ExitCode::Fine;
}

template <class Kind>
ExitCode ExportRecord(const RecordOptions& options) {
    if (IsSameFile(options.file, options.exchange, "definition")) return ExitCode::Usage;
    Definitions definitions;
    const Place place(definitions, options);
    if (place.objective == 0) return ExitCode::Refused;
    const auto& record = Kind::Of(*place.definition, place.objective);
    if (!Kind::IsDefined(record)) {
        definitions.Refuse(place.definition->FileName,
                           std::string("it has no ") + Kind::kNoun + " for this learning objective.");
        return ExitCode::Refused;
    }
    return SaveFile({.file = options.exchange, .json = options.json}, std::string("a ") + Kind::kNoun,
                    definitions.Heard(), [&](TextView path) { return record.Export(path); });
}

template <class Kind>
ExitCode ImportRecord(const RecordOptions& options) {
    if (IsSameFile(options.exchange, options.save.file, "exchange file")) return ExitCode::Usage;
    Definitions definitions;
    const Place place(definitions, options);
    if (place.objective == 0) return ExitCode::Refused;
    const Input input(options.exchange);
    const auto record = definitions.ReadExchange<typename Kind::Record>(
        input, std::string("it is not an exchange file of a ") + Kind::kNoun + '.');
    if (!record) return ExitCode::Refused;
    if (const std::string why = WhyNotFiled<Kind>(*record, place); !why.empty()) {
        definitions.Refuse(input.Name(), why);
        return ExitCode::Refused;
    }
    (*place.definition->Subtests->Item(place.objective)).*Kind::kOfObjective = record;
    if (place.objective == 1) (*place.definition).*Kind::kOfDefinition = record->Copy();
    return SaveDefinition(*place.definition, options.save, definitions.Heard());
}

template ExitCode ShowRecord<GradeScales>(const RecordOptions&);
template ExitCode ShowRecord<ScaledScores>(const RecordOptions&);
template ExitCode ExportRecord<GradeScales>(const RecordOptions&);
template ExitCode ExportRecord<ScaledScores>(const RecordOptions&);
template ExitCode ImportRecord<GradeScales>(const RecordOptions&);
template ExitCode ImportRecord<ScaledScores>(const RecordOptions&);

} // namespace htdrdd::host
