#include "host/diff/changes_text.h"

#include "host/console/numbers.h"
#include "host/console/output.h"
#include "host/console/table.h"

namespace htdrdd::host {
namespace {

using Json = nlohmann::ordered_json;

std::string Shown(const Json& value) {
    if (value.is_string()) return Harmless(std::string_view(value.get_ref<const std::string&>()));
    if (value.is_number()) return NumberText(value.get<double>());
    std::string text;
    for (const Json& item : value) text.append(text.empty() ? "" : " / ").append(Shown(item));
    return text;
}

std::string FromTo(const Json& change) {
    const std::string after = Shown(change["after"]);
    return change["before"].is_null() ? after : Shown(change["before"]) + " → " + after;
}

/// "partial credit" for "partialCredit".
std::string InWords(const std::string& name) {
    std::string words;
    for (const char c : name) {
        if (c >= 'A' && c <= 'Z') words += ' ';
        words += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return words;
}

std::vector<std::string> Cells(const Json& question) {
    std::string answerBefore, answerAfter, points, extraCredit, turnedOff, also;
    const auto add = [](std::string& cell, const std::string& text) {
        cell.append(cell.empty() ? "" : ", ").append(text);
    };
    for (const auto& [name, change] : question.items()) {
        if (name == "position" || name == "name") continue;
        const Json& after = change["after"];
        if (name == "answer") {
            answerBefore = Shown(change["before"]);
            answerAfter = Shown(after);
        } else if (name == "extraCredit") {
            extraCredit = after == true ? "yes" : "no";
        } else if (name == "turnedOff") {
            turnedOff = "yes";
        } else if (name == "points") {
            add(points, FromTo(change));
        } else if (name == "incorrectPoints") {
            add(points, "wrong " + FromTo(change));
        } else if (name == "noResponsePoints") {
            add(points, "blank " + FromTo(change));
        } else {
            add(also, (after == false ? "not " : "") + InWords(name));
        }
    }
    return {Shown(question["position"]),
            Shown(question["name"]),
            answerBefore,
            answerAfter,
            points,
            extraCredit,
            turnedOff,
            also};
}

} // namespace

std::string ChangesText(const Json& changes, const Terminal& terminal) {
    if (changes["gradingDiffers"] == false) return "The grading doesn't differ.\n";
    Table table({{"#", Table::Align::Right},
                 {"Question"},
                 {"Answer before"},
                 {"Answer after"},
                 {"Points"},
                 {"Extra credit"},
                 {"Turned off"},
                 {"Also"}});
    for (const Json& question : changes["questions"]) table.Add(Cells(question));
    std::string text = table.Empty() ? "" : table.Drawn(terminal);
    if (!table.Empty() && !changes["other"].empty()) text += '\n';
    for (const auto& [name, change] : changes["other"].items()) {
        std::string line = InWords(name);
        line.front() = static_cast<char>(line.front() - 'a' + 'A');
        line += change["before"] == change["after"] ? " differ" : ": " + FromTo(change);
        text += Wrapped(line, terminal.width, 2) + '\n';
    }
    return text;
}

} // namespace htdrdd::host
