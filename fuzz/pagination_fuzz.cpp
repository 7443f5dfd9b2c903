// Random documents on random pages. A plain walk over the page table works out what each page must
// hold and which rows may be missing; the replay of the pages must print the rest exactly once.

#include "fuzz_input.h"
#include "support/fake_page_items.h"

#include <vector>

namespace {

using qv::kToEnd;
using qv::PageRecord;
using Item = FakePageItems::Item;

FakePageItems RandomItems(FuzzInput& input) {
    FakePageItems items;
    for (unsigned n = input.Byte() % 64; n > 0 && !input.AtEnd(); --n) {
        switch (input.Byte() % 8) {
            case 0:
                items.Section();
                break;
            case 1:
                items.Group();
                break;
            case 2:
                items.Break();
                break;
            case 3:
                items.Text(input.Byte() * 4);
                break;
            case 4:
            case 5: {
                const unsigned nHeader = input.Byte() % 3 * 7;
                items.List(input.Byte() % 60, nHeader, input.Byte() % 16);
                break;
            }
            case 6:
                items.Labelled(input.Byte() % 12);
                break;
            default:
                items.Block(input.Byte() % 64);
        }
    }
    return items;
}

// Printed counts of an item's rows; one for an item without.
using Counts = std::vector<std::vector<unsigned>>;

unsigned Rows(const Item& item) {
    return item.nRows > 0 ? item.nRows : 1;
}

Counts Printed(const FakePageItems& items, const std::vector<PageRecord>& pages) {
    Counts counts;
    for (const Item& item : items.items) {
        counts.emplace_back(Rows(item));
    }
    for (const PageRecord& page : pages) {
        qv::ForEachOnPage(page, [&](std::size_t nItem, unsigned nFirst, unsigned nLast) {
            std::vector<unsigned>& rows = counts.at(nItem);
            const bool bSplits = items.items[nItem].nRows > 0;
            const unsigned nEnd = bSplits && nLast != kToEnd ? nLast + 1 : Rows(items.items[nItem]);
            for (unsigned nRow = bSplits ? nFirst : 0; nRow < nEnd; ++nRow) {
                ++rows.at(nRow);
            }
        });
    }
    return counts;
}

// Walks the table with the place that the document has reached.
class PageWalk {
public:
    PageWalk(const std::vector<Item>& items, unsigned nHeight, qv::RowNumbers numbers)
        : m_items(items), m_nHeight(nHeight), m_numbers(numbers) {
        for (const Item& item : items) {
            m_expected.emplace_back(Rows(item), 1u);
        }
    }

    void Check(const PageRecord& page) {
        SkipOptional();
        FUZZ_CHECK(page.nFirstItem == m_nItem && page.nFirstItem <= page.nLastItem);
        FUZZ_CHECK(page.nLastItem < m_items.size());
        FUZZ_CHECK(page.nFirstSub == m_nCarried);
        const bool bSplit = page.nLastSub != kToEnd;
        LoseRows(page);
        const unsigned nUsed = Height(page);
        const bool bAlone = page.nFirstItem == page.nLastItem;
        const bool bTall = bAlone && m_items[page.nFirstItem].nMin > m_nHeight;
        FUZZ_CHECK(bTall ? !bSplit : nUsed <= m_nHeight);
        if (bSplit) {
            const Item& item = m_items[page.nLastItem];
            FUZZ_CHECK(page.nLastSub < item.nRows - 1);
            FUZZ_CHECK(!bAlone || page.nLastSub >= m_nRow);
            FUZZ_CHECK(m_nHeight - nUsed < item.nRowHeight);
            m_nItem = page.nLastItem;
            m_nRow = m_nCarried = page.nLastSub + 1;
            return;
        }
        m_nItem = page.nLastItem + 1;
        m_nRow = 0;
        if (m_numbers == qv::RowNumbers::kOwn) {
            m_nCarried = 0;
        }
        FUZZ_CHECK(bTall || IsFull(page, m_nHeight - nUsed));
    }

    const Counts& Finish() {
        SkipOptional();
        FUZZ_CHECK(m_nItem == m_items.size() && m_nRow == 0);
        return m_expected;
    }

private:
    void SkipOptional() {
        for (; m_nRow == 0 && m_nItem < m_items.size() && m_items[m_nItem].bOptional; ++m_nItem) {
            m_expected[m_nItem][0] = 0;
            m_nCarried = 0;
        }
    }

    // A page that begins an item at its top prints it from the row number carried on from the last
    // split item.
    void LoseRows(const PageRecord& page) {
        if (m_nRow > 0 || m_items[m_nItem].nRows == 0) {
            return;
        }
        const bool bCut = page.nFirstItem == page.nLastItem && page.nLastSub != kToEnd;
        const unsigned nEnd = bCut ? page.nLastSub + 1 : m_items[m_nItem].nRows;
        for (unsigned nRow = 0; nRow < std::min(nEnd, m_nCarried); ++nRow) {
            m_expected[m_nItem][nRow] = 0;
        }
    }

    // Of all that the page was filled with, rows lost included.
    unsigned Height(const PageRecord& page) const {
        unsigned nUsed = 0;
        for (unsigned n = page.nFirstItem; n <= page.nLastItem; ++n) {
            const Item& item = m_items[n];
            const bool bRows = item.nRows > 0;
            const unsigned nFirst = n == m_nItem ? m_nRow : 0;
            const bool bCut = n == page.nLastItem && page.nLastSub != kToEnd;
            const unsigned nEnd = bCut ? page.nLastSub + 1 : item.nRows;
            nUsed += bRows ? item.nHeader + (nEnd - nFirst) * item.nRowHeight : item.nMax;
        }
        return nUsed;
    }

    // Nothing more goes on a page that m_nItem did not reach: there is no such item, or no room for
    // it behind an item that may stand last, or it is a header that would stand last.
    bool IsFull(const PageRecord& page, unsigned nRoom) const {
        if (m_nItem >= m_items.size()) {
            return true;
        }
        const Item& next = m_items[m_nItem];
        if (next.nMin > nRoom) {
            return page.nFirstItem == page.nLastItem || next.bDoNotWidow ||
                   !m_items[page.nLastItem].bDoNotWidow;
        }
        return next.bDoNotWidow && m_nItem + 1 < m_items.size() &&
               !m_items[m_nItem + 1].bDoNotWidow && m_items[m_nItem + 1].nMin > nRoom - next.nMax;
    }

    const std::vector<Item>& m_items;
    const unsigned m_nHeight;
    const qv::RowNumbers m_numbers;
    Counts m_expected;
    std::size_t m_nItem = 0;
    unsigned m_nRow = 0;      // the next row of that item
    unsigned m_nCarried = 0;  // the first row that the next page will carry
};

void Run(FuzzInput& input) {
    const unsigned nHeight = input.Byte() % 160;
    const unsigned nWidth = 1 + input.Byte() % 64;
    FakePageItems items = RandomItems(input);
    const auto numbers = input.Byte() % 2 == 0 ? qv::RowNumbers::kOwn : qv::RowNumbers::kKept;
    std::vector<PageRecord> pages;
    FUZZ_CHECK(qv::Paginate(items, nWidth, nHeight, pages, numbers) == pages.size());
    PageWalk walk(items.items, nHeight, numbers);
    for (const PageRecord& page : pages) {
        walk.Check(page);
    }
    FUZZ_CHECK(walk.Finish() == Printed(items, pages));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    while (!input.AtEnd()) {
        Run(input);
    }
    return 0;
}
