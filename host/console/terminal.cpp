#include "host/console/terminal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <sys/ioctl.h>
#include <unistd.h>

namespace htdrdd::host {
namespace {

constexpr std::size_t kNarrowest = 20;
constexpr std::size_t kWidest = 1000;

struct Range {
    char32_t first, last;
};
constexpr std::array kCombining{Range{0x300, 0x36F},   Range{0x1AB0, 0x1AFF}, Range{0x1DC0, 0x1DFF},
                                Range{0x20D0, 0x20FF}, Range{0xFE00, 0xFE0F}, Range{0xFE20, 0xFE2F}};
constexpr std::array kWide{Range{0x1100, 0x115F},  Range{0x2E80, 0xA4CF},   Range{0xAC00, 0xD7A3},
                           Range{0xF900, 0xFAFF},  Range{0xFE30, 0xFE6F},   Range{0xFF00, 0xFF60},
                           Range{0xFFE0, 0xFFE6},  Range{0x1F300, 0x1F64F}, Range{0x1F900, 0x1F9FF},
                           Range{0x20000, 0x3FFFD}};

template <std::size_t N>
bool IsIn(const std::array<Range, N>& ranges, char32_t c) {
    return std::any_of(ranges.begin(), ranges.end(),
                       [c](const Range& range) { return c >= range.first && c <= range.last; });
}

/// Removes and returns the first character of valid UTF-8.
char32_t TakeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t c = length == 1 ? lead : lead & (0x7FU >> length);
    for (const char byte : text.substr(1, length - 1))
        c = c << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    text.remove_prefix(std::min(length, text.size()));
    return c;
}

std::size_t WidthOf(char32_t c) {
    if (IsIn(kCombining, c)) return 0;
    return IsIn(kWide, c) ? 2 : 1;
}

std::size_t WidthFromEnvironment(std::size_t otherwise) {
    const char* const columns = std::getenv("COLUMNS");
    const std::string_view text(columns != nullptr ? columns : "");
    std::size_t width = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), width);
    return end.ec == std::errc() && width > 0 ? width : otherwise;
}

bool IsSet(const char* variable) {
    const char* const value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

Terminal Of(int descriptor) {
    const bool isTerminal = ::isatty(descriptor) == 1;
    winsize window{};
    const bool known = isTerminal && ::ioctl(descriptor, TIOCGWINSZ, &window) == 0 && window.ws_col > 0;
    const std::size_t width = known ? window.ws_col : WidthFromEnvironment(isTerminal ? 80 : 100);
    return {std::clamp(width, kNarrowest, kWidest), isTerminal && !IsSet("NO_COLOR")};
}

} // namespace

Terminal Terminal::OfOutput() { return Of(STDOUT_FILENO); }

Terminal Terminal::OfErrors() { return Of(STDERR_FILENO); }

std::string Terminal::Bold(std::string_view text) const {
    return colour ? std::string("\x1b[1m").append(text) + "\x1b[0m" : std::string(text);
}

std::string Terminal::Dim(std::string_view text) const {
    return colour ? std::string("\x1b[2m").append(text) + "\x1b[0m" : std::string(text);
}

std::size_t DisplayWidth(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) width += WidthOf(TakeCharacter(text));
    return width;
}

std::string Fitted(std::string_view text, std::size_t width) {
    std::size_t used = 0;
    std::size_t kept = 0; // bytes that leave room for the ellipsis
    for (std::string_view rest = text; !rest.empty();) {
        used += WidthOf(TakeCharacter(rest));
        if (used > width) {
            while (kept > 0 && text[kept - 1] == ' ') --kept;
            return width == 0 ? std::string() : std::string(text.substr(0, kept)) + "…";
        }
        if (used < width) kept = text.size() - rest.size();
    }
    return std::string(text);
}

} // namespace htdrdd::host
