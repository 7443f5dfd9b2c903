#include "frame/accessible_object.h"

#include "frame/out_of_memory.h"
#include "frame/wide_text.h"

#include <algorithm>
#include <new>

namespace qv {

namespace {

constexpr LONG kSelectionFlags = SELFLAG_TAKESELECTION | SELFLAG_EXTENDSELECTION |
                                 SELFLAG_ADDSELECTION | SELFLAG_REMOVESELECTION;

// The combinations that mean something.
bool IsSelectionFlags(long nFlags) {
    const bool bAddAndRemove =
        (nFlags & SELFLAG_ADDSELECTION) != 0 && (nFlags & SELFLAG_REMOVESELECTION) != 0;
    const bool bTakeAndMore = (nFlags & SELFLAG_TAKESELECTION) != 0 &&
                              (nFlags & kSelectionFlags) != SELFLAG_TAKESELECTION;
    return (nFlags & ~(kSelectionFlags | SELFLAG_TAKEFOCUS)) == 0 && !bAddAndRemove &&
           !bTakeAndMore;
}

// S_FALSE for an empty text: there is nothing to be said.
HRESULT GiveText(const CString& strText, BSTR* pbstr) {
    if (strText.IsEmpty()) {
        return S_FALSE;
    }
    const WideText wide({strText, static_cast<size_t>(strText.GetLength())});
    *pbstr = ::SysAllocStringLen(wide.Data(), static_cast<UINT>(wide.Length()));
    return *pbstr != nullptr ? S_OK : E_OUTOFMEMORY;
}

void GiveNumber(long nNumber, VARIANT* pNumber) {
    pNumber->vt = VT_I4;
    pNumber->lVal = nNumber;
}

HRESULT GiveWindow(HWND hWnd, IDispatch** ppDispatch) {
    return ::AccessibleObjectFromWindow(hWnd, static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                        reinterpret_cast<void**>(ppDispatch));
}

// COM in this thread from now on. It may not go before the last of the objects does, which others
// decide, so it stays; a thread that has it already keeps what it has.
void ReadyCom() {
    if (::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED) == S_FALSE) {
        ::CoUninitialize();
    }
}

}  // namespace

// --- The object

AccessibleObject* AccessibleObject::Make(QVAccessible& parts, CWnd& wnd) {
    return new (std::nothrow) AccessibleObject(parts, wnd);
}

AccessibleObject::~AccessibleObject() {
    if (m_pStandard != nullptr) {
        m_pStandard->Release();
    }
}

LRESULT AccessibleObject::Answer(WPARAM wParam) {
    ReadyCom();
    const LRESULT lResult =
        ::LresultFromObject(__uuidof(IAccessible), wParam, static_cast<IAccessible*>(this));
    return FAILED(static_cast<HRESULT>(lResult)) ? 0 : lResult;
}

// Nothing leaves a call but its result.
template <class Deed>
HRESULT AccessibleObject::Try(Deed deed) {
    if (!Connected()) {
        return CO_E_OBJNOTCONNECTED;
    }
    HRESULT hr = E_FAIL;
    try {
        return MemorySuffices([&] { hr = deed(); }) ? hr : E_OUTOFMEMORY;
    } catch (CException* pException) {
        pException->Delete();
    } catch (...) {  // of a step that a program replaced
    }
    return E_FAIL;
}

template <class Deed>
HRESULT AccessibleObject::AskOf(const VARIANT& part, Deed deed) {
    return Try([&]() -> HRESULT {
        if (part.vt != VT_I4 ||
            (part.lVal != CHILDID_SELF && !m_pParts->IsAccessiblePart(part.lVal))) {
            return E_INVALIDARG;
        }
        return deed(part.lVal);
    });
}

HRESULT AccessibleObject::AskText(TextStep step, const VARIANT& part, BSTR* pbstr) {
    if (pbstr == nullptr) {
        return E_POINTER;
    }
    *pbstr = nullptr;
    return AskOf(part, [&](long nPart) { return GiveText((m_pParts->*step)(nPart), pbstr); });
}

