// Rebar.
#include "afx/controls/rebar_ctrl.h"

#include "afx/window/wnd_state.h"

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CReBarCtrl, CWnd)

BOOL CReBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(REBARCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID);
}

UINT CReBarCtrl::GetBarHeight() const {
    return AfxSend<UINT>(m_hWnd, RB_GETBARHEIGHT);
}
BOOL CReBarCtrl::GetBarInfo(REBARINFO* prbi) const {
    prbi->cbSize = sizeof *prbi;
    return AfxSend<BOOL>(m_hWnd, RB_GETBARINFO, 0, prbi);
}
BOOL CReBarCtrl::SetBarInfo(REBARINFO* prbi) {
    prbi->cbSize = sizeof *prbi;
    return AfxSend<BOOL>(m_hWnd, RB_SETBARINFO, 0, prbi);
}
CImageList* CReBarCtrl::GetImageList() const {
    REBARINFO info{};
    info.fMask = RBIM_IMAGELIST;
    return GetBarInfo(&info) ? CImageList::FromHandle(info.himl) : nullptr;
}
BOOL CReBarCtrl::SetImageList(CImageList* pImageList) {
    REBARINFO info{};
    info.fMask = RBIM_IMAGELIST;
    info.himl = pImageList->GetSafeHandle();
    return SetBarInfo(&info);
}
COLORREF CReBarCtrl::GetBkColor() const {
    return AfxSend<COLORREF>(m_hWnd, RB_GETBKCOLOR);
}
COLORREF CReBarCtrl::SetBkColor(COLORREF clr) {
    return AfxSend<COLORREF>(m_hWnd, RB_SETBKCOLOR, 0, clr);
}
COLORREF CReBarCtrl::GetTextColor() const {
    return AfxSend<COLORREF>(m_hWnd, RB_GETTEXTCOLOR);
}
COLORREF CReBarCtrl::SetTextColor(COLORREF clr) {
    return AfxSend<COLORREF>(m_hWnd, RB_SETTEXTCOLOR, 0, clr);
}
UINT CReBarCtrl::GetRowCount() const {
    return AfxSend<UINT>(m_hWnd, RB_GETROWCOUNT);
}
UINT CReBarCtrl::GetRowHeight(UINT uRow) const {
    return AfxSend<UINT>(m_hWnd, RB_GETROWHEIGHT, uRow);
}
CToolTipCtrl* CReBarCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, RB_GETTOOLTIPS)));
}
void CReBarCtrl::SetToolTips(CToolTipCtrl* pToolTip) {
    AfxSend(m_hWnd, RB_SETTOOLTIPS, pToolTip->GetSafeHwnd());
}
CWnd* CReBarCtrl::SetOwner(CWnd* pWnd) {
    return CWnd::FromHandle(AfxSend<HWND>(m_hWnd, RB_SETPARENT, pWnd->GetSafeHwnd()));
}
BOOL CReBarCtrl::SizeToRect(const CRect& rect) {
    return AfxSend<BOOL>(m_hWnd, RB_SIZETORECT, 0, static_cast<LPCRECT>(rect));
}
int CReBarCtrl::HitTest(RBHITTESTINFO* prbht) {
    return AfxSend<int>(m_hWnd, RB_HITTEST, 0, prbht);
}
UINT CReBarCtrl::GetBandCount() const {
    return AfxSend<UINT>(m_hWnd, RB_GETBANDCOUNT);
}
BOOL CReBarCtrl::GetBandInfo(UINT uBand, REBARBANDINFO* prbbi) const {
    prbbi->cbSize = REBARBANDINFO_V3_SIZE;  // also where the classic controls run
    return AfxSend<BOOL>(m_hWnd, RB_GETBANDINFO, uBand, prbbi);
}
BOOL CReBarCtrl::SetBandInfo(UINT uBand, REBARBANDINFO* prbbi) {
    prbbi->cbSize = REBARBANDINFO_V3_SIZE;  // also where the classic controls run
    return AfxSend<BOOL>(m_hWnd, RB_SETBANDINFO, uBand, prbbi);
}
BOOL CReBarCtrl::InsertBand(UINT uBand, REBARBANDINFO* prbbi) {
    prbbi->cbSize = REBARBANDINFO_V3_SIZE;  // also where the classic controls run
    return AfxSend<BOOL>(m_hWnd, RB_INSERTBAND, uBand, prbbi);
}
BOOL CReBarCtrl::DeleteBand(UINT uBand) {
    return AfxSend<BOOL>(m_hWnd, RB_DELETEBAND, uBand);
}
int CReBarCtrl::IDToIndex(UINT uBandID) const {
    return AfxSend<int>(m_hWnd, RB_IDTOINDEX, uBandID);
}
BOOL CReBarCtrl::GetRect(UINT uBand, LPRECT prc) const {
    return AfxSend<BOOL>(m_hWnd, RB_GETRECT, uBand, prc);
}
void CReBarCtrl::GetBandBorders(UINT uBand, LPRECT prc) const {
    AfxSend(m_hWnd, RB_GETBANDBORDERS, uBand, prc);
}
BOOL CReBarCtrl::ShowBand(UINT uBand, BOOL fShow) {
    return AfxSend<BOOL>(m_hWnd, RB_SHOWBAND, uBand, fShow);
}
void CReBarCtrl::MinimizeBand(UINT uBand) {
    AfxSend(m_hWnd, RB_MINIMIZEBAND, uBand);
}
void CReBarCtrl::MaximizeBand(UINT uBand) {
    AfxSend(m_hWnd, RB_MAXIMIZEBAND, uBand);
}
void CReBarCtrl::RestoreBand(UINT uBand) {
    AfxSend(m_hWnd, RB_MAXIMIZEBAND, uBand, TRUE);
}
BOOL CReBarCtrl::MoveBand(UINT uFrom, UINT uTo) {
    return AfxSend<BOOL>(m_hWnd, RB_MOVEBAND, uFrom, uTo);
}
void CReBarCtrl::BeginDrag(UINT uBand, DWORD dwPos) {
    AfxSend(m_hWnd, RB_BEGINDRAG, uBand, dwPos);
}
void CReBarCtrl::DragMove(DWORD dwPos) {
    AfxSend(m_hWnd, RB_DRAGMOVE, 0, dwPos);
}
void CReBarCtrl::EndDrag() {
    AfxSend(m_hWnd, RB_ENDDRAG);
}
