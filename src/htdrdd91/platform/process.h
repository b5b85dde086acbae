/// The running library and the time.
#pragma once

#include "htdrdd91/base/text.h"

#include <cstdint>

namespace htdrdd {

/// The shared object that holds this code, or the program where it is linked statically, and its folder.
[[nodiscard]] Text ModuleFile();
[[nodiscard]] Text ModuleFolder();

/// A number that tells this running instance and thread from others.
[[nodiscard]] std::uint32_t InstanceNumber() noexcept;

/// A number that is another one at every call, in this and in other instances.
[[nodiscard]] std::uint64_t Seed() noexcept;

/// The present date and time in the region's form.
[[nodiscard]] Text GeneralDateNow();

} // namespace htdrdd
