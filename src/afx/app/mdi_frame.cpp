#include "afx/app/mdi_frame.h"

#include "afx/app/mdi_child.h"
#include "afx/objects/create_object.h"
#include "afx/window/wnd_state.h"

#include <afxwin.h>

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
    ON_WM_ACTIVATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_COMMAND(ID_WINDOW_NEW, &CMDIFrameWnd::OnWindowNew)
    ON_COMMAND_EX(ID_WINDOW_ARRANGE, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_COMMAND_EX(ID_WINDOW_CASCADE, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_COMMAND_EX(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_COMMAND_EX(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_NEW, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_ARRANGE, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_CASCADE, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
END_MESSAGE_MAP()

CMDIFrameWnd::CMDIFrameWnd() = default;

CMDIFrameWnd::~CMDIFrameWnd() {
    // Here, where the client's and the children's messages still come to this class.
    m_bBeingDeleted = true;
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
}

// Creation and end

BOOL CMDIFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    const BOOL bDone = CFrameWnd::PreCreateWindow(cs);
    // As with a maximized child, whose name the system writes behind the program's.
    cs.style &= ~FWS_PREFIXTITLE;
    return bDone;
}

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext*) {
    return CreateClient(lpcs, CMenu::FromHandle(GetWindowMenuPopup(m_hMenuDefault)));
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu) {
    // Scroll bars are the client's: the children are what scrolls.
    const DWORD dwBars =
        static_cast<DWORD>(lpCreateStruct->style) & static_cast<DWORD>(WS_HSCROLL | WS_VSCROLL);
    ModifyStyle(dwBars, 0, SWP_NOREDRAW | SWP_FRAMECHANGED);
    CLIENTCREATESTRUCT create = {pWindowMenu->GetSafeHmenu(), AFX_IDM_FIRST_MDICHILD};
    m_hWndMDIClient = ::CreateWindowEx(
        WS_EX_CLIENTEDGE, "MDICLIENT", nullptr,
        WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | MDIS_ALLCHILDSTYLES | dwBars, 0,
        0, 0, 0, m_hWnd, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)),
        AfxGetInstanceHandle(), &create);
    return m_hWndMDIClient != nullptr;
}

void CMDIFrameWnd::OnDestroy() {
    CFrameWnd::OnDestroy();
    m_hWndMDIClient = nullptr;  // children that go with it change nothing here any more
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // Commands have been routed; the system's are those about the children.
    constexpr UINT kFirstSystemCommand = 0xF000;
    if (message == WM_COMMAND && LOWORD(wParam) < kFirstSystemCommand) {
        return ::DefWindowProc(m_hWnd, message, wParam, lParam);
    }
    return ::DefFrameProc(m_hWnd, m_hWndMDIClient, message, wParam, lParam);
}

void CMDIFrameWnd::OnSize(UINT nType, int, int) {
    // The default handling would give the client the room of the bars.
    if (nType != SIZE_MINIMIZED) {
        RecalcLayout();
    }
}

// Menus

HMENU CMDIFrameWnd::GetWindowMenuPopup(HMENU hMenuBar) {
    if (hMenuBar == nullptr) {
        return nullptr;
    }
    for (int nMenu = ::GetMenuItemCount(hMenuBar) - 1; nMenu >= 0; --nMenu) {
        const HMENU hPopup = ::GetSubMenu(hMenuBar, nMenu);
        for (int nItem = hPopup != nullptr ? ::GetMenuItemCount(hPopup) - 1 : -1; nItem >= 0;
             --nItem) {
            const UINT nID = ::GetMenuItemID(hPopup, nItem);
            if (nID >= AFX_IDM_WINDOW_FIRST && nID <= AFX_IDM_WINDOW_LAST) {
                return hPopup;
            }
        }
    }
    return nullptr;
}

CMenu* CMDIFrameWnd::MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu) {
    return CMenu::FromHandle(AfxSend<HMENU>(
        m_hWndMDIClient, WM_MDISETMENU, pFrameMenu->GetSafeHmenu(), pWindowMenu->GetSafeHmenu()));
}

void CMDIFrameWnd::OnUpdateFrameMenu(HMENU hMenuAlt) {
    if (m_hWndMDIClient == nullptr) {
        return;
    }
    if (CMDIChildWnd* pActive = MDIGetActive()) {
        pActive->OnUpdateFrameMenu(TRUE, pActive, hMenuAlt);
        return;
    }
    const HMENU hMenu = hMenuAlt != nullptr ? hMenuAlt : m_hMenuDefault;
    AfxSend(m_hWndMDIClient, WM_MDISETMENU, hMenu, GetWindowMenuPopup(hMenu));
    ::DrawMenuBar(m_hWnd);
}

// Children

CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* pbMaximized) const {
    BOOL bMaximized = FALSE;
    HWND hWnd = nullptr;
    if (m_hWndMDIClient != nullptr) {
        hWnd = AfxSend<HWND>(m_hWndMDIClient, WM_MDIGETACTIVE, 0, &bMaximized);
    }
    if (pbMaximized != nullptr) {
        *pbMaximized = bMaximized;
    }
    return DYNAMIC_DOWNCAST(CMDIChildWnd, FromHandlePermanent(hWnd));
}

