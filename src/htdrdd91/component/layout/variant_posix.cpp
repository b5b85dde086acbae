#include "htdrdd91/component/layout/automation.h"

#include <utility>

void VariantInit(VARIANTARG* pvarg) {
    if (pvarg != nullptr) *pvarg = {};
}

HRESULT VariantClear(VARIANTARG* pvarg) {
    if (pvarg == nullptr) return E_INVALIDARG;
    const bool isArray = (pvarg->vt & (VT_ARRAY | VT_BYREF)) == VT_ARRAY;
    if (isArray && pvarg->parray != nullptr && pvarg->parray->cLocks > 0) return DISP_E_ARRAYISLOCKED;
    const VARIANT value = std::exchange(*pvarg, {}); // the value's end may access the variable
    if ((value.vt & VT_BYREF) != 0) return S_OK;
    if (isArray) {
        SafeArrayDestroy(value.parray);
    } else if (value.vt == VT_BSTR) {
        SysFreeString(value.bstrVal);
    } else if ((value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN) && value.punkVal != nullptr) {
        value.punkVal->Release();
    }
    return S_OK;
}

HRESULT VariantCopy(VARIANTARG* pvargDest, const VARIANTARG* pvargSrc) {
    if (pvargDest == nullptr || pvargSrc == nullptr) return E_INVALIDARG;
    if (pvargDest == pvargSrc) return S_OK;
    VARIANT copy = *pvargSrc;
    if ((copy.vt & VT_BYREF) != 0) {
        // the copy refers to the same variable
    } else if ((copy.vt & VT_ARRAY) != 0) {
        const HRESULT outcome = SafeArrayCopy(pvargSrc->parray, &copy.parray);
        if (FAILED(outcome)) return outcome;
    } else if (copy.vt == VT_BSTR && copy.bstrVal != nullptr) {
        copy.bstrVal = SysAllocStringLen(copy.bstrVal, SysStringLen(copy.bstrVal));
        if (copy.bstrVal == nullptr) return E_OUTOFMEMORY;
    } else if ((copy.vt == VT_DISPATCH || copy.vt == VT_UNKNOWN) && copy.punkVal != nullptr) {
        copy.punkVal->AddRef();
    }
    VariantClear(pvargDest);
    *pvargDest = copy;
    return S_OK;
}
