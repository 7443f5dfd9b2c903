// What list boxes and combo boxes draw of an item, beside the same drawn by hand.
#include "support/box_window.h"
#include "support/picture.h"

#include <gtest/gtest.h>

namespace {

constexpr QVSTYLE kOfContext{RGB(10, 20, 200), RGB(200, 240, 250)};
constexpr QVSTYLE kStyled{RGB(200, 0, 0), RGB(0, 220, 0)};
constexpr QVSTYLE kNoBackground{RGB(200, 0, 0), 0xFFFFFFFF};
const QVSTYLE kMarked{::GetSysColor(COLOR_HIGHLIGHTTEXT), ::GetSysColor(COLOR_HIGHLIGHT)};
const QVSTYLE kDefault{::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW)};
const CSize kSheet(160, 44);
constexpr UINT kAll = ODA_DRAWENTIRE;
constexpr UINT kEmpty = static_cast<UINT>(-1);

// A context with colours of its own, and a place for an item.
class Sheet : public TextRecorder {
public:
    explicit Sheet(int nLeft = 20) : TextRecorder(kSheet), rcItem(nLeft, 10, 140, 34) {
        Fill(CRect(CPoint(0, 0), kSheet), RGB(255, 255, 0));
        SetTextColor(kOfContext.crText);
        SetBkColor(kOfContext.crBk);
    }
    CRect From(int nLeft) const { return CRect(nLeft, rcItem.top, rcItem.right, rcItem.bottom); }
    void Fill(CRect rc, COLORREF cr) {
        CBrush brush(cr);
        FillRect(&rc, &brush);
    }
    void Text(int x, int y, const char* psz, const QVSTYLE& colors) {
        const qv::ColorGuard guard(*this);
        SetTextColor(colors.crText);
        SetBkColor(colors.crBk);
        TextOut(x, y, psz, static_cast<int>(strlen(psz)));
    }
    // Draws the item through its parent, as the platform does.
    template <class Box>
    void Show(Box& box, UINT nItem, UINT nAction = kAll, UINT nState = 0) {
        const UINT nType = kIsList<Box> ? ODT_LISTBOX : ODT_COMBOBOX;
        DRAWITEMSTRUCT draw{nType, kBoxId, nItem, nAction, nState, box.m_hWnd, m_hDC, rcItem, 0};
        draw.itemData = box.GetItemData(static_cast<int>(nItem));
        box.GetParent()->SendMessage(WM_DRAWITEM, kBoxId, reinterpret_cast<LPARAM>(&draw));
        EXPECT_EQ(GetTextColor(), kOfContext.crText) << "put back";
        EXPECT_EQ(GetBkColor(), kOfContext.crBk);
    }
    bool operator==(const Sheet& other) const {
        return Picture::Of(m_hDC, kSheet) == Picture::Of(other.m_hDC, kSheet);
    }

    CRect rcItem;
};

TEST(ListBoxPaint, StylesGoOnUntilTheNext) {
    BoxWindow<OpenListBox> w(0, false);
    OpenListBox& list = *w.box;
    list.AddStyle(kStyled.crText, kStyled.crBk);
    const int tabs[] = {60, 20120};
    list.UseTabs(tabs, 2);
    list.AddBitmapString(0, "a\t\033bb\tc\td");
    list.AddBitmapString(0, "plain");
    const struct {
        UINT nItem, nState;
        int nTabs;
        const char* pszShown;  // d: the context's text, b: its background, r: red
    } kCases[] = {{0, 0, 2, "a:d b:r c:r "}, {0, ODS_SELECTED, 2, "a:b b:b c:b "},
                  {0, 0, 0, "a:d "},         {1, 0, 0, ""},  // at once, as it is
                  {1, 0, 999, "plain:d "},   {99, 0, 2, ""}};
    for (const auto& [nItem, nState, nTabs, pszShown] : kCases) {
        Sheet sheet(0);
        list.m_nTabs = nTabs;
        sheet.Show(list, nItem, kAll, nState);
        std::string str;
        for (const auto& text : sheet.texts) {
            const bool bRed = text.crText == kStyled.crText;
            str += text.str + (bRed ? ":r " : text.crText == kOfContext.crBk ? ":b " : ":d ");
        }
        EXPECT_EQ(str, pszShown);
    }
    Sheet styled(0), none(0), plain(0);
    list.m_nTabs = 2;
    styled.Show(list, 0);
    EXPECT_EQ(styled.texts[2].rc, CRect(126, 10, 134, 34));
    EXPECT_EQ(styled.texts[2].nFormat, static_cast<UINT>(DT_RIGHT | DT_NOPREFIX | DT_END_ELLIPSIS));
    list.UpdateStyle(1, kStyled.crText, kNoBackground.crBk);
    none.Show(list, 0);
    list.UpdateStyle(1, kStyled.crText, kOfContext.crBk);
    plain.Show(list, 0);
    EXPECT_TRUE(none == plain && !(none == styled)) << "-1 is no background";
}

