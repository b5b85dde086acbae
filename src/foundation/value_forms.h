/// How the members of records stand as texts in files: the form follows from the member's type.
#pragma once

#include "foundation/clsHTDRDDStrings.h"
#include "foundation/properties.h"
#include "platform/number.h"

#include <cstdint>
#include <type_traits>
#include <utility>

namespace htdrdd {

/// Reads a value into a member. A text is taken as it stands; a boolean is true for any number but 0; an
/// integer is the number at the start of the text, rounded, and fails with 6 outside its range; a list gets
/// the pieces between tabs behind the items that it has.
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
/// An enumeration of which files hold a narrower integer than the member is.
template <class Int, class Enum>
void ReadValueAs(TextView value, Enum& member, Where at) {
    Int number = 0;
    ReadValue(value, number, at);
    member = static_cast<Enum>(number);
}
inline void ReadValue(TextView value, const Ref<clsHTDRDDStrings>& member, Where /*at*/) {
    member->AddDelimitedString(value, u"\t");
}

/// Writes a member in the form in which it is read: a text as it stands, a boolean as -1 or 0, a number in
/// its invariant text, a list with tabs between its items.
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

} // namespace htdrdd
