#include "boxes/bitmap_combo_box.h"

#include "boxes/combo_item.h"
#include "boxes/combo_keys.h"
#include "boxes/core/box_heights.h"
#include "boxes/core/box_order.h"
#include "common/process_text.h"
#include "frame/ancestor_font.h"
#include "frame/core/spoken_text.h"
#include "frame/create_window.h"
#include "frame/image_strip.h"
#include "frame/text_out.h"

namespace {

constexpr int kImageMargin = 1;
constexpr int kImageGap = 2;    // from the image to the text
constexpr int kEditHigher = 2;  // the part that shows the selected row, than a row
constexpr int kEditLower = 1;   // what stands in that part

}  // namespace

IMPLEMENT_DYNCREATE(QVBitmapComboBox, CComboBox)

BEGIN_MESSAGE_MAP(QVBitmapComboBox, CComboBox)
    ON_WM_MEASUREITEM()
    ON_WM_CHAR()
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

// --- Creation

BOOL QVBitmapComboBox::PreCreateWindow(CREATESTRUCT& cs) {
    cs.style |= CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS;
    return CComboBox::PreCreateWindow(cs);
}

int QVBitmapComboBox::Initialize(UINT nID, UINT nBitmapID, COLORREF crMask, int nBitmapWidth,
                                 CWnd* pParent) {
    bool bSetUp = false;
    if (m_hWnd != nullptr || qv::AttachToItem(*this, nID, pParent)) {
        qv::MemorySuffices([&] { bSetUp = SetUp(nBitmapID, crMask, nBitmapWidth); });
    }
    return bSetUp;
}

bool QVBitmapComboBox::SetUp(UINT nBitmapID, COLORREF crMask, int nBitmapWidth) {
    CSize size;
    if (!qv::LoadStrip(m_imageList, nBitmapID, nBitmapWidth, crMask, size) || size.cy == 0) {
        return false;
    }
    m_nBitmapWidth = nBitmapWidth;
    m_nBitmapHeight = size.cy;
    qv::TakeNearestFont(*this);
    CalcItemHeight();
    SetItemHeight(-1, static_cast<UINT>(m_nItemHeight + kEditHigher));
    return true;
}

void QVBitmapComboBox::CalcItemHeight() {
    if (m_nFontHeight == 0) {
        m_nFontHeight = qv::AskedFontHeight(*this);
    }
    m_nItemHeight = qv::BoxHeights{m_nFontHeight, m_nBitmapHeight}.Row();
}

LRESULT QVBitmapComboBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return FollowMessage(message, wParam, lParam, [&] {
        return qv::HandleQuietly(m_hWnd, message,
                                 [&] { return CComboBox::WindowProc(message, wParam, lParam); });
    });
}

// --- Rows

qv::NumberPlace QVBitmapComboBox::Place() const {
    return m_bSortByImageIndex ? qv::NumberPlace::InFront : qv::NumberPlace::Behind;
}

int QVBitmapComboBox::AddBitmapString(int nImage, LPCSTR pszText) {
    return qv::WithStored(nImage, pszText, Place(), CB_ERRSPACE,
                          [this](LPCSTR pszStored) { return AddString(pszStored); });
}

int QVBitmapComboBox::InsertBitmapString(int nImage, int nIndex, LPCSTR pszText) {
    return qv::WithStored(nImage, pszText, Place(), CB_ERRSPACE, [this, nIndex](LPCSTR pszStored) {
        return InsertString(nIndex, pszStored);
    });
}

int QVBitmapComboBox::FindBitmapString(int nImage, LPCSTR pszText) {
    return qv::WithStored(nImage, pszText, Place(), CB_ERR,
                          [this](LPCSTR pszStored) { return FindStringExact(-1, pszStored); });
}

int QVBitmapComboBox::GetImage(int nIndex) {
    int nImage;
    return ReadImage(nIndex, nImage) ? nImage : -1;
}

// False without memory.
bool QVBitmapComboBox::ReadImage(int nIndex, int& nImage) {
    return qv::MemorySuffices([&] {
        const CString strStored = qv::StoredRow(*this, nIndex);
        nImage = strStored.IsEmpty() ? -1 : qv::SplitBoxRow(qv::View(strStored), Place()).nNumber;
    });
}

int QVBitmapComboBox::GetItemString(int nIndex, CString& strText) {
    int nRead = 0;
    qv::MemorySuffices([&] {
        const CString strStored = qv::StoredRow(*this, nIndex);
        if (!strStored.IsEmpty()) {
            int nImage;
            ExtractInfo(strStored, nImage, strText);
            nRead = 1;
        }
    });
    return nRead;
}

int QVBitmapComboBox::SetItemString(int nIndex, LPCSTR pszText) {
    int nImage;
    if (nIndex < 0 || nIndex >= GetCount() || !ReadImage(nIndex, nImage)) {
        return 0;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    SetRedraw(FALSE);
    const bool bReplaced = watch && ReplaceRow(nIndex, nImage, pszText);
    if (watch) {
        SetRedraw(TRUE);
        Invalidate(FALSE);
    }
    return bReplaced;
}

// The new row comes before the old one goes: without room for it nothing is lost. The parent is
// asked how high the new one is and told that the old one goes, and may take anything away.
bool QVBitmapComboBox::ReplaceRow(int nIndex, int nImage, LPCSTR pszText) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const int nSelected = GetCurSel();
    const DWORD_PTR dwItemData = GetItemData(nIndex);
    const int nNew = InsertBitmapString(nImage, nIndex, pszText);
    if (nNew < 0 || !watch) {
        return false;
    }
    SetItemData(nNew, dwItemData);
    DeleteString(static_cast<UINT>(nIndex + 1));
    if (watch && (nSelected == nIndex || GetCurSel() != nSelected)) {
        SetCurSel(nSelected);
    }
    return true;
}

