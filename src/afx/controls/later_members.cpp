// What the controls have learned since their first versions.
#include "afx/window/wnd_state.h"

#include <afxcmn.h>

BOOL CButton::GetIdealSize(LPSIZE psize) const {
    return AfxSend<BOOL>(m_hWnd, BCM_GETIDEALSIZE, 0, psize);
}
BOOL CButton::GetTextMargin(RECT* pmargin) const {
    return AfxSend<BOOL>(m_hWnd, BCM_GETTEXTMARGIN, 0, pmargin);
}
BOOL CButton::SetTextMargin(RECT* pmargin) {
    return AfxSend<BOOL>(m_hWnd, BCM_SETTEXTMARGIN, 0, pmargin);
}

DWORD CListBox::GetListBoxInfo() const {
    return AfxSend<DWORD>(m_hWnd, LB_GETLISTBOXINFO);
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const {
    return ::GetComboBoxInfo(m_hWnd, pcbi);
}
int CComboBox::GetMinVisible() const {
    return AfxSend<int>(m_hWnd, CB_GETMINVISIBLE);
}
BOOL CComboBox::SetMinVisibleItems(int iMinVisible) {
    return AfxSend<BOOL>(m_hWnd, CB_SETMINVISIBLE, iMinVisible);
}
BOOL CComboBox::SetCueBanner(LPCWSTR lpszText) {
    return AfxSend<BOOL>(m_hWnd, CB_SETCUEBANNER, 0, lpszText);
}

BOOL CEdit::SetCueBanner(LPCWSTR lpszText, BOOL fDrawIfFocused) {
    return AfxSend<BOOL>(m_hWnd, EM_SETCUEBANNER, fDrawIfFocused, lpszText);
}
BOOL CEdit::ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip) {
    return AfxSend<BOOL>(m_hWnd, EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
}
BOOL CEdit::ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon) {
    EDITBALLOONTIP tip = {sizeof(tip), lpszTitle, lpszText, ttiIcon};
    return ShowBalloonTip(&tip);
}
BOOL CEdit::HideBalloonTip() {
    return AfxSend<BOOL>(m_hWnd, EM_HIDEBALLOONTIP);
}

int CProgressCtrl::GetStep() const {
    return AfxSend<int>(m_hWnd, PBM_GETSTEP);
}
int CProgressCtrl::GetState() const {
    return AfxSend<int>(m_hWnd, PBM_GETSTATE);
}
int CProgressCtrl::SetState(int iState) {
    return AfxSend<int>(m_hWnd, PBM_SETSTATE, iState);
}
BOOL CProgressCtrl::SetMarquee(BOOL fMarqueeMode, int nInterval) {
    return AfxSend<BOOL>(m_hWnd, PBM_SETMARQUEE, fMarqueeMode, nInterval);
}
COLORREF CProgressCtrl::GetBarColor() const {
    return AfxSend<COLORREF>(m_hWnd, PBM_GETBARCOLOR);
}
COLORREF CProgressCtrl::GetBkColor() const {
    return AfxSend<COLORREF>(m_hWnd, PBM_GETBKCOLOR);
}

CToolTipCtrl* CSliderCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, TBM_GETTOOLTIPS)));
}
void CSliderCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    AfxSend(m_hWnd, TBM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
}
int CSliderCtrl::SetTipSide(int nLocation) {
    return AfxSend<int>(m_hWnd, TBM_SETTIPSIDE, nLocation);
}
int CSliderCtrl::GetThumbLength() const {
    return AfxSend<int>(m_hWnd, TBM_GETTHUMBLENGTH);
}
void CSliderCtrl::SetThumbLength(int nLength) {
    AfxSend(m_hWnd, TBM_SETTHUMBLENGTH, nLength);
}
DWORD* CSliderCtrl::GetTicArray() const {
    return AfxSend<DWORD*>(m_hWnd, TBM_GETPTICS);
}
