#include "ocx/spoken.h"

#include "ocx/caption.h"

#include <algorithm>

namespace ocx {

namespace {

VARIANT NumberVariant(LONG n) {
    VARIANT value = {};
    value.vt = VT_I4;
    value.lVal = n;
    return value;
}

HRESULT GiveWindow(HWND hWnd, IDispatch** ppObject) {
    return ::AccessibleObjectFromWindow(hWnd, static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                        reinterpret_cast<void**>(ppObject));
}

LONG CountChildren(HWND hWnd) {
    LONG nCount = 0;
    for (HWND h = ::GetWindow(hWnd, GW_CHILD); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT)) {
        ++nCount;
    }
    return nCount;
}

/// Child nIndex from 0.
HWND ChildAt(HWND hWnd, LONG nIndex) {
    HWND h = ::GetWindow(hWnd, GW_CHILD);
    while (h != nullptr && nIndex-- > 0) {
        h = ::GetWindow(h, GW_HWNDNEXT);
    }
    return h;
}

/// The text of the static control just before a window.
std::wstring LabelOf(HWND hWnd) {
    wchar_t szClass[8] = L"";
    const HWND hLabel = ::GetWindow(hWnd, GW_HWNDPREV);
    if (hLabel == nullptr ||
        ::GetClassNameW(hLabel, szClass, static_cast<int>(std::size(szClass))) == 0 ||
        ::lstrcmpiW(szClass, L"static") != 0) {
        return {};
    }
    std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(hLabel)) + 1, L'\0');
    text.resize(
        static_cast<size_t>(::GetWindowTextW(hLabel, text.data(), static_cast<int>(text.size()))));
    return text;
}

}  // namespace

LONG SpokenParts::PartBeside(LONG nPart, LONG nDirection) {
    switch (nDirection) {
        case NAVDIR_UP:
        case NAVDIR_LEFT:
        case NAVDIR_PREVIOUS:
            return nPart - 1;
        case NAVDIR_DOWN:
        case NAVDIR_RIGHT:
        case NAVDIR_NEXT:
            return nPart < PartCount() ? nPart + 1 : 0;
        default:
            return 0;
    }
}

// --- The object

class SpokenObject final : public OwnObject<IAccessible>, public IOleWindow {
public:
    SpokenObject(Control& control, SpokenParts& parts, HWND hWnd)
        : m_pControl(&control), m_pParts(&parts), m_hWnd(hWnd) {}

    void Disconnect() { m_pControl = nullptr; }
    bool IsOf(HWND hWnd) const { return m_hWnd == hWnd; }

    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override {
        if (ppv != nullptr && iid == IID_IOleWindow) {
            *ppv = static_cast<IOleWindow*>(this);
        } else if (ppv != nullptr && iid == IID_IDispatch) {
            *ppv = static_cast<IDispatch*>(this);
        } else {
            return OwnObject::QueryInterface(iid, ppv);
        }
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return OwnObject::AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return OwnObject::Release(); }

    // Who asks by names gets no answer: the interface itself is what readers ask.
    STDMETHODIMP GetTypeInfoCount(UINT* pnCount) override {
        if (pnCount == nullptr) {
            return E_POINTER;
        }
        *pnCount = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        return E_NOTIMPL;
    }

