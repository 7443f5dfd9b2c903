// Date and time picker.
#include "afx/window/wnd_state.h"

#include <afxdtctl.h>

IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

namespace {

/// Both ends of a range in another type of time.
template <class Time>
DWORD GetRangeAs(const CDateTimeCtrl& ctrl, Time* pMin, Time* pMax) {
    SYSTEMTIME first{};
    SYSTEMTIME last{};
    const DWORD dwResult = ctrl.GetRange(&first, &last);
    if (pMin != nullptr && (dwResult & GDTR_MIN)) {
        *pMin = Time(first);
    }
    if (pMax != nullptr && (dwResult & GDTR_MAX)) {
        *pMax = Time(last);
    }
    return dwResult;
}

template <class Time>
BOOL SetRangeAs(CDateTimeCtrl& ctrl, const Time* pMin, const Time* pMax) {
    SYSTEMTIME first{};
    SYSTEMTIME last{};
    if ((pMin != nullptr && !pMin->GetAsSystemTime(first)) ||
        (pMax != nullptr && !pMax->GetAsSystemTime(last))) {
        return FALSE;
    }
    return ctrl.SetRange(pMin != nullptr ? &first : nullptr, pMax != nullptr ? &last : nullptr);
}

}  // namespace

BOOL CDateTimeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(DATETIMEPICK_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

DWORD CDateTimeCtrl::GetTime(LPSYSTEMTIME pTimeDest) const {
    return AfxSend<DWORD>(m_hWnd, DTM_GETSYSTEMTIME, 0, pTimeDest);
}

DWORD CDateTimeCtrl::GetTime(CTime& timeDest) const {
    SYSTEMTIME st = {};
    const DWORD dwResult = GetTime(&st);
    if (dwResult == GDT_VALID) {
        timeDest = CTime(st);
    }
    return dwResult;
}

BOOL CDateTimeCtrl::GetTime(COleDateTime& timeDest) const {
    SYSTEMTIME st = {};
    const DWORD dwResult = GetTime(&st);
    if (dwResult == GDT_VALID) {
        timeDest = COleDateTime(st);
    } else if (dwResult == GDT_NONE) {
        timeDest.SetStatus(COleDateTime::null);
    }
    return dwResult == GDT_VALID;
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME pTimeNew) {
    if (pTimeNew != nullptr) {
        return AfxSend<BOOL>(m_hWnd, DTM_SETSYSTEMTIME, GDT_VALID, pTimeNew);
    }
    // No time is meant, but some versions of the control refuse a null pointer even then.
    SYSTEMTIME ignored;
    ::GetLocalTime(&ignored);
    return AfxSend<BOOL>(m_hWnd, DTM_SETSYSTEMTIME, GDT_NONE, &ignored);
}

BOOL CDateTimeCtrl::SetTime(const CTime* pTimeNew) {
    if (pTimeNew == nullptr) {
        return SetTime(static_cast<LPSYSTEMTIME>(nullptr));
    }
    SYSTEMTIME st = {};
    return pTimeNew->GetAsSystemTime(st) && SetTime(&st);
}

BOOL CDateTimeCtrl::SetTime(const COleDateTime& timeNew) {
    if (timeNew.GetStatus() == COleDateTime::null) {
        return SetTime(static_cast<LPSYSTEMTIME>(nullptr));
    }
    SYSTEMTIME st = {};
    return timeNew.GetAsSystemTime(st) && SetTime(&st);
}

BOOL CDateTimeCtrl::SetFormat(LPCTSTR pstrFormat) {
    return AfxSend<BOOL>(m_hWnd, DTM_SETFORMAT, 0, pstrFormat);
}

DWORD CDateTimeCtrl::GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const {
    SYSTEMTIME range[2] = {};
    const DWORD dwResult = AfxSend<DWORD>(m_hWnd, DTM_GETRANGE, 0, range);
    if (pMinRange != nullptr && (dwResult & GDTR_MIN)) {
        *pMinRange = range[0];
    }
    if (pMaxRange != nullptr && (dwResult & GDTR_MAX)) {
        *pMaxRange = range[1];
    }
    return dwResult;
}

DWORD CDateTimeCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const {
    return GetRangeAs(*this, pMinRange, pMaxRange);
}

DWORD CDateTimeCtrl::GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const {
    return GetRangeAs(*this, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange) {
    return SetRangeAs(*this, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange) {
    return SetRangeAs(*this, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange) {
    SYSTEMTIME range[2] = {};
    DWORD dwFlags = 0;
    if (pMinRange != nullptr) {
        range[0] = *pMinRange;
        dwFlags |= GDTR_MIN;
    }
    if (pMaxRange != nullptr) {
        range[1] = *pMaxRange;
        dwFlags |= GDTR_MAX;
    }
    return AfxSend<BOOL>(m_hWnd, DTM_SETRANGE, dwFlags, range);
}

COLORREF CDateTimeCtrl::GetMonthCalColor(int iColor) const {
    return AfxSend<COLORREF>(m_hWnd, DTM_GETMCCOLOR, iColor);
}

COLORREF CDateTimeCtrl::SetMonthCalColor(int iColor, COLORREF ref) {
    return AfxSend<COLORREF>(m_hWnd, DTM_SETMCCOLOR, iColor, ref);
}

void CDateTimeCtrl::SetMonthCalFont(HFONT hFont, BOOL bRedraw) {
    AfxSend(m_hWnd, DTM_SETMCFONT, hFont, bRedraw);
}

CFont* CDateTimeCtrl::GetMonthCalFont() const {
    return CFont::FromHandle(AfxSend<HFONT>(m_hWnd, DTM_GETMCFONT));
}

void CDateTimeCtrl::CloseMonthCal() const {  // DTM_CLOSEMONTHCAL, which older headers do not name
    AfxSend(m_hWnd, DTM_FIRST + 13);
}
