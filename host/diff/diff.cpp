#include "host/diff/diff.h"

#include "host/console/json.h"
#include "host/console/output.h"
#include "host/diff/changes_text.h"
#include "host/diff/key_changes.h"
#include "host/files/definitions.h"
#include "htdrdd91/platform/encoding.h"

namespace htdrdd::host {

ExitCode Diff(const DiffOptions& options) {
    Definitions definitions;
    const auto before = definitions.Read(options.before);
    const auto after = definitions.Read(options.after);
    if (definitions.AnyRefused()) return ExitCode::Refused;
    const auto changes = KeyChanges(KeySnapshot(*before), KeySnapshot(*after));
    if (options.json) {
        nlohmann::ordered_json object{{"files", {ToUtf8(before->FileName), ToUtf8(after->FileName)}}};
        object.update(changes);
        Print(JsonText(object, 2) + '\n');
    } else {
        Print(ChangesText(changes, Terminal::OfOutput()));
    }
    return changes["gradingDiffers"] == true ? ExitCode::Findings : ExitCode::Fine;
}

} // namespace htdrdd::host
