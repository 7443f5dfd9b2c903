#include "model/package_database.h"

#include "model/file_text.h"

#include <cerrno>
#include <fstream>
#include <gtest/gtest.h>

namespace {

TEST(PackageDatabase, ReadsStanzasWithContinuationLines) {
    std::vector<Package> packages;
    Problem problem;
    ASSERT_TRUE(
        ParsePackages("Package: b\nStatus: install ok installed\nPriority: required\n"
                      "Section: libs\nArchitecture: all\nInstalled-Size: 2048\nVersion: 1.2-3\n"
                      "Depends: libc6 (>= 2.36), x | y,\nDescription: one line\n more: text\n .\n"
                      "\n\r\nPackage: a\nStatus: deinstall ok config-files\n",
                      packages, problem));
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
        Problem problem;
        EXPECT_FALSE(ParsePackages(c.strText, packages, problem));
        EXPECT_EQ(problem.nLine, c.nLine) << problem.strMessage;
        EXPECT_TRUE(packages.empty());
    }
}

TEST(PackageDatabase, TellsFileLineAndWhatThePlatformSaid) {
    const std::string strDamaged = testing::TempDir() + "damaged-status";
    std::ofstream(strDamaged) << "Package: a\n\nwhat\n";
    struct Case {
        std::string strFile;
        unsigned long nError;
        std::string strText;
    };
    for (const Case& c : {Case{"/nowhere/status", ENOENT, ": the file cannot be opened"},
                          Case{"/", EISDIR, ": the file cannot be read"},
                          Case{strDamaged, 0, ", line 3: the line is no field"}}) {
        std::vector<Package> packages(1);
        Problem problem;
        EXPECT_FALSE(ReadPackages(c.strFile, packages, problem));
        EXPECT_TRUE(packages.empty());
        EXPECT_EQ(problem.nError, c.nError) << c.strFile;
        EXPECT_EQ(ProblemText(problem), c.strFile + c.strText);
    }
    std::remove(strDamaged.c_str());
    EXPECT_EQ(ProblemText({"it is damaged", "", 7, 0}), "line 7: it is damaged");
    EXPECT_EQ(ProblemText({"it is damaged", "", 0, 0}), "it is damaged");
}

// Lines and entries that lie across two pieces are read as those of a whole text.
TEST(PackageDatabase, TellsHowMuchIsReadAndStopsWhereItIsTold) {
    std::string strText;
    for (int i = 0; strText.size() < 4 * FilePieces::kPiece; ++i) {
        strText += "Package: p" + std::to_string(i) +
                   "\nDescription: " + std::string(static_cast<size_t>(i) % 97, 'x') +
                   "\n more of it\n\n";
    }
    const std::string strPath = testing::TempDir() + "large-status";
    std::ofstream(strPath, std::ios::binary) << strText;
    std::vector<Package> expected;
    std::vector<Package> packages;
    Problem problem;
    ASSERT_TRUE(ParsePackages(strText, expected, problem));
    std::uint64_t nLast = 0;
    EXPECT_TRUE(
        ReadPackages(strPath, packages, problem, [&](std::uint64_t nDone, std::uint64_t nAll) {
            EXPECT_GT(nDone, nLast);
            EXPECT_EQ(nAll, strText.size());
            nLast = nDone;
            return true;
        }));
    EXPECT_EQ(nLast, strText.size());
    EXPECT_TRUE(std::equal(packages.begin(), packages.end(), expected.begin(), expected.end(),
                           [](const Package& a, const Package& b) {
                               return a.strName == b.strName && a.strSummary == b.strSummary &&
                                      *a.pStanza == *b.pStanza;
                           }));
    int nSteps = 0;
    problem.strMessage = "old";
    EXPECT_FALSE(ReadPackages(strPath, packages, problem,
                              [&](std::uint64_t, std::uint64_t) { return ++nSteps < 2; }));
    EXPECT_TRUE(nSteps == 2 && packages.empty() && problem.strMessage.empty());
    std::remove(strPath.c_str());
}

TEST(SizeText, TakesTheLargestUnit) {
    EXPECT_EQ(SizeText(1023), "1023 KiB");
    EXPECT_EQ(SizeText(1536), "1.5 MiB");
    EXPECT_EQ(SizeText(3 << 19), "1.5 GiB");
}

}  // namespace
