/// htdrdd validate: checks definitions against the rules.
#pragma once

#include "host/console/exit_code.h"

#include <string>
#include <vector>

namespace htdrdd::host {

struct ValidateOptions {
    std::vector<std::string> files;
    bool all = false; ///< every finding, not only the first one of each check
    bool json = false;
};

/// Checks each file that can be read and continues after a refused file.
[[nodiscard]] ExitCode Validate(const ValidateOptions& options);

} // namespace htdrdd::host
