/// The [Header] section.
#pragma once

#include "htdrdd91/base/dictionary.h"
#include "htdrdd91/definition_file/section_lines.h"

namespace htdrdd::basTemplate {

/// Reads every key of the section into the header settings: a known key gets a new value, an unknown one is
/// added. This is meant: the line that ends the section keeps its case, so a section directly after it is
/// recognised only in capitals. Returns false after a failure, which is reported.
[[nodiscard]] bool ReadHeader(SectionLines& lines, Dictionary& oHeader) noexcept;

/// Writes the section, without a blank line after it.
void WriteHeader(TextWriter& out, const Dictionary& oHeader, Where at = Where::current());

} // namespace htdrdd::basTemplate
