/// What the program ends with.
#pragma once

namespace htdrdd::host {

enum class ExitCode : int {
    Fine = 0,
    Findings = 1, ///< a validation found something
    Usage = 2,
    Refused = 3,  ///< a file is missing or was refused
    Internal = 4, ///< an unexpected failure, or output that can't be written
};

} // namespace htdrdd::host
