/// The region that the machine is set to.
#pragma once

#include "htdrdd91/base/region.h"

namespace htdrdd {

/// What the machine's locale settings say, read without changing the process's locale. Settings that name no
/// installed locale give the defaults above.
[[nodiscard]] Region MachineRegion();

} // namespace htdrdd
