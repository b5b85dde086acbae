/// Tables of the keys of a section.
#pragma once

#include "definition_file/section_lines.h"
#include "foundation/value_forms.h"

#include <array>
#include <cstddef>

namespace htdrdd::basTemplate {

/// One key of a section, and how its value is put into what the section fills.
template <class Target>
struct SectionRow {
    TextView key;
    void (*put)(Target& target, TextView value, Where at);
};

/// Finds rows by their keys, in any case of letters. Keys mostly come in the order of the table.
template <class Row, std::size_t N>
class RowFinder {
public:
    explicit RowFinder(const std::array<Row, N>& rows) : rows_(rows) {}
    /// The row, or a null pointer where no row has the key.
    [[nodiscard]] const Row* Find(TextView key) {
        for (std::size_t step = 0; step < N; ++step) {
            const std::size_t place = (next_ + step) % N;
            if (!SameInUpperCase(key, rows_[place].key)) continue;
            next_ = (place + 1) % N;
            return &rows_[place];
        }
        return nullptr;
    }

private:
    const std::array<Row, N>& rows_;
    std::size_t next_ = 0;
};

/// Reads a section whose keys all stand in one table. Keys that don't are ignored.
template <class Target, std::size_t N>
void ReadRows(SectionLines& lines, const std::array<SectionRow<Target>, N>& rows, Target& target,
              Where at = Where::current()) {
    RowFinder finder(rows);
    lines.EnterSection();
    for (SectionLines::Pair pair; lines.NextPair(pair, at);)
        if (const auto* row = finder.Find(pair.key)) row->put(target, pair.value, at);
}

} // namespace htdrdd::basTemplate
