/// The files of the machine, behind one seam that tests replace.
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
    /// Room for bytes whose content is not set yet.
    explicit Bytes(std::size_t size);

    [[nodiscard]] char* Data() noexcept { return data_.get(); }
    [[nodiscard]] std::string_view View() const noexcept { return {data_.get(), data_ ? size_ : 0}; }
    /// Makes room for more behind the bytes that are there.
    void Grow(std::size_t size);
    /// Forgets what stands behind the first `size` bytes.
    void Shorten(std::size_t size) noexcept { size_ = size; }

private:
    struct Free {
        void operator()(char* data) const noexcept;
    };
    std::unique_ptr<char, Free> data_;
    std::size_t size_ = 0;
};

/// Who may do what with a file, in the system's own terms.
using FileMode = std::uint32_t;
inline constexpr FileMode kOwnerOnly = 0600;

/// A file that is being written. Destroying it without Close drops what Close would have reported.
class FileWriter {
public:
    FileWriter() = default;
    FileWriter(const FileWriter&) = delete;
    FileWriter& operator=(const FileWriter&) = delete;
    virtual ~FileWriter() = default;
    virtual void Write(std::string_view bytes, Where at = Where::current()) = 0;
    virtual void Close(Where at = Where::current()) = 0;
};

/// The file system. Names are literal, without wildcards, and a name with NUL fails with 52. Other failures:
/// 53 no such file, 76 no such folder, 58 it is there already, 70 a folder or no right, 61 disk full, 57
/// device, 75 anything else.
class FileSystem {
public:
    FileSystem() = default;
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;
    virtual ~FileSystem() = default;

    /// True for regular files only. Nothing fails.
    [[nodiscard]] virtual bool FileExists(TextView path) = 0;
    [[nodiscard]] virtual bool FolderExists(TextView path) = 0;
    /// The first bytes of a file, as many as there are up to the limit.
    [[nodiscard]] virtual Bytes Read(TextView path,
                                     std::size_t limit = std::numeric_limits<std::size_t>::max(),
                                     Where at = Where::current()) = 0;
    /// The last bytes of a file, as many as there are up to the limit.
    [[nodiscard]] virtual Bytes ReadEnd(TextView path, std::size_t limit, Where at = Where::current()) = 0;
    /// Makes a new file, for its owner only. Fails with 58 where there is anything under that name.
    [[nodiscard]] virtual std::unique_ptr<FileWriter> Create(TextView path, Where at = Where::current()) = 0;
    /// Opens a file to write at its end; it is made where it is missing.
    [[nodiscard]] virtual std::unique_ptr<FileWriter> OpenForAppending(TextView path,
                                                                       Where at = Where::current()) = 0;
    /// Copies a file to a new name, with the given rights or else those that the machine gives to new files;
    /// or over another file, which keeps its own. After a failure there is no part of a copy, and what was
    /// there still is.
    virtual void CopyFile(TextView from, TextView to, std::optional<FileMode> mode = {},
                          Where at = Where::current()) = 0;
    /// Deletes a file, also a read-only one.
    virtual void DeleteFile(TextView path, Where at = Where::current()) = 0;
    /// None where there is no file.
    [[nodiscard]] virtual std::optional<FileMode> ModeOf(TextView path) = 0;
    virtual void SetMode(TextView path, FileMode mode, Where at = Where::current()) = 0;
    /// The file that a link leads to in the end; the path itself where it is no link or leads nowhere.
    [[nodiscard]] virtual Text Resolved(TextView path) = 0;
    /// Makes a folder for its owner only. Fails with 58 where there is anything under that name.
    virtual void CreateFolder(TextView path, Where at = Where::current()) = 0;
    /// Deletes a folder with all that is in it. Links are deleted, not followed.
    virtual void DeleteFolder(TextView path, Where at = Where::current()) = 0;
    /// The folder for temporary files.
    [[nodiscard]] virtual Text TemporaryFolder(Where at = Where::current()) = 0;
};

/// The file system of the operating system.
[[nodiscard]] FileSystem& MachineFileSystem();

/// The file system that this thread works on, at first that of the machine.
[[nodiscard]] FileSystem& CurrentFileSystem();
/// Replaces it; a null pointer goes back to that of the machine. The caller keeps it alive.
void UseFileSystem(FileSystem* files);

/// A folder and a name with one separator between them.
[[nodiscard]] Text BuildPath(TextView folder, TextView name);
/// The last part of a path.
[[nodiscard]] TextView FileNameOf(TextView path) noexcept;
/// What stands in front of the last part, without the separator; empty where there is nothing.
[[nodiscard]] TextView FolderOf(TextView path) noexcept;

} // namespace htdrdd
