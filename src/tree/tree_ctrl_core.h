// The tree's core with a window around it: passes the virtual steps on to the control.

#pragma once

#include "common/process_text.h"
#include "frame/alive.h"
#include "frame/font_measure.h"
#include "frame/rectangles.h"
#include "frame/wnd_port.h"
#include "tree/core/tree_view.h"
#include "tree/tree_ctrl.h"

class QVTreeCtrlEx::Core final : public qv::TreeSteps {
public:
    explicit Core(QVTreeCtrlEx& tree);

    qv::TreeView& View() { return m_view; }
    const qv::TreeItems& Items() const { return m_view.Items(); }
    void UseFont(HFONT hFont);
    void DrawBars() { m_port.DrawBars(); }

    int CompareItems(HTREEITEM hItem1, HTREEITEM hItem2) override;
    bool ReplacesCompareItems() const override;
    qv::Rect RowRect(int nTop, HTREEITEM hItem, bool bTextOnly) override;
    bool ReplacesRowRect() const override;
    int WidestRow() override;
    void ReadImageSizes(qv::TreeImages& images) override;
    int FontHeight() override;
    void NfySelectItem(HTREEITEM hItem) override;

private:
    template <class Ask>
    auto AskInOwnDC(Ask ask);

    QVTreeCtrlEx& m_tree;
    qv::WndPort m_port;
    qv::FontMeasure m_measure;
    HFONT m_hMeasured = nullptr;
    qv::TreeView m_view;  // holds on to port and measure
};

// Held over a call that leads to the parent: it may delete the item, destroy the window or delete
// the control. False from then on; nothing of the control may be touched.
class QVTreeCtrlEx::Guard {
public:
    Guard(const QVTreeCtrlEx& tree, HTREEITEM hItem)
        : m_window(tree.m_pCore->Items().Alive(), tree.m_hWnd),
          m_item(tree.m_pCore->Items(), hItem) {}
    explicit operator bool() const { return m_window && m_item.ItemAlive(); }

private:
    const qv::WindowWatch<HWND> m_window;
    const qv::TreeItems::Watch m_item;
};
