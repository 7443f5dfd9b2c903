#include "afx/controls/month_cal_ctrl.h"

#include "afx/controls/time_bounds.h"
#include "afx/window/wnd_state.h"

IMPLEMENT_DYNAMIC(CMonthCalCtrl, CWnd)

namespace {

template <class Time>
BOOL GetOne(const CMonthCalCtrl& ctrl, BOOL (CMonthCalCtrl::*pfnGet)(LPSYSTEMTIME) const,
            Time& time) {
    SYSTEMTIME st = {};
    if (!(ctrl.*pfnGet)(&st)) {
        return FALSE;
    }
    time = Time(st);
    return TRUE;
}

template <class Time>
BOOL GetTwo(const CMonthCalCtrl& ctrl, Time& first, Time& last) {
    SYSTEMTIME st[2] = {};
    if (!ctrl.GetSelRange(&st[0], &st[1])) {
        return FALSE;
    }
    first = Time(st[0]);
    last = Time(st[1]);
    return TRUE;
}

template <class Time>
BOOL SetOne(CMonthCalCtrl& ctrl, const Time& time) {
    SYSTEMTIME st = {};
    return time.GetAsSystemTime(st) && ctrl.SetCurSel(&st);
}

template <class Time>
BOOL SetTwo(CMonthCalCtrl& ctrl, const Time& first, const Time& last) {
    SYSTEMTIME st[2] = {};
    return first.GetAsSystemTime(st[0]) && last.GetAsSystemTime(st[1]) &&
           ctrl.SetSelRange(&st[0], &st[1]);
}

}  // namespace

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(MONTHCAL_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID) {
    return Create(dwStyle, CRect(pt, CSize(0, 0)), pParentWnd, nID) && SizeMinReq();
}

BOOL CMonthCalCtrl::GetCurSel(LPSYSTEMTIME pDateTime) const {
    return AfxSend<BOOL>(m_hWnd, MCM_GETCURSEL, 0, pDateTime);
}
BOOL CMonthCalCtrl::GetCurSel(CTime& refDateTime) const {
    return GetOne(*this, &CMonthCalCtrl::GetCurSel, refDateTime);
}
BOOL CMonthCalCtrl::GetCurSel(COleDateTime& refDateTime) const {
    return GetOne(*this, &CMonthCalCtrl::GetCurSel, refDateTime);
}
BOOL CMonthCalCtrl::SetCurSel(const LPSYSTEMTIME pDateTime) {
    return AfxSend<BOOL>(m_hWnd, MCM_SETCURSEL, 0, pDateTime);
}
BOOL CMonthCalCtrl::SetCurSel(const CTime& refDateTime) {
    return SetOne(*this, refDateTime);
}
BOOL CMonthCalCtrl::SetCurSel(const COleDateTime& refDateTime) {
    return SetOne(*this, refDateTime);
}

BOOL CMonthCalCtrl::GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const {
    SYSTEMTIME range[2] = {};
    if (!AfxSend<BOOL>(m_hWnd, MCM_GETSELRANGE, 0, range)) {
        return FALSE;
    }
    if (pMinRange != nullptr) {
        *pMinRange = range[0];
    }
    if (pMaxRange != nullptr) {
        *pMaxRange = range[1];
    }
    return TRUE;
}
BOOL CMonthCalCtrl::GetSelRange(CTime& refMinRange, CTime& refMaxRange) const {
    return GetTwo(*this, refMinRange, refMaxRange);
}
BOOL CMonthCalCtrl::GetSelRange(COleDateTime& refMinRange, COleDateTime& refMaxRange) const {
    return GetTwo(*this, refMinRange, refMaxRange);
}
BOOL CMonthCalCtrl::SetSelRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange) {
    SYSTEMTIME range[2] = {*pMinRange, *pMaxRange};
    return AfxSend<BOOL>(m_hWnd, MCM_SETSELRANGE, 0, range);
}
BOOL CMonthCalCtrl::SetSelRange(const CTime& refMinRange, const CTime& refMaxRange) {
    return SetTwo(*this, refMinRange, refMaxRange);
}
BOOL CMonthCalCtrl::SetSelRange(const COleDateTime& refMinRange, const COleDateTime& refMaxRange) {
    return SetTwo(*this, refMinRange, refMaxRange);
}
BOOL CMonthCalCtrl::SetMaxSelCount(int nMax) {
    return AfxSend<BOOL>(m_hWnd, MCM_SETMAXSELCOUNT, nMax);
}
int CMonthCalCtrl::GetMaxSelCount() const {
    return AfxSend<int>(m_hWnd, MCM_GETMAXSELCOUNT);
}

