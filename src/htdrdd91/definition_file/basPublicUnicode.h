/// The encoding of text files.
#pragma once

#include "htdrdd91/base/text.h"
#include "htdrdd91/platform/text_stream.h"

namespace htdrdd::basPublic {

/// Whether a file's text starts with the byte order mark of little-endian UTF-16. If the file is an archive
/// that opens with the password, its text is its only member, or the first of several members with the
/// extension of sFile, or the archive itself if none has it. False for a missing file and after a failure,
/// which is reported.
[[nodiscard]] bool IsUnicodeFile(TextView sFile, TextView sPassword) noexcept;

/// The encoding of a file's text, according to IsUnicodeFile.
[[nodiscard]] inline Encoding EncodingOf(TextView sFile) noexcept {
    return IsUnicodeFile(sFile, {}) ? Encoding::Unicode : Encoding::CodePage;
}

} // namespace htdrdd::basPublic
