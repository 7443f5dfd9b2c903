// Pages of property sheets: what the platform tells them, and their templates.
#include "afx/dialogs/modal_owner.h"
#include "afx/dialogs/prop_sheet_count.h"
#include "afx/window/wnd_state.h"

#include <afxdlgs.h>
#include <afxpriv.h>

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)
IMPLEMENT_DYNAMIC(CPropertyPageEx, CPropertyPage)

BEGIN_MESSAGE_MAP(CPropertyPage, CDialog)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &CPropertyPage::OnQuerySiblings)
END_MESSAGE_MAP()

CPropertyPage::CPropertyPage() : m_psp() {
    m_psp.dwSize = PROPSHEETPAGE_V1_SIZE;
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption) : m_psp() {
    Construct(nIDTemplate, nIDCaption);
}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption) : m_psp() {
    Construct(lpszTemplateName, nIDCaption);
}

CPropertyPage::~CPropertyPage() {
    EndAwaiting();
    if (m_pSheet != nullptr) {
        m_pSheet->RemovePage(this);
    }
    if (m_hDialogTemplate != nullptr) {
        ::GlobalFree(m_hDialogTemplate);
    }
}

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption) {
    m_nIDHelp = nIDTemplate;
    Construct(MAKEINTRESOURCE(nIDTemplate), nIDCaption);
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption) {
    m_lpszTemplateName = lpszTemplateName;
    m_psp = {};
    m_psp.dwSize = PROPSHEETPAGE_V1_SIZE;
    m_psp.dwFlags = PSP_USECALLBACK;
    m_psp.hInstance = AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
    m_psp.pszTemplate = lpszTemplateName;
    m_psp.pfnDlgProc = AfxDialogProc;
    m_psp.pfnCallback = &CPropertyPage::PageCallback;
    m_psp.lParam = reinterpret_cast<LPARAM>(this);
    m_bFirstSetActive = TRUE;
    if (nIDCaption != 0 && m_strCaption.LoadString(nIDCaption)) {
        m_psp.pszTitle = m_strCaption;
        m_psp.dwFlags |= PSP_USETITLE;
    }
}

// --- The template

LPCDLGTEMPLATE CPropertyPage::InitDialogInfo(LPCDLGTEMPLATE pTemplate) {
    return TakeControlsOut(pTemplate);
}

static LPCDLGTEMPLATE TemplateOf(const PROPSHEETPAGE& psp) {
    if (psp.dwFlags & PSP_DLGINDIRECT) {
        return psp.pResource;
    }
    const HRSRC hResource = ::FindResource(psp.hInstance, psp.pszTemplate, RT_DIALOG);
    const HGLOBAL hData = hResource != nullptr ? ::LoadResource(psp.hInstance, hResource) : nullptr;
    return hData != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(hData)) : nullptr;
}

// A page without a template is left to the platform, which passes it over.
void CPropertyPage::PreProcessPageTemplate(PROPSHEETPAGE& psp, BOOL) {
    LPCDLGTEMPLATE pTemplate = TemplateOf(psp);
    if (pTemplate == nullptr) {
        return;
    }
    CDialogTemplate copy(InitDialogInfo(pTemplate));
    if (!copy.SetSystemFont()) {
        AfxThrowMemoryException();
    }
    if (m_hDialogTemplate != nullptr) {
        ::GlobalFree(m_hDialogTemplate);
    }
    m_hDialogTemplate = copy.Detach();
    psp.dwFlags |= PSP_DLGINDIRECT;
    psp.pResource = static_cast<LPCDLGTEMPLATE>(m_hDialogTemplate);  // fixed memory
}

void CPropertyPage::FillRecord(PROPSHEETPAGE& psp, DWORD nBytes) {
    std::memcpy(&psp, &m_psp, nBytes);
    psp.dwSize = nBytes;
    if (nBytes < PROPSHEETPAGE_V2_SIZE) {
        psp.dwFlags &= ~static_cast<DWORD>(PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE);
    }
}

// --- The window

// The platform makes the window; this object is bound to it before its first message.
BOOL CPropertyPage::AwaitWindow() {
    if (m_hWnd != nullptr || m_pSheet == nullptr) {
        return FALSE;  // in another sheet already
    }
    EndAwaiting();
    try {
        AfxHookDialogCreate(this, m_pSheet->m_hWnd);
    } catch (...) {
        AfxProcessCurrentException(m_pSheet->m_hWnd, WM_CREATE);
        return FALSE;
    }
    m_bAwaited = TRUE;
    return TRUE;
}

void CPropertyPage::EndAwaiting() {
    if (m_bAwaited) {
        m_bAwaited = FALSE;
        AfxUnhookWindowCreate();
    }
}

UINT CALLBACK CPropertyPage::PageCallback(HWND, UINT message, PROPSHEETPAGE* pPage) {
    auto* pThis = reinterpret_cast<CPropertyPage*>(pPage->lParam);
    if (message == PSPCB_CREATE) {
        return pThis->AwaitWindow();
    }
    return TRUE;
}

LRESULT CPropertyPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    EndAwaiting();
    return CDialog::WindowProc(message, wParam, lParam);
}

// The sheet moves the focus, over its own buttons as well.
BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg);
}

// --- What the sheet says

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CDialog::OnNotify(wParam, lParam, pResult)) {
        return TRUE;
    }
    const auto& header = *reinterpret_cast<NMHDR*>(lParam);
    const HWND hWnd = m_hWnd;
    if (header.hwndFrom != hWnd && header.hwndFrom != ::GetParent(hWnd)) {
        return FALSE;
    }
    if (header.code > PSN_FIRST || header.code < PSN_LAST) {
        return FALSE;
    }
    {
        const CPropertySheet::Counting asked(m_pSheet, &CPropertySheet::m_nAsked);
        *pResult = HandleSheet(header.code);
    }
    // This object may be gone.
    if (::IsWindow(hWnd)) {
        ::SetWindowLongPtr(hWnd, DWLP_MSGRESULT, *pResult);
    }
    return TRUE;
}

