#include "component/classes.h"

#include "component/failures.h"
#include "component/objects.h"
#include "foundation/version.h"
#include "platform/thread_state.h"

#include <algorithm>

namespace htdrdd {
namespace {

/// Gives an object by one of its interfaces, where `find` finds or makes it.
template <class Find>
HRESULT GiveObject(REFIID riid, void** result, const Find& find) noexcept {
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

const ClassRow* FindClass(TextView name) noexcept {
    const std::size_t point = kLibraryName.size();
    if (name.size() > point && name[point] == u'.' && SameText(name.substr(0, point), kLibraryName))
        name.remove_prefix(point + 1);
    const auto classes = Classes();
    const auto found = std::find_if(classes.begin(), classes.end(),
                                    [name](const ClassRow& row) { return SameText(row.name, name); });
    return found != classes.end() ? &*found : nullptr;
}

HRESULT CreateObject(const ClassRow& row, REFIID riid, void** result) noexcept {
    return GiveObject(riid, result, [&] { return row.make(); });
}

HRESULT GlobalObject(const ClassRow& row, REFIID riid, void** result) noexcept {
    return GiveObject(riid, result, [&] {
        if (auto object = FindGlobal(row)) return object;
        auto made = row.make(); // its failures may call the host, which may come back here
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
        const std::vector<Ref<Object>> ended(firstIdle, globals.end()); // their ends may call hosts
        globals.erase(firstIdle, globals.end());
    });
}

} // namespace htdrdd
