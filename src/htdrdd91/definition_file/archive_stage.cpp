#include "htdrdd91/definition_file/archive_stage.h"

#include "htdrdd91/base/array.h"
#include "htdrdd91/definition_file/messages.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/basPublicFiles.h"
#include "htdrdd91/foundation/clsDZip.h"
#include "htdrdd91/platform/file_system.h"

namespace htdrdd::basTemplate {
namespace {

constexpr int kMostTries = 10;

} // namespace

/// Computed character by character; stored nowhere in one piece.
Text ArchivePassword() {
    Text password;
    for (const int step : {7, 52, 31, 88, 19, 64, 45, 73, 26, 11, 80, 38, 59, 94})
        password += static_cast<char16_t>(u'0' + (step * 37 + static_cast<int>(password.size()) * 23) % 75);
    return password;
}

std::optional<Text> ArchiveStage::Open(TextView sFile, Where at) {
    FileSystem& files = CurrentFileSystem();
    const Text password = ArchivePassword();
    Text text;
    for (int tries = 0; tries < kMostTries; ++tries) {
        folder_.emplace();
        const Text& folder = folder_->Path();
        IgnoreFailure([&] { folder_->Delete(); });
        IgnoreFailure([&] { files.CreateFolder(folder); });
        if (!files.FolderExists(folder)) {
            ShowStopMessage(
                u"Folder Creation Error",
                u"Unable to create the temporary folder: " + folder + u"\r\n\r\nOperation aborted.", {}, at);
            return {};
        }
        const Text copy = BuildPath(folder, FileNameOf(sFile));
        files.CopyFile(sFile, copy, kOwnerOnly, at);
        Array<Text> members;
        std::int32_t number = 0;
        // This alone distinguishes archives from plain text; a damaged archive counts as text, too.
        if (!Make<clsDZip>()->UnZip(copy, folder, members, number, password)) return Text(sFile);
        if (number != 1) {
            ShowInvalidFile(u"The specified file is invalid or corrupt. Operation aborted.", at);
            return {};
        }
        text = BuildPath(folder, members.At(1, at));
        if (files.FileExists(text) && !files.Read(text, 1, at).View().empty()) break;
        Close(at); // This is meant: an empty text is extracted again, and after the last try it is missing.
    }
    return text;
}

void ArchiveStage::Close(Where at) const {
    if (folder_) folder_->Delete(at);
}

} // namespace htdrdd::basTemplate
