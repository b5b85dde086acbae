/// Temporary files and folders, and files written by way of a temporary one.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <string_view>
#include <utility>

namespace htdrdd {

/// The name of a file or folder that is deleted at the end of the scope if it exists.
class Temporary {
public:
    /// A new name in the temporary folder; creates nothing. Empty after a failure, which is reported.
    Temporary();
    /// A name that the caller chose; an empty name is ignored.
    explicit Temporary(Text path) noexcept : path_(std::move(path)) {}
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;
    /// Ignores a failed deletion.
    ~Temporary() {
        IgnoreFailure([this] { Delete(); });
    }

    [[nodiscard]] const Text& Path() const noexcept { return path_; }
    /// Creates the file, accessible only to its owner.
    void Write(std::string_view bytes, Where at = Where::current()) const;
    /// Deletes the file or folder now. Fails as deleting does.
    void Delete(Where at = Where::current()) const;
    /// Gives up the deletion. Path is empty from then on.
    void Keep() noexcept { path_.clear(); }

private:
    Text path_;
};

/// Writes a file by way of a temporary one: an existing file is replaced after all bytes are written, and
/// keeps its permissions. A link stays a link, and its target is written. Fails as writing and copying files
/// do; then no partial new file remains, and an existing file is unchanged.
void WriteWholeFile(TextView sFileName, std::string_view bytes, Where at = Where::current());

} // namespace htdrdd
