/// What the component exports, beside the functions for texts, arrays, values and failures.
#include "component/exports.h"

#include "component/class_factory.h"
#include "component/living.h"
#include "component/registration.h"

using namespace htdrdd;

HRESULT DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv) { return GiveFactory(rclsid, riid, ppv); }

HRESULT DllCanUnloadNow() {
    DropIdleGlobalObjects();
    return livingOutside == 0 && locks == 0 ? S_OK : S_FALSE;
}

HRESULT DllRegisterServer() { return WriteManifest(); }

HRESULT DllUnregisterServer() { return DeleteManifest(); }

HRESULT HTDRddCreateObject(LPCOLESTR className, REFIID riid, void** ppv) {
    if (className == nullptr || ppv == nullptr) return E_POINTER;
    *ppv = nullptr;
    const ClassRow* const row = FindClass(NameView(className));
    return row != nullptr && row->isCreatable ? CreateObject(*row, riid, ppv) : CLASS_E_CLASSNOTAVAILABLE;
}

HRESULT HTDRddGlobalObject(LPCOLESTR className, REFIID riid, void** ppv) {
    if (className == nullptr || ppv == nullptr) return E_POINTER;
    *ppv = nullptr;
    const ClassRow* const row = FindClass(NameView(className));
    return row != nullptr && row->isGlobal ? GlobalObject(*row, riid, ppv) : CLASS_E_CLASSNOTAVAILABLE;
}
