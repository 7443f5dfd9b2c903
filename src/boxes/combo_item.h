// What the combo boxes that draw their own rows have in common: the stored strings, and an item as
// the platform asks to have it drawn.

#pragma once

#include "boxes/core/box_row.h"
#include "frame/out_of_memory.h"
#include "frame/records.h"

#include <afxwin.h>

#include <string>
#include <string_view>

namespace qv {

// The row as it is stored; empty for an index that is none. Throws without memory.
CString StoredRow(const CComboBox& combo, int nIndex);
// Number and text of a stored row. Throws without memory.
void SplitStored(LPCSTR pszStored, NumberPlace place, int& nNumber, CString& strText);
// Gives a row in its stored form to action, which gives its result; nWithout without memory.
template <class Action>
int WithStored(int nNumber, LPCSTR pszText, NumberPlace place, int nWithout, Action action);

// Draws one item, of the list or of the part that shows the selected one: at the left a strip that
// is the caller's, right of it the text.
class ComboItem {
public:
    explicit ComboItem(const DRAWITEMSTRUCT& draw);

    CDC& Context() const { return *m_pDC; }
    // Where it lies; the left edge moves with Indent.
    const CRect& Place() const { return m_rc; }
    void Indent(int nPixels) { m_rc.left += nPixels; }

    bool HasRow() const { return m_draw.itemID != static_cast<UINT>(-1); }
    bool InEdit() const { return (m_draw.itemState & ODS_COMBOBOXEDIT) != 0; }
    bool Selected() const { return (m_draw.itemState & ODS_SELECTED) != 0; }
    // All of it, and not the focus alone. False also without a context.
    bool DrawsContent() const;

    // The context's colours, or those of a selection.
    const QVSTYLE& Colors() const { return m_colors; }
    // The three draw right of a strip nStrip pixels wide.
    void Fill(int nStrip) const;
    // nDown pixels under the upper edge. The colours of the context are put back.
    void DrawText(int nStrip, int nDown, std::string_view text, const QVSTYLE& colors) const;
    // The focus rectangle, if it is due.
    void DrawFocus(int nStrip) const;

private:
    CRect TextPlace(int nStrip) const;

    const DRAWITEMSTRUCT& m_draw;
    CDC* m_pDC;
    CRect m_rc;
    QVSTYLE m_colors{};
};

template <class Action>
int WithStored(int nNumber, LPCSTR pszText, NumberPlace place, int nWithout, Action action) {
    std::string strStored;
    const bool bStored = MemorySuffices(
        [&] { strStored = JoinBoxRow(nNumber, pszText != nullptr ? pszText : "", place); });
    return bStored ? action(strStored.c_str()) : nWithout;
}

}  // namespace qv
