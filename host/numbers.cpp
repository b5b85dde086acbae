#include "host/numbers.h"

#include "foundation/HTDValue.h"

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

bool HasValue(double number) { return number != static_cast<double>(HTDValueUndefined); }

} // namespace htdrdd::host
