#include "ocx/control.h"

#include <cwchar>

namespace ocx {

Control::Control(const ControlKind& kind)
    : m_kind(kind),
      m_store(*kind.pMembers),
      m_font([this] { return AmbientFont(); },
             [this] {
                 const Hold hold(*this);
                 SetDirty();
                 OnFontChanged();
             }),
      m_events(*static_cast<IOleObject*>(this), *this, kind.iidEvents) {
    m_extent = {::MulDiv(kind.size.cx, kHimetricPerInch, USER_DEFAULT_SCREEN_DPI),
                ::MulDiv(kind.size.cy, kHimetricPerInch, USER_DEFAULT_SCREEN_DPI)};
}

ULONG Control::ReleaseOne() noexcept {
    const ULONG nRefs = --m_nRefs;
    if (nRefs == 0) {
        // Here, while the derived control is whole: the window's last messages come to it, and may
        // take references and give them back.
        m_nRefs = 1;
        DropWindow();
        delete this;
    }
    return nRefs;
}

STDMETHODIMP Control::QueryInterface(REFIID iid, void** ppv) {
    if (ppv == nullptr) {
        return E_POINTER;
    }
    *ppv = nullptr;
    if (iid == IID_IDispatch) {
        *ppv = static_cast<IDispatch*>(this);
    } else if (iid == IID_IUnknown || iid == IID_IOleObject) {
        *ppv = static_cast<IOleObject*>(this);
    } else if (iid == IID_IOleInPlaceObject || iid == IID_IOleWindow) {
        *ppv = static_cast<IOleInPlaceObject*>(this);
    } else if (iid == IID_IOleInPlaceActiveObject) {
        *ppv = static_cast<IOleInPlaceActiveObject*>(this);
    } else if (iid == IID_IOleControl) {
        *ppv = static_cast<IOleControl*>(this);
    } else if (iid == IID_IViewObject || iid == IID_IViewObject2) {
        *ppv = static_cast<IViewObject2*>(this);
    } else if (iid == IID_IPersist || iid == IID_IPersistStreamInit) {
        *ppv = static_cast<IPersistStreamInit*>(this);
    } else if (iid == IID_IPersistStorage) {
        *ppv = static_cast<IPersistStorage*>(this);
    } else if (iid == IID_IConnectionPointContainer) {
        *ppv = static_cast<IConnectionPointContainer*>(this);
    } else if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2) {
        *ppv = static_cast<IProvideClassInfo2*>(this);
    }
    if (*ppv == nullptr) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP Control::GetTypeInfoCount(UINT* pnCount) {
    if (pnCount == nullptr) {
        return E_POINTER;
    }
    *pnCount = 0;
    return S_OK;
}

STDMETHODIMP Control::GetTypeInfo(UINT, LCID, ITypeInfo** ppInfo) {
    if (ppInfo != nullptr) {
        *ppInfo = nullptr;
    }
    return DISP_E_BADINDEX;
}

STDMETHODIMP Control::GetIDsOfNames(REFIID iid, LPOLESTR* ppszNames, UINT nNames, LCID,
                                    DISPID* pIds) {
    if (iid != IID_NULL) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    if (ppszNames == nullptr || pIds == nullptr || nNames == 0) {
        return E_INVALIDARG;
    }
    // Arguments have no names.
    std::fill_n(pIds, nNames, DISPID_UNKNOWN);
    const Member* pMember = ppszNames[0] != nullptr ? Members().Find(ppszNames[0]) : nullptr;
    if (pMember != nullptr) {
        pIds[0] = pMember->id;
    }
    return pMember != nullptr && nNames == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

/// A refusal with a text goes to the container's user, one without to its programmer.
static HRESULT Explain(const Refusal& refusal, const wchar_t* pszSource, EXCEPINFO* pInfo) {
    if (refusal.pszText == nullptr || pInfo == nullptr) {
        return refusal.hr;
    }
    *pInfo = {};
    pInfo->scode = refusal.hr;
    pInfo->bstrSource = ::SysAllocString(pszSource);
    wchar_t szText[200] = L"";
    std::swprintf(szText, std::size(szText), refusal.pszText, refusal.nAsked, refusal.nMost);
    pInfo->bstrDescription = ::SysAllocString(szText);
    return DISP_E_EXCEPTION;
}

STDMETHODIMP Control::Invoke(DISPID id, REFIID iid, LCID, WORD wFlags, DISPPARAMS* pParams,
                             VARIANT* pResult, EXCEPINFO* pInfo, UINT* pnArgument) {
    if (iid != IID_NULL) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    if (pParams == nullptr) {
        return E_INVALIDARG;
    }
    const Member* pMember = Members().Find(id);
    if (pMember == nullptr) {
        return DISP_E_MEMBERNOTFOUND;
    }
    const Hold hold(*this);
    if (pResult != nullptr) {
        ::VariantInit(pResult);
    }
    const HRESULT hr = Guarded([&] {
        try {
            return Answer(*pMember, Arguments(*pMember, wFlags, *pParams), pResult);
        } catch (const Refusal& refusal) {
            if (pnArgument != nullptr && refusal.nArgument >= 0) {
                *pnArgument = pParams->cArgs - 1 - refusal.nArgument;
            }
            return Explain(refusal, m_kind.pszName, pInfo);
        }
    });
    if (FAILED(hr) && pResult != nullptr) {
        ::VariantClear(pResult);
    }
    return hr;
}

HRESULT Control::Answer(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    if (AnswerStock(member, arguments, pResult)) {
        return S_OK;
    }
    const HRESULT hr = Call(member, arguments, pResult);
    if (hr != kToStore) {
        return hr;
    }
    const bool bIndexed = member.vtArgs[0] != VT_EMPTY;
    if (arguments.Verb() == DISPATCH_METHOD || bIndexed) {
        return E_NOTIMPL;
    }
    if (arguments.IsPut()) {
        if (member.id == m_kind.idMouseIcon) {
            PictureOf(arguments.Object(0));
        }
        PutInStore(member, arguments.Raw(0));
    } else {
        m_store.Get(member, DefaultNumber(member), pResult);
    }
    return S_OK;
}

void Control::PutInStore(const Member& member, const VARIANT& value) {
    m_store.Put(member, value);
    SetDirty();
    OnStored(member);
}

bool Control::AnswerStock(const Member& member, const Arguments& arguments, VARIANT* pResult) {
    switch (member.id) {
        case DISPID_HWND:
            // Window handles have 32 bits that count, on 64-bit systems too.
            if (arguments.IsPut()) {
                throw Refusal{DISP_E_MEMBERNOTFOUND};
            }
            Give(pResult, VT_I4, HandleToLong(m_hWnd));
            return true;
        case DISPID_ENABLED:
            if (!arguments.IsPut()) {
                Give(pResult, VT_BOOL, IsEnabled());
                return true;
            }
            m_store.Put(member, arguments.Raw(0));
            SetDirty();
            if (m_hWnd != nullptr) {
                ::EnableWindow(m_hWnd, IsEnabled());
            }
            OnStored(member);
            return true;
        case DISPID_REFRESH:
            Invalidate();
            if (m_hWnd != nullptr) {
                ::UpdateWindow(m_hWnd);
            }
            return true;
        default:
            return false;
    }
}

void Control::Put(DISPID id, LONG nIndex, const VARIANT& value) {
    const Member* pMember = Members().Find(id);
    if (pMember == nullptr) {
        throw Refusal{DISP_E_MEMBERNOTFOUND};
    }
    VARIANTARG arguments[2] = {value, {}};
    arguments[1].vt = VT_I4;
    arguments[1].lVal = nIndex;
    DISPID idNamed = DISPID_PROPERTYPUT;
    const DISPPARAMS params = {arguments, &idNamed, nIndex == kNoIndex ? 1U : 2U, 1};
    const bool bByReference = (pMember->wFlags & DISPATCH_PROPERTYPUT) == 0;
    Answer(
        *pMember,
        Arguments(*pMember, bByReference ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT, params),
        nullptr);
}

LONG Control::Number(DISPID id) const {
    const Member* pMember = Members().Find(id);
    return pMember != nullptr ? m_store.Number(*pMember, DefaultNumber(*pMember)) : 0;
}

std::wstring_view Control::Text(DISPID id) const {
    const Member* pMember = Members().Find(id);
    return pMember != nullptr ? m_store.Text(*pMember) : std::wstring_view();
}

IUnknown* Control::Object(DISPID id) const {
    const Member* pMember = Members().Find(id);
    return pMember != nullptr ? m_store.Object(*pMember) : nullptr;
}

void Control::OnStored(const Member&) {
    Invalidate();
}

void Control::OnFontChanged() {
    Invalidate();
}

void Control::OnAmbientChanged(DISPID) {
    Invalidate();
}

LONG Control::DefaultNumber(const Member& member) const {
    return member.id == DISPID_ENABLED ? TRUE : Members().RuleOf(member).nDefault;
}

void Control::Reset() {
    m_store.Clear();
    m_font.Reset();
}

void Control::Collect(std::vector<Record>& records) {
    m_store.ForEach([&](const Member& member, const Variant& value) {
        records.push_back({member.id, kNoIndex, value});
    });
    if (m_font.IsSet()) {
        Record record = {DISPID_FONT, kNoIndex, {}};
        GiveObject(record.value.Get(), m_font.Get());
        records.push_back(std::move(record));
    }
}

void Control::Restore(const std::vector<Record>& records) {
    ++m_nFrozen;
    const HRESULT hr = Guarded([&] {
        Reset();
        for (const Record& record : records) {
            // One that this control does not take is as good as not there.
            const HRESULT hrPut = Guarded([&] {
                Put(record.id, record.nIndex, record.value.Value());
                return S_OK;
            });
            if (hrPut == E_OUTOFMEMORY) {
                return hrPut;
            }
        }
        return S_OK;
    });
    --m_nFrozen;
    m_bDirty = false;
    if (m_hWnd != nullptr) {
        ::EnableWindow(m_hWnd, IsEnabled());
    }
    Invalidate();
    Check(hr);
}

STDMETHODIMP Control::GetClassID(CLSID* pClsid) {
    if (pClsid == nullptr) {
        return E_POINTER;
    }
    *pClsid = m_kind.clsid;
    return S_OK;
}

STDMETHODIMP Control::IsDirty() {
    return m_bDirty ? S_OK : S_FALSE;
}

STDMETHODIMP Control::InitNew() {
    return Guarded([this] {
        const Hold hold(*this);
        Restore({});
        return S_OK;
    });
}

STDMETHODIMP Control::Load(IStream* pStream) {
    if (pStream == nullptr) {
        return E_POINTER;
    }
    return Guarded([&] {
        const Hold hold(*this);
        Restore(ReadState(*pStream));
        return S_OK;
    });
}

STDMETHODIMP Control::Save(IStream* pStream, BOOL bClearDirty) {
    if (pStream == nullptr) {
        return E_POINTER;
    }
    return Guarded([&] {
        const Hold hold(*this);
        std::vector<Record> records;
        Collect(records);
        WriteState(*pStream, records);
        m_bDirty = m_bDirty && !bClearDirty;
        return S_OK;
    });
}

STDMETHODIMP Control::GetSizeMax(ULARGE_INTEGER* pnSize) {
    if (pnSize == nullptr) {
        return E_POINTER;
    }
    return Guarded([&] {
        std::vector<Record> records;
        Collect(records);
        pnSize->QuadPart = ToBytes(records).size();
        return S_OK;
    });
}

STDMETHODIMP Control::InitNew(IStorage*) {
    return InitNew();
}

static constexpr wchar_t kStreamName[] = L"Contents";

STDMETHODIMP Control::Load(IStorage* pStorage) {
    if (pStorage == nullptr) {
        return E_POINTER;
    }
    Ref<IStream> stream;
    const HRESULT hr = pStorage->OpenStream(kStreamName, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE,
                                            0, stream.Out());
    return FAILED(hr) ? hr : Load(stream.Get());
}

STDMETHODIMP Control::Save(IStorage* pStorage, BOOL) {
    if (pStorage == nullptr) {
        return E_POINTER;
    }
    Ref<IStream> stream;
    const HRESULT hr = pStorage->CreateStream(
        kStreamName, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, 0, stream.Out());
    return FAILED(hr) ? hr : Save(stream.Get(), FALSE);
}

STDMETHODIMP Control::SaveCompleted(IStorage*) {
    m_bDirty = false;
    return S_OK;
}

STDMETHODIMP Control::HandsOffStorage() {
    return S_OK;
}

STDMETHODIMP Control::EnumConnectionPoints(IEnumConnectionPoints** ppEnum) {
    return EnumPoints(&m_events, ppEnum);
}

STDMETHODIMP Control::FindConnectionPoint(REFIID iid, IConnectionPoint** ppPoint) {
    if (ppPoint == nullptr) {
        return E_POINTER;
    }
    const bool bOurs = iid == m_kind.iidEvents || iid == IID_IDispatch;
    *ppPoint = bOurs ? Ref<IConnectionPoint>(&m_events).Detach() : nullptr;
    return bOurs ? S_OK : CONNECT_E_NOCONNECTION;
}

STDMETHODIMP Control::GetClassInfo(ITypeInfo** ppInfo) {
    if (ppInfo != nullptr) {
        *ppInfo = nullptr;
    }
    return E_NOTIMPL;
}

STDMETHODIMP Control::GetGUID(DWORD dwKind, GUID* pGuid) {
    if (pGuid == nullptr) {
        return E_POINTER;
    }
    const bool bKnown = dwKind == GUIDKIND_DEFAULT_SOURCE_DISP_IID;
    *pGuid = bKnown ? m_kind.iidEvents : GUID_NULL;
    return bKnown ? S_OK : E_INVALIDARG;
}

VARIANTARG Control::EventArgument(short n) {
    VARIANTARG argument = {};
    argument.vt = VT_I2;
    argument.iVal = n;
    return argument;
}

VARIANTARG Control::EventArgument(LONG n) {
    VARIANTARG argument = {};
    argument.vt = VT_I4;
    argument.lVal = n;
    return argument;
}

VARIANTARG Control::EventArgument(short* pn) {
    VARIANTARG argument = {};
    argument.vt = VT_BYREF | VT_I2;
    argument.piVal = pn;
    return argument;
}

VARIANTARG Control::EventArgument(LONG* pn) {
    VARIANTARG argument = {};
    argument.vt = VT_BYREF | VT_I4;
    argument.plVal = pn;
    return argument;
}

HRESULT Control::FireEvent(DISPID id, std::span<VARIANTARG> arguments) noexcept {
    if (m_nFrozen > 0) {
        return S_OK;
    }
    const Hold hold(*this);
    return m_events.Fire(id, arguments);
}

}  // namespace ocx