HRESULT AccessibleObject::AskNumber(NumberStep step, const VARIANT& part, VARIANT* pNumber) {
    if (pNumber == nullptr) {
        return E_POINTER;
    }
    pNumber->vt = VT_EMPTY;
    return AskOf(part, [&](long nPart) {
        GiveNumber((m_pParts->*step)(nPart), pNumber);
        return S_OK;
    });
}

// As others know the part: by number, or by the object of its window. 0 is given as nothing.
HRESULT AccessibleObject::GivePart(long nPart, VARIANT* pPart) {
    if (nPart == 0) {
        pPart->vt = VT_EMPTY;
        return S_FALSE;
    }
    if (const HWND hWnd = m_pParts->GetAccessibleWindow(nPart)) {
        const HRESULT hr = GiveWindow(hWnd, &pPart->pdispVal);
        pPart->vt = static_cast<VARTYPE>(SUCCEEDED(hr) ? VT_DISPATCH : VT_EMPTY);
        return hr;
    }
    GiveNumber(nPart, pPart);
    return S_OK;
}

IAccessible* AccessibleObject::Standard() {
    if (m_pStandard == nullptr) {
        ::CreateStdAccessibleObject(m_hWnd, OBJID_CLIENT, __uuidof(IAccessible),
                                    reinterpret_cast<void**>(&m_pStandard));
    }
    return m_pStandard;
}

// --- IUnknown

