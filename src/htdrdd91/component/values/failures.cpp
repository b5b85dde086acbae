#include "htdrdd91/component/values/failures.h"

#include "htdrdd91/component/values/com.h"
#include "htdrdd91/foundation/version.h"

#include <new>

namespace htdrdd {
namespace {

constexpr std::uint32_t kFailures = 0x800A0000; ///< base of the results for failure numbers

HRESULT ResultOf(std::int32_t number) noexcept {
    if (number > 0 && number <= 0xFFFF)
        return static_cast<HRESULT>(kFailures | static_cast<std::uint32_t>(number));
    return number < 0 ? number : E_FAIL;
}

/// The failure of a member, for hosts that call members through their slots.
class FailureInfo final : public Counted<FailureInfo, IErrorInfo> {
public:
    explicit FailureInfo(BSTR text) noexcept : text_(text) {}
    FailureInfo(const FailureInfo&) = delete;
    FailureInfo& operator=(const FailureInfo&) = delete;
    ~FailureInfo() { SysFreeString(text_); }
    HRESULT GetGUID(GUID* pGUID) noexcept override { return Give(pGUID, GUID{}); }
    HRESULT GetSource(BSTR* pBstrSource) noexcept override { return GiveText(pBstrSource, kLibraryName); }
    HRESULT GetDescription(BSTR* pBstrDescription) noexcept override {
        return GiveText(pBstrDescription, View(text_));
    }
    HRESULT GetHelpFile(BSTR* pBstrHelpFile) noexcept override { return Give(pBstrHelpFile, BSTR{}); }
    HRESULT GetHelpContext(DWORD* pdwHelpContext) noexcept override { return Give(pdwHelpContext, DWORD{}); }

private:
    template <class T>
    static HRESULT Give(T* to, T value) noexcept {
        if (to == nullptr) return E_POINTER;
        *to = value;
        return S_OK;
    }
    static HRESULT GiveText(BSTR* to, TextView text) noexcept {
        if (to == nullptr) return E_POINTER;
        *to = TryNewBstr(text);
        return *to != nullptr ? S_OK : E_OUTOFMEMORY;
    }

    BSTR text_;
};

} // namespace

HRESULT Raise(const Failure& failure) noexcept {
    const Com<IErrorInfo> info(new (std::nothrow) FailureInfo(TryNewBstr(failure.Text())));
    if (FAILED(SetErrorInfo(0, info.Get()))) SetErrorInfo(0, nullptr);
    return ResultOf(failure.Number());
}

void TellFailure(HRESULT result, EXCEPINFO& told) noexcept {
    told = {};
    told.scode = result;
    IErrorInfo* found = nullptr;
    GetErrorInfo(0, &found);
    if (const auto info = Com<IErrorInfo>::Adopt(found)) {
        info->GetSource(&told.bstrSource);
        info->GetDescription(&told.bstrDescription);
    }
}

Failure FailureOutside(HRESULT result, EXCEPINFO& told) {
    Text text;
    std::int32_t number = result;
    if (result == DISP_E_EXCEPTION) {
        if (told.pfnDeferredFillIn != nullptr) told.pfnDeferredFillIn(&told);
        IgnoreFailure([&] { text = View(told.bstrDescription); });
        if (told.wCode != 0 || told.scode != 0) number = told.wCode != 0 ? told.wCode : told.scode;
    }
    SysFreeString(told.bstrSource);
    SysFreeString(told.bstrDescription);
    SysFreeString(told.bstrHelpFile);
    told = {};
    switch (number) {
    case DISP_E_MEMBERNOTFOUND:
    case DISP_E_UNKNOWNNAME: return Failure(Err::NoSuchMember);
    case DISP_E_TYPEMISMATCH: return Failure(Err::TypeMismatch);
    case DISP_E_OVERFLOW: return Failure(Err::Overflow);
    case DISP_E_BADPARAMCOUNT: return Failure(Err::ArgumentCount);
    case DISP_E_PARAMNOTOPTIONAL: return Failure(Err::ArgumentMissing);
    case E_OUTOFMEMORY: return Failure(Err::Memory);
    default: break;
    }
    if ((static_cast<std::uint32_t>(number) & 0xFFFF0000U) == kFailures) number &= 0xFFFF;
    return text.empty() ? Failure(number) : Failure(number, std::move(text));
}

} // namespace htdrdd
