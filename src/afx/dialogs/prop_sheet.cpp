#include "afx/dialogs/prop_sheet.h"

#include "afx/dialogs/modal_owner.h"
#include "afx/dialogs/prop_sheet_count.h"
#include "afx/dialogs/template_view.h"
#include "afx/window/wnd_state.h"

#include <afxdlgs.h>
#include <afxpriv.h>

#include <algorithm>
#include <memory>

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)
IMPLEMENT_DYNAMIC(CPropertySheetEx, CPropertySheet)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_WM_SYSCOMMAND()
    ON_WM_NCDESTROY()
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
    ON_MESSAGE(WM_KICKIDLE, &CPropertySheet::OnKickIdle)
    ON_MESSAGE(PSM_PRESSBUTTON, &CPropertySheet::OnPressButton)
END_MESSAGE_MAP()

CPropertySheet::CPropertySheet() : m_psh() {
    ConstructWith(nullptr, 0);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) : m_psh() {
    Construct(nIDCaption, pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) : m_psh() {
    Construct(pszCaption, pParentWnd, iSelectPage);
}

CPropertySheet::~CPropertySheet() {
    if (m_hWnd != nullptr) {
        CWnd::DestroyWindow();
    }
    DropRecords();
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) {
    m_strCaption.LoadString(nIDCaption);
    ConstructWith(pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) {
    m_strCaption = pszCaption;
    ConstructWith(pParentWnd, iSelectPage);
}

void CPropertySheet::ConstructWith(CWnd* pParentWnd, UINT iSelectPage) {
    DropRecords();
    m_psh = {};
    m_psh.dwSize = PROPSHEETHEADER_V1_SIZE;
    m_psh.dwFlags = PSH_PROPSHEETPAGE | PSH_USECALLBACK;
    m_psh.hInstance = AfxGetInstanceHandle();
    m_psh.pszCaption = m_strCaption;
    m_psh.nStartPage = iSelectPage;
    m_psh.pfnCallback = &CPropertySheet::SheetCallback;
    m_pParentWnd = pParentWnd;
}

// --- The records of the pages

DWORD CPropertySheet::RecordBytes() const {
    return m_psh.dwSize >= sizeof(PROPSHEETHEADER) ? PROPSHEETPAGE_V2_SIZE : PROPSHEETPAGE_V1_SIZE;
}

void CPropertySheet::DropRecords() {
    delete[] reinterpret_cast<const BYTE*>(m_psh.ppsp);
    m_psh.ppsp = nullptr;
    m_psh.nPages = 0;
}

void CPropertySheet::BuildPropPageArray() {
    DropRecords();
    const DWORD dwBytes = RecordBytes();
    auto* pRecords = new BYTE[m_pages.GetSize() * dwBytes]();
    m_psh.ppsp = reinterpret_cast<LPCPROPSHEETPAGE>(pRecords);
    for (int i = 0; i < GetPageCount(); ++i) {
        auto& psp = *reinterpret_cast<PROPSHEETPAGE*>(pRecords + i * dwBytes);
        GetPage(i)->FillRecord(psp, dwBytes);
        GetPage(i)->PreProcessPageTemplate(psp, IsWizard());
    }
    m_psh.nPages = static_cast<UINT>(GetPageCount());
}

// Records follow each other, each as long as it says.
PROPSHEETPAGE* CPropertySheet::RecordAt(int nPage) const {
    auto* p = reinterpret_cast<BYTE*>(const_cast<PROPSHEETPAGE*>(m_psh.ppsp));
    if (p == nullptr || nPage < 0 || nPage >= static_cast<int>(m_psh.nPages)) {
        return nullptr;
    }
    for (; nPage > 0; --nPage) {
        p += reinterpret_cast<PROPSHEETPAGE*>(p)->dwSize;
    }
    return reinterpret_cast<PROPSHEETPAGE*>(p);
}

// The platform has its copy; what stays is for MapWizardResult.
void CPropertySheet::ForgetRecord(int nPage) {
    PROPSHEETPAGE* pRecord = RecordAt(nPage);
    if (pRecord == nullptr) {
        return;
    }
    for (int i = nPage; i + 1 < static_cast<int>(m_psh.nPages); ++i) {
        const PROPSHEETPAGE* pNext = RecordAt(i + 1);
        std::memmove(RecordAt(i), pNext, pNext->dwSize);
    }
    --m_psh.nPages;
}

void CPropertySheet::AddToWindow(CPropertyPage* pPage) {
    const DWORD dwBytes = RecordBytes();
    const auto nOld = static_cast<size_t>(m_psh.nPages);
    auto records = std::make_unique<BYTE[]>((nOld + 1) * dwBytes);
    for (size_t i = 0; i < nOld; ++i) {
        const PROPSHEETPAGE* pOld = RecordAt(static_cast<int>(i));
        std::memcpy(records.get() + i * dwBytes, pOld, std::min(pOld->dwSize, dwBytes));
    }
    auto& psp = *reinterpret_cast<PROPSHEETPAGE*>(records.get() + nOld * dwBytes);
    pPage->FillRecord(psp, dwBytes);
    pPage->PreProcessPageTemplate(psp, IsWizard());
    m_pages.Add(pPage);
    DropRecords();
    m_psh.ppsp = reinterpret_cast<LPCPROPSHEETPAGE>(records.release());
    m_psh.nPages = static_cast<UINT>(nOld + 1);
    pPage->m_pSheet = this;
    const HPROPSHEETPAGE hPage = ::CreatePropertySheetPage(&psp);
    if (hPage == nullptr || !SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(hPage))) {
        if (hPage != nullptr) {
            ::DestroyPropertySheetPage(hPage);
        }
        m_pages.SetSize(m_pages.GetSize() - 1);
        ForgetRecord(static_cast<int>(nOld));
        pPage->m_pSheet = nullptr;
    }
}

// --- Pages

int CPropertySheet::GetPageCount() const {
    return static_cast<int>(m_pages.GetSize());
}

CPropertyPage* CPropertySheet::GetPage(int nPage) const {
    return nPage >= 0 && nPage < GetPageCount() ? static_cast<CPropertyPage*>(m_pages[nPage])
                                                : nullptr;
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage) const {
    for (int i = 0; i < GetPageCount(); ++i) {
        if (m_pages[i] == pPage) {
            return i;
        }
    }
    return -1;
}

HWND CPropertySheet::CurrentPageWindow() const {
    return AfxSend<HWND>(m_hWnd, PSM_GETCURRENTPAGEHWND);
}

int CPropertySheet::GetActiveIndex() const {
    if (m_hWnd == nullptr) {
        return static_cast<int>(m_psh.nStartPage);
    }
    const HWND hWndPage = CurrentPageWindow();
    for (int i = 0; i < GetPageCount(); ++i) {
        if (hWndPage != nullptr && GetPage(i)->m_hWnd == hWndPage) {
            return i;
        }
    }
    return -1;
}

CPropertyPage* CPropertySheet::GetActivePage() const {
    return GetPage(GetActiveIndex());
}

BOOL CPropertySheet::SetActivePage(int nPage) {
    if (GetPage(nPage) == nullptr) {
        return FALSE;
    }
    if (m_hWnd == nullptr) {
        m_psh.nStartPage = static_cast<UINT>(nPage);
        return TRUE;
    }
    return SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(nPage)) != 0;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage) {
    return SetActivePage(GetPageIndex(pPage));
}

