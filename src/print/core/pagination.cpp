#include "print/core/pagination.h"

namespace qv {

namespace {

class Pagination {
public:
    Pagination(PageItems& items, unsigned nWidth, unsigned nHeight, RowNumbers numbers)
        : m_items(items),
          m_nCount(items.Count()),
          m_nWidth(nWidth),
          m_nHeight(nHeight),
          m_numbers(numbers) {}

    bool NextPage(PageRecord& page) {
        SkipOptional();
        if (AtEnd()) {
            return false;
        }
        FillPage();
        KeepHeaderWithNext();
        page = m_page;
        return true;
    }

private:
    bool AtEnd() const { return m_nItem == m_nCount; }
    bool OpensPage() const { return m_nItem == m_page.nFirstItem; }

    void SkipOptional() {
        while (!AtEnd() && m_items.Optional(m_nItem)) {
            ++m_nItem;
            m_nSub = 0;
            m_bInSplit = false;
        }
    }

    void FillPage() {
        const auto nItem = static_cast<unsigned>(m_nItem);
        m_page = {nItem, nItem, m_nSub, kToEnd};
        m_nRemaining = m_nHeight;
        bool bRoom = true;
        while (bRoom && !AtEnd()) {
            bRoom = m_bInSplit ? ContinueItem() : BeginItem();
        }
    }

    // Both are true if the item ends on this page and the next may follow it there.
    bool ContinueItem() {
        unsigned nLast = kToEnd;
        if (FitRows(m_nSub, nLast)) {
            EndItem();
            return true;
        }
        if (nLast < m_nSub || nLast == kToEnd) {
            EndItem();
        } else {
            SplitBehind(nLast);
        }
        return false;
    }

    bool BeginItem() {
        m_items.CalcSize(m_nItem, m_nWidth);
        if (m_items.MinSize(m_nItem) > m_nRemaining) {
            return LeaveForNextPage();
        }
        const unsigned nSize = m_items.MaxSize(m_nItem);
        if (nSize <= m_nRemaining) {
            m_nRemaining -= nSize;
            EndItem();
            return true;
        }
        unsigned nLast = kToEnd;
        FitRows(0, nLast);  // that it ends here would contradict its size
        if (nLast == kToEnd) {
            return LeaveForNextPage();
        }
        SplitBehind(nLast);
        return false;
    }

    bool FitRows(unsigned nFirst, unsigned& nLast) {
        const unsigned nBefore = m_nRemaining;
        const bool bEnds = m_items.PrintSize(m_nItem, nFirst, nLast, m_nRemaining);
        if (m_nRemaining > nBefore) {
            m_nRemaining = 0;
        }
        return bEnds;
    }

    // An item that does not even fit at the top of a page ends there all the same.
    bool LeaveForNextPage() {
        if (OpensPage()) {
            EndItem();
        }
        return false;
    }

    void EndItem() {
        if (m_numbers == RowNumbers::kOwn) {
            m_nSub = 0;
        }
        m_page.nLastItem = static_cast<unsigned>(m_nItem);
        m_page.nLastSub = kToEnd;
        m_bInSplit = false;
        ++m_nItem;
    }

    void SplitBehind(unsigned nLast) {
        m_page.nLastItem = static_cast<unsigned>(m_nItem);
        m_page.nLastSub = nLast;
        m_nSub = nLast + 1;
        m_bInSplit = true;
    }

    void KeepHeaderWithNext() {
        if (AtEnd() || m_page.nLastItem == m_page.nFirstItem || m_items.DoNotWidow(m_nItem) ||
            !m_items.DoNotWidow(m_page.nLastItem)) {
            return;
        }
        m_nItem = m_page.nLastItem;
        --m_page.nLastItem;
        m_page.nLastSub = kToEnd;
    }

    PageItems& m_items;
    const std::size_t m_nCount;
    const unsigned m_nWidth;
    const unsigned m_nHeight;
    const RowNumbers m_numbers;
    std::size_t m_nItem = 0;
    unsigned m_nSub = 0;      // where a split item goes on, or where the last one did
    bool m_bInSplit = false;  // m_nItem began on an earlier page
    PageRecord m_page;
    unsigned m_nRemaining = 0;
};

}  // namespace

unsigned Paginate(PageItems& items, unsigned nWidth, unsigned nHeight,
                  std::vector<PageRecord>& pages, RowNumbers numbers) {
    Pagination pagination(items, nWidth, nHeight, numbers);
    unsigned nPages = 0;
    for (PageRecord page; pagination.NextPage(page); ++nPages) {
        pages.push_back(page);
    }
    return nPages;
}

}  // namespace qv
