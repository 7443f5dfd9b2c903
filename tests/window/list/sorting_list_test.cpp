#include "support/list_window.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace {

class SortWindow : public ListWindow<QVSortingListCtrl> {
public:
    SortWindow() {
        list.AddHeader("name\ttext", lcdtString);
        list.AddHeader("count", lcdtNumber);
        list.AddHeader("date", lcdtDate);
    }
    std::string Column(int nCol) {
        std::string str;
        for (int i = 0; i < list.GetItemCount(); ++i) {
            str += (i > 0 ? " " : "") + std::string(list.GetItemText(i, nCol));
        }
        return str;
    }
    std::string Sorted(int nCol) {
        list.SortOnHeader(nCol);
        return Column(nCol);
    }
};

TEST(SortingList, AClickSortsAndASecondTurnsTheOrder) {
    SortWindow w;
    for (const char* psz : {"b\tx", "C\tz", "a\ty"}) {
        w.Add(psz);
    }
    const HWND hHeader = w.list.GetHeaderCtrl()->m_hWnd;
    ASSERT_TRUE(ClickAt(hHeader, CPoint(90, 8)));
    EXPECT_TRUE(PumpUntil([&] { return w.Column(1) == "x y z"; }));
    EXPECT_EQ(w.Column(0), "b a C") << "rows move as a whole";
    EXPECT_EQ(w.Sorted(1), "z y x");
    EXPECT_EQ(w.Sorted(1), "x y z");
    EXPECT_EQ(w.Sorted(0), "a b C") << "a new column begins ascending, without regard to case";
    w.Add("aa\tv");
    w.list.ReSort();
    EXPECT_EQ(w.Column(0), "a aa b C") << "in the direction of the last sort";
    SortWindow fresh;
    fresh.Add("a");
    fresh.Add("b");
    EXPECT_EQ(fresh.Sorted(0), "b a") << "a fresh list counts as sorted by column 0";
}

// Of each heading: 'u'p, 'd'own, or '-'.
std::string Arrows(QVListCtrlEx& list) {
    std::string str;
    HDITEM item{};
    item.mask = HDI_FORMAT;
    for (int nCol = 0; list.GetHeaderCtrl()->GetItem(nCol, &item); ++nCol) {
        str += (item.fmt & HDF_SORTUP) != 0 ? 'u' : (item.fmt & HDF_SORTDOWN) != 0 ? 'd' : '-';
    }
    return str;
}

TEST(SortingList, AnArrowShowsTheOrderOfTheLastSortWhereItIsAskedFor) {
    SortWindow w;
    w.Add("b\tx");
    w.Add("a\ty");
    w.list.SortOnHeader(1);
    EXPECT_EQ(Arrows(w.list), "----") << "off at first";
    w.list.ShowSortArrow();
    EXPECT_EQ(Arrows(w.list), "-u--");
    w.list.SortOnHeader(1);
    EXPECT_EQ(Arrows(w.list), "-d--");
    w.list.ReSort();
    EXPECT_EQ(Arrows(w.list), "-d--");
    w.list.SortOnHeader(2);
    w.list.SetHdrFormat(2, LVCFMT_RIGHT);
    EXPECT_EQ(Arrows(w.list), "--u-") << "another alignment leaves it";
    w.list.ShowSortArrow(FALSE);
    EXPECT_EQ(Arrows(w.list), "----");

    ListWindow<QVVirtualListCtrl> source;
    source.list.AddHeader("one\ttwo", lcdtString);
    source.list.ShowSortArrow();
    EXPECT_EQ(Arrows(source.list), "--") << "nothing was sorted yet";
    source.list.SortByColumn(1, FALSE);
    EXPECT_EQ(Arrows(source.list), "-d");
    source.list.RestoreOrder();
    EXPECT_EQ(Arrows(source.list), "--");
}