    STDMETHODIMP get_accParent(IDispatch** ppParent) override;
    STDMETHODIMP get_accChildCount(long* pnCount) override;
    STDMETHODIMP get_accChild(VARIANT part, IDispatch** ppChild) override;
    STDMETHODIMP get_accName(VARIANT part, BSTR* pbstr) override {
        return Text(part, &Spoken::name, pbstr);
    }
    STDMETHODIMP get_accValue(VARIANT part, BSTR* pbstr) override {
        return Text(part, &Spoken::value, pbstr);
    }
    STDMETHODIMP get_accDescription(VARIANT part, BSTR* pbstr) override {
        return Text(part, &Spoken::description, pbstr);
    }
    STDMETHODIMP get_accDefaultAction(VARIANT part, BSTR* pbstr) override {
        return Text(part, &Spoken::action, pbstr);
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT part, BSTR* pbstr) override {
        return Text(part, &Spoken::shortcut, pbstr);
    }
    STDMETHODIMP get_accRole(VARIANT part, VARIANT* pRole) override {
        return Figure(part, &Spoken::nRole, pRole);
    }
    STDMETHODIMP get_accState(VARIANT part, VARIANT* pState) override {
        return Figure(part, &Spoken::nState, pState);
    }
    STDMETHODIMP get_accHelp(VARIANT, BSTR* pbstr) override {
        if (pbstr == nullptr) {
            return E_POINTER;
        }
        *pbstr = nullptr;
        return S_FALSE;
    }
    STDMETHODIMP get_accHelpTopic(BSTR*, VARIANT, long*) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP get_accFocus(VARIANT* pPart) override;
    STDMETHODIMP get_accSelection(VARIANT* pParts) override;
    STDMETHODIMP accSelect(long nFlags, VARIANT part) override;
    STDMETHODIMP accLocation(long* pLeft, long* pTop, long* pWidth, long* pHeight,
                             VARIANT part) override;
    STDMETHODIMP accNavigate(long nDirection, VARIANT start, VARIANT* pEnd) override;
    STDMETHODIMP accHitTest(long x, long y, VARIANT* pPart) override;
    STDMETHODIMP accDoDefaultAction(VARIANT part) override;
    STDMETHODIMP put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP put_accValue(VARIANT part, BSTR bstr) override;

    STDMETHODIMP GetWindow(HWND* phWnd) override {
        if (phWnd == nullptr) {
            return E_POINTER;
        }
        *phWnd = IsConnected() ? m_hWnd : nullptr;
        return *phWnd != nullptr ? S_OK : CO_E_OBJNOTCONNECTED;
    }
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }

    /// For an enumeration.
    HRESULT NextSelected(LONG& nPart) {
        return Try([&] {
            nPart = m_pParts->NextSelected(nPart);
            return S_OK;
        });
    }

private:
    bool IsConnected() const {
        HWND hWnd = nullptr;
        return m_pControl != nullptr && SUCCEEDED(m_pControl->GetWindow(&hWnd)) && hWnd == m_hWnd;
    }
    /// The control lives until the deed is done.
    template <class F>
    HRESULT Try(F deed) {
        if (!IsConnected()) {
            return CO_E_OBJNOTCONNECTED;
        }
        const Control::Hold hold(*m_pControl);
        return Guarded(deed);
    }
    /// The same with the number of a part that there is.
    template <class F>
    HRESULT TryPart(const VARIANT& part, F deed) {
        return Try([&]() -> HRESULT {
            if (part.vt != VT_I4 || part.lVal < 0 || part.lVal > AllParts()) {
                return E_INVALIDARG;
            }
            return deed(part.lVal);
        });
    }
    LONG AllParts() {
        const LONG nOwn = m_pParts->PartCount();
        return m_pParts->HasWindows() ? nOwn + std::min(CountChildren(m_hWnd), MAXLONG - nOwn)
                                      : nOwn;
    }
    HWND WindowOf(LONG nPart) {
        const LONG nOwn = m_pParts->PartCount();
        return nPart > nOwn && m_pParts->HasWindows() ? ChildAt(m_hWnd, nPart - nOwn - 1) : nullptr;
    }
    HRESULT GivePart(LONG nPart, VARIANT* pPart) {
        pPart->vt = VT_EMPTY;
        if (const HWND hChild = WindowOf(nPart)) {
            const HRESULT hr = GiveWindow(hChild, &pPart->pdispVal);
            pPart->vt = static_cast<VARTYPE>(SUCCEEDED(hr) ? VT_DISPATCH : VT_EMPTY);
            return hr;
        }
        *pPart = NumberVariant(nPart);
        return S_OK;
    }
    Spoken SayAll(LONG nPart);
    HRESULT Text(const VARIANT& part, std::wstring Spoken::*text, BSTR* pbstr);
    HRESULT Figure(const VARIANT& part, LONG Spoken::*figure, VARIANT* pFigure);
    Ref<IAccessible> Standard() const {
        Ref<IAccessible> standard;
        ::CreateStdAccessibleObject(m_hWnd, OBJID_CLIENT, __uuidof(IAccessible),
                                    reinterpret_cast<void**>(standard.Out()));
        return standard;
    }

    Control* m_pControl;  ///< null once it is gone, and the parts with it
    SpokenParts* m_pParts;
    const HWND m_hWnd;
};

