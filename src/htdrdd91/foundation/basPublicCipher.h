/// Enciphered texts and the hexadecimal form of 16-bit text.
#pragma once

#include "htdrdd91/base/text.h"

namespace htdrdd::basPublic {

/// Enciphers the hexadecimal form of a text, padded with blanks to whole blocks. The result is in upper-case
/// hexadecimal; an empty text stays empty. Empty after a failure.
[[nodiscard]] Text Encrypt(TextView sText) noexcept;

/// Deciphers a text and removes trailing blanks. A text from Encrypt is then still in its hexadecimal form. A
/// text that isn't enciphered is a failure: reported, and the result is empty.
[[nodiscard]] Text Decrypt(TextView sText) noexcept;

/// Four upper-case digits per unit, the low byte first: "A" is 4100.
[[nodiscard]] Text UnicodeToHex(TextView sText) noexcept;

/// The inverse of UnicodeToHex. Fewer than 2 digits are an empty text; an incomplete unit at the end is
/// dropped. A pair that isn't hexadecimal is a failure: reported, and the result is empty.
[[nodiscard]] Text HexToUnicode(TextView sHex) noexcept;

} // namespace htdrdd::basPublic
