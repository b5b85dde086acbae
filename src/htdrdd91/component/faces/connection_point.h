/// Events for outside hosts.
#pragma once

#include "htdrdd91/base/event.h"
#include "htdrdd91/component/faces/enumerator.h"

#include <vector>

namespace htdrdd {

/// The connection point for sinks of an object's only event. It is a part of the object's face. A sink is
/// called synchronously, with member 1 of the event interface; its failure is dropped. Sinks stay connected
/// until they are disconnected or the object ends.
class ConnectionPoint final : public IConnectionPoint {
public:
    ConnectionPoint(Object& object, IConnectionPointContainer& container, const IID& events,
                    Event& event) noexcept
        : object_(object), container_(container), events_(events), event_(event) {}

    HRESULT QueryInterface(REFIID riid, void** ppvObject) noexcept override;
    ULONG AddRef() noexcept override { return object_.AddRef(); }
    ULONG Release() noexcept override { return object_.Release(); }
    HRESULT GetConnectionInterface(IID* pIID) noexcept override;
    HRESULT GetConnectionPointContainer(IConnectionPointContainer** ppCPC) noexcept override;
    HRESULT Advise(IUnknown* pUnkSink, DWORD* pdwCookie) noexcept override;
    HRESULT Unadvise(DWORD dwCookie) noexcept override;
    HRESULT EnumConnections(IEnumConnections** ppEnum) noexcept override;

private:
    Object& object_;
    IConnectionPointContainer& container_;
    const IID& events_;
    Event& event_;
    std::vector<Connection> connections_;
};

} // namespace htdrdd
