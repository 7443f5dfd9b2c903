// CMonthCalCtrl, the calendar.
#pragma once

#include <afxcmn.h>
#include <afxdisp.h>

class QVAFX_API CMonthCalCtrl : public CWnd {
    DECLARE_DYNAMIC(CMonthCalCtrl)

public:
    CMonthCalCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    /// As large as a month needs.
    virtual BOOL Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID);

    // The selected day of a calendar that selects one.
    BOOL GetCurSel(LPSYSTEMTIME pDateTime) const;
    BOOL GetCurSel(CTime& refDateTime) const;
    BOOL GetCurSel(COleDateTime& refDateTime) const;
    BOOL SetCurSel(const LPSYSTEMTIME pDateTime);
    BOOL SetCurSel(const CTime& refDateTime);
    BOOL SetCurSel(const COleDateTime& refDateTime);
    // The selected days of one with MCS_MULTISELECT. Null: not wanted.
    BOOL GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL GetSelRange(CTime& refMinRange, CTime& refMaxRange) const;
    BOOL GetSelRange(COleDateTime& refMinRange, COleDateTime& refMaxRange) const;
    BOOL SetSelRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);
    BOOL SetSelRange(const CTime& refMinRange, const CTime& refMaxRange);
    BOOL SetSelRange(const COleDateTime& refMinRange, const COleDateTime& refMaxRange);
    /// Days at most; FALSE without MCS_MULTISELECT.
    BOOL SetMaxSelCount(int nMax);
    int GetMaxSelCount() const;
    // The days that can be selected. GDTR_MIN, GDTR_MAX or both, for the bounds that are set; a
    // null pointer leaves that end open.
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    DWORD GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const;
    BOOL SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);
    BOOL SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange);
    void GetToday(LPSYSTEMTIME pDateTime) const;
    BOOL GetToday(COleDateTime& refDateTime) const;
    BOOL GetToday(CTime& refDateTime) const;
    void SetToday(const LPSYSTEMTIME pDateTime);
    void SetToday(const CTime* pDateTime);
    void SetToday(const COleDateTime& refDateTime);

    COLORREF GetColor(int nRegion) const;
    COLORREF SetColor(int nRegion, COLORREF ref);
    /// 0 is Monday; pbLocal: whether it is not the locale's.
    int GetFirstDayOfWeek(BOOL* pbLocal = nullptr) const;
    BOOL SetFirstDayOfWeek(int iDay, int* lpnOld = nullptr);
    int GetMonthDelta() const;
    int SetMonthDelta(int iDelta);  ///< months by click; gives the count before
    int GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const;
    BOOL SetDayState(int nMonths, LPMONTHDAYSTATE pStates);
    BOOL GetMinReqRect(RECT* pRect) const;
    DWORD HitTest(PMCHITTESTINFO pMCHitTest);
    BOOL SizeMinReq(BOOL bRepaint = TRUE);
};
