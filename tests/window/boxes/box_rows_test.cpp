// Rows of list boxes and combo boxes: stored, read, replaced, compared, and how high they are.
#include "support/box_window.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

template <class Box>
struct BoxRows : testing::Test {};
template <class Box>
struct ImageBoxRows : testing::Test {};
using Boxes = testing::Types<OpenListBox, OpenBitmapCombo, OpenColorCombo>;
using ImageBoxes = testing::Types<OpenListBox, OpenBitmapCombo>;
TYPED_TEST_SUITE(BoxRows, Boxes);
TYPED_TEST_SUITE(ImageBoxRows, ImageBoxes);

TYPED_TEST(BoxRows, AreStringsOfThePlatform) {
    const std::string strLong(70000, 'x');
    const struct {
        int bInFront;
        std::string strStored;
        int nNumber;  // -1: there is nothing to read
        std::string strText;
    } kRows[] = {{0, "a\tb\t3", 3, "a\tb"},
                 {0, "plain", 0, "plain"},
                 {0, "", -1, "kept"},
                 {0, strLong + "\t-2", -2, strLong},
                 {1, "3\ta\tb", 3, "a\tb"}};
    for (const auto& row : kRows) {
        BoxWindow<TypeParam> w;
        TypeParam& box = *w.box;
        box.InsertString(0, row.strStored.c_str());
        if constexpr (kHasImages<TypeParam>) {
            box.SortByImageIndex(row.bInFront);
            CString str("kept");
            EXPECT_EQ(box.GetItemString(0, str) != 0, row.nNumber != -1);
            EXPECT_TRUE(row.strText == LPCSTR(str)) << str.GetLength();
            EXPECT_EQ(box.FindBitmapString(3, "A\tb"), row.nNumber == 3 ? 0 : -1);
            EXPECT_EQ(box.FindBitmapString(2, "a\tb"), -1) << "another image";
            EXPECT_EQ(box.GetImage(0), row.nNumber);
            EXPECT_EQ(box.GetImage(1), -1);
            box.AddBitmapString(3, "a\tb");
        } else if (!row.bInFront) {
            EXPECT_EQ(box.GetColor(0), row.nNumber);
            EXPECT_EQ(box.GetColor(1), -1);
        }
        InsertRow(box, 3, -1, "a\tb");
        for (int i = 1; i < box.GetCount(); ++i) {
            EXPECT_EQ(w.Stored(i), row.bInFront && kHasImages<TypeParam> ? "3\ta\tb" : "a\tb\t3");
        }
    }
}

// For 0 to 3: the plain box, and three more styles that change what is selected or where rows go.
template <class Box>
DWORD StyleOf(int n) {
    constexpr DWORD kListStyles[] = {0, LBS_MULTIPLESEL, LBS_EXTENDEDSEL, LBS_SORT};
    constexpr DWORD kComboStyles[] = {CBS_DROPDOWNLIST, CBS_SIMPLE, CBS_DROPDOWN,
                                      CBS_DROPDOWNLIST | CBS_SORT};
    return (kIsList<Box> ? kListStyles : kComboStyles)[n];
}

TYPED_TEST(ImageBoxRows, ReplacedOnesKeepTheirState) {
    for (int i = 0; i < 8; ++i) {
        BoxWindow<TypeParam> w(StyleOf<TypeParam>(i / 2));
        TypeParam& box = *w.box;
        for (int nRow = 0; nRow < 30; ++nRow) {
            box.AddBitmapString(nRow % 4, ("row " + std::to_string(10 + nRow)).c_str());
            box.SetItemData(nRow, ~DWORD_PTR{0} - static_cast<DWORD_PTR>(nRow));
        }
        box.SetCurSel(5 + i % 2);
        if constexpr (kIsList<TypeParam>) {
            box.SetSel(5);
            box.SetSel(7);
            box.SetCaretIndex(6);
        }
        const auto state = [&] {
            return w.Selection() + ' ' + std::to_string(box.GetTopIndex()) + ' ' +
                   std::to_string(box.GetCount());
        };
        const auto replace = [&](int nRow) {
            int nDone = box.SetItemString(nRow, "zz\tnew");
            if constexpr (kIsList<TypeParam>) {
                nDone &= box.SetImage(nRow, nRow % 4);
            }
            return nDone != 0;
        };
        box.SetTopIndex(3);
        const std::string strState = state();
        for (const LRESULT lRefusal : {-1, -2, -7, 0}) {
            box.lRefusal = lRefusal;
            for (const int nRow : {5, 6, 0, 29}) {
                const std::string strBefore = w.Stored(nRow);
                const std::string strNew = "zz\tnew\t" + std::to_string(nRow % 4);
                EXPECT_EQ(replace(nRow), lRefusal == 0);
                EXPECT_EQ(w.Stored(nRow), lRefusal == 0 ? strNew : strBefore);
                EXPECT_EQ(box.GetItemData(nRow), ~DWORD_PTR{0} - static_cast<DWORD_PTR>(nRow));
                EXPECT_EQ(state(), strState);
            }
        }
        box.ValidateRect(nullptr);
        EXPECT_FALSE(replace(30) || replace(-1) || box.GetUpdateRect(nullptr));
        EXPECT_TRUE(replace(5) && box.GetUpdateRect(nullptr)) << "drawn anew";
        if constexpr (kIsList<TypeParam>) {
            box.SetRedraw(FALSE);
            replace(5);
            EXPECT_FALSE(box.m_bRedraw) << "as the caller has it";
        }
    }
}

