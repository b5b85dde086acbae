/// Writing the files that a command is told to make.
#pragma once

#include "host/console/exit_code.h"
#include "host/files/complaints.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <functional>
#include <string>

namespace htdrdd::host {

struct SaveOptions {
    std::string file{};
    bool plain = false;  ///< as text, not as an archive
    bool yes = false;    ///< questions are answered with yes
    bool judged = false; ///< the user knows what the test versions are like: nothing is asked or told of them
    bool quiet = false;  ///< a save that goes well isn't told
    bool json = false;   ///< it is told as one JSON object
};

/// Whether what a command is told to write is the file that it reads, which is told.
[[nodiscard]] bool IsSameFile(const std::string& read, const std::string& written, const char* what);

/// Runs a save of the library, which gives whether it wrote the file, and prints what was written and whether
/// a backup was made. If nothing was, one sentence says why.
[[nodiscard]] ExitCode SaveFile(const SaveOptions& options, const std::string& form, Complaints& complaints,
                                const std::function<bool(TextView)>& save);

/// Saves a definition in this way.
[[nodiscard]] ExitCode SaveDefinition(clsHTDRDD& definition, const SaveOptions& options,
                                      Complaints& complaints);
/// Saves its header settings to a header file.
[[nodiscard]] ExitCode SaveHeaderFile(clsHTDRDD& definition, const std::string& file, Complaints& complaints);

} // namespace htdrdd::host
