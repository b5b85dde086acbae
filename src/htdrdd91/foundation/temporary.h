/// Temporary files and folders, and files that are written by way of one.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <string_view>
#include <utility>

namespace htdrdd {

/// The name of a file or folder that is deleted at the end of the scope, if there is one by then.
class Temporary {
public:
    /// A new name in the temporary folder; nothing is made. Empty after a failure, which is reported.
    Temporary();
    /// A name of the caller's; an empty one names nothing.
    explicit Temporary(Text path) noexcept : path_(std::move(path)) {}
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;
    /// A deletion that fails here is ignored.
    ~Temporary() {
        IgnoreFailure([this] { Delete(); });
    }

    [[nodiscard]] const Text& Path() const noexcept { return path_; }
    /// Makes the file, for its owner only.
    void Write(std::string_view bytes, Where at = Where::current()) const;
    /// Deletes it now. Fails as deleting does.
    void Delete(Where at = Where::current()) const;
    /// Leaves it where it is. Path is empty from then on.
    void Keep() noexcept { path_.clear(); }

private:
    Text path_;
};

/// Writes a file by way of a temporary one: an existing file is replaced once all is written, and keeps its
/// rights. A link stays one, and the file that it leads to is written. Fails as writing and copying files do;
/// there is then no part of a new file, and an old one is what it was.
void WriteWholeFile(TextView sFileName, std::string_view bytes, Where at = Where::current());

} // namespace htdrdd
