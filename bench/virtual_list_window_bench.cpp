// The list over the application's own data, from the number of rows to the first page on the
// screen, and from page to page.

#include "QVControls.h"
#include "window_bench.h"

#include <algorithm>

namespace {

constexpr int kMillion = 1000000;
constexpr int kColumns = 5;
constexpr int kColumnWidth = 110;
const CSize kWindow(600, 800);

class Cells : public QVRowSource {
public:
    void GetRow(int nRow, QVLISTROW& row) override {
        ++nAsked;
        for (int nCol = 0; nCol < kColumns; ++nCol) {
            CString strCell;
            strCell.Format("%srow %d cell %d", nCol > 0 ? "\t" : "", nRow, nCol);
            row.strText += strCell;
        }
    }
    int nAsked = 0;
};

class Shown {
public:
    Shown() {
        m_list.Create(1, CRect(CPoint(0, 0), kWindow), &m_frame);
        m_list.AddHeader("a\tb\tc\td\te", lcdtString);
        for (int nCol = 0; nCol < kColumns; ++nCol) {
            m_list.SetColWidth(nCol, kColumnWidth, nullptr);
        }
        m_list.SetRowSource(&m_cells);
        Settle();
    }
    double TimeShow(int nRows) {
        return bench::Time([&] {
            m_list.SetRowCount(nRows);
            Settle();
        });
    }
    // Seconds for a page further down, or up, and its paint.
    double TimePage() {
        constexpr int kPages = 20;
        return bench::Time([&] {
                   for (int i = 0; i < kPages; ++i) {
                       m_list.SendMessage(WM_VSCROLL, i % 2 == 0 ? SB_PAGEDOWN : SB_PAGEUP);
                       m_list.UpdateWindow();
                   }
                   ::GdiFlush();
               }) /
               kPages;
    }

    Cells m_cells;

private:
    // Until the window is painted and nothing waits for it.
    void Settle() {
        for (MSG msg; ::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE);) {
            ::DispatchMessage(&msg);
        }
        m_list.UpdateWindow();
        ::GdiFlush();
    }

    bench::Frame m_frame{kWindow};
    QVVirtualListCtrl m_list;
};

}  // namespace

void MeasureVirtualList() {
    double nShow = 1e9;
    for (int i = 0; i < 10; ++i) {
        Shown shown;
        nShow = std::min(nShow, shown.TimeShow(kMillion));
    }
    bench::Figure("list/virtual-show-1m", nShow * 1e3, "ms");
    Shown few;
    Shown many;
    few.TimeShow(100);
    many.TimeShow(kMillion);
    const bench::Pair pages =
        bench::FastestPair([&] { return many.TimePage(); }, [&] { return few.TimePage(); }, 15);
    bench::Figure("list/virtual-page-1m", pages.ours * 1e3, "ms");
    bench::Figure("list/virtual-page-100", pages.theirs * 1e3, "ms");
    bench::Ratio("list/virtual-page-1m-to-100", pages.ours, pages.theirs);
}
