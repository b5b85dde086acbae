/// Standard output and standard error.
#pragma once

#include "htdrdd91/base/text.h"

#include <string>
#include <string_view>

namespace htdrdd::host {

/// Makes text from a file or a name safe for a terminal: tabs become blanks; other control characters,
/// invisible format characters and marks of writing direction become "·".
[[nodiscard]] std::string Harmless(TextView text);
/// The same for UTF-8, such as an argument.
[[nodiscard]] std::string Harmless(std::string_view text);

/// The paragraphs of a message on one line, made harmless.
[[nodiscard]] std::string OnOneLine(TextView text);

/// Writes to standard output. Finished reports write errors.
void Print(std::string_view text);
/// Writes one line to standard error, after the program's name.
void Complain(std::string_view text);
/// Writes a status line to standard error, which must be a terminal; the next output of any kind erases it.
/// An empty text only erases the last status line.
void ShowStatus(std::string_view text);
/// Flushes standard output. Returns false, with a complaint, if any output couldn't be written.
[[nodiscard]] bool Finished();

} // namespace htdrdd::host
