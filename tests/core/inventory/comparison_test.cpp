#include "model/comparison.h"

#include "model/package_database.h"
#include "model/package_version.h"
#include "model/snapshot.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace {

TEST(PackageVersion, FollowsEpochThenVersionThenRevision) {
    // Each before the next; what stands in one line is equivalent.
    const std::vector<std::vector<const char*>> rising = {{"1~~"},
                                                          {"1~~a"},
                                                          {"1~"},
                                                          {"1", "1-0", "01", "0:1", ":1-00"},
                                                          {"1-1~"},
                                                          {"1-1", "1-01"},
                                                          {"1-1+b1"},
                                                          {"1a"},
                                                          {"1b"},
                                                          {"1+"},
                                                          {"1.-1"},
                                                          {"1.9-2"},
                                                          {"1.10-1"},
                                                          {"1.10-1-1"},
                                                          {"2"},
                                                          {"1:0"},
                                                          {"1:1-99999999999999999999"},
                                                          {"1:1-100000000000000000000"},
                                                          {"10:0"}};
    for (size_t i = 0; i < rising.size(); ++i) {
        for (size_t j = 0; j < rising.size(); ++j) {
            for (const char* a : rising[i]) {
                for (const char* b : rising[j]) {
                    EXPECT_EQ(CompareVersions(a, b), std::weak_ordering(i <=> j)) << a << ' ' << b;
                }
            }
        }
    }
}

Package Made(const char* pszName, const char* pszVersion, long nSize, const char* pszSection,
             const char* pszState = "installed", const char* pszArchitecture = "amd64") {
    Package package;
    package.strName = pszName;
    package.strVersion = pszVersion;
    package.nSizeKiB = nSize;
    package.strSection = pszSection;
    package.strState = pszState;
    package.strArchitecture = pszArchitecture;
    return package;
}

Inventory Of(std::vector<Package> packages) {
    Inventory inventory;
    inventory.SetPackages(std::move(packages));
    return inventory;
}

TEST(Comparison, TellsWhatHasChangedInWordsAndLines) {
    struct Case {
        Package after;
        const char* pszWords;
        std::vector<std::string> lines;
    };
    const Package before = Made("p", "1.0-1", 100, "libs");
    const Inventory inventory = Of({before});
    for (const Case& c :
         {Case{before, "", {}},
          Case{Made("p", "1.0-2", 80, "libs"),
               "newer, smaller",
               {"Version: 1.0-1, now 1.0-2", "Size: 100 KiB, now 80 KiB (-20 KiB)"}},
          Case{Made("p", "1.0~", 2148, "libs"),
               "older, larger",
               {"Version: 1.0-1, now 1.0~", "Size: 100 KiB, now 2.1 MiB (+2.0 MiB)"}},
          Case{Made("p", "0:1.0-1", 100, "net", "half-installed"),
               "version, state, section",
               {"Version: 1.0-1, now 0:1.0-1", "State: installed, now half-installed",
                "Section: libs, now net"}}}) {
        const Inventory after = Of({c.after});
        const Comparison comparison(inventory, after);
        const auto& changed = comparison.Changed();
        EXPECT_EQ(changed.size() + comparison.CountSame(), 1u);
        EXPECT_EQ(changed.empty() ? "" : ChangeWords(changed[0]), c.pszWords);
        EXPECT_EQ(changed.empty() ? c.lines : ChangeLines(changed[0]), c.lines);
    }
}

TEST(Comparison, AddsUpInItsSummary) {
    const Inventory before =
        Of({Made("up", "1", 10, "x"), Made("down", "2", 10, "x"), Made("size", "1", 2048, "x"),
            Made("same", "1", 5, "x"), Made("gone", "1", 7, "x"), Made("gone too", "1", 7, "x")});
    const Inventory after =
        Of({Made("up", "1.1", 12, "x"), Made("down", "1", 10, "x"), Made("size", "1", 1024, "x"),
            Made("same", "1", 5, "x"), Made("new", "1", 3072, "x")});
    std::string strAll;
    for (const SummaryRow& row : SummaryOf(before, after, Comparison(before, after))) {
        strAll += row.strWhat + "|" + row.strBefore + "|" + row.strNow + "|" + row.strGrowth + "\n";
    }
    EXPECT_EQ(strAll,
              "Packages|6|5|-1\nSize|2.0 MiB|4.0 MiB|+2.0 MiB\nNew||1|+3.0 MiB\n"
              "Gone|2||-14 KiB\nNewer||1|+2 KiB\nOlder||1|0 KiB\n"
              "Changed otherwise||1|-1.0 MiB\nUnchanged||1|\n");
}

