#include "foundation/whole_file.h"

#include "foundation/basPublicFiles.h"
#include "foundation/temporary.h"
#include "platform/file_system.h"

namespace htdrdd {

void WriteWholeFile(TextView sFileName, std::string_view bytes, Where at) {
    FileSystem& files = CurrentFileSystem();
    const Temporary temporary(basPublic::GetUniqueFileName({}, {}, {}));
    const auto file = files.Create(temporary.Path(), at);
    file->Write(bytes, at);
    file->Close(at);
    files.CopyFile(temporary.Path(), files.Resolved(sFileName), {}, at);
}

} // namespace htdrdd
