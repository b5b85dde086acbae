/// Texts as bytes: UTF-8, UTF-16, file names and the single-byte code page.
#pragma once

#include "htdrdd91/base/text.h"

#include <bit>
#include <string>
#include <string_view>

namespace htdrdd {

/// UTF-8. An unpaired surrogate becomes U+FFFD, and so does each byte that isn't UTF-8.
[[nodiscard]] std::string ToUtf8(TextView text);
[[nodiscard]] Text FromUtf8(std::string_view bytes);

/// A file name of the operating system, converted without loss in both directions: U+DC80 to U+DCFF stand for
/// bytes that aren't UTF-8.
[[nodiscard]] std::string ToNativePath(TextView text);
[[nodiscard]] Text FromNativePath(std::string_view bytes);

/// Decodes bytes in a character set of the operating system. An unknown set name counts as UTF-8.
[[nodiscard]] Text FromCharacterSet(std::string_view bytes, const char* name);

/// UTF-16 as in files, without the byte order mark. Half a unit at the end is dropped.
[[nodiscard]] std::string ToUtf16(TextView text);
[[nodiscard]] Text FromUtf16(std::string_view bytes, std::endian order = std::endian::little);

/// The byte order marks of files.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
inline constexpr std::string_view kUtf16Mark = "\xFF\xFE"; ///< little-endian, as in all files of the system

/// The single-byte code page, Windows-1252: each byte has a character, and a character without a byte
/// becomes "?".
[[nodiscard]] Text FromCodePage(std::string_view bytes);
[[nodiscard]] std::string ToCodePage(TextView text);

} // namespace htdrdd
