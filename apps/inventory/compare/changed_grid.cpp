#include "compare/changed_grid.h"

#include "compare/difference_colors.h"
#include "model/stanza.h"

#include <algorithm>

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr int kHeadingRows = 1;
constexpr int kSectionColumns = 1;
constexpr short kLeft = 1;  // both centred from top to bottom
constexpr short kRight = 7;
constexpr long kMergeFree = 1;
constexpr long kWholeBlock = 1;  // what a cell's property is set for
constexpr long kResizeColumns = 1;
constexpr int kCellMargins = 12;  // pixels
constexpr long kSystemColor = static_cast<long>(0x80000000);

constexpr struct {
    LPCSTR pszHeading;
    LPCSTR pszSample;
    short nAlignment;
} kGridColumns[ChangedGrid::kColumns] = {
    {"Section", "interpreters~", kLeft},    {"Package", "a-package-with-a-long-name", kLeft},
    {"Architecture", "amd64~", kLeft},      {"Before", "1:14.0.6-12+deb12u1~", kLeft},
    {"Now", "1:14.0.6-12+deb12u1~", kLeft}, {"Size", "+999.9 MiB~", kRight},
    {"Change", "newer, larger", kLeft}};
constexpr int kRowsAtOnce = 1000;

// As many rows as any window shows of the lowest height that they may have.
constexpr int kTipRowHeight = 12;

void PickRow(CFlexGrid& grid, long nFirst, long nLast) {
    grid.SetRow(nFirst);
    grid.SetRowSel(nLast);
}

}  // namespace

CString ChangedGrid::CellText(const Difference& difference, int nCol) {
    const Package& package = difference.Shown();
    const auto text = [&]() -> std::string {
        switch (nCol) {
            case kSection:
                return package.strSection;
            case kName:
                return package.strName;
            case kArchitecture:
                return package.strArchitecture;
            case kBefore:
                return difference.pBefore->strVersion;
            case kNow:
                return package.strVersion;
            case kSize:
                return difference.Growth() != 0 ? GrowthText(difference.Growth()) : "";
            default:
                return ChangeWords(difference);
        }
    };
    return Printable(text()).c_str();
}

int ChangedGrid::CellStyle(const Difference& difference, int nCol) {
    return nCol == kNow      ? VersionStyle(difference)
           : nCol == kSize   ? SizeStyle(difference)
           : nCol == kChange ? ChangeStyle(difference)
                             : kPlainStyle;
}

BOOL ChangedGrid::Make(CWnd* pParent, UINT nID) {
    CRect rc;
    pParent->GetClientRect(&rc);
    if (!Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, rc, pParent, nID, nullptr)) {
        return FALSE;
    }
    SetCols(kColumns);
    SetFixedCols(kSectionColumns);
    SetAllowUserResizing(kResizeColumns);
    SetMergeCells(kMergeFree);
    SetMergeCol(0, TRUE);
    SetBackColorBkg(kSystemColor | COLOR_WINDOW);
    CClientDC dc(this);
    const qv::SelectGuard select(dc, pParent->GetFont());
    const int nDpi = std::max(dc.GetDeviceCaps(LOGPIXELSX), 1);
    for (int nCol = 0; nCol < kColumns; ++nCol) {
        const auto& column = kGridColumns[nCol];
        const int nWidth = std::max<int>(dc.GetTextExtent(CString(column.pszSample)).cx,
                                         dc.GetTextExtent(CString(column.pszHeading)).cx) +
                           kCellMargins;
        SetColWidth(nCol, ::MulDiv(nWidth, kTwipsPerInch, nDpi));
        SetColAlignment(nCol, column.nAlignment);
        SetFixedAlignment(nCol, kLeft);
    }
    m_nLeastWidth = GetColWidth(kChange);
    // A tip belongs to a place in the window and says what is there then: those that can be seen
    // are enough for any number of rows.
    SetRows(kHeadingRows + ::GetSystemMetrics(SM_CYVIRTUALSCREEN) / kTipRowHeight);
    EnableToolTip();
    SetRows(kHeadingRows + 1);
    return TRUE;
}

