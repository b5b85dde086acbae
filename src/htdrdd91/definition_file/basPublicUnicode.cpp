#include "htdrdd91/definition_file/basPublicUnicode.h"

#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/clsDZip.h"
#include "htdrdd91/foundation/temporary.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/zip_archive.h"

#include <algorithm>

namespace htdrdd::basPublic {
namespace {

bool StartsWithMark(FileSystem& files, TextView file, Where at = Where::current()) {
    return files.Read(file, 2, at).View() == kUtf16Mark;
}

/// The part of a file name after its last point; empty if there is none.
TextView ExtensionOf(TextView name) {
    const std::size_t point = name.rfind(u'.');
    return point == TextView::npos ? TextView() : name.substr(point + 1);
}

} // namespace

bool IsUnicodeFile(TextView sFile, TextView sPassword) noexcept {
    bool result = false;
    try {
        FileSystem& files = CurrentFileSystem();
        if (!files.FileExists(sFile)) return false;
        if (!EndsLikeZip(files, sFile)) return StartsWithMark(files, sFile); // no archive
        const Temporary folder;
        files.CreateFolder(folder.Path());
        const Temporary copy;
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
    } catch (...) { ReportFailure(u"basPublic.IsUnicodeFile"); }
    return result;
}

} // namespace htdrdd::basPublic
