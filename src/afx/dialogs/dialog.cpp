#include "afx/dialogs/dialog.h"

#include "afx/dialogs/modal_owner.h"
#include "afx/ole/control_container.h"
#include "afx/ole/occ_dialog.h"
#include "afx/window/wnd_state.h"

#include <afxdlgs.h>
#include <afxpriv.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_WM_CTLCOLOR()
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
END_MESSAGE_MAP()

namespace {

/// A dialog template found along the resource chain, loaded while this lives.
class LoadedTemplate {
public:
    explicit LoadedTemplate(LPCTSTR lpszName)
        : m_hInst(AfxFindResourceHandle(lpszName, RT_DIALOG)) {
        HRSRC hResource = ::FindResource(m_hInst, lpszName, RT_DIALOG);
        m_hData = hResource != nullptr ? ::LoadResource(m_hInst, hResource) : nullptr;
    }
    LPCDLGTEMPLATE Get() const {
        return m_hData != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(m_hData)) : nullptr;
    }
    HINSTANCE Module() const { return m_hInst; }

private:
    HINSTANCE m_hInst;
    HGLOBAL m_hData;
};

}  // namespace

INT_PTR CALLBACK AfxDialogProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_INITDIALOG) {
        return FALSE;
    }
    auto* pDlg = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(hWnd));
    if (pDlg == nullptr) {
        return TRUE;
    }
    // The system's code lies between here and the window procedure; no exception may cross it.
    try {
        return pDlg->OnInitDialog();
    } catch (...) {
        AfxProcessCurrentException(hWnd, message, wParam, lParam);
        if (CWnd::FromHandlePermanent(hWnd) == pDlg &&
            !pDlg->IsKindOf(RUNTIME_CLASS(CPropertyPage))) {
            pDlg->EndDialog(-1);
        }
        return FALSE;
    }
}

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd) : m_pParentWnd(pParentWnd) {
    if (IS_INTRESOURCE(lpszTemplateName)) {
        m_lpszTemplateName = lpszTemplateName;
        m_nIDHelp = LOWORD(reinterpret_cast<DWORD_PTR>(lpszTemplateName));
    } else {
        m_strTemplateName = lpszTemplateName;
        m_lpszTemplateName = m_strTemplateName;
    }
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_nIDHelp(nIDTemplate),
      m_lpszTemplateName(MAKEINTRESOURCE(nIDTemplate)),
      m_pParentWnd(pParentWnd) {}

CDialog::~CDialog() {
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
    delete m_pOccDialogInfo;
}

BOOL CDialog::SetOccDialogInfo(_AFX_OCC_DIALOG_INFO* pOccDialogInfo) {
    delete m_pOccDialogInfo;
    m_pOccDialogInfo = pOccDialogInfo;
    return TRUE;
}

LPCDLGTEMPLATE CDialog::TakeControlsOut(LPCDLGTEMPLATE pTemplate) {
    auto pControls = AfxSplitDialogTemplate(pTemplate);
    if (pControls != nullptr) {
        pTemplate = pControls->Template();
    }
    SetOccDialogInfo(pControls.release());
    return pTemplate;
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    LoadedTemplate loaded(lpszTemplateName);
    m_lpszTemplateName = lpszTemplateName;
    if (IS_INTRESOURCE(lpszTemplateName) && m_nIDHelp == 0) {
        m_nIDHelp = LOWORD(reinterpret_cast<DWORD_PTR>(lpszTemplateName));
    }
    if (loaded.Get() == nullptr) {
        return FALSE;
    }
    if (pParentWnd == nullptr) {
        pParentWnd = AfxGetMainWnd();
    }
    const BOOL bDone = CreateDlgIndirect(loaded.Get(), pParentWnd, loaded.Module());
    // Modeless: ending it destroys nothing, so there is no loop to leave.
    return bDone;
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd,
                             void* lpDialogInit) {
    m_lpDialogInit = lpDialogInit;
    if (pParentWnd == nullptr) {
        pParentWnd = AfxGetMainWnd();
    }
    return CreateDlgIndirect(lpDialogTemplate, pParentWnd, AfxGetInstanceHandle());
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    const BOOL bDone = CreateIndirect(static_cast<LPCDLGTEMPLATE>(::LockResource(hDialogTemplate)),
                                      pParentWnd, nullptr);
    ::GlobalUnlock(hDialogTemplate);
    return bDone;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd,
                                void* lpDialogInit) {
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpDialogInit = lpDialogInit;
    if (m_pParentWnd == nullptr) {
        m_pParentWnd = pParentWnd;
    }
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    m_hDialogTemplate = hDialogTemplate;
    if (m_pParentWnd == nullptr) {
        m_pParentWnd = pParentWnd;
    }
    return TRUE;
}

BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd,
                                HINSTANCE hInst) {
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;  // so that OnInitDialog may end it
    m_bControlsFailed = false;
    lpDialogTemplate = TakeControlsOut(lpDialogTemplate);
    AfxHookWindowCreate(this);
    HWND hWnd =
        ::CreateDialogIndirect(hInst, lpDialogTemplate, pParentWnd->GetSafeHwnd(), AfxDialogProc);
    if (!AfxUnhookWindowCreate()) {
        PostNcDestroy();
    }
    if (CWnd::FromHandlePermanent(hWnd) == this && m_bControlsFailed) {
        ::DestroyWindow(hWnd);
        return FALSE;
    }
    return hWnd != nullptr;
}

