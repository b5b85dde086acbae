/// Files of the benchmarks.
#pragma once

#include "generator.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <filesystem>
#include <map>
#include <string>
#include <tuple>

namespace htdrdd::bench {

/// Created on the first request and deleted at the end.
class Files {
public:
    static Files& All();
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    ~Files();
    const std::filesystem::path& Of(const Shape& shape, std::string (*make)(const Shape&));

private:
    using Key = std::tuple<int, int, int, bool>;
    Files();
    std::filesystem::path folder_;
    std::map<Key, std::filesystem::path> paths_;
};

void WriteFile(const std::filesystem::path& path, const std::string& bytes);

/// The definition in a file; null if it can't be read.
[[nodiscard]] Ref<clsHTDRDD> ReadNew(TextView path);

/// The same content in the form of `htdrdd show --json`.
[[nodiscard]] std::string DefinitionJson(const Shape& shape);

} // namespace htdrdd::bench
