#include "model/package_database.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {

TEST(PackageDatabase, ReadsStanzasWithContinuationLines) {
    std::vector<Package> packages;
    DatabaseError error;
    ASSERT_TRUE(
        ParsePackages("Package: b\nStatus: install ok installed\nPriority: required\n"
                      "Section: libs\nArchitecture: all\nInstalled-Size: 2048\nVersion: 1.2-3\n"
                      "Depends: libc6 (>= 2.36), x | y,\nDescription: one line\n more: text\n .\n"
                      "\n\r\nPackage: a\nStatus: deinstall ok config-files\n",
                      packages, error));
    ASSERT_EQ(packages.size(), 2u);
    const Package& b = packages[0];
    EXPECT_EQ(b.strVersion, "1.2-3");
    EXPECT_EQ(b.strArchitecture, "all");
    EXPECT_EQ(b.strSummary, "one line");
    EXPECT_EQ(b.strState, "installed");
    EXPECT_EQ(b.nSizeKiB, 2048);
    EXPECT_TRUE(b.bRequired && !b.bUnusual);
    EXPECT_EQ(b.dependencies, (std::vector<std::string>{"libc6 (>= 2.36)", "x | y"}));
    EXPECT_TRUE(packages[1].bUnusual);
    EXPECT_EQ(packages[1].strState, "config-files");
    EXPECT_EQ(packages[1].strSection, "(none)");

    Inventory inventory;
    inventory.SetPackages(packages);
    ASSERT_EQ(inventory.Sections().size(), 2u);
    EXPECT_EQ(inventory.Sections()[0].strName, "(none)");
    EXPECT_EQ(inventory.CountPackages(), 2u);
}

TEST(PackageDatabase, NamesTheLineThatIsDamaged) {
    struct Case {
        std::string strText;
        size_t nLine;
    };
    for (const Case& c :
         {Case{"Package: a\nnonsense\n", 2}, Case{" continues nothing\n", 1},
          Case{"Version: 1\n\nPackage: b\n", 2}, Case{"Version: 1", 1},
          Case{"Package: a\nInstalled-Size: 12x\n", 2}, Case{"Package: a\nInstalled-Size: -1\n", 2},
          Case{": x\n", 1}, Case{std::string("Package: a\nX: \0y\n", 17), 2},
          Case{"Package: a\n" + std::string(2 << 20, 'x'), 2}}) {
        std::vector<Package> packages(1);
        DatabaseError error;
        EXPECT_FALSE(ParsePackages(c.strText, packages, error));
        EXPECT_EQ(error.nLine, c.nLine) << error.strMessage;
        EXPECT_TRUE(packages.empty());
    }
}

TEST(PackageDatabase, NamesTheFile) {
    std::vector<Package> packages;
    DatabaseError error;
    EXPECT_FALSE(ReadPackages("/nowhere/status", packages, error));
    EXPECT_NE(error.strMessage.find("/nowhere/status"), std::string::npos);
    EXPECT_FALSE(ReadPackages("/", packages, error)) << "a directory";
    const std::string strPath = testing::TempDir() + "damaged-status";
    std::ofstream(strPath) << "Package: a\n\nwhat\n";
    EXPECT_FALSE(ReadPackages(strPath, packages, error));
    EXPECT_NE(error.strMessage.find("line 3"), std::string::npos) << error.strMessage;
    std::remove(strPath.c_str());
}

TEST(SizeText, TakesTheLargestUnit) {
    EXPECT_EQ(SizeText(1023), "1023 KiB");
    EXPECT_EQ(SizeText(1536), "1.5 MiB");
    EXPECT_EQ(SizeText(3 << 19), "1.5 GiB");
}

}  // namespace
