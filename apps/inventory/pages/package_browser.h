// PackageBrowser: the packages page's panes and the bars between them. Left is the tree; beside it
// the list, and below that the details of the package that the list has in front.

#pragma once

#include "details/details_wnd.h"
#include "model/browser_layout.h"
#include "pages/list_pane.h"
#include "pages/tree_pane.h"

// A split whose bar can be put somewhere.
class PaneSplit : public QVSplitWnd {
public:
    // Of the window, left of the bar or above it.
    int Percent() const { return m_nSplitRatio; }
    void SetPercent(int nPercent);
    // The middle of the bar on the screen.
    CPoint BarOnScreen();
};

class PackageBrowser {
public:
    explicit PackageBrowser(BrowserOwner& owner) : m_tree(owner), m_details(owner) {}
    // Panes are children of pParent.
    BOOL Create(CWnd* pParent, CFont* pFont);
    void MoveTo(const CRect& rc) { m_outer.MoveWindow(&rc); }

    TreePane& TreeFrame() { return m_tree; }
    ListPane& ListFrame() { return m_list; }
    PackageTree& Tree() { return m_tree.Tree(); }
    PackageList& List() { return m_list.List(); }
    DetailsWnd& Details() { return m_details; }
    PaneSplit& Outer() { return m_outer; }
    PaneSplit& Inner() { return m_inner; }

    BrowserLayout Layout();
    void SetLayout(const BrowserLayout& layout);
    // To the pane that knows it.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

private:
    TreePane m_tree;
    ListPane m_list;
    DetailsWnd m_details;
    PaneSplit m_outer;  // the tree and what is beside it
    PaneSplit m_inner;  // the list and what is below it
};