STDMETHODIMP AccessibleObject::QueryInterface(REFIID riid, void** ppv) {
    if (ppv == nullptr) {
        return E_POINTER;
    }
    *ppv = nullptr;
    if (riid == IID_IUnknown || riid == IID_IDispatch || riid == __uuidof(IAccessible)) {
        *ppv = static_cast<IAccessible*>(this);
    } else if (riid == IID_IOleWindow) {
        *ppv = static_cast<IOleWindow*>(this);
    } else if (riid == IID_IEnumVARIANT) {
        *ppv = static_cast<IEnumVARIANT*>(this);
    } else {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) AccessibleObject::AddRef() {
    return static_cast<ULONG>(::InterlockedIncrement(&m_nReferences));
}

STDMETHODIMP_(ULONG) AccessibleObject::Release() {
    const LONG nLeft = ::InterlockedDecrement(&m_nReferences);
    if (nLeft == 0) {
        delete this;
    }
    return static_cast<ULONG>(nLeft);
}

// --- IDispatch: by the type library that comes with the system's accessibility module

STDMETHODIMP AccessibleObject::GetTypeInfoCount(UINT* pnInfos) {
    if (pnInfos == nullptr) {
        return E_POINTER;
    }
    ITypeInfo* pInfo = nullptr;
    *pnInfos = SUCCEEDED(GetTypeInfo(0, LOCALE_NEUTRAL, &pInfo)) ? 1 : 0;
    if (pInfo != nullptr) {
        pInfo->Release();
    }
    return S_OK;
}

STDMETHODIMP AccessibleObject::GetTypeInfo(UINT nInfo, LCID, ITypeInfo** ppInfo) {
    if (ppInfo == nullptr) {
        return E_POINTER;
    }
    *ppInfo = nullptr;
    if (nInfo != 0) {
        return DISP_E_BADINDEX;
    }
    ITypeLib* pLibrary = nullptr;
    HRESULT hr = ::LoadTypeLib(L"oleacc.dll", &pLibrary);
    if (SUCCEEDED(hr)) {
        hr = pLibrary->GetTypeInfoOfGuid(__uuidof(IAccessible), ppInfo);
        pLibrary->Release();
    }
    return hr;
}

STDMETHODIMP AccessibleObject::GetIDsOfNames(REFIID, LPOLESTR* ppNames, UINT nNames, LCID,
                                             DISPID* pIds) {
    if (ppNames == nullptr || pIds == nullptr) {
        return E_POINTER;
    }
    ITypeInfo* pInfo = nullptr;
    HRESULT hr = GetTypeInfo(0, LOCALE_NEUTRAL, &pInfo);
    if (SUCCEEDED(hr)) {
        hr = ::DispGetIDsOfNames(pInfo, ppNames, nNames, pIds);
        pInfo->Release();
    }
    return hr;
}

STDMETHODIMP AccessibleObject::Invoke(DISPID id, REFIID, LCID, WORD wFlags, DISPPARAMS* pParams,
                                      VARIANT* pResult, EXCEPINFO* pException, UINT* pnError) {
    if (pParams == nullptr) {
        return E_POINTER;
    }
    ITypeInfo* pInfo = nullptr;
    HRESULT hr = GetTypeInfo(0, LOCALE_NEUTRAL, &pInfo);
    if (SUCCEEDED(hr)) {
        hr = ::DispInvoke(static_cast<IAccessible*>(this), pInfo, id, wFlags, pParams, pResult,
                          pException, pnError);
        pInfo->Release();
    }
    return hr;
}

// --- IAccessible: what is there

STDMETHODIMP AccessibleObject::get_accParent(IDispatch** ppParent) {
    if (ppParent == nullptr) {
        return E_POINTER;
    }
    *ppParent = nullptr;
    return Try([&] {
        IAccessible* const pStandard = Standard();
        return pStandard != nullptr ? pStandard->get_accParent(ppParent) : E_FAIL;
    });
}

STDMETHODIMP AccessibleObject::get_accChildCount(long* pnCount) {
    if (pnCount == nullptr) {
        return E_POINTER;
    }
    *pnCount = 0;
    return Try([&] {
        *pnCount = m_pParts->GetAccessibleCount();
        return S_OK;
    });
}

STDMETHODIMP AccessibleObject::get_accChild(VARIANT part, IDispatch** ppChild) {
    if (ppChild == nullptr) {
        return E_POINTER;
    }
    *ppChild = nullptr;
    return AskOf(part, [&](long nPart) -> HRESULT {
        if (nPart == CHILDID_SELF) {
            *ppChild = static_cast<IAccessible*>(this);
            AddRef();
            return S_OK;
        }
        const HWND hWnd = m_pParts->GetAccessibleWindow(nPart);
        return hWnd != nullptr ? GiveWindow(hWnd, ppChild) : S_FALSE;
    });
}

STDMETHODIMP AccessibleObject::get_accName(VARIANT part, BSTR* pbstr) {
    return AskText(&QVAccessible::GetAccessibleName, part, pbstr);
}

STDMETHODIMP AccessibleObject::get_accValue(VARIANT part, BSTR* pbstr) {
    return AskText(&QVAccessible::GetAccessibleValue, part, pbstr);
}

STDMETHODIMP AccessibleObject::get_accDescription(VARIANT part, BSTR* pbstr) {
    return AskText(&QVAccessible::GetAccessibleDescription, part, pbstr);
}

STDMETHODIMP AccessibleObject::get_accKeyboardShortcut(VARIANT part, BSTR* pbstr) {
    return AskText(&QVAccessible::GetAccessibleShortcut, part, pbstr);
}

STDMETHODIMP AccessibleObject::get_accDefaultAction(VARIANT part, BSTR* pbstr) {
    return AskText(&QVAccessible::GetAccessibleAction, part, pbstr);
}

STDMETHODIMP AccessibleObject::get_accRole(VARIANT part, VARIANT* pRole) {
    return AskNumber(&QVAccessible::GetAccessibleRole, part, pRole);
}

STDMETHODIMP AccessibleObject::get_accState(VARIANT part, VARIANT* pState) {
    return AskNumber(&QVAccessible::GetAccessibleState, part, pState);
}

STDMETHODIMP AccessibleObject::get_accHelp(VARIANT part, BSTR* pbstr) {
    if (pbstr == nullptr) {
        return E_POINTER;
    }
    *pbstr = nullptr;
    return AskOf(part, [](long) { return S_FALSE; });
}

STDMETHODIMP AccessibleObject::get_accHelpTopic(BSTR* pbstrFile, VARIANT part, long* pnTopic) {
    if (pbstrFile == nullptr || pnTopic == nullptr) {
        return E_POINTER;
    }
    *pbstrFile = nullptr;
    *pnTopic = 0;
    return AskOf(part, [](long) { return DISP_E_MEMBERNOTFOUND; });
}

STDMETHODIMP AccessibleObject::put_accName(VARIANT part, BSTR) {
    return AskOf(part, [](long) { return DISP_E_MEMBERNOTFOUND; });
}

STDMETHODIMP AccessibleObject::put_accValue(VARIANT part, BSTR bstr) {
    return AskOf(part, [&](long nPart) {
        const CString strValue(bstr, static_cast<int>(::SysStringLen(bstr)));
        return m_pParts->SetAccessibleValue(nPart, strValue) ? S_OK : DISP_E_MEMBERNOTFOUND;
    });
}

// --- Where it is

STDMETHODIMP AccessibleObject::accLocation(long* pLeft, long* pTop, long* pWidth, long* pHeight,
                                           VARIANT part) {
    if (pLeft == nullptr || pTop == nullptr || pWidth == nullptr || pHeight == nullptr) {
        return E_POINTER;
    }
    *pLeft = *pTop = *pWidth = *pHeight = 0;
    return AskOf(part, [&](long nPart) {
        CRect rect;
        if (!m_pParts->GetAccessibleRect(nPart, rect)) {
            return S_FALSE;
        }
        ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(&rect), 2);
        *pLeft = rect.left;
        *pTop = rect.top;
        *pWidth = rect.Width();
        *pHeight = rect.Height();
        return S_OK;
    });
}

