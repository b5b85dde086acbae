/// The settings of a report header.
#pragma once

#include "htdrdd91/base/dictionary.h"

namespace htdrdd::basPublic {

/// Empties a dictionary and adds the 31 header settings with their defaults, in order. A failure, such as an
/// empty reference, is reported; settings added before it stay.
void InitializeHeader(const Ref<Dictionary>& oHeader) noexcept;

} // namespace htdrdd::basPublic
