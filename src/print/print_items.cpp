#include "print/print_items.h"

#include "common/process_text.h"
#include "frame/core/paper_rows.h"
#include "frame/core/styled_text.h"
#include "frame/dc_guards.h"
#include "frame/text_out.h"
#include "list/cell_row.h"
#include "list/list_ctrl.h"
#include "print/core/pagination.h"
#include "print/core/row_split.h"
#include "print/core/text_wrap.h"

#include <algorithm>

namespace {

constexpr unsigned kSectionLines = 3;  // one blank, the text, one blank
constexpr UINT kLineFlags = DT_NOPREFIX | DT_SINGLELINE;

unsigned Rows(const CRect& rect, unsigned nRowHeight) {
    return static_cast<unsigned>(qv::RowsThatFit(rect.Height(), static_cast<int>(nRowHeight)));
}

// Rows nFirst to nLast take no height if there are none: a first row may lie behind the last.
unsigned RowsHeight(unsigned nFirst, unsigned nLast, unsigned nRowHeight) {
    const unsigned nEnd = nLast + 1;
    return nEnd > nFirst ? (nEnd - nFirst) * nRowHeight : 0;
}

}  // namespace

// --- QVPrintEngineData

QVPrintEngineData::QVPrintEngineData(CFont* pHeaderFont, unsigned nHeaderHeight, CFont* pNormalFont,
                                     unsigned nNormalHeight)
    : m_pHeaderFont(pHeaderFont),
      m_pNormalFont(pNormalFont),
      m_nHeaderFontHeight(nHeaderHeight),
      m_nNormalFontHeight(nNormalHeight) {}

bool QVPrintEngineData::PrintSize(unsigned, unsigned&, unsigned& nRemaining) {
    nRemaining -= std::min(MinSize(), nRemaining);
    return true;
}

// --- Break

QVPeDataBreak::QVPeDataBreak(QVPeFont header, QVPeFont normal)
    : QVPrintEngineData(header.pFont, header.nHeight, normal.pFont, normal.nHeight) {
    SetMinSize(normal.nHeight);
    SetMaxSize(normal.nHeight);
}

void QVPeDataBreak::Print(CDC*, CRect& rect, unsigned, unsigned) {
    rect.top += static_cast<LONG>(MaxSize());
}

// --- Headers

QVPeDataSectionHeader::QVPeDataSectionHeader(const char* pszText, QVPeFont header, QVPeFont normal)
    : QVPrintEngineData(header.pFont, header.nHeight, normal.pFont, normal.nHeight),
      m_strText(pszText) {
    SetMinSize(kSectionLines * header.nHeight);
    SetMaxSize(kSectionLines * header.nHeight);
}

void QVPeDataSectionHeader::Print(CDC* pDC, CRect& rect, unsigned, unsigned) {
    CRect rcText(rect);
    rcText.top += static_cast<LONG>(HeaderFontHeight());
    rcText.bottom = rcText.top + static_cast<LONG>(HeaderFontHeight());
    const qv::SelectGuard<CFont> font(*pDC, HeaderFont());
    qv::DrawTextIn(*pDC, qv::View(m_strText), rcText, kPrintLabelFlags);
    rect.top += static_cast<LONG>(MaxSize());
}

QVPeDataGroupHeader::QVPeDataGroupHeader(const char* pszText, QVPeFont header, QVPeFont normal)
    : QVPrintEngineData(header.pFont, header.nHeight, normal.pFont, normal.nHeight),
      m_strText(pszText) {
    SetMinSize(normal.nHeight);
    SetMaxSize(normal.nHeight);
}

// In the normal font: the header font goes with headers that stand alone.
void QVPeDataGroupHeader::Print(CDC* pDC, CRect& rect, unsigned, unsigned) {
    CRect rcText(rect);
    rcText.bottom = rcText.top + static_cast<LONG>(NormalFontHeight());
    const qv::SelectGuard<CFont> font(*pDC, NormalFont());
    qv::DrawTextIn(*pDC, qv::View(m_strText), rcText, kPrintLabelFlags);
    rect.top += static_cast<LONG>(MaxSize());
}

// --- Text

QVPeDataText::QVPeDataText(CDC* pDC, CFont* pFont)
    : QVPrintEngineData(nullptr, 0, pFont, 0), m_pDC(pDC) {
    const qv::SelectGuard<CFont> font(*pDC, pFont);
    m_nLineHeight = static_cast<unsigned>(qv::TextExtent(*pDC, "0").cy);
    SetMinSize(m_nLineHeight);
    SetMaxSize(m_nLineHeight);
}

