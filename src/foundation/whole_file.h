/// Files that are written as a whole.
#pragma once

#include "platform/failure.h"
#include "platform/text.h"

#include <string_view>

namespace htdrdd {

/// Writes a file, by way of a temporary one: an existing file is replaced once all is written, and keeps its
/// rights. A link stays one; the file that it leads to is meant. Fails as writing and copying files do, and
/// then there is no part of a new file and an old one is what it was.
void WriteWholeFile(TextView sFileName, std::string_view bytes, Where at = Where::current());

} // namespace htdrdd