namespace {

class SelectedParts final : public OwnObject<IEnumVARIANT> {
public:
    SelectedParts(SpokenObject& object, LONG nLast) : m_object(&object), m_nLast(nLast) {}

    STDMETHODIMP Next(ULONG nWanted, VARIANT* pFound, ULONG* pnFound) override {
        if (pFound == nullptr || (pnFound == nullptr && nWanted != 1)) {
            return E_POINTER;
        }
        HRESULT hr = S_OK;
        ULONG nFound = 0;
        while (hr == S_OK && nFound < nWanted) {
            hr = Step();
            if (hr == S_OK) {
                pFound[nFound++] = NumberVariant(m_nLast);
            }
        }
        if (pnFound != nullptr) {
            *pnFound = nFound;
        }
        return hr;
    }
    STDMETHODIMP Skip(ULONG nParts) override {
        HRESULT hr = S_OK;
        while (hr == S_OK && nParts-- > 0) {
            hr = Step();
        }
        return hr;
    }
    STDMETHODIMP Reset() override {
        m_nLast = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(IEnumVARIANT** ppClone) override {
        if (ppClone == nullptr) {
            return E_POINTER;
        }
        return Guarded([&] {
            *ppClone = Ref<IEnumVARIANT>(new SelectedParts(*m_object.Get(), m_nLast)).Detach();
            return S_OK;
        });
    }

private:
    /// S_FALSE at the end, and ever after.
    HRESULT Step() {
        if (m_nLast < 0) {
            return S_FALSE;
        }
        LONG nPart = m_nLast;
        const HRESULT hr = m_object->NextSelected(nPart);
        if (FAILED(hr)) {
            return hr;
        }
        m_nLast = nPart != 0 ? nPart : -1;
        return nPart != 0 ? S_OK : S_FALSE;
    }

    const Ref<SpokenObject> m_object;
    LONG m_nLast;
};

}  // namespace

/// With what every window gives.
Spoken SpokenObject::SayAll(LONG nPart) {
    Spoken spoken = m_pParts->Say(nPart);
    if (!::IsWindowEnabled(m_hWnd)) {
        spoken.nState |= STATE_SYSTEM_UNAVAILABLE;
        spoken.nState &= ~(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE);
    }
    if (!::IsWindowVisible(m_hWnd)) {
        spoken.nState |= STATE_SYSTEM_INVISIBLE;
    }
    if (nPart == CHILDID_SELF && spoken.name.empty()) {
        const Caption label(LabelOf(m_hWnd), false);
        spoken.name = label.text;
        spoken.shortcut = label.text.substr(std::min(label.nMnemonic, label.text.size()), 1);
    }
    if (!spoken.shortcut.empty()) {
        spoken.shortcut.insert(0, L"Alt+");
    }
    return spoken;
}

HRESULT SpokenObject::Text(const VARIANT& part, std::wstring Spoken::*text, BSTR* pbstr) {
    if (pbstr == nullptr) {
        return E_POINTER;
    }
    *pbstr = nullptr;
    return TryPart(part, [&](LONG nPart) -> HRESULT {
        if (WindowOf(nPart) != nullptr) {
            return S_FALSE;  // it says that itself
        }
        const std::wstring str = SayAll(nPart).*text;
        if (str.empty()) {
            return S_FALSE;
        }
        *pbstr = ::SysAllocStringLen(str.data(), static_cast<UINT>(str.size()));
        return *pbstr != nullptr ? S_OK : E_OUTOFMEMORY;
    });
}

HRESULT SpokenObject::Figure(const VARIANT& part, LONG Spoken::*figure, VARIANT* pFigure) {
    if (pFigure == nullptr) {
        return E_POINTER;
    }
    pFigure->vt = VT_EMPTY;
    return TryPart(part, [&](LONG nPart) {
        *pFigure = NumberVariant(WindowOf(nPart) == nullptr ? SayAll(nPart).*figure
                                 : figure == &Spoken::nRole ? ROLE_SYSTEM_WINDOW
                                                            : 0);
        return S_OK;
    });
}

STDMETHODIMP SpokenObject::get_accParent(IDispatch** ppParent) {
    if (ppParent == nullptr) {
        return E_POINTER;
    }
    *ppParent = nullptr;
    return Try([&] {
        const auto standard = Standard();
        return standard ? standard->get_accParent(ppParent) : E_FAIL;
    });
}

STDMETHODIMP SpokenObject::get_accChildCount(long* pnCount) {
    if (pnCount == nullptr) {
        return E_POINTER;
    }
    *pnCount = 0;
    return Try([&] {
        *pnCount = AllParts();
        return S_OK;
    });
}

STDMETHODIMP SpokenObject::get_accChild(VARIANT part, IDispatch** ppChild) {
    if (ppChild == nullptr) {
        return E_POINTER;
    }
    *ppChild = nullptr;
    return TryPart(part, [&](LONG nPart) -> HRESULT {
        if (nPart == CHILDID_SELF) {
            AddRef();
            *ppChild = static_cast<IDispatch*>(this);
            return S_OK;
        }
        const HWND hChild = WindowOf(nPart);
        return hChild != nullptr ? GiveWindow(hChild, ppChild) : S_FALSE;
    });
}

STDMETHODIMP SpokenObject::get_accFocus(VARIANT* pPart) {
    if (pPart == nullptr) {
        return E_POINTER;
    }
    pPart->vt = VT_EMPTY;
    return Try([&]() -> HRESULT {
        const HWND hFocus = ::GetFocus();
        if (hFocus == nullptr || (hFocus != m_hWnd && !::IsChild(m_hWnd, hFocus))) {
            return S_FALSE;
        }
        if (hFocus != m_hWnd && m_pParts->HasWindows()) {
            const HRESULT hr = GiveWindow(hFocus, &pPart->pdispVal);
            pPart->vt = static_cast<VARTYPE>(SUCCEEDED(hr) ? VT_DISPATCH : VT_EMPTY);
            return hr;
        }
        *pPart = NumberVariant(m_pParts->FocusedPart());
        return S_OK;
    });
}

STDMETHODIMP SpokenObject::get_accSelection(VARIANT* pParts) {
    if (pParts == nullptr) {
        return E_POINTER;
    }
    pParts->vt = VT_EMPTY;
    return Try([&]() -> HRESULT {
        const LONG nFirst = m_pParts->NextSelected(0);
        if (nFirst == 0) {
            return S_FALSE;
        }
        if (m_pParts->NextSelected(nFirst) == 0) {
            *pParts = NumberVariant(nFirst);
            return S_OK;
        }
        pParts->punkVal = Ref<IEnumVARIANT>(new SelectedParts(*this, 0)).Detach();
        pParts->vt = VT_UNKNOWN;
        return S_OK;
    });
}

STDMETHODIMP SpokenObject::accSelect(long nFlags, VARIANT part) {
    constexpr long kKnown = SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION;
    return TryPart(part, [&](LONG nPart) -> HRESULT {
        if ((nFlags & kKnown) == 0 || (nFlags & ~kKnown) != 0 || !::IsWindowEnabled(m_hWnd)) {
            return S_FALSE;
        }
        if (nPart != CHILDID_SELF && !m_pParts->SelectPart(nPart)) {
            return S_FALSE;
        }
        if ((nFlags & SELFLAG_TAKEFOCUS) != 0 && IsConnected()) {
            ::SetFocus(m_hWnd);
        }
        return S_OK;
    });
}

STDMETHODIMP SpokenObject::accDoDefaultAction(VARIANT part) {
    return TryPart(part, [&](LONG nPart) {
        return ::IsWindowEnabled(m_hWnd) && m_pParts->DoPart(nPart) ? S_OK : DISP_E_MEMBERNOTFOUND;
    });
}

STDMETHODIMP SpokenObject::put_accValue(VARIANT part, BSTR bstr) {
    return TryPart(part, [&](LONG nPart) {
        return ::IsWindowEnabled(m_hWnd) && m_pParts->PutPart(nPart, {bstr != nullptr ? bstr : L"",
                                                                      ::SysStringLen(bstr)})
                   ? S_OK
                   : DISP_E_MEMBERNOTFOUND;
    });
}

STDMETHODIMP SpokenObject::accLocation(long* pLeft, long* pTop, long* pWidth, long* pHeight,
                                       VARIANT part) {
    if (pLeft == nullptr || pTop == nullptr || pWidth == nullptr || pHeight == nullptr) {
        return E_POINTER;
    }
    *pLeft = *pTop = *pWidth = *pHeight = 0;
    return TryPart(part, [&](LONG nPart) {
        RECT rect = {};
        if (const HWND hChild = WindowOf(nPart)) {
            ::GetWindowRect(hChild, &rect);
        } else if (nPart == CHILDID_SELF ? ::GetClientRect(m_hWnd, &rect) != 0
                                         : m_pParts->PartRect(nPart, rect)) {
            ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(&rect), 2);
        } else {
            return S_FALSE;
        }
        *pLeft = rect.left;
        *pTop = rect.top;
        *pWidth = rect.right - rect.left;
        *pHeight = rect.bottom - rect.top;
        return S_OK;
    });
}

