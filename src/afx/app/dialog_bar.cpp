#include "afx/window/wnd_state.h"

#include <afxext.h>

IMPLEMENT_DYNAMIC(CDialogBar, CControlBar)

/// The focus stays where it was.
static INT_PTR CALLBACK DialogBarProc(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

CDialogBar::~CDialogBar() {
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
}

BOOL CDialogBar::Create(CWnd* pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID) {
    return Create(pParentWnd, MAKEINTRESOURCE(nIDTemplate), nStyle, nID);
}

BOOL CDialogBar::Create(CWnd* pParentWnd, LPCTSTR lpszTemplateName, UINT nStyle, UINT nID) {
    m_dwStyle = nStyle & CBRS_ALL;
    AfxHookWindowCreate(this);
    ::CreateDialog(AfxFindResourceHandle(lpszTemplateName, RT_DIALOG), lpszTemplateName,
                   pParentWnd->GetSafeHwnd(), DialogBarProc);
    if (!AfxUnhookWindowCreate()) {
        PostNcDestroy();
    }
    if (m_hWnd == nullptr) {
        return FALSE;
    }
    SetDlgCtrlID(static_cast<int>(nID));
    EnableToolTips((m_dwStyle & CBRS_TOOLTIPS) != 0);
    CRect rc;
    GetWindowRect(rc);
    m_sizeDefault = rc.Size();
    JoinFrame(pParentWnd->IsFrameWnd() ? static_cast<CFrameWnd*>(pParentWnd) : nullptr);
    ShowWindow(SW_SHOWNA);
    return TRUE;
}

CSize CDialogBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    const CSize stretched = CControlBar::CalcFixedLayout(bStretch, bHorz);
    const CRect rcInsets = CalcInsets(bHorz);
    return CSize(
        stretched.cx != 0 ? stretched.cx : m_sizeDefault.cx + rcInsets.left + rcInsets.right,
        stretched.cy != 0 ? stretched.cy : m_sizeDefault.cy + rcInsets.top + rcInsets.bottom);
}

void CDialogBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

BOOL CDialogBar::PreTranslateMessage(MSG* pMsg) {
    // The frame's accelerators come first: as a dialog the bar takes every key.
    const HWND hWnd = m_hWnd;
    CFrameWnd* pFrame = GetDockingFrame();
    return CControlBar::PreTranslateMessage(pMsg) ||
           (pFrame != nullptr && pFrame->PreTranslateMessage(pMsg)) ||
           FromHandlePermanent(hWnd) != this || PreTranslateInput(pMsg);
}

BOOL CDialogBar::OnCommand(WPARAM wParam, LPARAM lParam) {
    const HWND hWndOwner = GetOwner()->GetSafeHwnd();
    // A handler that lets a command go on may have destroyed the frame.
    if (!CControlBar::OnCommand(wParam, lParam) && ::IsWindow(hWndOwner)) {
        ::SendMessage(hWndOwner, WM_COMMAND, wParam, lParam);
    }
    return TRUE;
}

BOOL CDialogBar::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const HWND hWndOwner = GetOwner()->GetSafeHwnd();
    if (!CControlBar::OnNotify(wParam, lParam, pResult) && ::IsWindow(hWndOwner)) {
        *pResult = ::SendMessage(hWndOwner, WM_NOTIFY, wParam, lParam);
    }
    return TRUE;
}
