// QVPrintEngine: turns a document, given as items in reading order, into pages.
//
// Construct it with the device context that will be printed on, call SetPrintAllRows(true), add
// items, call Paginate once with the rectangle that pages have for text, then PrintPage for each
// page; draw page numbers and other furniture around that rectangle yourself. Destroy the engine
// before the device context goes: lists end their print run then.
//
// Ownership: the engine owns its items; copies of an engine share them. Fonts, lists, string arrays
// and device contexts are the caller's and must outlive the engine.
//
// Without SetPrintAllRows(true) rows may be missing on paper: where a list, a text or a totals list
// opens a page and the item that was split last has ended on the page before, the row number of
// that split is still in force, and rows before it are not printed. Headers and group headers have
// no rows and go with what follows them, so a document in which one of them precedes each item with
// rows never shows this.
//
// Nothing is thrown for want of memory: what cannot be added or printed is left out, and IsComplete
// tells. Ask it before a job is ended. What a list's replaced steps throw otherwise goes on to the
// caller.
//
// An engine paginates once: a second Paginate gives the number of pages again, but PrintPage finds
// the pages of the first. What fits on no page gets a page of its own and is cut there; of a text
// or a list that is its first row, and the rows behind that one are not printed.

#pragma once

#include "print/print_engine_data.h"
#include "print/print_labeled_list.h"

#include <memory>
#include <vector>

class QVListCtrlEx;

// One page: its items from first to last, the row at which the first one starts and the row with
// which the last one ends (all bits set: its end).
class QV_CONTROLS_API QVPrintEnginePage {
public:
    unsigned GetFirstItem() const { return m_nFirstItem; }
    unsigned GetLastItem() const { return m_nLastItem; }
    unsigned GetFirstSub() const { return m_nFirstSub; }
    unsigned GetLastSub() const { return m_nLastSub; }
    void SetFirstItem(unsigned n) { m_nFirstItem = n; }
    void SetLastItem(unsigned n) { m_nLastItem = n; }
    void SetFirstSub(unsigned n) { m_nFirstSub = n; }
    void SetLastSub(unsigned n) { m_nLastSub = n; }

private:
    unsigned m_nFirstItem = 0;
    unsigned m_nLastItem = 0;
    unsigned m_nFirstSub = 0;
    unsigned m_nLastSub = 0;
};

class QV_CONTROLS_API QVPrintEngine {
public:
    // Measures the fonts on pDC, which is not kept; without it all heights are 0.
    QVPrintEngine(CDC* pDC, CFont* pHeaderFont, CFont* pNormalFont, CFont* pSectionFont);
    // Without memory a copy is empty, or what it was, and not complete.
    QVPrintEngine(const QVPrintEngine& other);
    QVPrintEngine& operator=(const QVPrintEngine& other);
    ~QVPrintEngine();

    // A line in the section font with a blank line above and below. Goes with what follows it.
    void AddSectionHeader(unsigned nStringID);
    void AddSectionHeader(const char* pszText);
    // A line in the normal font that goes with what follows it.
    void AddGroupHeader(unsigned nStringID);
    void AddGroupHeader(const char* pszText);
    // Text wrapped to the page's width: in the header font, or in pFont, null meaning the normal
    // font. Each element of an array begins a line.
    void AddHeader(const CString& strText, CDC* pDC);
    void AddText(const CString& strText, CDC* pDC, CFont* pFont);
    void AddText(const CStringArray& aText, CDC* pDC, CFont* pFont);
    // A blank line, but not at the top of a page.
    void AddBreak();
    // All rows of a list, its headings on each page. The list is in a print run as long as the item
    // lives.
    void AddList(QVListCtrlEx* pList, CDC* pDC);
    // Rows of TAB-separated fields in the columns of a list. The array is not copied.
    void AddStringList(CStringArray* pRows, QVListCtrlEx* pList, CDC* pDC);
    // To be filled by the caller. Without memory it is a list that the document does not have.
    QVPeDataLabeledList& AddLabeledDataList(CDC* pDC);

    // On: each item begins with its first row, and no row is missing on paper. To be called before
    // Paginate. Off at first, where an item that opens a page begins at the row at which the last
    // split item went on; page tables of old count on that, new programs switch it on.
    void SetPrintAllRows(bool bAll) { m_bPrintAllRows = bAll; }

    // The number of pages; only the width and height of rect count. 0 without memory; it may be
    // called again then.
    unsigned Paginate(const CRect& rect);
    // nPage counts from 1; one that does not exist prints nothing.
    void PrintPage(CDC* pDC, const CRect& rect, unsigned nPage);
    // False once memory did not suffice for something that was added or printed: it is missing.
    bool IsComplete() const;

private:
    class PageItems;

    void ClearData();
    template <class Make>
    bool Add(Make make);

    CFont* m_pHeaderFont = nullptr;
    CFont* m_pNormalFont = nullptr;
    CFont* m_pSectionFont = nullptr;
    unsigned m_nHeaderHeight = 0;
    unsigned m_nNormalHeight = 0;
    unsigned m_nSectionHeight = 0;
    bool m_bNeedsPagination = true;
    bool m_bPrintAllRows = false;
    bool m_bComplete = true;
    std::vector<std::shared_ptr<QVPrintEngineData>> m_Items;
    std::vector<QVPrintEnginePage> m_Pages;
    QVPeDataLabeledList m_unprinted;  // stands in for one that there was no memory for
};
