#include "afx/app/frame.h"

#include "afx/window/wnd_state.h"

#include <afxext.h>
#include <afxpriv.h>
#include <afxwin.h>

#include <dde.h>

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_ACTIVATE()
    ON_WM_QUERYENDSESSION()
    ON_WM_ENDSESSION()
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_WM_INITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_WM_DROPFILES()
    ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::OnSetMessageString)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
    ON_MESSAGE(WM_DDE_INITIATE, &CFrameWnd::OnDDEInitiate)
    ON_MESSAGE(WM_DDE_EXECUTE, &CFrameWnd::OnDDEExecute)
    ON_MESSAGE(WM_DDE_TERMINATE, &CFrameWnd::OnDDETerminate)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_KANA, &CFrameWnd::OnUpdateKeyIndicator)
    ON_MESSAGE(WM_POPMESSAGESTRING, &CFrameWnd::OnPopMessageString)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTA, 0, 0xFFFF, &CFrameWnd::OnToolTipText)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &CFrameWnd::OnToolTipText)
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWnd::OnBarCheck)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
    ON_COMMAND_EX(ID_VIEW_REBAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_UPDATE_COMMAND_UI(ID_VIEW_REBAR, &CFrameWnd::OnUpdateControlBarMenu)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd() = default;

CFrameWnd::~CFrameWnd() {
    m_bBeingDeleted = true;
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
}

BOOL CFrameWnd::IsFrameWnd() const {
    return TRUE;
}

void CFrameWnd::PostNcDestroy() {
    if (!m_bBeingDeleted) {
        delete this;
    }
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = AFX_WNDCLASS_FRAME;
    }
    if (cs.style & FWS_ADDTOTITLE) {
        cs.style |= FWS_PREFIXTITLE;
    }
    return CWnd::PreCreateWindow(cs);
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                       const RECT& rect, CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle,
                       CCreateContext* pContext) {
    HMENU hMenu = nullptr;
    if (lpszMenuName != nullptr) {
        hMenu = ::LoadMenu(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (hMenu == nullptr) {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = lpszWindowName;
    m_pContext = pContext;
    // The default rectangle means default size as well, whatever its other numbers work out to.
    const bool bDefault = rect.left == CW_USEDEFAULT && rect.right == 0;
    const int cx = bDefault ? CW_USEDEFAULT : rect.right - rect.left;
    const int cy = bDefault ? CW_USEDEFAULT : rect.bottom - rect.top;
    if (!CWnd::CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, cx,
                        cy, pParentWnd->GetSafeHwnd(), hMenu, pContext)) {
        if (hMenu != nullptr && ::IsMenu(hMenu)) {
            ::DestroyMenu(hMenu);
        }
        return FALSE;
    }
    return TRUE;
}

void CFrameWnd::LoadTitle(UINT nIDResource) {
    CString strTexts;
    strTexts.LoadString(nIDResource);
    AfxExtractSubString(m_strTitle, strTexts, 0);
}

LPCTSTR CFrameWnd::GetIconWndClass(DWORD, UINT nIDResource) {
    const LPCTSTR lpszResource = MAKEINTRESOURCE(nIDResource);
    HINSTANCE hInst = AfxFindResourceHandle(lpszResource, RT_GROUP_ICON);
    const HICON hIcon = ::LoadIcon(hInst, lpszResource);
    if (hIcon == nullptr) {
        return nullptr;
    }
    return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                               reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), hIcon);
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                          CCreateContext* pContext) {
    m_nIDHelp = nIDResource;
    LoadTitle(nIDResource);
    const LPCTSTR lpszResource = MAKEINTRESOURCE(nIDResource);
    HINSTANCE hInstMenu = AfxFindResourceHandle(lpszResource, RT_MENU);
    const bool bMenu = ::FindResource(hInstMenu, lpszResource, RT_MENU) != nullptr;
    if (!Create(GetIconWndClass(dwDefaultStyle, nIDResource), CString(m_strTitle), dwDefaultStyle,
                rectDefault, pParentWnd, bMenu ? lpszResource : nullptr, 0, pContext)) {
        return FALSE;
    }
    LoadAccelTable(lpszResource);
    if (pContext == nullptr) {
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    }
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName) {
    HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR);
    m_hAccelTable = ::LoadAccelerators(hInst, lpszResourceName);
    return m_hAccelTable != nullptr;
}

