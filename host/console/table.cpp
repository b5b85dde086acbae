#include "host/console/table.h"

#include <algorithm>

namespace htdrdd::host {
namespace {

constexpr std::string_view kGap = "  ";
constexpr std::size_t kLeast = 6; ///< no column is cut below this

std::string Padded(std::string_view cell, std::size_t width, Table::Align align) {
    std::string text = Fitted(cell, width);
    text.insert(align == Table::Align::Right ? 0 : text.size(), width - DisplayWidth(text), ' ');
    return text;
}

} // namespace

/// The width of each column; 0 for a column that is left out.
std::vector<std::size_t> Table::Widths(std::size_t width) const {
    std::vector<std::size_t> widths(columns_.size(), 0);
    std::vector<std::vector<std::size_t>> spoilt(columns_.size()); // number of cells cut, by width
    std::size_t total = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        spoilt[i].resize(width + 1);
        const auto count = [&](const std::string& cell) {
            const std::size_t own = std::min(DisplayWidth(cell), width);
            widths[i] = std::max(widths[i], own);
            if (own > 0) ++spoilt[i][own - 1];
        };
        for (const auto& row : rows_) count(row[i]);
        if (widths[i] == 0) continue;
        count(columns_[i].heading);
        for (std::size_t w = width; w > 0; --w) spoilt[i][w - 1] += spoilt[i][w];
        total += widths[i] + (total == 0 ? 0 : kGap.size());
    }
    for (; total > width; --total) {
        std::size_t cut = widths.size();
        double least = 0;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if (widths[i] <= kLeast) continue;
            const auto own = static_cast<double>(widths[i]);
            const double cost = static_cast<double>(spoilt[i][widths[i] - 1]) / (own * own);
            if (cut == widths.size() || cost < least) {
                cut = i;
                least = cost;
            }
        }
        if (cut == widths.size()) break;
        --widths[cut];
    }
    return widths;
}

std::string Table::Drawn(const Terminal& terminal) const {
    const auto widths = Widths(terminal.width);
    const auto line = [&](const auto& cellOf) {
        std::string text;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (widths[i] == 0) continue;
            if (!text.empty()) text += kGap;
            text += Padded(cellOf(i), widths[i], columns_[i].align);
        }
        text.erase(text.find_last_not_of(' ') + 1);
        return text;
    };
    std::string drawn =
        terminal.Dim(line([&](std::size_t i) { return std::string_view(columns_[i].heading); }));
    drawn += '\n';
    for (const auto& row : rows_)
        drawn += line([&](std::size_t i) { return std::string_view(row[i]); }) + '\n';
    return drawn;
}

std::string FactLines(const Facts& facts, const Terminal& terminal) {
    constexpr std::size_t kLabel = 13;
    std::string lines;
    for (const auto& [label, value] : facts) {
        if (value.empty()) continue;
        std::string padded = label;
        padded.resize(kLabel, ' ');
        const std::size_t width = terminal.width > 2 * kLabel ? terminal.width - kLabel : kLabel;
        lines += terminal.Dim(padded) + Wrapped(value, width, kLabel) + '\n';
    }
    return lines;
}

std::string Wrapped(std::string_view text, std::size_t width, std::size_t indent) {
    std::string wrapped;
    std::size_t used = 0;
    while (!text.empty()) {
        const std::size_t start = text.find_first_not_of(' ');
        if (start == std::string_view::npos) break;
        text.remove_prefix(start);
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(word.size());
        const std::string fitted = Fitted(word, width);
        const std::size_t length = DisplayWidth(fitted);
        if (used > 0 && used + 1 + length > width) {
            wrapped.append(1, '\n').append(indent, ' ');
            used = 0;
        } else if (used > 0) {
            wrapped += ' ';
            ++used;
        }
        wrapped += fitted;
        used += length;
    }
    return wrapped;
}

} // namespace htdrdd::host
