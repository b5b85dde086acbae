/// Writes the output files of a command.
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
    bool judged = false; ///< test versions were checked before: no more questions or complaints about them
    bool quiet = false;  ///< no message after a successful save
    bool json = false;   ///< the message is a JSON object
};

/// Whether the output file is the input file, with a complaint if so. `what` is the kind of the input file.
[[nodiscard]] bool IsSameFile(const std::string& read, const std::string& written, const char* what);

/// Runs a save of the library, which returns whether it wrote the file, and prints the names of the written
/// file and of the backup, if one was made. If nothing was written, one sentence gives the reason.
[[nodiscard]] ExitCode SaveFile(const SaveOptions& options, const std::string& form, Complaints& complaints,
                                const std::function<bool(TextView)>& save);

/// Saves a definition by SaveFile.
[[nodiscard]] ExitCode SaveDefinition(clsHTDRDD& definition, const SaveOptions& options,
                                      Complaints& complaints);
/// Saves the header settings of a definition by SaveFile.
[[nodiscard]] ExitCode SaveHeaderFile(clsHTDRDD& definition, const std::string& file, Complaints& complaints);

} // namespace htdrdd::host
