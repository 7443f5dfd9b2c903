// Folder browser, file dialog and the question for a machine.
#include "QVControls.h"
#include "support/monkey.h"
#include "support/popup.h"
#include "support/temp_file.h"
#include "support/test_app.h"

#include <afxdisp.h>

#include <shlobj.h>
#include <tuple>

namespace {

/// Keys for whichever loop of this thread runs next.
void QueueKeys(std::initializer_list<WORD> keys) {
    for (const WORD vk : keys) {
        ::keybd_event(static_cast<BYTE>(vk), 0, 0, 0);
        ::keybd_event(static_cast<BYTE>(vk), 0, KEYEVENTF_KEYUP, 0);
    }
}

// Each dialog that comes up is answered once from within its loop, and closed if that does not
// help.
class BrowseDialogs : public testing::Test {
protected:
    BrowseDialogs() : m_nTimer(::SetTimer(nullptr, 0, 5, Look)) {
        s_pTest = this;
        MakePopup(m_owner, WS_VISIBLE);
    }
    ~BrowseDialogs() override { ::KillTimer(nullptr, m_nTimer); }
    // Owner and focus are as they were each time, and so are the handles.
    void TwentyTimes(const std::function<void(int i)>& run) {
        const LONG nHandles = AfxGetOwnedHandleCount();
        for (int i = 0; i < 20; ++i) {
            m_owner.SetFocus();
            run(i);
            EXPECT_TRUE(m_owner.IsWindowEnabled() && ::GetFocus() == m_owner.m_hWnd) << i;
        }
        EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
    }
    CWnd m_owner;
    std::function<void(HWND)> m_answer;

private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD) {
        const HWND hActive = ::GetActiveWindow();
        if (std::exchange(s_pTest->m_hLast, hActive) == hActive) {
            if (++s_pTest->m_nLooks % 400 == 0) {
                ::PostMessage(hActive, WM_COMMAND, IDCANCEL, 0);
            }
        } else if (hActive != nullptr && hActive != s_pTest->m_owner.m_hWnd) {
            s_pTest->m_answer(hActive);
        }
    }
    static inline BrowseDialogs* s_pTest;
    HWND m_hLast = nullptr;
    int m_nLooks = 0;
    UINT_PTR m_nTimer;
};

TEST_F(BrowseDialogs, FoldersAreChosenByKeys_AlsoBehindShortcuts) {
    AfxOleTerm();  // in a program without
    ::CoInitialize(nullptr);
    IShellLinkA* pLink = nullptr;
    IPersistFile* pFile = nullptr;
    ::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                       reinterpret_cast<void**>(&pLink));
    pLink->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&pFile));
    pLink->SetPath("C:\\windows");
    pFile->Save(L"C:\\windows\\temp\\qv.lnk", TRUE);
    pFile->Release();
    pLink->Release();
    ::CoUninitialize();
    const std::tuple<LPCSTR, WORD, int, LPCSTR> cases[] = {
        {"C:\\windows\\temp", VK_RETURN, IDOK, "C:\\windows\\temp"},
        {"C:\\windows\\temp", VK_ESCAPE, IDCANCEL, "C:\\windows\\temp"},
        {"C:\\windows\\temp\\qv.lnk", VK_RETURN, IDOK, "C:\\windows"}};
    TwentyTimes([&](int i) {
        const auto& [pszStart, vk, nResult, pszPath] = cases[i % std::size(cases)];
        QVBrowseDlg dlg(&m_owner);
        dlg.SetFolderLocation(CSIDL_DRIVES);
        dlg.SetBrowseFlags(BIF_BROWSEINCLUDEFILES);
        dlg.SetItemPath(pszStart);
        m_answer = [nKey = vk](HWND) { QueueKeys({nKey}); };
        EXPECT_EQ(dlg.DoModal(), nResult) << i;
        EXPECT_STREQ(dlg.GetItemPath(), pszPath) << i;
    });
    ::DeleteFile("C:\\windows\\temp\\qv.lnk");
    EXPECT_EQ(::CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK) << "COM is as it was";
    ::CoUninitialize();
    AfxOleInit();
}

