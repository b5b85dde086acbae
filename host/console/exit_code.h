/// The exit codes of the program.
#pragma once

namespace htdrdd::host {

enum class ExitCode : int {
    Fine = 0,
    Findings = 1, ///< a check or a comparison found something, or a save or an edit was declined
    Usage = 2,
    Refused = 3,  ///< a file is missing, was refused or can't be written
    Internal = 4, ///< an unexpected failure, or output that can't be written
};

} // namespace htdrdd::host
