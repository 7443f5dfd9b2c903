// The grid in a real window. A repaint and a changed cell cost what shows of them, whatever the
// number of rows.

#include "QVControls.h"
#include "window_bench.h"

namespace {

constexpr int kRows = 100000;
constexpr int kFewRows = 100;
constexpr int kColumns = 5;
constexpr int kColumnWidth = 90;
constexpr int kRepeats = 100;
constexpr int kAddedRows = 100;
const CSize kWindow(500, 640);

class Grid {
public:
    explicit Grid(int nRows) : m_frame(kWindow) {
        for (int i = 0; i < kColumns; ++i) {
            grid.AddColumn(gctEdit, kColumnWidth);
        }
        CString strRow;
        for (int i = 0; i < nRows; ++i) {
            strRow.Format("row %d\tone\ttwo\tthree\tfour", i);
            grid.AddRow(strRow, 0);
        }
        grid.Create(1, CRect(CPoint(0, 0), kWindow), &m_frame);
        grid.UpdateWindow();
    }
    double Repaint() {
        return bench::Time([&] {
                   for (int i = 0; i < kRepeats; ++i) {
                       grid.InvalidateRect(nullptr, FALSE);
                       grid.UpdateWindow();
                   }
               }) /
               kRepeats;
    }
    double ChangeCell() {
        return bench::Time([&] {
                   for (int i = 0; i < kRepeats; ++i) {
                       grid.SetCellText(3, 2, i % 2 != 0 ? "this" : "that");
                       grid.UpdateWindow();
                   }
               }) /
               kRepeats;
    }

    // Each row refits the scroll bar; what is due for painting is painted once, at the end.
    double AddRows() {
        return bench::Time([&] {
                   for (int i = 0; i < kAddedRows; ++i) {
                       grid.AddRow("row\tone\ttwo\tthree\tfour", 0);
                   }
                   grid.UpdateWindow();
               }) /
               kAddedRows;
    }

private:
    bench::Frame m_frame;

public:
    QVGridCtrl grid;
};

}  // namespace

void MeasureGrid() {
    Grid few(kFewRows);
    Grid many(kRows);
    bench::Figure("grid/repaint-page-100", bench::MedianOf([&] { return few.Repaint(); }) * 1e3,
                  "ms");
    bench::Figure("grid/repaint-page", bench::MedianOf([&] { return many.Repaint(); }) * 1e3, "ms");
    bench::Figure("grid/change-cell", bench::MedianOf([&] { return many.ChangeCell(); }) * 1e3,
                  "ms");
    bench::Figure("grid/add-row-redraw-on", bench::MedianOf([&] { return few.AddRows(); }) * 1e3,
                  "ms a row");
}
