// A tree for core tests: the view on a fake window, with its steps open to be replaced.

#pragma once

#include "support/fake_window.h"
#include "tree/core/tree_view.h"

#include <functional>
#include <new>
#include <string>
#include <utility>

class TestTreeSteps : public qv::TreeSteps {
public:
    int CompareItems(HTREEITEM h1, HTREEITEM h2) override { return compare(h1, h2); }
    bool ReplacesCompareItems() const override { return bReplacesOrder; }
    qv::Rect RowRect(int nTop, HTREEITEM, bool) override { return {0, nTop, nReplacedWidth, 16}; }
    bool ReplacesRowRect() const override { return nReplacedWidth > 0; }
    int WidestRow() override { return nReplacedWidth; }
    void ReadImageSizes(qv::TreeImages&) override {}
    int FontHeight() override {
        if (measure.bOutOfMemory) {
            throw std::bad_alloc();
        }
        return nFontHeight;
    }
    void NfySelectItem(HTREEITEM hItem) override {
        ++nNotified;
        onSelect(hItem);
    }
    void Replace(std::function<int(HTREEITEM, HTREEITEM)> order) {
        compare = std::move(order);
        bReplacesOrder = true;
    }

    FakeWindow window{200, 100};
    FixedMeasure measure;
    qv::MultiByte text;
    qv::StyleTable styles;
    std::function<int(HTREEITEM, HTREEITEM)> compare;
    std::function<void(HTREEITEM)> onSelect;
    bool bReplacesOrder = false;
    int nFontHeight = 13;
    int nReplacedWidth = 0;
    int nNotified = 0;
};

class TestTree : public TestTreeSteps, public qv::TreeView {
public:
    TestTree() : qv::TreeView(window, measure, text, styles, *this) {
        styles.Add(1, 2);
        window.onResize = [this] { Resize(); };
        onSelect = [this](HTREEITEM h) { SelectItem(h); };
        KeepOrder();
    }
    // The step as the control has it: by text.
    void KeepOrder() {
        compare = [this](HTREEITEM h1, HTREEITEM h2) { return Items().CompareTexts(h1, h2); };
        bReplacesOrder = false;
    }

    HTREEITEM Add(const std::string& strText, HTREEITEM hParent = nullptr,
                  HTREEITEM hAfter = nullptr) {
        return InsertItem(strText.c_str(), 0, 0, hParent, hAfter);
    }
    HTREEITEM Root() const { return Items().Root(); }
    HTREEITEM Top() const { return Items().Top(); }
    HTREEITEM Bottom() const { return Items().Bottom(); }
    // The texts of the rows in order, joined by blanks.
    std::string Rows() const { return Join(Root(), &qv::TreeItems::NextDisplayableItem); }
    std::string Walk() const { return Join(Root(), &qv::TreeItems::WalkNext); }
    std::string Children(HTREEITEM hParent) const {
        std::string strRows;
        for (HTREEITEM h = Items().GetNextItem(hParent, TVGN_CHILD); h; h = h->pNextSibling) {
            strRows += (strRows.empty() ? "" : " ") + std::string(h->pszText);
        }
        return strRows;
    }

private:
    std::string Join(HTREEITEM h, HTREEITEM (qv::TreeItems::*next)(HTREEITEM) const) const {
        std::string strRows;
        for (; h != nullptr; h = (Items().*next)(h)) {
            strRows += (strRows.empty() ? "" : " ") + std::string(h->pszText);
        }
        return strRows;
    }
};
