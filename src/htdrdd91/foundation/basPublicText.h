/// Small text and number routines.
#pragma once

#include "htdrdd91/base/text.h"
#include "htdrdd91/base/variant.h"

#include <cstdint>

namespace htdrdd::basPublic {

/// A number between the two bounds, each of which can occur. 0 after a failure.
[[nodiscard]] std::int32_t RandomNumber(std::int32_t lLower, std::int32_t lUpper) noexcept;

/// The text without one delimiter at its end, if it ends in one.
[[nodiscard]] Text RemoveTrailingDelimiter(TextView sText, TextView sDelimiter) noexcept;

/// Number of items of a delimited text; a trailing delimiter doesn't open a new one. An empty text has none.
[[nodiscard]] std::int32_t NumStringItems(TextView sText, TextView sDelimiter) noexcept;

/// A value as a number, which never fails and reports nothing. A text loses one trailing "%"; with a "." in
/// it the number at its start counts, otherwise it is read by the rules of the region and, if that fails, by
/// the number at its start. What is no number is 0.
[[nodiscard]] double ToDouble(const Variant& vValue) noexcept;
/// The same for a text at hand.
[[nodiscard]] double TextToDouble(TextView sValue) noexcept;

/// Whether the library's texts hold 16-bit characters. They always do.
[[nodiscard]] constexpr bool IsUnicodeBuild() noexcept { return sizeof(Text::value_type) > 1; }

} // namespace htdrdd::basPublic
