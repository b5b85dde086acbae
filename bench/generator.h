/// Definitions of any size for the benchmarks; the same parameters produce the same bytes.
#pragma once

#include "htdrdd91/base/text.h"

#include <string>

namespace htdrdd::bench {

struct Shape {
    int questions = 50;
    int objectives = 6; ///< learning objectives, the overall one included; at least 1
    int versions = 0;   ///< version identifiers; the answer key is the same for each
};

/// A definition file in UTF-16 with its byte order mark, about 1,430 bytes a question.
[[nodiscard]] std::string DefinitionText(const Shape& shape);

} // namespace htdrdd::bench