void CPropertySheet::AddPage(CPropertyPage* pPage) {
    ASSERT_VALID(pPage);
    if (GetPageIndex(pPage) >= 0) {
        return;  // a page has one window
    }
    if (m_hWnd == nullptr) {
        m_pages.Add(pPage);
    } else {
        AddToWindow(pPage);
    }
}

void CPropertySheet::RemovePage(CPropertyPage* pPage) {
    RemovePage(GetPageIndex(pPage));
}

void CPropertySheet::RemovePage(int nPage) {
    CPropertyPage* pPage = GetPage(nPage);
    if (pPage == nullptr) {
        return;
    }
    if (pPage->m_pSheet == this) {
        pPage->m_pSheet = nullptr;
        SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(nPage));  // the page behind is told
        nPage = GetPageIndex(pPage);
    }
    if (nPage >= 0) {
        ForgetRecord(nPage);
        m_pages.RemoveAt(nPage);
    }
}

// --- The window

int CALLBACK CPropertySheet::SheetCallback(HWND, UINT message, LPARAM lParam) {
    // The sheet that waits for its window; the platform passes no object along.
    const auto* pSheet = dynamic_cast<const CPropertySheet*>(AfxGetWndState().pWndInit);
    if (message != PSCB_PRECREATE || pSheet == nullptr || pSheet->m_dwStyle == 0) {
        return 0;
    }
    auto& head = *reinterpret_cast<AfxExtendedHead*>(lParam);
    constexpr DWORD kTemplates = DS_SETFONT | DS_FIXEDSYS;  // what the layout rests on
    if (head.nSignature == kAfxOrdinal) {
        head.dwStyle = (head.dwStyle & kTemplates) | pSheet->m_dwStyle;
        head.dwExStyle = pSheet->m_dwExStyle;
    } else {
        auto& plain = *reinterpret_cast<DLGTEMPLATE*>(lParam);
        plain.style = (plain.style & kTemplates) | pSheet->m_dwStyle;
        plain.dwExtendedStyle = pSheet->m_dwExStyle;
    }
    return 0;
}

