#include "support/list_window.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/picture.h"
#include "support/real_input.h"
#include "support/test_app.h"

#include <afxwin.h>

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>

namespace {

constexpr int kMany = 100000;
constexpr int kMillion = 1000000;

// Rows that count upwards in column 0 and in turns of four in column 1.
class Counting : public QVRowSource {
public:
    void GetRow(int nRow, QVLISTROW& row) override {
        ++asked[nRow];
        row.strText.Format("row %07d\t%d\t%s", nRow, nRow % 4, nRow % 3 == 0 ? "\033bst" : "pl");
        row.nImage = nRow % 2;
        row.nState = INDEXTOSTATEIMAGEMASK(1u + static_cast<UINT>(nRow) % 2);
        if (act) {
            act(nRow);
        }
    }
    void PrepareRows(const int* pRows, int nRows) override {
        prepared.assign(pRows, pRows + nRows);
        ++nPrepared;
    }

    std::map<int, int> asked;
    std::vector<int> prepared;
    int nPrepared = 0;
    std::function<void(int nRow)> act;
};

struct Window : ListWindow<QVVirtualListCtrl> {
    explicit Window(int nRows, const char* pszHeaders = "a\tb\tc", bool bImages = false)
        : ListWindow(pszHeaders, bImages) {
        list.ModifyStyle(LVS_SINGLESEL, 0);
        list.AddStyle(RGB(255, 0, 0), RGB(0, 255, 0));
        list.SetRowSource(&source);
        list.SetRowCount(nRows);
    }
    ~Window() { list.DestroyWindow(); }
    // The rows of the data at the first items, the selected ones, the focus and the top.
    std::string State() {
        std::string str;
        for (int i = 0; i < 6 && i < list.GetItemCount(); ++i) {
            str += std::to_string(list.DataRow(i)) + " ";
        }
        for (int i = -1; (i = list.GetNextItem(i, LVNI_SELECTED)) != -1;) {
            str += "s" + std::to_string(list.DataRow(i)) + " ";
        }
        return str + "f" + std::to_string(list.DataRow(list.GetNextItem(-1, LVNI_FOCUSED))) + " t" +
               std::to_string(list.DataRow(list.GetTopIndex()));
    }
    Counting source;
};

TEST(VirtualList, AsksOnceAPaintForEachRowInViewAndForNoOther) {
    for (const int nRows : {0, 1, 100, kMillion}) {
        Window w(nRows, "a\tb\tc", true);
        for (const int nTop : {0, 50, nRows - 1}) {
            w.list.EnsureVisible(std::min(nTop, nRows - 1), FALSE);
            w.list.UpdateWindow();
            w.source.asked.clear();
            Picture::Fresh(w.list);
            EXPECT_LE(w.source.asked.size(), static_cast<size_t>(w.list.GetCountPerPage() + 1));
            EXPECT_GE(w.source.asked.size(),
                      static_cast<size_t>(std::min(nRows, w.list.GetCountPerPage())));
            for (const auto& [nRow, nTimes] : w.source.asked) {
                EXPECT_EQ(nTimes, 1) << nRow;
            }
        }
    }
}

TEST(VirtualList, MoreRowsAreShownInOnePiece) {
    Window w(0);
    const HWND hHeader = w.list.GetHeaderCtrl()->m_hWnd;
    const auto headingsDue = [&] {
        CRect rc(0, 0, 0, 0);
        ::GetUpdateRect(hHeader, &rc, FALSE);
        return rc;
    };
    const LONG nColumns = w.list.GetColWidth(0, nullptr) * 3;
    for (const bool bDue : {false, true}) {
        w.list.SetRowCount(0);
        Picture::Fresh(w.list);
        w.source.asked.clear();
        w.source.nPrepared = 0;
        bDue ? ::InvalidateRect(hHeader, nullptr, TRUE) : FALSE;
        w.list.SetRowCount(kMillion);
        EXPECT_EQ(headingsDue().left, bDue ? 0 : nColumns) << "those that are there stay";
        EXPECT_FALSE(headingsDue().IsRectEmpty()) << "the scroll bar took some of their space";
        const Picture shown = Picture::OfClient(w.list);
        EXPECT_EQ(w.source.nPrepared, 1);
        EXPECT_EQ(w.source.asked[0], 1);
        EXPECT_TRUE(shown == Picture::Fresh(w.list));
    }
    w.list.SetRowCount(kMillion + 1);
    EXPECT_TRUE(headingsDue().IsRectEmpty());
    w.list.UpdateWindow();
    w.list.SetRedraw(FALSE);
    w.list.SetRowCount(kMillion + 2);
    EXPECT_FALSE(w.list.GetUpdateRect(nullptr)) << "who turned redraw off turns it on";
    w.list.SetRedraw(TRUE);
    CButton button;
    button.Create("in the list", WS_CHILD | WS_VISIBLE, CRect(50, 50, 90, 70), &w.list, 1);
    w.list.SetRowCount(kMillion + 3);
    EXPECT_TRUE(button.GetUpdateRect(nullptr));
}

TEST(VirtualList, LooksAsAListThatKeepsTheSameRows) {
    constexpr int kRows = 60;
    Window w(kRows, "a\tb\tc", true);
    ListWindow<QVSortingListCtrl> kept("a\tb\tc", true);
    kept.list.ModifyStyle(LVS_SINGLESEL, 0);
    kept.list.AddStyle(RGB(255, 0, 0), RGB(0, 255, 0));
    for (int nRow = 0; nRow < kRows; ++nRow) {
        QVLISTROW row;
        w.source.GetRow(nRow, row);
        kept.list.InsertBitmapString(row.nImage, -1, row.strText);
    }
    for (const bool bBelow : {false, true}) {
        for (QVSortingListCtrl* pList : {static_cast<QVSortingListCtrl*>(&w.list),
                                         static_cast<QVSortingListCtrl*>(&kept.list)}) {
            bBelow ? (void)pList->EnsureVisible(kRows - 1, FALSE)
                   : (void)pList->SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
            pList->SetColFormat(1, LVCFMT_RIGHT);
        }
        EXPECT_TRUE(Picture::Fresh(w.list) == Picture::Fresh(kept.list)) << bBelow;
    }
    EXPECT_EQ(w.Rows(), kept.Rows());
}

TEST(VirtualList, SelectionFocusAndTopStayWithTheirRows) {
    Window w(kMany);
    w.list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    w.list.SetItemState(6, LVIS_SELECTED, LVIS_SELECTED);
    w.parent.Forget();
    EXPECT_TRUE(w.list.SortByColumn(1, TRUE));
    EXPECT_EQ(w.State(), "0 4 8 12 16 20 s1 s6 f1 t0");
    EXPECT_TRUE(w.list.SortByColumn(1, FALSE)) << "rows of one rank stay in turn";
    EXPECT_EQ(w.State(), "3 7 11 15 19 23 s6 s1 f1 t3");
    EXPECT_EQ(w.list.ItemOfRow(7), 1);
    w.list.SetRowCount(8);
    EXPECT_EQ(w.State(), "3 7 2 6 1 5 s6 s1 f1 t3") << "the others stand as they did";
    w.list.SetRowCount(9);
    EXPECT_EQ(w.list.DataRow(8), 8);
    w.list.SetRowCount(6);
    EXPECT_EQ(w.State(), "3 2 1 5 0 4 s1 f1 t3") << "a row that went is selected no more";
    w.list.RestoreOrder();
    EXPECT_EQ(w.State(), "0 1 2 3 4 5 s1 f1 t0");
    EXPECT_EQ(w.parent.Count(LVN_ITEMCHANGED), 0);
    w.list.SetRowCount(kMany);
    w.list.EnsureVisible(500, FALSE);
    const int nTop = w.list.GetTopIndex();
    w.list.SetRowCount(kMany - 5);
    EXPECT_EQ(w.list.GetTopIndex(), nTop);
    w.list.SaveSelections();
    w.list.SelectItem(-1);
    w.list.SortByColumn(0, FALSE);
    w.list.RestoreSelections();
    EXPECT_EQ(w.list.GetSelectedItem(), kMany - 5 - 2) << "by its item data, which are its row";
}

TEST(VirtualList, ReadsForASortWhatIsNotKnownYet) {
    Window w(1000);
    w.list.SetRedraw(FALSE);
    const auto readBy = [&](const std::function<void()>& act) {
        w.source.asked.clear();
        act();
        return w.source.asked.size();
    };
    EXPECT_EQ(readBy([&] { w.list.SortOnHeader(1); }), 1000u);
    EXPECT_EQ(readBy([&] { w.list.SortOnHeader(1); }), 0u);
    EXPECT_EQ(w.list.DataRow(0), 3) << "a second click: descending";
    EXPECT_EQ(readBy([&] { w.list.ReSort(); }), 0u);
    w.list.RowsChanged();
    EXPECT_EQ(readBy([&] { w.list.ReSort(); }), 1000u);
    EXPECT_EQ(w.list.DataRow(0), 3) << "and stays so";
    w.source.act = [](int nRow) { nRow == 500 ? throw 5 : void(); };
    EXPECT_EQ(readBy([&] { w.list.SortOnHeader(0); }), 501u);
    EXPECT_EQ(w.list.DataRow(0), 3) << "a sort that failed moves nothing";
}

TEST(VirtualList, FindsByTheVisibleTextAndByKeys) {
    Window w(kMany);
    w.list.SortByColumn(0, FALSE);
    const struct {
        UINT nFlags;
        const char* psz;
        int nStart;
        int nRow;
    } kCases[] = {{LVFI_STRING, "ROW 0099990", -1, 99990},
                  {LVFI_STRING, "row 009999", -1, -1},
                  {LVFI_PARTIAL, "row 009998", -1, 99989},
                  {LVFI_PARTIAL, "row 009998", 10, 99988},
                  {LVFI_STRING, "row 0099990", 9, -1},
                  {LVFI_STRING | LVFI_WRAP, "row 0099999", 99990, 99999}};
    for (const auto& c : kCases) {
        LVFINDINFO info{c.nFlags, c.psz, 0, {}, 0};
        EXPECT_EQ(w.list.DataRow(w.list.FindItem(&info, c.nStart)), c.nRow) << c.psz << c.nStart;
    }
    LVFINDINFO info{LVFI_PARAM, nullptr, 77, {}, 0};
    EXPECT_EQ(w.list.FindItem(&info), kMany - 78);
    w.list.SetRowCount(100);
    w.list.RestoreOrder();
    w.list.SetFocus();
    w.list.SendMessage(WM_CHAR, 'R', 1);
    EXPECT_EQ(w.list.GetNextItem(-1, LVNI_FOCUSED), 0);
    EXPECT_EQ(w.list.GetItemText(42, 1), "2") << "who asks the control gets the same";
    EXPECT_EQ(w.list.GetCheck(43), TRUE);
    w.list.SetRowCount(kMany);
    w.list.SortByColumn(0, FALSE);
    Picture::Fresh(w.list);
    EXPECT_EQ(w.source.prepared.front(), w.list.DataRow(w.list.GetTopIndex()));
}

TEST(VirtualList, KeepsNoRowsOfItsOwn) {
    Window w(3);
    const std::string strBefore = w.Rows();
    EXPECT_EQ(w.list.InsertItem(0, "x"), -1);
    EXPECT_EQ(w.list.InsertBitmapString(0, 0, "x"), -1);
    EXPECT_EQ(w.list.AddBitmapString(0, "x", FALSE), -1);
    EXPECT_FALSE(w.list.SetItemString(0, "x") || w.list.SetItemText(0, 1, "x") ||
                 w.list.SetImage(0, 3) || w.list.DeleteItem(0) || w.list.SetItemData(0, 7));
    EXPECT_EQ(w.Rows(), strBefore);
    EXPECT_TRUE(w.list.DeleteAllItems());
    EXPECT_EQ(w.list.GetItemCount(), 0);
    QVVirtualListCtrl other;
    CListCtrl plain;
    plain.Create(WS_CHILD, CRect(), &w.parent, 5);
    EXPECT_FALSE(other.Initialize(5, &w.parent))
        << "a control that keeps rows cannot be told not to";
    EXPECT_EQ(other.m_hWnd, nullptr);
}

// What a source may do when it is asked, in everything that asks it.
using Subject = std::unique_ptr<Mortal<QVVirtualListCtrl>>;
const std::pair<const char*, std::function<bool(QVVirtualListCtrl&)>> kAsking[] = {
    {"paint", [](auto& l) { return l.RedrawWindow(), false; }},
    {"read",
     [](auto& l) {
         CString str;
         return l.GetItemString(3, str) != FALSE;
     }},
    {"image", [](auto& l) { return l.GetImage(3), false; }},
    {"sort", [](auto& l) { return l.SortByColumn(1, FALSE) != FALSE; }},
    {"export", [](auto& l) { return l.ExportData("NUL", ',') != FALSE; }},
    {"find",
     [](auto& l) {
         LVFINDINFO info{LVFI_STRING, "x", 0, {}, 0};
         return l.FindItem(&info) != -1;
     }},
    {"text", [](auto& l) { return l.GetItemText(3, 0), false; }},
    {"print",
     [](auto& l) {
         TextRecorder dc;
         l.CalcPrintCols(&dc, 300);
         return l.PrintItems(&dc, 0u, 40u, CRect(0, 0, 99, 999)) == 41;
     }},
    {"size", [](auto& l) { return l.SetWindowPos(nullptr, 0, 0, 250, 90, SWP_NOMOVE), false; }}};
const std::pair<bool, std::function<void(Subject&)>> kActs[] = {  // true: no result can be had
    {true, [](Subject& p) { p.reset(); }},
    {true, [](Subject& p) { p->DestroyWindow(); }},
    {true, [](Subject&) { AfxThrowMemoryException(); }},
    {true, [](Subject&) { AfxThrowUserException(); }},
    {true, [](Subject&) { throw std::string("any"); }},
    {false, [](Subject& p) { p->SetRowCount(2); }},
    {false, [](Subject& p) { p->SetRowCount(0), p->SetRowCount(kMillion); }},
    {false, [](Subject& p) { p->RowsChanged(), p->RedrawWindow(); }},
    {false, [](Subject& p) { p->SortByColumn(0, FALSE), p->RestoreOrder(); }},
    {false, [](Subject& p) {
         CString str;
         p->GetItemString(1, str);
     }}};

TEST(VirtualList, ASourceMayDoAnythingWhenItIsAsked) {
    TheTestApp().Forget();
    for (const auto& [pszName, ask] : kAsking) {
        for (size_t nAct = 0; nAct < std::size(kActs); ++nAct) {
            for (const bool bHeaders : {true, false}) {
                SCOPED_TRACE(testing::Message() << pszName << nAct);
                FontParent parent(CSize(300, 200));
                Counting source;
                Subject pList(new Mortal<QVVirtualListCtrl>);
                pList->Create(kListId, CRect(0, 0, 300, 200), &parent);
                bHeaders ? pList->AddHeader("a\tb\tc", lcdtNumber) : void();
                pList->SetRowSource(&source);
                pList->SetRowCount(50);
                pList->SortByColumn(0, TRUE);
                int nAsked = 0;
                source.act = [&](int) { nAsked++ == 0 ? kActs[nAct].second(pList) : void(); };
                EXPECT_FALSE(ask(*pList) && kActs[nAct].first);
                EXPECT_TRUE(nAsked > 0 || bHeaders);
            }
        }
    }
    EXPECT_TRUE(TheTestApp().m_exceptions.empty());
}

// In one parent for all of them: a window of its own on the screen takes longest to make.
TEST(VirtualListMonkey, SurvivesAnyOrderAndKeepsNoHandles) {
    const CSize kSize(400, 200);
    FontParent parent(kSize);
    Counting source;
    std::unique_ptr<OpenList<QVVirtualListCtrl>> p;
    const auto make = [&] {
        p = std::make_unique<OpenList<QVVirtualListCtrl>>();
        p->Create(kListId, CRect(CPoint(0, 0), kSize), kListImages, kListImageMask, kListImageWidth,
                  &parent);
        p->AddHeader("a\tb\tc", lcdtString);
        p->ModifyStyle(LVS_SINGLESEL, 0);
        p->AddStyle(RGB(255, 0, 0), RGB(0, 255, 0));
        source.act = nullptr;
        source.asked.clear();
        p->SetRowSource(&source);
        p->SetRowCount(100);
    };
    PlayInAnyOrder<OpenList<QVVirtualListCtrl>>(
        p, make,
        {[&](int n) { p->SetRowCount(n * n * 7); }, [&](int n) { p->SortByColumn(n % 4, n % 2); },
         [&](int n) { p->SortOnHeader(n % 3); }, [&](int) { p->RestoreOrder(); },
         [&](int n) { p->SetItemState(n, LVIS_SELECTED, LVIS_SELECTED); },
         [&](int n) { p->SetItemState(n, LVIS_FOCUSED, LVIS_FOCUSED); },
         [&](int n) { p->SendMessage(WM_KEYDOWN, n % 2 ? VK_DOWN : VK_NEXT); },
         [&](int n) { p->SendMessage(WM_CHAR, static_cast<WPARAM>('0' + n % 10)); },
         [&](int n) { p->EnsureVisible(n * 3, FALSE); }, [&](int) { p->RedrawWindow(); },
         [&](int) { p->RowsChanged(); },
         [&](int n) { p->SendMessage(LVM_DELETECOLUMN, static_cast<WPARAM>(n)); },
         [&](int n) { p->SetImageFirstCol(n % 2); },
         [&](int n) { n == 7 ? p.reset() : void(p->SaveSelections()); },
         [&](int) { p->RestoreSelections(); },
         [&](int n) {
             source.act = [n, q = p.get()](int i) { i == n ? (void)q->SetRowCount(n) : void(); };
         }},
        MonkeySteps() / 8);
}

}  // namespace
