// A tree for core tests: the view on a fake window, with its steps open to be replaced.

#pragma once

#include "support/fake_window.h"
#include "tree/core/tree_view.h"

#include <functional>
#include <string>

struct TestTreeParts {
    FakeWindow window{200, 100};
    FixedMeasure measure;
    qv::MultiByte text;
    qv::StyleTable styles;
};

class TestTree : public TestTreeParts, public qv::TreeView {
public:
    TestTree() : qv::TreeView(window, measure, text, styles) {
        styles.Add(1, 2);
        window.onResize = [this] { Resize(); };
    }

    HTREEITEM Add(const std::string& strText, HTREEITEM hParent = nullptr,
                  HTREEITEM hAfter = nullptr) {
        return InsertItem(strText.c_str(), 0, 0, hParent, hAfter);
    }
    // The texts of the rows in order, joined by blanks.
    std::string Rows() const { return Join(m_hRootItem, &TestTree::NextDisplayableItem); }
    std::string Walk() const { return Join(m_hRootItem, &TestTree::WalkNext); }
    std::string Children(HTREEITEM hParent) const {
        std::string strRows;
        for (HTREEITEM h = GetNextItem(hParent, TVGN_CHILD); h; h = h->pNextSibling) {
            strRows += (strRows.empty() ? "" : " ") + std::string(h->pszText);
        }
        return strRows;
    }

    int CompareItems(HTREEITEM h1, HTREEITEM h2) override {
        return compare ? compare(h1, h2) : TreeItems::CompareItems(h1, h2);
    }
    bool ReplacesCompareItems() const override { return static_cast<bool>(compare); }
    int FontHeight() override { return nFontHeight; }
    bool ReplacesCalcItemRect() const override { return nReplacedWidth > 0; }
    int WidestRow() override { return nReplacedWidth; }
    void NfySelectItem(HTREEITEM hItem) override {
        ++nNotified;
        if (onSelect) {
            onSelect(hItem);
        } else {
            SelectItem(hItem);
        }
    }

    std::function<int(HTREEITEM, HTREEITEM)> compare;
    std::function<void(HTREEITEM)> onSelect;
    int nFontHeight = 13;
    int nReplacedWidth = 0;
    int nNotified = 0;

private:
    std::string Join(HTREEITEM h, HTREEITEM (TestTree::*next)(HTREEITEM) const) const {
        std::string strRows;
        for (; h != nullptr; h = (this->*next)(h)) {
            strRows += (strRows.empty() ? "" : " ") + std::string(h->pszText);
        }
        return strRows;
    }
};
