#include "afx/app/mdi_child.h"

#include "afx/app/mdi_frame.h"
#include "afx/documents/multi_doc_template.h"
#include "afx/window/wnd_state.h"

#include <afxwin.h>

IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
    ON_WM_MDIACTIVATE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

CMDIChildWnd::CMDIChildWnd() = default;

CMDIChildWnd::~CMDIChildWnd() {
    // Here, where what the client tells about its end still comes to this class.
    m_bBeingDeleted = true;
    if (m_hWnd != nullptr) {
        CMDIChildWnd::DestroyWindow();
    }
}

// Creation and end

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT& cs) {
    cs.dwExStyle |= WS_EX_MDICHILD;
    cs.style |= WS_CHILD;
    return CFrameWnd::PreCreateWindow(cs);
}

BOOL CMDIChildWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CMDIFrameWnd* pParentWnd, CCreateContext* pContext) {
    if (pParentWnd == nullptr) {
        const CWinThread* pThread = AfxGetThread();
        CWnd* pMain = pThread != nullptr ? pThread->m_pMainWnd : nullptr;
        pParentWnd = DYNAMIC_DOWNCAST(CMDIFrameWnd, pMain);
    }
    if (pParentWnd == nullptr || pParentWnd->m_hWndMDIClient == nullptr) {
        PostNcDestroy();
        return FALSE;
    }
    m_strTitle = lpszWindowName;
    m_pContext = pContext;
    const bool bDefault = rect.left == CW_USEDEFAULT && rect.right == 0;
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    bDefault ? CW_USEDEFAULT : rect.right - rect.left,
                    bDefault ? CW_USEDEFAULT : rect.bottom - rect.top, pParentWnd->m_hWndMDIClient,
                    nullptr, pContext);
}

BOOL CMDIChildWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                             CCreateContext* pContext) {
    m_nIDHelp = nIDResource;
    LoadTitle(nIDResource);
    CDocTemplate* pTemplate = pContext != nullptr ? pContext->m_pNewDocTemplate : nullptr;
    if (const auto* pMulti = DYNAMIC_DOWNCAST(CMultiDocTemplate, pTemplate)) {
        SetHandles(pMulti->m_hMenuShared, pMulti->m_hAccelTable);
    }
    return Create(GetIconWndClass(dwDefaultStyle, nIDResource), CString(m_strTitle), dwDefaultStyle,
                  rectDefault, DYNAMIC_DOWNCAST(CMDIFrameWnd, pParentWnd), pContext);
}

void CMDIChildWnd::SetHandles(HMENU hMenu, HACCEL hAccel) {
    m_hMenuShared = hMenu;
    m_hAccelTable = hAccel;
}

BOOL CMDIChildWnd::DestroyWindow() {
    if (m_hWnd == nullptr) {
        return FALSE;
    }
    const HWND hWnd = m_hWnd;
    CMDIFrameWnd* const pFrame = GetMDIFrame();
    const HWND hFrame = pFrame->GetSafeHwnd();
    MDIDestroy();  // this object may be gone
    if (FromHandlePermanent(hWnd) == this) {
        CFrameWnd::DestroyWindow();  // the client would not have it
    }
    if (hFrame != nullptr && FromHandlePermanent(hFrame) == pFrame &&
        pFrame->MDIGetActive() == nullptr) {
        pFrame->OnUpdateFrameMenu(nullptr);
        pFrame->OnUpdateFrameTitle(FALSE);
    }
    return !::IsWindow(hWnd);
}

LRESULT CMDIChildWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProc(m_hWnd, message, wParam, lParam);
}

// The frame around it

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame() const {
    const HWND hClient = ::GetParent(m_hWnd);
    return DYNAMIC_DOWNCAST(CMDIFrameWnd, FromHandlePermanent(::GetParent(hClient)));
}

void CMDIChildWnd::MDIActivate() {
    AfxSend(::GetParent(m_hWnd), WM_MDIACTIVATE, m_hWnd);
}

void CMDIChildWnd::MDIMaximize() {
    AfxSend(::GetParent(m_hWnd), WM_MDIMAXIMIZE, m_hWnd);
}

void CMDIChildWnd::MDIRestore() {
    AfxSend(::GetParent(m_hWnd), WM_MDIRESTORE, m_hWnd);
}

void CMDIChildWnd::MDIDestroy() {
    AfxSend(::GetParent(m_hWnd), WM_MDIDESTROY, m_hWnd);
}

CWnd* CMDIChildWnd::GetMessageBar() {
    CMDIFrameWnd* pFrame = GetMDIFrame();
    return pFrame != nullptr ? pFrame->GetMessageBar() : nullptr;
}

