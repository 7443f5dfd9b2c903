// A document of every kind of item, in which each word stands once, and the record of what a reader
// must find on its pages.
#pragma once

#include "QVControls.h"

#include <afxwin.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

// Lines of five fields with blanks between, in reading order: kind, list, row, edge, word. Kinds:
// "text" stands once; "keep" too, on the page of the word that follows it; "cell" too, in that row
// of that list; "head" stands over the rows of its list on each page. A list is named for its
// section, of two letters, and for what it is: rows, lines or sums. Words with the same edge
// share their left (L...) or right (R...) one. "-" is a field without meaning.
class Expectation {
public:
    explicit Expectation(const char* pszPath) : m_pFile(std::fopen(pszPath, "wb")) {}
    ~Expectation() { Close(); }
    Expectation(const Expectation&) = delete;
    Expectation& operator=(const Expectation&) = delete;
    // False if not all could be written.
    bool Close();

    // The margins in points from the upper left corner of the paper, and from one row to the next.
    void Layout(const CRect& rcBox, unsigned nPages, double pitch);
    void Text(const std::string& strWord) { Line("text", "-", "-", "-", strWord); }
    void Keep(const std::string& strWord) { Line("keep", "-", "-", "-", strWord); }
    void Head(const std::string& strList, const std::string& strEdge, const std::string& strWord) {
        Line("head", strList, "-", strEdge, strWord);
    }
    void Cell(const std::string& strList, int nRow, const std::string& strEdge,
              const std::string& strWord) {
        Line("cell", strList, std::to_string(nRow), strEdge, strWord);
    }

private:
    void Line(const char* pszKind, const std::string& strList, const std::string& strRow,
              const std::string& strEdge, const std::string& strWord);

    std::FILE* m_pFile;
};

class PaperDocument {
public:
    PaperDocument(CDC& dc, Expectation& expected);
    unsigned Paginate(const CRect& rc) { return m_engine.Paginate(rc); }
    void PrintPage(const CRect& rc, unsigned nPage) { m_engine.PrintPage(&m_dc, rc, nPage); }
    CFont& NormalFont() { return m_fontNormal; }
    // In device units.
    int LineHeight();

private:
    struct Section;
    // Fonts are made before the engine measures them.
    struct Font : CFont {
        Font(CDC& dc, int nPoints, int nWeight);
    };

    void Add(const Section& section);
    // Announces an item and gives it a name.
    std::string AddGroup(const char* pszName);
    void AddRows(const Section& section);
    void AddStrings(const Section& section);
    void AddTotals(const Section& section);
    void AddText(const Section& section);
    // An empty list with its headings; nExcluded is not printed, -1: all columns are.
    QVListCtrlEx& NewList(const std::string& strList, bool bHeadings, int nExcluded);
    // The cells of a row; all but the excluded one are expected.
    std::vector<std::string> NewRow(const std::string& strList, int nRow, int nExcluded);
    std::string NextAmount();

    static const Section kSections[];

    CDC& m_dc;
    Expectation& m_expected;
    CWnd m_parent;  // of the lists; it stays hidden
    Font m_fontHeader;
    Font m_fontNormal;
    Font m_fontSection;
    std::vector<std::unique_ptr<QVListCtrlEx>> m_lists;
    std::vector<std::unique_ptr<CStringArray>> m_strings;
    QVPrintEngine m_engine;  // goes first: it uses all of the above
    std::string m_strSection;
    int m_nAmounts = 0;
};
