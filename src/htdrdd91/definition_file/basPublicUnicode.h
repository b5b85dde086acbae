/// The encoding of text files.
#pragma once

#include "htdrdd91/base/text.h"
#include "htdrdd91/platform/text_stream.h"

namespace htdrdd::basPublic {

/// Whether a file's text starts with the byte order mark of UTF-16, little-endian. For an archive that opens
/// with the password, that is the text of its one member, of several the first with the extension of sFile,
/// and the archive itself where none has it. False for a missing file and after a failure, which is reported.
[[nodiscard]] bool IsUnicodeFile(TextView sFile, TextView sPassword) noexcept;

/// How to open the text of a file by what IsUnicodeFile says of it.
[[nodiscard]] inline Encoding EncodingOf(TextView sFile) noexcept {
    return IsUnicodeFile(sFile, {}) ? Encoding::Unicode : Encoding::CodePage;
}

} // namespace htdrdd::basPublic
