/// htdrdd header: exchanges the settings of the report header with header files.
#pragma once

#include "host/files/saving.h"

namespace htdrdd::host {

struct HeaderOptions {
    std::string definition;
    std::string header;
    SaveOptions save; ///< used by LoadHeader only
};

/// Writes the header settings of a definition to a header file.
[[nodiscard]] ExitCode SaveHeader(const HeaderOptions& options);
/// Saves a definition under another name with the settings of a header file.
[[nodiscard]] ExitCode LoadHeader(const HeaderOptions& options);

} // namespace htdrdd::host
