#include "print/core/pagination.h"

#include "support/fake_page_items.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace {

using qv::kToEnd;
using qv::PageRecord;

constexpr unsigned kWidth = 4;

std::string Row(unsigned nRow) {
    return nRow == kToEnd ? "end" : std::to_string(nRow);
}

// "first item.row-last item.row" for each page.
std::string Pages(qv::PageItems& items, unsigned nHeight) {
    std::vector<PageRecord> pages;
    qv::Paginate(items, kWidth, nHeight, pages);
    std::string strPages;
    for (const PageRecord& page : pages) {
        strPages += (strPages.empty() ? "" : " | ") + std::to_string(page.nFirstItem) + "." +
                    Row(page.nFirstSub) + "-" + std::to_string(page.nLastItem) + "." +
                    Row(page.nLastSub);
    }
    return strPages;
}

// Where rows and items end up is the fuzzer's, beside a plain walk; these are the rules by name.
TEST(Pagination, EachRuleOfThePageTable) {
    using Items = FakePageItems;
    const struct {
        const char* pszRule;
        Items items;
        unsigned nHeight;
        const char* pszPages;
    } cases[] = {
        {"nothing to print gives no page", Items(), 100, ""},
        {"nor do breaks alone", Items().Break().Break(), 100, ""},
        {"breaks vanish at the top", Items().Break().Block(20).Break().Block(20), 50, "1.0-3.end"},
        {"also where they do not fit", Items().Block(45).Break().Block(50), 50,
         "0.0-0.end | 2.0-2.end"},
        {"a header moves to what it announces", Items().Block(80).Group().List(3, 10), 100,
         "0.0-0.end | 1.0-2.end"},
        {"no room for the group: the section header stays alone",
         Items().Block(65).Section().Group().Block(20), 100, "0.0-1.end | 2.0-3.end"},
        {"no room behind the group header: it moves alone",
         Items().Block(60).Section().Group().Block(20), 100, "0.0-1.end | 2.0-3.end"},
        {"a break shields the header", Items().Block(80).Group().Break().Block(20), 100,
         "0.0-2.end | 3.0-3.end"},
        {"unless it has no room itself", Items().Block(85).Group().Break().Block(20), 100,
         "0.0-0.end | 1.0-3.end"},
        {"lists split by row, with their headings on each page", Items().List(9, 10).Block(30), 50,
         "0.0-0.3 | 0.4-0.7 | 0.8-1.end"},
        {"without rows it wants room for one, and takes that of its headings",
         Items().Block(35).List(0, 10).Block(40), 50, "0.0-0.end | 1.0-2.end"},
        {"labelled lists begin with two rows", Items().Block(40).Labelled(3), 50,
         "0.0-0.end | 1.0-1.end"},
        {"the row number of a split item stays", Items().List(8).Block(40).Labelled(3), 50,
         "0.0-0.4 | 0.5-0.end | 1.5-1.end | 2.5-2.end"},
        {"a printed break does not clear it", Items().List(9).Break().Block(40), 50,
         "0.0-0.4 | 0.5-1.end | 2.5-2.end"},
        {"one left out at the top does", Items().List(10).Break().Block(40), 50,
         "0.0-0.4 | 0.5-0.end | 2.0-2.end"},
        {"and all on a page without height", Items().Group().Block(0).Text(1), 0,
         "0.0-0.end | 1.0-1.end | 2.0-2.end"},
        {"a header that never stands with its follower keeps its page", Items().Group().Block(45),
         50, "0.0-0.end | 1.0-1.end"},
        {"before what fits no page too", Items().Block(10).Group().Block(60).Block(5), 50,
         "0.0-0.end | 1.0-1.end | 2.0-2.end | 3.0-3.end"},
    };
    for (auto c : cases) {
        EXPECT_EQ(Pages(c.items, c.nHeight), c.pszPages) << c.pszRule;
    }
}

// Its PrintSize is the test's.
class OddItems : public FakePageItems {
public:
    using Answer = std::function<bool(unsigned, unsigned&, unsigned&)>;
    explicit OddItems(Answer answer) : m_answer(std::move(answer)) {}
    bool PrintSize(std::size_t, unsigned nFirst, unsigned& nLast, unsigned& nRemaining) override {
        return m_answer(nFirst, nLast, nRemaining);
    }

private:
    Answer m_answer;
};

TEST(PaginationTraps, SplitWithoutProgressEndsOnAPageOfItsOwn) {
    const FakePageItems::Item tall{.nMin = 10, .nMax = 200};
    OddItems none([](unsigned nFirst, unsigned& nLast, unsigned&) {
        nLast = nFirst - 1;
        return false;
    });
    none.Block(20).Add(tall).Block(5);
    EXPECT_EQ(Pages(none, 50), "0.0-0.end | 1.0-1.end | 2.0-2.end");

    OddItems stuck([](unsigned, unsigned& nLast, unsigned&) {
        nLast = 3;
        return false;
    });
    stuck.Block(20).Add(tall).Block(5);
    EXPECT_EQ(Pages(stuck, 50), "0.0-1.3 | 1.4-1.end | 2.4-2.end");

    OddItems silent([](unsigned, unsigned&, unsigned&) { return true; });
    silent.Add(tall).Block(5);
    EXPECT_EQ(Pages(silent, 50), "0.0-0.end | 1.0-1.end");
}

TEST(PaginationTraps, HeightThatWrappedAroundIsNoRoom) {
    OddItems items([](unsigned nFirst, unsigned& nLast, unsigned& nRemaining) {
        nLast = nFirst;
        nRemaining -= 60;
        return nFirst > 0;
    });
    items.Add({.nMin = 10, .nMax = 200}).Block(1);
    EXPECT_EQ(Pages(items, 50), "0.0-0.0 | 0.1-0.end | 1.1-1.end");
}

TEST(RowSplit, TakesTheHeaderAndTheRowsThatFitAndNothingWrapsAround) {
    const struct {
        unsigned nRows, nHeader, nRow, nFirst, nRemaining;
        bool bEnds;
        unsigned nLast, nLeft;
    } cases[] = {
        {10, 15, 10, 2, 57, false, 5, 2},
        {6, 15, 10, 2, 57, true, 5, 2},  // the last row fits exactly
        {4, 15, 10, 2, 57, true, 3, 22},
        {3, 15, 10, 1, 5, false, 0, 0},      // the header took what there was
        {3, 0, 10, 0, 9, false, kToEnd, 9},  // no row
        {3, 4, 0, 1, 9, true, 2, 5},         // rows of no height
        {kToEnd, 0, 1, kToEnd - 10, 9, false, kToEnd - 2, 0},
    };
    for (const auto& c : cases) {
        unsigned nLast = 0;
        unsigned nRemaining = c.nRemaining;
        EXPECT_EQ(qv::FitRows(c.nRows, c.nHeader, c.nRow, c.nFirst, nLast, nRemaining), c.bEnds);
        EXPECT_EQ(nLast, c.nLast) << c.nRows << " rows, " << c.nRemaining;
        EXPECT_EQ(nRemaining, c.nLeft) << c.nRows << " rows, " << c.nRemaining;
    }
    unsigned nLast = 7;
    unsigned nRemaining = 9;
    EXPECT_TRUE(qv::FitRows(3, 0, 10, 5, nLast, nRemaining)) << "no row is left";
    EXPECT_EQ(nRemaining, 9u);
}

}  // namespace
