// Controls that show or set a number in a range, and the status bar control.
#pragma once

#include <afxwin.h>

class CToolTipCtrl;

class QVAFX_API CSpinButtonCtrl : public CWnd {
    DECLARE_DYNAMIC(CSpinButtonCtrl)

public:
    CSpinButtonCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL SetAccel(int nAccel, UDACCEL* pAccel);
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const;
    int SetBase(int nBase);
    UINT GetBase() const;
    CWnd* SetBuddy(CWnd* pWndBuddy);
    CWnd* GetBuddy() const;
    /// 16-bit position; the upper word of GetPos tells an error.
    int SetPos(int nPos);
    int GetPos() const;
    int SetPos32(int nPos);
    int GetPos32(LPBOOL lpbError = nullptr) const;
    void SetRange(short nLower, short nUpper);
    DWORD GetRange() const;
    void GetRange(int& lower, int& upper) const;
    void SetRange32(int nLower, int nUpper);
    void GetRange32(int& lower, int& upper) const;
};

class QVAFX_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)

public:
    CProgressCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const;
    int SetPos(int nPos);
    int OffsetPos(int nPos);
    int SetStep(int nStep);
    int StepIt();
    int GetStep() const;
    int GetState() const;      ///< PBST_ constants
    int SetState(int iState);  ///< gives the state before
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval);
    COLORREF GetBarColor() const;
    COLORREF GetBkColor() const;
    COLORREF SetBarColor(COLORREF clrBar);
    COLORREF SetBkColor(COLORREF clrNew);
};

class QVAFX_API CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    CSliderCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetLineSize() const;
    int SetLineSize(int nSize);
    int GetPageSize() const;
    int SetPageSize(int nSize);
    int GetRangeMax() const;
    int GetRangeMin() const;
    void GetRange(int& nMin, int& nMax) const;
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE);
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE);
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    void GetSelection(int& nMin, int& nMax) const;
    void SetSelection(int nMin, int nMax);
    void GetChannelRect(LPRECT lprc) const;
    void GetThumbRect(LPRECT lprc) const;
    int GetPos() const;
    void SetPos(int nPos);
    UINT GetNumTics() const;
    int GetTic(int nTic) const;
    int GetTicPos(int nTic) const;
    BOOL SetTic(int nTic);
    void SetTicFreq(int nFreq);
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    int SetTipSide(int nLocation);  ///< TBTS_ constants; gives the one before
    int GetThumbLength() const;
    void SetThumbLength(int nLength);
    DWORD* GetTicArray() const;  ///< the control's own
    void ClearSel(BOOL bRedraw = FALSE);
    void ClearTics(BOOL bRedraw = FALSE);
    void VerifyPos();
};

class QVAFX_API CStatusBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CStatusBarCtrl)

public:
    CStatusBarCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL SetText(LPCTSTR lpszText, int nPane, int nType);
    CString GetText(int nPane, int* pType = nullptr) const;
    int GetText(LPTSTR lpszText, int nPane, int* pType = nullptr) const;
    int GetTextLength(int nPane, int* pType = nullptr) const;
    BOOL SetParts(int nParts, int* pWidths);
    int GetParts(int nParts, int* pParts) const;
    BOOL GetBorders(int* pBorders) const;
    BOOL GetBorders(int& nHorz, int& nVert, int& nSpacing) const;
    void SetMinHeight(int nMin);
    BOOL SetSimple(BOOL bSimple = TRUE);
    BOOL IsSimple() const;
    BOOL GetRect(int nPane, LPRECT lpRect) const;
    BOOL SetIcon(int nPane, HICON hIcon);
    COLORREF SetBkColor(COLORREF cr);
    void SetTipText(int nPane, LPCTSTR pszTipText);

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
