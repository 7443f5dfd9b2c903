#include "boxes/combo_item.h"

#include "frame/dc_guards.h"
#include "frame/text_out.h"

#include <algorithm>

namespace qv {

namespace {

constexpr int kTextMargin = 2;

}  // namespace

CString StoredRow(const CComboBox& combo, int nIndex) {
    CString strRow;
    if (combo.GetLBTextLen(nIndex) > 0) {
        combo.GetLBText(nIndex, strRow);
    }
    return strRow;
}

void SplitStored(LPCSTR pszStored, NumberPlace place, int& nNumber, CString& strText) {
    const BoxRow row = SplitBoxRow(pszStored, place);
    nNumber = row.nNumber;
    strText = CString(row.text.data(), static_cast<int>(row.text.size()));
}

ComboItem::ComboItem(const DRAWITEMSTRUCT& draw)
    : m_draw(draw), m_pDC(CDC::FromHandle(draw.hDC)), m_rc(draw.rcItem) {
    if (Selected()) {
        m_colors = {::GetSysColor(COLOR_HIGHLIGHTTEXT), ::GetSysColor(COLOR_HIGHLIGHT)};
    } else if (m_pDC != nullptr) {
        m_colors = {m_pDC->GetTextColor(), m_pDC->GetBkColor()};
    }
}

bool ComboItem::DrawsContent() const {
    return m_pDC != nullptr && (m_draw.itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) != 0;
}

// A strip wider than the item leaves nothing; a rectangle with its edges swapped would be filled.
CRect ComboItem::TextPlace(int nStrip) const {
    CRect rc(m_rc);
    rc.left = std::min<LONG>(rc.left + nStrip, rc.right);
    return rc;
}

void ComboItem::Fill(int nStrip) const {
    const CRect rc = TextPlace(nStrip);
    CBrush brush(m_colors.crBk);
    m_pDC->FillRect(&rc, &brush);
}

void ComboItem::DrawText(int nStrip, int nDown, std::string_view text,
                         const QVSTYLE& colors) const {
    const CRect rc = TextPlace(nStrip);
    const ColorGuard guard(*m_pDC);
    m_pDC->SetBkColor(colors.crBk);
    m_pDC->SetTextColor(colors.crText);
    DrawTextAt(*m_pDC, rc.left + kTextMargin, rc.top + nDown, text);
}

void ComboItem::DrawFocus(int nStrip) const {
    const bool bEntireWithFocus =
        (m_draw.itemAction & ODA_DRAWENTIRE) != 0 && (m_draw.itemState & ODS_FOCUS) != 0;
    if (m_pDC != nullptr && (bEntireWithFocus || (m_draw.itemAction & ODA_FOCUS) != 0)) {
        const CRect rc = TextPlace(nStrip);
        m_pDC->DrawFocusRect(&rc);
    }
}

}  // namespace qv
