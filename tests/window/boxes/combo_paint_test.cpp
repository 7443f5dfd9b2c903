// What the combo boxes draw of an item, beside the same drawn by hand.
#include "support/combo_window.h"
#include "support/list_window.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF kPaper = RGB(255, 255, 0);
constexpr COLORREF kNone = 0xFFFFFFFF;
constexpr QVSTYLE kOfContext{RGB(10, 20, 200), RGB(200, 240, 250)};
constexpr QVSTYLE kStyled{RGB(200, 0, 0), RGB(0, 220, 0)};
const QVSTYLE kMarked{::GetSysColor(COLOR_HIGHLIGHTTEXT), ::GetSysColor(COLOR_HIGHLIGHT)};
const QVSTYLE kDefault{::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW)};
const CRect kItem(20, 10, 140, 34);
const CSize kSheet(160, 44);
constexpr UINT kAll = ODA_DRAWENTIRE;
constexpr UINT kContent = ODA_DRAWENTIRE | ODA_SELECT;
constexpr UINT kEmpty = static_cast<UINT>(-1);

// A context with colours of its own that notes which background was asked for first.
class Sheet : public TextRecorder {
public:
    Sheet() : TextRecorder(kSheet) {
        FillSolidRect(CRect(CPoint(0, 0), kSheet), kPaper);
        CDC::SetTextColor(kOfContext.crText);
        CDC::SetBkColor(kOfContext.crBk);
    }
    COLORREF SetBkColor(COLORREF cr) override {
        backgrounds.push_back(cr);
        return CDC::SetBkColor(cr);
    }
    void Fill(CRect rc, COLORREF cr) {
        CBrush brush(cr);
        FillRect(&rc, &brush);
    }
    void FillFrom(int nLeft, COLORREF cr) {
        Fill(CRect(nLeft, kItem.top, kItem.right, kItem.bottom), cr);
    }
    void Text(CPoint pt, const char* psz, const QVSTYLE& colors) {
        const qv::ColorGuard guard(*this);
        CDC::SetTextColor(colors.crText);
        CDC::SetBkColor(colors.crBk);
        TextOut(pt.x, pt.y, psz, static_cast<int>(strlen(psz)));
    }
    void Focus(int nLeft) { DrawFocusRect(CRect(nLeft, kItem.top, kItem.right, kItem.bottom)); }
    // Draws the item through its parent, as the platform does.
    void Show(CComboBox& combo, UINT nItem, UINT nAction, UINT nState) {
        DRAWITEMSTRUCT draw{};
        draw.CtlType = ODT_COMBOBOX;
        draw.hwndItem = combo.m_hWnd;
        draw.hDC = m_hDC;
        draw.itemID = nItem;
        draw.itemAction = nAction;
        draw.itemState = nState;
        draw.rcItem = kItem;
        draw.itemData = combo.GetItemData(static_cast<int>(nItem));
        ::SendMessage(combo.GetParent()->m_hWnd, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
        EXPECT_EQ(GetTextColor(), kOfContext.crText) << "put back";
        EXPECT_EQ(GetBkColor(), kOfContext.crBk);
    }
    void ExpectAs(const Sheet& wanted) const {
        for (int i = 0; i < kSheet.cx * kSheet.cy; ++i) {
            const int x = i % kSheet.cx, y = i / kSheet.cx;
            ASSERT_EQ(GetPixel(x, y), wanted.GetPixel(x, y)) << "at " << x << ", " << y;
        }
    }

    std::vector<COLORREF> backgrounds;
};

class OpenBitmapCombo : public QVBitmapComboBox {
public:
    using QVBitmapComboBox::m_imageList;
    using QVBitmapComboBox::m_nBitmapHeight;
    using QVBitmapComboBox::m_nBitmapWidth;
    using QVBitmapComboBox::m_nFontHeight;
    int nIndent = 0;

protected:
    int GetItemIndent(int nItem, DWORD_PTR dwItemData) override {
        return nIndent != 0 ? nIndent + nItem + static_cast<int>(dwItemData)
                            : QVBitmapComboBox::GetItemIndent(nItem, dwItemData);
    }
};

constexpr const char* kTexts[] = {"plain", "styled", "zodd"};

TEST(BitmapComboPaint, AnItemStandsWhereItBelongs) {
    const struct {
        const char* pszName;
        UINT nItem, nAction, nState;
        int nFont, nIndent;
        int nLeft, nTextTop, nImageTop;  // of the item; what stands in it, images being 12 high
        QVSTYLE text;
        bool bFocus;
    } kItems[] = {
        {"plain", 0, kAll, 0, 12, 0, 20, 10, 11, kOfContext, false},
        {"styled", 1, kAll, 0, 12, 0, 20, 10, 11, kStyled, false},
        {"no such style", 2, kAll, 0, 12, 0, 20, 10, 11, kDefault, false},
        {"selected", 0, ODA_SELECT, ODS_SELECTED, 12, 0, 20, 10, 11, kMarked, false},
        {"both", 1, kAll, ODS_SELECTED, 12, 0, 20, 10, 11, kMarked, false},
        {"with focus", 0, kAll, ODS_FOCUS, 12, 0, 20, 10, 11, kOfContext, true},
        {"focus comes", 0, ODA_FOCUS, 0, 12, 0, 20, 0, 0, {}, true},
        {"focus stays", 0, ODA_SELECT, ODS_FOCUS, 12, 0, 20, 10, 11, kOfContext, false},
        {"low font", 0, kAll, 0, 7, 0, 20, 12, 11, kOfContext, false},
        {"high font", 0, kAll, 0, 17, 0, 20, 10, 13, kOfContext, false},
        {"edit part", 0, kAll, ODS_COMBOBOXEDIT, 7, 9, 20, 13, 12, kOfContext, false},
        {"indented", 1, kAll, ODS_FOCUS, 12, 9, 32, 10, 11, kStyled, true},
        {"indented focus", 1, ODA_FOCUS, 0, 12, 9, 32, 0, 0, {}, true},
        {"empty", kEmpty, kAll, ODS_FOCUS, 12, 9, 20, 0, 0, {}, true},
    };
    ComboWindow<OpenBitmapCombo> w;
    const int nStyle = w.combo.AddStyle(kStyled.crText, kStyled.crBk);
    w.combo.AddBitmapString(1, kTexts[0]);
    w.combo.SetItemData(w.combo.AddBitmapString(2, w.combo.MakeStyleText(kTexts[1], nStyle)), 2);
    w.combo.AddBitmapString(1, "\033zodd");
    for (const auto& item : kItems) {
        SCOPED_TRACE(item.pszName);
        w.combo.m_nFontHeight = item.nFont;
        w.combo.nIndent = item.nIndent;
        Sheet shown, wanted;
        shown.Show(w.combo, item.nItem, item.nAction, item.nState);
        if ((item.nAction & kContent) != 0) {
            wanted.FillFrom(item.nLeft + 14,
                            ((item.nState & ODS_SELECTED) != 0 ? kMarked : kOfContext).crBk);
        }
        if (item.nTextTop != 0) {
            wanted.Text(CPoint(item.nLeft + 16, item.nTextTop), kTexts[item.nItem], item.text);
            w.combo.m_imageList.Draw(&wanted, item.nItem == 1 ? 2 : 1,
                                     CPoint(item.nLeft + 1, item.nImageTop), ILD_NORMAL);
        }
        if (item.bFocus) {
            wanted.Focus(item.nLeft + 14);
        }
        shown.ExpectAs(wanted);
    }
    w.combo.UpdateStyle(nStyle, kStyled.crText, kNone);
    Sheet sheet, wide, nothing;
    sheet.Show(w.combo, 1, kAll, 0);
    EXPECT_EQ(sheet.backgrounds.front(), kNone) << "asked for like any other";
    w.combo.m_nBitmapWidth = 500;
    wide.Show(w.combo, kEmpty, kAll, 0);
    wide.ExpectAs(nothing);
}

TEST(BitmapComboPaint, WithoutImagesTheStoredStringShows) {
    ComboWindow<OpenBitmapCombo> w;
    w.combo.AddBitmapString(9, "a");
    w.combo.m_nBitmapHeight = w.combo.m_nBitmapWidth = 0;
    Sheet shown, wanted;
    shown.Show(w.combo, 0, kAll, 0);
    wanted.FillFrom(20, kOfContext.crBk);
    wanted.Text(CPoint(22, 10), "a\t9", kOfContext);
    shown.ExpectAs(wanted);
}

// Squares of 13 pixels beside a font 12 high.
TEST(ColorComboPaint, AnItemShowsItsSquareAndItsText) {
    const struct {
        UINT nItem, nAction, nState;
        COLORREF crBox;  // kNone: what the context's brush left
    } kCases[] = {
        {0, kAll, 0, RGB(0, 255, 0)},
        {0, ODA_SELECT, ODS_SELECTED, RGB(0, 255, 0)},
        {0, kAll, ODS_FOCUS | ODS_COMBOBOXEDIT, RGB(0, 255, 0)},
        {0, ODA_FOCUS, 0, 0},
        {1, kAll, 0, kNone},           // beyond the table
        {2, kAll, 0, kNone},           // negative
        {3, kAll, 0, RGB(255, 0, 0)},  // without a number: the first
        {kEmpty, kAll, ODS_FOCUS, 0},
    };
    ComboWindow<QVColorComboBox> w;
    for (const int nColor : {1, 3, -1}) {
        w.combo.InsertColorString(nColor, -1, "text");
    }
    w.combo.AddString("text");
    CPen pen(PS_SOLID, 1, RGB(255, 0, 255));
    CBrush brush(RGB(90, 90, 90));
    const auto expect = [&](UINT nItem, UINT nAction, UINT nState, COLORREF crBox) {
        const QVSTYLE& colors = (nState & ODS_SELECTED) != 0 ? kMarked : kOfContext;
        Sheet shown, wanted;
        const qv::SelectGuard pens(shown, &pen), wantedPens(wanted, &pen);
        const qv::SelectGuard brushes(shown, &brush), wantedBrushes(wanted, &brush);
        shown.Show(w.combo, nItem, nAction, nState);
        if (nAction != ODA_FOCUS) {
            wanted.FillFrom(36, colors.crBk);
        }
        if (nAction != ODA_FOCUS && nItem != kEmpty) {
            wanted.Text(CPoint(38, 10), "text", colors);
            wanted.Rectangle(21, 11, 34, 24);
            if (crBox != kNone) {
                wanted.Fill(CRect(23, 13, 32, 22), crBox);
            }
        }
        if (nAction == ODA_FOCUS || (nState & ODS_FOCUS) != 0) {
            wanted.Focus(36);
        }
        shown.ExpectAs(wanted);
    };
    for (const auto& test : kCases) {
        SCOPED_TRACE(&test - kCases);
        expect(test.nItem, test.nAction, test.nState, test.crBox);
    }
}

// A table that is none, whatever its length; and rows that no font gave a height.
TEST(ColorComboPaint, WithoutColorsOrFontTheSquareIsEmpty) {
    RecordingParent parent(CSize(100, 100));
    QVColorComboBox combo;
    combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 90, 90), &parent, kComboId);
    for (COLORREF* pColors : {static_cast<COLORREF*>(nullptr), g_aComboColors}) {
        EXPECT_EQ(combo.Initialize(kComboId, pColors, pColors == nullptr ? 5 : -3, &parent), 1);
        combo.InsertColorString(0, 0, "text");
        Sheet shown, wanted;
        shown.Show(combo, 0, kAll, 0);
        wanted.FillFrom(22, kOfContext.crBk);
        wanted.Text(CPoint(24, 10), "text", kOfContext);
        shown.ExpectAs(wanted);
    }
}

}  // namespace
