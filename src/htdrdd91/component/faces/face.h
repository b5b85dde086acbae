/// The faces of the library's objects.
#pragma once

#include "htdrdd91/component/HTDRdd91.h"
#include "htdrdd91/component/faces/arguments.h"
#include "htdrdd91/component/faces/classes.h"
#include "htdrdd91/component/faces/connection_point.h"
#include "htdrdd91/component/faces/dispatch.h"
#include "htdrdd91/component/faces/enumerator.h"
#include "htdrdd91/component/values/failures.h"
#include "htdrdd91/component/values/module_reference.h"

#include <functional>
#include <optional>

namespace htdrdd {

/// The face of an object. The object owns its face, and references to the face are references to the object.
/// Members are called with the object held, since the called code may release it.
template <class Interface, class Class>
class Face : public Interface,
             public ISupportErrorInfo,
             public IProvideClassInfo2,
             public IConnectionPointContainer,
             public ObjectFace {
public:
    Face(Class& object, const ClassRow& row) : object_(object), row_(row) {
        if (row.events != nullptr) point_.emplace(object, *this, *row.events, row.event(object));
    }

    IDispatch& Dispatch() noexcept override { return *this; }

    HRESULT QueryInterface(REFIID riid, void** ppvObject) noexcept override {
        if (ppvObject == nullptr) return E_POINTER;
        *ppvObject = nullptr;
        if (riid == IID_IUnknown || riid == IID_IDispatch || riid == kIid<Interface>)
            *ppvObject = static_cast<Interface*>(this);
        else if (riid == kIid<ISupportErrorInfo>)
            *ppvObject = static_cast<ISupportErrorInfo*>(this);
        else if (riid == kIid<IProvideClassInfo> || riid == kIid<IProvideClassInfo2>)
            *ppvObject = static_cast<IProvideClassInfo2*>(this);
        else if (riid == kIid<IConnectionPointContainer> && point_)
            *ppvObject = static_cast<IConnectionPointContainer*>(this);
        else
            return QueryObject(object_, riid, ppvObject);
        AddRef();
        return S_OK;
    }
    ULONG AddRef() noexcept override { return object_.AddRef(); }
    ULONG Release() noexcept override { return object_.Release(); }

    HRESULT GetTypeInfoCount(UINT* pctinfo) noexcept override {
        if (pctinfo == nullptr) return E_POINTER;
        *pctinfo = 0;
        return S_OK;
    }
    HRESULT GetTypeInfo(UINT /*iTInfo*/, LCID /*lcid*/, ITypeInfo** ppTInfo) noexcept override {
        if (ppTInfo == nullptr) return E_POINTER;
        *ppTInfo = nullptr;
        return E_NOTIMPL;
    }
    HRESULT GetIDsOfNames(REFIID /*riid*/, LPOLESTR* rgszNames, UINT cNames, LCID /*lcid*/,
                          DISPID* rgDispId) noexcept override {
        return FindNames(row_.members, rgszNames, cNames, rgDispId);
    }
    HRESULT Invoke(DISPID dispIdMember, REFIID /*riid*/, LCID /*lcid*/, WORD wFlags, DISPPARAMS* pDispParams,
                   VARIANT* pVarResult, EXCEPINFO* pExcepInfo, UINT* puArgErr) noexcept override {
        const auto self = Held(object_); // also while arguments are queried
        return InvokeMember(row_.members, *this, dispIdMember, wFlags, pDispParams, pVarResult, pExcepInfo,
                            puArgErr);
    }

    HRESULT InterfaceSupportsErrorInfo(REFIID riid) noexcept override {
        return riid == kIid<Interface> ? S_OK : S_FALSE;
    }
    HRESULT GetClassInfo(ITypeInfo** ppTI) noexcept override { return GetTypeInfo(0, 0, ppTI); }
    HRESULT GetGUID(DWORD dwGuidKind, GUID* pGUID) noexcept override {
        if (pGUID == nullptr) return E_POINTER;
        *pGUID = GUID{};
        if (dwGuidKind != GUIDKIND_DEFAULT_SOURCE_DISP_IID || !point_) return E_INVALIDARG;
        *pGUID = *row_.events;
        return S_OK;
    }
    HRESULT EnumConnectionPoints(IEnumConnectionPoints** ppEnum) noexcept override {
        return htdrdd::Enumerate<IEnumConnectionPoints>(
            ppEnum, [&] { return std::vector{Com<IConnectionPoint>(&*point_)}; });
    }
    HRESULT FindConnectionPoint(REFIID riid, IConnectionPoint** ppCP) noexcept override {
        if (ppCP == nullptr) return E_POINTER;
        const bool isThere = point_ && riid == *row_.events;
        *ppCP = isThere ? Com<IConnectionPoint>(&*point_).Detach() : nullptr;
        return isThere ? S_OK : CONNECT_E_NOCONNECTION;
    }

protected:
    /// Reads a property: a data member, or a member function without arguments.
    template <auto Property, class R>
    HRESULT GetProperty(R* result) noexcept {
        return WithResult(result, [&] { SetResult(*result, std::invoke(Property, object_)); });
    }
    /// Assigns a data member.
    template <auto Property, class A>
    HRESULT PutProperty(A value) noexcept {
        return WithObject([&] {
            auto& property = object_.*Property;
            using Held = std::remove_reference_t<decltype(property)>;
            if constexpr (std::is_same_v<A, BSTR>)
                property = View(value);
            else if constexpr (Number<A>)
                property = Argument<Held, A>(value).Value();
            else
                property = Referred<typename Held::Target>(value);
        });
    }
    /// Calls a member function with a result.
    template <auto Function, class R, class... A>
    HRESULT CallFor(R* result, A... arguments) noexcept {
        const auto take = [result](const auto& returned) { SetResult(*result, returned); };
        return WithResult(result, [&] { CallMember<Function>(object_, take, arguments...); });
    }
    /// Calls a member function without a result.
    template <auto Function, class... A>
    HRESULT Call(A... arguments) noexcept {
        return WithObject([&] {
            CallMember<Function>(
                object_, [](const auto&...) {}, arguments...);
        });
    }
    /// The enumerator of a list.
    HRESULT Enumerate(IUnknown** result) noexcept {
        return htdrdd::Enumerate<IEnumVARIANT>(result, [&] { return ItemsOf(object_); });
    }

private:
    /// Runs the body of a slot with the object held.
    template <class Body>
    HRESULT WithObject(const Body& body) noexcept {
        return Guarded([&] {
            const auto self = Held(object_);
            body();
        });
    }
    /// The same for a body that sets a result; the result is 0 or null if the body fails.
    template <class R, class Body>
    HRESULT WithResult(R* result, const Body& body) noexcept {
        if (result == nullptr) return E_POINTER;
        *result = R{};
        return WithObject(body);
    }

    Class& object_;
    const ClassRow& row_;
    std::optional<ConnectionPoint> point_;
    [[no_unique_address]] ModuleReference moduleReference_;
};

} // namespace htdrdd
