/// 16-bit text: a counted run of 16-bit units. NUL is an ordinary unit, unpaired surrogates are kept, and
/// lengths, cuts and positions count units.
#pragma once

#include "platform/array.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace htdrdd {

using Text = std::u16string;
using TextView = std::u16string_view;

/// How texts are compared: unit by unit, or with simple case folding of each unit. Folding keeps lengths and
/// knows no language: ß and SS differ.
enum class Compare : std::int32_t { Exact = 0, IgnoreCase = 1 };

namespace detail {
char16_t UpperBeyondAscii(char16_t unit) noexcept;
char16_t FoldBeyondAscii(char16_t unit) noexcept;
} // namespace detail

/// Upper case of one unit by the simple mapping; a unit without one stays.
[[nodiscard]] inline char16_t UpperUnit(char16_t unit) noexcept {
    if (unit < 0x80) return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 0x20) : unit;
    return detail::UpperBeyondAscii(unit);
}
/// One unit as comparisons without regard to case see it.
[[nodiscard]] inline char16_t FoldUnit(char16_t unit) noexcept {
    if (unit < 0x80) return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
    return detail::FoldBeyondAscii(unit);
}

[[nodiscard]] Text UpperCased(TextView text);
[[nodiscard]] Text Folded(TextView text);

[[nodiscard]] bool SameText(TextView a, TextView b, Compare mode = Compare::IgnoreCase) noexcept;
/// Whether two texts are the same when both are put into upper case.
[[nodiscard]] bool SameInUpperCase(TextView a, TextView b) noexcept;

/// Trimming removes the space U+0020 only: no tab, no carriage return, no U+00A0.
[[nodiscard]] TextView TrimmedStart(TextView text) noexcept;
[[nodiscard]] TextView TrimmedEnd(TextView text) noexcept;
[[nodiscard]] TextView Trimmed(TextView text) noexcept;

/// Every occurrence of `what`, by exact comparison, replaced. An empty `what` changes nothing.
[[nodiscard]] Text Replaced(TextView text, TextView what, TextView with);

/// The pieces between delimiters, one at a time. An empty text has no pieces, and an empty delimiter makes
/// one piece of the whole text.
class Pieces {
public:
    Pieces(TextView text, TextView delimiter) : rest_(text), delimiter_(delimiter), any_(!text.empty()) {}
    /// The next piece, or nothing at the end.
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

/// Calls `piece(TextView)` for each of the pieces, in order.
template <class Piece>
void EachPiece(TextView text, TextView delimiter, Piece piece) {
    Pieces pieces(text, delimiter);
    while (const auto next = pieces.Next()) piece(*next);
}

[[nodiscard]] std::size_t NumPieces(TextView text, TextView delimiter) noexcept;

/// The pieces as an array from 0. That of an empty text has no elements, but its bounds can be asked.
[[nodiscard]] Array<Text> Split(TextView text, TextView delimiter);
/// The elements in order with the delimiter between them. An array without storage gives an empty text.
[[nodiscard]] Text Join(const Array<Text>& pieces, TextView delimiter);

/// UTF-8 for people: an unpaired surrogate becomes U+FFFD, and so does each byte that isn't UTF-8.
[[nodiscard]] std::string ToUtf8(TextView text);
[[nodiscard]] Text FromUtf8(std::string_view bytes);

/// A file name of the operating system and back, without loss: bytes that aren't UTF-8 travel as U+DC80 to
/// U+DCFF.
[[nodiscard]] std::string ToNativePath(TextView text);
[[nodiscard]] Text FromNativePath(std::string_view bytes);

/// Bytes in a character set of the operating system, by its name. An unknown set counts as UTF-8.
[[nodiscard]] Text FromCharacterSet(std::string_view bytes, const char* name);

/// UTF-16 as it stands in files, less the byte order mark. Half a unit at the end is left out.
[[nodiscard]] std::string ToUtf16(TextView text);
[[nodiscard]] Text FromUtf16(std::string_view bytes, std::endian order = std::endian::little);

/// The byte order marks of files.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
inline constexpr std::string_view kUtf16Mark = "\xFF\xFE"; ///< little-endian, as all files of the system are

/// The single-byte code page, Windows-1252: each byte has a character, and a character without a byte
/// becomes "?".
[[nodiscard]] Text FromCodePage(std::string_view bytes);
[[nodiscard]] std::string ToCodePage(TextView text);

} // namespace htdrdd
