/// Files: backups, temporary names, the encoding test.
#pragma once

#include "platform/text.h"
#include "platform/text_stream.h"

#include <cstdint>

namespace htdrdd::basPublic {

/// Moves a file aside to its name with ".old" behind it. A missing file gives an empty text. Where the backup
/// is there already, the result is the text "True" and both files stay. Otherwise the file is copied and,
/// with bDelete, deleted, each tried again up to iRetries times with 100 milliseconds between. This is meant:
/// the file is deleted whether or not the copy succeeded, and the result is the backup's name in any case.
Text FileBackup(TextView sFile, bool bDelete, std::int16_t iRetries) noexcept;

/// A path in a folder (empty: the temporary one) that is neither a file nor a folder. Nothing is made. An
/// empty prefix is "HTDRd", an empty extension a random one. Empty after a failure.
[[nodiscard]] Text GetUniqueFileName(TextView sPrefix, TextView sExtension, TextView sFolder) noexcept;

/// Whether a file's text starts with the byte order mark of UTF-16, little-endian. For an archive that opens
/// with the password, that is the text of its one member, of several the first with the extension of sFile,
/// and the archive itself where none has it. False for a missing file and after a failure, which is reported.
[[nodiscard]] bool IsUnicodeFile(TextView sFile, TextView sPassword) noexcept;

/// How to open the text of a file by what IsUnicodeFile says of it.
[[nodiscard]] inline Encoding EncodingOf(TextView sFile) noexcept {
    return IsUnicodeFile(sFile, {}) ? Encoding::Unicode : Encoding::CodePage;
}

} // namespace htdrdd::basPublic
