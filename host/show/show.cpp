#include "host/show/show.h"

#include "host/console/output.h"
#include "host/files/definitions.h"
#include "host/show/show_json.h"
#include "host/show/show_summary.h"

namespace htdrdd::host {

ExitCode Show(const ShowOptions& options) {
    Definitions definitions;
    const Terminal terminal = Terminal::OfOutput();
    bool first = true;
    for (const std::string& file : options.files) {
        const auto definition = definitions.Read(file);
        if (!definition) continue;
        if (options.json) {
            Print(DefinitionAsJson(*definition, options.secrets));
        } else {
            if (!first) Print("\n");
            Print(Summary(*definition, terminal));
        }
        first = false;
    }
    return definitions.AnyRefused() ? ExitCode::Refused : ExitCode::Fine;
}

} // namespace htdrdd::host
