/// Numbers and their texts, independent of the process's locale.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace htdrdd {

/// The number at the start of a text; 0 if there is none. "." is the decimal mark in every region. Blanks,
/// tabs and line feeds are skipped everywhere ("1 2" is 12). One sign is allowed. An exponent E or D counts
/// only if digits follow it. "&H" and "&O" begin hexadecimal and octal numbers: up to four hexadecimal digits
/// (16 bits) are signed 16-bit, up to eight (32 bits) signed 32-bit. Fails with 6 outside a double's range
/// and for more than 32 bits.
[[nodiscard]] double LeadingNumber(TextView text, Where at = Where::current());

/// The number of a text that consists only of an optional "-", up to 15 digits and at most one ".". In
/// regions with "." as decimal mark, all conversions read such a text alike. std::nullopt for any other text.
[[nodiscard]] std::optional<double> PlainNumber(TextView text) noexcept;

/// The whole text as a number by the rules of the current region. Allowed are outer blanks, a leading or
/// trailing sign, parentheses for a negative number, the currency sign, group marks before the decimal mark,
/// an exponent and the "&H" form. Any other text fails with 13, a number outside a double's range with 6.
[[nodiscard]] double RegionalNumber(TextView text, Where at = Where::current());

/// At most 15 significant digits, "." as decimal mark and no zero before it: .5, -.25, 10, 1E+15.
[[nodiscard]] Text InvariantText(double value);
/// The same with the region's decimal mark and a zero before it: 0.5 or 0,5.
[[nodiscard]] Text RegionalText(double value);
/// Decimal digits, with a leading "-" when negative.
[[nodiscard]] Text DecimalText(std::int64_t value);
/// A fixed number of places after the region's decimal mark, which is written even for 0 places. Rounds half
/// away from zero on the number's 15-digit decimal form, so 1.005 becomes 1.01. Negative places fail with 5,
/// infinity and NaN with 6.
[[nodiscard]] Text FixedText(double value, std::int32_t places, Where at = Where::current());
/// The number that FixedText shows, if arithmetic alone finds it; std::nullopt if the text is needed, as near
/// a tie.
[[nodiscard]] std::optional<double> FixedNumber(double value, std::int32_t places) noexcept;

/// Checks a result of arithmetic: infinity and NaN fail with 6.
[[nodiscard]] double InRange(double value, Where at = Where::current());
/// Division by 0 fails with 11, 0 by 0 with 6.
[[nodiscard]] double Quotient(double dividend, double divisor, Where at = Where::current());

/// Rounds to the nearest integer, ties to even. Fails with 6 for NaN and outside the range of Int.
template <class Int>
[[nodiscard]] Int Rounded(double value, Where at = Where::current()) {
    static_assert(sizeof(Int) <= 4); // wider bounds are not exact as doubles
    const double nearest = std::nearbyint(value);
    if (!(nearest >= static_cast<double>(std::numeric_limits<Int>::min()) &&
          nearest <= static_cast<double>(std::numeric_limits<Int>::max())))
        throw Failure(Err::Overflow, at);
    return static_cast<Int>(nearest);
}

} // namespace htdrdd