TEST(SortingList, TypesDecideTheOrder) {
    SortWindow w;
    for (const char* psz : {"\033ab\tx\t-1\t2020-03-01", "c\t\033ax\t5\tno date",
                            "\033aa\tb\t30\t1955-01-01 12:00", "d\tc\t4\t2020-03-01 10:00"}) {
        w.Add(psz);
    }
    EXPECT_EQ(w.Sorted(2), "4 5 30 -1") << "negative numbers are great ones";
    w.list.SortOnHeader(3);
    EXPECT_EQ(w.Column(2), "30 5 -1 4") << "what is no date stands at 1970";
    w.list.SortOnHeader(1);
    EXPECT_EQ(w.Column(2), "5 30 4 -1") << "a code counts, but for column 0";
    w.list.SortOnHeader(0);
    EXPECT_EQ(w.Column(2), "30 -1 5 4");
}

// Answers a message that changes a text by itself.
class OwnTextList : public QVSortingListCtrl {
    DECLARE_MESSAGE_MAP()
    LRESULT OnSetText(WPARAM, LPARAM) { return Default(); }
};
BEGIN_MESSAGE_MAP(OwnTextList, QVSortingListCtrl)
    ON_MESSAGE(LVM_SETITEMTEXTA, &OwnTextList::OnSetText)
END_MESSAGE_MAP()

// What a sort keeps for the next one must not outlive any change, and equal rows keep their order,
// whatever their data.
TEST(SortingList, ASortIsTheStableSortOfTheRowsAsTheyAre) {
    struct Row {
        std::string astr[2];
        DWORD_PTR dwData;
        bool operator==(const Row&) const = default;
    };
    ListWindow<OwnTextList> w("name\tother");
    std::mt19937 random(7);
    const auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    std::string strAsked;  // the text of rows that the parent supplies
    w.parent.m_hook = [&](NMHDR* pHdr, LRESULT*) {
        if (pHdr->code == LVN_GETDISPINFO) {
            reinterpret_cast<NMLVDISPINFO*>(pHdr)->item.pszText = strAsked.data();
        }
        return false;
    };
    const auto rows = [&] {
        std::vector<Row> all;
        for (int i = 0; i < w.list.GetItemCount(); ++i) {
            all.push_back(
                {{std::string(w.list.GetItemText(i, 0)), std::string(w.list.GetItemText(i, 1))},
                 w.list.GetItemData(i)});
        }
        return all;
    };
    int nSorted = 0;
    bool bAscending = true;
    for (int i = 0; i < 900; ++i) {
        // First rows that their data tell apart, then texts on demand as well, then equal data.
        const auto dwData = static_cast<DWORD_PTR>(i < 600 ? i : pick(3));
        const std::string strText(1, static_cast<char>("aAbcd"[pick(5)]));
        const int nRow = pick(std::max(w.list.GetItemCount(), 1));
        LVITEM item{};
        item.mask = LVIF_TEXT;
        item.iItem = nRow;
        item.pszText = const_cast<char*>(strText.c_str());
        const std::function<void()> aChanges[] = {
            [&] { w.list.SetItemData(w.Add((strText + "\tx").c_str()), dwData); },
            [&] { w.list.GetItemCount() > 20 && w.list.DeleteItem(nRow); },
            [&] { w.list.SetItemText(nRow, pick(2), strText.c_str()); },
            [&] { w.list.SetItem(&item); },
            [&] { w.list.SetItemData(nRow, dwData); },
            [&] { i > 300 && w.list.SetItemText(nRow, 0, LPSTR_TEXTCALLBACK); },
            [&] { strAsked = strText; },
            [] {}};
        aChanges[random() % std::size(aChanges)]();
        std::vector<Row> wanted = rows();
        if (pick(4) == 0) {
            w.list.ReSort();
        } else {
            const int nCol = pick(2);
            bAscending = nCol != nSorted || !bAscending;
            nSorted = nCol;
            w.list.SortOnHeader(nCol);
        }
        std::stable_sort(wanted.begin(), wanted.end(), [&](const Row& row1, const Row& row2) {
            const int n = _stricmp(row1.astr[nSorted].c_str(), row2.astr[nSorted].c_str());
            return bAscending ? n < 0 : n > 0;
        });
        ASSERT_TRUE(rows() == wanted) << i;
    }
}

