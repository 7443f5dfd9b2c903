#include "afx/documents/form_view.h"

#include "afx/window/wnd_state.h"

#include <afxext.h>
#include <afxpriv.h>

IMPLEMENT_DYNAMIC(CFormView, CScrollView)

BEGIN_MESSAGE_MAP(CFormView, CScrollView)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

static INT_PTR CALLBACK FormProc(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;  // the focus stays where it is
}

CFormView::CFormView(LPCTSTR lpszTemplateName) : m_lpszTemplateName(lpszTemplateName) {}

CFormView::CFormView(UINT nIDTemplate) : CFormView(MAKEINTRESOURCE(nIDTemplate)) {}

BOOL CFormView::PreCreateWindow(CREATESTRUCT& cs) {
    cs.style |= WS_CHILD;
    return CScrollView::PreCreateWindow(cs);
}

BOOL CFormView::Create(LPCTSTR, LPCTSTR, DWORD dwRequestedStyle, const RECT& rect, CWnd* pParentWnd,
                       UINT nID, CCreateContext* pContext) {
    m_pCreateContext = pContext;  // the template's window gets no parameter of its own
    const HINSTANCE hInst = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
    AfxHookDialogCreate(this, pParentWnd->GetSafeHwnd());
    const HWND hWnd =
        ::CreateDialog(hInst, m_lpszTemplateName, pParentWnd->GetSafeHwnd(), FormProc);
    if (!AfxUnhookWindowCreate()) {
        PostNcDestroy();
        return FALSE;
    }
    if (hWnd == nullptr) {
        return FALSE;  // a window that was bound and failed took this object along
    }
    m_pCreateContext = nullptr;
    // What was asked for counts, but for what makes the window a form.
    constexpr DWORD kForm = WS_CAPTION | WS_POPUP;
    CREATESTRUCT cs{};
    cs.style = static_cast<LONG>(dwRequestedStyle);
    PreCreateWindow(cs);
    ModifyStyle(kForm, WS_CHILD | (static_cast<DWORD>(cs.style) & WS_BORDER));
    ModifyStyleEx(0, cs.dwExStyle & WS_EX_CLIENTEDGE);
    SetDlgCtrlID(static_cast<int>(nID));

    CRect rcClient;
    GetClientRect(rcClient);
    SetScrollSizes(MM_TEXT, rcClient.Size());
    ExecuteDlgInit(m_lpszTemplateName);
    SetWindowPos(nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    if (dwRequestedStyle & WS_VISIBLE) {
        ShowWindow(SW_SHOWNA);
    }
    return TRUE;
}

int CFormView::OnCreate(LPCREATESTRUCT lpcs) {
    CREATESTRUCT cs = *lpcs;
    cs.lpCreateParams = m_pCreateContext;
    return CScrollView::OnCreate(&cs);
}

void CFormView::OnInitialUpdate() {
    UpdateData(FALSE);
    CScrollView::OnInitialUpdate();
}

void CFormView::OnDraw(CDC*) {}

// Keys and focus

BOOL CFormView::PreTranslateMessage(MSG* pMsg) {
    const HWND hWnd = m_hWnd;
    if (CScrollView::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    // Accelerators of the frames come first: as a dialog the form takes every key.
    for (CFrameWnd* pFrame = GetParentFrame(); pFrame != nullptr;
         pFrame = pFrame->GetParentFrame()) {
        if (pFrame->PreTranslateMessage(pMsg)) {
            return TRUE;
        }
        if (FromHandlePermanent(hWnd) != this) {
            return TRUE;
        }
    }
    return PreTranslateInput(pMsg);
}

void CFormView::OnSetFocus(CWnd*) {
    if (::IsWindow(m_hWndFocus) && ::IsChild(m_hWnd, m_hWndFocus)) {
        ::SetFocus(m_hWndFocus);
        return;
    }
    m_hWndFocus = nullptr;
    CWnd* pFirst = GetNextDlgTabItem(nullptr);
    if (pFirst != nullptr && pFirst != this) {
        pFirst->SetFocus();
    } else {
        Default();
    }
}

BOOL CFormView::SaveFocusControl() {
    const HWND hFocus = ::GetFocus();
    if (hFocus != nullptr && ::IsChild(m_hWnd, hFocus)) {
        m_hWndFocus = hFocus;
        return TRUE;
    }
    return FALSE;
}

void CFormView::OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) {
    if (!bActivate && pActivateView != this) {
        SaveFocusControl();
    }
    CScrollView::OnActivateView(bActivate, pActivateView, pDeactiveView);
}

void CFormView::OnActivateFrame(UINT nState, CFrameWnd*) {
    if (nState == WA_INACTIVE) {
        SaveFocusControl();
    }
}
