// A view as a pane of a splitter, and its defaults for scrolling and drags.
#include "afx/documents/view.h"

#include <afxext.h>

BOOL CView::OnScroll(UINT, UINT, BOOL) {
    return FALSE;
}

BOOL CView::OnScrollBy(CSize, BOOL) {
    return FALSE;
}

DROPEFFECT CView::OnDragEnter(COleDataObject*, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}

DROPEFFECT CView::OnDragOver(COleDataObject*, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}

void CView::OnDragLeave() {}

BOOL CView::OnDrop(COleDataObject*, DROPEFFECT, CPoint) {
    return FALSE;
}

DROPEFFECT CView::OnDropEx(COleDataObject*, DROPEFFECT, DROPEFFECT, CPoint) {
    return static_cast<DROPEFFECT>(-1);
}

DROPEFFECT CView::OnDragScroll(DWORD, CPoint) {
    return DROPEFFECT_NONE;
}

// Splitters

CSplitterWnd* CView::GetParentSplitter(const CWnd* pWnd, BOOL bAnyState) {
    auto* pSplitter =
        DYNAMIC_DOWNCAST(CSplitterWnd, CWnd::FromHandlePermanent(::GetParent(pWnd->m_hWnd)));
    if (pSplitter == nullptr || bAnyState) {
        return pSplitter;
    }
    for (const CWnd* p = pWnd; p != nullptr; p = p->GetParent()) {
        if (p->IsIconic()) {
            return nullptr;
        }
    }
    return pSplitter;
}

CScrollBar* CView::GetScrollBarCtrl(int nBar) const {
    CSplitterWnd* pSplitter = GetParentSplitter(this, TRUE);
    if (pSplitter == nullptr) {
        return nullptr;
    }
    int row = 0;
    int col = 0;
    if (!pSplitter->IsChildPane(const_cast<CView*>(this), &row, &col)) {
        return nullptr;
    }
    return static_cast<CScrollBar*>(pSplitter->GetDlgItem(
        nBar == SB_HORZ ? AFX_IDW_HSCROLL_FIRST + col : AFX_IDW_VSCROLL_FIRST + row));
}

void CView::OnUpdateSplitCmd(CCmdUI* pCmdUI) {
    CSplitterWnd* pSplitter = GetParentSplitter(this, FALSE);
    pCmdUI->Enable(pSplitter != nullptr && !pSplitter->IsTracking());
}

BOOL CView::OnSplitCmd(UINT) {
    CSplitterWnd* pSplitter = GetParentSplitter(this, FALSE);
    return pSplitter != nullptr && pSplitter->DoKeyboardSplit();
}

void CView::OnUpdateNextPaneMenu(CCmdUI* pCmdUI) {
    CSplitterWnd* pSplitter = GetParentSplitter(this, FALSE);
    pCmdUI->Enable(pSplitter != nullptr &&
                   pSplitter->CanActivateNext(pCmdUI->m_nID == ID_PREV_PANE));
}

BOOL CView::OnNextPaneCmd(UINT nID) {
    CSplitterWnd* pSplitter = GetParentSplitter(this, FALSE);
    if (pSplitter == nullptr) {
        return FALSE;
    }
    pSplitter->ActivateNext(nID == ID_PREV_PANE);
    return TRUE;
}