// Behind the platform's call this object may be gone; FALSE then as well.
BOOL CPropertySheet::MakeWindow(HWND hWndOwner) {
    if (m_hWnd != nullptr || GetPageCount() == 0) {
        return FALSE;
    }
    BuildPropPageArray();
    if (m_psh.nPages == 0) {
        return FALSE;  // an override's memory did not suffice
    }
    PROPSHEETHEADER psh = m_psh;
    psh.dwFlags |= PSH_PROPSHEETPAGE | PSH_MODELESS;
    psh.hwndParent = hWndOwner;
    if (psh.nStartPage >= psh.nPages) {
        psh.nStartPage = 0;
    }
    m_nAsked = m_nHandled = 0;
    m_bDestroyLater = FALSE;
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;  // so that OnInitDialog may end it
    AfxHookDialogCreate(this);
    for (int i = 0; i < GetPageCount(); ++i) {
        if (GetPage(i)->m_pSheet == nullptr) {
            GetPage(i)->m_pSheet = this;
        }
    }
    const INT_PTR nResult = ::PropertySheet(&psh);
    const BOOL bTaken = AfxUnhookWindowCreate();
    if (!bTaken) {
        for (int i = 0; i < GetPageCount(); ++i) {
            if (GetPage(i)->m_pSheet == this) {
                GetPage(i)->m_pSheet = nullptr;
            }
        }
    }
    return bTaken && nResult != 0 && nResult != -1 && ::IsWindow(reinterpret_cast<HWND>(nResult));
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle) {
    constexpr DWORD kUsual =
        WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_CONTEXTHELP;
    m_dwStyle = dwStyle == static_cast<DWORD>(-1) ? kUsual : dwStyle;
    m_dwExStyle = dwExStyle;
    m_pParentWnd = pParentWnd;
    m_bModeless = TRUE;
    BOOL bMade = FALSE;
    AfxEndsQuietly([&] { bMade = MakeWindow(pParentWnd->GetSafeHwnd()); });
    return bMade;
}

INT_PTR CPropertySheet::DoModal() {
    if (m_hWnd != nullptr) {
        return -1;
    }
    m_bModeless = FALSE;
    m_dwStyle = 0;
    m_nModalResult = -1;
    HWND hWndTop = nullptr;
    const HWND hWndOwner = AfxGetSafeOwner(m_pParentWnd->GetSafeHwnd(), &hWndTop);
    if (!AfxEndsQuietly([&] { RunModalFor(hWndOwner); })) {
        m_nModalResult = -1;
    }
    if (hWndOwner != nullptr && ::GetActiveWindow() == m_hWnd) {
        ::SetActiveWindow(hWndOwner);
    }
    DestroyWindow();
    if (::IsWindow(hWndTop)) {
        ::EnableWindow(hWndTop, TRUE);
    }
    return m_nModalResult;
}

