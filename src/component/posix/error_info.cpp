#include "component/com.h"
#include "platform/thread_state.h"

#include <memory>

using htdrdd::Com;

HRESULT SetErrorInfo(ULONG /*dwReserved*/, IErrorInfo* perrinfo) {
    try {
        const Com<IErrorInfo> info(perrinfo);
        std::shared_ptr<void> kept;
        if (info) kept = std::make_shared<Com<IErrorInfo>>(info);
        kept.swap(htdrdd::ThisThread().outsideFailure);
        return S_OK;
    } catch (...) { return E_OUTOFMEMORY; }
}

HRESULT GetErrorInfo(ULONG /*dwReserved*/, IErrorInfo** pperrinfo) {
    if (pperrinfo == nullptr) return E_INVALIDARG;
    *pperrinfo = nullptr;
    try {
        const auto kept = std::move(htdrdd::ThisThread().outsideFailure);
        htdrdd::ThisThread().outsideFailure = nullptr;
        if (!kept) return S_FALSE;
        *pperrinfo = Com<IErrorInfo>(*static_cast<const Com<IErrorInfo>*>(kept.get())).Detach();
        return S_OK;
    } catch (...) { return E_OUTOFMEMORY; }
}
