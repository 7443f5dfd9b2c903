// How a program begins and what it keeps: command lines, recent files, what the shell knows of it.
#include "support/temp_file.h"
#include "support/test_app.h"
#include "window/afx/mdi_test_ids.h"

#include <afxadv.h>

#include <gtest/gtest.h>

namespace {

TEST(CommandLine, SaysWhatTheProgramBeginsWith) {
    const struct {
        std::vector<const char*> arguments;
        int nCommand;
        const char* pszFile;
        const char* pszPort;
        BOOL bSplash;
    } kCases[] = {
        {{}, CCommandLineInfo::FileNew, "", "", TRUE},
        {{"a b.txt"}, CCommandLineInfo::FileOpen, "a b.txt", "", TRUE},
        {{"/p", "a"}, CCommandLineInfo::FilePrint, "a", "", TRUE},
        {{"/PT", "a", "printer", "driver", "port"},
         CCommandLineInfo::FilePrintTo,
         "a",
         "port",
         TRUE},
        {{"-dde"}, CCommandLineInfo::FileDDE, "", "", TRUE},
        {{"/RegServer"}, CCommandLineInfo::AppRegister, "", "", TRUE},
        {{"/Unregister", "a"}, CCommandLineInfo::AppUnregister, "a", "", TRUE},
        {{"-Embedding"}, CCommandLineInfo::FileNew, "", "", FALSE},
        {{"/unknown", "a", "b"}, CCommandLineInfo::FileOpen, "a", "", TRUE},
    };
    for (const auto& testCase : kCases) {
        CCommandLineInfo info;
        for (size_t n = 0; n < testCase.arguments.size(); ++n) {
            const char* psz = testCase.arguments[n];
            const bool bFlag = *psz == '/' || *psz == '-';
            info.ParseParam(psz + bFlag, bFlag, n + 1 == testCase.arguments.size());
        }
        SCOPED_TRACE(testCase.arguments.empty() ? "" : testCase.arguments[0]);
        EXPECT_EQ(info.m_nShellCommand, testCase.nCommand);
        EXPECT_STREQ(info.m_strFileName, testCase.pszFile);
        EXPECT_STREQ(info.m_strPortName, testCase.pszPort);
        EXPECT_EQ(info.m_bShowSplash, testCase.bSplash);
    }
}

TEST(RecentFiles, KeepTheirOrderAndAreShortInTheMenu) {
    CRecentFileList files(0, "Recent File List", "File%d", 3, 20);
    for (const char* pszFile : {"c:\\a\\1.txt", "c:\\2.txt", "C:\\A\\1.TXT", "c:\\b\\3&4.txt",
                                "c:\\some\\folders\\deep\\5.txt"}) {
        files.Add(pszFile);
    }
    EXPECT_STREQ(files[1], "c:\\b\\3&4.txt");
    EXPECT_STREQ(files[2], "C:\\A\\1.TXT") << "once, where it was used last";
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, "Recent File");
    menu.AppendMenu(MF_STRING, ID_APP_EXIT, "Exit");
    for (int nTime = 0; nTime < 2; ++nTime) {
        CCmdUI state;
        state.m_pMenu = &menu;
        state.m_nID = ID_FILE_MRU_FILE1;
        files.UpdateMenu(&state);
        EXPECT_EQ(state.m_nIndex, 2u) << "the walk goes on behind them";
    }
    ASSERT_EQ(menu.GetMenuItemCount(), 4u);
    const char* const texts[] = {"&1 c:\\...\\deep\\5.txt", "&2 c:\\b\\3&&4.txt", "&3 C:\\A\\1.TXT",
                                 "Exit"};
    for (UINT nItem = 0; nItem < 4; ++nItem) {
        CString str;
        menu.GetMenuString(nItem, str, MF_BYPOSITION);
        EXPECT_STREQ(str, texts[nItem]);
    }
    const struct {
        int nMost;
        const char* pszFolder;
        const char* pszName;
    } kNames[] = {{40, "", "c:\\some\\folders\\deep\\5.txt"},
                  {25, "", "c:\\...\\folders\\deep\\5.txt"},
                  {12, "", "c:\\...\\5.txt"},
                  {3, "", "5.txt"},
                  {40, "C:\\Some\\Folders\\Deep\\", "5.txt"}};
    for (const auto& name : kNames) {
        files.m_nMaxDisplayLength = name.nMost;
        CString str;
        EXPECT_TRUE(files.GetDisplayName(str, 0, name.pszFolder, lstrlen(name.pszFolder)));
        EXPECT_STREQ(str, name.pszName);
    }
    files.WriteList();
    CRecentFileList again(0, "Recent File List", "File%d", 3);
    again.ReadList();
    files.Remove(0);
    EXPECT_STREQ(files[0], again[1]);
    EXPECT_STREQ(files[2], "");
}

CString ClassesValue(const char* pszKey) {
    char sz[MAX_PATH] = "";
    LONG nBytes = sizeof sz;
    ::RegQueryValue(HKEY_CURRENT_USER, (std::string("Software\\Classes\\") + pszKey).c_str(), sz,
                    &nBytes);
    return sz;
}

TEST(ShellTypes, AreRegisteredBesideThoseOfOthers) {
    TheTestApp().AddDocTemplate(new CMultiDocTemplate(IDR_MDI_NOTE, nullptr, nullptr, nullptr));
    TheTestApp().AddDocTemplate(new CMultiDocTemplate(IDR_MDI_PLAN, nullptr, nullptr, nullptr));
    ::RegSetValue(HKEY_CURRENT_USER, "Software\\Classes\\.qvn", REG_SZ, "Other.Note", 10);
    ::RegSetValue(HKEY_CURRENT_USER, "Software\\Classes\\QvTest.Note\\shell\\open\\command", REG_SZ,
                  "other.exe %1", 12);
    CDocManager& manager = *TheTestApp().m_pDocManager;
    manager.RegisterShellFileTypes(TRUE);
    EXPECT_STREQ(ClassesValue("QvTest.Plan"), "Plan of the tests");
    EXPECT_NE(ClassesValue("QvTest.Plan\\shell\\print\\command").Find("window_tests.exe\""), -1);
    EXPECT_STREQ(ClassesValue(".qvp"), "QvTest.Plan");
    manager.UnregisterShellFileTypes();
    EXPECT_STREQ(ClassesValue("QvTest.Plan"), "");
    EXPECT_STREQ(ClassesValue(".qvp"), "");
    EXPECT_STREQ(ClassesValue(".qvn"), "Other.Note");
    EXPECT_STREQ(ClassesValue("QvTest.Note\\shell\\open\\command"), "other.exe %1");
    ::RegDeleteTree(HKEY_CURRENT_USER, "Software\\Classes\\.qvn");
    ::RegDeleteTree(HKEY_CURRENT_USER, "Software\\Classes\\QvTest.Note");
    delete std::exchange(TheTestApp().m_pDocManager, nullptr);
}

}  // namespace
