#include "host/console/numbers.h"

#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/HTDValue.h"

#include <array>
#include <charconv>
#include <cmath>

namespace htdrdd::host {

std::string NumberText(double value) {
    const double size = std::abs(value);
    const bool plain = size == 0 || (size >= 1e-5 && size < 1e15);
    std::array<char, 40> digits{};
    char* const end = digits.data() + digits.size();
    const auto written = plain ? std::to_chars(digits.data(), end, value, std::chars_format::fixed)
                               : std::to_chars(digits.data(), end, value);
    return {digits.data(), written.ptr};
}

double Plain(double value) { return LeadingNumber(InvariantText(value)); }

std::optional<double> NumberOf(std::string_view text) {
    const char* const end = text.data() + text.size();
    double value = 0;
    const auto read = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    if (read.ec != std::errc() || read.ptr != end || !std::isfinite(value)) return {};
    return value;
}

std::optional<double> PercentOf(std::string_view text) {
    if (text.ends_with('%')) text.remove_suffix(1);
    return NumberOf(text);
}

bool HasValue(double number) { return number != static_cast<double>(HTDValueUndefined); }

} // namespace htdrdd::host
