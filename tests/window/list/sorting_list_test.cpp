#include "support/list_window.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <gtest/gtest.h>

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
            str += i > 0 ? " " : "";
            str += list.GetItemText(i, nCol);
        }
        return str;
    }
    std::string Sorted(int nCol) {
        list.SortOnHeader(nCol);
        return Column(nCol);
    }
};

TEST(SortingList, ColumnsHaveTheTypeOfTheirHeading) {
    SortWindow w;
    w.list.QVListCtrlEx::AddHeader("untyped");
    const QVLISTCTRL_DATATYPE kTypes[] = {lcdtString, lcdtString, lcdtNumber, lcdtDate, lcdtString};
    for (int nCol = 0; nCol < 5; ++nCol) {
        EXPECT_EQ(w.list.ColumnSortType(nCol), kTypes[nCol]) << nCol;
    }
    EXPECT_EQ(w.list.ColumnSortType(-1), lcdtString);
    EXPECT_EQ(w.list.InsertColumn(0, "no", 0, 10, 0), -1);
    EXPECT_EQ(w.list.InsertColumn(0, static_cast<const LVCOLUMN*>(nullptr)), -1);
    EXPECT_EQ(w.list.NumColumns(), 5);
}

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
    SortWindow empty;
    empty.list.SortOnHeader(1);
    empty.Add("1\tx");
    empty.Add("2\ty");
    EXPECT_EQ(empty.Sorted(1), "y x") << "the second sort of that column";
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

TEST(SortingList, EqualRowsKeepTheirOrderWhateverTheirData) {
    for (const bool bDistinct : {false, true}) {
        SortWindow w;
        for (int i = 0; i < 60; ++i) {
            const std::string str = std::to_string(i) + "\tx\t" + std::to_string(i * 7 % 3);
            w.list.SetItemData(w.Add(str.c_str()), static_cast<DWORD_PTR>(bDistinct ? i : i / 40));
        }
        for (const int nDirection : {1, -1}) {
            w.list.SortOnHeader(2);
            for (int i = 0; i + 1 < 60; ++i) {
                const int nOrder =
                    atoi(w.list.GetItemText(i + 1, 2)) - atoi(w.list.GetItemText(i, 2));
                const int nRow = atoi(w.list.GetItemText(i, 0));
                ASSERT_GE(nOrder * nDirection, 0) << bDistinct << i;
                ASSERT_TRUE(nOrder != 0 || nRow < atoi(w.list.GetItemText(i + 1, 0))) << i;
                ASSERT_EQ(w.list.GetItemData(i),
                          static_cast<DWORD_PTR>(bDistinct ? nRow : nRow / 40));
            }
        }
    }
}

// Answers a message that changes a text by itself.
class OwnTextList : public QVSortingListCtrl {
    DECLARE_MESSAGE_MAP()
    LRESULT OnSetText(WPARAM, LPARAM) { return Default(); }
};
BEGIN_MESSAGE_MAP(OwnTextList, QVSortingListCtrl)
    ON_MESSAGE(LVM_SETITEMTEXTA, OnSetText)
END_MESSAGE_MAP()

// What a sort keeps must not outlive any change.
TEST(SortingList, ASortSeesWhatChangedSinceTheLastOne) {
    using List = OpenList<OwnTextList>;
    const struct {
        const char* pszChange;
        void (*pfnChange)(List&, RecordingParent&);
        const char* pszOrder;
    } cases[] = {
        {"nothing", [](List&, RecordingParent&) {}, "c b a"},
        {"order", [](List& list, RecordingParent&) { list.SortOnHeader(1); }, "a b c"},
        {"text", [](List& list, RecordingParent&) { list.SetItemText(0, 0, "bb"); }, "c bb b"},
        {"a text that is not told",
         [](List& list, RecordingParent&) {
             LVITEM item{};
             item.mask = LVIF_TEXT;
             item.pszText = const_cast<char*>("d");
             list.SetItem(&item);
         },
         "d c b"},
        {"data",
         [](List& list, RecordingParent&) {
             list.SetItemData(0, 2);
             list.SetItemData(2, 0);
         },
         "c b a"},
        {"row", [](List& list, RecordingParent&) { list.InsertBitmapString(0, 0, "bc"); },
         "c bc b a"},
        {"deletion", [](List& list, RecordingParent&) { list.DeleteItem(1); }, "c a"},
        {"on demand",
         [](List& list, RecordingParent& parent) {
             list.SetItemText(0, 0, LPSTR_TEXTCALLBACK);
             parent.m_hook = [n = 0](NMHDR* pHdr, LRESULT*) mutable {
                 if (pHdr->code == LVN_GETDISPINFO) {
                     auto* pInfo = reinterpret_cast<NMLVDISPINFO*>(pHdr);
                     pInfo->item.pszText = const_cast<char*>(n++ < 1 ? "0" : "z");
                 }
                 return false;
             };
             list.SortOnHeader(1);
             list.SortOnHeader(0);
         },
         "z c b"},
    };
    for (const auto& c : cases) {
        ListWindow<OwnTextList> w("name\tother");
        for (const char* psz : {"a\t1", "b\t1", "c\t1"}) {
            w.list.SetItemData(w.Add(psz), static_cast<DWORD_PTR>(psz[0] - 'a'));
        }
        w.list.ReSort();
        c.pfnChange(w.list, w.parent);
        w.list.SortOnHeader(0);
        std::string strOrder;
        for (int i = 0; i < w.list.GetItemCount(); ++i) {
            strOrder += (i > 0 ? " " : "") + std::string(w.list.GetItemText(i, 0));
        }
        EXPECT_EQ(strOrder, c.pszOrder) << c.pszChange;
    }
}

