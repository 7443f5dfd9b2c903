// The list in real windows, beside a plain list control of the platform in the same process: same
// size, font, columns and texts. Nobody subclasses the plain one; it draws its rows itself.

#include "QVControls.h"
#include "window_bench.h"

#include <afxcmn.h>
#include <afxdisp.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <random>

// Defines short names that clash with those of the standard library's headers: after them.
#include <mbstring.h>

namespace {

using bench::Compare;
using bench::Frame;

constexpr int kRows = 100000;
constexpr int kFills = 9;
constexpr int kPaints = 15;
constexpr int kColumns = 5;
constexpr int kColumnWidth = 110;
constexpr int kDays = 2000;
constexpr int kPageRows = 40;
const CSize kWindow(600, 800);
constexpr int kTextCol = 0;
constexpr int kNumberCol = 1;
constexpr int kDateCol = 2;

struct Row {
    std::array<std::string, kColumns> cells;
    std::string strJoined;
    CString strText;  // the ready-made keys
    std::uint32_t nNumber;
    double date;
};

std::string RandomText(std::mt19937& random) {
    std::string str;
    for (unsigned n = 6 + random() % 10; n > 0; --n) {
        str += static_cast<char>((random() % 2 != 0 ? 'a' : 'A') + random() % 26);
    }
    return str;
}

const std::vector<Row>& Rows() {
    static const std::vector<Row> s_rows = [] {
        std::mt19937 random(5);
        std::vector<Row> rows(kRows);
        for (Row& row : rows) {
            const COleDateTime day(36526.0 + random() % kDays);
            row.nNumber = random() % 1000000;
            row.cells = {RandomText(random), std::to_string(row.nNumber),
                         std::string(day.Format("%Y-%m-%d")), RandomText(random),
                         RandomText(random)};
            row.strText = row.cells[kTextCol].c_str();
            row.date = day.m_dt;
            for (const std::string& strCell : row.cells) {
                row.strJoined += (row.strJoined.empty() ? "" : "\t") + strCell;
            }
        }
        return rows;
    }();
    return s_rows;
}

const Row& RowOf(LPARAM nRow) {
    return Rows()[static_cast<size_t>(nRow)];
}

int Order(LPARAM n1, LPARAM n2) {
    return n1 < n2 ? -1 : n1 > n2 ? 1 : 0;
}

// What the platform sorts ready-made keys by.
int CALLBACK CompareNumbers(LPARAM l1, LPARAM l2, LPARAM) {
    return Order(l1, l2);
}

int CALLBACK CompareTexts(LPARAM l1, LPARAM l2, LPARAM) {
    const auto text = [](LPARAM l) {
        return reinterpret_cast<const unsigned char*>(
            static_cast<LPCSTR>(*reinterpret_cast<const CString*>(l)));
    };
    return _mbsicmp(text(l1), text(l2));
}

int CALLBACK CompareDates(LPARAM l1, LPARAM l2, LPARAM) {
    const double date1 = *reinterpret_cast<const double*>(l1);
    const double date2 = *reinterpret_cast<const double*>(l2);
    return date1 < date2 ? -1 : date1 > date2 ? 1 : 0;
}

// What both sides have in common: the window, and how it is filled and paged.
class Side {
public:
    virtual ~Side() = default;
    virtual void Add(int nRow) = 0;

    LRESULT Send(UINT nMessage, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendMessage(m_hList, nMessage, wParam, lParam);
    }
    void Fill(int nRows) {
        Send(WM_SETREDRAW, FALSE);
        for (int nRow = 0; nRow < nRows; ++nRow) {
            Add(nRow);
        }
        Send(WM_SETREDRAW, TRUE);
        ::UpdateWindow(m_hList);
    }
    void SetHeightToRows(int nRows) {
        RECT rcRow{LVIR_BOUNDS, 0, 0, 0};
        Send(LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&rcRow));
        RECT rcWindow;
        RECT rcClient;
        ::GetWindowRect(m_hList, &rcWindow);
        ::GetClientRect(m_hList, &rcClient);
        const LONG nEdges = rcWindow.bottom - rcWindow.top - rcClient.bottom;
        ::SetWindowPos(m_hList, nullptr, 0, 0, kWindow.cx,
                       rcRow.top + nRows * (rcRow.bottom - rcRow.top) + nEdges,
                       SWP_NOMOVE | SWP_NOZORDER);
    }
    // Seconds for a page further down, or up, and its paint.
    double TimePage() {
        constexpr int kPages = 20;
        return bench::Time([&] {
                   for (int i = 0; i < kPages; ++i) {
                       Send(WM_VSCROLL, i % 10 < 5 ? SB_PAGEDOWN : SB_PAGEUP);
                       ::UpdateWindow(m_hList);
                   }
                   ::GdiFlush();
               }) /
               kPages;
    }

protected:
    Frame m_frame{kWindow};
    HWND m_hList = nullptr;
};

