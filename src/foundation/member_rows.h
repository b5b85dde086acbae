/// Tables of the members of records as files hold them: a key, how a value is put in, and how it is written.
#pragma once

#include "foundation/value_forms.h"

#include <array>
#include <cstddef>

namespace htdrdd {

/// One member, put into whatever the table fills and written from whatever it is written from.
template <class Target, class Source = Target>
struct MemberRow {
    TextView key;
    void (*put)(Target& target, TextView value, Where at);
    void (*append)(Text& line, const Source& source, Where at);
    bool (*isWritten)(const Source& source) = nullptr; ///< none: always
};

/// The row of a plain member.
template <class Target, auto Field>
constexpr MemberRow<Target> PlainRow(TextView key) {
    return {key, [](Target& target, TextView value, Where at) { ReadValue(value, target.*Field, at); },
            [](Text& line, const Target& source, Where /*at*/) { AppendValue(line, source.*Field); }};
}

/// Finds rows by their keys, in any case of letters as `Same` sees it. Keys mostly come in the order of the
/// table.
template <class Row, std::size_t N, bool (*Same)(TextView, TextView) noexcept = SameInUpperCase>
class RowFinder {
public:
    explicit RowFinder(const std::array<Row, N>& rows) : rows_(rows) {}
    /// The row, or a null pointer where no row has the key.
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