void ChangedGrid::Fit() {
    CRect rc;
    GetClientRect(&rc);
    CClientDC dc(this);
    const int nDpi = std::max(dc.GetDeviceCaps(LOGPIXELSX), 1);
    long nLeft = 0;
    for (int nCol = 0; nCol < kChange; ++nCol) {
        nLeft += GetColWidth(nCol);
    }
    const bool bHasBar = (GetStyle() & WS_VSCROLL) != 0;
    const int nRoom = rc.Width() - (bHasBar ? 0 : ::GetSystemMetrics(SM_CXVSCROLL));
    SetColWidth(kChange,
                std::max<long>(::MulDiv(nRoom, kTwipsPerInch, nDpi) - nLeft, m_nLeastWidth));
}

// By what the cells say: the packages may be gone.
CString ChangedGrid::KeyOf(long nGridRow) {
    return nGridRow < GetRows()
               ? GetTextMatrix(nGridRow, kName) + "\t" + GetTextMatrix(nGridRow, kArchitecture)
               : CString();
}

void ChangedGrid::Show(const std::vector<Difference>& differences) {
    if (!GetTextMatrix(kHeadingRows, kName).IsEmpty()) {
        m_strFront = KeyOf(GetRow());
        m_strTop = KeyOf(GetTopRow());
    }
    m_pDifferences = &differences;
    SetRedraw(FALSE);
    Fill();
    ColorColumns();
    SetCol(kSectionColumns);
    long nFront = kHeadingRows;
    long nTop = kHeadingRows;
    long nRow = kHeadingRows;
    for (const Difference& difference : differences) {
        const CString strKey =
            CellText(difference, kName) + "\t" + CellText(difference, kArchitecture);
        nFront = strKey == m_strFront ? nRow : nFront;
        nTop = strKey == m_strTop ? nRow : nTop;
        ++nRow;
    }
    PickRow(*this, nFront, nFront);
    SetColSel(differences.empty() ? kSectionColumns : kColumns - 1);
    SetTopRow(nTop);
    SetRedraw(TRUE);
}

// A grid keeps a row below its heading, be it an empty one.
void ChangedGrid::Fill() {
    const int nRows = static_cast<int>(m_pDifferences->size());
    Clear();
    for (int nCol = 0; nCol < kColumns; ++nCol) {
        SetTextMatrix(0, nCol, kGridColumns[nCol].pszHeading);
    }
    SetRows(kHeadingRows + std::max(nRows, 1));
    for (int nFirst = 0; nFirst < nRows; nFirst += kRowsAtOnce) {
        const int nEnd = std::min(nFirst + kRowsAtOnce, nRows);
        std::string strCells;
        for (int nRow = nFirst; nRow < nEnd; ++nRow) {
            for (int nCol = 0; nCol < kColumns; ++nCol) {
                strCells += CellText((*m_pDifferences)[static_cast<size_t>(nRow)], nCol);
                strCells += nCol < kColumns - 1 ? '\t' : '\r';
            }
        }
        SetCol(0);
        PickRow(*this, kHeadingRows + nFirst, kHeadingRows + nEnd - 1);
        SetColSel(kColumns - 1);
        SetClip(strCells.c_str());
    }
}

void ChangedGrid::ColorColumns() {
    for (const int nCol : {kNow, kSize, kChange}) {
        ColorColumn(nCol);
    }
}

void ChangedGrid::UseColors() {
    if (m_pDifferences == nullptr) {
        return;
    }
    const long nRow = GetRow();
    const long nRowSel = GetRowSel();
    const long nCol = GetCol();
    const long nColSel = GetColSel();
    const long nTop = GetTopRow();
    SetRedraw(FALSE);
    ColorColumns();
    SetCol(nCol);
    SetColSel(nColSel);
    PickRow(*this, nRow, nRowSel);
    SetTopRow(nTop);
    SetRedraw(TRUE);
}

