// The tree on a window: row height and rectangles, which rows are displayable and which are on
// screen, both scroll bars, expansion, selection, hit test. It paints nothing and handles no
// message.
//
// All rows have one height. The view is a window on the list of displayable rows, kept as the first
// and the last row that is fully shown; horizontal scrolling alone is in pixels. Rectangles are in
// row coordinates: client pixels plus the horizontal scroll position.
//
// The refit of the scroll bars after a change (CalcScroll) wants the number of rows, the place of
// the top row and the widest row. ShownRows answers that in a few steps. Where a control replaces
// the step RowRect, its version is asked about every row instead.
//
// Steps of the control may throw std::bad_alloc. It leaves none of the operations but CalcItemRect:
// a question without memory has no answer, a change of the tree is done all the same, and the refit
// of the scroll bars that it wants is made up for by FitIfDue.

#pragma once

#include "base/window_port.h"
#include "frame/core/row_scroll.h"
#include "tree/core/shown_rows.h"
#include "tree/core/tree_columns.h"
#include "tree/core/tree_items.h"

namespace qv {

inline constexpr int kImageGap = 3;  // behind each of a row's images, in pixels

class TreeView {
public:
    // All must outlive the view. measure answers in the tree's own font.
    TreeView(WindowPort& port, TextMeasure& measure, const MultiByte& text,
             const StyleTable& styles, TreeSteps& steps);

    // The store, to be asked. What changes it goes through the view.
    const TreeItems& Items() const { return m_items; }

    // --- Items, as in TreeItems, with a refit and repaint while redraw is on

    HTREEITEM InsertItem(const char* pszText, int nImage, int nSelectedImage, HTREEITEM hParent,
                         HTREEITEM hInsertAfter);
    // Null or TVI_ROOT deletes everything. False for a handle that is no item of the tree.
    bool DeleteItem(HTREEITEM hItem);
    bool DeleteChildren(HTREEITEM hItem);
    void DeleteAllItems();
    bool ChangeParent(HTREEITEM hItem, HTREEITEM hNewParent);
    bool SortChildren(HTREEITEM hParent);

    void ShowStatesAtRoot(bool bShow) { m_items.ShowStatesAtRoot(bShow); }
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
    const TreeImages& Images() const { return m_images; }
    void SetImages(const TreeImages& images) { m_images = images; }
    // The base rule of the step RowRect. nTop is the row's top in client pixels. pOther measures
    // where the text is drawn in another font than the tree's own.
    void CalcItemRect(TextMeasure* pOther, int nTop, HTREEITEM hItem, Rect& rect, bool bTextOnly);
    // False for an item that is not on screen; the partial row at the bottom counts as on screen.
    bool GetItemRect(HTREEITEM hItem, Rect& rect, bool bTextOnly);
    // The row at pt (client pixels) with TVHT_ flags and its rectangle in row coordinates.
    HTREEITEM HitTest(Point pt, unsigned* pFlags, Rect* pRect);
    // Among the fully shown rows.
    bool ItemVisible(HTREEITEM hItem) const;

    // The displayable rows by number, and the number of an item's row; none without memory.
    int RowCount() { return m_rows.Ensure() ? m_rows.Count() : 0; }
    HTREEITEM RowAt(int nRow) { return m_rows.Ensure() ? m_rows.At(nRow) : nullptr; }
    int RowOf(HTREEITEM hItem) { return m_rows.Ensure() ? m_rows.IndexOf(hItem) : -1; }
    SiblingPlace PlaceOf(HTREEITEM hItem) {
        return m_rows.Ensure() ? m_rows.PlaceOf(hItem) : SiblingPlace{};
    }
    // As GetItemRect, of rows above and below the view too. False for an item that is no row.
    bool GetRowRect(HTREEITEM hItem, Rect& rect);

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

    // Pixels by which the rows are scrolled to the left.
    int HScrollPos() const { return m_nHScrollPos; }
    // Index of the top row among the displayable ones.
    int VScrollPos() const { return m_nVScrollPos; }
    // Rows a page; 0 without a vertical bar.
    int VPage() const { return m_nVPage; }
    // Client width minus 4; 0 without a horizontal bar.
    int HPage() const { return m_nHPage; }
    // Right edge of the widest row.
    int MaxWidth() const { return m_nMaxWidth; }

    bool Redraw() const { return m_bRedraw; }
    // Off leaves the scroll bars and the window alone until it is on again.
    void SetRedraw(bool bRedraw);
    void InvalidateItem(HTREEITEM hItem, bool bErase);
    // Forgets items and measures, as the window goes.
    void Reset();

    // The font or something else that all widths depend on is another one now.
    void ForgetExtents();

    bool CheckInvariants() const;

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
    // As the control has it.
    Rect RowRect(int nTop, HTREEITEM hItem, bool bTextOnly);
    bool FindRect(HTREEITEM hItem, Rect& rect, bool bTextOnly);
    void CheckStyles();
    int TextExtent(HTREEITEM hItem, TextMeasure* pOther);
    bool LinesAtRoot() const;
    void InvalidateAll();
    void CheckMetrics();
    void SetExpanded(HTREEITEM hItem, bool bExpanded);
    int CountRows();
    HTREEITEM ShownAncestor(HTREEITEM hItem) const;
    int ScrollView(int nRows, bool bDown);
    bool FitVerticalBar(const BarPlan& plan, int nRows);
    bool FitHorizontalBar(const BarPlan& plan);
    int MoveRows(ScrollMove move);

    WindowPort& m_port;
    TextMeasure& m_measure;
    const StyleTable& m_aStyles;
    TreeSteps& m_steps;
    TreeItems m_items;
    ShownRows m_rows{m_items};
    TabStops m_tabs;
    bool m_bIndentTabs = true;
    TreeImages m_images;
    bool m_bRedraw = true;
    int m_nHScrollPos = 0;
    int m_nVScrollPos = 0;
    int m_nVPage = 0;
    int m_nHPage = 0;
    int m_nMaxWidth = 0;
    int m_nItemHeight = 0;  // pixels; 0: not measured
    std::uint16_t m_nExtentEpoch = 1;
    int m_nExtentStyles = 0;  // entries of the style table when the extents were measured
    RowMetrics m_metrics;
    bool m_bCounting = false;  // m_metrics are those of now
    RowScroll m_scroll{m_port};
    bool m_bFitDue = false;  // the last refit ran out of memory
};

}  // namespace qv