HACCEL CFrameWnd::GetDefaultAccelerator() {
    CDocument* pDoc = GetActiveDocument();
    HACCEL hAccel = pDoc != nullptr ? pDoc->GetDefaultAccelerator() : nullptr;
    return hAccel != nullptr ? hAccel : m_hAccelTable;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    CCreateContext* pContext = m_pContext;
    m_pContext = nullptr;
    if (!(GetStyle() & WS_CHILD)) {
        m_hMenuDefault = ::GetMenu(m_hWnd);
    }
    return OnCreateHelper(lpCreateStruct, pContext);
}

int CFrameWnd::OnCreateHelper(LPCREATESTRUCT lpcs, CCreateContext* pContext) {
    if (static_cast<int>(Default()) == -1 || !OnCreateClient(lpcs, pContext)) {
        return -1;
    }
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    RecalcLayout();
    return 0;
}

CFrameWnd* CFrameWnd::GetActiveFrame() {
    return this;
}

// Layout

void CFrameWnd::RecalcLayout(BOOL) {
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED) {
        RecalcLayout();
    }
}

BOOL CFrameWnd::OnEraseBkgnd(CDC*) {
    // The client window covers everything; erasing below it would only flicker. So it would while
    // a preview takes its place.
    const HWND hPane = ::GetDlgItem(m_hWnd, AFX_IDW_PANE_FIRST);
    const bool bCovered =
        hPane != nullptr && (::GetWindowLongPtr(hPane, GWL_STYLE) & WS_VISIBLE) != 0;
    return bCovered || m_lpfnCloseProc != nullptr || static_cast<BOOL>(Default());
}

void CFrameWnd::OnSetFocus(CWnd* pOldWnd) {
    if (m_pViewActive != nullptr) {
        m_pViewActive->SetFocus();
    } else if (m_pActiveClient != nullptr && ::IsWindow(m_pActiveClient->m_hWnd)) {
        m_pActiveClient->SetFocus();
    } else {
        CWnd::OnSetFocus(pOldWnd);
    }
}

// Commands

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    // Each may destroy the frame and yet let the command go on.
    const HWND hWnd = m_hWnd;
    CWnd* pClient = m_pActiveClient;
    if (m_pViewActive != nullptr) {
        pClient = m_pViewActive;
    } else if (pClient == nullptr) {
        pClient = FromHandlePermanent(::GetDlgItem(m_hWnd, AFX_IDW_PANE_FIRST));
    }
    if (pClient != nullptr && pClient->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    if (FromHandlePermanent(hWnd) == this && CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    CWinApp* pApp = AfxGetApp();
    return pApp != nullptr && pApp->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST) {
        return FALSE;
    }
    HACCEL hAccel = GetDefaultAccelerator();
    return hAccel != nullptr && ::TranslateAccelerator(m_hWnd, hAccel, pMsg);
}

