/// What keeps the component loaded.
#pragma once

#include <atomic>
#include <cstdint>

namespace htdrdd {

/// Objects that outside hosts have seen and that are still there, and locks.
inline std::atomic<std::int32_t> livingOutside{0};

/// A part of something that counts as living.
class Living {
public:
    Living() noexcept { ++livingOutside; }
    Living(const Living&) = delete;
    Living& operator=(const Living&) = delete;
    ~Living() { --livingOutside; }
};

} // namespace htdrdd
