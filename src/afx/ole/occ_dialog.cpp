#include "afx/ole/occ_dialog.h"

#include "afx/dialogs/template_view.h"
#include "afx/ole/control_container.h"
#include "afx/ole/control_site.h"
#include "afx/ole/wnd_control.h"
#include "afx/window/wnd_state.h"

#include <afxdisp.h>
#include <afxpriv.h>

#include <algorithm>

namespace {

CString TextOf(const BYTE* pText) {
    return AfxTemplateView::Word(pText) != kAfxOrdinal ? CString(reinterpret_cast<LPCWSTR>(pText))
                                                       : CString();
}

bool IsControl(const AfxTemplateView& view, const BYTE* pItem) {
    return AfxTemplateView::Word(view.ItemClass(pItem)) == L'{';
}

_AFX_OCC_DIALOG_INFO::Item ReadItem(const AfxTemplateView& view, const BYTE* pItem, int nPlace) {
    _AFX_OCC_DIALOG_INFO::Item item = {};
    item.nPlace = nPlace;
    auto take = [&](const auto& head, DWORD dwStyle) {
        item.dwStyle = dwStyle;
        item.rcUnits = CRect(CPoint(head.x, head.y), CSize(head.cx, head.cy));
    };
    if (view.IsExtended()) {
        const auto& head = *reinterpret_cast<const AfxExtendedItem*>(pItem);
        take(head, head.dwStyle);
        item.nID = head.nID;
    } else {
        const auto& head = *reinterpret_cast<const DLGITEMTEMPLATE*>(pItem);
        take(head, head.style);
        item.nID = head.id;
    }
    // One that is no class id leaves a class that nobody has.
    ::CLSIDFromString(reinterpret_cast<LPCWSTR>(view.ItemClass(pItem)), &item.clsid);
    item.strText = TextOf(view.ItemText(pItem));
    return item;
}

/// The item's saved state, and the licence key that goes with it.
struct SavedState {
    COleVariant licence;  ///< empty: none
    const BYTE* pData = nullptr;
    DWORD dwBytes = 0;