void QVBitmapComboBox::ExtractInfo(LPCSTR pszStored, int& nImage, CString& strText) const {
    qv::SplitStored(pszStored, Place(), nImage, strText);
}

// --- Comparing

int QVBitmapComboBox::CompareItem(LPCOMPAREITEMSTRUCT pCompare) {
    int nOrder = 0;
    qv::MemorySuffices([&] {
        int nImage = -1;
        CString strText = qv::StoredRow(*this, static_cast<int>(pCompare->itemID1));
        if (m_nBitmapWidth != 0) {
            ExtractInfo(CString(strText), nImage, strText);
        }
        nOrder = CompareToItem(nImage, strText, static_cast<int>(pCompare->itemID2));
    });
    return nOrder;
}

int QVBitmapComboBox::CompareToItem(int nImage, LPCSTR pszText, int nItem) {
    int nOrder = 0;
    qv::MemorySuffices([&] {
        int nOther = 0;
        CString strOther;
        if (m_nBitmapWidth != 0) {
            ExtractInfo(qv::StoredRow(*this, nItem), nOther, strOther);
        }
        nOrder = qv::CompareBoxRows(m_bSortByImageIndex != FALSE,
                                    {nImage, pszText != nullptr ? pszText : ""}, {nOther, strOther},
                                    [](const char* psz1, const char* psz2) {
                                        return qv::ProcessText().CompareNoCase(psz1, psz2);
                                    });
    });
    return nOrder;
}

// --- Looks

// Asked by the control's own list, whose question goes on to the parent: there is no child to look
// for, once a row.
void QVBitmapComboBox::OnMeasureItem(int, LPMEASUREITEMSTRUCT) {
    Default();
}

void QVBitmapComboBox::MeasureItem(LPMEASUREITEMSTRUCT pMeasure) {
    if (m_nItemHeight != 0) {
        pMeasure->itemHeight = static_cast<UINT>(m_nItemHeight);
    }
}

int QVBitmapComboBox::GetItemIndent(int /*nItem*/, DWORD_PTR /*dwItemData*/) {
    return 0;
}

void QVBitmapComboBox::GetDisplayText(int nItem, DWORD_PTR /*dwItemData*/, int /*bComboEdit*/,
                                      CString& strText) {
    strText = qv::StoredRow(*this, nItem);
    if (m_nBitmapHeight != 0) {
        int nImage;
        ExtractInfo(CString(strText), nImage, strText);
    }
}

void QVBitmapComboBox::DrawItem(LPDRAWITEMSTRUCT pDraw) {
    qv::MemorySuffices([&] { DrawRow(*pDraw); });
}

void QVBitmapComboBox::DrawRow(const DRAWITEMSTRUCT& draw) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    qv::ComboItem item(draw);
    const int nItem = static_cast<int>(draw.itemID);
    const bool bRow = item.HasRow() && item.DrawsContent();
    CString strText;
    int nImage = -1;
    if (bRow) {
        GetDisplayText(nItem, draw.itemData, item.InEdit(), strText);
        if (watch) {
            nImage = GetImage(nItem);
        }
    }
    if (watch && item.HasRow() && !item.InEdit()) {
        item.Indent(GetItemIndent(nItem, draw.itemData));
    }
    if (!watch) {
        return;
    }
    const qv::BoxHeights heights{m_nFontHeight, m_nBitmapHeight};
    const int nStrip = m_nBitmapWidth > 0 ? m_nBitmapWidth + kImageGap : 0;
    const int nDown = item.InEdit() ? kEditLower : 0;
    if (item.DrawsContent()) {
        item.Fill(nStrip);
    }
    if (bRow) {
        QVSTYLE colors = item.Colors();
        LPCSTR pszText = strText;
        if (HasStyle(strText)) {
            if (!item.Selected()) {
                colors = StyleColors(ParseStyle(strText));
            }
            pszText = ParseStyleText(strText);
        }
        item.DrawText(nStrip, nDown + heights.TextOffset(), pszText, colors);
        // What lies under the image stays: it is not filled.
        const CPoint ptImage(item.Place().left + kImageMargin,
                             item.Place().top + nDown + kImageMargin + heights.ImageOffset());
        m_imageList.Draw(&item.Context(), nImage, ptImage, ILD_NORMAL);
    }
    item.DrawFocus(nStrip);
}

// --- Keys

void QVBitmapComboBox::OnSysColorChange() {
    CComboBox::OnSysColorChange();
    FollowSystemColors();
    Invalidate(FALSE);
}

void QVBitmapComboBox::OnChar(UINT nChar, UINT, UINT) {
    CString strText;
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const auto textOf = [&](int nRow) -> LPCSTR {
        GetDisplayText(nRow, GetItemData(nRow), FALSE, strText);
        return watch ? ParseStyleText(strText) : nullptr;
    };
    if (!AreExpectedKeysEnabled() || !qv::TakeTypedChar(*this, m_alive, Typed(), nChar, textOf)) {
        Default();
    }
}

// --- What a screen reader hears

CString QVBitmapComboBox::GetAccessibleRow(int nRow) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CString strText;
    GetDisplayText(nRow, GetItemData(nRow), FALSE, strText);
    const std::string strSpoken =
        watch ? qv::SpokenText(qv::View(strText), m_aStyles) : std::string();
    return CString(strSpoken.data(), static_cast<int>(strSpoken.size()));
}
