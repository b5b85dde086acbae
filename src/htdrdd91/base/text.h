/// 16-bit text: a counted sequence of 16-bit units. NUL is an ordinary unit, unpaired surrogates are kept,
/// and lengths, cuts and positions count units.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace htdrdd {

using Text = std::u16string;
using TextView = std::u16string_view;

/// How texts compare: unit by unit, or with simple case folding of each unit. Folding keeps lengths and
/// ignores the language: ß and SS differ.
enum class Compare : std::int32_t { Exact = 0, IgnoreCase = 1 };

namespace detail { // defined in platform/case_mapping.cpp
char16_t UpperBeyondAscii(char16_t unit) noexcept;
char16_t FoldBeyondAscii(char16_t unit) noexcept;
} // namespace detail

/// Upper case of one unit by the simple mapping; a unit without a mapping stays.
[[nodiscard]] inline char16_t UpperUnit(char16_t unit) noexcept {
    if (unit < 0x80) return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 0x20) : unit;
    return detail::UpperBeyondAscii(unit);
}
/// One unit, folded for comparison without regard to case.
[[nodiscard]] inline char16_t FoldUnit(char16_t unit) noexcept {
    if (unit < 0x80) return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
    return detail::FoldBeyondAscii(unit);
}

[[nodiscard]] Text UpperCased(TextView text);
[[nodiscard]] Text Folded(TextView text);

[[nodiscard]] bool SameText(TextView a, TextView b, Compare mode = Compare::IgnoreCase) noexcept;
/// Whether the upper-case forms of two texts are equal.
[[nodiscard]] bool SameInUpperCase(TextView a, TextView b) noexcept;

/// Trimming removes the space U+0020 only: no tab, no carriage return, no U+00A0.
[[nodiscard]] TextView TrimmedStart(TextView text) noexcept;
[[nodiscard]] TextView TrimmedEnd(TextView text) noexcept;
[[nodiscard]] TextView Trimmed(TextView text) noexcept;

/// Replaces every occurrence of `what`, compared exactly. An empty `what` changes nothing.
[[nodiscard]] Text Replaced(TextView text, TextView what, TextView with);

/// Splits a text at delimiters, one piece at a time. An empty text has no pieces; with an empty delimiter the
/// whole text is one piece.
class Pieces {
public:
    Pieces(TextView text, TextView delimiter) : rest_(text), delimiter_(delimiter), any_(!text.empty()) {}
    /// The next piece, or std::nullopt at the end.
    [[nodiscard]] std::optional<TextView> Next() noexcept {
        if (!any_) return {};
        const std::size_t end = delimiter_.empty() ? TextView::npos : rest_.find(delimiter_);
        const TextView piece = rest_.substr(0, end);
        any_ = end != TextView::npos;
        if (any_) rest_.remove_prefix(end + delimiter_.size());
        return piece;
    }

private:
    TextView rest_;
    TextView delimiter_;
    bool any_;
};

/// Calls `piece(TextView)` for each piece, in order.
template <class Piece>
void EachPiece(TextView text, TextView delimiter, Piece piece) {
    Pieces pieces(text, delimiter);
    while (const auto next = pieces.Next()) piece(*next);
}

[[nodiscard]] std::size_t NumPieces(TextView text, TextView delimiter) noexcept;

} // namespace htdrdd
