/// htdrdd library: named grade scales or scaled scores in one file, which holds a library's string.
#pragma once

#include "host/files/saving.h"

#include <optional>

namespace htdrdd::host {

struct LibraryOptions {
    std::string library;
    bool scaledScores = false;
    std::string file; ///< whose record is added: a definition or an exchange file
    std::optional<std::string> objective;
    std::optional<std::string> newName; ///< of the entry that is added or renamed
    std::string name;                   ///< of the entry that is removed or renamed
    bool json = false;
    std::string out; ///< empty: the library itself
};

[[nodiscard]] ExitCode ListLibrary(const LibraryOptions& options);
/// Adds an entry at the end; a library that isn't there is made.
[[nodiscard]] ExitCode AddToLibrary(const LibraryOptions& options);
[[nodiscard]] ExitCode RemoveFromLibrary(const LibraryOptions& options);
/// Gives an entry another name, in its place.
[[nodiscard]] ExitCode RenameInLibrary(const LibraryOptions& options);

} // namespace htdrdd::host
