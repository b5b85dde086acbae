/// The region from the machine's settings.
#pragma once

#include "htdrdd91/base/region.h"

namespace htdrdd {

/// Reads the machine's locale settings without changing the process's locale. Settings that name no installed
/// locale yield the defaults of Region.
[[nodiscard]] Region MachineRegion();

} // namespace htdrdd
