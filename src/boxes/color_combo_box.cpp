#include "boxes/color_combo_box.h"

#include "boxes/combo_item.h"
#include "boxes/combo_keys.h"
#include "boxes/core/color_name.h"
#include "frame/ancestor_font.h"
#include "frame/core/spoken_text.h"
#include "frame/create_window.h"
#include "frame/text_out.h"

#include <algorithm>

namespace {

constexpr int kHigherThanFont = 2;
constexpr int kHigherThanBox = 1;  // a row, and the part that shows the selected one
constexpr int kBoxMargin = 1;
constexpr int kBoxGap = 2;  // from the square to the text
constexpr int kFrame = 2;   // of the square, around its colour

}  // namespace

IMPLEMENT_DYNCREATE(QVColorComboBox, CComboBox)

BEGIN_MESSAGE_MAP(QVColorComboBox, CComboBox)
    ON_WM_MEASUREITEM()
    ON_WM_CHAR()
END_MESSAGE_MAP()

// --- Creation

BOOL QVColorComboBox::PreCreateWindow(CREATESTRUCT& cs) {
    cs.style |= CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS;
    return CComboBox::PreCreateWindow(cs);
}

int QVColorComboBox::Initialize(UINT nID, COLORREF* pColors, int nColors, CWnd* pParent) {
    bool bSetUp = false;
    if (m_hWnd != nullptr || qv::AttachToItem(*this, nID, pParent)) {
        qv::MemorySuffices([&] { bSetUp = SetUp(pColors, nColors); });
    }
    return bSetUp;
}

bool QVColorComboBox::SetUp(const COLORREF* pColors, int nColors) {
    const int nTaken = pColors != nullptr ? std::max(nColors, 0) : 0;
    m_aColors.SetSize(nTaken);
    std::copy_n(pColors, nTaken, m_aColors.GetData());
    qv::TakeNearestFont(*this);
    CalcItemHeight();
    if (m_nItemHeight != 0) {  // else the platform's own height is the better one
        SetItemHeight(-1, static_cast<UINT>(m_nItemHeight + kHigherThanBox));
    }
    return true;
}

void QVColorComboBox::CalcItemHeight() {
    if (m_nItemHeight == 0) {
        m_nItemHeight = qv::AskedFontHeight(*this);
    }
    if (m_nItemHeight != 0) {
        m_nItemHeight += kHigherThanFont;
    }
}

LRESULT QVColorComboBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return FollowMessage(message, wParam, lParam, [&] {
        return qv::HandleQuietly(m_hWnd, message,
                                 [&] { return CComboBox::WindowProc(message, wParam, lParam); });
    });
}

// --- Rows

int QVColorComboBox::InsertColorString(int nColor, int nIndex, LPCSTR pszText) {
    return qv::WithStored(
        nColor, pszText, qv::NumberPlace::Behind, CB_ERRSPACE,
        [this, nIndex](LPCSTR pszStored) { return InsertString(nIndex, pszStored); });
}

int QVColorComboBox::GetColor(int nIndex) {
    int nColor = -1;
    qv::MemorySuffices([&] {
        const CString strStored = qv::StoredRow(*this, nIndex);
        if (!strStored.IsEmpty()) {
            nColor = qv::SplitBoxRow(qv::View(strStored), qv::NumberPlace::Behind).nNumber;
        }
    });
    return nColor;
}

void QVColorComboBox::ExtractInfo(LPCSTR pszStored, int& nColor, CString& strText) const {
    qv::SplitStored(pszStored, qv::NumberPlace::Behind, nColor, strText);
}

// --- Looks

// Asked by the control's own list, whose question goes on to the parent: there is no child to look
// for, once a row.
void QVColorComboBox::OnMeasureItem(int, LPMEASUREITEMSTRUCT) {
    Default();
}

void QVColorComboBox::MeasureItem(LPMEASUREITEMSTRUCT pMeasure) {
    if (m_nItemHeight != 0) {
        pMeasure->itemHeight = static_cast<UINT>(m_nItemHeight + kHigherThanBox);
    }
}

void QVColorComboBox::GetDisplayText(int nItem, DWORD_PTR /*dwItemData*/, int /*bComboEdit*/,
                                     CString& strText) {
    int nColor;
    ExtractInfo(qv::StoredRow(*this, nItem), nColor, strText);
}

void QVColorComboBox::DrawItem(LPDRAWITEMSTRUCT pDraw) {
    qv::MemorySuffices([&] { DrawRow(*pDraw); });
}

// The strip of the square is not filled: a selection shows behind the text alone.
void QVColorComboBox::DrawRow(const DRAWITEMSTRUCT& draw) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const qv::ComboItem item(draw);
    const int nStrip = m_nItemHeight + kBoxGap;
    const bool bRow = item.HasRow() && item.DrawsContent();
    CString strText;
    int nColor = -1;
    if (bRow) {
        const int nItem = static_cast<int>(draw.itemID);
        GetDisplayText(nItem, draw.itemData, item.InEdit(), strText);
        if (watch) {
            nColor = GetColor(nItem);
        }
    }
    if (!watch) {
        return;
    }
    if (item.DrawsContent()) {
        item.Fill(nStrip);
    }
    if (bRow) {
        item.DrawText(nStrip, 0, qv::View(strText), item.Colors());
        DrawColorBox(&item.Context(), nColor,
                     item.Place().TopLeft() + CSize(kBoxMargin, kBoxMargin));
    }
    item.DrawFocus(nStrip);
}

void QVColorComboBox::DrawColorBox(CDC* pDC, int nColor, const CPoint& pt) {
    CRect rc(pt, CSize(m_nItemHeight - 1, m_nItemHeight - 1));
    // Not selected, and so without effect: the outline is the pen that the context has, which is
    // how programs choose it.
    const CPen pen(PS_SOLID, 1, ::GetSysColor(COLOR_WINDOWTEXT));
    pDC->Rectangle(&rc);
    rc.DeflateRect(kFrame, kFrame);
    if (nColor >= 0 && nColor < m_aColors.GetSize() && !rc.IsRectEmpty()) {
        CBrush brush(m_aColors[nColor]);
        pDC->FillRect(&rc, &brush);
    }
}

// --- Keys

void QVColorComboBox::OnChar(UINT nChar, UINT, UINT) {
    CString strText;
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const auto textOf = [&](int nRow) -> LPCSTR {
        GetDisplayText(nRow, GetItemData(nRow), FALSE, strText);
        return watch ? LPCSTR(strText) : nullptr;
    };
    if (!AreExpectedKeysEnabled() || !qv::TakeTypedChar(*this, m_alive, Typed(), nChar, textOf)) {
        Default();
    }
}

// --- What a screen reader hears

CString QVColorComboBox::GetAccessibleRow(int nRow) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CString strText;
    GetDisplayText(nRow, GetItemData(nRow), FALSE, strText);
    if (!watch) {
        return CString();
    }
    std::string strSpoken = qv::SpokenText(qv::View(strText), qv::StyleTable());
    const int nColor = strSpoken.empty() ? GetColor(nRow) : -1;
    if (nColor >= 0 && nColor < m_aColors.GetSize()) {
        strSpoken = qv::ColorName(m_aColors[nColor]);
    }
    return CString(strSpoken.data(), static_cast<int>(strSpoken.size()));
}
