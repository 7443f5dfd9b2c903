// How a view is previewed in its frame.
#include "afx/documents/preview_view.h"
#include "afx/window/wnd_state.h"

#include <afxext.h>
#include <afxpriv.h>

#include <algorithm>
#include <exception>
#include <memory>
#include <utility>
#include <vector>

namespace {

/// Where the preview waits for its first page. Only then it takes the place of the view.
constexpr UINT kPaneToCome = AFX_IDW_PANE_LAST + 2;

/// The bar above the pages. The pages' keys work there as well, but for those that a dialog needs
/// and those of a field. Buttons that find no room go to another row.
class PreviewBar : public CDialogBar {
public:
    BOOL PreTranslateMessage(MSG* pMsg) override {
        const HWND hPages = ::GetDlgItem(::GetParent(m_hWnd), AFX_IDW_PANE_FIRST);
        if (pMsg->message == WM_KEYDOWN && IsForPages(*pMsg) && hPages != nullptr) {
            ::SendMessage(hPages, pMsg->message, pMsg->wParam, pMsg->lParam);
            return TRUE;
        }
        return CDialogBar::PreTranslateMessage(pMsg);
    }
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override {
        const CSize size = CDialogBar::CalcFixedLayout(bStretch, bHorz);
        return CSize(size.cx, size.cy * m_nRows);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_SIZEPARENT) {
            const CRect rcFree(reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam)->rect);
            AfxNeedMemory([&] { LayOut(rcFree.Width()); });
        }
        return CDialogBar::WindowProc(message, wParam, lParam);
    }

private:
    struct Item {
        HWND hWnd;
        CRect rc;  ///< in the template's one row
    };

    static bool IsForPages(const MSG& msg) {
        static constexpr WPARAM kKeys[] = {VK_NEXT,     VK_PRIOR,    VK_HOME, VK_END,
                                           VK_UP,       VK_DOWN,     VK_ADD,  VK_SUBTRACT,
                                           VK_OEM_PLUS, VK_OEM_MINUS};
        return std::find(std::begin(kKeys), std::end(kKeys), msg.wParam) != std::end(kKeys) &&
               (AfxSend<UINT>(msg.hwnd, WM_GETDLGCODE) & (DLGC_WANTCHARS | DLGC_WANTARROWS)) == 0;
    }

    void LayOut(int cx) {
        if (m_items.empty()) {
            std::vector<Item> items;
            for (HWND hWnd = ::GetTopWindow(m_hWnd); hWnd != nullptr;
                 hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) {
                CRect rc;
                ::GetWindowRect(hWnd, rc);
                ScreenToClient(rc);
                items.push_back({hWnd, rc});
            }
            m_items.swap(items);
        }
        m_nRows = 1;
        int xRow = 0;
        for (const Item& item : m_items) {
            const int xFirst = m_items.front().rc.left;
            if (item.rc.right - xRow > cx && item.rc.left - xRow > xFirst) {
                xRow = item.rc.left - xFirst;
                ++m_nRows;
            }
            ::SetWindowPos(item.hWnd, nullptr, item.rc.left - xRow,
                           item.rc.top + (m_nRows - 1) * m_sizeDefault.cy, 0, 0,
                           SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }

    std::vector<Item> m_items;
    int m_nRows = 1;
};

}  // namespace

BOOL CView::DoPrintPreview(UINT nIDResource, CView* pPrintView, CRuntimeClass* pPreviewViewClass,
                           CPrintPreviewState* pState) {
    CFrameWnd* pFrame = GetParentFrame();
    if (pFrame == nullptr || pFrame->m_lpfnCloseProc != nullptr ||
        ::GetDlgItem(pFrame->m_hWnd, kPaneToCome) != nullptr ||
        !pPreviewViewClass->IsDerivedFrom(RUNTIME_CLASS(CPreviewView))) {
        return FALSE;
    }
    if (pState->lpfnCloseProc == nullptr) {
        pState->lpfnCloseProc = CPreviewView::CloseProc;
    }
    pState->pViewActiveOld = pFrame->GetActiveView();
    // Who is thrown past cannot tell whether the preview has taken the state over, so it goes.
    std::unique_ptr<CPrintPreviewState> state(pState);
    auto pBar = std::make_unique<PreviewBar>();
    if (!pBar->Create(pFrame, nIDResource, CBRS_TOP, AFX_IDW_PREVIEW_BAR)) {
        state.release();
        return FALSE;
    }
    pBar->ShowWindow(SW_HIDE);
    CCreateContext context;
    context.m_pNewViewClass = pPreviewViewClass;
    context.m_pCurrentDoc = m_pDocument;
    context.m_pCurrentFrame = pFrame;
    context.m_pLastView = this;
    auto* pView = DYNAMIC_DOWNCAST(CPreviewView, pFrame->CreateView(&context, kPaneToCome));
    if (pView == nullptr) {
        state.release();
        return FALSE;
    }
    pView->m_pPreviewState = state.release();
    pView->m_hWndToolBar = pBar->m_hWnd;
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
        EnterFrame();
    } catch (...) {
        if (life) {
            OnPreviewClose();
        }
        throw;
    }
    if (life) {
        pFrame->SetActiveView(this);
    }
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
    // Whoever is hidden or shown may destroy the frame, and the state goes with the preview.
    const HWND hFrame = m_hWnd;
    const auto bStands = [&] { return FromHandlePermanent(hFrame) == this; };
    const auto rename = [&](UINT nID, int nNewID, int nCmdShow) {
        if (const HWND hWnd = ::GetDlgItem(m_hWnd, static_cast<int>(nID))) {
            ::SetWindowLongPtr(hWnd, GWLP_ID, nNewID);
            ::ShowWindow(hWnd, nCmdShow);
        }
    };
    // The pane that shows steps aside for the other one, before anything is laid out anew: each
    // gets a size only among the bars that it is shown with.
    if (bPreview) {
        m_lpfnCloseProc = pState->lpfnCloseProc;
        rename(pState->nIDMainPane, kHiddenPane, SW_HIDE);
    } else {
        rename(AFX_IDW_PANE_FIRST, 0, SW_HIDE);
    }
    if (!bStands()) {
        return;
    }
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
    std::swap(m_hAccelTable, pState->hAccelTable);
    HMENU hMenu = bPreview ? nullptr : pState->hMenu;
    pState->hMenu = ::GetMenu(m_hWnd);
    ::SetMenu(m_hWnd, hMenu);
    if (!bPreview && bStands()) {
        m_lpfnCloseProc = nullptr;
        rename(kHiddenPane, static_cast<int>(pState->nIDMainPane), SW_SHOW);
    }
}
