#include "host/validate/validate.h"

#include "host/console/output.h"
#include "host/files/definitions.h"
#include "host/validate/progress.h"
#include "host/validate/validate_json.h"
#include "host/validate/validate_text.h"

namespace htdrdd::host {
namespace {

/// "3 files: 1 valid, 2 refused"
std::string SummaryLine(std::size_t files, std::size_t valid, std::size_t broken) {
    std::string line = std::to_string(files) + (files == 1 ? " file" : " files");
    const char* separator = ": ";
    const auto count = [&](std::size_t number, const char* verdict) {
        if (number == 0) return;
        line.append(separator).append(std::to_string(number)).append(verdict);
        separator = ", ";
    };
    count(valid, " valid");
    count(broken, " broken");
    count(files - valid - broken, " refused");
    return line + '\n';
}

} // namespace

ExitCode Validate(const ValidateOptions& options) {
    Definitions definitions;
    const Terminal terminal = Terminal::OfOutput();
    const Progress progress(options.files.size());
    std::size_t done = 0;
    std::size_t valid = 0;
    std::size_t broken = 0;
    for (const std::string& file : options.files) {
        progress.Show(done++);
        const auto definition = definitions.Read(file);
        if (!definition) continue;
        const bool isValid = options.json ? ValidateAsJson(definition, options.all)
                                          : ValidateAsText(definition, options.all, terminal);
        ++(isValid ? valid : broken);
        if (!options.json) Print("\n");
    }
    if (!options.json) Print(SummaryLine(options.files.size(), valid, broken));
    if (definitions.AnyRefused()) return ExitCode::Refused;
    return broken > 0 ? ExitCode::Findings : ExitCode::Fine;
}

} // namespace htdrdd::host
