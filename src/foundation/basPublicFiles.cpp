#include "foundation/basPublicFiles.h"

#include "foundation/basError.h"
#include "foundation/basPublicText.h"
#include "foundation/clsDZip.h"
#include "foundation/temporary.h"
#include "foundation/version.h"
#include "platform/desktop.h"
#include "platform/file_system.h"
#include "platform/process.h"
#include "platform/zip_archive.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace htdrdd::basPublic {
namespace {

constexpr std::int32_t kPause = 100; // milliseconds

Text Hexadecimal(std::uint32_t number) {
    std::array<char, 8> digits{};
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr};
}

Text RandomHexadecimal(std::int32_t lUpper) {
    return Hexadecimal(static_cast<std::uint32_t>(RandomNumber(0, lUpper)));
}

bool StartsWithMark(FileSystem& files, TextView file, Where at = Where::current()) {
    return files.Read(file, 2, at).View() == kUtf16Mark;
}

/// What stands behind the last point of a file name; empty where there is none.
TextView ExtensionOf(TextView name) {
    const std::size_t point = name.rfind(u'.');
    return point == TextView::npos ? TextView() : name.substr(point + 1);
}

} // namespace

Text FileBackup(TextView sFile, bool bDelete, std::int16_t iRetries) noexcept {
    Text result;
    try {
        FileSystem& files = CurrentFileSystem();
        const auto untilDone = [&](auto attempt, auto done) {
            IgnoreFailure(attempt);
            for (std::int16_t tries = 0; !done() && tries < iRetries; ++tries) {
                IgnoreFailure([] { CurrentDesktop().Pause(kPause); });
                IgnoreFailure(attempt);
            }
        };
        if (!files.FileExists(sFile)) return result;
        const Text backup = Text(sFile) + u".old";
        if (files.FileExists(backup)) return u"True";
        untilDone([&] { files.CopyFile(sFile, backup, files.ModeOf(sFile)); },
                  [&] { return files.FileExists(backup); });
        result = backup;
        if (bDelete) untilDone([&] { files.DeleteFile(sFile); }, [&] { return !files.FileExists(sFile); });
    } catch (...) { ReportFailure(u"HTDRdd91 - basPublic.FileBackup"); }
    return result;
}

Text GetUniqueFileName(TextView sPrefix, TextView sExtension, TextView sFolder) noexcept {
    Text result;
    try {
        FileSystem& files = CurrentFileSystem();
        const Text folder = sFolder.empty() ? files.TemporaryFolder() : Text(sFolder);
        const Text prefix = Text(sPrefix.empty() ? kLibraryName.substr(0, 5) : sPrefix) +
                            Hexadecimal(InstanceNumber()).substr(0, 3);
        Text path;
        do {
            const Text extension =
                sExtension.empty() ? Text(u".").append(RandomHexadecimal(4095)) : Text(sExtension);
            path = BuildPath(folder, prefix + UpperCased(RandomHexadecimal(1048575)) + extension);
        } while (files.FolderExists(path) || files.FileExists(path));
        result = std::move(path);
    } catch (...) { ReportFailure(u"HTDRdd91 - basPublic.GetUniqueFileName"); }
    return result;
}

bool IsUnicodeFile(TextView sFile, TextView sPassword) noexcept {
    bool result = false;
    try {
        FileSystem& files = CurrentFileSystem();
        if (!files.FileExists(sFile)) return false;
        if (!EndsLikeZip(files, sFile)) return StartsWithMark(files, sFile); // nothing to take out of it
        const Temporary folder(GetUniqueFileName({}, {}, {}));
        files.CreateFolder(folder.Path());
        const Temporary copy(GetUniqueFileName({}, {}, {}));
        files.CopyFile(sFile, copy.Path(), kOwnerOnly);
        Text file = copy.Path();
        Array<Text> members;
        std::int32_t number = 0;
        if (Make<clsDZip>()->UnZip(copy.Path(), folder.Path(), members, number, sPassword)) {
            const auto& names = members.Items();
            const auto chosen =
                number == 1 ? names.begin() : std::find_if(names.begin(), names.end(), [&](TextView name) {
                    return SameText(ExtensionOf(name), ExtensionOf(FileNameOf(sFile)));
                });
            if (chosen != names.end()) file = BuildPath(folder.Path(), *chosen);
        }
        const bool isUnicode = StartsWithMark(files, file);
        copy.Delete();
        folder.Delete();
        result = isUnicode;
    } catch (...) { ReportFailure(u"HTDRdd91 - basPublic.IsUnicodeFile"); }
    return result;
}

} // namespace htdrdd::basPublic