TEST(SortingList, ASortRepaintsUnlessRedrawIsOff) {
    SortWindow w;
    w.Add("b");
    w.Add("a");
    for (const BOOL bRedraw : {TRUE, FALSE, TRUE}) {
        w.list.SetRedraw(bRedraw);
        w.list.UpdateWindow();
        w.list.ValidateRect(nullptr);
        w.list.SortOnHeader(0);
        EXPECT_EQ(w.list.GetUpdateRect(nullptr, FALSE), bRedraw);
    }
}

TEST(SortingList, NobodyIsToldOfASort) {
    SortWindow w;
    FontParent later(CSize(100, 100));
    for (const char* psz : {"b", "c", "a"}) {
        w.Add(psz);
    }
    const auto told = [&] {
        return w.parent.m_notifications.size() + later.m_notifications.size();
    };
    const auto sorts = [&](const char* pszFirst) {
        w.parent.Forget();
        w.list.ReSort();
        EXPECT_EQ(w.list.GetItemText(0, 0), CString(pszFirst));
        EXPECT_EQ(w.list.GetItemData(0), 0u);
        return told();
    };
    EXPECT_EQ(sorts("a"), 0u);
    // The control goes on telling the window that it was made in.
    w.list.SetParent(&later);
    w.list.SetItemText(0, 0, "z");
    EXPECT_GT(told(), 0u);
    EXPECT_EQ(sorts("b"), 0u);
    w.list.SetItemText(0, 0, "y");
    EXPECT_GT(told(), 0u) << "and tells it again once the sort is done";
}

// Reads an item's data while the control sorts.
class PeekingList : public QVSortingListCtrl {
public:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        if (nMessage == LVM_SORTITEMS) {
            dwSeen = GetItemData(0);
        }
        return QVSortingListCtrl::WindowProc(nMessage, wParam, lParam);
    }

    DWORD_PTR dwSeen = 0;
};

TEST(SortingList, ItemDataAreTheCallersEvenWhileTheControlSorts) {
    ListWindow<PeekingList> w("a");
    for (const char* psz : {"b", "c", "a"}) {
        w.list.SetItemData(w.Add(psz), 7);
    }
    w.list.ReSort();
    EXPECT_EQ(w.list.dwSeen, 7u);
    EXPECT_EQ(w.list.GetItemText(0, 0), CString("a"));
}

// A parent that is asked for a text may sort the rows by itself.
TEST(SortingList, ASortWithinASortMixesNoItemData) {
    SortWindow w;
    for (const char* psz : {"0\tx", "1\tx", "2\tx", "3\tx"}) {
        w.list.SetItemData(w.Add(psz), static_cast<DWORD_PTR>(psz[0] - '0') / 2);
    }
    w.list.SetItemText(2, 1, LPSTR_TEXTCALLBACK);
    bool bInner = false;
    w.parent.m_hook = [&](NMHDR* pHdr, LRESULT*) {
        if (pHdr->code == LVN_GETDISPINFO && !bInner) {
            bInner = true;
            w.list.SortOnHeader(0);
        }
        return false;
    };
    w.list.SortOnHeader(1);
    w.parent.m_hook = nullptr;
    ASSERT_TRUE(bInner);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(w.list.GetItemData(i),
                  static_cast<DWORD_PTR>(atoi(w.list.GetItemText(i, 0)) / 2));
    }
}

// The parent may refuse that an item changes; no row may keep what is no data of its own.
TEST(SortingList, ARefusedChangeLeavesTheRowsAlone) {
    SortWindow w;
    for (const char* psz : {"3", "1", "2"}) {
        w.list.SetItemData(w.Add(psz), static_cast<DWORD_PTR>(*psz));
    }
    w.parent.m_hook = [](NMHDR* pHdr, LRESULT* pResult) {
        const auto* pItem = reinterpret_cast<const NMLISTVIEW*>(pHdr);
        *pResult = pHdr->code == static_cast<UINT>(LVN_ITEMCHANGING) && pItem->iItem == 1;
        return true;
    };
    w.list.SortOnHeader(1);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(w.list.GetItemData(i), static_cast<DWORD_PTR>(w.list.GetItemText(i, 0)[0]));
    }
}

}  // namespace
