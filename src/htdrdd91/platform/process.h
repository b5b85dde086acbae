/// The running library and the time.
#pragma once

#include "htdrdd91/base/text.h"

#include <cstdint>

namespace htdrdd {

/// The shared object that holds this code, or the program if it is linked statically; and its folder.
[[nodiscard]] Text ModuleFile();
[[nodiscard]] Text ModuleFolder();

/// A number that distinguishes this process and thread from others.
[[nodiscard]] std::uint32_t InstanceNumber() noexcept;

/// A number that differs at every call, in this and in other processes.
[[nodiscard]] std::uint64_t Seed() noexcept;

/// The current date and time in the region's format.
[[nodiscard]] Text GeneralDateNow();

} // namespace htdrdd
