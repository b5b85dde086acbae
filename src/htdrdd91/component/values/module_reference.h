/// The counts that keep the component loaded.
#pragma once

#include <atomic>
#include <cstdint>

namespace htdrdd {

/// Number of existing objects that outside hosts have seen.
inline std::atomic<std::int32_t> moduleReferences{0};
/// Number of locks of class factories.
inline std::atomic<std::int32_t> serverLocks{0};

/// A member of every class whose objects keep the component loaded.
class ModuleReference {
public:
    ModuleReference() noexcept { ++moduleReferences; }
    ModuleReference(const ModuleReference&) = delete;
    ModuleReference& operator=(const ModuleReference&) = delete;
    ~ModuleReference() { --moduleReferences; }
};

} // namespace htdrdd
