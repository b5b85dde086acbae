/// The state of each thread.
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
    FileSystem* files = nullptr;          ///< null: that of the machine
    Desktop* desktop = nullptr;           ///< null: that of the machine
    Ref<LateBound> errorHost;             ///< receives complaints; may be empty
    std::vector<Ref<Object>> globals;     ///< objects that outside hosts use without creating them
    std::shared_ptr<void> outsideFailure; ///< failure of the last member called from outside
};

/// The state of the calling thread. Created on first use; ends with the thread.
[[nodiscard]] ThreadState& ThisThread();

} // namespace htdrdd
