/// Unpacks any bytes as an archive.
#include "fuzzing.h"
#include "htdrdd91/definition_file/basPublicUnicode.h"
#include "htdrdd91/foundation/basPublicFiles.h"
#include "htdrdd91/foundation/clsDZip.h"
#include "htdrdd91/platform/file_system.h"
#include "support/memory_file_system.h"

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace htdrdd;
    using namespace htdrdd::fuzz;
    Host().complaints = 0;
    test::MemoryFileSystem files;
    files.files[u"/fuzz.zip"] = std::string(data, data + size);
    files.folders.insert(u"/out");
    UseFileSystem(&files);
    static_cast<void>(basPublic::IsUnicodeFile(u"/fuzz.zip", u"secret"));
    Demand(files.files.size() == 1 && files.folders.size() == 2);

    Array<Text> names;
    std::int32_t number = 0;
    const bool all = Make<clsDZip>()->UnZip(u"/fuzz.zip", u"/out", names, number, u"secret");
    Demand(number >= 0 && names.HasStorage() == (number > 0));
    Demand(number == 0 || names.UpperBound() == number);
    for (const Text& name : names.Items())
        Demand(name.empty() ? !all : files.FileExists(BuildPath(u"/out", name)));
    for (const auto& file : files.files)
        Demand(file.first == u"/fuzz.zip" || FolderOf(file.first) == u"/out");
    Demand(Host().complaints == 0);
    UseFileSystem(nullptr);
    return 0;
}
