#include "host/scale/scale.h"

#include "host/console/json.h"
#include "host/console/numbers.h"
#include "host/console/output.h"
#include "host/console/terminal.h"
#include "host/files/records.h"
#include "host/files/saving.h"
#include "htdrdd91/platform/encoding.h"

#include <cstdio>
#include <unistd.h>

namespace htdrdd::host {
namespace {

constexpr TextView kLineEnd = u"\r\n";

/// Whether a scale can be used; if not, prints one sentence.
bool Vouch(const clsHTDRDDGradeScale& scale, TextView name) {
    const auto finding = Judge(scale);
    if (finding) Complain(Harmless(name) + " contains an invalid grade scale: " + FindingText(*finding));
    return !finding;
}

/// The next line of standard input, cut to a length that no number has; std::nullopt at the end.
std::optional<std::string> NextLine() {
    constexpr std::size_t kLongest = 1000;
    std::string line;
    int c = std::getchar();
    if (c == EOF) return {};
    for (; c != EOF && c != '\n'; c = std::getchar())
        if (line.size() < kLongest) line += static_cast<char>(c);
    if (line.ends_with('\r')) line.pop_back();
    return line;
}

} // namespace

ExitCode ClipScale(const ClipOptions& options) {
    Definitions definitions;
    const auto found = ReadRecord<GradeScales>(definitions, options.file, options.objective);
    if (!found.record) return ExitCode::Refused;
    const Text clip = Make<clsHTDGradeScaleManager>()->ScaleToClip(found.record);
    if (options.json)
        Print(JsonText({{"file", ToUtf8(found.file)}, {"clip", ToUtf8(clip)}}) + '\n');
    else if (::isatty(STDOUT_FILENO) == 1)
        EachPiece(clip, kLineEnd, [](TextView line) { Print(Harmless(line) + '\n'); });
    else
        Print(ToUtf8(clip));
    return definitions.Heard().Any() ? ExitCode::Refused : ExitCode::Fine;
}

ExitCode PasteScale(const ClipOptions& options) {
    if (IsSameFile(options.paste, options.out, "clip")) return ExitCode::Usage;
    Definitions definitions;
    const auto text = definitions.ReadText(options.paste, "it is not text in UTF-8 or UTF-16.");
    if (!text) return ExitCode::Refused;
    const Text clip = Replaced(Replaced(*text, kLineEnd, u"\n"), u"\n", kLineEnd);
    definitions.Heard().Silent(true);
    const auto scale = Make<clsHTDGradeScaleManager>()->ClipToScale(FromUtf8(options.name), clip);
    definitions.Heard().Silent(false);
    if (!scale || !GradeScales::IsDefined(*scale)) {
        definitions.Refuse(InputName(options.paste), "it is empty or contains an empty line.");
        return ExitCode::Refused;
    }
    const bool isFine = Vouch(*scale, InputName(options.paste));
    const ExitCode code = SaveFile({.file = options.out, .json = options.json}, "a grade scale",
                                   definitions.Heard(), [&](TextView path) { return scale->Export(path); });
    return code == ExitCode::Fine && !isFine ? ExitCode::Findings : code;
}

ExitCode GradePercents(const GradeOptions& options) {
    for (const std::string& percent : options.percents) {
        if (PercentOf(percent)) continue;
        Complain(Harmless(std::string_view(percent)) + " is not a percentage.");
        return ExitCode::Usage;
    }
    Definitions definitions;
    const auto found = ReadRecord<GradeScales>(definitions, options.file, options.objective);
    if (!found.record) return ExitCode::Refused;
    if (!GradeScales::IsDefined(*found.record)) {
        definitions.Refuse(found.file, "its grade scale is missing or empty.");
        return ExitCode::Refused;
    }
    bool isFine = Vouch(*found.record, found.file);
    const auto grade = [&](const std::string& text, double percent) {
        const Text earned = found.record->CalculateGrade(percent, options.places);
        Print(options.json ? JsonText({{"percent", percent}, {"grade", ToUtf8(earned)}}) + '\n'
                           : text + '\t' + Harmless(earned) + '\n');
    };
    for (const std::string& text : options.percents) grade(text, *PercentOf(text));
    if (!options.percents.empty()) return isFine ? ExitCode::Fine : ExitCode::Findings;

    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ); // a program that sends line by line waits for each result
    std::uint64_t number = 0;
    while (const auto line = NextLine()) {
        ++number;
        if (const auto percent = PercentOf(*line)) {
            grade(*line, *percent);
            continue;
        }
        Complain("line " + std::to_string(number) + " is not a percentage" +
                 (line->empty() ? "." : ": " + Fitted(Harmless(std::string_view(*line)), 60)));
        isFine = false;
    }
    return isFine ? ExitCode::Fine : ExitCode::Findings;
}

} // namespace htdrdd::host
