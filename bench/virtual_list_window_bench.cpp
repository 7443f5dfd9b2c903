// The list over the application's own data, from the number of rows to the first page on the
// screen, and from page to page; beside it the platform's own control over the same rows.

#include "QVControls.h"
#include "window_bench.h"

#include <afxcmn.h>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kMillion = 1000000;
constexpr int kColumns = 5;
constexpr int kColumnWidth = 110;
constexpr int kShows = 60;
constexpr int kPaged = 200;
const CSize kWindow(600, 800);
// Less than half of a hundred rows: each page down goes all the way.
const CSize kPagedWindow(600, 500);

class Cells : public QVRowSource {
public:
    void GetRow(int nRow, QVLISTROW& row) override {
        for (int nCol = 0; nCol < kColumns; ++nCol) {
            CString strCell;
            strCell.Format("%srow %d cell %d", nCol > 0 ? "\t" : "", nRow, nCol);
            row.strText += strCell;
        }
    }
};

// What both sides have in common: a window that has been painted without rows, and how it gets
// them.
class Side {
public:
    explicit Side(CSize size) : m_size(size) {}
    virtual ~Side() = default;

    double TimeShow(int nRows) {
        return bench::Time([&] {
            ::SendMessage(m_hList, LVM_SETITEMCOUNT, static_cast<WPARAM>(nRows), LVSICF_NOSCROLL);
            Settle();
        });
    }
    // Seconds for a page further down, or up, and its paint.
    double TimePage() {
        constexpr int kPages = 2;
        return bench::Time([&] {
                   for (int i = 0; i < kPages; ++i) {
                       ::SendMessage(m_hList, WM_VSCROLL, i % 2 == 0 ? SB_PAGEDOWN : SB_PAGEUP, 0);
                       ::UpdateWindow(m_hList);
                   }
                   ::GdiFlush();
               }) /
               kPages;
    }

protected:
    // Until nothing waits for the window and the screen has its pixels: who reads one waits for
    // all that was drawn before.
    void Settle() {
        for (MSG msg; ::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE);) {
            ::DispatchMessage(&msg);
        }
        ::GdiFlush();
        const HDC hScreen = ::GetDC(nullptr);
        ::GetPixel(hScreen, m_size.cx / 2, m_size.cy / 2);
        ::ReleaseDC(nullptr, hScreen);
    }

    const CSize m_size;
    HWND m_hList = nullptr;
};

class Ours : public Side {
public:
    explicit Ours(CSize size) : Side(size), m_frame(size) {
        m_list.Create(1, CRect(CPoint(0, 0), size), &m_frame);
        m_hList = m_list.m_hWnd;
        m_list.AddHeader("a\tb\tc\td\te", lcdtString);
        for (int nCol = 0; nCol < kColumns; ++nCol) {
            m_list.SetColWidth(nCol, kColumnWidth, nullptr);
        }
        m_list.SetRowSource(&m_cells);
        Settle();
    }

private:
    bench::Frame m_frame;
    Cells m_cells;
    QVVirtualListCtrl m_list;
};

// The platform's control draws its rows itself and asks its parent for each cell.
class Theirs : public Side {
public:
    explicit Theirs(CSize size) : Side(size), m_parent(size) {
        m_hList = ::CreateWindowEx(
            WS_EX_CLIENTEDGE, WC_LISTVIEW, "",
            WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_OWNERDATA,
            0, 0, size.cx, size.cy, m_parent.m_hWnd, reinterpret_cast<HMENU>(1), nullptr, nullptr);
        ::SendMessage(m_hList, WM_SETFONT,
                      reinterpret_cast<WPARAM>(m_parent.m_font.GetSafeHandle()), 0);
        char szHeading[] = "a";
        LVCOLUMN column{};
        column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM;
        column.cx = kColumnWidth;
        column.pszText = szHeading;
        for (int nCol = 0; nCol < kColumns; ++nCol) {
            column.iSubItem = nCol;
            ::SendMessage(m_hList, LVM_INSERTCOLUMN, static_cast<WPARAM>(nCol),
                          reinterpret_cast<LPARAM>(&column));
        }
        Settle();
    }

private:
    class Parent : public bench::Frame {
    public:
        using Frame::Frame;

    protected:
        BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) override {
            auto* pInfo = reinterpret_cast<NMLVDISPINFOA*>(lParam);
            if (pInfo->hdr.code != LVN_GETDISPINFOA) {
                return FALSE;
            }
            if ((pInfo->item.mask & LVIF_TEXT) != 0) {
                std::snprintf(pInfo->item.pszText, static_cast<size_t>(pInfo->item.cchTextMax),
                              "row %d cell %d", pInfo->item.iItem, pInfo->item.iSubItem);
            }
            *pResult = 0;
            return TRUE;
        }
    };

    Parent m_parent;
};

template <class Any>
double TimeShow() {
    Any side(kWindow);
    return side.TimeShow(kMillion);
}

template <class Any>
bench::Pair TimePages() {
    Any few(kPagedWindow);
    Any many(kPagedWindow);
    few.TimeShow(100);
    many.TimeShow(kMillion);
    return bench::FastestPair([&] { return many.TimePage(); }, [&] { return few.TimePage(); },
                              kPaged);
}

}  // namespace

void MeasureVirtualList() {
    const bench::Pair show = bench::FastestPair(TimeShow<Ours>, TimeShow<Theirs>, kShows);
    bench::Figure("list/virtual-show-1m", show.ours * 1e3, "ms");
    bench::Figure("platform-list/virtual-show-1m", show.theirs * 1e3, "ms");
    bench::Ratio("list/virtual-show-1m-to-platform", show.ours, show.theirs);
    const bench::Pair pages = TimePages<Ours>();
    const bench::Pair platformPages = TimePages<Theirs>();
    bench::Figure("list/virtual-page-1m", pages.ours * 1e3, "ms");
    bench::Figure("list/virtual-page-100", pages.theirs * 1e3, "ms");
    bench::Figure("platform-list/virtual-page-1m", platformPages.ours * 1e3, "ms");
    bench::Ratio("list/virtual-page-1m-to-100", pages.ours, pages.theirs);
    bench::Ratio("list/virtual-page-1m-to-platform", pages.ours, platformPages.ours);
}
