// Rows of the combo boxes: what is stored, read, replaced, compared, and how high they are.
#include "combo_test_ids.h"
#include "support/combo_window.h"

#include <gtest/gtest.h>

namespace {

// Refuses to insert.
class BitmapCombo : public QVBitmapComboBox {
public:
    int nRefused = 0;  // what an insertion gives

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == CB_INSERTSTRING && nRefused < 0
                   ? nRefused
                   : QVBitmapComboBox::WindowProc(message, wParam, lParam);
    }
};

TEST(BitmapComboRows, OneStringHoldsImageAndText) {
    const struct {
        int bInFront;
        const char* pszStored;
        int nImage;  // -1: there is nothing to read
        const char* pszText;
    } kRows[] = {{0, "a\tb\t3", 3, "a\tb"},
                 {0, "plain", 0, "plain"},
                 {0, "", -1, "kept"},
                 {1, "3\ta\tb", 3, "a\tb"},
                 {1, "a\t3", 0, "3"}};
    ComboWindow<BitmapCombo> w;
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.pszStored);
        w.combo.SortByImageIndex(row.bInFront);
        w.combo.InsertString(0, row.pszStored);
        CString str("kept");
        EXPECT_EQ(w.combo.GetImage(0), row.nImage);
        EXPECT_EQ(w.combo.GetItemString(0, str) != 0, row.nImage != -1);
        EXPECT_STREQ(str, row.pszText);
        if (row.nImage == 3) {
            EXPECT_EQ(w.combo.FindBitmapString(3, "A\tb"), 0);
            EXPECT_EQ(w.combo.FindBitmapString(2, "a\tb"), CB_ERR) << "another image";
            EXPECT_EQ(w.Stored(w.combo.AddBitmapString(3, "a\tb")), row.pszStored);
            EXPECT_EQ(w.Stored(w.combo.InsertBitmapString(3, 0, "a\tb")), row.pszStored);
        }
        EXPECT_EQ(w.combo.GetImage(-1), -1);
    }
    const std::string strLong(70000, 'x');
    CString str;
    w.combo.GetItemString(w.combo.AddBitmapString(1, strLong.c_str()), str);
    EXPECT_TRUE(strLong == static_cast<LPCSTR>(str)) << str.GetLength();
}

TEST(BitmapComboRows, AReplacedRowKeepsItsState) {
    for (const DWORD dwStyle : {CBS_DROPDOWNLIST, CBS_SIMPLE, CBS_DROPDOWNLIST | CBS_SORT}) {
        for (const int nSelected : {-1, 0, 1, 2}) {
            ComboWindow<BitmapCombo> w(dwStyle);
            for (const char* psz : {"a", "b", "c"}) {
                const int nRow = w.combo.AddBitmapString(2, psz);
                w.combo.SetItemData(nRow, ~DWORD_PTR{0} - static_cast<DWORD_PTR>(nRow));
            }
            w.combo.SetCurSel(nSelected);
            const auto expect = [&](const char* pszMiddle) {
                EXPECT_EQ(w.combo.GetCount(), 3);
                EXPECT_EQ(w.Stored(0) + w.Stored(1) + w.Stored(2),
                          "a\t2" + std::string(pszMiddle) + "\t2c\t2");
                EXPECT_EQ(w.combo.GetItemData(1), ~DWORD_PTR{0} - 1);
                EXPECT_EQ(w.combo.GetItemData(2), ~DWORD_PTR{0} - 2);
                EXPECT_EQ(w.combo.GetCurSel(), nSelected);
            };
            for (const int nError : {CB_ERR, CB_ERRSPACE, -9}) {
                w.combo.nRefused = nError;
                EXPECT_EQ(w.combo.SetItemString(1, "x"), 0);
                expect("b");
            }
            w.combo.nRefused = 0;
            w.combo.ValidateRect(nullptr);
            EXPECT_EQ(w.combo.SetItemString(-1, "x") + w.combo.SetItemString(3, "x"), 0);
            EXPECT_FALSE(w.combo.GetUpdateRect(nullptr));
            EXPECT_EQ(w.combo.SetItemString(1, "zz"), 1);
            expect("zz");
            EXPECT_TRUE(w.combo.GetUpdateRect(nullptr)) << "drawn anew";
        }
    }
}

