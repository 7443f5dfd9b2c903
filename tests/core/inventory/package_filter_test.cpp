#include "model/package_filter.h"

#include <gtest/gtest.h>

TEST(PackageFilter, ShowsWhatMeetsAllOfIt) {
    Package package;
    package.strSection = "libs";
    package.strArchitecture = "amd64";
    package.tInstalled = 1000;
    struct Case {
        PackageFilter filter;
        bool bShows;
    };
    for (const Case& c : {Case{{}, true}, Case{{"libs", "", 0}, true}, Case{{"net", "", 0}, false},
                          Case{{"libs", "amd64", 1000}, true}, Case{{"libs", "all", 0}, false},
                          Case{{"", "", 1001}, false}}) {
        EXPECT_EQ(c.filter.Shows(package), c.bShows);
    }
    package.tInstalled = 0;
    EXPECT_FALSE((PackageFilter{"", "", 1}.Shows(package))) << "without a date, when one is asked";
    EXPECT_TRUE(PackageFilter().IsOpen());
    EXPECT_FALSE((PackageFilter{"", "", 1}.IsOpen()));
}

TEST(PackageFilter, ComesBackFromItsFile) {
    FilterValues day;
    size_t nLine = 0;
    ASSERT_TRUE(day.Parse(
        "inventory filter, version 1\nsection=a=b\narchitecture=all\nsince=2026-02-28\n", nLine));
    const PackageFilter filter = day.Filter();
    EXPECT_EQ(filter.strSection, "a=b");
    EXPECT_GT(filter.tSince, 0);
    EXPECT_EQ(FilterValues(filter).Format(), day.Format());
    for (const char* pszDay : {"", "soon", "2026-02-30", "2026-13-01", "0000-00-00"}) {
        ASSERT_TRUE(day.Set(2, pszDay));
        EXPECT_EQ(day.Filter().tSince, 0) << pszDay;
    }
    Inventory inventory;
    std::vector<Package> packages(4);
    packages[0].strArchitecture = packages[2].strArchitecture = "x";
    packages[1].strArchitecture = "a";
    inventory.SetPackages(packages);
    EXPECT_EQ(Architectures(inventory), (std::vector<std::string>{"a", "x"}));
}
