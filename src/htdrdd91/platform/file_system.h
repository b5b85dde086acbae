/// The files of the machine, through an interface that tests replace.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>

namespace htdrdd {

/// Bytes read from a file, aligned for wide units.
class Bytes {
public:
    Bytes() = default;
    /// Allocates bytes without initializing them.
    explicit Bytes(std::size_t size);

    [[nodiscard]] char* Data() noexcept { return data_.get(); }
    [[nodiscard]] std::string_view View() const noexcept { return {data_.get(), data_ ? size_ : 0}; }
    /// Enlarges the block to `size` bytes and keeps its content.
    void Grow(std::size_t size);
    /// Drops the bytes after the first `size`.
    void Shorten(std::size_t size) noexcept { size_ = size; }

private:
    struct Free {
        void operator()(char* data) const noexcept;
    };
    std::unique_ptr<char, Free> data_;
    std::size_t size_ = 0;
};

/// The permissions of a file, as the operating system encodes them.
using FileMode = std::uint32_t;
inline constexpr FileMode kOwnerOnly = 0600;

/// A file being written. The destructor closes an open file too, but ignores errors that Close would report.
class FileWriter {
public:
    FileWriter() = default;
    FileWriter(const FileWriter&) = delete;
    FileWriter& operator=(const FileWriter&) = delete;
    virtual ~FileWriter() = default;
    virtual void Write(std::string_view bytes, Where at = Where::current()) = 0;
    virtual void Close(Where at = Where::current()) = 0;
};

/// The file system. Names are literal, without wildcards; a name with NUL fails with 52. Other failures: 53
/// no such file, 76 no such folder, 58 the name exists, 70 a folder or no permission, 61 disk full, 57 device
/// error, 75 any other error.
class FileSystem {
public:
    FileSystem() = default;
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;
    virtual ~FileSystem() = default;

    /// True for regular files only. Never fails.
    [[nodiscard]] virtual bool FileExists(TextView path) = 0;
    [[nodiscard]] virtual bool FolderExists(TextView path) = 0;
    /// The first bytes of a file, up to the limit.
    [[nodiscard]] virtual Bytes Read(TextView path,
                                     std::size_t limit = std::numeric_limits<std::size_t>::max(),
                                     Where at = Where::current()) = 0;
    /// The last bytes of a file, up to the limit.
    [[nodiscard]] virtual Bytes ReadEnd(TextView path, std::size_t limit, Where at = Where::current()) = 0;
    /// Creates a file that only its owner can access. Fails with 58 if the name exists.
    [[nodiscard]] virtual std::unique_ptr<FileWriter> Create(TextView path, Where at = Where::current()) = 0;
    /// Opens a file for appending; creates a missing file.
    [[nodiscard]] virtual std::unique_ptr<FileWriter> OpenForAppending(TextView path,
                                                                       Where at = Where::current()) = 0;
    /// Copies a file. A new file gets the given permissions, or else those that the machine gives to new
    /// files; an existing file keeps its own. After a failure no partial copy remains, and an existing file
    /// is unchanged.
    virtual void CopyFile(TextView from, TextView to, std::optional<FileMode> mode = {},
                          Where at = Where::current()) = 0;
    /// Deletes a file, even a read-only one.
    virtual void DeleteFile(TextView path, Where at = Where::current()) = 0;
    /// std::nullopt if the file doesn't exist.
    [[nodiscard]] virtual std::optional<FileMode> ModeOf(TextView path) = 0;
    virtual void SetMode(TextView path, FileMode mode, Where at = Where::current()) = 0;
    /// The file to which a link finally leads; the path itself if it is not a link or leads nowhere.
    [[nodiscard]] virtual Text Resolved(TextView path) = 0;
    /// Creates a folder that only its owner can access. Fails with 58 if the name exists.
    virtual void CreateFolder(TextView path, Where at = Where::current()) = 0;
    /// Deletes a folder with its content. Links are deleted, not followed.
    virtual void DeleteFolder(TextView path, Where at = Where::current()) = 0;
    /// The folder for temporary files.
    [[nodiscard]] virtual Text TemporaryFolder(Where at = Where::current()) = 0;
};

/// The file system of the operating system.
[[nodiscard]] FileSystem& MachineFileSystem();

/// The file system of this thread, initially that of the machine.
[[nodiscard]] FileSystem& CurrentFileSystem();
/// Replaces the file system of this thread; a null pointer restores that of the machine. The caller keeps
/// `files` alive.
void UseFileSystem(FileSystem* files);

/// Joins a folder and a name with one separator.
[[nodiscard]] Text BuildPath(TextView folder, TextView name);
/// The last part of a path.
[[nodiscard]] TextView FileNameOf(TextView path) noexcept;
/// The path without its last part and without the separator before that; empty if nothing remains.
[[nodiscard]] TextView FolderOf(TextView path) noexcept;

} // namespace htdrdd
