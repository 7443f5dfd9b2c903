// The frame window of an application: menu, accelerators, bars along the edges, one client window.
#pragma once

#include "afx/window/wnd.h"

#include <afxcoll.h>
#include <afxres.h>

class CControlBar;
class CDocument;
class CDocTemplate;
class CView;
struct CPrintPreviewState;

/// What a frame hands down to the window that it creates inside.
struct CCreateContext {
    CRuntimeClass* m_pNewViewClass = nullptr;
    CDocument* m_pCurrentDoc = nullptr;
    CDocTemplate* m_pNewDocTemplate = nullptr;
    CView* m_pLastView = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};

// Styles of frames
#define FWS_ADDTOTITLE 0x00008000L   // the title names the document
#define FWS_PREFIXTITLE 0x00004000L  // the document's name comes first

/// Commands go to the active view and its document (or, without one, the client window), the frame,
/// the application. A frame is made with new and deletes itself with its window.
class QVAFX_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)

public:
    CFrameWnd();
    ~CFrameWnd() override;

    static const CRect rectDefault;

    using CWnd::Create;
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                        CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                        DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    /// Menu, accelerators, icon and title from resources of one number. The title is the part of
    /// the string before its first line feed.
    virtual BOOL LoadFrame(UINT nIDResource,
                           DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);
    virtual HACCEL GetDefaultAccelerator();

    BOOL m_bAutoMenuEnable = TRUE;  ///< disable menu items whose command nobody handles
    int m_nWindow = 0;              ///< 1 and on among several frames of one document, else 0

    virtual CFrameWnd* GetActiveFrame();
    /// Null if none is active.
    CView* GetActiveView() const { return m_pViewActive; }
    /// Tells the view of before, and then, with bNotify, the new one. If one of them names another
    /// view meanwhile, that counts.
    void SetActiveView(CView* pViewNew, BOOL bNotify = TRUE);
    /// The active view's.
    virtual CDocument* GetActiveDocument();
    /// Makes the window of the context's view class, which may be any window's. Null on failure.
    CWnd* CreateView(CCreateContext* pContext, UINT nID = AFX_IDW_PANE_FIRST);
    /// The client window that gets commands first. A frame without views may name any window.
    CWnd* GetActiveClient() const { return m_pActiveClient; }
    void SetActiveClient(CWnd* pWnd) { m_pActiveClient = pWnd; }

    virtual void RecalcLayout(BOOL bNotify = TRUE);
    /// Before the frame shows first. The first pane's view becomes the active one, unless another
    /// is. With bMakeVisible all views get their initial update, and the frame shows.
    void InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible);
    virtual void ActivateFrame(int nCmdShow = -1);
    virtual CWnd* GetMessageBar();
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);
    CControlBar* GetControlBar(UINT nID);
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);
    virtual void GetMessageString(UINT nID, CString& rMessage) const;

    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }
    CString GetTitle() const { return m_strTitle; }

    virtual void OnUpdateFrameTitle(BOOL bAddToTitle);
    void UpdateFrameTitleForDocument(LPCTSTR lpszDocName);
    /// Print preview begins or ends: bars and views make room or come back.
    virtual void OnSetPreviewMode(BOOL bPreview, CPrintPreviewState* pState);
    BOOL(CALLBACK* m_lpfnCloseProc)(CFrameWnd* pFrameWnd) = nullptr;  ///< asked before OnClose
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL IsFrameWnd() const override;

protected:
    void PostNcDestroy() override;
    int OnCreateHelper(LPCREATESTRUCT lpcs, CCreateContext* pContext);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    /// Asks the active document. The last frame of a document closes it; the main window closes all
    /// documents. Does nothing while somebody is being asked already.
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL bEnding);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);

    HACCEL m_hAccelTable = nullptr;
    UINT m_nIDHelp = 0;
    UINT m_nIDTracking = 0;
    UINT m_nIDLastMessage = 0;
    CString m_strTitle;
    CWnd* m_pActiveClient = nullptr;
    CView* m_pViewActive = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    friend class CControlBar;
    BOOL MayClose();
    void Close();

    bool m_bAskingToClose = false;
    bool m_bBeingDeleted = false;
    CPtrList m_listControlBars;            ///< not owned
    CCreateContext* m_pContext = nullptr;  ///< while being created
};
