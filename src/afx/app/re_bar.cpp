#include "afx/app/re_bar.h"

#include <afxcmn.h>
#include <afxext.h>

IMPLEMENT_DYNAMIC(CReBar, CControlBar)

BEGIN_MESSAGE_MAP(CReBar, CControlBar)
    ON_NOTIFY_REFLECT(RBN_HEIGHTCHANGE, &CReBar::OnHeightChange)
END_MESSAGE_MAP()

CReBar::~CReBar() {
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
}

BOOL CReBar::Create(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    m_dwStyle = dwStyle & CBRS_ALL;
    if (m_dwStyle & CBRS_ORIENT_VERT) {
        dwCtrlStyle |= CCS_VERT;
    }
    // The bar is placed by its frame, not by itself.
    const DWORD dwWindow = (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | dwCtrlStyle | WS_CHILD |
                           CCS_NOPARENTALIGN | CCS_NODIVIDER | CCS_NORESIZE;
    if (!CWnd::CreateEx(0, REBARCLASSNAME, nullptr, dwWindow, CRect(0, 0, 0, 0), pParentWnd, nID)) {
        return FALSE;
    }
    JoinFrame(pParentWnd->IsFrameWnd() ? static_cast<CFrameWnd*>(pParentWnd) : nullptr);
    return TRUE;
}

CReBarCtrl& CReBar::GetReBarCtrl() const {
    // The control's class adds no data: it is this window under another name.
    return *static_cast<CReBarCtrl*>(static_cast<CWnd*>(const_cast<CReBar*>(this)));
}

BOOL CReBar::AddBar(CWnd* pBar, LPCTSTR lpszText, CBitmap* pbmp, DWORD dwStyle) {
    REBARBANDINFO info{};
    info.fMask = RBBIM_STYLE;
    info.fStyle = dwStyle;
    if (pbmp != nullptr) {
        info.fMask |= RBBIM_BACKGROUND;
        info.hbmBack = *pbmp;
    }
    if (lpszText != nullptr) {
        info.fMask |= RBBIM_TEXT;
        info.lpText = const_cast<LPTSTR>(lpszText);
    }
    return AddBand(pBar, info);
}

BOOL CReBar::AddBar(CWnd* pBar, COLORREF clrFore, COLORREF clrBack, LPCTSTR lpszText,
                    DWORD dwStyle) {
    REBARBANDINFO info{};
    info.fMask = RBBIM_STYLE | RBBIM_COLORS;
    info.fStyle = dwStyle;
    info.clrFore = clrFore;
    info.clrBack = clrBack;
    if (lpszText != nullptr) {
        info.fMask |= RBBIM_TEXT;
        info.lpText = const_cast<LPTSTR>(lpszText);
    }
    return AddBand(pBar, info);
}

BOOL CReBar::AddBand(CWnd* pBar, REBARBANDINFO& info) {
    CSize size;
    if (auto* pControlBar = DYNAMIC_DOWNCAST(CControlBar, pBar)) {
        // The band has the gripper and the borders.
        pControlBar->SetBarStyle(pControlBar->GetBarStyle() &
                                 ~static_cast<DWORD>(CBRS_GRIPPER | CBRS_BORDER_ANY));
        size = pControlBar->CalcFixedLayout(FALSE, (m_dwStyle & CBRS_ORIENT_HORZ) != 0);
    } else {
        CRect rect;
        pBar->GetWindowRect(rect);
        size = rect.Size();
    }
    info.fMask |= RBBIM_CHILD | RBBIM_CHILDSIZE | RBBIM_SIZE | RBBIM_IDEALSIZE | RBBIM_ID;
    info.hwndChild = pBar->m_hWnd;
    info.cxMinChild = static_cast<UINT>(size.cx);
    info.cyMinChild = static_cast<UINT>(size.cy);
    info.cxIdeal = static_cast<UINT>(size.cx);
    info.cx = static_cast<UINT>(size.cx);
    info.wID = static_cast<UINT>(pBar->GetDlgCtrlID());
    if (!GetReBarCtrl().InsertBand(static_cast<UINT>(-1), &info)) {
        return FALSE;
    }
    if (CFrameWnd* pFrame = GetDockingFrame()) {
        pFrame->RecalcLayout();
    }
    return TRUE;
}

CSize CReBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    // The height is the one for the frame's width, so it gets that first.
    CRect rcFrame;
    if (CWnd* pParent = GetParent()) {
        pParent->GetClientRect(rcFrame);
    }
    CRect rcWindow;
    GetWindowRect(rcWindow);
    if (bHorz && rcWindow.Width() != rcFrame.Width()) {
        SetWindowPos(nullptr, 0, 0, rcFrame.Width(), rcWindow.Height(),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    }
    const int nThick = static_cast<int>(GetReBarCtrl().GetBarHeight());
    const CSize stretched = CControlBar::CalcFixedLayout(bStretch, bHorz);
    return bHorz ? CSize(stretched.cx != 0 ? stretched.cx : rcFrame.Width(), nThick)
                 : CSize(nThick, stretched.cy != 0 ? stretched.cy : rcFrame.Height());
}

void CReBar::OnHeightChange(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    if (CFrameWnd* pFrame = GetDockingFrame()) {
        pFrame->RecalcLayout();
    }
}

void CReBar::OnUpdateCmdUI(CFrameWnd*, BOOL) {}

INT_PTR CReBar::OnToolHitTest(CPoint, TOOLINFO*) const {
    return -1;  // the bars in its bands know
}
