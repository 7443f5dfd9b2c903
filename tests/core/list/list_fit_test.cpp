#include "list/core/list_fit.h"

#include <gtest/gtest.h>
#include <numeric>
#include <vector>

namespace qv {

namespace {

// Each byte is 7 pixels wide, and the list goes at the change that nGoesAt names.
class FakeColumns : public FittedColumns {
public:
    explicit FakeColumns(std::vector<int> all) : widths(std::move(all)) {}

    int TextWidth(std::string_view text) override { return static_cast<int>(text.size()) * 7; }
    int Width(int nCol) override { return widths.at(static_cast<size_t>(nCol)); }
    bool SetWidth(int nCol, int nWidth) override {
        widths.at(static_cast<size_t>(nCol)) = nWidth;
        return --nGoesAt != 0;
    }
    int DataWidth() override { return std::accumulate(widths.begin(), widths.end(), 0); }
    int ClientWidth() override { return 400; }

    std::vector<int> widths;
    int nGoesAt = 0;
};

using Widths = std::vector<int>;

}  // namespace

TEST(ListFit, AColumnIsItsFieldAndAMargin) {
    FakeColumns columns({60, 60, 60});
    EXPECT_EQ(FitToFields(columns, "abc\t\033bx"), 2);
    EXPECT_EQ(columns.widths, (Widths{33, 33, 60})) << "codes as they stand";
    EXPECT_EQ(FitToFields(columns, ""), 0);
}

TEST(ListFit, ASampleWidensAndItsStarFills) {
    const struct {
        const char* pszSample;
        Widths before, after;
    } cases[] = {
        {"abc\tabcdefgh", {100, 60}, {100, 68}},      // columns only grow
        {"a*\t*", {60, 60}, {60, 320}},               // the last star wins
        {"*\tabc*\tx", {60, 60, 60}, {60, 260, 60}},  // a star is no text
        {"*a\tb", {10, 10}, {26, 19}},                // nor a star elsewhere a mark
        {"a*\tb", {300, 90}, {300, 90}},              // nothing is left
    };
    for (const auto& c : cases) {
        FakeColumns columns(c.before);
        FitToSample(columns, c.pszSample, 20);
        EXPECT_EQ(columns.widths, c.after) << c.pszSample;
    }
}

TEST(ListFit, NothingIsTouchedOnceTheListIsGone) {
    FakeColumns columns({60, 60, 60});
    columns.nGoesAt = 2;
    FitToSample(columns, "abcdefgh\tabcdefgh\tabcdefgh*", 0);
    EXPECT_EQ(columns.widths, (Widths{68, 68, 60}));
    columns.nGoesAt = 1;
    FitToFields(columns, "a\tb\tc");
    EXPECT_EQ(columns.widths, (Widths{19, 68, 60}));
}

}  // namespace qv
