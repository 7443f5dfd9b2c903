// Branches that are read when they are opened, on the tree's own store.
#include "dialogs/core/lazy_branches.h"

#include "support/test_tree.h"

#include <gtest/gtest.h>
#include <map>
#include <memory>

namespace {

using Names = std::vector<std::string>;
using qv::LazyBranches;

// A machine "M" with folders by path; what is asked is written down.
class Machine : public qv::BranchTree, public qv::BranchSource {
public:
    Machine() {
        branches->SetRoot(tree.Add("M"));
        branches->Reset(tree.Root());
    }
    std::string Text(HTREEITEM h) override { return h->pszText; }
    HTREEITEM Parent(HTREEITEM h) override { return h->pParent; }
    HTREEITEM FirstChild(HTREEITEM h) override { return h->pFirstChild; }
    HTREEITEM FindChild(HTREEITEM h, const std::string& str) override {
        return tree.Items().FindItem(h, str.c_str(), -1);
    }
    HTREEITEM Append(HTREEITEM h, const char* psz, int) override { return tree.Add(psz, h); }
    void DeleteChildren(HTREEITEM h) override { tree.DeleteChildren(h); }
    void SortChildren(HTREEITEM h) override { tree.SortChildren(h); }
    void Open(HTREEITEM h) override { tree.Expand(h, TVE_EXPAND, true, true); }
    void Close(HTREEITEM h) override { tree.Expand(h, TVE_COLLAPSE, true, true); }
    void ListShares(const std::string& str, qv::BranchTaker& taker) override {
        strAsked += "shares of ";
        ListFolders(str, taker);
    }
    void ListFolders(const std::string& str, qv::BranchTaker& taker) override {
        strAsked += str;
        const Names& names = folders[str];
        std::all_of(names.begin(), names.end(),
                    [&](const std::string& name) { return taker.Take(name.c_str(), 0); });
    }
    bool GivenUp() override {
        between();
        return --nPatience == 0;
    }
    HTREEITEM At(const std::string& strName) {
        HTREEITEM h = tree.Root();
        while (h != nullptr && strName != h->pszText) {
            h = tree.Items().WalkNext(h);
        }
        return h;
    }

    TestTree tree;
    std::unique_ptr<LazyBranches> branches = std::make_unique<LazyBranches>(*this, *this);
    std::map<std::string, Names> folders{{"\\\\M", {"usr", "Docs", "docs"}},
                                         {"\\\\M\\usr", {"share", "lib"}}};
    std::function<void()> between = [] {};
    int nPatience = 0;  // folders until a reading is given up
    std::string strAsked;
};

TEST(LazyBranches, AreReadOnce_WhereTheyAreOpened_UnlessGivenUp) {
    Machine m;
    const struct {
        const char* pszItem;
        int nPatience;
        bool bMay;
        const char* pszChildren;
        const char* pszAsked;
    } kOpenings[] = {{"M", 2, false, "<>", "shares of \\\\M"},
                     {"M", 0, false, "Docs docs usr", "shares of \\\\M"},
                     {"M", 0, false, "Docs docs usr", ""},
                     {"usr", 1, false, "<>", "\\\\M\\usr"},
                     {"usr", 0, true, "lib share", "\\\\M\\usr"},
                     {"usr", 0, true, "lib share", ""},
                     {"lib", 0, false, "", "\\\\M\\usr\\lib"},
                     {"lib", 0, false, "", ""}};
    for (const auto& opening : kOpenings) {
        SCOPED_TRACE(opening.pszItem + std::string(opening.pszChildren));
        m.nPatience = opening.nPatience;
        EXPECT_EQ(m.branches->MayToggle(m.At(opening.pszItem)), opening.bMay);
        EXPECT_EQ(m.tree.Children(m.At(opening.pszItem)), opening.pszChildren);
        EXPECT_EQ(std::exchange(m.strAsked, {}), opening.pszAsked);
    }
    EXPECT_EQ(m.tree.Rows(), "M Docs docs usr") << "the machine is open";
}

TEST(LazyBranches, OutliveWhatRunsWhileTheyAreRead) {
    Machine m;
    m.between = [&] { EXPECT_FALSE(m.branches->MayToggle(m.tree.Root())) << "within another"; };
    m.branches->MayToggle(m.tree.Root());
    m.between = [] { throw 1; };
    EXPECT_THROW(m.branches->MayToggle(m.At("usr")), int);
    EXPECT_TRUE(m.branches->IsReset(m.At("usr")));
    m.between = [&] { m.branches.reset(); };
    EXPECT_EQ(m.branches->Follow({"M", "usr", "lib"}), nullptr);
}

TEST(LazyBranches, FollowAPath) {
    const struct {
        Names names;
        const char* pszFound;
        const char* pszRows;
    } kPaths[] = {{{"M", "usr", "SHARE"}, "share", "M Docs docs usr"},
                  {{"M", "usr", "share", "none"}, "", "M Docs docs usr lib share"},
                  {{"M"}, "M", "M Docs docs usr"},
                  {{}, "M", "M Docs docs usr"}};
    for (const auto& path : kPaths) {
        Machine m;
        m.branches->MayToggle(m.tree.Root());
        const HTREEITEM hFound = m.branches->Follow(path.names);
        EXPECT_EQ(hFound != nullptr ? hFound->pszText : std::string(), path.pszFound);
        EXPECT_EQ(m.tree.Rows(), path.pszRows);
    }
}

}  // namespace
