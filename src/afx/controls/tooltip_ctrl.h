// CToolTipCtrl. Its owner relays mouse messages to it from PreTranslateMessage.
#pragma once

#include <afxwin.h>

/// A tool with room for its text, cut at its end.
class CToolInfo : public TOOLINFO {
public:
    TCHAR szText[256];
};

class QVAFX_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl() = default;
    using CWnd::Create;
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    int GetToolCount() const;
    BOOL GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo);
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    COLORREF GetTipBkColor() const;
    void SetTipBkColor(COLORREF clr);
    COLORREF GetTipTextColor() const;
    void SetTipTextColor(COLORREF clr);
    int GetMaxTipWidth() const;
    int SetMaxTipWidth(int iWidth);
    void GetMargin(LPRECT lprc) const;
    void SetMargin(LPRECT lprc);
    int GetDelayTime(DWORD dwDuration) const;
    void SetDelayTime(UINT nDelay);
    void SetDelayTime(DWORD dwDuration, int iTime);

    void Activate(BOOL bActivate);
    /// A tool without a rectangle is the whole window; nIDTool then must be 0.
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr,
                 UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;
    void RelayEvent(LPMSG lpMsg);
    void Pop();
    void Update();

protected:
    void FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool) const;
};