class SortingList : public QVSortingListCtrl {
public:
    void SortAscending(int nCol) {
        m_nSortCol = -1;
        SortOnHeader(nCol);
    }
};

class Ours : public Side {
public:
    Ours() {
        list.Create(1, CRect(CPoint(0, 0), kWindow), &m_frame);
        m_hList = list.m_hWnd;
        list.AddHeader("text", lcdtString);
        list.AddHeader("number", lcdtNumber);
        list.AddHeader("date", lcdtDate);
        list.AddHeader("more\tstill more", lcdtString);
        for (int nCol = 0; nCol < kColumns; ++nCol) {
            list.SetColWidth(nCol, kColumnWidth, nullptr);
        }
    }
    void Add(int nRow) override { list.InsertBitmapString(0, -1, RowOf(nRow).strJoined.c_str()); }
    void NumberRows() {
        for (int nRow = 0; nRow < kRows; ++nRow) {
            list.SetItemData(nRow, static_cast<DWORD_PTR>(nRow));
        }
    }
    void Shuffle() { list.SortItems(CompareNumbers, 0); }
    double TimeSort(int nCol) {
        return bench::Time([&] { list.SortAscending(nCol); });
    }

    SortingList list;
};

class Theirs : public Side {
public:
    Theirs() {
        m_hList = ::CreateWindowEx(
            WS_EX_CLIENTEDGE, WC_LISTVIEW, "",
            WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS, 0, 0,
            kWindow.cx, kWindow.cy, m_frame.m_hWnd, reinterpret_cast<HMENU>(1), nullptr, nullptr);
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(m_frame.m_font.GetSafeHandle()));
        char szHeading[] = "heading";
        LVCOLUMN column{};
        column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM;
        column.fmt = LVCFMT_LEFT;
        column.cx = kColumnWidth;
        column.pszText = szHeading;
        for (int nCol = 0; nCol < kColumns; ++nCol) {
            column.iSubItem = nCol;
            Send(LVM_INSERTCOLUMN, static_cast<WPARAM>(nCol), reinterpret_cast<LPARAM>(&column));
        }
    }
    void Add(int nRow) override {
        const Row& row = RowOf(nRow);
        LVITEM item{};
        item.mask = LVIF_TEXT | LVIF_PARAM;
        item.iItem = nRow;
        item.lParam = reinterpret_cast<LPARAM>(&row);
        item.pszText = const_cast<char*>(row.cells[0].c_str());
        Send(LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
        for (int nCol = 1; nCol < kColumns; ++nCol) {
            item.iSubItem = nCol;
            item.pszText = const_cast<char*>(row.cells[static_cast<size_t>(nCol)].c_str());
            Send(LVM_SETITEMTEXT, static_cast<WPARAM>(nRow), reinterpret_cast<LPARAM>(&item));
        }
    }
    void Sort(PFNLVCOMPARE pfnCompare) {
        Send(LVM_SORTITEMS, 0, reinterpret_cast<LPARAM>(pfnCompare));
    }
};

template <class Any>
double TimeFill() {
    Any side;
    return bench::Time([&] { side.Fill(kRows); });
}

