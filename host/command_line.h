/// The command line: subcommands and their options.
#pragma once

#include "host/exit_code.h"

namespace htdrdd::host {

/// Does what the arguments ask for. What it can't catch goes to the caller.
[[nodiscard]] ExitCode RunCommandLine(int argc, char** argv);

} // namespace htdrdd::host