void CMDIFrameWnd::MDIActivate(CWnd* pWndActivate) {
    AfxSend(m_hWndMDIClient, WM_MDIACTIVATE, pWndActivate->GetSafeHwnd());
}

void CMDIFrameWnd::MDINext() {
    ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, FALSE);
}

void CMDIFrameWnd::MDIPrev() {
    ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, TRUE);
}

void CMDIFrameWnd::MDIMaximize(CWnd* pWnd) {
    AfxSend(m_hWndMDIClient, WM_MDIMAXIMIZE, pWnd->GetSafeHwnd());
}

void CMDIFrameWnd::MDIRestore(CWnd* pWnd) {
    AfxSend(m_hWndMDIClient, WM_MDIRESTORE, pWnd->GetSafeHwnd());
}

void CMDIFrameWnd::MDIIconArrange() {
    ::SendMessage(m_hWndMDIClient, WM_MDIICONARRANGE, 0, 0);
}

void CMDIFrameWnd::MDICascade(int nType) {
    AfxSend(m_hWndMDIClient, WM_MDICASCADE, nType);
}

void CMDIFrameWnd::MDITile(int nType) {
    AfxSend(m_hWndMDIClient, WM_MDITILE, nType);
}

CMDIChildWnd* CMDIFrameWnd::CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu,
                                           HACCEL hAccel) {
    auto* pChild = AfxCreateOf<CMDIChildWnd>(pClass);
    if (pChild == nullptr) {
        return nullptr;
    }
    pChild->SetHandles(hMenu, hAccel);
    CCreateContext context;
    context.m_pCurrentFrame = this;
    if (!pChild->LoadFrame(nResource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, this, &context)) {
        return nullptr;
    }
    const HWND hChild = pChild->m_hWnd;
    pChild->InitialUpdateFrame(nullptr, TRUE);
    return FromHandlePermanent(hChild) == pChild ? pChild : nullptr;
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame() {
    CMDIChildWnd* pActive = MDIGetActive();
    return pActive != nullptr ? pActive : static_cast<CFrameWnd*>(this);
}

void CMDIFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
    const HWND hWnd = m_hWnd;
    CFrameWnd::OnActivate(nState, pWndOther, bMinimized);
    CMDIChildWnd* pActive = FromHandlePermanent(hWnd) == this ? MDIGetActive() : nullptr;
    if (pActive != nullptr) {
        pActive->TellViewOfFrame(nState);
    }
}

// The title

void CMDIFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    if (!(GetStyle() & FWS_ADDTOTITLE)) {
        return;
    }
    BOOL bMaximized = FALSE;
    CMDIChildWnd* pActive = MDIGetActive(&bMaximized);
    if (!bAddToTitle || pActive == nullptr || bMaximized ||
        pActive->GetActiveDocument() == nullptr) {
        UpdateFrameTitleForDocument(nullptr);  // the system adds a maximized child's name
        return;
    }
    CString strChild;
    pActive->GetWindowText(strChild);
    UpdateFrameTitleForDocument(strChild);
}

// Commands and keys

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    // Whoever lets the command go on may have destroyed the frame.
    const HWND hWnd = m_hWnd;
    CMDIChildWnd* pActive = MDIGetActive();
    if (pActive != nullptr && pActive->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    return FromHandlePermanent(hWnd) == this &&
           CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* pMsg) {
    const HWND hWnd = m_hWnd;
    CMDIChildWnd* pActive = MDIGetActive();
    if (pActive != nullptr && pActive->PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    if (FromHandlePermanent(hWnd) != this || CFrameWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    const bool bKey = pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN;
    return bKey && FromHandlePermanent(hWnd) == this && m_hWndMDIClient != nullptr &&
           ::TranslateMDISysAccel(m_hWndMDIClient, pMsg);
}

BOOL CMDIFrameWnd::OnMDIWindowCmd(UINT nID) {
    switch (nID) {
        case ID_WINDOW_ARRANGE:
            MDIIconArrange();
            return TRUE;
        case ID_WINDOW_CASCADE:
            MDICascade();
            return TRUE;
        case ID_WINDOW_TILE_HORZ:
            MDITile(MDITILE_HORIZONTAL);
            return TRUE;
        case ID_WINDOW_TILE_VERT:
            MDITile(MDITILE_VERTICAL);
            return TRUE;
        default:
            return FALSE;
    }
}

void CMDIFrameWnd::OnUpdateMDIWindowCmd(CCmdUI* pCmdUI) {
    pCmdUI->Enable(MDIGetActive() != nullptr);
}

void CMDIFrameWnd::OnWindowNew() {
    CMDIChildWnd* pActive = MDIGetActive();
    CDocument* pDoc = pActive != nullptr ? pActive->GetActiveDocument() : nullptr;
    if (pDoc == nullptr || pDoc->GetDocTemplate() == nullptr) {
        AfxMessageBox(AFX_IDP_COMMAND_FAILURE);
        return;
    }
    CDocTemplate* pTemplate = pDoc->GetDocTemplate();
    // A frame that fails says so itself, and takes nothing along.
    if (CFrameWnd* pFrame = pTemplate->CreateNewFrame(pDoc, pActive)) {
        pTemplate->InitialUpdateFrame(pFrame, pDoc);
    } else {
        AfxMessageBox(AFX_IDP_COMMAND_FAILURE);
    }
}