// The plain list's rows carry their keys: a pointer to a string or a date, or the number itself.
class SortMeasure {
public:
    SortMeasure() {
        m_ours.Fill(kRows);
        m_ours.NumberRows();
    }
    void Run(const char* pszName, int nCol, const std::function<LPARAM(const Row&)>& key,
             PFNLVCOMPARE pfnCompare) {
        const bench::Pair pair = bench::FastestPair(
            [&] {
                m_ours.Shuffle();
                return m_ours.TimeSort(nCol);
            },
            [&] {
                Theirs side;
                side.Send(WM_SETREDRAW, FALSE);
                for (int nRow = 0; nRow < kRows; ++nRow) {
                    LVITEM item{};
                    item.mask = LVIF_PARAM;
                    item.iItem = nRow;
                    item.lParam = key(RowOf(nRow));
                    side.Send(LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
                }
                side.Send(WM_SETREDRAW, TRUE);
                return bench::Time([&] { side.Sort(pfnCompare); });
            });
        Compare(pszName, 1e3, "ms", pair);
    }

private:
    Ours m_ours;
};

void MeasureSorts() {
    SortMeasure measure;
    measure.Run(
        "list/sort-100k-text", kTextCol,
        [](const Row& row) { return reinterpret_cast<LPARAM>(&row.strText); }, CompareTexts);
    measure.Run(
        "list/sort-100k-number", kNumberCol,
        [](const Row& row) { return static_cast<LPARAM>(row.nNumber); }, CompareNumbers);
    measure.Run(
        "list/sort-100k-date", kDateCol,
        [](const Row& row) { return reinterpret_cast<LPARAM>(&row.date); }, CompareDates);
}

// Rows that all have the same item data, which the list cannot tell apart by.
void MeasureSortOfDoubles() {
    std::vector<double> times;
    for (int i = 0; i < bench::kRuns; ++i) {
        Ours side;
        side.Fill(kRows);
        times.push_back(side.TimeSort(kTextCol));
    }
    bench::Figure("list/sort-100k-text-same-data", bench::Median(times) * 1e3, "ms");
}

// Each of these sorts reads all rows, since one has changed.
void MeasureSortAfterAChange() {
    Ours side;
    side.Fill(kRows);
    side.NumberRows();
    bench::Figure("list/sort-100k-text-changed", bench::MedianOf([&] {
                                                     side.Shuffle();
                                                     side.list.SetItemData(0, 0);
                                                     return side.TimeSort(kTextCol);
                                                 }) * 1e3,
                  "ms");
}

void MeasurePaint() {
    constexpr int kFilled = 1000;
    Ours ours;
    Theirs theirs;
    for (Side* pSide : {static_cast<Side*>(&ours), static_cast<Side*>(&theirs)}) {
        pSide->Fill(kFilled);
        pSide->SetHeightToRows(kPageRows);
        pSide->TimePage();
    }
    Compare("list/paint-page", 1e3, "ms",
            bench::FastestPair([&] { return ours.TimePage(); }, [&] { return theirs.TimePage(); },
                               kPaints));
}

double TimeAddSorted(int nRows) {
    Ours side;
    return bench::Time([&] {
        side.Send(WM_SETREDRAW, FALSE);
        for (int nRow = 0; nRow < nRows; ++nRow) {
            side.list.AddBitmapString(0, RowOf(nRow).strJoined.c_str(), FALSE);
        }
        side.Send(WM_SETREDRAW, TRUE);
        ::UpdateWindow(side.list.m_hWnd);
    });
}

void MeasureExport() {
    char szFolder[MAX_PATH];
    char szPath[MAX_PATH];
    ::GetTempPath(MAX_PATH, szFolder);
    ::GetTempFileName(szFolder, "qvb", 0, szPath);
    Ours side;
    side.Fill(kRows);
    const double nTime =
        bench::MedianOf([&] { return bench::Time([&] { side.list.ExportData(szPath, ';'); }); });
    bench::Figure("list/export-100k", nTime * 1e3, "ms");
    std::remove(szPath);
}

}  // namespace

void MeasureList() {
    Rows();
    Compare("list/fill-100k-x5", 1e3, "ms",
            bench::FastestPair(TimeFill<Ours>, TimeFill<Theirs>, kFills));
    MeasureSorts();
    MeasurePaint();
    MeasureSortAfterAChange();
    MeasureSortOfDoubles();
    bench::Figure("list/add-sorted-20k", bench::MedianOf([] { return TimeAddSorted(20000); }) * 1e3,
                  "ms");
    bench::Figure("list/add-sorted-40k", bench::MedianOf([] { return TimeAddSorted(40000); }) * 1e3,
                  "ms");
    MeasureExport();
}
