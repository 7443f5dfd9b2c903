// How a view is previewed in its frame.
#include "afx/documents/preview_view.h"

#include <afxext.h>
#include <afxpriv.h>

#include <exception>
#include <memory>
#include <utility>

namespace {

/// The bar above the pages. Keys that turn pages work there as well.
class PreviewBar : public CDialogBar {
public:
    BOOL PreTranslateMessage(MSG* pMsg) override {
        const bool bTurns =
            pMsg->message == WM_KEYDOWN && (pMsg->wParam == VK_NEXT || pMsg->wParam == VK_PRIOR ||
                                            pMsg->wParam == VK_HOME || pMsg->wParam == VK_END);
        const HWND hPages = ::GetDlgItem(::GetParent(m_hWnd), AFX_IDW_PANE_FIRST);
        if (bTurns && hPages != nullptr) {
            ::SendMessage(hPages, pMsg->message, pMsg->wParam, pMsg->lParam);
            return TRUE;
        }
        return CDialogBar::PreTranslateMessage(pMsg);
    }
};

/// The frame as it was, unless the preview has taken that over. Who is thrown past cannot tell
/// whether it has, so the state goes as well then.
struct FrameBack {
    CFrameWnd* pFrame;
    CPrintPreviewState* pState;
    const int nThrown = std::uncaught_exceptions();
    ~FrameBack() {
        if (pState == nullptr) {
            return;
        }
        pFrame->OnSetPreviewMode(FALSE, pState);
        pFrame->RecalcLayout();
        if (std::uncaught_exceptions() > nThrown) {
            delete pState;
        }
    }
};

}  // namespace

BOOL CView::DoPrintPreview(UINT nIDResource, CView* pPrintView, CRuntimeClass* pPreviewViewClass,
                           CPrintPreviewState* pState) {
    CFrameWnd* pFrame = GetParentFrame();
    if (pFrame == nullptr || pFrame->m_lpfnCloseProc != nullptr ||
        !pPreviewViewClass->IsDerivedFrom(RUNTIME_CLASS(CPreviewView))) {
        return FALSE;
    }
    if (pState->lpfnCloseProc == nullptr) {
        pState->lpfnCloseProc = CPreviewView::CloseProc;
    }
    pState->pViewActiveOld = pFrame->GetActiveView();
    FrameBack back{pFrame, pState};
    pFrame->OnSetPreviewMode(TRUE, pState);
    auto pBar = std::make_unique<PreviewBar>();
    if (!pBar->Create(pFrame, nIDResource, CBRS_TOP, AFX_IDW_PREVIEW_BAR)) {
        return FALSE;
    }
    CCreateContext context;
    context.m_pNewViewClass = pPreviewViewClass;
    context.m_pCurrentDoc = m_pDocument;
    context.m_pCurrentFrame = pFrame;
    context.m_pLastView = this;
    auto* pView = DYNAMIC_DOWNCAST(CPreviewView, pFrame->CreateView(&context));
    if (pView == nullptr) {
        return FALSE;
    }
    back.pState = nullptr;
    pView->m_pPreviewState = pState;
    pView->m_pToolBar = pBar.release();
    pView->m_pToolBar->m_bAutoDelete = TRUE;
    pView->m_pOrigView = this;
    pView->m_hWndOrigView = m_hWnd;
    pView->m_hWndActiveOld = pState->pViewActiveOld->GetSafeHwnd();
    pView->ShowPrintView(pPrintView);
    return TRUE;
}

/// The last step of DoPrintPreview. Whatever goes wrong ends the preview.
void CPreviewView::ShowPrintView(CView* pPrintView) {
    const AfxLifeWatch life(m_life);
    CFrameWnd* pFrame = GetParentFrame();
    try {
        if (!SetPrintView(pPrintView)) {
            if (life) {
                OnPreviewClose();
            }
            return;
        }
    } catch (...) {
        if (life) {
            OnPreviewClose();
        }
        throw;
    }
    pFrame->SetActiveView(this);
    if (life) {
        SendMessage(WM_INITIALUPDATE);
    }
    if (life) {
        pFrame->RecalcLayout();
        UpdateBar();
        pFrame->UpdateWindow();
    }
}

void CView::OnFilePrintPreview() {
    auto* pState = new CPrintPreviewState;
    if (!DoPrintPreview(AFX_IDD_PREVIEW_TOOLBAR, this, RUNTIME_CLASS(CPreviewView), pState)) {
        delete pState;
        AfxMessageBox(AFX_IDP_COMMAND_FAILURE);
    }
}

void CView::OnEndPrintPreview(CDC*, CPrintInfo*, POINT, CPreviewView* pView) {
    const AfxLifeWatch life(pView->m_life);
    // A view that cannot end its printing must not leave a preview that cannot be closed.
    const std::exception_ptr thrown = pView->EndPrinting();
    if (life) {
        pView->LeaveFrame();
    }
    if (life) {
        pView->DestroyWindow();
    }
    if (thrown) {
        std::rethrow_exception(thrown);
    }
}

void CFrameWnd::OnSetPreviewMode(BOOL bPreview, CPrintPreviewState* pState) {
    constexpr int kHiddenPane = AFX_IDW_PANE_LAST + 1;
    constexpr UINT kMostBars = 32;
    for (POSITION pos = m_listControlBars.GetHeadPosition(); pos != nullptr;) {
        auto* pBar = static_cast<CControlBar*>(m_listControlBars.GetNext(pos));
        const UINT nID = static_cast<UINT>(pBar->GetDlgCtrlID());
        const UINT nBar = nID - AFX_IDW_CONTROLBAR_FIRST;
        if (nID == AFX_IDW_STATUS_BAR || nID == AFX_IDW_PREVIEW_BAR || nBar >= kMostBars) {
            continue;
        }
        const DWORD dwBar = 1u << nBar;
        if (bPreview && pBar->IsVisible()) {
            pState->dwStates |= dwBar;
            ShowControlBar(pBar, FALSE, TRUE);
        } else if (!bPreview && (pState->dwStates & dwBar) != 0) {
            ShowControlBar(pBar, TRUE, TRUE);
        }
    }
    m_lpfnCloseProc = bPreview ? pState->lpfnCloseProc : nullptr;
    std::swap(m_hAccelTable, pState->hAccelTable);
    HMENU hMenu = bPreview ? nullptr : pState->hMenu;
    pState->hMenu = ::GetMenu(m_hWnd);
    ::SetMenu(m_hWnd, hMenu);
    // The pane that shows steps aside for the other one.
    const auto rename = [&](UINT nID, int nNewID, int nCmdShow) {
        if (const HWND hWnd = ::GetDlgItem(m_hWnd, static_cast<int>(nID))) {
            ::SetWindowLongPtr(hWnd, GWLP_ID, nNewID);
            ::ShowWindow(hWnd, nCmdShow);
        }
    };
    if (bPreview) {
        rename(pState->nIDMainPane, kHiddenPane, SW_HIDE);
    } else {
        rename(AFX_IDW_PANE_FIRST, 0, SW_HIDE);
        rename(kHiddenPane, static_cast<int>(pState->nIDMainPane), SW_SHOW);
    }
}
