/// Tables of the members of records, as files hold them: each row has a key, a function that reads the value,
/// and a function that writes it. The form of a value follows from the member's type.
#pragma once

#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/clsHTDRDDStrings.h"
#include "htdrdd91/foundation/properties.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace htdrdd {

/// Reads a value into a member. A text is taken unchanged; a boolean is true for any number except 0; an
/// integer is the number at the start of the text, rounded, and fails with 6 outside its range; a list gets
/// the pieces between tabs after its present items.
inline void ReadValue(TextView value, Text& member, Where /*at*/) { member = value; }
inline void ReadValue(TextView value, TrimmedText& member, Where /*at*/) { member = value; }
inline void ReadValue(TextView value, TextTrimmedOnRead& member, Where /*at*/) { member = value; }
template <Literal Location>
void ReadValue(TextView value, OneLineText<Location>& member, Where /*at*/) {
    member = value;
}
inline void ReadValue(TextView value, bool& member, Where at) { member = LeadingNumber(value, at) != 0; }
inline void ReadValue(TextView value, double& member, Where at) { member = LeadingNumber(value, at); }
template <class Int>
requires(std::is_integral_v<Int> && !std::is_same_v<Int, bool>) void ReadValue(TextView value, Int& member,
                                                                               Where at) {
    member = Rounded<Int>(LeadingNumber(value, at), at);
}
template <class Enum>
requires std::is_enum_v<Enum>
void ReadValue(TextView value, Enum& member, Where at) {
    member = static_cast<Enum>(Rounded<std::underlying_type_t<Enum>>(LeadingNumber(value, at), at));
}
/// Reads an enumeration that files hold as a narrower integer than the member.
template <class Int, class Enum>
void ReadValueAs(TextView value, Enum& member, Where at) {
    Int number = 0;
    ReadValue(value, number, at);
    member = static_cast<Enum>(number);
}
inline void ReadValue(TextView value, const Ref<clsHTDRDDStrings>& member, Where /*at*/) {
    member->AddDelimitedString(value, u"\t");
}

/// Writes a member in the form in which it is read: a text unchanged, a boolean as -1 or 0, a number in its
/// invariant text, a list with tabs between its items.
inline void AppendValue(Text& line, TextView member) { line += member; }
inline void AppendValue(Text& line, bool member) { line += member ? u"-1" : u"0"; }
inline void AppendValue(Text& line, double member) { line += InvariantText(member); }
template <class Int>
requires(std::is_integral_v<Int> && !std::is_same_v<Int, bool>) void AppendValue(Text& line, Int member) {
    line += DecimalText(member);
}
template <class Enum>
requires std::is_enum_v<Enum>
void AppendValue(Text& line, Enum member) { line += DecimalText(static_cast<std::int64_t>(member)); }
inline void AppendValue(Text& line, const Ref<clsHTDRDDStrings>& member) {
    bool first = true;
    for (const Text& item : *member) {
        if (!std::exchange(first, false)) line += u'\t';
        line += item;
    }
}

/// One member: `put` reads its value into a target, `append` writes it from a source.
template <class Target, class Source = Target>
struct MemberRow {
    TextView key;
    void (*put)(Target& target, TextView value, Where at);
    void (*append)(Text& line, const Source& source, Where at);
    bool (*isWritten)(const Source& source) = nullptr; ///< null: always
};

/// The row of a plain member.
template <class Target, auto Field>
constexpr MemberRow<Target> PlainRow(TextView key) {
    return {key, [](Target& target, TextView value, Where at) { ReadValue(value, target.*Field, at); },
            [](Text& line, const Target& source, Where /*at*/) { AppendValue(line, source.*Field); }};
}

/// Finds rows by key; `Same` compares keys. The search begins after the last row found, since keys mostly
/// come in the order of the table.
template <class Row, std::size_t N, bool (*Same)(TextView, TextView) noexcept = SameInUpperCase>
class RowFinder {
public:
    explicit RowFinder(const std::array<Row, N>& rows) : rows_(rows) {}
    /// The row, or a null pointer if no row has the key.
    [[nodiscard]] const Row* Find(TextView key) {
        for (std::size_t step = 0; step < N; ++step) {
            const std::size_t place = (next_ + step) % N;
            if (!Same(key, rows_[place].key)) continue;
            next_ = (place + 1) % N;
            return &rows_[place];
        }
        return nullptr;
    }

private:
    const std::array<Row, N>& rows_;
    std::size_t next_ = 0;
};

} // namespace htdrdd
