// Control bars, which are windows along the edges of a frame, and the state of a print job.
#pragma once

#define __AFXEXT_H__

#include "afx/app/control_bar.h"
#include "afx/app/print_info.h"
#include "afx/app/re_bar.h"
#include "afx/app/splitter.h"
#include "afx/app/tool_bar.h"
#include "afx/documents/edit_view.h"
#include "afx/documents/form_view.h"
#include "afx/drawing/meta_file_dc.h"
#include "afx/drawing/rect_tracker.h"

#include <afxdlgs.h>
#include <afxwin.h>

// Styles of a status bar's panes
#define SBPS_NORMAL 0x0000
#define SBPS_NOBORDERS SBT_NOBORDERS
#define SBPS_POPOUT SBT_POPOUT
#define SBPS_OWNERDRAW SBT_OWNERDRAW
#define SBPS_DISABLED 0x04000000
#define SBPS_STRETCH 0x08000000

class CStatusBarCtrl;
class CView;

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
