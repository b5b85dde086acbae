/// Writing the files that a command is told to make.
#pragma once

#include "host/complaints.h"
#include "host/exit_code.h"
#include "model/clsHTDRDD.h"

#include <string>

namespace htdrdd::host {

struct SaveOptions {
    std::string file{};
    bool plain = false;  ///< as text, not as an archive
    bool yes = false;    ///< questions are answered with yes
    bool judged = false; ///< the user knows what the test versions are like: nothing is asked or told of them
    bool quiet = false;  ///< a save that goes well isn't told
};

/// Saves a definition and prints what was written and whether a backup was made. If nothing was, one sentence
/// says why.
[[nodiscard]] ExitCode SaveDefinition(clsHTDRDD& definition, const SaveOptions& options,
                                      Complaints& complaints);
/// Saves its header settings to a header file in the same way.
[[nodiscard]] ExitCode SaveHeaderFile(clsHTDRDD& definition, const std::string& file, Complaints& complaints);

} // namespace htdrdd::host