STDMETHODIMP AccessibleObject::accHitTest(long x, long y, VARIANT* pPart) {
    if (pPart == nullptr) {
        return E_POINTER;
    }
    pPart->vt = VT_EMPTY;
    return Try([&] {
        CPoint pt(x, y);
        CRect rc;
        ::ScreenToClient(m_hWnd, &pt);
        if (!m_pParts->GetAccessibleRect(CHILDID_SELF, rc) || !rc.PtInRect(pt)) {
            return S_FALSE;
        }
        const long nPart = m_pParts->AccessibleHitTest(pt);
        if (nPart == CHILDID_SELF) {
            GiveNumber(CHILDID_SELF, pPart);
            return S_OK;
        }
        return GivePart(nPart, pPart);
    });
}

STDMETHODIMP AccessibleObject::accNavigate(long nDirection, VARIANT start, VARIANT* pEnd) {
    if (pEnd == nullptr) {
        return E_POINTER;
    }
    pEnd->vt = VT_EMPTY;
    if (nDirection <= NAVDIR_MIN || nDirection >= NAVDIR_MAX) {
        return E_INVALIDARG;
    }
    return AskOf(start, [&](long nPart) {
        const bool bInside = nDirection == NAVDIR_FIRSTCHILD || nDirection == NAVDIR_LASTCHILD;
        if (nPart == CHILDID_SELF && !bInside) {
            // What lies beside the control is the system's to say, where it can.
            IAccessible* const pStandard = Standard();
            if (pStandard == nullptr || pStandard->accNavigate(nDirection, start, pEnd) != S_OK) {
                pEnd->vt = VT_EMPTY;
                return S_FALSE;
            }
            return S_OK;
        }
        return GivePart(m_pParts->NavigateAccessible(nPart, nDirection), pEnd);
    });
}

// --- Focus, selection, deeds

STDMETHODIMP AccessibleObject::get_accFocus(VARIANT* pPart) {
    if (pPart == nullptr) {
        return E_POINTER;
    }
    pPart->vt = VT_EMPTY;
    return Try([&] {
        const HWND hFocus = ::GetFocus();
        if (hFocus != m_hWnd) {
            // An editor in the control, perhaps.
            if (hFocus == nullptr || !::IsChild(m_hWnd, hFocus)) {
                return S_FALSE;
            }
            const HRESULT hr = GiveWindow(hFocus, &pPart->pdispVal);
            pPart->vt = static_cast<VARTYPE>(SUCCEEDED(hr) ? VT_DISPATCH : VT_EMPTY);
            return hr;
        }
        const long nPart = m_pParts->GetAccessibleFocus();
        if (nPart == CHILDID_SELF) {
            GiveNumber(CHILDID_SELF, pPart);
            return S_OK;
        }
        return GivePart(nPart, pPart);
    });
}

