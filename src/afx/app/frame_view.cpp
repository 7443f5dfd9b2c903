// A frame and its views: which one is active, the document's title, activation, closing.
#include "afx/app/frame.h"

#include "afx/objects/create_object.h"

#include <afxpriv.h>
#include <afxwin.h>

// Views

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* pContext) {
    if (pContext == nullptr || pContext->m_pNewViewClass == nullptr) {
        return TRUE;
    }
    CWnd* pWnd = CreateView(pContext);
    if (pWnd != nullptr && !pWnd->IsKindOf(RUNTIME_CLASS(CView))) {
        SetActiveClient(pWnd);
    }
    return pWnd != nullptr;
}

CWnd* CFrameWnd::CreateView(CCreateContext* pContext, UINT nID) {
    auto* pWnd = AfxCreateOf<CWnd>(pContext->m_pNewViewClass);
    if (pWnd == nullptr) {
        return nullptr;
    }
    // A view that fails deletes itself, unless its window was never tried for want of memory.
    try {
        return pWnd->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW, CRect(0, 0, 0, 0), this, nID,
                            pContext)
                   ? pWnd
                   : nullptr;
    } catch (...) {
        delete pWnd;
        throw;
    }
}

static CView* ViewOf(HWND hWnd) {
    return DYNAMIC_DOWNCAST(CView, CWnd::FromHandlePermanent(hWnd));
}

void CFrameWnd::SetActiveView(CView* pViewNew, BOOL bNotify) {
    CView* pViewOld = m_pViewActive;
    if (pViewNew == pViewOld) {
        return;
    }
    const HWND hFrame = m_hWnd;
    const HWND hNew = pViewNew->GetSafeHwnd();
    const HWND hOld = pViewOld->GetSafeHwnd();
    m_pViewActive = nullptr;
    if (pViewOld != nullptr) {
        pViewOld->OnActivateView(FALSE, pViewNew, pViewOld);
    }
    const bool bFrameStands = FromHandlePermanent(hFrame) == this;
    if (!bFrameStands || m_pViewActive != nullptr || ViewOf(hNew) != pViewNew) {
        return;  // the view of before decided otherwise
    }
    m_pViewActive = pViewNew;
    if (pViewNew != nullptr && bNotify) {
        pViewNew->OnActivateView(TRUE, pViewNew, ViewOf(hOld) == pViewOld ? pViewOld : nullptr);
    }
}

CDocument* CFrameWnd::GetActiveDocument() {
    return m_pViewActive != nullptr ? m_pViewActive->GetDocument() : nullptr;
}

void CFrameWnd::InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible) {
    const HWND hFrame = m_hWnd;
    const auto bStands = [&] { return FromHandlePermanent(hFrame) == this; };
    if (m_pViewActive == nullptr && m_pActiveClient == nullptr) {
        CWnd* pPane = GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE);
        if (CView* pView = DYNAMIC_DOWNCAST(CView, pPane)) {
            SetActiveView(pView, FALSE);
        } else {
            m_pActiveClient = pPane;
        }
    }
    if (bMakeVisible) {
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
        if (bStands()) {
            TellViewOfFrame(WA_INACTIVE);
        }
        if (!bStands()) {
            return;
        }
        // The first showing of the main window is the one that the program was started with.
        int nCmdShow = -1;
        CWinApp* pApp = AfxGetApp();
        if (pApp != nullptr && pApp->m_pMainWnd == this) {
            nCmdShow = pApp->m_nCmdShow;
            pApp->m_nCmdShow = -1;
        }
        ActivateFrame(nCmdShow);
        if (bStands()) {
            TellViewActive(TRUE);
        }
        if (!bStands()) {
            return;
        }
    }
    // Whatever views did meanwhile may have closed the document that was handed in.
    const CDocument* pActiveDoc = GetActiveDocument();
    if (pActiveDoc != nullptr && pActiveDoc == pDoc) {
        pDoc->UpdateFrameCounts();
    }
    OnUpdateFrameTitle(TRUE);
}

void CFrameWnd::ActivateFrame(int nCmdShow) {
    if (nCmdShow == -1) {
        nCmdShow = IsIconic() ? SW_RESTORE : IsWindowVisible() ? -1 : SW_SHOWNORMAL;
    }
    const HWND hWnd = m_hWnd;  // showing it tells its view, which may close it
    if (nCmdShow != -1) {
        ShowWindow(nCmdShow);
    }
    ::BringWindowToTop(hWnd);
}

void CFrameWnd::TellViewActive(BOOL bActivate) {
    if (m_pViewActive != nullptr) {
        m_pViewActive->OnActivateView(bActivate, m_pViewActive, m_pViewActive);
    }
}

void CFrameWnd::TellViewOfFrame(UINT nState) {
    if (m_pViewActive != nullptr) {
        m_pViewActive->OnActivateFrame(nState, this);
    }
}

void CFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
    const HWND hFrame = m_hWnd;
    CWnd::OnActivate(nState, pWndOther, bMinimized);
    const auto bStands = [&] { return FromHandlePermanent(hFrame) == this; };
    if (bStands() && nState != WA_INACTIVE && !bMinimized) {
        TellViewActive(TRUE);
    }
    if (bStands()) {
        TellViewOfFrame(nState);
    }
}

// Title

void CFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    if (!(GetStyle() & FWS_ADDTOTITLE)) {
        return;
    }
    CDocument* pDoc = GetActiveDocument();
    UpdateFrameTitleForDocument(
        bAddToTitle && pDoc != nullptr ? static_cast<LPCTSTR>(pDoc->GetTitle()) : nullptr);
}

CString CFrameWnd::NumberedName(LPCTSTR lpszDocName) const {
    CString strDoc(lpszDocName);
    if (m_nWindow > 0) {
        strDoc.AppendFormat(":%d", m_nWindow);
    }
    return strDoc;
}

void CFrameWnd::ShowTitle(const CString& strTitle) {
    CString strNow;
    GetWindowText(strNow);
    if (strNow != strTitle) {
        SetWindowText(strTitle);  // no flicker where it is the same
    }
}

void CFrameWnd::UpdateFrameTitleForDocument(LPCTSTR lpszDocName) {
    CString strTitle(m_strTitle);
    if (lpszDocName != nullptr) {
        const CString strDoc(NumberedName(lpszDocName));
        const bool bBoth = !strDoc.IsEmpty() && !m_strTitle.IsEmpty();
        const CString strBetween(bBoth ? " - " : "");
        strTitle = (GetStyle() & FWS_PREFIXTITLE) ? strDoc + strBetween + m_strTitle
                                                  : m_strTitle + strBetween + strDoc;
    }
    ShowTitle(strTitle);
}

// Closing

static bool IsMainFrame(const CFrameWnd* pFrame) {
    const CWinThread* pThread = AfxGetThread();
    return pThread != nullptr && pThread->m_pMainWnd == pFrame;
}

BOOL CFrameWnd::MayClose() {
    const HWND hFrame = m_hWnd;
    if (m_lpfnCloseProc != nullptr && !m_lpfnCloseProc(this)) {
        return FALSE;
    }
    if (FromHandlePermanent(hFrame) != this) {
        return FALSE;
    }
    if (CDocument* pDoc = GetActiveDocument()) {
        return pDoc->CanCloseFrame(this);
    }
    return !IsMainFrame(this) || AfxGetApp() == nullptr || AfxGetApp()->SaveAllModified();
}

void CFrameWnd::OnClose() {
    if (m_bAskingToClose) {
        return;
    }
    struct Asking {
        CFrameWnd* const pFrame;
        const HWND hFrame;
        bool Stands() const { return FromHandlePermanent(hFrame) == pFrame; }
        ~Asking() {
            if (Stands()) {
                pFrame->m_bAskingToClose = false;
            }
        }
    } asking{this, m_hWnd};
    m_bAskingToClose = true;
    if (MayClose() && asking.Stands()) {
        Close();
    }
}

void CFrameWnd::Close() {
    const HWND hFrame = m_hWnd;
    CDocument* pDoc = GetActiveDocument();
    if (IsMainFrame(this)) {
        // The application's other windows would look odd without it while it goes away.
        ShowOwnedPopups(FALSE);
        if (CWinApp* pApp = AfxGetApp()) {
            pApp->CloseAllDocuments(FALSE);
        }
    } else if (pDoc != nullptr) {
        if (pDoc->m_bAutoDelete && pDoc->IsOnlyFrame(this)) {
            pDoc->OnCloseDocument();
        } else {
            pDoc->PreCloseFrame(this);
        }
    }
    if (FromHandlePermanent(hFrame) == this) {
        DestroyWindow();
    }
}

void CFrameWnd::OnDestroy() {
    if (m_lpfnCloseProc != nullptr) {
        m_lpfnCloseProc(this);  // while all windows are there
    }
    // The window destroys the menu that it has; another one is somebody else's.
    if (::IsMenu(m_hMenuDefault) && ::GetMenu(m_hWnd) != m_hMenuDefault) {
        ::SetMenu(m_hWnd, m_hMenuDefault);
    }
    m_pViewActive = nullptr;
    m_pActiveClient = nullptr;
    m_hAccelTable = nullptr;  // loaded accelerators are the system's to free
    CWnd::OnDestroy();
}

BOOL CFrameWnd::OnQueryEndSession() {
    CWinApp* pApp = AfxGetApp();
    return !IsMainFrame(this) || pApp == nullptr || pApp->SaveAllModified();
}

void CFrameWnd::OnEndSession(BOOL bEnding) {
    CWinApp* pApp = AfxGetApp();
    if (bEnding && IsMainFrame(this) && pApp != nullptr) {
        pApp->CloseAllDocuments(TRUE);
    }
}