TEST(BitmapComboRows, AreComparedByImageAndText) {
    const struct {
        int bByImage, nImage;
        const char* pszText;
        const char* pszRow;  // of image 5
        int nOrder, nWithoutImages;
    } kCases[] = {{0, 9, "ABC", "abc", 0, 1},       {0, 9, "", "b", -1, 0},
                  {1, 10, "a", "b", 1, 1},          {1, 2, "b", "a", -1, 1},
                  {1, 5, "B", "a", 1, 1},           {0, 5, "\033ba", "a", -1, 1},
                  {0, 5, "\033ba", "\033ca", -1, 1}};
    FontParent parent(CSize(200, 200));
    for (const auto& test : kCases) {
        SCOPED_TRACE(&test - kCases);
        QVBitmapComboBox combo;
        combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 50, 50), &parent, kComboId);
        combo.AddBitmapString(test.nImage, test.pszText);
        combo.AddBitmapString(5, test.pszRow);
        EXPECT_EQ(combo.Initialize(kComboId, 9999, 0, 12, &parent), 0) << "no such bitmap";
        EXPECT_EQ(combo.CompareToItem(0, test.pszText, 1), test.nWithoutImages);
        EXPECT_EQ(SetUpCombo(combo, &parent), 1) << "a second attempt";
        combo.SortByImageIndex(test.bByImage);
        if (test.bByImage) {
            combo.ResetContent();
            combo.AddBitmapString(test.nImage, test.pszText);
            combo.AddBitmapString(5, test.pszRow);
        }
        EXPECT_EQ(combo.CompareToItem(test.nImage, test.pszText, 1), test.nOrder);
        COMPAREITEMSTRUCT compare{ODT_COMBOBOX, kComboId, combo.m_hWnd, 0, 0, 1, 0, 0};
        EXPECT_EQ(static_cast<int>(parent.SendMessage(WM_COMPAREITEM, kComboId,
                                                      reinterpret_cast<LPARAM>(&compare))),
                  test.nOrder);
        compare.itemID1 = compare.itemID2 = static_cast<UINT>(-1);
        EXPECT_EQ(combo.CompareItem(&compare), 0) << "of two that there are none";
    }
}

TEST(ColorComboRows, HoldTheNumberOfTheirColor) {
    ComboWindow<QVColorComboBox> w;
    const std::pair<int, const char*> kStored[] = {
        {3, "Red\t3"}, {-2, "a\tb\t-2"}, {0, "plain"}, {-1, ""}};
    for (const auto& [nColor, pszStored] : kStored) {
        w.combo.InsertString(0, pszStored);
        EXPECT_EQ(w.combo.GetColor(0), nColor) << pszStored;
    }
    EXPECT_EQ(w.Stored(w.combo.InsertColorString(-2, 1, "a\tb")), "a\tb\t-2");
    EXPECT_EQ(w.combo.GetColor(99), -1);
}

// What the platform makes of a height of the part that shows the selected row.
int PartHeight(CWnd& parent, UINT nHeight) {
    CComboBox combo;
    combo.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS,
                 CRect(0, 0, 50, 50), &parent, 3);
    combo.SetItemHeight(-1, nHeight);
    const int nPart = combo.GetItemHeight(-1);
    combo.DestroyWindow();
    return nPart;
}

// A font 12 pixels high beside images of 12.
TEST(ComboHeights, FollowFontAndImageInEachKindOfCombo) {
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_COMBOS));
    for (const UINT nID : {IDC_COMBO_LIST, IDC_COMBO_SIMPLE, IDC_COMBO_EDIT}) {
        SCOPED_TRACE(nID);
        QVBitmapComboBox combo;
        EXPECT_EQ(SetUpCombo(combo, &dialog, 9) + SetUpCombo(combo, nullptr, nID), 0);
        ASSERT_EQ(SetUpCombo(combo, &dialog, nID), 1);
        EXPECT_EQ(combo.GetItemHeight(combo.AddBitmapString(1, "a")), 14);
        EXPECT_EQ(combo.GetItemHeight(-1), PartHeight(dialog, 16));
        combo.UnsubclassWindow();

        QVColorComboBox colors;
        ASSERT_EQ(SetUpCombo(colors, &dialog, nID), 1);
        EXPECT_EQ(colors.GetItemHeight(colors.InsertColorString(0, 0, "a")), 15);
        EXPECT_EQ(colors.GetItemHeight(-1), PartHeight(dialog, 15));
        SetUpCombo(colors, &dialog, nID);
        EXPECT_EQ(colors.GetItemHeight(-1), PartHeight(dialog, 17)) << "by 2 at each call";
    }
}

TEST(ComboHeights, WithoutAnyFontTheImagesAlone) {
    RecordingParent parent(CSize(200, 200));
    QVBitmapComboBox bitmaps;
    bitmaps.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 90, 90), &parent, 1);
    ASSERT_EQ(SetUpCombo(bitmaps, &parent), 1);
    EXPECT_EQ(bitmaps.GetItemHeight(-1), PartHeight(parent, 16));
    QVColorComboBox colors;
    colors.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 90, 90), &parent, 2);
    const int nBefore = colors.GetItemHeight(-1);
    ASSERT_EQ(SetUpCombo(colors, &parent), 1);
    EXPECT_EQ(colors.GetItemHeight(-1), nBefore) << "the platform's";
}

}  // namespace
