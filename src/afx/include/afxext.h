// Control bars, which are windows along the edges of a frame, and the state of a print job.
#pragma once

#include "afx/app/print_info.h"

#include <afxdlgs.h>
#include <afxwin.h>

#define CBRS_ALIGN_LEFT 0x1000L
#define CBRS_ALIGN_TOP 0x2000L
#define CBRS_ALIGN_RIGHT 0x4000L
#define CBRS_ALIGN_BOTTOM 0x8000L
#define CBRS_ALIGN_ANY 0xF000L
#define CBRS_BORDER_LEFT 0x0100L
#define CBRS_BORDER_TOP 0x0200L
#define CBRS_BORDER_RIGHT 0x0400L
#define CBRS_BORDER_BOTTOM 0x0800L
#define CBRS_BORDER_ANY 0x0F00L
#define CBRS_TOOLTIPS 0x0010L
#define CBRS_FLYBY 0x0020L
#define CBRS_ALL 0xFFFFL
#define CBRS_NOALIGN 0x00000000L
#define CBRS_LEFT (CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT)
#define CBRS_TOP (CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM)
#define CBRS_RIGHT (CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT)
#define CBRS_BOTTOM (CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP)

// Styles of a status bar's panes
#define SBPS_NORMAL 0x0000
#define SBPS_NOBORDERS SBT_NOBORDERS
#define SBPS_POPOUT SBT_POPOUT
#define SBPS_OWNERDRAW SBT_OWNERDRAW
#define SBPS_DISABLED 0x04000000
#define SBPS_STRETCH 0x08000000

class CStatusBarCtrl;
class CView;

/// A window that takes a strip off its frame's client area and is kept up to date at idle time.
class QVAFX_API CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)

public:
    ~CControlBar() override;

    BOOL m_bAutoDelete = FALSE;

    int GetCount() const { return m_nCount; }
    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD dwStyle) { m_dwStyle = dwStyle; }
    BOOL IsVisible() const;
    CFrameWnd* GetDockingFrame() const;

    /// The size along the edge that the bar lies at.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;

protected:
    CControlBar() = default;
    void PostNcDestroy() override;
    void JoinFrame(CFrameWnd* pFrame);

    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInitialUpdate(WPARAM wParam, LPARAM lParam);

    DWORD m_dwStyle = CBRS_TOP;
    int m_nCount = 0;
    CFrameWnd* m_pDockSite = nullptr;

    DECLARE_MESSAGE_MAP()
};

/// A bar whose controls come from a dialog template. What they tell goes to the frame, and their
/// state comes from its command updates.
class QVAFX_API CDialogBar : public CControlBar {
    DECLARE_DYNAMIC(CDialogBar)

public:
    CDialogBar() = default;
    ~CDialogBar() override;

    using CWnd::Create;
    /// nStyle: CBRS_ styles; the template is a child window's.
    virtual BOOL Create(CWnd* pParentWnd, LPCTSTR lpszTemplateName, UINT nStyle, UINT nID);
    virtual BOOL Create(CWnd* pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID);

    CSize m_sizeDefault = CSize(0, 0);  ///< the template's

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// How a frame looked before print preview, which keeps this until it ends.
struct CPrintPreviewState {
    UINT nIDMainPane = AFX_IDW_PANE_FIRST;  ///< the window that makes room
    HMENU hMenu = nullptr;
    DWORD dwStates = 0;  ///< bars to show again, by their numbers from AFX_IDW_CONTROLBAR_FIRST on
    CView* pViewActiveOld = nullptr;
    HACCEL hAccelTable = nullptr;
    /// Called when the frame is closed: ends the preview, and gives FALSE to keep the frame.
    BOOL(CALLBACK* lpfnCloseProc)(CFrameWnd* pFrameWnd) = nullptr;
};

/// Panes of text along the lower edge of a frame. The pane of ID_SEPARATOR shows messages; others
/// show the string of their number while their command update enables them.
class QVAFX_API CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)

public:
    CStatusBar();
    ~CStatusBar() override;

    using CWnd::Create;
    using CWnd::CreateEx;
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                        UINT nID = AFX_IDW_STATUS_BAR);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                          UINT nID = AFX_IDW_STATUS_BAR);
    /// A pane for each number, as wide as its string; the first one stretches. Null array: empty
    /// panes. FALSE if a string is missing.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);

    int CommandToIndex(UINT nIDFind) const;  ///< -1 if there is no such pane
    UINT GetItemID(int nIndex) const;
    void GetItemRect(int nIndex, LPRECT lpRect) const;
    void GetPaneText(int nIndex, CString& rString) const;
    CString GetPaneText(int nIndex) const;
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    CStatusBarCtrl& GetStatusBarCtrl() const;

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    struct Pane {
        UINT nID = 0;
        UINT nStyle = 0;
        int cxText = 0;  ///< width of the text area in pixels
        CString strText;
    };
    BOOL IsPane(int nIndex) const { return nIndex >= 0 && nIndex < m_nCount; }
    void LayOutPanes();
    void ShowPaneText(int nIndex);
    int TextWidth(LPCTSTR lpszText);

    Pane* m_pPanes = nullptr;
};
