#include "list/list_ctrl.h"

#include "frame/core/paper_rows.h"
#include "frame/core/styled_text.h"
#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "list/cell_row.h"
#include "list/list_ctrl_core.h"

#include <afxext.h>

void QVListCtrlEx::SetPrintFonts(CFont* pItemFont, CFont* pHeaderFont) {
    m_pPrintFont = pItemFont;
    m_pPrintHeaderFont = pHeaderFont;
}

// A step of a print run; a run of which one finds no memory is not complete.
template <class Step>
bool QVListCtrlEx::PrintStep(Step step) {
    const qv::AliveWatch watch(m_alive);
    const bool bDone = qv::MemorySuffices(step);
    if (!bDone && watch) {
        m_pCore->bPrintComplete = false;
    }
    return bDone;
}

BOOL QVListCtrlEx::IsPrintComplete() const {
    return m_pCore->bPrintComplete;
}

void QVListCtrlEx::BeginPrinting(CDC* pDC, CPrintInfo*) {
    m_pCore->bPrintComplete = true;
    PrintStep([&] {
        CWindowDC dc(this);
        m_penPrint.DeleteObject();
        m_penPrint.CreateStockObject(BLACK_PEN);
        m_nPrintScale =
            qv::PrintScale(pDC->GetDeviceCaps(LOGPIXELSX), dc.GetDeviceCaps(LOGPIXELSX));
    });
}

void QVListCtrlEx::EndPrinting(CDC*, CPrintInfo*) {
    m_penPrint.DeleteObject();
    m_nPrintScale = 1;
    m_pPrintFont = nullptr;
    m_pPrintHeaderFont = nullptr;
    m_nPrintHeaderHeight = 0;
}

int QVListCtrlEx::HeaderPrintHeight(CDC* pDC) {
    if (m_nPrintHeaderHeight != 0) {
        return m_nPrintHeaderHeight;
    }
    const qv::SelectGuard<CFont> font(*pDC, m_pPrintHeaderFont);
    return qv::HeaderBand(qv::TextExtent(*pDC, "0").cy);
}

int QVListCtrlEx::CalculateItemHeight(CDC* pDC) {
    const qv::SelectGuard<CFont> font(*pDC, m_pPrintFont);
    return qv::TextExtent(*pDC, "0").cy;
}

void QVListCtrlEx::ExcludeColumnFromPrinting(int nCol) {
    qv::MemorySuffices([&] { m_pCore->columns.Exclude(nCol); });
}

BOOL QVListCtrlEx::IsColumnExcludedFromPrinting(int nCol) const {
    return m_pCore->columns.IsExcluded(nCol);
}

int* QVListCtrlEx::PrintColWidths() {
    return m_pCore->columns.PrintWidths();
}

int QVListCtrlEx::GetPrintColWidth(int nCol) {
    int nWidth = 0;
    PrintStep([&] { nWidth = GetColWidth(nCol, PrintColWidths()); });
    return nWidth;
}

int QVListCtrlEx::CalcExcludedColsWidth() {
    int nWidth = 0;
    for (const int nCol : m_pCore->columns.Excluded()) {
        nWidth += GetColumnWidth(nCol);
    }
    return nWidth;
}

int QVListCtrlEx::CalcPrintCols(CDC*, int nPageWidth) {
    const int nTotal = CalcDataWidth(nullptr) - CalcExcludedColsWidth();
    const bool bSpread = PrintStep([&] {
        m_pCore->columns.SpreadOverPage(nPageWidth, nTotal,
                                        [this](int nCol) { return GetColWidth(nCol, nullptr); });
    });
    return bSpread ? NumColumns() : 0;
}

// The margins of cells, on a context that is a printer's in its units.
int QVListCtrlEx::PrintMargin(const CDC& dc) const {
    return qv::kCellMargin * (dc.IsPrinting() ? m_nPrintScale : 1);
}

void QVListCtrlEx::PrintHeader(CDC* pDC, const CRect& rc) {
    PrintStep([&] { PrintHeadings(pDC, rc); });
}

// The headings of the columns that are printed, aligned by themselves and without colours.
class QVListCtrlEx::HeadingCells : public qv::CellRow {
public:
    HeadingCells(QVListCtrlEx& list, std::string_view headings)
        : m_list(list), m_headings(headings) {}