/// One menu's items, each asked for its state.
static void UpdateMenu(CFrameWnd* pFrame, CMenu* pMenu) {
    const HWND hFrame = pFrame->m_hWnd;
    // A handler may close the frame, and the menu goes with it.
    const auto stands = [&] {
        return CWnd::FromHandlePermanent(hFrame) == pFrame && ::IsMenu(pMenu->m_hMenu);
    };
    CCmdUI state;
    state.m_pMenu = pMenu;
    state.m_nIndexMax = pMenu->GetMenuItemCount();
    for (state.m_nIndex = 0; stands() && state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        state.m_nID = pMenu->GetMenuItemID(static_cast<int>(state.m_nIndex));
        if (state.m_nID == 0) {
            continue;  // separator
        }
        BOOL bDisable = pFrame->m_bAutoMenuEnable;
        state.m_pSubMenu = nullptr;
        if (state.m_nID == static_cast<UINT>(-1)) {
            // An item that opens a menu: its first item's handler may fill the menu.
            state.m_pSubMenu = pMenu->GetSubMenu(static_cast<int>(state.m_nIndex));
            if (state.m_pSubMenu == nullptr) {
                continue;
            }
            state.m_nID = state.m_pSubMenu->GetMenuItemID(0);
            if (state.m_nID == 0 || state.m_nID == static_cast<UINT>(-1)) {
                continue;
            }
            bDisable = FALSE;
        }
        state.DoUpdate(pFrame, bDisable && state.m_nID < 0xF000);

        // The handler may have put items in or taken some out; go on behind where it stopped.
        const UINT nCount = pMenu->GetMenuItemCount();
        if (nCount < state.m_nIndexMax) {
            state.m_nIndex -= state.m_nIndexMax - nCount;
            while (state.m_nIndex + 1 < nCount &&
                   pMenu->GetMenuItemID(static_cast<int>(state.m_nIndex) + 1) == state.m_nID) {
                ++state.m_nIndex;
            }
        }
        state.m_nIndexMax = nCount;
    }
}

void CFrameWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT, BOOL bSysMenu) {
    if (!bSysMenu && pPopupMenu != nullptr) {
        UpdateMenu(this, pPopupMenu);
    }
}

// The message line

CWnd* CFrameWnd::GetMessageBar() {
    return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE);
}

void CFrameWnd::SetMessageText(LPCTSTR lpszText) {
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CFrameWnd::SetMessageText(UINT nID) {
    SendMessage(WM_SETMESSAGESTRING, nID);
}

void CFrameWnd::GetMessageString(UINT nID, CString& rMessage) const {
    // Up to the line feed; what follows is the tooltip.
    if (rMessage.LoadString(nID)) {
        const int nEnd = rMessage.Find('\n');
        if (nEnd >= 0) {
            rMessage = rMessage.Left(nEnd);
        }
    } else {
        rMessage.Empty();
    }
}

LRESULT CFrameWnd::OnSetMessageString(WPARAM wParam, LPARAM lParam) {
    const UINT nIDLast = m_nIDLastMessage;
    if (CWnd* pBar = GetMessageBar()) {
        CString strMessage;
        if (lParam != 0) {
            strMessage = reinterpret_cast<LPCTSTR>(lParam);
        } else if (wParam != 0) {
            GetMessageString(static_cast<UINT>(wParam), strMessage);
        }
        pBar->SetWindowText(strMessage);
    }
    m_nIDLastMessage = static_cast<UINT>(wParam);
    m_nIDTracking = static_cast<UINT>(wParam);
    return static_cast<LRESULT>(nIDLast);
}

void CFrameWnd::OnMenuSelect(UINT nItemID, UINT nFlags, HMENU) {
    const bool bClosed = nFlags == 0xFFFF;
    const bool bNoCommand =
        nItemID == 0 || (nFlags & (MF_SEPARATOR | MF_POPUP | MF_MENUBREAK | MF_MENUBARBREAK));
    // What the window's own menu does has its texts by the system's numbers, which go by sixteens.
    const bool bSystem = nItemID >= SC_SIZE && nItemID < 0xF1F0;
    const UINT nID = bClosed                 ? AFX_IDS_IDLEMESSAGE
                     : bNoCommand            ? 0
                     : bSystem               ? AFX_IDS_SCFIRST + (nItemID - SC_SIZE) / 16
                     : (nFlags & MF_SYSMENU) ? 0
                                             : nItemID;
    if (nID != m_nIDTracking) {
        SendMessage(WM_SETMESSAGESTRING, nID);
    }
}

BOOL CFrameWnd::OnBarCheck(UINT nID) {
    CControlBar* pBar = GetControlBar(nID);
    if (pBar == nullptr) {
        return FALSE;
    }
    ShowControlBar(pBar, !pBar->IsVisible(), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* pCmdUI) {
    if (const CControlBar* pBar = GetControlBar(pCmdUI->m_nID)) {
        pCmdUI->SetCheck(pBar->IsVisible());
    } else {
        pCmdUI->ContinueRouting();
    }
}
