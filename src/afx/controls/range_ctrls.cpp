// Spin button, progress bar, slider, status bar.
#include "afx/controls/range_ctrls.h"

#include "afx/window/wnd_state.h"

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)

static HWND HandleOf(const CWnd* pWnd) {
    return pWnd != nullptr ? pWnd->m_hWnd : nullptr;
}

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(UPDOWN_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::SetAccel(int nAccel, UDACCEL* pAccel) {
    return AfxSend<BOOL>(m_hWnd, UDM_SETACCEL, nAccel, pAccel);
}

UINT CSpinButtonCtrl::GetAccel(int nAccel, UDACCEL* pAccel) const {
    return AfxSend<UINT>(m_hWnd, UDM_GETACCEL, nAccel, pAccel);
}

int CSpinButtonCtrl::SetBase(int nBase) {
    return AfxSend<int>(m_hWnd, UDM_SETBASE, nBase);
}

UINT CSpinButtonCtrl::GetBase() const {
    return AfxSend<UINT>(m_hWnd, UDM_GETBASE);
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy) {
    return CWnd::FromHandle(AfxSend<HWND>(m_hWnd, UDM_SETBUDDY, HandleOf(pWndBuddy)));
}

CWnd* CSpinButtonCtrl::GetBuddy() const {
    return CWnd::FromHandle(AfxSend<HWND>(m_hWnd, UDM_GETBUDDY));
}

int CSpinButtonCtrl::SetPos(int nPos) {
    return static_cast<short>(AfxSend<int>(m_hWnd, UDM_SETPOS, 0, MAKELONG(nPos, 0)));
}

int CSpinButtonCtrl::GetPos() const {
    return AfxSend<int>(m_hWnd, UDM_GETPOS);
}

int CSpinButtonCtrl::SetPos32(int nPos) {
    return AfxSend<int>(m_hWnd, UDM_SETPOS32, 0, nPos);
}

int CSpinButtonCtrl::GetPos32(LPBOOL lpbError) const {
    return AfxSend<int>(m_hWnd, UDM_GETPOS32, 0, lpbError);
}

void CSpinButtonCtrl::SetRange(short nLower, short nUpper) {
    AfxSend(m_hWnd, UDM_SETRANGE, 0, MAKELONG(nUpper, nLower));
}

DWORD CSpinButtonCtrl::GetRange() const {
    return AfxSend<DWORD>(m_hWnd, UDM_GETRANGE);
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const {
    const DWORD dw = GetRange();
    lower = static_cast<short>(HIWORD(dw));
    upper = static_cast<short>(LOWORD(dw));
}

void CSpinButtonCtrl::SetRange32(int nLower, int nUpper) {
    AfxSend(m_hWnd, UDM_SETRANGE32, nLower, nUpper);
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const {
    AfxSend(m_hWnd, UDM_GETRANGE32, &lower, &upper);
}

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(PROGRESS_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CProgressCtrl::SetRange(short nLower, short nUpper) {
    AfxSend(m_hWnd, PBM_SETRANGE, 0, MAKELONG(nLower, nUpper));
}

void CProgressCtrl::SetRange32(int nLower, int nUpper) {
    AfxSend(m_hWnd, PBM_SETRANGE32, nLower, nUpper);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const {
    PBRANGE range = {};
    AfxSend(m_hWnd, PBM_GETRANGE, TRUE, &range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

int CProgressCtrl::GetPos() const {
    return AfxSend<int>(m_hWnd, PBM_GETPOS);
}

int CProgressCtrl::SetPos(int nPos) {
    return AfxSend<int>(m_hWnd, PBM_SETPOS, nPos);
}

int CProgressCtrl::OffsetPos(int nPos) {
    return AfxSend<int>(m_hWnd, PBM_DELTAPOS, nPos);
}

int CProgressCtrl::SetStep(int nStep) {
    return AfxSend<int>(m_hWnd, PBM_SETSTEP, nStep);
}

int CProgressCtrl::StepIt() {
    return AfxSend<int>(m_hWnd, PBM_STEPIT);
}

COLORREF CProgressCtrl::SetBarColor(COLORREF clrBar) {
    return AfxSend<COLORREF>(m_hWnd, PBM_SETBARCOLOR, 0, clrBar);
}

COLORREF CProgressCtrl::SetBkColor(COLORREF clrNew) {
    return AfxSend<COLORREF>(m_hWnd, PBM_SETBKCOLOR, 0, clrNew);
}

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(TRACKBAR_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CSliderCtrl::GetLineSize() const {
    return AfxSend<int>(m_hWnd, TBM_GETLINESIZE);
}

int CSliderCtrl::SetLineSize(int nSize) {
    return AfxSend<int>(m_hWnd, TBM_SETLINESIZE, 0, nSize);
}

int CSliderCtrl::GetPageSize() const {
    return AfxSend<int>(m_hWnd, TBM_GETPAGESIZE);
}

int CSliderCtrl::SetPageSize(int nSize) {
    return AfxSend<int>(m_hWnd, TBM_SETPAGESIZE, 0, nSize);
}

int CSliderCtrl::GetRangeMax() const {
    return AfxSend<int>(m_hWnd, TBM_GETRANGEMAX);
}

int CSliderCtrl::GetRangeMin() const {
    return AfxSend<int>(m_hWnd, TBM_GETRANGEMIN);
}

void CSliderCtrl::GetRange(int& nMin, int& nMax) const {
    nMin = GetRangeMin();
    nMax = GetRangeMax();
}

void CSliderCtrl::SetRangeMin(int nMin, BOOL bRedraw) {
    AfxSend(m_hWnd, TBM_SETRANGEMIN, bRedraw, nMin);
}

void CSliderCtrl::SetRangeMax(int nMax, BOOL bRedraw) {
    AfxSend(m_hWnd, TBM_SETRANGEMAX, bRedraw, nMax);
}

void CSliderCtrl::SetRange(int nMin, int nMax, BOOL bRedraw) {
    SetRangeMin(nMin, bRedraw);
    SetRangeMax(nMax, bRedraw);
}

void CSliderCtrl::GetSelection(int& nMin, int& nMax) const {
    nMin = AfxSend<int>(m_hWnd, TBM_GETSELSTART);
    nMax = AfxSend<int>(m_hWnd, TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int nMin, int nMax) {
    AfxSend(m_hWnd, TBM_SETSELSTART, 0, nMin);
    AfxSend(m_hWnd, TBM_SETSELEND, 0, nMax);
}

void CSliderCtrl::GetChannelRect(LPRECT lprc) const {
    AfxSend(m_hWnd, TBM_GETCHANNELRECT, 0, lprc);
}

void CSliderCtrl::GetThumbRect(LPRECT lprc) const {
    AfxSend(m_hWnd, TBM_GETTHUMBRECT, 0, lprc);
}

int CSliderCtrl::GetPos() const {
    return AfxSend<int>(m_hWnd, TBM_GETPOS);
}

void CSliderCtrl::SetPos(int nPos) {
    AfxSend(m_hWnd, TBM_SETPOS, TRUE, nPos);
}

UINT CSliderCtrl::GetNumTics() const {
    return AfxSend<UINT>(m_hWnd, TBM_GETNUMTICS);
}

int CSliderCtrl::GetTic(int nTic) const {
    return AfxSend<int>(m_hWnd, TBM_GETTIC, nTic);
}

int CSliderCtrl::GetTicPos(int nTic) const {
    return AfxSend<int>(m_hWnd, TBM_GETTICPOS, nTic);
}

BOOL CSliderCtrl::SetTic(int nTic) {
    return AfxSend<BOOL>(m_hWnd, TBM_SETTIC, 0, nTic);
}

void CSliderCtrl::SetTicFreq(int nFreq) {
    AfxSend(m_hWnd, TBM_SETTICFREQ, nFreq);
}

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const {
    return CWnd::FromHandle(AfxSend<HWND>(m_hWnd, TBM_GETBUDDY, fLocation));
}

CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation) {
    return CWnd::FromHandle(AfxSend<HWND>(m_hWnd, TBM_SETBUDDY, fLocation, HandleOf(pWndBuddy)));
}

void CSliderCtrl::ClearSel(BOOL bRedraw) {
    AfxSend(m_hWnd, TBM_CLEARSEL, bRedraw);
}

void CSliderCtrl::ClearTics(BOOL bRedraw) {
    AfxSend(m_hWnd, TBM_CLEARTICS, bRedraw);
}

void CSliderCtrl::VerifyPos() {  // setting the minimum again clips the position
    SetRangeMin(GetRangeMin(), FALSE);
}

BOOL CStatusBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(STATUSCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::SetText(LPCTSTR lpszText, int nPane, int nType) {
    return AfxSend<BOOL>(m_hWnd, SB_SETTEXT, nPane | nType, lpszText);
}

CString CStatusBarCtrl::GetText(int nPane, int* pType) const {
    CString str;
    const int nLength = GetTextLength(nPane, pType);
    GetText(str.GetBuffer(nLength), nPane);
    str.ReleaseBuffer();
    return str;
}

int CStatusBarCtrl::GetText(LPTSTR lpszText, int nPane, int* pType) const {
    const DWORD dw = AfxSend<DWORD>(m_hWnd, SB_GETTEXT, nPane, lpszText);
    if (pType != nullptr) {
        *pType = HIWORD(dw);
    }
    return LOWORD(dw);
}

int CStatusBarCtrl::GetTextLength(int nPane, int* pType) const {
    const DWORD dw = AfxSend<DWORD>(m_hWnd, SB_GETTEXTLENGTH, nPane);
    if (pType != nullptr) {
        *pType = HIWORD(dw);
    }
    return LOWORD(dw);
}

BOOL CStatusBarCtrl::SetParts(int nParts, int* pWidths) {
    return AfxSend<BOOL>(m_hWnd, SB_SETPARTS, nParts, pWidths);
}

int CStatusBarCtrl::GetParts(int nParts, int* pParts) const {
    return AfxSend<int>(m_hWnd, SB_GETPARTS, nParts, pParts);
}

BOOL CStatusBarCtrl::GetBorders(int* pBorders) const {
    return AfxSend<BOOL>(m_hWnd, SB_GETBORDERS, 0, pBorders);
}

BOOL CStatusBarCtrl::GetBorders(int& nHorz, int& nVert, int& nSpacing) const {
    int nBorders[3] = {};
    const BOOL bDone = GetBorders(nBorders);
    nHorz = nBorders[0];
    nVert = nBorders[1];
    nSpacing = nBorders[2];
    return bDone;
}

void CStatusBarCtrl::SetMinHeight(int nMin) {
    AfxSend(m_hWnd, SB_SETMINHEIGHT, nMin);
}

BOOL CStatusBarCtrl::SetSimple(BOOL bSimple) {
    return AfxSend<BOOL>(m_hWnd, SB_SIMPLE, bSimple);
}

BOOL CStatusBarCtrl::IsSimple() const {
    return AfxSend<BOOL>(m_hWnd, SB_ISSIMPLE);
}

BOOL CStatusBarCtrl::GetRect(int nPane, LPRECT lpRect) const {
    return AfxSend<BOOL>(m_hWnd, SB_GETRECT, nPane, lpRect);
}

BOOL CStatusBarCtrl::SetIcon(int nPane, HICON hIcon) {
    return AfxSend<BOOL>(m_hWnd, SB_SETICON, nPane, hIcon);
}

COLORREF CStatusBarCtrl::SetBkColor(COLORREF cr) {
    return AfxSend<COLORREF>(m_hWnd, SB_SETBKCOLOR, 0, cr);
}

void CStatusBarCtrl::SetTipText(int nPane, LPCTSTR pszTipText) {
    AfxSend(m_hWnd, SB_SETTIPTEXT, nPane, pszTipText);
}

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
        case WM_DRAWITEM:
            DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
            *pResult = TRUE;
            return TRUE;
        default:
            return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT) {}