QVPeDataText::QVPeDataText(CDC* pDC, const CString& strText, CFont* pFont)
    : QVPeDataText(pDC, pFont) {
    m_aSource.Add(strText);
}

QVPeDataText::QVPeDataText(CDC* pDC, const CStringArray& aText, CFont* pFont)
    : QVPeDataText(pDC, pFont) {
    m_aSource.Append(aText);
}

void QVPeDataText::CalcSize(unsigned nWidth) {
    if (m_bWrapped && m_nWidth == nWidth) {
        return;
    }
    const qv::SelectGuard<CFont> font(*m_pDC, NormalFont());
    qv::DcMeasure measure(*m_pDC);
    std::vector<std::string_view> lines;
    std::vector<CString> aLines;
    for (INT_PTR i = 0; i < m_aSource.GetSize(); ++i) {
        const CString& strSource = m_aSource.ElementAt(i);
        lines.clear();
        qv::WrapLine({strSource, static_cast<size_t>(strSource.GetLength())}, nWidth, measure,
                     qv::ProcessText(), lines);
        for (const std::string_view line : lines) {
            aLines.emplace_back(line.data(), static_cast<int>(line.size()));
        }
    }
    m_aLines.swap(aLines);
    m_bWrapped = true;
    m_nWidth = nWidth;
    SetMaxSize(m_nLineHeight * Count());
}

bool QVPeDataText::PrintSize(unsigned nFirst, unsigned& nLast, unsigned& nRemaining) {
    return qv::FitRows(Count(), 0, m_nLineHeight, nFirst, nLast, nRemaining);
}

void QVPeDataText::Print(CDC* pDC, CRect& rect, unsigned nFirst, unsigned nLast) {
    if (nLast == qv::kToEnd) {
        nLast = Count() - 1;
    }
    PrintLines(pDC, nFirst, nLast, rect);
    rect.top += static_cast<LONG>(RowsHeight(nFirst, nLast, m_nLineHeight));
}

void QVPeDataText::PrintLines(CDC* pDC, unsigned nFirst, unsigned nLast, const CRect& rect) {
    const qv::SelectGuard<CFont> font(*pDC, NormalFont());
    const unsigned nRows = Rows(rect, m_nLineHeight);
    const unsigned nEnd = std::min(nLast + 1, Count());
    CRect rcLine(rect);
    for (unsigned n = 0; n < nRows && nFirst + n < nEnd; ++n) {
        rcLine.bottom = rcLine.top + static_cast<LONG>(m_nLineHeight);
        qv::DrawTextIn(*pDC, qv::View(m_aLines[nFirst + n]), rcLine, kLineFlags);
        rcLine.top = rcLine.bottom;
    }
}

// --- Lists

QVPeDataListBase::QVPeDataListBase(CDC* pDC, QVListCtrlEx* pList, QVPeFont header, QVPeFont normal)
    : QVPrintEngineData(header.pFont, header.nHeight, normal.pFont, normal.nHeight),
      m_pDC(pDC),
      m_pList(pList) {
    try {
        BeginRun();
    } catch (...) {
        EndRun();  // no destructor will
        throw;
    }
}

QVPeDataListBase::~QVPeDataListBase() {
    EndRun();
}

void QVPeDataListBase::BeginRun() {
    CPrintInfo info;
    m_pList->SetPrintFonts(NormalFont(), HeaderFont());
    m_pList->BeginPrinting(m_pDC, &info);
    if ((m_pList->GetStyle() & LVS_NOCOLUMNHEADER) == 0) {
        m_nHeaderHeight = static_cast<unsigned>(m_pList->HeaderPrintHeight(m_pDC));
    }
    m_nItemHeight = static_cast<unsigned>(m_pList->CalculateItemHeight(m_pDC));
}

// Comes from the destructor and from a constructor that fails: nothing may be thrown, not even by a
// list that replaces the step.
void QVPeDataListBase::EndRun() noexcept {
    try {
        m_pList->EndPrinting(m_pDC, &m_infoForEnd);
    } catch (CException* pException) {
        pException->Delete();
    } catch (...) {
    }
}

void QVPeDataListBase::TakeSizes() {
    SetMinSize(m_nHeaderHeight + m_nItemHeight);
    SetMaxSize(m_nHeaderHeight + Count() * m_nItemHeight);
}

