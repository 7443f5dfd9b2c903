// A window inside the frame of an application for several documents.
#pragma once

#include "afx/app/frame.h"

class CMDIFrameWnd;

// Create takes another kind of parent than that of the base.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"

/// Has no menu bar of its own: while it is active, the main frame shows its menu. Its title is that
/// of its document, with a number where the document has several frames. Made with new, it deletes
/// itself with its window.
class QVAFX_API CMDIChildWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIChildWnd)

public:
    CMDIChildWnd();
    ~CMDIChildWnd() override;

    HMENU m_hMenuShared = nullptr;  ///< shown in the main frame; not owned

    /// Without a parent, in the thread's main window.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CMDIFrameWnd* pParentWnd = nullptr,
                        CCreateContext* pContext = nullptr);
    /// Menu and accelerators are the context's template's, or those of SetHandles.
    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr) override;
    void SetHandles(HMENU hMenu, HACCEL hAccel);

    CMDIFrameWnd* GetMDIFrame() const;
    void MDIActivate();
    void MDIMaximize();
    void MDIRestore();
    void MDIDestroy();

    BOOL DestroyWindow() override;
    /// A hidden child shows maximized where the active one is.
    void ActivateFrame(int nCmdShow = -1) override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    /// The main frame's menu as this child becomes active, or as pActivateWnd does instead of it.
    virtual void OnUpdateFrameMenu(BOOL bActive, CWnd* pActivateWnd, HMENU hMenuAlt);
    using CFrameWnd::OnUpdateFrameMenu;
    void DelayUpdateFrameMenu(HMENU hMenuAlt) override;
    /// The main frame's.
    CWnd* GetMessageBar() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    friend class CMDIFrameWnd;
};

#pragma GCC diagnostic pop
