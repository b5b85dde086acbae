/// Numbers as people read them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace htdrdd::host {

/// With a point as decimal mark, and the digits that the number needs.
[[nodiscard]] std::string NumberText(double value);
/// With no more than the 15 digits that the system counts on: 28 for 28.000000000000004.
[[nodiscard]] double Plain(double value);

/// The number of a text that is nothing else: "." as decimal mark, no exponent, no blanks.
[[nodiscard]] std::optional<double> NumberOf(std::string_view text);
/// The same, with or without a "%" behind it.
[[nodiscard]] std::optional<double> PercentOf(std::string_view text);

/// Whether a number has a value at all.
[[nodiscard]] bool HasValue(double number);

} // namespace htdrdd::host