DWORD CMonthCalCtrl::GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const {
    return AfxGetTimeBounds(m_hWnd, MCM_GETRANGE, pMinRange, pMaxRange);
}
DWORD CMonthCalCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const {
    return AfxGetTimeBounds(*this, pMinRange, pMaxRange);
}
DWORD CMonthCalCtrl::GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const {
    return AfxGetTimeBounds(*this, pMinRange, pMaxRange);
}
BOOL CMonthCalCtrl::SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange) {
    return AfxSetTimeBounds(m_hWnd, MCM_SETRANGE, pMinRange, pMaxRange);
}
BOOL CMonthCalCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange) {
    return AfxSetTimeBounds(*this, pMinRange, pMaxRange);
}
BOOL CMonthCalCtrl::SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange) {
    return AfxSetTimeBounds(*this, pMinRange, pMaxRange);
}

void CMonthCalCtrl::GetToday(LPSYSTEMTIME pDateTime) const {
    AfxSend(m_hWnd, MCM_GETTODAY, 0, pDateTime);
}
BOOL CMonthCalCtrl::GetToday(COleDateTime& refDateTime) const {
    SYSTEMTIME st = {};
    GetToday(&st);
    refDateTime = COleDateTime(st);
    return refDateTime.GetStatus() == COleDateTime::valid;
}
BOOL CMonthCalCtrl::GetToday(CTime& refDateTime) const {
    SYSTEMTIME st = {};
    GetToday(&st);
    refDateTime = CTime(st);
    return refDateTime.GetTime() != -1;
}
void CMonthCalCtrl::SetToday(const LPSYSTEMTIME pDateTime) {
    AfxSend(m_hWnd, MCM_SETTODAY, 0, pDateTime);
}
void CMonthCalCtrl::SetToday(const CTime* pDateTime) {
    SYSTEMTIME st = {};
    if (pDateTime == nullptr || pDateTime->GetAsSystemTime(st)) {
        SetToday(pDateTime != nullptr ? &st : nullptr);
    }
}
void CMonthCalCtrl::SetToday(const COleDateTime& refDateTime) {
    SYSTEMTIME st = {};
    if (refDateTime.GetAsSystemTime(st)) {
        SetToday(&st);
    }
}

COLORREF CMonthCalCtrl::GetColor(int nRegion) const {
    return AfxSend<COLORREF>(m_hWnd, MCM_GETCOLOR, nRegion);
}
COLORREF CMonthCalCtrl::SetColor(int nRegion, COLORREF ref) {
    return AfxSend<COLORREF>(m_hWnd, MCM_SETCOLOR, nRegion, ref);
}

int CMonthCalCtrl::GetFirstDayOfWeek(BOOL* pbLocal) const {
    const auto dwResult = AfxSend<DWORD>(m_hWnd, MCM_GETFIRSTDAYOFWEEK);
    if (pbLocal != nullptr) {
        *pbLocal = HIWORD(dwResult);
    }
    return LOWORD(dwResult);
}
BOOL CMonthCalCtrl::SetFirstDayOfWeek(int iDay, int* lpnOld) {
    const auto dwResult = AfxSend<DWORD>(m_hWnd, MCM_SETFIRSTDAYOFWEEK, 0, iDay);
    if (lpnOld != nullptr) {
        *lpnOld = LOWORD(dwResult);
    }
    return HIWORD(dwResult);
}
int CMonthCalCtrl::GetMonthDelta() const {
    return AfxSend<int>(m_hWnd, MCM_GETMONTHDELTA);
}
int CMonthCalCtrl::SetMonthDelta(int iDelta) {
    return AfxSend<int>(m_hWnd, MCM_SETMONTHDELTA, iDelta);
}
int CMonthCalCtrl::GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange,
                                 DWORD dwFlags) const {
    SYSTEMTIME range[2] = {};
    const int nMonths = AfxSend<int>(m_hWnd, MCM_GETMONTHRANGE, dwFlags, range);
    *pMinRange = range[0];
    *pMaxRange = range[1];
    return nMonths;
}
BOOL CMonthCalCtrl::SetDayState(int nMonths, LPMONTHDAYSTATE pStates) {
    return AfxSend<BOOL>(m_hWnd, MCM_SETDAYSTATE, nMonths, pStates);
}
BOOL CMonthCalCtrl::GetMinReqRect(RECT* pRect) const {
    return AfxSend<BOOL>(m_hWnd, MCM_GETMINREQRECT, 0, pRect);
}
DWORD CMonthCalCtrl::HitTest(PMCHITTESTINFO pMCHitTest) {
    return AfxSend<DWORD>(m_hWnd, MCM_HITTEST, 0, pMCHitTest);
}
BOOL CMonthCalCtrl::SizeMinReq(BOOL bRepaint) {
    CRect rect;
    if (!GetMinReqRect(rect)) {
        return FALSE;
    }
    const UINT nFlags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | (bRepaint ? 0 : SWP_NOREDRAW);
    return SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(), nFlags);
}
