// The tree's core with a window around it: passes the virtual steps on to the control.

#pragma once

#include "frame/font_measure.h"
#include "frame/module_state.h"
#include "frame/wnd_port.h"
#include "tree/core/tree_view.h"
#include "tree/tree_ctrl.h"

// Made before the core, which holds on to both.
struct QVTreeCtrlCoreParts {
    explicit QVTreeCtrlCoreParts(CWnd& wnd) : port(wnd) {}
    qv::WndPort port;
    qv::FontMeasure measure;
};

class QVTreeCtrlEx::Core : private QVTreeCtrlCoreParts, public qv::TreeView {
public:
    explicit Core(QVTreeCtrlEx& tree);

    int CompareItems(HTREEITEM hItem1, HTREEITEM hItem2) override;
    void ReadImageSizes() override;
    void UseFont(HFONT hFont);
    void DrawBars() { port.DrawBars(); }

protected:
    bool ReplacesCompareItems() const override;
    int FontHeight() override;
    void RowRect(int nTop, HTREEITEM hItem, qv::Rect& rect, bool bTextOnly) override;
    bool ReplacesCalcItemRect() const override;
    int WidestRow() override;
    void NfySelectItem(HTREEITEM hItem) override;

private:
    QVTreeCtrlEx& m_tree;
    HFONT m_hMeasured = nullptr;
};

// Holds over a call that leads to the parent: it may delete the item, destroy the window or delete
// the control. False from then on; nothing of the control may be touched.
class QVTreeCtrlEx::Guard {
public:
    Guard(QVTreeCtrlEx& tree, HTREEITEM hItem) : m_tree(tree), m_watch(*tree.m_pCore, hItem) {}
    explicit operator bool() const { return m_watch.ItemAlive() && m_tree.m_hWnd != nullptr; }

private:
    QVTreeCtrlEx& m_tree;
    Core::Watch m_watch;
};
