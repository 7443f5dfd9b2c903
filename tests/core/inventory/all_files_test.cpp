#include "model/all_files.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

TEST(AllFiles, AreReadPackageByPackageWithoutTheFoldersThatHoldThem) {
    namespace fs = std::filesystem;
    const fs::path root = fs::path(testing::TempDir()) / "all-files";
    fs::create_directories(root / "info");
    const std::string strFolder = root.string() + "/";
    std::ofstream(strFolder + "info/a.list")
        << "/.\n/usr\n/usr/bin\n/usr/bin/a\n/usr/bin/a.old\n/usr/empty\n";
    std::ofstream(strFolder + "info/c.list") << "/.\r\n/top\r\n/usr\r\n/usr/c";
    std::vector<Package> packages(3);
    packages[0].strName = "a";
    packages[1].strName = "b";
    packages[2].strName = "c";
    Inventory inventory;
    inventory.SetPackages(packages);
    const auto rows = [](const AllFiles& files) {
        std::string str;
        for (size_t n = 0; n < files.Count(); ++n) {
            (str += files.PackageOf(n).strName) += ':';
            (str += files.Folder(n)) += '|';
            (str += files.Name(n)) += ' ';
        }
        return str;
    };
    AllFiles files;
    EXPECT_FALSE(files.ReadNext()) << "nothing was begun";
    files.Start(inventory, PackageStore(strFolder));
    EXPECT_TRUE(files.ReadNext());
    const std::string strA = "a:/usr/bin|a a:/usr/bin|a.old a:/usr|empty ";
    EXPECT_EQ(rows(files), strA);
    EXPECT_TRUE(files.ReadNext()) << "a package without a list";
    EXPECT_TRUE(files.ReadNext());
    EXPECT_EQ(rows(files), strA + "c:/|top c:/usr|c ") << "what was read stays in its place";
    EXPECT_FALSE(files.ReadNext());
    EXPECT_EQ(files.PackagesRead(), 3u);
    EXPECT_EQ(files.Path(0), "/usr/bin/a");
    files.Start(inventory, PackageStore());
    while (files.ReadNext()) {
    }
    EXPECT_EQ(files.Count(), 0u) << "a database elsewhere has no lists";
    fs::remove_all(root);
}

}  // namespace
