/// Small text and number routines.
#pragma once

#include "htdrdd91/base/text.h"
#include "htdrdd91/base/variant.h"

#include <cstdint>

namespace htdrdd::basPublic {

/// A random number between the two bounds, both included. 0 after a failure.
[[nodiscard]] std::int32_t RandomNumber(std::int32_t lLower, std::int32_t lUpper) noexcept;

/// The text without one trailing delimiter, if it has one.
[[nodiscard]] Text RemoveTrailingDelimiter(TextView sText, TextView sDelimiter) noexcept;

/// Number of items of a delimited text; a trailing delimiter doesn't start a new item. An empty text has
/// none.
[[nodiscard]] std::int32_t NumStringItems(TextView sText, TextView sDelimiter) noexcept;

/// A value as a number; never fails and reports nothing. A text loses one trailing "%". If it then contains a
/// ".", the number at its start counts. Otherwise it is read by the rules of the region and, if that fails,
/// by the number at its start. A value that isn't a number is 0.
[[nodiscard]] double ToDouble(const Variant& vValue) noexcept;
/// The same for a text.
[[nodiscard]] double TextToDouble(TextView sValue) noexcept;

/// Whether the library's texts hold 16-bit characters. They always do.
[[nodiscard]] constexpr bool IsUnicodeBuild() noexcept { return sizeof(Text::value_type) > 1; }

} // namespace htdrdd::basPublic
