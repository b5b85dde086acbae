/// Zip archives, held as a whole in memory.
#pragma once

#include "htdrdd91/base/text.h"
#include "htdrdd91/platform/file_system.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace htdrdd {

/// Whether the last bytes of a file contain an archive's end record. A file without one is not an archive.
[[nodiscard]] bool EndsLikeZip(FileSystem& files, TextView path, Where at = Where::current());

/// Reads an archive. The constructor reads the file, which may be replaced afterwards. Supports every
/// compression and encryption method that the zip library knows.
class ZipReader {
public:
    /// Fails as reading a file does. If the file is damaged or is not an archive, IsOpen returns false.
    ZipReader(FileSystem& files, TextView path, TextView password, Where at = Where::current());
    ZipReader(const ZipReader&) = delete;
    ZipReader& operator=(const ZipReader&) = delete;
    ~ZipReader();

    [[nodiscard]] bool IsOpen() const noexcept;
    [[nodiscard]] std::int32_t Count() const noexcept;
    /// The last part of the name of a member, counted from 0: the part after "/", "\" and ":". Empty if that
    /// is not a file name, as for folders.
    [[nodiscard]] Text FileName(std::int32_t member) const;
    /// Passes on a member's content, piece by piece. Returns false if the password is wrong, the member is
    /// damaged, its method is unknown, or this archive has passed on more than 1 GiB in total. The pieces
    /// before that are then meaningless.
    [[nodiscard]] bool Read(std::int32_t member, const std::function<void(std::string_view)>& piece);

private:
    struct Archive;
    Bytes bytes_;
    std::unique_ptr<Archive> archive_;
};

/// Writes an archive, deflated. With a password it uses the traditional encryption, which every program
/// reads.
class ZipWriter {
public:
    explicit ZipWriter(TextView password);
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;
    ~ZipWriter();

    /// Returns false if the zip library refuses the member, such as a second member of the same name.
    [[nodiscard]] bool Add(TextView name, Bytes content);
    /// The archive's bytes; std::nullopt if the zip library can't create it.
    [[nodiscard]] std::optional<Bytes> Finish();

private:
    struct Archive;
    std::unique_ptr<Archive> archive_;
};

} // namespace htdrdd
