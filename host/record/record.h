/// htdrdd scale and scaled-score: the commands of both, for the kinds of records.h.
#pragma once

#include "host/files/records.h"
#include "host/files/saving.h"

namespace htdrdd::host {

struct RecordOptions {
    std::string file; ///< a definition; for ShowRecord also an exchange file
    std::string exchange;
    std::optional<std::string> objective; ///< position or name
    bool json = false;
    bool secrets = false;
    SaveOptions save; ///< used by ImportRecord only
};

/// Prints a record and whether it can be used.
template <class Kind>
[[nodiscard]] ExitCode ShowRecord(const RecordOptions& options);
/// Writes the record of a learning objective to an exchange file.
template <class Kind>
[[nodiscard]] ExitCode ExportRecord(const RecordOptions& options);
/// Saves a definition under another name, after a learning objective got the record of an exchange file, as
/// an object of its own.
template <class Kind>
[[nodiscard]] ExitCode ImportRecord(const RecordOptions& options);

} // namespace htdrdd::host
