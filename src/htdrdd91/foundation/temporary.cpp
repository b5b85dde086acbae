#include "htdrdd91/foundation/temporary.h"

#include "htdrdd91/foundation/basPublicFiles.h"
#include "htdrdd91/platform/file_system.h"

namespace htdrdd {

Temporary::Temporary() : path_(basPublic::GetUniqueFileName({}, {}, {})) {}

void Temporary::Write(std::string_view bytes, Where at) const {
    const auto file = CurrentFileSystem().Create(path_, at);
    file->Write(bytes, at);
    file->Close(at);
}

void Temporary::Delete(Where at) const {
    FileSystem& files = CurrentFileSystem();
    if (files.FileExists(path_)) files.DeleteFile(path_, at);
    if (files.FolderExists(path_)) files.DeleteFolder(path_, at);
}

void WriteWholeFile(TextView sFileName, std::string_view bytes, Where at) {
    FileSystem& files = CurrentFileSystem();
    const Temporary temporary;
    temporary.Write(bytes, at);
    files.CopyFile(temporary.Path(), files.Resolved(sFileName), {}, at);
}

} // namespace htdrdd
