#include "ocx/event_source.h"

#include <algorithm>
#include <olectl.h>

namespace ocx {

namespace {

/// How an item of an enumeration is handed out and held.
struct PointItems {
    using Interface = IEnumConnectionPoints;
    using Item = IConnectionPoint*;
    using Kept = Ref<IConnectionPoint>;
    static Item Copy(const Kept& kept) { return Ref<IConnectionPoint>(kept).Detach(); }
};

struct ConnectionItems {
    using Interface = IEnumConnections;
    using Item = CONNECTDATA;
    struct Kept {
        Ref<IUnknown> sink;
        DWORD dwCookie;
    };
    static Item Copy(const Kept& kept) {
        return {Ref<IUnknown>(kept.sink).Detach(), kept.dwCookie};
    }
};

template <class Items>
class Enumeration : public OwnObject<typename Items::Interface> {
public:
    using Kept = std::vector<typename Items::Kept>;

    explicit Enumeration(Kept items, size_t nNext = 0)
        : m_items(std::move(items)), m_nNext(nNext) {}
    STDMETHODIMP Next(ULONG nCount, typename Items::Item* pItems, ULONG* pnFetched) override {
        if (pItems == nullptr || (pnFetched == nullptr && nCount != 1)) {
            return E_POINTER;
        }
        ULONG nFetched = 0;
        for (; nFetched < nCount && m_nNext < m_items.size(); ++nFetched, ++m_nNext) {
            pItems[nFetched] = Items::Copy(m_items[m_nNext]);
        }
        if (pnFetched != nullptr) {
            *pnFetched = nFetched;
        }
        return nFetched == nCount ? S_OK : S_FALSE;
    }
    STDMETHODIMP Skip(ULONG nCount) override {
        const size_t nLeft = m_items.size() - m_nNext;
        m_nNext += std::min<size_t>(nCount, nLeft);
        return nCount <= nLeft ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() override {
        m_nNext = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(typename Items::Interface** ppEnum) override {
        if (ppEnum == nullptr) {
            return E_POINTER;
        }
        *ppEnum = nullptr;
        return Guarded([&] {
            *ppEnum = Ref<Enumeration>(new Enumeration(m_items, m_nNext)).Detach();
            return S_OK;
        });
    }

private:
    Kept m_items;
    size_t m_nNext;
};

}  // namespace

HRESULT EventSource::Fire(DISPID id, std::span<VARIANTARG> arguments) noexcept {
    // Only a cookie keeps its place while sinks come and go.
    const DWORD dwLast = m_dwLastCookie;
    HRESULT hrFirst = S_OK;
    for (DWORD dwCookie = 0;;) {
        const auto next = std::ranges::find_if(
            m_connections, [dwCookie](const auto& one) { return one.dwCookie > dwCookie; });
        if (next == m_connections.end() || next->dwCookie > dwLast) {
            return hrFirst;
        }
        dwCookie = next->dwCookie;
        const Ref<IDispatch> sink = next->sink;
        DISPPARAMS params = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        const HRESULT hr = Guarded([&] {
            Variant result;
            return sink->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params,
                                result.Get(), nullptr, nullptr);
        });
        if (FAILED(hr) && hr != DISP_E_MEMBERNOTFOUND && SUCCEEDED(hrFirst)) {
            hrFirst = hr;
        }
    }
}

STDMETHODIMP EventSource::QueryInterface(REFIID iid, void** ppv) {
    return QueryOne<IConnectionPoint>(this, iid, ppv);
}

STDMETHODIMP EventSource::GetConnectionInterface(IID* pIID) {
    if (pIID == nullptr) {
        return E_POINTER;
    }
    *pIID = m_iidEvents;
    return S_OK;
}

STDMETHODIMP EventSource::GetConnectionPointContainer(IConnectionPointContainer** ppContainer) {
    if (ppContainer == nullptr) {
        return E_POINTER;
    }
    *ppContainer = Ref<IConnectionPointContainer>(&m_container).Detach();
    return S_OK;
}

STDMETHODIMP EventSource::Advise(IUnknown* pSink, DWORD* pdwCookie) {
    if (pSink == nullptr || pdwCookie == nullptr) {
        return E_POINTER;
    }
    *pdwCookie = 0;
    // Sinks answer for the events' own interface, older ones for IDispatch alone.
    IDispatch* pDispatch = nullptr;
    if (FAILED(pSink->QueryInterface(m_iidEvents, reinterpret_cast<void**>(&pDispatch))) &&
        FAILED(pSink->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&pDispatch)))) {
        return CONNECT_E_CANNOTCONNECT;
    }
    return Guarded([&] {
        auto sink = Ref<IDispatch>::Take(pDispatch);
        m_connections.push_back({m_dwLastCookie + 1, std::move(sink)});
        *pdwCookie = ++m_dwLastCookie;
        return S_OK;
    });
}

STDMETHODIMP EventSource::Unadvise(DWORD dwCookie) {
    const auto found = std::ranges::find(m_connections, dwCookie, &Connection::dwCookie);
    if (found == m_connections.end()) {
        return CONNECT_E_NOCONNECTION;
    }
    const Ref<IDispatch> sink = std::move(found->sink);
    m_connections.erase(found);
    return S_OK;
}

STDMETHODIMP EventSource::EnumConnections(IEnumConnections** ppEnum) {
    if (ppEnum == nullptr) {
        return E_POINTER;
    }
    *ppEnum = nullptr;
    return Guarded([&] {
        Enumeration<ConnectionItems>::Kept items;
        for (const Connection& one : m_connections) {
            items.push_back({Ref<IUnknown>(one.sink.Get()), one.dwCookie});
        }
        *ppEnum =
            Ref<Enumeration<ConnectionItems>>(new Enumeration<ConnectionItems>(std::move(items)))
                .Detach();
        return S_OK;
    });
}

HRESULT EnumPoints(IConnectionPoint* pPoint, IEnumConnectionPoints** ppEnum) {
    if (ppEnum == nullptr) {
        return E_POINTER;
    }
    *ppEnum = nullptr;
    return Guarded([&] {
        Enumeration<PointItems>::Kept items = {Ref<IConnectionPoint>(pPoint)};
        *ppEnum =
            Ref<Enumeration<PointItems>>(new Enumeration<PointItems>(std::move(items))).Detach();
        return S_OK;
    });
}

}  // namespace ocx
