#include "host/validate/validate_text.h"

#include "host/console/output.h"
#include "host/console/table.h"
#include "host/validate/checks.h"

namespace htdrdd::host {
namespace {

/// "question 3, Q3"
std::string TextOf(const Place& place) {
    std::string text = std::string(place.noun) + ' ' + std::to_string(place.lPosition);
    if (!place.name.empty()) text += ", " + Harmless(place.name);
    return text;
}

/// The message, without a last paragraph that only names one of the places.
TextView WithoutName(TextView message, const std::vector<Place>& places) {
    constexpr TextView kBlankLine = u"\r\n\r\n";
    const std::size_t end = message.rfind(kBlankLine);
    if (end == TextView::npos) return message;
    const TextView last = message.substr(end + kBlankLine.size());
    if (last.find(u"\r\n") != TextView::npos) return message;
    for (const Place& place : places)
        if (last.ends_with(u": " + place.name)) return message.substr(0, end);
    return message;
}

class TextReport final : public Report {
public:
    TextReport(const clsHTDRDD& definition, const Terminal& terminal)
        : definition_(definition), terminal_(terminal) {}

    void Begin(const Check& check) override {
        title_ = check.name + OwnerOf(check);
        broken_ = false;
    }
    void Find(const Finding& finding) override {
        if (!broken_) PrintVerdict(terminal_.Bold("broken"));
        broken_ = true;
        const auto places = PlacesOf(definition_, finding.offender);
        if (finding.lRule > 0) {
            std::string rule = "rule " + std::to_string(finding.lRule) + ", " + Harmless(finding.sCaption);
            const char* separator = ": ";
            for (const Place& place : places) {
                if (place.isOnly) continue;
                rule += separator + TextOf(place);
                separator = "; ";
            }
            PrintWrapped(rule, kVerdict + 2);
        }
        PrintWrapped(OnOneLine(WithoutName(finding.sMessage, places)), kVerdict + 4);
    }
    void End() override {
        if (!broken_) PrintVerdict("ok    ");
    }

private:
    static constexpr std::size_t kVerdict = 8;

    [[nodiscard]] std::string OwnerOf(const Check& check) const {
        switch (check.owner) {
        case Owner::Definition:
            return definition_.ReportType == HTDReportTypeSurvey ? " of the survey" : " of the test";
        case Owner::Objectives: return " shared by the learning objectives";
        case Owner::Objective:
            return " of " + TextOf(PlacesOf(definition_, {.lSubtest = check.objective}).front());
        case Owner::None: break;
        }
        return {};
    }
    void PrintVerdict(const std::string& verdict) const {
        Print("  " + verdict + "  " + Wrapped(title_, terminal_.width - kVerdict - 2, kVerdict + 2) + '\n');
    }
    void PrintWrapped(const std::string& text, std::size_t indent) const {
        Print(std::string(indent, ' ') + Wrapped(text, terminal_.width - indent, indent) + '\n');
    }

    const clsHTDRDD& definition_;
    const Terminal& terminal_;
    std::string title_;
    bool broken_ = false;
};

} // namespace

bool ValidateAsText(const Ref<clsHTDRDD>& definition, bool bAll, const Terminal& terminal) {
    Print(terminal.Bold(Harmless(definition->FileName)) + '\n');
    TextReport report(*definition, terminal);
    return RunChecks(definition, bAll, report);
}

} // namespace htdrdd::host