// Rows of one colour that follow each other at a time.
void ChangedGrid::ColorColumn(int nCol) {
    SetFillStyle(kWholeBlock);
    SetCol(nCol);
    SetColSel(nCol);
    const int nRows = static_cast<int>(m_pDifferences->size());
    const auto style = [&](int nRow) {
        return CellStyle((*m_pDifferences)[static_cast<size_t>(nRow)], nCol);
    };
    for (int nFirst = 0, nEnd = 0; nFirst < nRows; nFirst = nEnd) {
        while (nEnd < nRows && style(nEnd) == style(nFirst)) {
            ++nEnd;
        }
        if (style(nFirst) != kPlainStyle) {
            PickRow(*this, kHeadingRows + nFirst, kHeadingRows + nEnd - 1);
            const QVSTYLE colors = ColorsOnScreen(kDifferenceColors[style(nFirst)]);
            SetCellForeColor(static_cast<long>(colors.crText));
            SetCellBackColor(static_cast<long>(colors.crBk));
        }
    }
    SetFillStyle(0);
}

const Difference* ChangedGrid::At(long nGridRow) const {
    const long nRow = nGridRow - kHeadingRows;
    return m_pDifferences != nullptr && nRow >= 0 &&
                   nRow < static_cast<long>(m_pDifferences->size())
               ? &(*m_pDifferences)[static_cast<size_t>(nRow)]
               : nullptr;
}

int ChangedGrid::Row() {
    const Difference* const pDifference = At(GetRow());
    return pDifference != nullptr ? static_cast<int>(pDifference - m_pDifferences->data()) : -1;
}

// All of the row, which shows while another window has the focus as well.
void ChangedGrid::GoTo(int nRow) {
    const long nCell = kHeadingRows + nRow;
    SetCol(kSectionColumns);
    PickRow(*this, nCell, nCell);
    SetColSel(kColumns - 1);
    if (!GetRowIsVisible(nCell)) {
        SetTopRow(nCell);
    }
}

CRect ChangedGrid::FocusRect() {
    const long nRow = GetRow();
    const long nCol = GetCol();
    if (!GetRowIsVisible(nRow) || !GetColIsVisible(nCol)) {
        return CRect(0, 0, 0, 0);
    }
    const int nDpi = std::max(CClientDC(this).GetDeviceCaps(LOGPIXELSX), 1);
    const auto pixels = [&](long nTwips) { return ::MulDiv(nTwips, nDpi, kTwipsPerInch); };
    return CRect(CPoint(pixels(GetColPos(nCol)), pixels(GetRowPos(nRow))),
                 CSize(pixels(GetColWidth(nCol)), pixels(GetRowHeight(nRow))));
}

void ChangedGrid::SelectAll() {
    SetCol(kSectionColumns);
    PickRow(*this, kHeadingRows, GetRows() - 1);
    SetColSel(kColumns - 1);
}

// Among controls of its kind the grid is alone: the Tab key is its page's.
BOOL ChangedGrid::PreTranslateMessage(MSG* pMsg) {
    const bool bTab = pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB;
    return bTab ? GetParent()->PreTranslateMessage(pMsg)
                : QVFlexGridCtrl::PreTranslateMessage(pMsg);
}

CString ChangedGrid::SelectedText() {
    int nTop = 0, nBottom = 0, nLeft = 0, nRight = 0;
    GetSelectedRange(nTop, nBottom, nLeft, nRight);
    CString strText;
    for (int nRow = nTop; nRow <= nBottom; ++nRow) {
        for (int nCol = nLeft; nCol <= nRight; ++nCol) {
            strText += GetTextMatrix(nRow, nCol) + (nCol < nRight ? "\t" : "\r\n");
        }
    }
    return strText;
}

int ChangedGrid::GetCellToolTip(int nRow, int, char* pszText) {
    const Difference* const pDifference = At(nRow);
    if (pDifference == nullptr) {
        return 0;
    }
    // Lines that there is no more room for are left out.
    std::string strTip;
    std::vector<std::string> lines = ChangeLines(*pDifference);
    lines.insert(lines.begin(), pDifference->Shown().strName);
    for (const std::string& strLine : lines) {
        if (strTip.size() + strLine.size() + 2 < static_cast<size_t>(kToolTipRoom)) {
            (strTip += strTip.empty() ? "" : "\r\n") += Printable(strLine);
        }
    }
    strTip.copy(pszText, strTip.size());
    pszText[strTip.size()] = '\0';
    return static_cast<int>(strTip.size());
}
