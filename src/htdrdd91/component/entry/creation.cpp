#include "htdrdd91/component/entry/creation.h"

#include "htdrdd91/component/values/failures.h"
#include "htdrdd91/component/values/objects.h"
#include "htdrdd91/platform/thread_state.h"

#include <algorithm>
#include <vector>

namespace htdrdd {
namespace {

/// Returns the object that `find` finds or creates, by one of its interfaces.
template <class Find>
HRESULT QueryMade(REFIID riid, void** result, const Find& find) noexcept {
    if (result == nullptr) return E_POINTER;
    *result = nullptr;
    HRESULT outcome = E_NOINTERFACE;
    const HRESULT found = Guarded([&] {
        const Ref<Object> object = find();
        outcome = FaceOf(*object).QueryInterface(riid, result);
    });
    return FAILED(found) ? found : outcome;
}

Ref<Object> FindGlobal(const ClassRow& row) {
    for (const Ref<Object>& object : ThisThread().globals)
        if (object->ClassName() == row.name) return object;
    return {};
}

} // namespace

HRESULT CreateObject(const ClassRow& row, REFIID riid, void** result) noexcept {
    return QueryMade(riid, result, [&] { return row.make(); });
}

HRESULT GlobalObject(const ClassRow& row, REFIID riid, void** result) noexcept {
    return QueryMade(riid, result, [&] {
        if (auto object = FindGlobal(row)) return object;
        auto made = row.make(); // a failure may call the host, which may call this function again
        if (auto object = FindGlobal(row)) return object;
        ThisThread().globals.push_back(made);
        return made;
    });
}

void DropIdleGlobalObjects() noexcept {
    IgnoreFailure([] {
        auto& globals = ThisThread().globals;
        const auto firstIdle = std::partition(globals.begin(), globals.end(), [](const Ref<Object>& object) {
            object->AddRef();
            return object->Release() > 1;
        });
        const std::vector<Ref<Object>> ended(firstIdle, globals.end()); // their destructors may call hosts
        globals.erase(firstIdle, globals.end());
    });
}

} // namespace htdrdd
