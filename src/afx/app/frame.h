// The frame window of an application: menu, accelerators, bars along the edges, one client window.
#pragma once

#include "afx/app/bar_styles.h"
#include "afx/window/wnd.h"

#include <afxcoll.h>
#include <afxres.h>

class CControlBar;
class CDockBar;
class CDockState;
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

    BOOL m_bAutoMenuEnable = TRUE;   ///< disable menu items whose command nobody handles
    HMENU m_hMenuDefault = nullptr;  ///< the window's first one, which it destroys
    int m_nWindow = 0;               ///< 1 and on among several frames of one document, else 0

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
    // Done at the next idle time.
    void DelayRecalcLayout(BOOL bNotify = TRUE);
    void DelayUpdateFrameTitle() { m_nIdleFlags |= idleTitle; }
    virtual void DelayUpdateFrameMenu(HMENU hMenuAlt);

    /// Before the frame shows first. The first pane's view becomes the active one, unless another
    /// is. With bMakeVisible all views get their initial update, and the frame shows.
    void InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible);
    virtual void ActivateFrame(int nCmdShow = -1);
    /// hMenuAlt in place of the active document's menu and the frame's own; null: one of these.
    virtual void OnUpdateFrameMenu(HMENU hMenuAlt);
    /// The frame with the windows that it owns takes no input until the last matching end.
    virtual void BeginModalState();
    virtual void EndModalState();
    BOOL InModalState() const { return m_cModalStack != 0; }
    /// The windows that the frame owns; shows those that it hid.
    void ShowOwnedWindows(BOOL bShow);
    /// Sends WM_FLOATSTATUS with FS_ flags to the windows that the frame owns.
    void NotifyFloatingWindows(DWORD dwFlags);
    /// Whether the message line tells of a command.
    BOOL IsTracking() const { return m_nIDTracking != 0 && m_nIDTracking != AFX_IDS_IDLEMESSAGE; }

    virtual CWnd* GetMessageBar();
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);
    CControlBar* GetControlBar(UINT nID);
    /// bDelay: at the next idle time.
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);
    /// dwDockStyle: the CBRS_ALIGN_ edges at which bars may be docked.
    void EnableDocking(DWORD dwDockStyle);
    /// nDockBarID: an AFX_IDW_DOCKBAR_ number, or 0 for the edge of the bar's own style. lpRect, in
    /// screen coordinates, says where along the edge; without it the bar has a row of its own.
    void DockControlBar(CControlBar* pBar, UINT nDockBarID = 0, LPCRECT lpRect = nullptr);
    void DockControlBar(CControlBar* pBar, CDockBar* pDockBar, LPCRECT lpRect = nullptr);
    /// point: on the screen, of the small frame's upper left corner. It always lies horizontally.
    void FloatControlBar(CControlBar* pBar, CPoint point, DWORD dwStyle = CBRS_ALIGN_TOP);
    void GetDockState(CDockState& state) const;
    void SetDockState(const CDockState& state);
    /// In the application's profile, under names that begin with this one.
    void SaveBarState(LPCTSTR lpszProfileName) const;
    void LoadBarState(LPCTSTR lpszProfileName);
    virtual void GetMessageString(UINT nID, CString& rMessage) const;

    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }
    CString GetTitle() const { return m_strTitle; }

    virtual void OnUpdateFrameTitle(BOOL bAddToTitle);
    void UpdateFrameTitleForDocument(LPCTSTR lpszDocName);
    /// Print preview begins or ends: bars and views make room or come back.
    virtual void OnSetPreviewMode(BOOL bPreview, CPrintPreviewState* pState);
    BOOL(CALLBACK* m_lpfnCloseProc)(CFrameWnd* pFrameWnd) = nullptr;  ///< asked before OnClose
    /// For ID_CONTEXT_HELP: the application's.
    afx_msg void OnContextHelp();
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL IsFrameWnd() const override;

protected:
    void PostNcDestroy() override;
    int OnCreateHelper(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    /// A class with the resource's icon; null if there is none.
    LPCTSTR GetIconWndClass(DWORD dwDefaultStyle, UINT nIDResource);
    void LoadTitle(UINT nIDResource);
    /// The document's name, with the frame's number where there are several.
    CString NumberedName(LPCTSTR lpszDocName) const;
    void ShowTitle(const CString& strTitle);
    // To the active view, if there is one; it may close the frame.
    void TellViewActive(BOOL bActivate);
    void TellViewOfFrame(UINT nState);

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
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    /// Each file that is dropped is opened, once DragAcceptFiles asked for them.
    afx_msg void OnDropFiles(HDROP hDropInfo);
    // Conversations with programs that have files opened by messages; see EnableShellOpen.
    afx_msg LRESULT OnDDEInitiate(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDDEExecute(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDDETerminate(WPARAM wParam, LPARAM lParam);
    /// Of the status bar's ID_INDICATOR_CAPS, _NUM, _SCRL and _KANA.
    afx_msg void OnUpdateKeyIndicator(CCmdUI* pCmdUI);
    afx_msg LRESULT OnPopMessageString(WPARAM wParam, LPARAM lParam);
    /// The part of the command's string behind the line feed.
    afx_msg BOOL OnToolTipText(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    /// A command whose number is a bar's shows that bar or hides it, and has a check mark while it
    /// shows. Other handlers go on where there is no such bar. The toolbar's, the status bar's and
    /// the rebar's command are in the map.
    afx_msg BOOL OnBarCheck(UINT nID);
    afx_msg void OnUpdateControlBarMenu(CCmdUI* pCmdUI);

    enum IdleFlags { idleMenu = 1, idleTitle = 2, idleNotify = 4, idleLayout = 8 };

    HMENU m_hMenuAlt = nullptr;  ///< of DelayUpdateFrameMenu
    UINT m_nIdleFlags = 0;
    UINT m_cModalStack = 0;
    CPtrList m_disabledWindows;  ///< handles, by BeginModalState
    HACCEL m_hAccelTable = nullptr;
    UINT m_nIDHelp = 0;
    UINT m_nIDTracking = 0;
    UINT m_nIDLastMessage = 0;
    CString m_strTitle;
    CWnd* m_pActiveClient = nullptr;
    CView* m_pViewActive = nullptr;
    CCreateContext* m_pContext = nullptr;  ///< while being created
    bool m_bBeingDeleted = false;          ///< by somebody else: not by PostNcDestroy

    DECLARE_MESSAGE_MAP()

private:
    friend class CControlBar;
    void ShowDelayedBars();
    BOOL MayClose();
    void Close();

    bool m_bAskingToClose = false;
    CPtrList m_listControlBars;  ///< not owned
};
