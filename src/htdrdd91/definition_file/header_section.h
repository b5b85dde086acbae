/// The [Header] section.
#pragma once

#include "htdrdd91/base/dictionary.h"
#include "htdrdd91/definition_file/section_lines.h"

namespace htdrdd::basTemplate {

/// Takes every key of the section into the header settings: a known key gets a new value, an unknown one is
/// added. The line that ends the section keeps its case: this is meant, and another section directly behind
/// is recognised only in capitals. False after a failure, which is reported.
[[nodiscard]] bool ReadHeader(SectionLines& lines, Dictionary& oHeader) noexcept;

/// Writes the section, without a blank line behind it.
void WriteHeader(TextWriter& out, const Dictionary& oHeader, Where at = Where::current());

} // namespace htdrdd::basTemplate
