#include "paper_document.h"

namespace {

constexpr UINT kListId = 100;
constexpr char kFace[] = "Tahoma";
constexpr int kHeaderPoints = 10;
constexpr int kNormalPoints = 9;
constexpr int kSectionPoints = 16;

constexpr int kColumnWidths[] = {90, 60, 70, 50};  // on screen; in proportion to them on paper
constexpr int kColumns = 4;
constexpr int kAmountColumn = 3;  // right-aligned numbers
constexpr int kNone = -1;

constexpr int kStyledEvery = 5;    // rows
constexpr int kLongestTail = 11;   // letters at the end of a word of text
constexpr int kWordsPerLine = 90;  // of the source; each line wraps on its own

std::string Name(const std::string& strList, const char* pszPart, int n) {
    return strList + pszPart + std::to_string(n);
}

std::string EdgeOf(const std::string& strList, int nCol) {
    return Name((nCol == kAmountColumn ? "R" : "L") + strList, "c", nCol);
}

CString Joined(const std::vector<std::string>& cells) {
    CString strRow;
    for (size_t n = 0; n < cells.size(); ++n) {
        strRow += (n > 0 ? "\t" : "") + CString(cells[n].c_str());
    }
    return strRow;
}

}  // namespace

// --- Expectation

bool Expectation::Close() {
    const bool bGood = m_pFile != nullptr && std::ferror(m_pFile) == 0 && std::fclose(m_pFile) == 0;
    m_pFile = nullptr;
    return bGood;
}

void Expectation::Layout(const CRect& rcBox, unsigned nPages, double pitch) {
    const std::string strTop = std::to_string(rcBox.left) + " " + std::to_string(rcBox.top);
    Line("box", strTop, std::to_string(rcBox.right), std::to_string(rcBox.bottom), "");
    Line("pages", std::to_string(nPages), "", "", "");
    Line("pitch", std::to_string(pitch), "", "", "");
}

void Expectation::Line(const char* pszKind, const std::string& strList, const std::string& strRow,
                       const std::string& strEdge, const std::string& strWord) {
    if (m_pFile != nullptr) {
        std::fprintf(m_pFile, "%s %s %s %s %s\n", pszKind, strList.c_str(), strRow.c_str(),
                     strEdge.c_str(), strWord.c_str());
    }
}

// --- PaperDocument

// Counts of rows; 0 strings, totals or words leave the item out.
struct PaperDocument::Section {
    const char* pszName;
    int nRows;
    bool bHeadings;
    int nExcluded;
    bool bStyles;
    int nStrings;
    int nTotals;
    bool bIndented;
    int nWords;
};

const PaperDocument::Section PaperDocument::kSections[] = {
    {"s1", 23, true, kNone, false, 12, 4, false, 0},  // the whole of it on one page
    {"s2", 0, true, kNone, false, 0, 3, true, 520},  {"s3", 170, true, 2, true, 0, 5, false, 0},
    {"s4", 57, false, kNone, true, 90, 58, true, 0}, {"s5", 1, true, 0, false, 3, 0, false, 260},
    {"s6", 159, true, kNone, true, 41, 8, false, 0},
};

PaperDocument::Font::Font(CDC& dc, int nPoints, int nWeight) {
    LOGFONT lf{};
    lf.lfHeight = 10 * nPoints;
    lf.lfWeight = nWeight;
    lf.lfCharSet = DEFAULT_CHARSET;
    lstrcpy(lf.lfFaceName, kFace);
    CreatePointFontIndirect(&lf, &dc);
}

PaperDocument::PaperDocument(CDC& dc, Expectation& expected)
    : m_dc(dc),
      m_expected(expected),
      m_fontHeader(dc, kHeaderPoints, FW_BOLD),
      m_fontNormal(dc, kNormalPoints, FW_NORMAL),
      m_fontSection(dc, kSectionPoints, FW_BOLD),
      m_engine(&dc, &m_fontHeader, &m_fontNormal, &m_fontSection) {
    m_parent.CreateEx(0, nullptr, "paper", WS_POPUP, CRect(0, 0, 400, 300), nullptr, 0);
    for (const Section& section : kSections) {
        Add(section);
    }
}

int PaperDocument::LineHeight() {
    CFont* pOld = m_dc.SelectObject(&m_fontNormal);
    const int nHeight = m_dc.GetTextExtent("0", 1).cy;
    m_dc.SelectObject(pOld);
    return nHeight;
}

void PaperDocument::Add(const Section& section) {
    m_strSection = section.pszName;
    const std::string strTitle = m_strSection + "section";
    const std::string strHeading = m_strSection + "heading";
    m_expected.Keep(strTitle);
    m_engine.AddSectionHeader(strTitle.c_str());
    m_expected.Text(strHeading);
    m_engine.AddHeader(strHeading.c_str(), &m_dc);
    AddRows(section);
    if (section.nStrings > 0) {
        AddStrings(section);
    }
    if (section.nTotals > 0) {
        AddTotals(section);
    }
    if (section.nWords > 0) {
        AddText(section);
    }
}

// What may be split never opens a page that follows one in a split: the page's row number would
// still be that of the item before. A header in front of it sees to that.
std::string PaperDocument::AddGroup(const char* pszName) {
    const std::string strName = m_strSection + pszName;
    const std::string strTitle = strName + "group";
    m_engine.AddBreak();
    m_expected.Keep(strTitle);
    m_engine.AddGroupHeader(strTitle.c_str());
    return strName;
}

