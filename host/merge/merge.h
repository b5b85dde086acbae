/// htdrdd merge: an answer key from elsewhere in a definition.
#pragma once

#include "host/files/saving.h"

namespace htdrdd::host {

struct MergeOptions {
    std::string active;
    std::string key;
    bool generic = false; ///< the key is a definition, not a text
    bool force = false;   ///< what came of a merge is saved in spite of complaints
    bool json = false;
    SaveOptions save{.judged = true}; ///< without a file nothing is saved
};

[[nodiscard]] ExitCode Merge(const MergeOptions& options);

} // namespace htdrdd::host
