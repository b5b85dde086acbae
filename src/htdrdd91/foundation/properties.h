/// Text properties that change the value they store. They read and write like plain ones: `q.Notes = text`.
#pragma once

#include "htdrdd91/base/text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace htdrdd {

/// A text as a template argument.
template <std::size_t N>
struct Literal {
    // NOLINTNEXTLINE(*-avoid-c-arrays, *-explicit-*): literals are arrays
    constexpr Literal(const char16_t (&text)[N]) { std::copy_n(text, N, units.begin()); }
    [[nodiscard]] constexpr TextView View() const { return {units.data(), N - 1}; }
    constexpr Literal() = default;
    std::array<char16_t, N> units{};
};

class StoredText {
public:
    operator const Text&() const noexcept { return value_; }
    operator TextView() const noexcept { return value_; }
    [[nodiscard]] bool empty() const noexcept { return value_.empty(); }
    friend bool operator==(const StoredText& a, TextView b) noexcept { return a.value_ == b; }

protected:
    Text value_;
};

namespace detail {
/// Assigns a text with its line ends replaced by blanks: one blank for each CR LF pair, and for each CR or LF
/// alone. A failure is reported under the location, and the old text stays.
void AssignOnOneLine(Text& property, TextView value, TextView sLocation) noexcept;
} // namespace detail

/// A text on one line: line ends become blanks on assignment. A failure is reported under the location, and
/// the old text stays.
template <Literal Location>
class OneLineText : public StoredText {
public:
    OneLineText& operator=(TextView value) noexcept {
        detail::AssignOnOneLine(value_, value, Location.View());
        return *this;
    }
};

/// A text that loses its outer blanks on assignment.
class TrimmedText : public StoredText {
public:
    TrimmedText& operator=(TextView value) {
        value_ = Trimmed(value);
        return *this;
    }
};

/// A text that is stored as assigned and loses its outer blanks when it is read. Copying reads the property,
/// so a copy is trimmed.
class TextTrimmedOnRead {
public:
    TextTrimmedOnRead() = default;
    TextTrimmedOnRead(const TextTrimmedOnRead&) = delete;
    TextTrimmedOnRead& operator=(const TextTrimmedOnRead& other) {
        if (this != &other) *this = TextView(other);
        return *this;
    }
    TextTrimmedOnRead& operator=(TextView value) {
        value_ = value;
        return *this;
    }
    ~TextTrimmedOnRead() = default;
    operator TextView() const noexcept { return Trimmed(value_); }
    [[nodiscard]] bool empty() const noexcept { return TextView(*this).empty(); }
    friend bool operator==(const TextTrimmedOnRead& a, TextView b) noexcept { return TextView(a) == b; }

private:
    Text value_;
};

} // namespace htdrdd