TEST(SortingList, ASortRepaintsUnlessRedrawIsOff) {
    SortWindow w;
    for (const char* psz : {"b", "c", "a"}) {
        w.Add(psz);
    }
    const auto repaints = [&] {
        w.list.UpdateWindow();
        w.list.ValidateRect(nullptr);
        w.list.SortOnHeader(0);
        return w.list.GetUpdateRect(nullptr, FALSE) != FALSE;
    };
    EXPECT_TRUE(repaints());
    w.list.SetRedraw(FALSE);
    EXPECT_FALSE(repaints());
    EXPECT_EQ(w.Column(0), "a b c");
    w.list.SetRedraw(TRUE);
    EXPECT_TRUE(repaints());
}

// What a window that is no framework's sees before anybody else: a parent of the old kind.
class RawParent {
public:
    RawParent() {
        WNDCLASS wc{};
        wc.lpfnWndProc = Proc;
        wc.lpszClassName = "QVRawParent";
        wc.hInstance = ::GetModuleHandle(nullptr);
        ::RegisterClass(&wc);
        m_hWnd = ::CreateWindow("QVRawParent", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 500, 300,
                                nullptr, nullptr, wc.hInstance, this);
        ::SetWindowLongPtr(m_hWnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    ~RawParent() { ::DestroyWindow(m_hWnd); }

    HWND m_hWnd;
    int nNotifications = 0;

private:
    static LRESULT CALLBACK Proc(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
        if (nMessage == WM_NOTIFY) {
            auto* pParent = reinterpret_cast<RawParent*>(::GetWindowLongPtr(hWnd, GWLP_USERDATA));
            ++pParent->nNotifications;
        }
        return ::DefWindowProc(hWnd, nMessage, wParam, lParam);
    }
};

TEST(SortingList, NobodyIsToldOfASort) {
    RawParent parent;
    RawParent later;
    QVSortingListCtrl list;
    list.Create(kListId, CRect(0, 0, 300, 200), CWnd::FromHandle(parent.m_hWnd));
    list.AddHeader("name", lcdtString);
    for (const char* psz : {"b", "c", "a"}) {
        list.InsertBitmapString(0, -1, psz);
    }
    const auto sorts = [&](const char* pszFirst) {
        parent.nNotifications = 0;
        list.ReSort();
        EXPECT_EQ(list.GetItemText(0, 0), CString(pszFirst));
        EXPECT_EQ(list.GetItemData(0), 0u);
        return parent.nNotifications + later.nNotifications;
    };
    EXPECT_EQ(sorts("a"), 0);
    // The control goes on telling the window that it was made in.
    list.SetParent(CWnd::FromHandle(later.m_hWnd));
    list.SetItemText(0, 0, "z");
    EXPECT_GT(parent.nNotifications, 0);
    EXPECT_EQ(sorts("b"), 0);
    list.SetItemText(0, 0, "y");
    EXPECT_GT(parent.nNotifications, 0) << "and tells it again once the sort is done";
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
    for (const DWORD_PTR dw : {3, 1, 2}) {
        w.list.SetItemData(w.Add(std::to_string(dw).c_str()), dw);
    }
    w.parent.m_hook = [](NMHDR* pHdr, LRESULT* pResult) {
        const auto* pItem = reinterpret_cast<const NMLISTVIEW*>(pHdr);
        *pResult = pHdr->code == static_cast<UINT>(LVN_ITEMCHANGING) && pItem->iItem == 1;
        return true;
    };
    w.list.SortOnHeader(1);
    w.parent.m_hook = nullptr;
    std::vector<DWORD_PTR> data;
    for (int i = 0; i < 3; ++i) {
        data.push_back(w.list.GetItemData(i));
    }
    std::sort(data.begin(), data.end());
    EXPECT_EQ(data, (std::vector<DWORD_PTR>{1, 2, 3}));
}

}  // namespace