bool QVPeDataListBase::PrintSize(unsigned nFirst, unsigned& nLast, unsigned& nRemaining) {
    return qv::FitRows(Count(), m_nHeaderHeight, m_nItemHeight, nFirst, nLast, nRemaining);
}

void QVPeDataListBase::Print(CDC* pDC, CRect& rect, unsigned nFirst, unsigned nLast) {
    m_pList->CalcPrintCols(pDC, rect.Width());
    m_pList->SetPrintFonts(NormalFont(), HeaderFont());
    if (m_nHeaderHeight != 0) {
        CRect rcHeader(rect);
        rcHeader.bottom = rect.top + static_cast<LONG>(m_nHeaderHeight);
        m_pList->PrintHeader(pDC, rcHeader);
        rect.top = rcHeader.bottom;
    }
    if (nLast == qv::kToEnd) {
        nLast = Count() - 1;
    }
    const unsigned nHeight = RowsHeight(nFirst, nLast, m_nItemHeight);
    if (nHeight > 0) {
        PrintItems(pDC, nFirst, nLast, rect);
    }
    if (!m_pList->IsPrintComplete()) {
        SetIncomplete();
    }
    rect.top += static_cast<LONG>(nHeight);
}

QVPeDataList::QVPeDataList(CDC* pDC, QVListCtrlEx* pList, QVPeFont header, QVPeFont normal)
    : QVPeDataListBase(pDC, pList, header, normal) {
    TakeSizes();
}

unsigned QVPeDataList::Count() const {
    return static_cast<unsigned>(m_pList->GetItemCount());
}

void QVPeDataList::PrintItems(CDC* pDC, unsigned nFirst, unsigned nLast, const CRect& rect) {
    m_pList->PrintItems(pDC, nFirst, nLast, rect);
}

QVPeDataStringList::QVPeDataStringList(CDC* pDC, QVListCtrlEx* pList, CStringArray* pRows,
                                       QVPeFont header, QVPeFont normal)
    : QVPeDataListBase(pDC, pList, header, normal), m_pRows(pRows) {
    CWindowDC dc(pList);
    m_nScale = qv::PrintScale(pDC->GetDeviceCaps(LOGPIXELSX), dc.GetDeviceCaps(LOGPIXELSX));
    TakeSizes();
}

unsigned QVPeDataStringList::Count() const {
    return static_cast<unsigned>(m_pRows->GetSize());
}

namespace {

// The fields of a string in the columns of a list.
class FieldCells : public qv::CellRow {
public:
    FieldCells(QVListCtrlEx& list, std::string_view row) : m_list(list), m_row(row) {}

    bool Next(qv::Cell& cell) override {
        if (m_nCol >= m_list.NumColumns() || !qv::NextField(m_row, m_nPos, cell.look.text)) {
            return false;
        }
        cell.nWidth = m_list.GetPrintColWidth(m_nCol);
        // The last field has all that is left, unless a TAB ends it.
        cell.bToEnd = cell.look.text.end() == m_row.end();
        cell.nAlign = qv::CellDrawFormat(m_list.GetColFormat(m_nCol));
        ++m_nCol;
        return true;
    }

private:
    QVListCtrlEx& m_list;
    const std::string_view m_row;
    int m_nPos = 0;
    int m_nCol = 0;
};

}  // namespace

void QVPeDataStringList::PrintItems(CDC* pDC, unsigned nFirst, unsigned nLast, const CRect& rect) {
    const qv::SelectGuard<CFont> font(*pDC, NormalFont());
    const unsigned nRows = Rows(rect, m_nItemHeight);
    const unsigned nEnd = std::min(nLast + 1, Count());
    CRect rcRow(rect);
    for (unsigned n = 0; n < nRows && nFirst + n < nEnd; ++n) {
        rcRow.bottom = rcRow.top + static_cast<LONG>(m_nItemHeight);
        PrintRow(pDC, rcRow, m_pRows->GetAt(static_cast<INT_PTR>(nFirst + n)));
        rcRow.top = rcRow.bottom;
    }
}

void QVPeDataStringList::PrintRow(CDC* pDC, const CRect& rcRow, const CString& strRow) {
    FieldCells cells(*m_pList, qv::View(strRow));
    cells.nMargin = qv::kCellMargin * m_nScale;
    // Without width, centred and right-aligned text would stand beside its cell.
    cells.bKeepsIn = true;
    qv::DrawCells(*pDC, rcRow, cells);
}
