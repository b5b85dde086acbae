/// Sections whose keys stand in a table.
#pragma once

#include "definition_file/section_lines.h"
#include "foundation/member_rows.h"

namespace htdrdd::basTemplate {

/// Reads a section whose keys all stand in one table. Keys that don't are ignored.
template <class Target, std::size_t N>
void ReadRows(SectionLines& lines, const std::array<MemberRow<Target>, N>& rows, Target& target,
              Where at = Where::current()) {
    RowFinder finder(rows);
    lines.EnterSection();
    for (SectionLines::Pair pair; lines.NextPair(pair, at);)
        if (const auto* row = finder.Find(pair.key)) row->put(target, pair.value, at);
}

} // namespace htdrdd::basTemplate
