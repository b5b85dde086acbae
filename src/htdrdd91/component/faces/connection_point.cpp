#include "htdrdd91/component/faces/connection_point.h"

#include <algorithm>

namespace htdrdd {
namespace {

constexpr DISPID kEvent = 1;

void Tell(IDispatch& sink) {
    DISPPARAMS none{};
    EXCEPINFO told{};
    const HRESULT outcome = sink.Invoke(kEvent, GUID{}, 0, DISPATCH_METHOD, &none, nullptr, &told, nullptr);
    if (FAILED(outcome)) throw FailureOutside(outcome, told);
}

} // namespace

HRESULT ConnectionPoint::QueryInterface(REFIID riid, void** ppvObject) noexcept {
    return GiveInterface<IConnectionPoint>(this, riid, ppvObject);
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* pIID) noexcept {
    if (pIID == nullptr) return E_POINTER;
    *pIID = events_;
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** ppCPC) noexcept {
    if (ppCPC == nullptr) return E_POINTER;
    *ppCPC = Com<IConnectionPointContainer>(&container_).Detach();
    return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* pUnkSink, DWORD* pdwCookie) noexcept {
    if (pUnkSink == nullptr || pdwCookie == nullptr) return E_POINTER;
    *pdwCookie = 0;
    const auto self = Held(object_); // the sink may release it when queried
    auto sink = Com<IDispatch>::Of(pUnkSink, events_);
    if (!sink) sink = Com<IDispatch>::Of(pUnkSink);
    if (!sink) return CONNECT_E_CANNOTCONNECT;
    return Guarded([&] {
        connections_.reserve(connections_.size() + 1);
        const auto cookie = static_cast<DWORD>(event_.Connect([sink] { Tell(*sink.Get()); }));
        connections_.push_back({std::move(sink), cookie});
        *pdwCookie = cookie;
    });
}

HRESULT ConnectionPoint::Unadvise(DWORD dwCookie) noexcept {
    const auto found = std::find_if(connections_.begin(), connections_.end(),
                                    [&](const Connection& one) { return one.cookie == dwCookie; });
    if (found == connections_.end()) return CONNECT_E_NOCONNECTION;
    const auto self = Held(object_); // the sink's end may release the object
    const Connection ended = std::move(*found);
    connections_.erase(found);
    event_.Disconnect(static_cast<std::int32_t>(dwCookie));
    return S_OK;
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** ppEnum) noexcept {
    return Enumerate<IEnumConnections>(ppEnum, [&] { return connections_; });
}

} // namespace htdrdd
