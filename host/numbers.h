/// Numbers as people read them.
#pragma once

#include <string>

namespace htdrdd::host {

/// With a point as decimal mark, and the digits that the number needs.
[[nodiscard]] std::string NumberText(double value);
/// Whether a number has a value at all.
[[nodiscard]] bool HasValue(double number);

} // namespace htdrdd::host
