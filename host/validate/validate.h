/// htdrdd validate: whether definitions can be trusted.
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

/// Judges each file that can be read and goes on behind one that is refused.
[[nodiscard]] ExitCode Validate(const ValidateOptions& options);

} // namespace htdrdd::host