BOOL CMDIChildWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST) {
        return FALSE;
    }
    // Through the main frame, where the menu is that its commands stand in.
    const CMDIFrameWnd* pFrame = GetMDIFrame();
    const HACCEL hAccel = GetDefaultAccelerator();
    return hAccel != nullptr && pFrame != nullptr &&
           ::TranslateAccelerator(pFrame->m_hWnd, hAccel, pMsg);
}

// Activation

void CMDIChildWnd::ActivateFrame(int nCmdShow) {
    const HWND hWnd = m_hWnd;
    if (nCmdShow == -1) {
        BOOL bMaximized = FALSE;
        if (const CMDIFrameWnd* pFrame = GetMDIFrame()) {
            pFrame->MDIGetActive(&bMaximized);
        }
        nCmdShow = IsIconic()                  ? SW_RESTORE
                   : (GetStyle() & WS_VISIBLE) ? -1
                   : bMaximized                ? SW_SHOWMAXIMIZED
                                               : SW_SHOWNORMAL;
    }
    if (nCmdShow != -1) {
        ShowWindow(nCmdShow);
    }
    if (FromHandlePermanent(hWnd) == this) {
        MDIActivate();
    }
}

void CMDIChildWnd::OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd*) {
    const HWND hWnd = m_hWnd;
    const auto stands = [&] { return FromHandlePermanent(hWnd) == this; };
    const auto tellView = [&] {
        if (stands()) {
            TellViewActive(bActivate);
        }
    };
    const bool bOthers = bActivate || pActivateWnd != nullptr;
    Default();
    if (!bActivate) {
        tellView();
    }
    if (stands()) {
        TellViewOfFrame(bActivate ? WA_ACTIVE : WA_INACTIVE);
    }
    if (stands()) {
        OnUpdateFrameMenu(bActivate, pActivateWnd, nullptr);
    }
    if (bActivate) {
        tellView();
    }
    CMDIFrameWnd* pFrame = stands() ? GetMDIFrame() : nullptr;
    if (pFrame != nullptr && pFrame->m_hWndMDIClient != nullptr) {
        pFrame->OnUpdateFrameTitle(bOthers);
    }
}

void CMDIChildWnd::OnSize(UINT nType, int cx, int cy) {
    const HWND hWnd = m_hWnd;
    CFrameWnd::OnSize(nType, cx, cy);
    CMDIFrameWnd* pFrame = FromHandlePermanent(hWnd) == this ? GetMDIFrame() : nullptr;
    if (pFrame != nullptr && pFrame->MDIGetActive() == this) {
        pFrame->OnUpdateFrameTitle(TRUE);  // the name of a maximized child stands there otherwise
    }
}

void CMDIChildWnd::DelayUpdateFrameMenu(HMENU hMenuAlt) {
    if (CMDIFrameWnd* pFrame = GetMDIFrame()) {
        pFrame->DelayUpdateFrameMenu(hMenuAlt);
    }
}

void CMDIChildWnd::OnUpdateFrameMenu(BOOL bActive, CWnd* pActivateWnd, HMENU hMenuAlt) {
    CMDIFrameWnd* pFrame = GetMDIFrame();
    if (pFrame == nullptr || pFrame->m_hWndMDIClient == nullptr) {
        return;
    }
    if (hMenuAlt == nullptr) {
        CDocument* pDoc = GetActiveDocument();
        hMenuAlt = pDoc != nullptr ? pDoc->GetDefaultMenu() : nullptr;
    }
    HMENU hMenu = hMenuAlt != nullptr ? hMenuAlt : m_hMenuShared;
    if (!bActive) {
        if (pActivateWnd != nullptr) {
            return;  // it brings its own
        }
        hMenu = pFrame->m_hMenuDefault;
    } else if (hMenu == nullptr) {
        hMenu = pFrame->m_hMenuDefault;
    }
    AfxSend(pFrame->m_hWndMDIClient, WM_MDISETMENU, hMenu, pFrame->GetWindowMenuPopup(hMenu));
    ::DrawMenuBar(pFrame->m_hWnd);
}

void CMDIChildWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    const CDocument* pDoc = GetActiveDocument();
    if (bAddToTitle && pDoc != nullptr && (GetStyle() & FWS_ADDTOTITLE)) {
        ShowTitle(NumberedName(pDoc->GetTitle()));
    }
    CMDIFrameWnd* pFrame = GetMDIFrame();
    if (pFrame != nullptr && pFrame->MDIGetActive() == this) {
        pFrame->OnUpdateFrameTitle(bAddToTitle);
    }
}
