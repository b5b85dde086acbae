/// What keeps the component loaded.
#pragma once

#include <atomic>
#include <cstdint>

namespace htdrdd {

/// Objects that outside hosts have seen and that are still there.
inline std::atomic<std::int32_t> livingOutside{0};
/// Locks of class factories.
inline std::atomic<std::int32_t> locks{0};

/// A part of something that counts as living.
class Living {
public:
    Living() noexcept { ++livingOutside; }
    Living(const Living&) = delete;
    Living& operator=(const Living&) = delete;
    ~Living() { --livingOutside; }
};

} // namespace htdrdd
