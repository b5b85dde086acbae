/// The terminal behind standard output, or what stands in its place.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace htdrdd::host {

struct Terminal {
    std::size_t width = 100;
    bool colour = false;

    /// A terminal's own width, else COLUMNS, else 80 on a terminal and 100 elsewhere. Colour only on a
    /// terminal, and not where NO_COLOR is set to anything.
    [[nodiscard]] static Terminal OfOutput();
    /// That of standard error.
    [[nodiscard]] static Terminal OfErrors();

    [[nodiscard]] std::string Bold(std::string_view text) const;
    [[nodiscard]] std::string Dim(std::string_view text) const;
};

/// Columns that UTF-8 text takes: two for each East Asian wide character, none for a combining mark.
[[nodiscard]] std::size_t DisplayWidth(std::string_view text);
/// The text, or its beginning and "…" where it takes more columns.
[[nodiscard]] std::string Fitted(std::string_view text, std::size_t width);

} // namespace htdrdd::host
