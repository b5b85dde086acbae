/// htdrdd diff: whether two definitions grade alike.
#pragma once

#include "host/console/exit_code.h"

#include <string>

namespace htdrdd::host {

struct DiffOptions {
    std::string before;
    std::string after;
    bool json = false;
};

[[nodiscard]] ExitCode Diff(const DiffOptions& options);

} // namespace htdrdd::host
