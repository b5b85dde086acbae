#include "definition_file/target_file.h"

#include "foundation/basPublicFiles.h"
#include "platform/file_system.h"

namespace htdrdd::basTemplate {
namespace {

constexpr std::int16_t kRetries = 20;

} // namespace

TargetFile::TargetFile(TextView sFile) : sFile_(sFile), mode_(CurrentFileSystem().ModeOf(sFile)) {}

void TargetFile::MakeWay(TextView sPassword, Where at) const {
    FileSystem& files = CurrentFileSystem();
    if (!files.FileExists(sFile_)) return;
    if (basPublic::IsUnicodeFile(sFile_, sPassword))
        files.DeleteFile(sFile_, at);
    else // older readers can't take the new one
        basPublic::FileBackup(sFile_, true, kRetries);
}

void TargetFile::Put(TextView sTemporary, Where at) const {
    FileSystem& files = CurrentFileSystem();
    if (!files.FileExists(sTemporary)) return;
    files.CopyFile(sTemporary, sFile_, Rights::OfNewFile, at);
    files.DeleteFile(sTemporary, at);
}

bool TargetFile::IsThere() const {
    FileSystem& files = CurrentFileSystem();
    if (!files.FileExists(sFile_)) return false;
    if (mode_) IgnoreFailure([&] { files.SetMode(sFile_, *mode_); }); // as near as they can be had here
    return true;
}

} // namespace htdrdd::basTemplate
