// CDateTimeCtrl, the date and time picker.
#pragma once

#include <afxcmn.h>

class QVAFX_API CDateTimeCtrl : public CWnd {
    DECLARE_DYNAMIC(CDateTimeCtrl)

public:
    CDateTimeCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// GDT_VALID, GDT_NONE (the picker is unchecked) or GDT_ERROR.
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const;
    DWORD GetTime(CTime& timeDest) const;
    BOOL SetTime(LPSYSTEMTIME pTimeNew = nullptr);
    BOOL SetTime(const CTime* pTimeNew);
    BOOL SetFormat(LPCTSTR pstrFormat);
    /// GDTR_MIN, GDTR_MAX or both, for the bounds that are set.
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);
    COLORREF GetMonthCalColor(int iColor) const;
    COLORREF SetMonthCalColor(int iColor, COLORREF ref);
    void SetMonthCalFont(HFONT hFont, BOOL bRedraw = TRUE);
    CFont* GetMonthCalFont() const;
    void CloseMonthCal() const;
};
