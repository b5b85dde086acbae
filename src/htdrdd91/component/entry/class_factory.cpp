#include "htdrdd91/component/entry/class_factory.h"

#include "htdrdd91/component/entry/creation.h"
#include "htdrdd91/component/values/module_reference.h"

#include <algorithm>
#include <new>

namespace htdrdd {
namespace {

class ClassFactory final : public Counted<ClassFactory, IClassFactory> {
public:
    explicit ClassFactory(const ClassRow& row) noexcept : row_(row) {}

    HRESULT CreateInstance(IUnknown* pUnkOuter, REFIID riid, void** ppvObject) noexcept override {
        if (ppvObject == nullptr) return E_POINTER;
        *ppvObject = nullptr;
        return pUnkOuter != nullptr ? CLASS_E_NOAGGREGATION : CreateObject(row_, riid, ppvObject);
    }
    HRESULT LockServer(BOOL fLock) noexcept override {
        if (fLock != 0) {
            ++serverLocks;
            return S_OK;
        }
        std::int32_t held = serverLocks;
        while (held > 0 && !serverLocks.compare_exchange_weak(held, held - 1)) {}
        return held > 0 ? S_OK : E_UNEXPECTED;
    }

private:
    const ClassRow& row_;
};

} // namespace

HRESULT QueryFactory(REFCLSID rclsid, REFIID riid, void** result) noexcept {
    if (result == nullptr) return E_POINTER;
    *result = nullptr;
    const auto classes = Classes();
    const auto found = std::find_if(classes.begin(), classes.end(), [&](const ClassRow& row) {
        return row.isCreatable && *row.identifier == rclsid;
    });
    if (found == classes.end()) return CLASS_E_CLASSNOTAVAILABLE;
    const Com<IClassFactory> factory(new (std::nothrow) ClassFactory(*found));
    return factory ? factory->QueryInterface(riid, result) : E_OUTOFMEMORY;
}

} // namespace htdrdd
