/// htdrdd convert: saves a definition of any age in the current format.
#pragma once

#include "host/files/saving.h"

namespace htdrdd::host {

struct ConvertOptions {
    std::string file;
    SaveOptions save;
};

[[nodiscard]] ExitCode Convert(const ConvertOptions& options);

} // namespace htdrdd::host
