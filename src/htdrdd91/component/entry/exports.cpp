/// The exported functions of the component, except those for texts, arrays, values and failures.
#include "htdrdd91/component/entry/exports.h"

#include "htdrdd91/component/entry/class_factory.h"
#include "htdrdd91/component/entry/creation.h"
#include "htdrdd91/component/entry/registration.h"
#include "htdrdd91/component/values/module_reference.h"

using namespace htdrdd;

HRESULT DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv) {
    return QueryFactory(rclsid, riid, ppv);
}

HRESULT DllCanUnloadNow() {
    DropIdleGlobalObjects();
    return moduleReferences == 0 && serverLocks == 0 ? S_OK : S_FALSE;
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
