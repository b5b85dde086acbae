/// Zip archives, as a whole in memory.
#pragma once

#include "htdrdd91/base/text.h"
#include "htdrdd91/platform/file_system.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace htdrdd {

/// Whether there is an archive's end record where it would be: a file without one is no archive.
[[nodiscard]] bool EndsLikeZip(FileSystem& files, TextView path, Where at = Where::current());

/// An archive to read. The file is read when it is opened, and may be replaced from then on. Every method
/// that the zip library knows is read, and every encryption.
class ZipReader {
public:
    /// Fails as reading a file does. A file that is no archive, or one that is damaged, isn't open then.
    ZipReader(FileSystem& files, TextView path, TextView password, Where at = Where::current());
    ZipReader(const ZipReader&) = delete;
    ZipReader& operator=(const ZipReader&) = delete;
    ~ZipReader();

    [[nodiscard]] bool IsOpen() const noexcept;
    [[nodiscard]] std::int32_t Count() const noexcept;
    /// The last part of the name of a member, counted from 0: what stands behind "/", "\" and ":". Empty
    /// where that is no name for a file, as for folders.
    [[nodiscard]] Text FileName(std::int32_t member) const;
    /// Hands out a member's content, piece by piece. False where it can't be read: with a wrong password, or
    /// damaged, by an unknown method, or where it takes what was handed out of this archive past 1 GiB.
    /// Pieces handed out before mean nothing then.
    [[nodiscard]] bool Read(std::int32_t member, const std::function<void(std::string_view)>& piece);

private:
    struct Archive;
    Bytes bytes_;
    std::unique_ptr<Archive> archive_;
};

/// An archive to write, deflated, and with a password in the traditional encryption, which every program
/// reads.
class ZipWriter {
public:
    explicit ZipWriter(TextView password);
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;
    ~ZipWriter();

    /// False where the zip library refuses it, such as a second member of a name.
    [[nodiscard]] bool Add(TextView name, Bytes content);
    /// The archive's bytes; none where the zip library can't make it.
    [[nodiscard]] std::optional<Bytes> Finish();

private:
    struct Archive;
    std::unique_ptr<Archive> archive_;
};

} // namespace htdrdd
