// CDateTimeCtrl, the date and time picker, and CMonthCalCtrl.
#pragma once

#define __AFXDTCTL_H__

#include <afxcmn.h>
#include <afxdisp.h>

#include "afx/controls/month_cal_ctrl.h"

class QVAFX_API CDateTimeCtrl : public CWnd {
    DECLARE_DYNAMIC(CDateTimeCtrl)

public:
    CDateTimeCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// GDT_VALID, GDT_NONE (the picker is unchecked) or GDT_ERROR.
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const;
    DWORD GetTime(CTime& timeDest) const;
    /// Nonzero if a time was written. The status is null for a picker that is unchecked.
    BOOL GetTime(COleDateTime& timeDest) const;
    BOOL SetTime(LPSYSTEMTIME pTimeNew = nullptr);
    BOOL SetTime(const CTime* pTimeNew);
    /// Status null unchecks the picker; a time that is not valid changes nothing and gives 0.
    BOOL SetTime(const COleDateTime& timeNew);
    BOOL SetFormat(LPCTSTR pstrFormat);
    /// GDTR_MIN, GDTR_MAX or both, for the bounds that are set.
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    DWORD GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const;
    /// A null pointer leaves that end open.
    BOOL SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);
    BOOL SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange);
    COLORREF GetMonthCalColor(int iColor) const;
    COLORREF SetMonthCalColor(int iColor, COLORREF ref);
    void SetMonthCalFont(HFONT hFont, BOOL bRedraw = TRUE);
    CFont* GetMonthCalFont() const;
    void CloseMonthCal() const;
};
