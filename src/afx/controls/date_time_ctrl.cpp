// Date and time picker.
#include "afx/controls/time_bounds.h"
#include "afx/window/wnd_state.h"

#include <afxdtctl.h>

IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

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
    return AfxGetTimeBounds(m_hWnd, DTM_GETRANGE, pMinRange, pMaxRange);
}

DWORD CDateTimeCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const {
    return AfxGetTimeBounds(*this, pMinRange, pMaxRange);
}

DWORD CDateTimeCtrl::GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const {
    return AfxGetTimeBounds(*this, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange) {
    return AfxSetTimeBounds(*this, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange) {
    return AfxSetTimeBounds(*this, pMinRange, pMaxRange);
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
