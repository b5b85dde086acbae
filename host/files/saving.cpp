#include "host/files/saving.h"

#include "host/console/json.h"
#include "host/console/output.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/file_system.h"

#include <filesystem>
#include <system_error>

namespace htdrdd::host {

bool IsSameFile(const std::string& read, const std::string& written, const char* what) {
    std::error_code error;
    if (!std::filesystem::equivalent(read, written, error)) return false;
    Complain(Harmless(std::string_view(written)) + " can't be written: it is the " + what + " to read.");
    return true;
}

ExitCode SaveFile(const SaveOptions& options, const std::string& form, Complaints& complaints,
                  const std::function<bool(TextView)>& save) {
    FileSystem& files = CurrentFileSystem();
    const Text path = FromNativePath(options.file);
    const Text backup = path + u".old";
    const bool fileStood = files.FileExists(path);
    const bool backupStood = files.FileExists(backup);
    complaints.Forget();
    // A save returns true even if it couldn't replace an old file, but then it reports a failure.
    const bool saved = save(path) && !complaints.Failed();
    const bool backupMade = !backupStood && files.FileExists(backup);

    if (saved && options.json) {
        const nlohmann::ordered_json kept = backupMade ? nlohmann::ordered_json(ToUtf8(backup)) : nullptr;
        Print(JsonText({{"written", ToUtf8(path)}, {"backup", kept}}) + '\n');
        return ExitCode::Fine;
    }
    if (saved && !options.quiet) Print(Harmless(path) + " was saved as " + form + ".\n");
    if (backupMade && !options.quiet) Print("The old file was kept as " + Harmless(backup) + ".\n");
    if (saved) return ExitCode::Fine;
    if (complaints.Declined()) {
        Complain(Harmless(path) + " was not saved; use --yes to save it with invalid test versions.");
        return ExitCode::Findings;
    }
    const bool lost = fileStood && !backupMade && !files.FileExists(path);
    Complain(Harmless(path) + " was not saved: it can't be written" +
             (lost ? ", and the old file is lost." : "."));
    return ExitCode::Refused;
}

ExitCode SaveDefinition(clsHTDRDD& definition, const SaveOptions& options, Complaints& complaints) {
    complaints.AnswerYes(options.yes);
    return SaveFile(options, options.plain ? "plain text" : "an archive", complaints,
                    [&](TextView path) { return definition.Save(path, !options.plain, !options.judged); });
}

ExitCode SaveHeaderFile(clsHTDRDD& definition, const std::string& file, Complaints& complaints) {
    return SaveFile({.file = file}, "a header file", complaints,
                    [&](TextView path) { return definition.SaveHeader(path); });
}

} // namespace htdrdd::host