STDMETHODIMP AccessibleObject::get_accSelection(VARIANT* pParts) {
    if (pParts == nullptr) {
        return E_POINTER;
    }
    pParts->vt = VT_EMPTY;
    return Try([&] {
        const long nFirst = m_pParts->GetNextAccessibleSelected(0);
        if (nFirst == 0 || m_pParts->GetNextAccessibleSelected(nFirst) == 0) {
            return GivePart(nFirst, pParts);
        }
        pParts->punkVal = MakePartEnum(*this, {true});
        pParts->vt = static_cast<VARTYPE>(pParts->punkVal != nullptr ? VT_UNKNOWN : VT_EMPTY);
        return pParts->punkVal != nullptr ? S_OK : E_OUTOFMEMORY;
    });
}

// A deed may take the control away; the caller holds the object.
STDMETHODIMP AccessibleObject::accSelect(long nFlags, VARIANT part) {
    if (!IsSelectionFlags(nFlags)) {
        return E_INVALIDARG;
    }
    return AskOf(part, [&](long nPart) {
        return nFlags != SELFLAG_NONE && m_pParts->SelectAccessible(nPart, nFlags) ? S_OK : S_FALSE;
    });
}

STDMETHODIMP AccessibleObject::accDoDefaultAction(VARIANT part) {
    return AskOf(part, [&](long nPart) {
        return m_pParts->DoAccessibleAction(nPart) ? S_OK : DISP_E_MEMBERNOTFOUND;
    });
}

// --- IOleWindow

STDMETHODIMP AccessibleObject::GetWindow(HWND* phWnd) {
    if (phWnd == nullptr) {
        return E_POINTER;
    }
    *phWnd = Connected() ? m_hWnd : nullptr;
    return *phWnd != nullptr ? S_OK : CO_E_OBJNOTCONNECTED;
}

STDMETHODIMP AccessibleObject::ContextSensitiveHelp(BOOL) {
    return E_NOTIMPL;
}

// --- IEnumVARIANT

HRESULT AccessibleObject::NextOf(PartCursor& cursor, ULONG nWanted, VARIANT* pFound,
                                 ULONG* pnFound) {
    if (pFound == nullptr || (pnFound == nullptr && nWanted != 1)) {
        return E_POINTER;
    }
    ULONG nFound = 0;
    const HRESULT hr = Try([&] {
        while (nFound < nWanted) {
            const long nPart = cursor.Next(*m_pParts);
            pFound[nFound].vt = VT_EMPTY;
            if (nPart == 0) {
                return S_FALSE;
            }
            const HRESULT hrPart = GivePart(nPart, &pFound[nFound]);
            if (FAILED(hrPart)) {
                return hrPart;
            }
            ++nFound;
        }
        return S_OK;
    });
    if (pnFound != nullptr) {
        *pnFound = nFound;
    }
    return hr;
}

HRESULT AccessibleObject::SkipOf(PartCursor& cursor, ULONG nParts) {
    return Try([&] {
        if (!cursor.bSelected) {
            const auto nLeft =
                static_cast<ULONG>(std::max(0L, m_pParts->GetAccessibleCount() - cursor.nIndex));
            cursor.nIndex += static_cast<long>(std::min(nParts, nLeft));
            return nParts <= nLeft ? S_OK : S_FALSE;
        }
        for (; nParts > 0; --nParts) {
            if (cursor.Next(*m_pParts) == 0) {
                return S_FALSE;
            }
        }
        return S_OK;
    });
}

STDMETHODIMP AccessibleObject::Next(ULONG nWanted, VARIANT* pFound, ULONG* pnFound) {
    return NextOf(m_cursor, nWanted, pFound, pnFound);
}

STDMETHODIMP AccessibleObject::Skip(ULONG nParts) {
    return SkipOf(m_cursor, nParts);
}

STDMETHODIMP AccessibleObject::Reset() {
    m_cursor = {};
    return S_OK;
}

STDMETHODIMP AccessibleObject::Clone(IEnumVARIANT** ppClone) {
    if (ppClone == nullptr) {
        return E_POINTER;
    }
    *ppClone = MakePartEnum(*this, m_cursor);
    return *ppClone != nullptr ? S_OK : E_OUTOFMEMORY;
}

}  // namespace qv
