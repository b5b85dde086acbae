/// htdrdd merge: merges an answer key into a definition.
#pragma once

#include "host/files/saving.h"

namespace htdrdd::host {

struct MergeOptions {
    std::string active;
    std::string key;
    bool generic = false; ///< the key is a definition, not a text key
    bool force = false;   ///< the result is saved despite complaints
    bool json = false;
    SaveOptions save{.judged = true}; ///< without a file nothing is saved
};

[[nodiscard]] ExitCode Merge(const MergeOptions& options);

} // namespace htdrdd::host
