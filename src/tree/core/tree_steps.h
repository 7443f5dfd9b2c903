// What the tree's core asks of its control: the steps that a class derived from the control may
// replace, so that a replaced one is obeyed wherever the step is used, and what only a window can
// answer. A step may throw std::bad_alloc, and CompareItems anything.

#pragma once

#include "base/geometry.h"
#include "base/platform_names.h"

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

class TreeSteps {
public:
    // The order of two items, neither of them null: -1, 0 or 1. It may change the tree.
    virtual int CompareItems(HTREEITEM hItem1, HTREEITEM hItem2) = 0;
    // False only where CompareItems gives what TreeItems::CompareTexts gives: sorting need not ask
    // it for each pair then.
    virtual bool ReplacesCompareItems() const = 0;

    // The rectangle of a row whose top is nTop, in row coordinates, or of its text cell.
    virtual Rect RowRect(int nTop, HTREEITEM hItem, bool bTextOnly) = 0;
    // False only where RowRect gives what TreeView::CalcItemRect gives. Otherwise each refit asks
    // WidestRow.
    virtual bool ReplacesRowRect() const = 0;
    // Right edge of the widest displayable row, at least 0.
    virtual int WidestRow() = 0;

    // Reads the sizes of image 0 of the lists that are set.
    virtual void ReadImageSizes(TreeImages& images) = 0;
    // Height of a space in the tree's font, which is found now if need be; 0 without a font.
    virtual int FontHeight() = 0;
    // Selection that asks and tells the parent, which may do anything meanwhile.
    virtual void NfySelectItem(HTREEITEM hItem) = 0;

protected:
    ~TreeSteps() = default;
};

}  // namespace qv