    BSTR Licence() const { return licence.vt == VT_BSTR ? licence.bstrVal : nullptr; }
    bool IsCompoundFile() const {
        constexpr BYTE kSignature[] = {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
        return dwBytes >= sizeof kSignature &&
               std::memcmp(pData, kSignature, sizeof kSignature) == 0;
    }
};

// A record begins with the key: its length in characters, then the characters. A length that
// leads out of the record is none.
void ReadState(const AfxDlgInitRecord& record, SavedState& state) {
    DWORD dwKey = 0;
    if (record.Bytes() < sizeof dwKey) {
        return;
    }
    std::memcpy(&dwKey, record.Data(), sizeof dwKey);
    const DWORD dwRest = record.Bytes() - sizeof dwKey;
    if (dwKey > dwRest / sizeof(WCHAR)) {
        return;
    }
    const BYTE* const pKey = record.Data() + sizeof dwKey;
    if (dwKey > 0) {
        state.licence.bstrVal = ::SysAllocStringLen(reinterpret_cast<const OLECHAR*>(pKey), dwKey);
        state.licence.vt = VT_BSTR;
    }
    state.pData = pKey + dwKey * sizeof(WCHAR);
    state.dwBytes = dwRest - dwKey * static_cast<DWORD>(sizeof(WCHAR));
}

SavedState FindState(const void* pDlgInit, UINT nID) {
    SavedState state;
    for (AfxDlgInitRecord record(pDlgInit); record; record = record.Next()) {
        if (record.ID() == nID && record.IsControlState()) {
            ReadState(record, state);
            break;
        }
    }
    return state;
}

COleControlSite* MakeControl(CWnd& dlg, const _AFX_OCC_DIALOG_INFO::Item& item,
                             const void* pDlgInit) {
    const SavedState state = FindState(pDlgInit, item.nID);
    CMemFile file;
    CFile* pPersist = nullptr;
    if (state.dwBytes > 0) {
        file.Attach(const_cast<BYTE*>(state.pData), state.dwBytes);
        pPersist = &file;
    }
    CRect rect = item.rcUnits;
    ::MapDialogRect(dlg.m_hWnd, rect);
    COleControlSite* pSite = nullptr;
    dlg.m_pCtrlCont->CreateControl(
        nullptr, item.clsid, item.strText.IsEmpty() ? nullptr : item.strText.GetString(),
        item.dwStyle, rect, item.nID, pPersist, state.IsCompoundFile(), state.Licence(), &pSite);
    return pSite;
}

/// The windows of a dialog's items in their order: the last ones among its children, since each is
/// made behind those that are there.
std::vector<HWND> ItemsOf(HWND hWndDlg, int nItems) {
    std::vector<HWND> children;
    for (HWND hWnd = ::GetTopWindow(hWndDlg); hWnd != nullptr;
         hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) {
        children.push_back(hWnd);
    }
    const auto nFirst = std::max<ptrdiff_t>(0, static_cast<ptrdiff_t>(children.size()) - nItems);
    children.erase(children.begin(), children.begin() + nFirst);
    return children;
}

}  // namespace

bool AfxDlgInitRecord::IsControlState() const {
    switch (Message()) {
        case WM_OCC_LOADFROMSTREAM:
        case WM_OCC_LOADFROMSTORAGE:
        case WM_OCC_INITNEW:
        case WM_OCC_LOADFROMSTREAM_EX:
        case WM_OCC_LOADFROMSTORAGE_EX:
            return true;
        default:
            return false;
    }
}

std::unique_ptr<_AFX_OCC_DIALOG_INFO> AfxSplitDialogTemplate(LPCDLGTEMPLATE pTemplate) {
    if (pTemplate == nullptr || !AfxHostsControls()) {
        return nullptr;
    }
    const AfxTemplateView view(pTemplate);
    const auto* const pStart = reinterpret_cast<const BYTE*>(pTemplate);
    auto pInfo = std::make_unique<_AFX_OCC_DIALOG_INFO>();
    pInfo->bytes.assign(pStart, view.FirstItem());
    pInfo->nItems = view.Items();
    const BYTE* pItem = view.FirstItem();
    for (int n = 0; n < view.Items(); ++n) {
        const BYTE* const pEnd = view.BehindItem(pItem);
        if (IsControl(view, pItem)) {
            pInfo->items.push_back(ReadItem(view, pItem, n));
        } else {
            pInfo->bytes.insert(pInfo->bytes.end(), pItem, pEnd);
            pInfo->bytes.resize((pInfo->bytes.size() + kAfxItemAlignment - 1) / kAfxItemAlignment *
                                kAfxItemAlignment);
        }
        pItem = AfxAligned(pStart, pEnd);
    }
    if (pInfo->items.empty()) {
        return nullptr;
    }
    AfxTemplateView::SetItems(pInfo->bytes.data(),
                              pInfo->nItems - static_cast<int>(pInfo->items.size()));
    return pInfo;
}

BOOL AfxCreateDlgControls(CWnd& dlg, const _AFX_OCC_DIALOG_INFO& info, const void* pDlgInit) {
    const HWND hWndDlg = dlg.m_hWnd;
    if (!dlg.InitControlContainer()) {
        return FALSE;
    }
    const std::vector<_AFX_OCC_DIALOG_INFO::Item> items = info.items;  // the dialog may go
    std::vector<HWND> order = ItemsOf(hWndDlg, info.nItems - static_cast<int>(items.size()));
    const AfxHold<COleControlContainer> hold(dlg.m_pCtrlCont);
    for (const auto& item : items) {
        const COleControlSite* const pSite = MakeControl(dlg, item, pDlgInit);
        if (pSite == nullptr || !::IsWindow(hWndDlg) ||
            CWnd::FromHandlePermanent(hWndDlg) != &dlg) {
            return FALSE;
        }
        const HWND hWnd = pSite->m_hWnd;
        const auto nPlace = std::min(static_cast<size_t>(item.nPlace), order.size());
        const auto itBefore = std::find_if(order.rend() - static_cast<ptrdiff_t>(nPlace),
                                           order.rend(), [](HWND h) { return h; });
        if (hWnd != nullptr) {
            ::SetWindowPos(hWnd, itBefore != order.rend() ? *itBefore : HWND_TOP, 0, 0, 0, 0,
                           SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        }
        order.insert(order.begin() + static_cast<ptrdiff_t>(nPlace), hWnd);
    }
    return TRUE;
}

// --- What other items get from the same data

void* AfxFindDlgInit(LPCTSTR lpszResourceName) {
    if (lpszResourceName == nullptr) {
        return nullptr;
    }
    const HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, RT_DLGINIT);
    const HRSRC hResource = ::FindResource(hInst, lpszResourceName, RT_DLGINIT);
    const HGLOBAL hData = hResource != nullptr ? ::LoadResource(hInst, hResource) : nullptr;
    return hData != nullptr ? ::LockResource(hData) : nullptr;
}

static LRESULT SendRecord(HWND hWnd, const AfxDlgInitRecord& record) {
    // The data counts messages as 16-bit programs did.
    constexpr UINT kAddToList = 0x0401;
    constexpr UINT kAddToCombo = 0x0403;
    constexpr UINT kAddToComboEx = 0x1234;
    const auto* const pData = reinterpret_cast<const char*>(record.Data());
    if (record.Message() == kAddToComboEx) {
        COMBOBOXEXITEM item = {};
        item.mask = CBEIF_TEXT;
        item.iItem = -1;
        item.pszText = const_cast<char*>(pData);
        return AfxSend(hWnd, CBEM_INSERTITEM, 0, &item);
    }
    const UINT nMsg = record.Message() == kAddToList    ? LB_ADDSTRING
                      : record.Message() == kAddToCombo ? CB_ADDSTRING
                                                        : record.Message();
    const LRESULT lResult = AfxSend(hWnd, nMsg, 0, pData);
    const bool bText = nMsg == LB_ADDSTRING || nMsg == CB_ADDSTRING;
    return bText && (lResult == LB_ERR || lResult == LB_ERRSPACE) ? -1 : 0;
}

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName) {
    return ExecuteDlgInit(AfxFindDlgInit(lpszResourceName));
}

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource) {
    const HWND hWnd = m_hWnd;
    for (AfxDlgInitRecord record(lpResource); record; record = record.Next()) {
        if (!record.IsControlState() &&
            SendRecord(::GetDlgItem(hWnd, static_cast<int>(record.ID())), record) == -1) {
            return FALSE;
        }
    }
    if (lpResource != nullptr && CWnd::FromHandlePermanent(hWnd) == this) {
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, FALSE, FALSE);
    }
    return TRUE;
}
