/// Lists of the data members of a class, for code that handles each member.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>

namespace htdrdd {

/// A data member and the name under which hosts know it.
template <class Class, class T>
struct NamedMember {
    TextView name;
    T Class::*member;
};
template <class Class, class T>
NamedMember(const char16_t*, T Class::*) -> NamedMember<Class, T>;

/// The list of a class: a tuple of NamedMember, in declaration order. A class with a list specializes this
/// variable in a header of its own.
template <class Class>
inline constexpr auto kMembers = [] {
    static_assert(sizeof(Class) == 0, "Include the header that lists the members of this class.");
    return std::tuple<>();
}();

template <class Class>
inline constexpr std::size_t kMemberCount = std::tuple_size_v<decltype(kMembers<Class>)>;

/// One row of a list, as a type.
template <class Class, std::size_t N>
struct MemberAt {
    static constexpr TextView name = std::get<N>(kMembers<Class>).name;
    static constexpr auto member = std::get<N>(kMembers<Class>).member;
};

/// Calls `visit(row)` for each row. Its `name` and `member` are constants, usable at compile time.
template <class Class, class Visit>
constexpr void EachMember(Visit visit) {
    [&]<std::size_t... N>(std::index_sequence<N...> /*rows*/) { (visit(MemberAt<Class, N>()), ...); }
    (std::make_index_sequence<kMemberCount<Class>>());
}

/// Whether a list of names contains a name.
template <std::size_t N>
[[nodiscard]] constexpr bool Holds(const std::array<TextView, N>& names, TextView name) noexcept {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Whether all given names are names of members.
template <class Class, std::size_t N>
[[nodiscard]] consteval bool AreMembers(const std::array<TextView, N>& names) {
    std::size_t known = 0;
    EachMember<Class>([&](auto row) { known += Holds(names, row.name) ? 1U : 0U; });
    return known == N;
}

/// Whether the list has all data members of a class derived from Object, according to its size. A missing
/// member is found unless it fits into the padding between its neighbours.
template <class Class>
[[nodiscard]] consteval bool ListsAllMembers() {
    const auto aligned = [](std::size_t size, std::size_t alignment) {
        return (size + alignment - 1) / alignment * alignment;
    };
    std::size_t size = sizeof(Object);
    EachMember<Class>([&]<class Row>(Row /*row*/) {
        using T = std::remove_cvref_t<decltype(std::declval<Class&>().*Row::member)>;
        size = aligned(size, alignof(T)) + sizeof(T);
    });
    return aligned(size, alignof(Class)) == sizeof(Class);
}

} // namespace htdrdd
