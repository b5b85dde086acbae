/// htdrdd show: shows the content of definition files.
#pragma once

#include "host/console/exit_code.h"

#include <string>
#include <vector>

namespace htdrdd::host {

struct ShowOptions {
    std::vector<std::string> files;
    bool json = false;
    bool secrets = false; ///< users, passwords and connection strings aren't masked
};

/// Shows each file that can be read and continues after a refused file.
[[nodiscard]] ExitCode Show(const ShowOptions& options);

} // namespace htdrdd::host
