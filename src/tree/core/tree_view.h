// The tree on a window: row height and rectangles, which rows are displayable and which are on
// screen, both scroll bars, expansion, selection, hit test. It paints nothing and handles no
// message.
//
// All rows have one height. The view is a window on the list of displayable rows, kept as the first
// and the last row that is fully shown; horizontal scrolling alone is in pixels. Rectangles are in
// row coordinates: client pixels plus the horizontal scroll position.
//
// The refit of the scroll bars after a change (CalcScroll) wants the number of rows, the place of
// the top row and the widest row. A RowIndex that is kept up to date answers that in a few steps.
// Where a control replaces CalcItemRect, its version is asked about every row instead.
//
// Steps of the control may throw std::bad_alloc. It leaves none of the operations but CalcItemRect:
// a question without memory has no answer, a change of the tree is done all the same, and the refit
// of the scroll bars that it wants is made up for by FitIfDue.

#pragma once

#include "base/window_port.h"
#include "tree/core/row_index.h"
#include "tree/core/tree_columns.h"
#include "tree/core/tree_items.h"

#include <new>

namespace qv {

// The two image lists as the layout sees them.
struct TreeImages {
    bool bNormal = false;  // a list is set
    bool bState = false;
    int cxImage = 0;  // size of image 0 in pixels; stays when a list is taken away
    int cyImage = 0;
    int cxStateImage = 0;
    int cyStateImage = 0;
    friend bool operator==(const TreeImages&, const TreeImages&) = default;
};

class TreeView : public TreeItems {
public:
    // All must outlive the view. measure answers in the tree's own font.
    TreeView(WindowPort& port, TextMeasure& measure, const MultiByte& text,
             const StyleTable& styles);
    ~TreeView() override;

    // --- Items, as in TreeItems, with a refit and repaint while redraw is on

    HTREEITEM InsertItem(const char* pszText, int nImage, int nSelectedImage, HTREEITEM hParent,
                         HTREEITEM hInsertAfter);
    // Null or TVI_ROOT deletes everything. False for a handle that is no item of the tree.
    bool DeleteItem(HTREEITEM hItem);
    bool DeleteChildren(HTREEITEM hItem);
    void DeleteAllItems();
    bool ChangeParent(HTREEITEM hItem, HTREEITEM hNewParent);
    bool SortChildren(HTREEITEM hParent);

    bool SetItemText(HTREEITEM hItem, const char* pszText);
    void SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    void SetItemState(HTREEITEM hItem, unsigned nState, unsigned nMask);
    void SetItemStateImage(HTREEITEM hItem, unsigned nImage, bool bChildren);
    int ChangeItemStyles(HTREEITEM hItem, int nStyle, bool bUpTheTree, bool bOnlyDefault);

    // --- Columns

    void UseTabs(const int* pTabs, int nCount);
    void ClearTabs();
    void SetTabValue(int nTab, int nValue);
    void SetTabFormat(int nTab, unsigned nFormat);
    void SetIndentTabs(bool bIndentTabs);
    const TabStops& Tabs() const { return m_tabs; }
    bool IndentTabs() const { return m_bIndentTabs; }

    // --- Geometry

    // 0 while there is neither a font nor an image to measure. Asked for only where there are rows:
    // it is measured once, and image lists that come before the first item are to count.
    int ItemHeight();
    // Pixels by which each level moves a row right: 19, or the height of a taller image. The height
    // and not the width counts; applications size their images by that.
    int IndentStep() const;
    // The base rule of the virtual step. nTop is the row's top in client pixels. pOther measures
    // where the text is drawn in another font than the tree's own.
    void CalcItemRect(TextMeasure* pOther, int nTop, HTREEITEM hItem, Rect& rect, bool bTextOnly);
    // False for an item that is not on screen; the partial row at the bottom counts as on screen.
    bool GetItemRect(HTREEITEM hItem, Rect& rect, bool bTextOnly);
    // The row at pt (client pixels) with TVHT_ flags and its rectangle in row coordinates.
    HTREEITEM HitTest(Point pt, unsigned* pFlags, Rect* pRect);
    // Among the fully shown rows.
    bool ItemVisible(HTREEITEM hItem) const;

    void CalcBottomItem();
    void CalcTopItem();
    void CalcScroll();
    // Before painting: the refit that failed for want of memory.
    void FitIfDue();
    // The window's size has changed.
    void Resize();

    // --- Scrolling, expansion, selection

    int ScrollTreeDown(int nRows);
    int ScrollTreeUp(int nRows);
    void VScroll(unsigned nCode, int nPos);
    void HScroll(unsigned nCode, int nPos);
    // A row above the view comes to its top, one below to its bottom; collapsed ancestors open.
    bool EnsureVisible(HTREEITEM hItem);
    bool Expand(HTREEITEM hItem, unsigned nCode, bool bInvalidate, bool bCollapseChildren);
    // Tells nobody. False if the item is the selection already.
    bool SelectItem(HTREEITEM hItem);
    // Makes the row the top one, as the key that goes to a parent above the view does.
    void ShowAtTop(HTREEITEM hItem);
    // Moves the view a row and the window's pixels with it. False at the end of the rows.
    bool StepView(bool bDown);

