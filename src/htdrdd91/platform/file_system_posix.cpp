#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/file_system.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <stdlib.h>
#include <sys/sendfile.h>
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

/// Converts the system's error number for a path to a failure.
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

constexpr mode_t kOfNewFile = 0666; // reduced by the user's umask
constexpr mode_t kOfOwnersFolder = 0700;

class Descriptor {
public:
    Descriptor(TextView path, int flags, Where at, mode_t mode = kOfNewFile) {
        // O_NONBLOCK: opening a pipe must not block.
        fd_ = ::open(Native(path, at).c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, mode);
        if (fd_ < 0) throw FileFailure(errno, path, at);
    }
    /// Adopts an open descriptor; -1 means that the call that opened it has just failed.
    Descriptor(int fd, TextView path, Where at) : fd_(fd) {
        if (fd_ < 0) throw FileFailure(errno, path, at);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (fd_ >= 0) ::close(fd_);
    }
    [[nodiscard]] int Get() const noexcept { return fd_; }
    /// Closes the file. Returns the system's error number, 0 if there is none.
    int Close() noexcept { return ::close(std::exchange(fd_, -1)) == 0 ? 0 : errno; }

private:
    int fd_ = -1;
};

/// A regular file opened for reading; any other file fails with 70.
class Source {
public:
    Source(TextView path, Where at) : file_(path, O_RDONLY, at), path_(path) {
        if (::fstat(file_.Get(), &status_) != 0) throw FileFailure(errno, path, at);
        if (!S_ISREG(status_.st_mode)) throw Failure(Err::PermissionDenied, at);
    }
    [[nodiscard]] int Get() const noexcept { return file_.Get(); }
    [[nodiscard]] std::size_t Size() const noexcept { return static_cast<std::size_t>(status_.st_size); }

    /// Reads up to `limit` bytes from the given place on.
    [[nodiscard]] Bytes Read(std::size_t place, std::size_t limit, Where at) const {
        // One byte more than the file has, to detect its end; the size may be outdated or unknown.
        Bytes bytes(std::min(limit, Size() - std::min(place, Size()) + 1));
        std::size_t filled = 0;
        while (filled < limit) {
            if (filled == bytes.View().size()) bytes.Grow(std::min(limit, 2 * filled + kLeastRoom));
            const ssize_t got = ::pread(file_.Get(), bytes.Data() + filled, bytes.View().size() - filled,
                                        static_cast<off_t>(place + filled));
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) throw FileFailure(errno, path_, at);
            if (got == 0) break;
            filled += static_cast<std::size_t>(got);
        }
        bytes.Shorten(filled);
        return bytes;
    }

private:
    Descriptor file_;
    TextView path_;
    struct stat status_ {};
};

void WriteAll(const Descriptor& file, std::string_view bytes, TextView path, Where at) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file.Get(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) throw FileFailure(errno, path, at);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

class PosixWriter final : public FileWriter {
public:
    PosixWriter(TextView path, int flags, mode_t mode, Where at)
        : path_(path), file_(path, O_WRONLY | O_CREAT | flags, at, mode) {}
    void Write(std::string_view bytes, Where at) override { WriteAll(file_, bytes, path_, at); }
    void Close(Where at) override {
        if (const int error = file_.Close()) throw FileFailure(error, path_, at);
    }

private:
    Text path_;
    Descriptor file_;
};

/// A copy in progress. A copy that replaces a file is written beside that file, with its permissions, and
/// takes its place when complete. An unfinished copy is deleted.
class Copy {
public:
    Copy(const Source& source, TextView to, std::optional<FileMode> mode, Where at)
        : source_(source), path_(to), target_(Native(to, at)), draft_(target_) {
        struct stat old {};
        replaces_ = ::stat(target_.c_str(), &old) == 0 && S_ISREG(old.st_mode);
        if (replaces_) {
            draft_ += ".XXXXXX";
            mode = old.st_mode & ALLPERMS;
        }
        file_.emplace(replaces_ ? ::mkostemp(draft_.data(), O_CLOEXEC)
                                : ::open(draft_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                                         mode ? kOwnerOnly : kOfNewFile),
                      path_, at);
        if (mode) ::fchmod(file_->Get(), *mode); // as far as possible on this file system
    }
    Copy(const Copy&) = delete;
    Copy& operator=(const Copy&) = delete;
    ~Copy() {
        if (file_ && !finished_) ::unlink(draft_.c_str());
    }

