/// The width and the colour of standard output and standard error.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace htdrdd::host {

struct Terminal {
    std::size_t width = 100;
    bool colour = false;

    /// The width is that of the terminal, else COLUMNS, else 80 on a terminal and 100 elsewhere. Colour is
    /// used only on a terminal, and not if NO_COLOR is set to anything.
    [[nodiscard]] static Terminal OfOutput();
    /// The same for standard error.
    [[nodiscard]] static Terminal OfErrors();

    [[nodiscard]] std::string Bold(std::string_view text) const;
    [[nodiscard]] std::string Dim(std::string_view text) const;
};

/// Columns of UTF-8 text: two for each East Asian wide character, none for a combining mark.
[[nodiscard]] std::size_t DisplayWidth(std::string_view text);
/// The text, or its beginning and "…" if it is wider.
[[nodiscard]] std::string Fitted(std::string_view text, std::size_t width);

} // namespace htdrdd::host
