/// htdrdd library: edits a file that holds the string of a library of grade scales or scaled scores.
#pragma once

#include "host/files/saving.h"

#include <optional>

namespace htdrdd::host {

struct LibraryOptions {
    std::string library;
    bool scaledScores = false;
    std::string file; ///< source of the added record: a definition or an exchange file
    std::optional<std::string> objective;
    std::optional<std::string> newName; ///< name of the entry to add, or new name of the renamed one
    std::string name;                   ///< name of the entry to remove or rename
    bool json = false;
    std::string out; ///< empty: the library itself
};

[[nodiscard]] ExitCode ListLibrary(const LibraryOptions& options);
/// Adds an entry at the end; creates a missing library.
[[nodiscard]] ExitCode AddToLibrary(const LibraryOptions& options);
[[nodiscard]] ExitCode RemoveFromLibrary(const LibraryOptions& options);
/// Renames an entry, which keeps its place.
[[nodiscard]] ExitCode RenameInLibrary(const LibraryOptions& options);

} // namespace htdrdd::host
