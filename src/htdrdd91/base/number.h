/// Numbers and their texts. Nothing here asks the process's locale.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace htdrdd {

/// The number at the start of a text; 0 if there is none. "." is the decimal point in every region. Blanks,
/// tabs and line feeds are skipped wherever they stand ("1 2" is 12); one sign; an exponent E or D counts
/// only if digits follow it. "&H" and "&O" in front give hexadecimal and octal numbers: up to four
/// hexadecimal digits (16 bits) are signed 16-bit, up to eight (32 bits) signed 32-bit. Fails with 6 outside
/// a double's range and for more than 32 bits.
[[nodiscard]] double LeadingNumber(TextView text, Where at = Where::current());

/// The number of a text that is nothing but a sign "-", up to 15 digits and at most one ".": what every rule
/// reads the same wherever the decimal mark is a point. Nothing for any other text.
[[nodiscard]] std::optional<double> PlainNumber(TextView text) noexcept;

/// The whole text as a number by the rules of the current region: outer blanks, a sign before or behind,
/// parentheses for a negative number, the currency sign, group marks in front of the decimal mark, exponent
/// and "&H" form. Anything else fails with 13, a number outside a double's range with 6.
[[nodiscard]] double RegionalNumber(TextView text, Where at = Where::current());

/// At most 15 significant digits, "." as decimal mark and no zero in front of it: .5, -.25, 10, 1E+15.
[[nodiscard]] Text InvariantText(double value);
/// The same with the region's decimal mark and the zero: 0.5 or 0,5.
[[nodiscard]] Text RegionalText(double value);
/// Decimal digits, with a leading "-" when negative.
[[nodiscard]] Text DecimalText(std::int64_t value);
/// A fixed number of places behind the region's decimal mark, which stands there even for 0 places. Rounds
/// half away from zero on the number's 15-digit decimal form, so that 1.005 gives 1.01. Negative places fail
/// with 5, infinity and NaN with 6.
[[nodiscard]] Text FixedText(double value, std::int32_t places, Where at = Where::current());
/// The number that such a text shows, where arithmetic alone finds it; nothing where the text is needed, as
/// near a tie.
[[nodiscard]] std::optional<double> FixedNumber(double value, std::int32_t places) noexcept;

/// A result of arithmetic that has to be a number: infinity and NaN fail with 6.
[[nodiscard]] double InRange(double value, Where at = Where::current());
/// Division by 0 fails with 11, that of 0 by 0 with 6.
[[nodiscard]] double Quotient(double dividend, double divisor, Where at = Where::current());

/// A double as an integer: nearest, ties to the even one. Outside the range of the target, or NaN: failure 6.
template <class Int>
[[nodiscard]] Int Rounded(double value, Where at = Where::current()) {
    static_assert(sizeof(Int) <= 4); // wider bounds are no doubles
    const double nearest = std::nearbyint(value);
    if (!(nearest >= static_cast<double>(std::numeric_limits<Int>::min()) &&
          nearest <= static_cast<double>(std::numeric_limits<Int>::max())))
        throw Failure(Err::Overflow, at);
    return static_cast<Int>(nearest);
}

} // namespace htdrdd
