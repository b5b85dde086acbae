/// Temporary files and folders.
#pragma once

#include "platform/file_system.h"
#include "platform/text.h"

#include <utility>

namespace htdrdd {

/// The name of a file or a folder that is deleted at the end, if there is one by then. It makes nothing.
class Temporary {
public:
    explicit Temporary(Text path = {}) : path_(std::move(path)) {}
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;
    /// A deletion that fails here is nobody's failure.
    ~Temporary() {
        IgnoreFailure([this] { Delete(); });
    }

    [[nodiscard]] const Text& Path() const noexcept { return path_; }
    /// Leaves what is there.
    void Keep() noexcept { path_.clear(); }
    /// Deletes it now and fails to the caller.
    void Delete(Where at = Where::current()) const {
        FileSystem& files = CurrentFileSystem();
        if (files.FileExists(path_)) files.DeleteFile(path_, at);
        if (files.FolderExists(path_)) files.DeleteFolder(path_, at);
    }

private:
    Text path_;
};

} // namespace htdrdd