    bool Next(qv::Cell& cell) override {
        std::string_view field;
        do {
            if (!qv::NextField(m_headings, m_nPos, field)) {
                return false;
            }
            ++m_nCol;
        } while (m_list.IsColumnExcludedFromPrinting(m_nCol));
        cell.look = qv::ReadCell(m_list.m_aStyles, field, 0, 0);
        cell.look.crText.reset();
        cell.nWidth = m_list.GetPrintColWidth(m_nCol);
        cell.nAlign = m_list.GetHdrDrawFormat(m_nCol);
        return true;
    }

private:
    QVListCtrlEx& m_list;
    const std::string_view m_headings;
    int m_nPos = 0;
    int m_nCol = -1;
};

void QVListCtrlEx::PrintHeadings(CDC* pDC, const CRect& rc) {
    const qv::SelectGuard<CPen> pen(*pDC, &m_penPrint);
    const qv::SelectGuard<CFont> font(*pDC, m_pPrintHeaderFont);
    CString strHeaders;
    ReadHeadings(strHeaders);
    if (strHeaders.IsEmpty()) {
        return;
    }
    HeadingCells cells(*this, qv::View(strHeaders));
    cells.nMargin = PrintMargin(*pDC);
    qv::DrawCells(*pDC, rc, cells);
    const int y = rc.top + qv::RuleOffset(qv::TextExtent(*pDC, qv::View(strHeaders)).cy);
    pDC->MoveTo(rc.left, y);
    pDC->LineTo(rc.right, y);
}

int QVListCtrlEx::RowsThatFit(CDC* pDC, const CRect& rc, int& nHeight) {
    nHeight = CalculateItemHeight(pDC);
    return qv::RowsThatFit(rc.Height(), nHeight);
}

// Rows nFirst up to nEnd, without it, but no more than nMost.
int QVListCtrlEx::PrintRows(CDC* pDC, UINT nFirst, UINT nEnd, const CRect& rc, int nHeight,
                            int nMost) {
    const qv::ColorGuard colors(*pDC);
    int nPrinted = 0;
    PrintStep([&] {
        const qv::WindowWatch watch(m_alive, m_hWnd);
        CRect rcRow(rc);
        for (UINT nItem = nFirst; nItem < nEnd && nPrinted < nMost; ++nItem, ++nPrinted) {
            rcRow.bottom = rcRow.top + nHeight;
            DrawItemText(pDC, nItem, rcRow, FALSE, PrintColWidths());
            if (!watch) {
                break;
            }
            rcRow.top = rcRow.bottom;
        }
    });
    return nPrinted;
}

int QVListCtrlEx::PrintItems(CDC* pDC, CPrintInfo* pInfo, const CRect& rc) {
    const qv::SelectGuard<CFont> font(*pDC, m_pPrintFont);
    int nHeight;
    const int nPerPage = RowsThatFit(pDC, rc, nHeight);
    const UINT nFirst = (pInfo->m_nCurPage - 1) * static_cast<UINT>(nPerPage);
    return PrintRows(pDC, nFirst, static_cast<UINT>(GetItemCount()), rc, nHeight, nPerPage);
}

int QVListCtrlEx::PrintItems(CDC* pDC, UINT nFirst, UINT nLast, const CRect& rc) {
    const qv::SelectGuard<CFont> font(*pDC, m_pPrintFont);
    int nHeight;
    const int nPerPage = RowsThatFit(pDC, rc, nHeight);
    const UINT nEnd = nLast + 1 != 0 ? nLast + 1 : nLast;
    return PrintRows(pDC, nFirst, nEnd, rc, nHeight, nPerPage);
}

BOOL QVListCtrlEx::ExportData(LPCSTR pszPath, char chSeparator) {
    bool bWritten = false;
    qv::MemorySuffices([&] {
        CStdioFile file;
        bWritten = file.Open(pszPath, CFile::modeCreate | CFile::modeWrite | CFile::typeText) &&
                   WriteRows(file, chSeparator);
    });
    return bWritten;
}

// False if the list is gone.
bool QVListCtrlEx::WriteRows(CStdioFile& file, char chSeparator) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    std::string strLine;
    const int nItems = GetItemCount();
    for (int nItem = 0; nItem < nItems; ++nItem) {
        strLine.clear();
        for (int nCol = 0; nCol < NumColumns(); ++nCol) {
            LPCSTR pszCell = CellText(nItem, nCol);
            if (!watch) {
                return false;
            }
            qv::JoinCell(strLine, ParseStyleText(pszCell), chSeparator);
        }
        strLine += '\n';
        file.WriteString(strLine.c_str());
    }
    file.Close();
    return true;
}
