// The list on paper and in a file.

#include "boxes/bitmap_list_box.h"

#include "boxes/core/box_row.h"
#include "frame/core/paper_rows.h"
#include "frame/core/styled_text.h"
#include "frame/core/tab_stops.h"
#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"

#include <afxext.h>

#include <algorithm>

void QVBitmapListBox::SetPrintFonts(CFont* pItemFont, CFont* pHeaderFont) {
    m_pPrintFont = pItemFont;
    m_pPrintHeaderFont = pHeaderFont;
}

void QVBitmapListBox::BeginPrinting(CDC*, CPrintInfo*) {
    qv::MemorySuffices([&] {
        m_penPrint.DeleteObject();
        m_penPrint.CreateStockObject(BLACK_PEN);
    });
}

void QVBitmapListBox::EndPrinting(CDC*, CPrintInfo*) {
    m_penPrint.DeleteObject();
    m_pPrintFont = nullptr;
    m_pPrintHeaderFont = nullptr;
    m_nPrintHeaderHeight = 0;
}

int QVBitmapListBox::HeaderPrintHeight(CDC* pDC) {
    if (m_nPrintHeaderHeight != 0) {
        return m_nPrintHeaderHeight;
    }
    const qv::SelectGuard<CFont> font(*pDC, m_pPrintHeaderFont);
    return qv::HeaderBand(qv::TextExtent(*pDC, "0").cy);
}

int QVBitmapListBox::CalcPrintTabStops(CDC* pDC, int) {
    int nTabs = 0;
    qv::MemorySuffices([&] {
        const qv::AliveWatch watch(m_alive);
        CString strTitles;
        ReadTitles(strTitles);
        if (!watch) {
            return;
        }
        {
            const qv::SelectGuard<CFont> font(*pDC, m_pPrintHeaderFont);
            MakeTabsFromString(pDC, strTitles, m_anPrintTabs);
        }
        const qv::SelectGuard<CFont> font(*pDC, m_pPrintFont);
        const int nCalculated = CalcTabs(pDC, m_anPrintTabs);
        if (!watch) {
            return;
        }
        nTabs = std::clamp(nCalculated, 0, kTableSize);
        std::copy(std::begin(m_anPrintTabs), std::end(m_anPrintTabs), m_anPrintHeaderTabs);
        for (int nTab = 1; nTab < nTabs; ++nTab) {
            SetTabFormat(nTab, DT_CENTER, m_anPrintHeaderTabs);
        }
    });
    return nTabs;
}

// Without titles there is a rule all the same, at the top.
void QVBitmapListBox::PrintHeader(CDC* pDC, const CRect& rc) {
    qv::MemorySuffices([&] {
        const qv::AliveWatch watch(m_alive);
        CString strTitles;
        ReadTitles(strTitles);
        if (!watch) {
            return;
        }
        const qv::SelectGuard<CPen> pen(*pDC, &m_penPrint);
        const qv::SelectGuard<CFont> font(*pDC, m_pPrintHeaderFont);
        int nHeight = 0;
        if (!strTitles.IsEmpty()) {
            nHeight = qv::TextExtent(*pDC, qv::View(strTitles)).cy;
            OutputFormattedText(pDC, rc, strTitles, FALSE, m_anPrintHeaderTabs, FALSE);
        }
        const int y = rc.top + qv::RuleOffset(nHeight);
        pDC->MoveTo(rc.left, y);
        pDC->LineTo(rc.right, y);
    });
}

int QVBitmapListBox::PrintItems(CDC* pDC, CPrintInfo* pInfo, const CRect& rc) {
    const qv::SelectGuard<CFont> font(*pDC, m_pPrintFont);
    const int nHeight = qv::TextExtent(*pDC, "0").cy;
    const int nPerPage = qv::RowsThatFit(rc.Height(), nHeight);
    const auto nFirst = static_cast<ULONGLONG>(pInfo->m_nCurPage - 1) * static_cast<UINT>(nPerPage);
    const int nRows = GetCount();
    if (nRows <= 0 || nFirst >= static_cast<ULONGLONG>(nRows)) {
        return 0;
    }
    return PrintRows(*pDC, static_cast<int>(nFirst),
                     std::min(nPerPage, nRows - static_cast<int>(nFirst)), nHeight, rc);
}

// Gives how many were printed: fewer without memory.
int QVBitmapListBox::PrintRows(CDC& dc, int nFirst, int nMost, int nHeight, CRect rcRow) {
    int nPrinted = 0;
    qv::MemorySuffices([&] {
        CString strRow;  // an empty row prints the text that is still there
        for (; nPrinted < nMost; ++nPrinted) {
            CString strStored = Stored(nFirst + nPrinted);
            if (!strStored.IsEmpty()) {
                KeepText(strStored);
                strRow = strStored;
            }
            rcRow.bottom = rcRow.top + nHeight;
            OutputFormattedText(&dc, rcRow, strRow, FALSE, m_anPrintTabs, FALSE);
            rcRow.top = rcRow.bottom;
        }
    });
    return nPrinted;
}

int QVBitmapListBox::ExportData(const char* pszPath, char chSeparator) {
    bool bWritten = false;
    qv::MemorySuffices([&] {
        CStdioFile file;
        if (file.Open(pszPath, CFile::modeCreate | CFile::modeWrite | CFile::typeText)) {
            WriteRows(file, chSeparator);
            file.Close();
            bWritten = true;
        }
    });
    return bWritten;
}

void QVBitmapListBox::WriteRows(CStdioFile& file, char chSeparator) const {
    std::string strLine;
    const int nRows = GetCount();
    for (int nRow = 0; nRow < nRows; ++nRow) {
        const CString strStored = Stored(nRow);
        if (strStored.IsEmpty()) {
            continue;
        }
        const std::string_view row = qv::SplitBoxRow(qv::View(strStored), Place()).text;
        strLine.clear();
        int nStyle;
        std::string_view field;
        for (int nPos = 0; qv::NextField(row, nPos, field);) {
            qv::JoinCell(strLine, m_aStyles.ParseField(field, nStyle), chSeparator);
        }
        strLine += '\n';
        file.WriteString(strLine.c_str());
    }
}
