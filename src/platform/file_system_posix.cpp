#include "platform/file_system.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace htdrdd {
namespace {

constexpr std::size_t kLeastRoom = 4096; // bytes

std::string Native(TextView path, Where at) {
    if (path.find(u'\0') != TextView::npos) throw Failure(Err::BadFileName, at);
    return ToNativePath(path);
}

bool IsOfType(TextView path, mode_t type) noexcept {
    try {
        struct stat status {};
        return ::stat(Native(path, {}).c_str(), &status) == 0 && (status.st_mode & S_IFMT) == type;
    } catch (...) { // a name that no file can have
        return false;
    }
}

/// The failure for what the system said about a path.
Failure FileFailure(int error, TextView path, Where at) {
    switch (error) {
    case ENOENT: {
        const TextView folder = FolderOf(path);
        const bool folderMissing = !folder.empty() && !IsOfType(folder, S_IFDIR);
        return Failure(folderMissing ? Err::PathNotFound : Err::FileNotFound, at);
    }
    case ENOTDIR: return Failure(Err::PathNotFound, at);
    case EISDIR:
    case EACCES:
    case EPERM:
    case EROFS: return Failure(Err::PermissionDenied, at);
    case EEXIST: return Failure(Err::FileExists, at);
    case ENOSPC:
    case EDQUOT: return Failure(Err::DiskFull, at);
    case EIO: return Failure(Err::DeviceIO, at);
    case ENAMETOOLONG: return Failure(Err::BadFileName, at);
    case ENOMEM: return Failure(Err::Memory, at);
    default: return Failure(Err::PathFileAccess, at);
    }
}

class Descriptor {
public:
    Descriptor(TextView path, int flags, Where at) {
        // O_NONBLOCK: a pipe must not hold up whoever opens it.
        fd_ = ::open(Native(path, at).c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666);
        if (fd_ < 0) throw FileFailure(errno, path, at);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (fd_ >= 0) ::close(fd_);
    }
    [[nodiscard]] int Get() const noexcept { return fd_; }
    /// Closes and gives the system's error number, 0 for none.
    int Close() noexcept { return ::close(std::exchange(fd_, -1)) == 0 ? 0 : errno; }

private:
    int fd_ = -1;
};

class PosixWriter final : public FileWriter {
public:
    PosixWriter(TextView path, int flags, Where at) : path_(path), file_(path, flags, at) {}
    void Write(std::string_view bytes, Where at) override {
        while (!bytes.empty()) {
            const ssize_t written = ::write(file_.Get(), bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) throw FileFailure(errno, path_, at);
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    void Close(Where at) override {
        if (const int error = file_.Close()) throw FileFailure(error, path_, at);
    }

private:
    Text path_;
    Descriptor file_;
};

class PosixFileSystem final : public FileSystem {
public:
    bool FileExists(TextView path) override { return IsOfType(path, S_IFREG); }
    bool FolderExists(TextView path) override { return IsOfType(path, S_IFDIR); }

    Bytes Read(TextView path, std::size_t limit, Where at) override {
        const Descriptor file(path, O_RDONLY, at);
        struct stat status {};
        if (::fstat(file.Get(), &status) != 0) throw FileFailure(errno, path, at);
        if (!S_ISREG(status.st_mode)) throw Failure(Err::PermissionDenied, at);
        // One byte more than the file has, so that its end shows; the size may be out of date or not be told.
        Bytes bytes(std::min(limit, static_cast<std::size_t>(status.st_size) + 1));
        std::size_t filled = 0;
        while (filled < limit) {
            if (filled == bytes.View().size()) bytes.Grow(std::min(limit, 2 * filled + kLeastRoom));
            const ssize_t got = ::read(file.Get(), bytes.Data() + filled, bytes.View().size() - filled);
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) throw FileFailure(errno, path, at);
            if (got == 0) break;
            filled += static_cast<std::size_t>(got);
        }
        bytes.Shorten(filled);
        return bytes;
    }

    std::unique_ptr<FileWriter> OpenForAppending(TextView path, Where at) override {
        return std::make_unique<PosixWriter>(path, O_WRONLY | O_CREAT | O_APPEND, at);
    }

    void CopyFile(TextView from, TextView to, Where at) override {
        std::error_code error;
        std::filesystem::copy_file(Native(from, at), Native(to, at),
                                   std::filesystem::copy_options::overwrite_existing, error);
        if (error && (FolderExists(from) || FolderExists(to))) throw Failure(Err::PermissionDenied, at);
        if (error) throw FileFailure(error.value(), FileExists(from) ? to : from, at);
    }

    void DeleteFile(TextView path, Where at) override {
        if (::unlink(Native(path, at).c_str()) != 0) throw FileFailure(errno, path, at);
    }

    Text TemporaryFolder(Where at) override {
        std::error_code error;
        const auto folder = std::filesystem::temp_directory_path(error);
        if (error) throw Failure(Err::PathNotFound, at);
        return FromNativePath(folder.native());
    }
};

} // namespace

FileSystem& MachineFileSystem() {
    static PosixFileSystem files;
    return files;
}

} // namespace htdrdd
