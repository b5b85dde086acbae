#include "htdrdd91/definition_file/target_file.h"

#include "htdrdd91/definition_file/basPublicUnicode.h"
#include "htdrdd91/foundation/basPublicFiles.h"
#include "htdrdd91/platform/file_system.h"

namespace htdrdd::basTemplate {
namespace {

constexpr std::int16_t kRetries = 20;

} // namespace

TargetFile::TargetFile(TextView sFile)
    : path_(CurrentFileSystem().Resolved(sFile)), mode_(CurrentFileSystem().ModeOf(path_)) {}

void TargetFile::MakeWay(TextView sPassword, Where at) const {
    FileSystem& files = CurrentFileSystem();
    if (!files.FileExists(path_)) return;
    if (basPublic::IsUnicodeFile(path_, sPassword))
        files.DeleteFile(path_, at);
    else // older readers can't read the new one
        basPublic::FileBackup(path_, true, kRetries);
}

void TargetFile::Put(TextView sTemporary, Where at) const {
    FileSystem& files = CurrentFileSystem();
    if (!files.FileExists(sTemporary)) return;
    files.CopyFile(sTemporary, path_, mode_, at);
    files.DeleteFile(sTemporary, at);
}

void TargetFile::RestoreRights() const noexcept {
    if (mode_) IgnoreFailure([this] { CurrentFileSystem().SetMode(path_, *mode_); });
}

} // namespace htdrdd::basTemplate