LRESULT CPropertyPage::HandleSheet(UINT nCode) {
    switch (nCode) {
        case PSN_SETACTIVE:
            return OnSetActive() ? 0 : -1;
        case PSN_KILLACTIVE:
            return !OnKillActive();
        case PSN_APPLY:
            return OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        case PSN_RESET:
            OnReset();
            return 0;
        case PSN_QUERYCANCEL:
            return !OnQueryCancel();
        case PSN_WIZBACK:
            return MapWizardResult(OnWizardBack());
        case PSN_WIZNEXT:
            return MapWizardResult(OnWizardNext());
        case PSN_WIZFINISH:
            return !OnWizardFinish();
        case PSN_HELP:
            SendMessage(WM_COMMAND, ID_HELP);
            return 0;
        default:
            return 0;
    }
}

// The platform knows pages that are made from memory by the template's address alone.
LRESULT CPropertyPage::MapWizardResult(LRESULT lToMap) {
    if (lToMap == 0 || lToMap == -1 || m_pSheet == nullptr) {
        return lToMap;
    }
    for (int i = 0; i < m_pSheet->GetPageCount(); ++i) {
        const PROPSHEETPAGE& psp = m_pSheet->GetPage(i)->m_psp;
        const PROPSHEETPAGE* pRecord = m_pSheet->RecordAt(i);
        if (!(psp.dwFlags & PSP_DLGINDIRECT) &&
            reinterpret_cast<LRESULT>(psp.pszTemplate) == lToMap && pRecord != nullptr) {
            return reinterpret_cast<LRESULT>(pRecord->pszTemplate);
        }
    }
    return lToMap;
}

BOOL CPropertyPage::OnApply() {
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset() {
    OnCancel();
}

void CPropertyPage::OnOK() {}

void CPropertyPage::OnCancel() {}

BOOL CPropertyPage::OnSetActive() {
    if (m_bFirstSetActive) {
        m_bFirstSetActive = FALSE;
    } else {
        UpdateData(FALSE);
    }
    return TRUE;
}

BOOL CPropertyPage::OnKillActive() {
    return UpdateData(TRUE);
}

BOOL CPropertyPage::OnQueryCancel() {
    return TRUE;
}

LRESULT CPropertyPage::OnWizardBack() {
    return 0;
}

LRESULT CPropertyPage::OnWizardNext() {
    return 0;
}

BOOL CPropertyPage::OnWizardFinish() {
    return TRUE;
}

LRESULT CPropertyPage::OnQuerySiblings(WPARAM, LPARAM) {
    return 0;
}

// --- What the page says to the sheet

static HWND SheetOf(const CWnd& page) {
    return page.m_hWnd != nullptr ? ::GetParent(page.m_hWnd) : nullptr;
}

void CPropertyPage::SetModified(BOOL bChanged) {
    AfxSend(SheetOf(*this), bChanged ? PSM_CHANGED : PSM_UNCHANGED, m_hWnd);
}

void CPropertyPage::CancelToClose() {
    AfxSend(SheetOf(*this), PSM_CANCELTOCLOSE);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam) {
    return AfxSend(SheetOf(*this), PSM_QUERYSIBLINGS, wParam, lParam);
}

void CPropertyPage::EndDialog(int nEndID) {
    if (m_pSheet != nullptr) {
        m_pSheet->EndDialog(nEndID);
    }
}

// --- Pages with titles

CPropertyPageEx::CPropertyPageEx() = default;

CPropertyPageEx::CPropertyPageEx(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle,
                                 UINT nIDHeaderSubTitle) {
    Construct(nIDTemplate, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
}

CPropertyPageEx::CPropertyPageEx(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                                 UINT nIDHeaderSubTitle) {
    Construct(lpszTemplateName, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
}

void CPropertyPageEx::Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle,
                                UINT nIDHeaderSubTitle) {
    CPropertyPage::Construct(nIDTemplate, nIDCaption);
    LoadTitles(nIDHeaderTitle, nIDHeaderSubTitle);
}

void CPropertyPageEx::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                                UINT nIDHeaderSubTitle) {
    CPropertyPage::Construct(lpszTemplateName, nIDCaption);
    LoadTitles(nIDHeaderTitle, nIDHeaderSubTitle);
}

void CPropertyPageEx::LoadTitles(UINT nIDHeaderTitle, UINT nIDHeaderSubTitle) {
    m_strHeaderTitle.Empty();
    m_strHeaderSubTitle.Empty();
    if (nIDHeaderTitle != 0) {
        m_strHeaderTitle.LoadString(nIDHeaderTitle);
    }
    if (nIDHeaderSubTitle != 0) {
        m_strHeaderSubTitle.LoadString(nIDHeaderSubTitle);
    }
}

void CPropertyPageEx::FillRecord(PROPSHEETPAGE& psp, DWORD nBytes) {
    CPropertyPage::FillRecord(psp, nBytes);
    if (nBytes < PROPSHEETPAGE_V2_SIZE) {
        return;
    }
    if (!m_strHeaderTitle.IsEmpty()) {
        psp.dwFlags |= PSP_USEHEADERTITLE;
        psp.pszHeaderTitle = m_strHeaderTitle;
    }
    if (!m_strHeaderSubTitle.IsEmpty()) {
        psp.dwFlags |= PSP_USEHEADERSUBTITLE;
        psp.pszHeaderSubTitle = m_strHeaderSubTitle;
    }
}