    void SetRedraw(bool bRedraw);
    void InvalidateItem(HTREEITEM hItem, bool bErase);
    // Forgets items and measures, as the window goes.
    void Reset();

    bool CheckInvariants();

    TreeImages m_images;
    bool m_bRedraw = true;
    int m_nHScrollPos = 0;  // pixels
    int m_nVScrollPos = 0;  // index of the top row among the displayable ones
    int m_nVPage = 0;       // rows a page; 0 without a vertical bar
    int m_nHPage = 0;       // client width minus 4; 0 without a horizontal bar
    int m_nMaxWidth = 0;    // right edge of the widest row

protected:
    // The font or something else that all widths depend on is another one now.
    void ForgetExtents();

    // --- What the control adds

    // Reads the sizes of image 0 of both lists into m_images.
    virtual void ReadImageSizes() {}
    // Height of a space in the tree's font, which is found now if need be; 0 without a font.
    virtual int FontHeight() = 0;
    // CalcItemRect as the control has it.
    virtual void RowRect(int nTop, HTREEITEM hItem, Rect& rect, bool bTextOnly) {
        CalcItemRect(nullptr, nTop, hItem, rect, bTextOnly);
    }
    // True where CalcItemRect is not the one of this class. WidestRow then asks it for every row.
    virtual bool ReplacesCalcItemRect() const { return false; }
    virtual int WidestRow() { return 0; }
    // Selection that asks and tells the parent, which may do anything meanwhile.
    virtual void NfySelectItem(HTREEITEM hItem) = 0;

private:
    // What a row's rectangle depends on beside its text and place in the tree.
    struct RowMetrics {
        TreeImages images;
        bool bIndentTabs = true;
        bool bStatesAtRoot = false;
        bool bLinesAtRoot = false;
        friend bool operator==(const RowMetrics&, const RowMetrics&) = default;
    };

    void Refresh();
    void RefitAll();
    void CalcItemHeight();
    void Fit();
    bool FindRect(HTREEITEM hItem, Rect& rect, bool bTextOnly);
    int RowsThatFit(int nHeight);
    void CheckStyles();
    int TextExtent(HTREEITEM hItem, TextMeasure* pOther);
    bool HasStyleBit(unsigned nBit) const;
    bool EnsureRows();
    void DropRows();
    void CheckMetrics();
    bool IsDisplayed(HTREEITEM hItem) const;
    // Applies a change of the tree to the index, if there is one. Where the root level's start has
    // been moved away, rows follow no order that could be kept up, and the index is made anew when
    // it is needed.
    template <class Change>
    void ChangeRows(Change change) {
        if (!m_bRowsValid) {
            return;
        }
        if (RootDetached() || m_bDetachedRows) {
            DropRows();
            return;
        }
        try {
            change();
        } catch (const std::bad_alloc&) {
            DropRows();
            ForgetLeaves();
        }
    }
    // Rows that were being added may point at leaves that are gone.
    void ForgetLeaves();
    void CollectRows(HTREEITEM hFirst, HTREEITEM hEnd);
    void InsertRows(HTREEITEM hItem);
    void EraseRows(HTREEITEM hItem, bool bItemToo);
    void SetExpanded(HTREEITEM hItem, bool bExpanded);
    int CountRows();
    HTREEITEM ShownAncestor(HTREEITEM hItem) const;
    int ScrollView(int nRows, bool bDown);
    void FitVerticalBar(const Rect& rcClient, int nRows, bool bNeeded);
    void FitHorizontalBar(const Rect& rcClient, bool bNeeded);
    int HorizontalStep(unsigned nCode, int nPos) const;

    // Marks a refit as under way, also if a replaced step throws.
    struct Fitting {
        explicit Fitting(TreeView& view) : m_view(view) { m_view.m_bFitting = true; }
        ~Fitting() { m_view.m_bFitting = false; }
        TreeView& m_view;
    };

    WindowPort& m_port;
    TextMeasure& m_measure;
    TabStops m_tabs;
    bool m_bIndentTabs = true;
    int m_nItemHeight = 0;  // pixels; 0: not measured
    std::uint16_t m_nExtentEpoch = 1;
    int m_nExtentStyles = 0;  // entries of the style table when the extents were measured
    RowIndex m_rows;
    bool m_bRowsValid = false;
    bool m_bDetachedRows = false;  // the index shows the rows of a detached root
    RowMetrics m_metrics;
    std::vector<HTREEITEM> m_collected;
    bool m_bFitting = false;
    bool m_bFitDue = false;  // the last one ran out of memory
    bool m_bResizedWhileFitting = false;
};

}  // namespace qv
