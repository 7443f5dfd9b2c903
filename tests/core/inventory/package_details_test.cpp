#include "model/browser_layout.h"
#include "model/dependencies.h"
#include "model/file_text.h"
#include "model/package_database.h"
#include "model/package_facts.h"
#include "model/package_store.h"
#include "model/stanza.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

constexpr char kDatabase[] =
    "Package: mailer\nStatus: install ok installed\nInstalled-Size: 2048\nProvides: mail, post (= "
    "1)\n"
    "Depends: libc (>= 2) , ghost:any | mail\nConffiles:\n"
    " /etc/a b 0123456789abcdef0123456789abcdef\n /etc/old x obsolete\n nothing\n"
    "Description: sends\tmail\n First\n line.\n .\n  as it stands\n after it\n"
    "\n"
    "Package: libc\nStatus: deinstall ok config-files\n\n"
    "Package: reader\nStatus: install ok installed\nDepends: post | reader";

std::vector<Package> Parsed(const std::string& strText) {
    std::vector<Package> packages;
    Problem problem;
    EXPECT_TRUE(ParsePackages(strText, packages, problem)) << problem.strMessage;
    return packages;
}

TEST(PackageFacts, AreTheWholeEntryInWords) {
    const std::vector<Package> packages = Parsed(kDatabase);
    std::string strFacts;
    for (const Fact& fact : FactsOf(packages[0])) {
        strFacts += fact.strName + "=" + fact.strValue + ";";
    }
    EXPECT_EQ(strFacts,
              "Package=mailer;Status=install ok installed;Installed-Size=2.0 MiB;"
              "Provides=mail, post (= 1);Depends=libc (>= 2) , ghost:any | mail;");
    EXPECT_EQ(DescriptionOf(packages[0]),
              (std::vector<std::string>{"sends\tmail", "", "First line.", "", " as it stands",
                                        "after it"}));
    EXPECT_EQ(*packages[2].pStanza,
              std::string(kDatabase).substr(std::string(kDatabase).rfind("Pack")));
    EXPECT_EQ(Printable(std::string_view("a\tb\033\0\x81\x7F", 7)), "a b  \x81 ");
}

TEST(ConfigurationFiles, EndInTheirChecksum) {
    std::string strFiles;
    for (const auto& file :
         ConfigurationFiles(StanzaValue(*Parsed(kDatabase)[0].pStanza, "Conffiles"))) {
        strFiles += file.strPath + "," + file.strChecksum + (file.bObsolete ? ",obsolete;" : ";");
    }
    EXPECT_EQ(strFiles, "/etc/a b,0123456789abcdef0123456789abcdef;/etc/old,x,obsolete;");
}

TEST(Relations, AreAlternativesApartAndThoseWhoAskByAnyName) {
    Inventory inventory;
    inventory.SetPackages(Parsed(kDatabase));
    const auto said = [](const std::vector<Relation>& relations) {
        std::string str;
        for (const Relation& relation : relations) {
            str += relation.strText + "->" + relation.strName + "," + relation.strState + ";";
        }
        return str;
    };
    const auto& packages = inventory.Sections()[0].packages;
    EXPECT_EQ(said(RelationsOf(inventory, packages[0]).neededBy), "libc (>= 2)->mailer,installed;");
    const Relations mailer = RelationsOf(inventory, packages[1]);
    EXPECT_EQ(said(mailer.needs),
              "libc (>= 2)->libc,config-files;ghost:any->,;mail->mailer,installed;");
    EXPECT_EQ(said(mailer.neededBy),
              "ghost:any | mail->mailer,installed;post | reader->reader,installed;");
    EXPECT_EQ(RelationsOf(inventory, packages[2]).needs[1].strName, "reader")
        << "a package of that name comes before its providers";
}

TEST(PackageStore, FindsFilesBesideTheStatusFile) {
    namespace fs = std::filesystem;
    const fs::path root = fs::path(testing::TempDir()) / "package-store";
    fs::create_directories(root / "var/lib/dpkg/info");
    const std::string strFolder = (root / "var/lib/dpkg").string() + "/";
    for (const char* pszFile : {"a.list", "b.list", "b:x.list"}) {
        std::ofstream(strFolder + "info/" + pszFile) << "/etc\n";
    }
    const PackageStore store(strFolder);
    const auto file = [&](const char* pszName, const char* pszArchitecture) {
        Package package;
        package.strName = pszName;
        package.strArchitecture = pszArchitecture;
        const std::string strFile = store.InfoFile(package, "list");
        return strFile.substr(strFile.rfind('/') + 1);
    };
    EXPECT_EQ(file("a", "x"), "a.list");
    EXPECT_EQ(file("b", "x"), "b:x.list");
    EXPECT_EQ(file("b", "../y"), "b.list");
    EXPECT_EQ(file("c", ""), "");
    EXPECT_EQ(file("../info/a", ""), "") << "leads out of its place";
    EXPECT_EQ(store.MachineFile("/etc/x"), (root / "etc/x").string());
    EXPECT_EQ(store.MachineFile("etc/x"), "");
    EXPECT_EQ(PackageStore("Z:\\var\\lib\\dpkg\\").MachineFile("/etc/x"), "Z:\\etc\\x");
    EXPECT_EQ(PackageStore("C:\\copy\\").MachineFile("/etc/x"), "");

    const std::string strList = strFolder + "info/a.list";
    EXPECT_EQ(ReadFileText(strList, 5).strText, "/etc\n");
    for (const FileText& text :
         {ReadFileText(strList, 4), ReadFileText(strList + "x"), ReadFileText(strFolder)}) {
        EXPECT_TRUE(text.strText.empty());
        EXPECT_FALSE(text.WasRead());
        EXPECT_TRUE(text.problem.strFile.starts_with(strFolder)) << text.problem.strFile;
    }
    fs::remove_all(root);
}

TEST(BrowserLayout, ComesBackFromItsFileUnlessAPaneWouldBeGone) {
    LayoutValues values({30, 95, 3});
    const BrowserLayout layout = values.Layout();
    EXPECT_EQ(layout.nTreePercent * 1000 + layout.nListPercent * 10 + layout.nDetails, 30953);
    for (const char* pszPercent : {"", "4", "96", "30 ", "-30", "99999999999"}) {
        ASSERT_TRUE(values.Set(0, pszPercent));
        EXPECT_EQ(values.Layout().nTreePercent, BrowserLayout().nTreePercent) << pszPercent;
    }
}

}  // namespace
