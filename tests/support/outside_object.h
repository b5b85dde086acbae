/// Objects of outside hosts.
#pragma once

#include "htdrdd91/component/layout/automation.h"

namespace htdrdd::test {

/// An object on the stack, called by name. It counts its references and has no type information.
struct OutsideObject : IDispatch {
    ULONG references = 0;
    HRESULT QueryInterface(REFIID riid, void** result) override {
        *result = riid == IID_IUnknown || riid == IID_IDispatch ? this : nullptr;
        return *result != nullptr && AddRef() > 0 ? S_OK : E_NOINTERFACE;
    }
    ULONG AddRef() override { return ++references; }
    ULONG Release() override { return --references; }
    HRESULT GetTypeInfoCount(UINT* /*count*/) override { return E_NOTIMPL; }
    HRESULT GetTypeInfo(UINT /*n*/, LCID /*lcid*/, ITypeInfo** /*info*/) override { return E_NOTIMPL; }
};

} // namespace htdrdd::test
