/// Text tables that fit the terminal.
#pragma once

#include "host/console/terminal.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace htdrdd::host {

class Table {
public:
    enum class Align { Left, Right };
    struct Column {
        std::string heading;
        Align align = Align::Left;
    };

    explicit Table(std::vector<Column> columns) : columns_(std::move(columns)) {}
    /// One cell for each column, in UTF-8 that is safe for a terminal.
    void Add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }
    [[nodiscard]] bool Empty() const noexcept { return rows_.empty(); }

    /// The lines of the table, with a heading. Columns that are empty throughout are left out. If the rest is
    /// too wide, columns are cut so that few cells are shortened, wide columns sooner than narrow ones.
    [[nodiscard]] std::string Drawn(const Terminal& terminal) const;

private:
    [[nodiscard]] std::vector<std::size_t> Widths(std::size_t width) const;

    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> rows_;
};

/// Labels of up to 12 characters, and their values.
using Facts = std::vector<std::pair<const char*, std::string>>;
/// A line for each fact that isn't empty; longer lines are broken between words.
[[nodiscard]] std::string FactLines(const Facts& facts, const Terminal& terminal);

/// Breaks a text between words to fit a width; the lines after the first are indented.
[[nodiscard]] std::string Wrapped(std::string_view text, std::size_t width, std::size_t indent);

} // namespace htdrdd::host
