// Automation: what a property costs through its wrapper, and what filling a flexible grid does.

#include "window_bench.h"

#include <afxdisp.h>

#include <QVControls.h>
#include <ocx/qvocx.h>
#include <string>
#include <vector>

namespace {

// A million reads in all, in runs so short that most of them have the processor for themselves.
constexpr int kReads = 5'000;
constexpr int kPropertyRuns = 200;
constexpr int kTexts = 100'000;
constexpr int kRows = 10'000;
constexpr int kCols = 10;
const CRect kPlace(0, 0, 400, 600);

volatile long s_nRead;  // so that the reads stay

// What a program without wrapper writes for the same number.
long AskRows(IDispatch* pDispatch) {
    constexpr DISPID kRowsId = 4;
    VARIANT result;
    ::VariantInit(&result);
    DISPPARAMS params = {};
    EXCEPINFO info = {};
    UINT nArgument = 0;
    pDispatch->Invoke(kRowsId, IID_NULL, 0, DISPATCH_PROPERTYGET, &params, &result, &info,
                      &nArgument);
    return result.lVal;
}

void MeasureProperties(CFlexGrid& grid) {
    LPUNKNOWN pControl = grid.GetControlUnknown();
    IDispatch* pDispatch = nullptr;
    if (pControl == nullptr ||
        FAILED(pControl->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&pDispatch)))) {
        return;
    }
    const auto reads = bench::FastestPair(
        [&] {
            return bench::Time([&] {
                for (int i = 0; i < kReads; ++i) {
                    s_nRead = grid.GetRows();
                }
            });
        },
        [&] {
            return bench::Time([&] {
                for (int i = 0; i < kReads; ++i) {
                    s_nRead = AskRows(pDispatch);
                }
            });
        },
        kPropertyRuns);
    bench::Figure("activex/get-property", reads.ours * 1e9 / kReads, "ns");
    bench::Figure("activex/raw-get-property", reads.theirs * 1e9 / kReads, "ns");
    bench::Ratio("activex/get-property", reads.ours, reads.theirs);
    pDispatch->Release();
    grid.SetTextMatrix(1, 1, "a text of some length");
    const double text = bench::MedianOf([&] {
        return bench::Time([&] {
            for (int i = 0; i < kTexts; ++i) {
                s_nRead = grid.GetTextMatrix(1, 1).GetLength();
            }
        });
    });
    bench::Figure("activex/get-text", text * 1e6 / kTexts, "us");
}

double FillFlexGrid(bench::Frame& frame, const std::vector<CString>& texts) {
    CFlexGrid grid;
    grid.Create(nullptr, WS_CHILD | WS_VISIBLE, kPlace, &frame, 1);
    return bench::Time([&] {
        grid.SetRedraw(FALSE);
        grid.SetRows(kRows);
        grid.SetCols(kCols);
        for (int nRow = 0; nRow < kRows; ++nRow) {
            for (int nCol = 0; nCol < kCols; ++nCol) {
                grid.SetTextMatrix(nRow, nCol, texts[nRow * kCols + nCol]);
            }
        }
        grid.SetRedraw(TRUE);
        grid.UpdateWindow();
    });
}

double FillGrid(bench::Frame& frame, const std::vector<CString>& texts) {
    QVGridCtrl grid;
    for (int nCol = 0; nCol < kCols; ++nCol) {
        grid.AddColumn(gctStatic, 64);
    }
    grid.Create(1, kPlace, &frame);
    return bench::Time([&] {
        grid.SetRedraw(FALSE);
        for (int nRow = 0; nRow < kRows; ++nRow) {
            grid.AddRow("", 0);
            for (int nCol = 0; nCol < kCols; ++nCol) {
                grid.SetCellText(nRow, nCol, texts[nRow * kCols + nCol]);
            }
        }
        grid.SetRedraw(TRUE);
        grid.UpdateWindow();
    });
}

}  // namespace

void MeasureActiveX() {
    ::OleInitialize(nullptr);
    AfxEnableControlContainer();
    QVRegisterControls();
    {
        bench::Frame frame;
        {
            CFlexGrid grid;
            if (!grid.Create(nullptr, WS_CHILD | WS_VISIBLE, kPlace, &frame, 1)) {
                return;
            }
            MeasureProperties(grid);
        }
        std::vector<CString> texts(kRows * kCols);
        for (int i = 0; i < kRows * kCols; ++i) {
            texts[i].Format("cell %d", i);
        }
        const auto fills = bench::FastestPair([&] { return FillFlexGrid(frame, texts); },
                                              [&] { return FillGrid(frame, texts); });
        bench::Figure("activex/flexgrid-fill-10k-x10", fills.ours * 1e3, "ms");
        bench::Figure("activex/grid-fill-10k-x10", fills.theirs * 1e3, "ms");
        bench::Ratio("activex/flexgrid-fill-10k-x10", fills.ours, fills.theirs);
    }
    QVRevokeControls();
    ::OleUninitialize();
}