bool CDialog::MakeControls() {
    if (m_pOccDialogInfo == nullptr) {
        return true;
    }
    const HWND hWnd = m_hWnd;
    const void* const pInit =
        m_lpDialogInit != nullptr ? m_lpDialogInit : AfxFindDlgInit(m_lpszTemplateName);
    bool bMade = false;
    try {
        bMade = AfxCreateDlgControls(*this, *m_pOccDialogInfo, pInit) != FALSE;
    } catch (...) {
        AfxProcessCurrentException(hWnd, WM_INITDIALOG);
    }
    if (!bMade && CWnd::FromHandlePermanent(hWnd) == this) {
        if (m_pCtrlCont != nullptr) {
            m_pCtrlCont->EndAllControls();
        }
        m_bControlsFailed = !IsKindOf(RUNTIME_CLASS(CPropertyPage));
        bMade = !m_bControlsFailed;
    }
    return bMade;
}

HWND CDialog::PreModal() {
    return AfxGetSafeOwner(m_pParentWnd->GetSafeHwnd(), &m_hWndTop);
}

void CDialog::PostModal() {
    if (::IsWindow(m_hWndTop)) {
        ::EnableWindow(m_hWndTop, TRUE);
    }
    m_hWndTop = nullptr;
}

INT_PTR CDialog::DoModal() {
    if (m_lpDialogTemplate != nullptr) {
        return RunModal(m_lpDialogTemplate, AfxGetResourceHandle());
    }
    if (m_hDialogTemplate != nullptr) {
        return RunModal(static_cast<LPCDLGTEMPLATE>(::LockResource(m_hDialogTemplate)),
                        AfxGetResourceHandle());
    }
    LoadedTemplate loaded(m_lpszTemplateName);
    return loaded.Get() != nullptr ? RunModal(loaded.Get(), loaded.Module()) : -1;
}

INT_PTR CDialog::RunModal(LPCDLGTEMPLATE lpDialogTemplate, HINSTANCE hInst) {
    const HWND hWndOwner = PreModal();
    if (!AfxEndsQuietly([&] { RunModalFor(hWndOwner, lpDialogTemplate, hInst); })) {
        m_nModalResult = -1;
    }
    if (hWndOwner != nullptr && ::GetActiveWindow() == m_hWnd) {
        ::SetActiveWindow(hWndOwner);
    }
    DestroyWindow();
    PostModal();
    return m_nModalResult;
}

