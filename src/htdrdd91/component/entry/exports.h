/// The functions that hosts look up in the component.
#pragma once

#include "htdrdd91/component/HTDRdd91.h"

extern "C" {

/// The factory of a class that can be created from outside; CLASS_E_CLASSNOTAVAILABLE for any other.
HRESULT STDMETHODCALLTYPE DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv);

/// S_OK if no object of the library and no lock is left, else S_FALSE. Registered host objects don't count:
/// they stay until another host object or none is registered, or their thread ends.
HRESULT STDMETHODCALLTYPE DllCanUnloadNow();

/// Writes, or removes, the manifest beside the library, which tells hosts the classes and the path of the
/// library.
HRESULT STDMETHODCALLTYPE DllRegisterServer();
HRESULT STDMETHODCALLTYPE DllUnregisterServer();

/// A new object of a class by its name, "clsHTDRDD" or "HTDRdd91.clsHTDRDD", in any case; for hosts that
/// don't bind by identifier. CLASS_E_CLASSNOTAVAILABLE if it doesn't exist or can't be created from outside.
HRESULT STDMETHODCALLTYPE HTDRddCreateObject(LPCOLESTR className, REFIID riid, void** ppv);

/// The global object of a class, which hosts use without creating it: the same at each call on a thread. It
/// is created anew if DllCanUnloadNow was called while nothing referred to it.
HRESULT STDMETHODCALLTYPE HTDRddGlobalObject(LPCOLESTR className, REFIID riid, void** ppv);
}