// The plain way: what is left of one after each of the other's packages took its like away.
TEST(Comparison, FindsWhatAPlainSearchFinds) {
    std::mt19937 random(1);
    const auto one = [&](std::initializer_list<const char*> texts) {
        return *(texts.begin() + random() % texts.size());
    };
    for (int nRun = 0; nRun < 300; ++nRun) {
        std::vector<Package> before, after;
        for (std::vector<Package>* p : {&before, &after}) {
            for (unsigned n = random() % 12; n > 0; --n) {
                p->push_back(Made(one({"a", "b", "c"}), one({"1", "1~"}), random() % 2,
                                  one({"x", "y"}), "installed", one({"all", "amd64"})));
            }
        }
        const Inventory inventoryBefore = Of(before), inventoryAfter = Of(after);
        std::uint64_t nSteps = 0;
        const Comparison comparison(
            inventoryBefore, inventoryAfter,
            [&](std::uint64_t nDone, std::uint64_t) { EXPECT_EQ(nDone, nSteps++); });
        std::map<std::string, int> surplus;
        for (const Package& p : before) {
            --surplus[p.strName + p.strArchitecture];
        }
        for (const Package& p : after) {
            ++surplus[p.strName + p.strArchitecture];
        }
        int nNew = 0, nGone = 0;
        for (const auto& [strKey, n] : surplus) {
            nNew += std::max(n, 0);
            nGone += std::max(-n, 0);
        }
        EXPECT_EQ(comparison.New().size(), static_cast<size_t>(nNew));
        EXPECT_EQ(comparison.Gone().size(), static_cast<size_t>(nGone));
        EXPECT_EQ(comparison.New().size() + comparison.Changed().size() + comparison.CountSame(),
                  after.size());
        EXPECT_EQ(comparison.Gone().size() + comparison.Changed().size() + comparison.CountSame(),
                  before.size());
        for (const auto* p : {&comparison.New(), &comparison.Gone(), &comparison.Changed()}) {
            EXPECT_TRUE(std::is_sorted(p->begin(), p->end(), [](auto& a, auto& b) {
                return std::pair(a.Shown().strSection, a.Shown().strName) <
                       std::pair(b.Shown().strSection, b.Shown().strName);
            }));
        }
        for (const Difference& d : comparison.Changed()) {
            EXPECT_EQ(d.pBefore->strName + d.pBefore->strArchitecture,
                      d.pAfter->strName + d.pAfter->strArchitecture);
            EXPECT_NE(ChangeWords(d), "");
        }
    }
}

TEST(Snapshot, ComesBackThroughTheReader) {
    std::vector<Package> packages(4), again;
    Problem problem;
    const char szStanza[] = "Package: a\nStatus: hold ok installed\nX: \xC3\xA4\n more";
    ASSERT_TRUE(ParsePackages(szStanza, again, problem));
    packages[0] = again[0];
    packages[1] = Made(" Odd\nname ", "1.0\t\r", 7, "A publisher", "half-installed");
    packages[1].bUnusual = packages[1].bRequired = true;
    packages[1].dependencies = packages[1].provides = {"x | y", "z"};
    packages[2] = Made(" \t", "1", 0, "");
    packages[3] = Made("b", "", -1, "", "");
    std::string strFile;
    for (const Package& package : packages) {
        strFile += SnapshotEntry(package);
    }
    ASSERT_TRUE(ParsePackages(strFile, again, problem)) << problem.strMessage;
    ASSERT_EQ(again.size(), 3u) << "one has no name";
    EXPECT_EQ(*again[0].pStanza, std::string(szStanza) + "\n");
    EXPECT_EQ(again[1].strName, "Odd name");
    EXPECT_EQ(
        again[1].strVersion + again[1].strSection + again[1].strState + again[1].strArchitecture,
        "1.0A publisherhalf-installedamd64");
    EXPECT_EQ(again[1].nSizeKiB, 7);
    EXPECT_TRUE(again[1].bUnusual && again[1].bRequired);
    EXPECT_EQ(again[1].dependencies, packages[1].dependencies);
    EXPECT_EQ(again[1].provides, packages[1].provides);
    EXPECT_EQ(again[2].strName + again[2].strState, "b");
}

}  // namespace