// The owner is disabled meanwhile.
void CDialog::RunModalFor(HWND hWndOwner, LPCDLGTEMPLATE lpDialogTemplate, HINSTANCE hInst) {
    m_bDisabledOwner = ::IsWindowEnabled(hWndOwner) != FALSE;
    const AfxDisabledOwner disabled(hWndOwner);
    if (!CreateDlgIndirect(lpDialogTemplate, CWnd::FromHandle(hWndOwner), hInst)) {
        return;
    }
    if (m_nFlags & WF_CONTINUEMODAL) {
        RunModalLoop(MLF_SHOWONIDLE | (GetStyle() & DS_NOIDLEMSG ? MLF_NOIDLEMSG : 0));
    }
    if (m_hWnd != nullptr) {
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
}

void CDialog::EndDialog(int nResult) {
    if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL)) {
        EndModalLoop(nResult);
    }
    const HWND hWndOwner = ::GetWindow(m_hWnd, GW_OWNER);
    const bool bStaysDisabled = !m_bDisabledOwner && !::IsWindowEnabled(hWndOwner);
    ::EndDialog(m_hWnd, nResult);
    // The platform enables it even if somebody else has disabled it.
    if (bStaysDisabled && ::IsWindow(hWndOwner)) {
        ::EnableWindow(hWndOwner, FALSE);
    }
}

void CDialog::PreInitDialog() {}

void CDialog::OnSetFont(CFont*) {}

BOOL CDialog::OnInitDialog() {
    const BOOL bFilled = m_lpDialogInit != nullptr ? ExecuteDlgInit(m_lpDialogInit)
                                                   : ExecuteDlgInit(m_lpszTemplateName);
    if (!bFilled || !UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
    PreInitDialog();
    if (!MakeControls()) {
        return FALSE;  // whoever made the dialog takes it away
    }
    CRect rcBefore;
    GetWindowRect(rcBefore);
    const LRESULT bDefaultFocus = Default();  // calls OnInitDialog by way of the dialog procedure

    // A top-level dialog whose template gives no place of its own comes up in the middle.
    CRect rcAfter;
    if (m_hWnd != nullptr &&
        !(GetStyle() & (WS_CHILD | WS_VISIBLE | DS_ABSALIGN | DS_CENTER | DS_CENTERMOUSE))) {
        GetWindowRect(rcAfter);
        if (rcBefore == rcAfter) {
            CenterWindow();
        }
    }
    return bDefaultFocus;
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM) {
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

HBRUSH CDialog::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    LRESULT lResult = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&lResult)) {
        return reinterpret_cast<HBRUSH>(lResult);
    }
    CWinApp* pApp = AfxGetApp();
    const HBRUSH hBrush =
        pApp != nullptr ? pApp->DialogBrush(pDC->GetSafeHdc(), nCtlColor) : nullptr;
    return hBrush != nullptr ? hBrush : reinterpret_cast<HBRUSH>(Default());
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}

BOOL AfxRouteDialogCommand(CWnd* pWnd, UINT nID, int nCode, void* pExtra,
                           AFX_CMDHANDLERINFO* pHandlerInfo) {
    constexpr UINT kFirstCommand = 0x8000;
    constexpr UINT kFirstSystemCommand = 0xF000;
    const bool bCommand = nCode == CN_COMMAND || static_cast<UINT>(nCode) == CN_UPDATE_COMMAND_UI;
    if (!bCommand || nID < kFirstCommand || nID >= kFirstSystemCommand) {
        return FALSE;
    }
    CWnd* pOwner = pWnd->GetParent();
    if (pOwner != nullptr && pOwner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    CWinThread* pThread = AfxGetThread();
    return pThread != nullptr && pThread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           AfxRouteDialogCommand(this, nID, nCode, pExtra, pHandlerInfo);
}

void CDialog::NextDlgCtrl() const {
    AfxSend(m_hWnd, WM_NEXTDLGCTL, 0, FALSE);
}

void CDialog::PrevDlgCtrl() const {
    AfxSend(m_hWnd, WM_NEXTDLGCTL, 1, FALSE);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl) {
    AfxSend(m_hWnd, WM_NEXTDLGCTL, pWndCtrl->m_hWnd, TRUE);
}

void CDialog::MapDialogRect(LPRECT lpRect) const {
    ::MapDialogRect(m_hWnd, lpRect);
}

void CDialog::SetDefID(UINT nID) {
    AfxSend(m_hWnd, DM_SETDEFID, nID);
}

DWORD CDialog::GetDefID() const {
    return AfxSend<DWORD>(m_hWnd, DM_GETDEFID);
}
