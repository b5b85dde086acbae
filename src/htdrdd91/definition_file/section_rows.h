/// Sections whose keys are in a table.
#pragma once

#include "htdrdd91/definition_file/section_lines.h"
#include "htdrdd91/foundation/member_rows.h"
#include "htdrdd91/platform/text_stream.h"

namespace htdrdd::basTemplate {

/// Reads a section whose keys are all in one table. Other keys are ignored.
template <class Target, class Source, std::size_t N>
void ReadRows(SectionLines& lines, const std::array<MemberRow<Target, Source>, N>& rows, Target& target,
              Where at = Where::current()) {
    RowFinder finder(rows);
    lines.EnterSection();
    for (SectionLines::Pair pair; lines.NextPair(pair, at);)
        if (const auto* row = finder.Find(pair.key)) row->put(target, pair.value, at);
}

/// Writes a line for each row, unless isWritten excludes it.
template <class Row, class Source, std::size_t N>
void WriteRows(TextWriter& out, const std::array<Row, N>& rows, const Source& source,
               Where at = Where::current()) {
    for (const auto& row : rows) {
        if (row.isWritten != nullptr && !row.isWritten(source)) continue;
        out.Line().append(row.key) += u'=';
        row.append(out.Line(), source, at);
        out.EndLine(at);
    }
}

} // namespace htdrdd::basTemplate
