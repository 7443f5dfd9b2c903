#include "tree/tree_ctrl_core.h"

#include "frame/dc_guards.h"
#include "frame/image_strip.h"
#include "frame/out_of_memory.h"

#include <algorithm>

QVTreeCtrlEx::Core::Core(QVTreeCtrlEx& tree)
    : m_tree(tree),
      m_port(tree),
      m_view(m_port, m_measure, qv::ProcessText(), tree.m_aStyles, *this) {}

int QVTreeCtrlEx::Core::CompareItems(HTREEITEM hItem1, HTREEITEM hItem2) {
    return qv::AsBadAlloc([&] { return m_tree.CompareItems(hItem1, hItem2); });
}

bool QVTreeCtrlEx::Core::ReplacesCompareItems() const {
    return m_tree.MayReplaceSteps();
}

bool QVTreeCtrlEx::Core::ReplacesRowRect() const {
    return m_tree.MayReplaceSteps();
}

// ask gets a context of the window with the tree's font.
template <class Ask>
auto QVTreeCtrlEx::Core::AskInOwnDC(Ask ask) {
    return qv::AsBadAlloc([&] {
        CClientDC dc(&m_tree);
        const qv::SelectGuard<CFont> font(dc, m_tree.m_hFont);
        return ask(dc);
    });
}

qv::Rect QVTreeCtrlEx::Core::RowRect(int nTop, HTREEITEM hItem, bool bTextOnly) {
    return AskInOwnDC([&](CDC& dc) {
        CRect rc;
        m_tree.CalcItemRect(dc, nTop, hItem, rc, bTextOnly);
        return qv::ToRect(rc);
    });
}

int QVTreeCtrlEx::Core::WidestRow() {
    return AskInOwnDC([this](CDC& dc) {
        int nWidest = 0;
        for (HTREEITEM h = Items().Root(); h != nullptr; h = Items().NextDisplayableItem(h)) {
            CRect rc;
            m_tree.CalcItemRect(dc, 0, h, rc, FALSE);
            nWidest = std::max(nWidest, static_cast<int>(rc.right));
        }
        return nWidest;
    });
}

void QVTreeCtrlEx::Core::ReadImageSizes(qv::TreeImages& images) {
    const auto read = [](CImageList* pImageList, int& cx, int& cy) {
        if (pImageList != nullptr) {
            const CSize size = qv::ImageSize(*pImageList);
            cx = size.cx;
            cy = size.cy;
        }
    };
    read(m_tree.m_pImageList, images.cxImage, images.cyImage);
    read(m_tree.m_pStateImageList, images.cxStateImage, images.cyStateImage);
}

void QVTreeCtrlEx::Core::UseFont(HFONT hFont) {
    if (hFont != m_hMeasured) {
        m_hMeasured = hFont;
        m_measure.SetFont(hFont);
        m_view.ForgetExtents();
    }
}

int QVTreeCtrlEx::Core::FontHeight() {
    return qv::AsBadAlloc([this] {
        m_tree.FindFont();
        return m_tree.m_hFont != nullptr ? m_measure.Extent(" ").cy : 0;
    });
}

void QVTreeCtrlEx::Core::NfySelectItem(HTREEITEM hItem) {
    m_tree.NfySelectItem(hItem);
}

// --- Replaced steps

void QVTreeCtrlEx::KeepSteps(const std::type_info& derived) {
    m_pKeepsSteps = &derived;
}

// The language has no way to ask a class whether it replaces a virtual step.
bool QVTreeCtrlEx::MayReplaceSteps() const {
    const std::type_info& own = typeid(*this);
    return own != typeid(QVTreeCtrlEx) && (m_pKeepsSteps == nullptr || own != *m_pKeepsSteps);
}
