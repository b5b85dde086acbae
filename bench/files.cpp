#include "files.h"

#include "host/show/show_json.h"
#include "htdrdd91/platform/encoding.h"

#include <fstream>
#include <system_error>
#include <unistd.h>

namespace htdrdd::bench {

namespace fs = std::filesystem;

Files& Files::All() {
    static Files files;
    return files;
}

Files::Files() : folder_(fs::temp_directory_path() / ("htdrdd_bench." + std::to_string(::getpid()))) {
    fs::create_directory(folder_);
}

Files::~Files() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

const fs::path& Files::Of(const Shape& shape, std::string (*make)(const Shape&)) {
    const Key key{shape.questions, shape.objectives, shape.versions, make == &DefinitionJson};
    auto& path = paths_[key];
    if (path.empty()) {
        path = folder_ / std::to_string(paths_.size()); // make() may create other files
        WriteFile(path, make(shape));
    }
    return path;
}

void WriteFile(const fs::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

Ref<clsHTDRDD> ReadNew(TextView path) {
    auto rdd = Make<clsHTDRDD>();
    return rdd->Read(path) ? rdd : nullptr;
}

std::string DefinitionJson(const Shape& shape) {
    const auto rdd = ReadNew(FromNativePath(Files::All().Of(shape, &DefinitionText).native()));
    return host::DefinitionAsJson(*rdd, true);
}

} // namespace htdrdd::bench
