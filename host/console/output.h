/// Standard output and standard error.
#pragma once

#include "htdrdd91/base/text.h"

#include <string>
#include <string_view>

namespace htdrdd::host {

/// Text from a file or a name as it may reach a terminal: tabs become blanks, and other control characters,
/// invisible format characters and marks of writing direction become "·".
[[nodiscard]] std::string Harmless(TextView text);
/// The same for UTF-8, such as an argument.
[[nodiscard]] std::string Harmless(std::string_view text);

/// Paragraphs of a message behind each other, made harmless.
[[nodiscard]] std::string OnOneLine(TextView text);

/// Writes to standard output. What can't be written shows in Finished.
void Print(std::string_view text);
/// Writes one line to standard error, with the program's name in front.
void Complain(std::string_view text);
/// Writes to standard error, which is a terminal, what stands there until anything else is written. An empty
/// text only erases what stood there.
void ShowStatus(std::string_view text);
/// Flushes standard output. False, with a complaint, if anything couldn't be written.
[[nodiscard]] bool Finished();

} // namespace htdrdd::host
