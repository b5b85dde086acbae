/// The settings of a report header.
#pragma once

#include "htdrdd91/base/dictionary.h"

namespace htdrdd::basPublic {

/// Empties a dictionary and gives it the 31 header settings with their defaults, in order. A failure, such as
/// an empty reference, is reported and leaves what was set up to then.
void InitializeHeader(const Ref<Dictionary>& oHeader) noexcept;

} // namespace htdrdd::basPublic