// The owner is disabled meanwhile.
void CPropertySheet::RunModalFor(HWND hWndOwner) {
    const AfxDisabledOwner disabled(hWndOwner);
    if (!MakeWindow(hWndOwner)) {
        return;
    }
    if (m_nFlags & WF_CONTINUEMODAL) {
        RunModalLoop(MLF_SHOWONIDLE);
    }
    if (m_hWnd != nullptr) {
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
}

// The platform says that its sheet is done by having no page any more.
BOOL CPropertySheet::ContinueModal() {
    return CWnd::ContinueModal() && (m_bModeless || CurrentPageWindow() != nullptr);
}

void CPropertySheet::EndDialog(int nEndID) {
    EndModalLoop(nEndID);
    if (m_bModeless) {
        DestroyWindow();
    }
}

void CPropertySheet::OnNcDestroy() {
    for (int i = 0; i < GetPageCount(); ++i) {
        if (GetPage(i)->m_pSheet == this) {
            GetPage(i)->m_pSheet = nullptr;
        }
    }
    CWnd::OnNcDestroy();
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM) {
    return OnInitDialog();
}

BOOL CPropertySheet::OnInitDialog() {
    if (!m_bStacked) {
        if (CWnd* pTabs = GetDlgItem(AFX_IDC_TAB_CONTROL)) {
            pTabs->ModifyStyle(TCS_MULTILINE, TCS_SINGLELINE);
        }
    }
    const BOOL bResult = Default() != 0;
    if (m_bModeless && !IsWizard()) {
        HideButtons();
    }
    if (!(GetStyle() & WS_CHILD)) {
        CenterWindow();
    }
    return bResult;
}

// The sheet ends below the tabs then, with the margin that it has above them.
void CPropertySheet::HideButtons() {
    for (const int nID : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP}) {
        if (CWnd* pButton = GetDlgItem(nID)) {
            pButton->ShowWindow(SW_HIDE);
            pButton->EnableWindow(FALSE);
        }
    }
    CTabCtrl* pTabs = GetTabControl();
    if (pTabs == nullptr) {
        return;
    }
    CRect rcTabs;
    CRect rcClient;
    CRect rcWindow;
    pTabs->GetWindowRect(rcTabs);
    ScreenToClient(rcTabs);
    GetClientRect(rcClient);
    GetWindowRect(rcWindow);
    const int nUnused = rcClient.bottom - (rcTabs.bottom + rcTabs.top);
    SetWindowPos(nullptr, 0, 0, rcWindow.Width(), rcWindow.Height() - nUnused,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// --- Messages

// The button that was pressed last is the result, if the platform ends the sheet for it.
BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd::OnCommand(wParam, lParam)) {
        return TRUE;
    }
    const UINT nID = LOWORD(wParam);
    if (nID == IDOK || nID == IDCANCEL || nID == ID_WIZFINISH) {
        m_nModalResult = static_cast<int>(nID);
    }
    return FALSE;
}

LRESULT CPropertySheet::OnPressButton(WPARAM wParam, LPARAM) {
    if (wParam == PSBTN_OK) {
        m_nModalResult = IDOK;
    } else if (wParam == PSBTN_FINISH) {
        m_nModalResult = ID_WIZFINISH;
    } else if (wParam == PSBTN_CANCEL) {
        m_nModalResult = IDCANCEL;
    }
    return Default();
}

void CPropertySheet::OnSysCommand(UINT nID, LPARAM) {
    constexpr UINT kCommandBits = 0xFFF0;  // the system uses the others itself
    if ((nID & kCommandBits) == SC_CLOSE) {
        m_nModalResult = IDCANCEL;
    }
    Default();
}

namespace {
// Messages behind which another page may show, or other buttons.
bool MayLoseFocus(UINT message) {
    return message == WM_COMMAND || message == WM_NOTIFY || message == WM_KICKIDLE ||
           message == PSM_SETCURSEL || message == PSM_SETWIZBUTTONS || message == PSM_PRESSBUTTON;
}

// A page without a control that takes the focus leaves it nowhere, and no key would arrive.
void FocusDefaultButton(HWND hWndSheet) {
    const HWND hWndFocus = ::GetFocus();
    if (::GetActiveWindow() != hWndSheet || (hWndFocus != nullptr && hWndFocus != hWndSheet)) {
        return;
    }
    const LRESULT lDefault = ::SendMessage(hWndSheet, DM_GETDEFID, 0, 0);
    HWND hWndButton =
        HIWORD(lDefault) == DC_HASDEFID ? ::GetDlgItem(hWndSheet, LOWORD(lDefault)) : nullptr;
    if (!::IsWindowVisible(hWndButton) || !::IsWindowEnabled(hWndButton)) {
        hWndButton = ::GetNextDlgTabItem(hWndSheet, nullptr, FALSE);
    }
    if (hWndButton != nullptr) {
        ::SetFocus(hWndButton);
    }
}
}  // namespace

LRESULT CPropertySheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND hWnd = m_hWnd;
    LRESULT lResult = 0;
    {
        const Counting handled(this, &CPropertySheet::m_nHandled);
        lResult = CWnd::WindowProc(message, wParam, lParam);
    }
    if (FromHandlePermanent(hWnd) != this) {
        return lResult;  // gone
    }
    const bool bMayEnd =
        message == WM_COMMAND || message == WM_SYSCOMMAND || message == PSM_PRESSBUTTON;
    if (m_nHandled == 0 && m_bDestroyLater) {
        DestroyWindow();
    } else if (bMayEnd && m_bModeless && CurrentPageWindow() == nullptr) {
        DestroyWindow();
    } else if (m_nHandled == 0 && MayLoseFocus(message)) {
        FocusDefaultButton(hWnd);
    }
    return lResult;
}

