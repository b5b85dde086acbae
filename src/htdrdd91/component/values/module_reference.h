/// What keeps the component loaded.
#pragma once

#include <atomic>
#include <cstdint>

namespace htdrdd {

/// Number of objects that outside hosts have seen and that are still there.
inline std::atomic<std::int32_t> moduleReferences{0};
/// Number of locks of class factories.
inline std::atomic<std::int32_t> serverLocks{0};

/// A member of everything that keeps the component loaded while it exists.
class ModuleReference {
public:
    ModuleReference() noexcept { ++moduleReferences; }
    ModuleReference(const ModuleReference&) = delete;
    ModuleReference& operator=(const ModuleReference&) = delete;
    ~ModuleReference() { --moduleReferences; }
};

} // namespace htdrdd
