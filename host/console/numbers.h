/// Numbers in a form for people.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace htdrdd::host {

/// With "." as decimal mark and no more digits than the number needs.
[[nodiscard]] std::string NumberText(double value);
/// Rounded to the 15 digits that the system uses: 28 for 28.000000000000004.
[[nodiscard]] double Plain(double value);

/// The number of a text that contains nothing else; "." is the decimal mark, exponents and blanks aren't
/// allowed.
[[nodiscard]] std::optional<double> NumberOf(std::string_view text);
/// The same, with or without a "%" at the end.
[[nodiscard]] std::optional<double> PercentOf(std::string_view text);

/// Whether a number isn't HTDValueUndefined.
[[nodiscard]] bool HasValue(double number);

} // namespace htdrdd::host
