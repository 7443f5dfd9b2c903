// The main frame of an application for several documents at a time.
#pragma once

#include "afx/app/frame.h"

class CMDIChildWnd;

/// Its client window is the system's MDI client, and the windows in there are CMDIChildWnds. The
/// active child comes first: commands, keys and command updates go to it before the frame, and its
/// menu takes the place of the frame's own. The menu with the ID_WINDOW_ commands lists the
/// children.
class QVAFX_API CMDIFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWnd)

public:
    CMDIFrameWnd();
    ~CMDIFrameWnd() override;

    HWND m_hWndMDIClient = nullptr;

    // The children
    /// Null if there is none.
    CMDIChildWnd* MDIGetActive(BOOL* pbMaximized = nullptr) const;
    void MDIActivate(CWnd* pWndActivate);
    void MDINext();
    void MDIPrev();
    void MDIMaximize(CWnd* pWnd);
    void MDIRestore(CWnd* pWnd);
    void MDIIconArrange();
    void MDICascade() { MDICascade(0); }
    void MDICascade(int nType);  ///< MDITILE_SKIPDISABLED or 0
    void MDITile() { MDITile(MDITILE_HORIZONTAL); }
    void MDITile(int nType);
    /// Null leaves the menu, or the children's list, as it is. Gives the menu of before.
    CMenu* MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu);
    /// A child with the texts and the icon of a resource, shown. Null on failure.
    CMDIChildWnd* CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu = nullptr,
                                 HACCEL hAccel = nullptr);

    // Overridables
    /// pWindowMenu: where the children are listed.
    virtual BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu);
    /// The menu of the bar that has a command from ID_WINDOW_NEW on; null if there is none.
    virtual HMENU GetWindowMenuPopup(HMENU hMenuBar);

    CFrameWnd* GetActiveFrame() override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    void OnUpdateFrameMenu(HMENU hMenuAlt) override;
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    /// Another frame for the active child's document.
    afx_msg void OnWindowNew();

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    /// ID_WINDOW_ARRANGE, _CASCADE, _TILE_HORZ and _TILE_VERT
    afx_msg BOOL OnMDIWindowCmd(UINT nID);
    afx_msg void OnUpdateMDIWindowCmd(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()
};
