#include "definition_file/target_file.h"

#include "foundation/basPublicFiles.h"
#include "platform/file_system.h"

namespace htdrdd::basTemplate {
namespace {

constexpr std::int16_t kRetries = 20;

} // namespace

void MakeWay(TextView sFile, TextView sPassword, Where at) {
    FileSystem& files = CurrentFileSystem();
    if (!files.FileExists(sFile)) return;
    if (basPublic::IsUnicodeFile(sFile, sPassword))
        files.DeleteFile(sFile, at);
    else // older readers can't take the new one
        basPublic::FileBackup(sFile, true, kRetries);
}

void PutInPlace(TextView sTemporary, TextView sFile, Where at) {
    FileSystem& files = CurrentFileSystem();
    if (!files.FileExists(sTemporary)) return;
    files.CopyFile(sTemporary, sFile, Rights::OfNewFile, at);
    files.DeleteFile(sTemporary, at);
}

} // namespace htdrdd::basTemplate