void PaperDocument::AddRows(const Section& section) {
    const std::string strList = AddGroup("rows");
    QVListCtrlEx& list = NewList(strList, section.bHeadings, section.nExcluded);
    const int nLoud = list.AddStyle(RGB(192, 0, 0), RGB(255, 255, 200));
    const int nQuiet = list.AddStyle(RGB(0, 96, 0), RGB(255, 255, 255));
    for (int nRow = 0; nRow < section.nRows; ++nRow) {
        const std::vector<std::string> cells = NewRow(strList, nRow, section.nExcluded);
        CString strRow = Joined(cells);
        if (section.bStyles && nRow % kStyledEvery == 0) {
            strRow = list.MakeStyleText(cells[0].c_str(), nLoud);
            for (size_t n = 1; n < cells.size(); ++n) {
                list.AppendStyleText(strRow, cells[n].c_str(), n % 2 == 0 ? nLoud : nQuiet);
            }
        }
        list.InsertBitmapString(0, -1, strRow);
    }
    m_engine.AddList(&list, &m_dc);
}

void PaperDocument::AddStrings(const Section& section) {
    const std::string strList = AddGroup("lines");
    QVListCtrlEx& list = NewList(strList, true, kNone);
    m_strings.push_back(std::make_unique<CStringArray>());
    for (int nRow = 0; nRow < section.nStrings; ++nRow) {
        m_strings.back()->Add(Joined(NewRow(strList, nRow, kNone)));
    }
    m_engine.AddStringList(m_strings.back().get(), &list, &m_dc);
}

void PaperDocument::AddTotals(const Section& section) {
    const std::string strList = AddGroup("sums");
    QVPeDataLabeledList& list = m_engine.AddLabeledDataList(&m_dc);
    list.SetIndented(section.bIndented);
    for (int nRow = 0; nRow < section.nTotals; ++nRow) {
        const bool bNumber = nRow % 3 != 0;
        // Labels of different lengths, data behind the longest.
        const std::string strLabel =
            Name(strList, "label", nRow) + std::string(static_cast<size_t>(nRow % 4), 'm');
        const std::string strData = bNumber ? NextAmount() : Name(strList, "data", nRow);
        m_expected.Cell(strList, nRow, "L" + strList + "label", strLabel);
        m_expected.Cell(strList, nRow, (bNumber ? "R" : "L") + strList + "data", strData);
        list.AddData(strLabel.c_str(), strData.c_str(),
                     bNumber ? QVPeDataLabeledListItem::Right : QVPeDataLabeledListItem::Left);
    }
}

void PaperDocument::AddText(const Section& section) {
    AddGroup("text");
    CStringArray lines;
    CString strLine;
    for (int n = 0; n < section.nWords; ++n) {
        const std::string strWord = Name(m_strSection, "w", n) +
                                    std::string(static_cast<size_t>(n * n % kLongestTail), 'o');
        m_expected.Text(strWord);
        strLine += (strLine.IsEmpty() ? "" : " ") + CString(strWord.c_str());
        if (n % kWordsPerLine == kWordsPerLine - 1 || n == section.nWords - 1) {
            lines.Add(strLine);
            strLine.Empty();
        }
    }
    m_engine.AddText(lines, &m_dc, nullptr);
}

QVListCtrlEx& PaperDocument::NewList(const std::string& strList, bool bHeadings, int nExcluded) {
    m_lists.push_back(std::make_unique<QVListCtrlEx>());
    QVListCtrlEx& list = *m_lists.back();
    list.ModifyDefStyle(0, bHeadings ? 0 : LVS_NOCOLUMNHEADER);
    list.Create(kListId + static_cast<UINT>(m_lists.size()), CRect(0, 0, 300, 200), &m_parent);
    std::vector<std::string> headings;
    for (int nCol = 0; nCol < kColumns; ++nCol) {
        headings.push_back(Name(strList, "h", nCol));
        if (bHeadings && nCol != nExcluded) {
            m_expected.Head(strList, EdgeOf(strList, nCol), headings.back());
        }
    }
    list.AddHeader(Joined(headings));
    for (int nCol = 0; nCol < kColumns; ++nCol) {
        list.SetColumnWidth(nCol, kColumnWidths[nCol]);
    }
    list.SetColFormat(kAmountColumn, LVCFMT_RIGHT);
    list.SetHdrFormat(kAmountColumn, LVCFMT_RIGHT);
    if (nExcluded != kNone) {
        list.ExcludeColumnFromPrinting(nExcluded);
    }
    return list;
}

std::vector<std::string> PaperDocument::NewRow(const std::string& strList, int nRow,
                                               int nExcluded) {
    std::vector<std::string> cells;
    for (int nCol = 0; nCol < kColumns; ++nCol) {
        cells.push_back(nCol == kAmountColumn ? NextAmount()
                                              : Name(Name(strList, "", nRow), "c", nCol));
        if (nCol != nExcluded) {
            m_expected.Cell(strList, nRow, EdgeOf(strList, nCol), cells.back());
        }
    }
    return cells;
}

// Odd numbers and even squares: all different, and neighbours of different length.
std::string PaperDocument::NextAmount() {
    ++m_nAmounts;
    return std::to_string(m_nAmounts % 2 != 0 ? m_nAmounts : m_nAmounts * m_nAmounts);
}
