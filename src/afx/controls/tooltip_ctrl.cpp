// Tool tip.
#include "afx/controls/tooltip_ctrl.h"

#include "afx/window/wnd_state.h"

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
    const RECT rect = {CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT};
    return CWnd::CreateEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, rect.left,
                          rect.top, rect.right, rect.bottom, pParentWnd->GetSafeHwnd(), nullptr);
}

int CToolTipCtrl::GetToolCount() const {
    return AfxSend<int>(m_hWnd, TTM_GETTOOLCOUNT);
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const {
    FillInToolInfo(ToolInfo, pWnd, nIDTool);
    ToolInfo.szText[0] = '\0';
    ToolInfo.lpszText = ToolInfo.szText;
    return AfxSend<BOOL>(m_hWnd, TTM_GETTOOLINFO, 0, static_cast<TOOLINFO*>(&ToolInfo));
}

void CToolTipCtrl::SetToolInfo(LPTOOLINFO lpToolInfo) {
    AfxSend(m_hWnd, TTM_SETTOOLINFO, 0, lpToolInfo);
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
    TOOLINFO ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    ti.rect = *lpRect;
    AfxSend(m_hWnd, TTM_NEWTOOLRECT, 0, &ti);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const {
    TOOLINFO ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    constexpr int kRoom = 1024;
    ti.lpszText = str.GetBuffer(kRoom);
    ti.lpszText[0] = 0;
    AfxSend(m_hWnd, TTM_GETTEXT, kRoom, &ti);
    str.ReleaseBuffer();
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    ti.lpszText = const_cast<LPTSTR>(lpszText);
    AfxSend(m_hWnd, TTM_UPDATETIPTEXT, 0, &ti);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool) {
    CString str;
    if (str.LoadString(nIDText)) {
        UpdateTipText(str, pWnd, nIDTool);
    }
}

COLORREF CToolTipCtrl::GetTipBkColor() const {
    return AfxSend<COLORREF>(m_hWnd, TTM_GETTIPBKCOLOR);
}

void CToolTipCtrl::SetTipBkColor(COLORREF clr) {
    AfxSend(m_hWnd, TTM_SETTIPBKCOLOR, clr);
}

COLORREF CToolTipCtrl::GetTipTextColor() const {
    return AfxSend<COLORREF>(m_hWnd, TTM_GETTIPTEXTCOLOR);
}

void CToolTipCtrl::SetTipTextColor(COLORREF clr) {
    AfxSend(m_hWnd, TTM_SETTIPTEXTCOLOR, clr);
}

int CToolTipCtrl::GetMaxTipWidth() const {
    return AfxSend<int>(m_hWnd, TTM_GETMAXTIPWIDTH);
}

int CToolTipCtrl::SetMaxTipWidth(int iWidth) {
    return AfxSend<int>(m_hWnd, TTM_SETMAXTIPWIDTH, 0, iWidth);
}

void CToolTipCtrl::GetMargin(LPRECT lprc) const {
    AfxSend(m_hWnd, TTM_GETMARGIN, 0, lprc);
}

void CToolTipCtrl::SetMargin(LPRECT lprc) {
    AfxSend(m_hWnd, TTM_SETMARGIN, 0, lprc);
}

int CToolTipCtrl::GetDelayTime(DWORD dwDuration) const {
    return AfxSend<int>(m_hWnd, TTM_GETDELAYTIME, dwDuration);
}

void CToolTipCtrl::SetDelayTime(UINT nDelay) {
    SetDelayTime(TTDT_AUTOMATIC, static_cast<int>(nDelay));
}

void CToolTipCtrl::SetDelayTime(DWORD dwDuration, int iTime) {
    AfxSend(m_hWnd, TTM_SETDELAYTIME, dwDuration, MAKELONG(iTime, 0));
}

void CToolTipCtrl::Activate(BOOL bActivate) {
    AfxSend(m_hWnd, TTM_ACTIVATE, bActivate);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    CString str;
    return str.LoadString(nIDText) && AddTool(pWnd, static_cast<LPCTSTR>(str), lpRectTool, nIDTool);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    TOOLINFO ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    ti.hinst = AfxGetInstanceHandle();
    if (lpRectTool != nullptr) {
        ti.rect = *lpRectTool;
    }
    ti.lpszText = const_cast<LPTSTR>(lpszText);
    return AfxSend<BOOL>(m_hWnd, TTM_ADDTOOL, 0, &ti);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    AfxSend(m_hWnd, TTM_DELTOOL, 0, &ti);
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const {
    TTHITTESTINFO info = {};
    info.hwnd = pWnd->GetSafeHwnd();
    info.pt = pt;
    info.ti.cbSize = lpToolInfo->cbSize;
    const BOOL bHit = AfxSend<BOOL>(m_hWnd, TTM_HITTEST, 0, &info);
    if (bHit) {
        *lpToolInfo = info.ti;
    }
    return bHit;
}

void CToolTipCtrl::RelayEvent(LPMSG lpMsg) {
    AfxSend(m_hWnd, TTM_RELAYEVENT, 0, lpMsg);
}

void CToolTipCtrl::Pop() {
    AfxSend(m_hWnd, TTM_POP);
}

void CToolTipCtrl::Update() {
    AfxSend(m_hWnd, TTM_UPDATE);
}

void CToolTipCtrl::FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool) const {
    ti = {};
    ti.cbSize = TTTOOLINFOA_V2_SIZE;  // the size that every version knows
    ti.hwnd = pWnd->GetSafeHwnd();
    ti.uId = nIDTool;
    if (nIDTool == 0) {  // the tool is the window itself
        ti.hwnd = ::GetParent(pWnd->GetSafeHwnd());
        ti.uFlags = TTF_IDISHWND;
        ti.uId = reinterpret_cast<UINT_PTR>(pWnd->GetSafeHwnd());
    }
}
