#include "htdrdd91/foundation/basPublicFiles.h"

#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/basPublicText.h"
#include "htdrdd91/foundation/version.h"
#include "htdrdd91/platform/desktop.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/process.h"

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
    } catch (...) { ReportFailure(u"basPublic.FileBackup"); }
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
    } catch (...) { ReportFailure(u"basPublic.GetUniqueFileName"); }
    return result;
}

} // namespace htdrdd::basPublic