BOOL CPropertySheet::DestroyWindow() {
    if (m_nAsked == 0) {
        m_bDestroyLater = FALSE;
        return CWnd::DestroyWindow();
    }
    m_bDestroyLater = TRUE;
    ShowWindow(SW_HIDE);
    EndModalLoop(-1);
    return TRUE;
}

LRESULT CPropertySheet::OnKickIdle(WPARAM wParam, LPARAM lParam) {
    const HWND hWndPage = CurrentPageWindow();
    return hWndPage != nullptr ? ::SendMessage(hWndPage, WM_KICKIDLE, wParam, lParam) : 0;
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    // The keys that change pages are the platform's; all others keep the way that typed characters
    // of any code page take.
    const bool bPageKey =
        pMsg->wParam == VK_TAB || pMsg->wParam == VK_PRIOR || pMsg->wParam == VK_NEXT;
    if (pMsg->message == WM_KEYDOWN && bPageKey && ::GetKeyState(VK_CONTROL) < 0 &&
        SendMessage(PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(pMsg))) {
        return TRUE;
    }
    return PreTranslateInput(pMsg);
}

BOOL CPropertySheet::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           AfxRouteDialogCommand(this, nID, nCode, pExtra, pHandlerInfo);
}

// --- What the platform's sheet is told

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle) {
    if (m_hWnd != nullptr) {
        AfxSend(m_hWnd, PSM_SETTITLE, nStyle, lpszText);
        return;
    }
    m_strCaption = lpszText;
    m_psh.pszCaption = m_strCaption;
    m_psh.dwFlags &= ~static_cast<DWORD>(PSH_PROPTITLE);
    m_psh.dwFlags |= nStyle & PSH_PROPTITLE;
}

void CPropertySheet::SetFinishText(LPCTSTR lpszText) {
    AfxSend(m_hWnd, PSM_SETFINISHTEXT, 0, lpszText);
}

void CPropertySheet::SetWizardButtons(DWORD dwFlags) {
    PostMessage(PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(dwFlags));
}

void CPropertySheet::SetWizardMode() {
    m_psh.dwFlags |= PSH_WIZARD;
}

BOOL CPropertySheet::IsWizard() const {
    return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97)) != 0;
}

void CPropertySheet::EnableStackedTabs(BOOL bStacked) {
    m_bStacked = bStacked;
}

CTabCtrl* CPropertySheet::GetTabControl() const {
    return static_cast<CTabCtrl*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, PSM_GETTABCONTROL)));
}

BOOL CPropertySheet::PressButton(int nButton) {
    return PostMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(nButton));
}

// --- Sheets with pictures

CPropertySheetEx::CPropertySheetEx() {
    SetPictures(nullptr, nullptr, nullptr);
}

CPropertySheetEx::CPropertySheetEx(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage,
                                   HBITMAP hbmWatermark, HPALETTE hpalWatermark,
                                   HBITMAP hbmHeader) {
    Construct(nIDCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

CPropertySheetEx::CPropertySheetEx(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage,
                                   HBITMAP hbmWatermark, HPALETTE hpalWatermark,
                                   HBITMAP hbmHeader) {
    Construct(pszCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheetEx::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage,
                                 HBITMAP hbmWatermark, HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    CPropertySheet::Construct(nIDCaption, pParentWnd, iSelectPage);
    SetPictures(hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheetEx::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage,
                                 HBITMAP hbmWatermark, HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    CPropertySheet::Construct(pszCaption, pParentWnd, iSelectPage);
    SetPictures(hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheetEx::SetPictures(HBITMAP hbmWatermark, HPALETTE hpalWatermark,
                                   HBITMAP hbmHeader) {
    m_psh.dwSize = sizeof(PROPSHEETHEADER);
    if (hbmWatermark != nullptr) {
        m_psh.hbmWatermark = hbmWatermark;
        m_psh.dwFlags |= PSH_USEHBMWATERMARK | PSH_WATERMARK;
    }
    if (hpalWatermark != nullptr) {
        m_psh.hplWatermark = hpalWatermark;
        m_psh.dwFlags |= PSH_USEHPLWATERMARK;
    }
    if (hbmHeader != nullptr) {
        m_psh.hbmHeader = hbmHeader;
        m_psh.dwFlags |= PSH_USEHBMHEADER | PSH_HEADER;
    }
}

void CPropertySheetEx::AddPage(CPropertyPageEx* pPage) {
    CPropertySheet::AddPage(pPage);
}