STDMETHODIMP SpokenObject::accHitTest(long x, long y, VARIANT* pPart) {
    if (pPart == nullptr) {
        return E_POINTER;
    }
    pPart->vt = VT_EMPTY;
    return Try([&]() -> HRESULT {
        POINT pt = {x, y};
        RECT rect = {};
        ::ScreenToClient(m_hWnd, &pt);
        ::GetClientRect(m_hWnd, &rect);
        if (!::PtInRect(&rect, pt)) {
            return S_FALSE;
        }
        const HWND hChild = ::ChildWindowFromPointEx(m_hWnd, pt, CWP_SKIPINVISIBLE);
        if (hChild != nullptr && hChild != m_hWnd && m_pParts->HasWindows()) {
            const HRESULT hr = GiveWindow(hChild, &pPart->pdispVal);
            pPart->vt = static_cast<VARTYPE>(SUCCEEDED(hr) ? VT_DISPATCH : VT_EMPTY);
            return hr;
        }
        *pPart = NumberVariant(m_pParts->PartAt(pt));
        return S_OK;
    });
}

STDMETHODIMP SpokenObject::accNavigate(long nDirection, VARIANT start, VARIANT* pEnd) {
    if (pEnd == nullptr) {
        return E_POINTER;
    }
    pEnd->vt = VT_EMPTY;
    if (nDirection <= NAVDIR_MIN || nDirection >= NAVDIR_MAX) {
        return E_INVALIDARG;
    }
    return TryPart(start, [&](LONG nPart) -> HRESULT {
        LONG nEnd = 0;
        if (nPart != CHILDID_SELF) {
            nEnd = nPart <= m_pParts->PartCount() ? m_pParts->PartBeside(nPart, nDirection) : 0;
        } else if (nDirection == NAVDIR_FIRSTCHILD || nDirection == NAVDIR_LASTCHILD) {
            const LONG nCount = AllParts();
            nEnd = nDirection == NAVDIR_LASTCHILD ? nCount : std::min(nCount, 1L);
        } else {
            const auto standard = Standard();  // what lies beside the control
            return standard && standard->accNavigate(nDirection, start, pEnd) == S_OK ? S_OK
                                                                                      : S_FALSE;
        }
        return nEnd != 0 ? GivePart(nEnd, pEnd) : S_FALSE;
    });
}