TYPED_TEST(ImageBoxRows, AreComparedByImageAndText) {
    const struct {
        int bByImage, nImage;
        const char* pszText;
        const char* pszRow;  // of image 5
        int nInList, nInCombo;
    } kCases[] = {{0, 9, "ABC", "abc", 0, 0}, {0, 9, "", "b", -1, -1},
                  {1, 10, "a", "b", 1, 1},    {1, 2, "b", "a", -1, -1},
                  {1, 5, "B", "a", 1, 1},     {0, 5, "\033ba", "a", 0, -1}};
    for (const auto& test : kCases) {
        SCOPED_TRACE(&test - kCases);
        BoxWindow<TypeParam> w, none(kPlainBox<TypeParam>, false);
        for (const auto& pBox : {w.box.get(), none.box.get()}) {
            pBox->AddStyle(0, 0);
            pBox->SortByImageIndex(test.bByImage);
            pBox->AddBitmapString(test.nImage, test.pszText);
            pBox->AddBitmapString(5, test.pszRow);
        }
        const auto ask = [&](UINT n1, UINT n2) {
            COMPAREITEMSTRUCT compare{0, kBoxId, w.box->m_hWnd, n1, 0, n2, 0, 0};
            compare.CtlType = kIsList<TypeParam> ? ODT_LISTBOX : ODT_COMBOBOX;
            return static_cast<int>(
                w.parent.SendMessage(WM_COMPAREITEM, kBoxId, reinterpret_cast<LPARAM>(&compare)));
        };
        const int nOrder = kIsList<TypeParam> ? test.nInList : test.nInCombo;
        EXPECT_EQ(ask(0, 1), nOrder);
        EXPECT_EQ(ask(1, 0), -nOrder);
        EXPECT_EQ(ask(99, 99), 0) << "of two that there are none";
        EXPECT_EQ(w.box->CompareToItem(test.nImage, test.pszText, 1), nOrder);
        EXPECT_EQ(none.box->CompareToItem(0, test.pszRow, 1), 1) << "without images it is empty";
    }
}

// What the platform makes of a height of the part that shows the selected row.
int PartHeight(CWnd& parent, UINT nHeight) {
    CComboBox combo;
    combo.Create(WS_CHILD | kComboStyle | CBS_DROPDOWNLIST, CRect(0, 0, 50, 50), &parent, 3);
    combo.SetItemHeight(-1, nHeight);
    return combo.GetItemHeight(-1);
}

// A font 12 pixels high beside images of 12; then a parent without a font.
TYPED_TEST(BoxRows, AreAsHighAsFontAndImage) {
    constexpr bool bColors = !kHasImages<TypeParam>;
    for (const DWORD dwStyle : {CBS_DROPDOWNLIST, CBS_SIMPLE, CBS_DROPDOWN}) {
        BoxWindow<TypeParam> w(kIsList<TypeParam> ? 0 : dwStyle);
        EXPECT_EQ(w.box->GetItemHeight(InsertRow(*w.box, 1, 0, "a")), bColors ? 15 : 14);
        if constexpr (!kIsList<TypeParam>) {
            EXPECT_EQ(w.box->GetItemHeight(-1), PartHeight(w.parent, bColors ? 15 : 16));
            SetUpBox(*w.box, &w.parent);
            EXPECT_EQ(w.box->GetItemHeight(-1), PartHeight(w.parent, bColors ? 17 : 16));
        }
        TypeParam other;
        EXPECT_EQ(SetUpBox(other, &w.parent, 9) + SetUpBox(other, nullptr), 0) << "no such item";
    }
    RecordingParent bare;
    TypeParam box;
    box.Create(WS_CHILD | kPlainBox<TypeParam>, CRect(0, 0, 90, 90), &bare, kBoxId);
    if constexpr (kIsList<TypeParam>) {
        SetUpBox(box, &bare, kBoxId, false);
        EXPECT_GT(box.GetItemHeight(box.AddString("a")), 0) << "the platform's";
        CFont font;
        font.CreateFont(-27, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Tahoma");
        box.SetFont(&font);
        EXPECT_EQ(box.GetItemHeight(box.AddString("b")), 29);
        EXPECT_EQ(box.Initialize(kBoxId, 4711, 0, 16, &bare), 1) << "a bitmap that is none";
    } else {
        const int nPlatform = box.GetItemHeight(-1);
        EXPECT_EQ(SetUpBox(box, &bare), 1);
        EXPECT_EQ(box.GetItemHeight(-1), bColors ? nPlatform : PartHeight(bare, 16));
    }
}

}  // namespace
