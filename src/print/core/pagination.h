// Breaks a document, an ordered list of items, into pages of one height, and tells for each page
// which rows of which items stand on it. What a row is belongs to the item: a line of a text, a row
// of a list. Only vertical space counts here; heights and widths are device units.

#pragma once

#include <cstddef>
#include <vector>

namespace qv {

// As a last row: to the end of the item.
inline constexpr unsigned kToEnd = ~0u;

// The document as Paginate sees it. nItem is below Count(), which stays as it is during a run.
class PageItems {
public:
    virtual ~PageItems() = default;

    virtual std::size_t Count() const = 0;
    // The least height with which the item may begin on a page, and that of the whole item.
    virtual unsigned MinSize(std::size_t nItem) = 0;
    virtual unsigned MaxSize(std::size_t nItem) = 0;
    // True for an item that is left out at the top of a page.
    virtual bool Optional(std::size_t nItem) = 0;
    // True for an item that must not stand last on a page with what follows it on the next.
    virtual bool DoNotWidow(std::size_t nItem) = 0;
    // Comes before the sizes are asked, at every attempt to place the item.
    virtual void CalcSize(std::size_t nItem, unsigned nWidth) = 0;
    // Sets nLast to the last row that fits if printing starts at nFirst, and takes the height used
    // from nRemaining. True if that finishes the item. If no row fits, nLast is nFirst - 1.
    virtual bool PrintSize(std::size_t nItem, unsigned nFirst, unsigned& nLast,
                           unsigned& nRemaining) = 0;
};

struct PageRecord {
    unsigned nFirstItem = 0;
    unsigned nLastItem = 0;  // never less than nFirstItem
    unsigned nFirstSub = 0;  // the row at which the first item starts
    unsigned nLastSub = 0;   // the last row of the last item, or kToEnd
    friend bool operator==(const PageRecord&, const PageRecord&) = default;
};

// Appends a record for each page and gives how many it appended; what pages held before stays.
//
// An item goes to the next page if its MinSize does not fit, stands whole where its MaxSize fits,
// and is split otherwise. A page that would end with a DoNotWidow item, followed by one that is
// not, gives that one item to the next page.
//
// With RowNumbers::kOwn an item that opens a page begins there with its own row, and all rows are
// printed.
//
// With RowNumbers::kKept nFirstSub is cleared only by an optional item left out at the top. After
// the end of a split item it keeps that item's last starting row, so a page that opens with a new
// item may carry a row number that is not this item's: its rows before that one are not printed,
// and if the item is split on the page as well, nLastSub may be less than nFirstSub, which prints
// no row. Heights are counted as if all rows were there. Callers rely on these page tables.
//
// The run always ends:
// - An item whose MinSize exceeds a whole page has a page for itself, with nLastSub kToEnd.
// - The only item of a page is never given to the next page; a header that cannot stand with what
//   follows it has a page for itself.
// - An item to be split of which no row fits goes to the next page; if no row fits on a page that
//   it opens, it ends there, with nLastSub kToEnd, and the page holds nothing else.
// - A height that PrintSize leaves greater than it was counts as 0.
enum class RowNumbers { kOwn, kKept };
unsigned Paginate(PageItems& items, unsigned nWidth, unsigned nHeight,
                  std::vector<PageRecord>& pages, RowNumbers numbers = RowNumbers::kKept);

// Calls print(nItem, nFirst, nLast) for each item of a page in order; nLast may be kToEnd.
template <class Print>
void ForEachOnPage(const PageRecord& page, Print print) {
    for (std::size_t nItem = page.nFirstItem; nItem <= page.nLastItem; ++nItem) {
        print(nItem, nItem == page.nFirstItem ? page.nFirstSub : 0u,
              nItem == page.nLastItem ? page.nLastSub : kToEnd);
    }
}

}  // namespace qv