class Folders : public QVBrowseDlg {
public:
    using QVBrowseDlg::BrowseNotify;
};
class ToldTree : public CWnd {
public:
    int m_nStarts = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        m_nStarts += message == BFFM_SETSELECTIONA && wParam == TRUE;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST(BrowseDlg, StartsAtADrivePathAlone) {
    ToldTree tree;
    MakePopup(tree);
    for (const char* pszPath : {"\\\\m\\s", "\\\\", "", "C:\\a", "\\a"}) {
        Folders::BrowseNotify(tree, BFFM_INITIALIZED, 0, reinterpret_cast<LPARAM>(pszPath));
        Folders::BrowseNotify(tree, BFFM_SELCHANGED, 0, reinterpret_cast<LPARAM>(pszPath));
    }
    EXPECT_EQ(tree.m_nStarts, 2);
}

class FileDialog : public QVFileDialogEx {
public:
    using QVFileDialogEx::QVFileDialogEx;
    CString m_strTold;

protected:
    void OnInitDone() override { m_strTold += "done "; }
    void OnFolderChange() override { m_strTold += "folder "; }
    BOOL OnFileNameOK() override {
        const bool bKeep = m_strTold == "done folder ";
        m_strTold += GetPathName() + " ";
        QueueKeys({static_cast<WORD>(bKeep ? VK_RETURN : VK_F24)});
        return bKeep;
    }
};

TEST_F(BrowseDialogs, FilesShowTheirTexts_AndTellWhatTheUserDoes) {
    const std::tuple<BOOL, LPCSTR, CString> cases[] = {{TRUE, nullptr, "Select a File Select 1"},
                                                       {TRUE, "a|*.a|b|*.b||", "mine Select 2"},
                                                       {FALSE, nullptr, "Select a File &Save 1"},
                                                       {FALSE, "a|*.a|b|*.b||", "Save As &Save 2"}};
    const TempFile file;
    const CString strPath(file.Path());
    TwentyTimes([&](int i) {
        const auto& [bOpen, pszFilter, strShown] = cases[i % std::size(cases)];
        FileDialog dlg(bOpen, nullptr, strPath, 0, pszFilter, &m_owner);
        const CString strMine("mine");
        dlg.SetSelectFileDlg();
        if (pszFilter != nullptr) {
            dlg.m_ofn.lpstrTitle = nullptr;
            dlg.SetDlgTitle(strMine);
        }
        dlg.SetDlgTitle(1);  // no such strings
        dlg.SetOkButtonText(1);
        CString strSeen;
        m_answer = [&](HWND hWnd) {
            CString strButton;
            dlg.GetParent()->GetWindowText(strSeen);
            dlg.GetParent()->GetDlgItemText(IDOK, strButton);
            const int nFilters =
                static_cast<int>(::SendDlgItemMessage(hWnd, 0x470, CB_GETCOUNT, 0, 0));
            strSeen.AppendFormat(" %s %d", strButton.GetString(), nFilters);
            QueueKeys({VK_RETURN});
        };
        EXPECT_EQ(dlg.DoModal(), IDOK);
        EXPECT_STREQ(strSeen, strShown);
        EXPECT_STREQ(dlg.GetPathName(), strPath);
        EXPECT_STREQ(dlg.m_strTold, "done folder " + strPath + " " + strPath + " ");
    });
}

class Machines : public QVFileFolders {
public:
    std::function<BOOL(LPCSTR)> m_answers;
    BOOL MachineAnswers(LPCSTR pszMachine) override { return m_answers(pszMachine); }
};

TEST_F(BrowseDialogs, MachinesAreTakenThatAnswer_ByKeysAlone) {
    Machines machines;
    QVFindInstallationDlg dlg;
    dlg.SetMachineFolders(&machines);
    dlg.SetInstallationMachine(" \t ");
    machines.m_answers = [](LPCSTR pszMachine) {
        const BOOL bAnswers = strcmp(pszMachine, "\\\\ab") == 0;
        QueueKeys({VK_END, 'B', static_cast<WORD>(bAnswers ? VK_F24 : VK_RETURN)});
        return bAnswers;
    };
    TheTestApp().Forget();
    int nShown = 0;
    m_answer = [&](HWND) {
        constexpr WORD kKeys[][3] = {{'A', VK_TAB, VK_SPACE}, {VK_ESCAPE}, {VK_TAB, VK_RETURN}};
        EXPECT_EQ(dlg.GetDlgItem(IDOK)->IsWindowEnabled(), nShown > 0);
        const auto& keys = kKeys[std::min(nShown++, 2)];  // the dialog, the browser, the dialog
        QueueKeys({keys[0], keys[1], keys[2]});
    };
    EXPECT_EQ(dlg.DoModal(), IDOK);
    EXPECT_STREQ(dlg.InstallationMachine(), "ab");
    ASSERT_EQ(TheTestApp().m_prompts.size(), 1u);
    EXPECT_NE(TheTestApp().m_prompts[0].find("<a>"), std::string::npos);
}

TEST(FindInstallationDlg, StandsWhatOthersDo_Monkey) {
    Machines machines;
    std::unique_ptr<QVFindInstallationDlg> pDlg;
    const auto make = [&] {
        pDlg = std::make_unique<QVFindInstallationDlg>();
        pDlg->SetMachineFolders(&machines);
        pDlg->Create(30004);
    };
    const auto answer = [&](int n) {
        machines.m_answers = [&, n](LPCSTR) {
            n % 4 == 0 ? pDlg.reset() : void(n % 4 == 1 && pDlg->DestroyWindow());
            return n & 8;
        };
        pDlg->SendMessage(WM_COMMAND, n % 3 != 0 ? IDOK : IDCANCEL);
    };
    PlayInAnyOrder<QVFindInstallationDlg>(
        pDlg, make, {answer, [&](int n) { pDlg->SetDlgItemText(30116, CString('m', n & 1)); }});
}

}  // namespace