// The image's cell is two pixels wider than the image, over the text's area.
TEST(ListBoxPaint, TheImageCellNeverShowsTheSelection) {
    BoxWindow<OpenListBox> w;
    w.box->AddBitmapString(1, "x");
    for (const UINT nAction : {ODA_DRAWENTIRE, ODA_SELECT, ODA_FOCUS}) {
        const bool bSelected = nAction == ODA_SELECT;
        const QVSTYLE selected{kOfContext.crBk, kMarked.crBk};
        Sheet shown(0), wanted(0);
        shown.Show(*w.box, 0, nAction, bSelected ? ODS_SELECTED : ODS_FOCUS);
        if (nAction == ODA_FOCUS) {
            wanted.DrawFocusRect(wanted.From(14));
        } else {
            wanted.Fill(wanted.From(12), (bSelected ? selected : kOfContext).crBk);
            wanted.Text(18, 10, "x", bSelected ? selected : kOfContext);
            wanted.Fill(CRect(0, 10, 14, 34), kOfContext.crBk);
            w.box->m_imageList.Draw(&wanted, 1, CPoint(1, 11), ILD_NORMAL);
        }
        EXPECT_TRUE(shown == wanted) << nAction;
    }
}

TEST(BitmapComboPaint, AnItemStandsWhereItBelongs) {
    constexpr const char* kTexts[] = {"plain", "styled", "zodd", "none"};
    const struct {
        UINT nItem, nAction, nState;
        int nFont, nIndent;
        int nLeft, nTextTop, nImageTop;  // of the item; what stands in it, images being 12 high
        QVSTYLE text;
        bool bFocus;
    } kItems[] = {
        {0, kAll, 0, 12, 0, 20, 10, 11, kOfContext, false},
        {1, kAll, 0, 12, 0, 20, 10, 11, kStyled, false},
        {2, kAll, 0, 12, 0, 20, 10, 11, kDefault, false},       // no such style
        {3, kAll, 0, 12, 0, 20, 10, 11, kNoBackground, false},  // asked for like any other
        {1, ODA_SELECT, ODS_SELECTED, 12, 0, 20, 10, 11, kMarked, false},
        {0, ODA_SELECT, ODS_FOCUS, 12, 0, 20, 10, 11, kOfContext, false},
        {0, kAll, 0, 7, 0, 20, 12, 11, kOfContext, false},  // a low font, a high one
        {0, kAll, 0, 17, 0, 20, 10, 13, kOfContext, false},
        {0, kAll, ODS_COMBOBOXEDIT, 7, 9, 20, 13, 12, kOfContext, false},
        {1, kAll, ODS_FOCUS, 12, 9, 32, 10, 11, kStyled, true},
        {1, ODA_FOCUS, 0, 12, 9, 32, 0, 0, {}, true},
        {kEmpty, kAll, ODS_FOCUS, 12, 9, 20, 0, 0, {}, true},
    };
    BoxWindow<OpenBitmapCombo> w;
    OpenBitmapCombo& combo = *w.box;
    combo.AddStyle(kStyled.crText, kStyled.crBk);
    combo.AddStyle(kNoBackground.crText, kNoBackground.crBk);
    for (const char* psz : {"plain", "\033bstyled", "\033zodd", "\033cnone"}) {
        combo.AddBitmapString(1, psz);
    }
    combo.SetItemData(1, 2);
    for (const auto& item : kItems) {
        combo.m_nFontHeight = item.nFont;
        combo.nIndent = item.nIndent;
        Sheet shown, wanted;
        shown.Show(combo, item.nItem, item.nAction, item.nState);
        if (item.nAction != ODA_FOCUS) {
            wanted.Fill(wanted.From(item.nLeft + 14),
                        (item.nState == ODS_SELECTED ? kMarked : kOfContext).crBk);
        }
        if (item.nTextTop != 0) {
            wanted.Text(item.nLeft + 16, item.nTextTop, kTexts[item.nItem], item.text);
            combo.m_imageList.Draw(&wanted, 1, CPoint(item.nLeft + 1, item.nImageTop), ILD_NORMAL);
        }
        if (item.bFocus) {
            wanted.DrawFocusRect(wanted.From(item.nLeft + 14));
        }
        EXPECT_TRUE(shown == wanted) << &item - kItems;
    }
    combo.nIndent = 0;
    Sheet wide, bare, wanted;
    combo.m_nBitmapWidth = 500;
    wide.Show(combo, kEmpty);
    EXPECT_TRUE(wide == wanted);
    combo.m_nBitmapHeight = combo.m_nBitmapWidth = 0;
    bare.Show(combo, static_cast<UINT>(combo.AddBitmapString(9, "bare")));
    wanted.Fill(wanted.rcItem, kOfContext.crBk);
    wanted.Text(22, 10, "bare\t9", kOfContext);
    EXPECT_TRUE(bare == wanted) << "without images the stored string";
}

