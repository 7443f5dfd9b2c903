#include "pages/package_browser.h"

#include <algorithm>

// --- PaneSplit

void PaneSplit::SetPercent(int nPercent) {
    SetSplitRatio(nPercent);
    // A ratio counts from the next resize on.
    CRect rc;
    GetClientRect(&rc);
    SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(rc.Width(), rc.Height()));
}

CPoint PaneSplit::BarOnScreen() {
    CRect rc;
    CalcSplitRect(rc, -1);
    ClientToScreen(&rc);
    return rc.CenterPoint();
}

// --- PackageBrowser

BOOL PackageBrowser::Create(CWnd* pParent, CFont* pFont) {
    CRect rcNone(0, 0, 0, 0);
    // Splits come last: they lie below the panes, and the Tab key follows that order.
    if (!m_tree.Create(pParent, IDC_TREE_FRAME) || !m_list.Create(pParent, IDC_LIST_FRAME, pFont) ||
        !m_details.Create(IDC_DETAILS, rcNone, pParent) ||
        !m_inner.Create(rcNone, pParent, IDC_INNER_SPLIT, FALSE) ||
        !m_outer.Create(rcNone, pParent, IDC_OUTER_SPLIT, TRUE)) {
        return FALSE;
    }
    const BrowserLayout layout;
    for (PaneSplit* pSplit : {&m_inner, &m_outer}) {
        pSplit->SetAutoDeletePanes(FALSE);
        pSplit->ModifyStyle(WS_TABSTOP, 0);
        pSplit->EnableExpectedKeys();
    }
    // As a screen reader names the bars.
    m_outer.SetWindowText("Width of the tree");
    m_inner.SetWindowText("Height of the list");
    m_inner.SetSplitRatio(layout.nListPercent);
    m_outer.SetSplitRatio(layout.nTreePercent);
    return m_inner.AddPane(&m_list) && m_inner.AddPane(&m_details) && m_outer.AddPane(&m_tree) &&
           m_outer.AddPane(&m_inner);
}

BrowserLayout PackageBrowser::Layout() {
    return {m_outer.Percent(), m_inner.Percent(), std::max(m_details.GetActivePage(), 0),
            Tree().Widths()};
}

void PackageBrowser::SetLayout(const BrowserLayout& layout) {
    m_outer.SetPercent(layout.nTreePercent);
    m_inner.SetPercent(layout.nListPercent);
    m_details.SetActivePage(layout.nDetails);
    Tree().UseWidths(layout.treeWidths);
}

BOOL PackageBrowser::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return m_tree.OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           m_list.OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           m_details.OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