// --- The control's side

SpokenControl::~SpokenControl() {
    if (m_pObject != nullptr) {
        m_pObject->Disconnect();
    }
}

HWND SpokenControl::Window() {
    HWND hWnd = nullptr;
    return SUCCEEDED(m_control.GetWindow(&hWnd)) ? hWnd : nullptr;
}

bool SpokenControl::Answer(WPARAM wParam, LPARAM lParam, LRESULT& lResult) {
    const HWND hWnd = Window();
    if (static_cast<LONG>(lParam) != static_cast<LONG>(OBJID_CLIENT) || hWnd == nullptr) {
        return false;
    }
    if (m_pObject == nullptr || !m_pObject->IsOf(hWnd)) {
        auto* pObject = new SpokenObject(m_control, m_parts, hWnd);
        if (m_pObject != nullptr) {
            m_pObject->Disconnect();
        }
        m_object = Ref<IAccessible>(pObject);
        m_pObject = pObject;
    }
    lResult = ::LresultFromObject(__uuidof(IAccessible), wParam, m_object.Get());
    return SUCCEEDED(static_cast<HRESULT>(lResult));
}

void SpokenControl::Tell(DWORD dwEvent, LONG nPart) {
    if (const HWND hWnd = Window()) {
        ::NotifyWinEvent(dwEvent, hWnd, OBJID_CLIENT, nPart);
    }
}

}  // namespace ocx
