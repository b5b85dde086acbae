/// Tables of the members of records as files hold them: a key, and how a value is put in.
#pragma once

#include "foundation/value_forms.h"

#include <array>
#include <cstddef>

namespace htdrdd {

/// One member, put into whatever the table fills.
template <class Target>
struct MemberRow {
    TextView key;
    void (*put)(Target& target, TextView value, Where at);
};

/// The row of a plain member.
template <class Target, auto Field>
constexpr MemberRow<Target> PlainRow(TextView key) {
    return {key, [](Target& target, TextView value, Where at) { ReadValue(value, target.*Field, at); }};
}

/// Finds rows by their keys, in any case of letters. Keys mostly come in the order of the table.
template <class Target, std::size_t N>
class RowFinder {
public:
    explicit RowFinder(const std::array<MemberRow<Target>, N>& rows) : rows_(rows) {}
    /// The row, or a null pointer where no row has the key.
    [[nodiscard]] const MemberRow<Target>* Find(TextView key) {
        for (std::size_t step = 0; step < N; ++step) {
            const std::size_t place = (next_ + step) % N;
            if (!SameInUpperCase(key, rows_[place].key)) continue;
            next_ = (place + 1) % N;
            return &rows_[place];
        }
        return nullptr;
    }

private:
    const std::array<MemberRow<Target>, N>& rows_;
    std::size_t next_ = 0;
};

} // namespace htdrdd