// Squares of 13 pixels beside a font 12 high.
TEST(ColorComboPaint, AnItemShowsItsSquareAndItsText) {
    constexpr COLORREF kNone = RGB(90, 90, 90);  // what the context's brush left
    const struct {
        UINT nItem, nAction, nState;
        COLORREF crBox;
    } kCases[] = {{0, kAll, ODS_COMBOBOXEDIT, RGB(0, 255, 0)},
                  {0, ODA_SELECT, ODS_SELECTED, RGB(0, 255, 0)},
                  {0, ODA_FOCUS, 0, 0},
                  {1, kAll, 0, kNone},           // beyond the table
                  {2, kAll, 0, kNone},           // negative
                  {3, kAll, 0, RGB(255, 0, 0)},  // without a number: the first
                  {kEmpty, kAll, ODS_FOCUS, 0}};
    BoxWindow<OpenColorCombo> w;
    for (const char* psz : {"text\t1", "text\t3", "text\t-1", "text"}) {
        w.box->AddString(psz);
    }
    CPen pen(PS_SOLID, 1, RGB(255, 0, 255));
    CBrush brush(kNone);
    for (const auto& [nItem, nAction, nState, crBox] : kCases) {
        const QVSTYLE& colors = nState == ODS_SELECTED ? kMarked : kOfContext;
        Sheet shown, wanted;
        const qv::SelectGuard pens(shown, &pen), wantedPens(wanted, &pen);
        const qv::SelectGuard brushes(shown, &brush), wantedBrushes(wanted, &brush);
        shown.Show(*w.box, nItem, nAction, nState);
        if (nAction == ODA_FOCUS || nItem == kEmpty) {
            nItem == kEmpty ? wanted.Fill(wanted.From(36), kOfContext.crBk) : void();
            wanted.DrawFocusRect(wanted.From(36));
        } else {
            wanted.Fill(wanted.From(36), colors.crBk);
            wanted.Text(38, 10, "text", colors);
            wanted.Rectangle(21, 11, 34, 24);
            wanted.Fill(CRect(23, 13, 32, 22), crBox);
        }
        EXPECT_TRUE(shown == wanted) << nItem << ' ' << nAction;
    }
}

}  // namespace