    void Fill(Where at) const {
        constexpr std::size_t kPiece = std::size_t{1} << 30U;
        ssize_t sent = 0;
        do { // the kernel copies
            sent = ::sendfile(file_->Get(), source_.Get(), nullptr, kPiece);
        } while (sent > 0 || (sent < 0 && errno == EINTR));
        if (sent == 0) return;
        if (errno != EINVAL && errno != ENOSYS) throw FileFailure(errno, path_, at);
        WriteAll(*file_, source_.Read(0, std::numeric_limits<std::size_t>::max(), at).View(), path_, at);
    }

    void Finish(Where at) {
        if (const int error = file_->Close()) throw FileFailure(error, path_, at);
        if (replaces_ && ::rename(draft_.c_str(), target_.c_str()) != 0) throw FileFailure(errno, path_, at);
        finished_ = true;
    }

private:
    const Source& source_;
    TextView path_;
    std::string target_;
    std::string draft_;
    bool replaces_ = false;
    std::optional<Descriptor> file_;
    bool finished_ = false;
};

class PosixFileSystem final : public FileSystem {
public:
    bool FileExists(TextView path) override { return IsOfType(path, S_IFREG); }
    bool FolderExists(TextView path) override { return IsOfType(path, S_IFDIR); }

    Bytes Read(TextView path, std::size_t limit, Where at) override {
        return Source(path, at).Read(0, limit, at);
    }

    Bytes ReadEnd(TextView path, std::size_t limit, Where at) override {
        const Source source(path, at);
        return source.Read(source.Size() - std::min(limit, source.Size()), limit, at);
    }

    std::unique_ptr<FileWriter> Create(TextView path, Where at) override {
        return std::make_unique<PosixWriter>(path, O_EXCL, kOwnerOnly, at);
    }

    std::unique_ptr<FileWriter> OpenForAppending(TextView path, Where at) override {
        return std::make_unique<PosixWriter>(path, O_APPEND, kOfNewFile, at);
    }

    void CopyFile(TextView from, TextView to, std::optional<FileMode> mode, Where at) override {
        const Source source(from, at);
        if (FolderExists(to)) throw Failure(Err::PermissionDenied, at);
        Copy copy(source, to, mode, at);
        copy.Fill(at);
        copy.Finish(at);
    }

    void DeleteFile(TextView path, Where at) override {
        if (::unlink(Native(path, at).c_str()) != 0) throw FileFailure(errno, path, at);
    }

    std::optional<FileMode> ModeOf(TextView path) override {
        struct stat status {};
        if (!FileExists(path) || ::stat(Native(path, {}).c_str(), &status) != 0) return {};
        return status.st_mode & ALLPERMS;
    }

    void SetMode(TextView path, FileMode mode, Where at) override {
        if (::chmod(Native(path, at).c_str(), mode) != 0) throw FileFailure(errno, path, at);
    }

    Text Resolved(TextView path) override {
        std::error_code error;
        const std::string native = Native(path, {});
        if (!std::filesystem::is_symlink(native, error)) return Text(path);
        const auto file = std::filesystem::canonical(native, error);
        return error ? Text(path) : FromNativePath(file.native());
    }

    void CreateFolder(TextView path, Where at) override {
        if (::mkdir(Native(path, at).c_str(), kOfOwnersFolder) != 0) throw FileFailure(errno, path, at);
    }

    void DeleteFolder(TextView path, Where at) override {
        if (!FolderExists(path)) throw Failure(Err::PathNotFound, at);
        std::error_code error;
        std::filesystem::remove_all(Native(path, at), error);
        if (error) throw FileFailure(error.value(), path, at);
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
