// The events of a control: its one connection point, and who is connected to it.

#pragma once

#include "ocx/com.h"

#include <ocidl.h>
#include <span>
#include <vector>

namespace ocx {

/// A part of the control, whose references it shares.
class EventSource : public IConnectionPoint {
public:
    EventSource(IUnknown& owner, IConnectionPointContainer& container, const IID& iidEvents)
        : m_owner(owner), m_container(container), m_iidEvents(iidEvents) {}
    virtual ~EventSource() = default;

    /// Tells all that are connected at this moment; arguments in the order of rgvarg, last first.
    /// The control may be closed when it comes back. Gives the first failure, if any, of one that
    /// knows the event.
    HRESULT Fire(DISPID id, std::span<VARIANTARG> arguments) noexcept;

    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override;
    STDMETHODIMP_(ULONG) AddRef() override { return m_owner.AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return m_owner.Release(); }
    STDMETHODIMP GetConnectionInterface(IID* pIID) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** ppContainer) override;
    STDMETHODIMP Advise(IUnknown* pSink, DWORD* pdwCookie) override;
    STDMETHODIMP Unadvise(DWORD dwCookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections** ppEnum) override;

private:
    struct Connection {
        DWORD dwCookie;
        Ref<IDispatch> sink;
    };

    IUnknown& m_owner;
    IConnectionPointContainer& m_container;
    const IID m_iidEvents;
    std::vector<Connection> m_connections;
    DWORD m_dwLastCookie = 0;
};

/// The list of the one point.
HRESULT EnumPoints(IConnectionPoint* pPoint, IEnumConnectionPoints** ppEnum);

}  // namespace ocx
