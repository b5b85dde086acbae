/// What exists once for each thread.
#pragma once

#include "htdrdd91/base/late_bound.h"
#include "htdrdd91/base/region.h"
#include "htdrdd91/platform/desktop.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/machine_region.h"

#include <memory>
#include <vector>

namespace htdrdd {

struct ThreadState {
    Region region = MachineRegion();
    FileSystem* files = nullptr;          ///< none: that of the machine
    Desktop* desktop = nullptr;           ///< none: that of the machine
    Ref<LateBound> errorHost;             ///< what complaints are handed to, if anything
    std::vector<Ref<Object>> globals;     ///< what outside hosts use without creating it
    std::shared_ptr<void> outsideFailure; ///< what the last member called from outside failed with
};

/// The state of the calling thread. It is made on first use and ends with the thread.
[[nodiscard]] ThreadState& ThisThread();

} // namespace htdrdd
