#include "host/merge/merge.h"

#include "host/console/json.h"
#include "host/console/output.h"
#include "host/diff/changes_text.h"
#include "host/diff/key_changes.h"
#include "host/files/definitions.h"
#include "htdrdd91/platform/encoding.h"

namespace htdrdd::host {
namespace {

/// Returns whether the key was merged and can be used for grading.
bool MergeKey(clsHTDRDD& active, const MergeOptions& options, Definitions& definitions) {
    if (!options.generic) return definitions.MergeTextKey(active, options.key);
    const auto key = definitions.ReadGenericKey(options.key);
    if (!key || !active.MergeGenericKey(key)) return false;
    const bool isKeyValid = active.ValidateKey();
    return active.ValidateVersions() && isKeyValid;
}

} // namespace

ExitCode Merge(const MergeOptions& options) {
    const Text out = FromNativePath(options.save.file);
    if (IsSameFile(options.key, options.save.file, "key")) return ExitCode::Usage;
    Definitions definitions;
    const auto active = definitions.Read(options.active);
    if (!active) return ExitCode::Refused;
    const auto before = KeySnapshot(*active);
    const bool merged = MergeKey(*active, options, definitions);
    if (definitions.AnyRefused()) return ExitCode::Refused;

    const auto changes = KeyChanges(before, KeySnapshot(*active));
    const bool saves = !out.empty() && (merged || options.force);
    if (!options.json) Print(ChangesText(changes, Terminal::OfOutput()) + (saves ? "\n" : ""));
    auto code = merged ? ExitCode::Fine : ExitCode::Findings;
    bool written = false;
    if (saves) {
        const ExitCode saved = SaveDefinition(*active, options.save, definitions.Heard());
        written = saved == ExitCode::Fine;
        if (!written) code = saved;
    } else if (!out.empty()) {
        Complain(Harmless(out) + " was not written; use --force to write it despite the complaints.");
    }
    if (options.json) {
        using Json = nlohmann::ordered_json;
        Json object{{"files", {ToUtf8(InputName(options.active)), ToUtf8(InputName(options.key))}},
                    {"merged", merged},
                    {"written", written ? Json(ToUtf8(out)) : Json()}};
        object.update(changes);
        Print(JsonText(object, 2) + '\n');
    }
    return code;
}

} // namespace htdrdd::host
