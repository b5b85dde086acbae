#include "htdrdd91/component/layout/automation.h"
#include "htdrdd91/platform/thread_state.h"

#include <memory>
#include <utility>

HRESULT SetErrorInfo(ULONG /*dwReserved*/, IErrorInfo* perrinfo) {
    try {
        if (perrinfo != nullptr) perrinfo->AddRef();
        std::shared_ptr<void> kept(perrinfo, [](IErrorInfo* info) {
            if (info != nullptr) info->Release();
        });
        kept.swap(htdrdd::ThisThread().outsideFailure);
        return S_OK;
    } catch (...) { return E_OUTOFMEMORY; }
}

HRESULT GetErrorInfo(ULONG /*dwReserved*/, IErrorInfo** pperrinfo) {
    if (pperrinfo == nullptr) return E_INVALIDARG;
    *pperrinfo = nullptr;
    try {
        const auto kept = std::exchange(htdrdd::ThisThread().outsideFailure, nullptr);
        if (!kept) return S_FALSE;
        *pperrinfo = static_cast<IErrorInfo*>(kept.get());
        (*pperrinfo)->AddRef();
        return S_OK;
    } catch (...) { return E_OUTOFMEMORY; }
}
