// The machine browser in real windows.
#include "QVControls.h"
#include "support/acting_dialog.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/popup.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/tree_window.h"

namespace {

/// A machine with two shares, of which "s" has folders; something may run between two of them.
class MemoryFolders : public QVMachineFolders {
public:
    void ListShares(LPCSTR psz, QVFolderTaker& taker) override { ListSubfolders(psz, taker); }
    void ListSubfolders(LPCSTR psz, QVFolderTaker& taker) override {
        const std::string strPath = psz;
        const std::string strNames = strPath == "\\\\M" ? "se" : strPath == "\\\\M\\s" ? "bac" : "";
        for (const char ch : strNames) {
            if (m_between(); !taker.TakeFolder(CString(ch), -1)) {
                return;
            }
        }
    }
    BOOL MachineAnswers(LPCSTR) override { return TRUE; }
    int GetImage(LPCSTR) override { return -1; }
    std::function<void()> m_between = [] {};
};

class Browser : public ActingDialog<QVBrowseMachineDlg> {
public:
    explicit Browser(MemoryFolders& folders, CWnd* pParent = nullptr) : ActingDialog(pParent) {
        SetMachineName("M");
        SetMachineFolders(&folders);
    }
    using QVBrowseMachineDlg::BuildNode;
    using QVBrowseMachineDlg::m_btnOK;
    using QVBrowseMachineDlg::m_imlSystem;
    using QVBrowseMachineDlg::m_wndTree;
    using QVBrowseMachineDlg::ResetNode;

    INT_PTR Show(std::function<void()> action) {
        m_action = [this, action] { BringToFront(m_hWnd), action(); };
        return DoModal();
    }
    /// The rows afterwards, a star behind the selected one, "!" if it may be chosen.
    std::string Type(WORD vk) {
        TypeKey(vk);
        CString strRows;
        for (HTREEITEM h = m_wndTree.GetRootItem(); h; h = m_wndTree.NextDisplayableItem(h)) {
            strRows += m_wndTree.GetItemText(h) + (h == m_wndTree.GetSelectedItem() ? "*" : "");
        }
        return std::string(strRows) + (m_btnOK.IsWindowEnabled() ? "!" : "");
    }

protected:
    bool IsModal() override { return (m_nFlags & WF_MODALLOOP) != 0; }
};

TEST(BrowseMachine, ChoosesAFolderByKeysAlone) {
    MemoryFolders folders;
    Browser dlg(folders);
    EXPECT_EQ(dlg.Show([&] {
        const std::pair<WORD, const char*> keys[] = {
            {VK_DOWN, "M*es"},     {VK_RETURN, "M*es"},    {VK_DOWN, "Me*s!"},
            {VK_RIGHT, "Me*s!"},   {VK_DOWN, "Mes*!"},     {VK_RIGHT, "Mes*abc!"},
            {VK_DOWN, "Mesa*bc!"}, {VK_RETURN, "Mesa*bc!"}};
        for (const auto& [vk, pszRows] : keys) {
            EXPECT_EQ(dlg.Type(vk), pszRows);
        }
    }),
              IDOK);
    EXPECT_EQ(dlg.GetItemPath(), "\\\\M\\s\\a");
    EXPECT_EQ(dlg.m_imlSystem.m_hImageList, nullptr) << "the shell's list is given back";
    EXPECT_EQ(dlg.Show([&] { EXPECT_EQ(dlg.Type(VK_UP), "Mes*abc!") << "where it was"; }),
              Browser::kStillThere);
    dlg.SetMachineName("none");
    EXPECT_EQ(dlg.GetItemPath(), "");
    EXPECT_EQ(dlg.Show([&] { dlg.SendMessage(WM_COMMAND, IDOK); }), Browser::kStillThere);
}

/// Types a key at the busy thread, and comes back when it waits in the queue. ESC repeats.
void TypeAtBusy(WORD vk) {
    INPUT inputs[3] = {};
    for (INPUT& input : inputs) {
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = vk;
    }
    inputs[2].ki.dwFlags = KEYEVENTF_KEYUP;
    const UINT nFirst = vk == VK_ESCAPE ? 0 : 1;
    ::SendInput(3 - nFirst, inputs + nFirst, sizeof(INPUT));
    const ULONGLONG nEnd = ::GetTickCount64() + kPumpTimeout;
    while (HIWORD(::GetQueueStatus(QS_KEY)) == 0 && ::GetTickCount64() < nEnd) {
    }
}

TEST(BrowseMachine, EscEndsTheReading_AndNotTheDialog) {
    CWnd owner;
    MakePopup(owner, WS_VISIBLE);
    MemoryFolders folders;
    Browser dlg(folders, &owner);
    std::vector<WORD> keys{VK_ESCAPE, VK_DOWN};  // the last one first
    folders.m_between = [&] {
        if (!keys.empty()) {
            TypeAtBusy(keys.back());
            keys.pop_back();
        }
    };
    EXPECT_EQ(dlg.Show([&] {
        PumpPending();
        EXPECT_EQ(dlg.Type(VK_DOWN), "M*") << "given up before the dialog showed";
        EXPECT_EQ(dlg.Type(VK_RIGHT), "M*es");
        dlg.Type(VK_DOWN), dlg.Type(VK_DOWN);
        keys = {VK_ESCAPE, VK_DOWN};
        EXPECT_EQ(dlg.Type(VK_RIGHT), "Mes*!") << "what was typed before ESC goes with it";
        keys = {VK_DOWN};
        dlg.Type(VK_RIGHT);
        EXPECT_EQ(dlg.Type(VK_SHIFT), "Mesa*bc!") << "other keys come after the reading";
        dlg.Type(VK_ESCAPE);
    }),
              IDCANCEL);
}

TEST(BrowseMachine, MayGoWhileItReads) {
    MemoryFolders folders;
    for (int nWay = 0; nWay < 6; ++nWay) {
        CWnd owner;
        MakePopup(owner);
        Browser dlg(folders, &owner);
        bool bGoes = nWay < 3;
        folders.m_between = [&] {
            CWnd& wnd = nWay % 3 == 1 ? owner : dlg;
            bGoes && (nWay % 3 == 0 ? (dlg.EndDialog(5), TRUE) : wnd.DestroyWindow());
        };
        EXPECT_EQ(dlg.Show([&] {
            bGoes = true;
            for (const WORD vk : {VK_DOWN, VK_DOWN, VK_DOWN, VK_RIGHT}) {
                TypeKey(vk);
            }
        }),
                  nWay % 3 == 0 ? 5 : -1);
    }
    folders.m_between = [] {};
    auto* pDlg = new Mortal<Browser>(folders);
    pDlg->Create(30006);
    folders.m_between = [&] { delete pDlg; };
    const HTREEITEM hMachine = pDlg->m_wndTree.GetRootItem();
    pDlg->BuildNode(pDlg->m_wndTree.GetChildItem(hMachine), "\\\\M\\s");
}

TEST(BrowseMachine, OpensAndClosesOverAndOver_LeavingNothingBehindMonkey) {
    MemoryFolders folders;
    std::unique_ptr<Browser> pDlg;
    PlayInAnyOrder<Browser>(
        pDlg,
        [&] {
            pDlg = std::make_unique<Browser>(folders);
            pDlg->Create(30006);
        },
        {[&](int n) { pDlg->m_wndTree.PostMessage(WM_KEYDOWN, VK_LEFT + n % 4), PumpPending(); },
         [&](int n) { pDlg->SendMessage(WM_COMMAND, n & 3); },
         [&](int) { pDlg->ResetNode(pDlg->m_wndTree.GetSelectedItem()); },
         [&](int) { pDlg->BuildNode(pDlg->m_wndTree.GetSelectedItem(), "\\\\M\\s"); },
         [&](int n) { n == 0 && pDlg->DestroyWindow(); }});
}

TEST(TreeOnThePlatformsClass, ShowsNothingOfIt) {
    FontParent parent(CSize(300, 200));
    const HWND hWnd = ::CreateWindowEx(0, WC_TREEVIEW, "", kTreeStyle, 0, 0, 200, 100,
                                       parent.m_hWnd, nullptr, nullptr, nullptr);
    const auto hTips = reinterpret_cast<HWND>(::SendMessage(hWnd, TVM_GETTOOLTIPS, 0, 0));
    ASSERT_TRUE(::IsWindow(hTips));
    QVTreeCtrlEx tree;
    tree.SubclassWindow(hWnd);
    EXPECT_FALSE(::IsWindow(hTips));
    for (int i = 0; i < 50; ++i) {
        tree.InsertItem("a row wider than the window, so that there are both bars in it", -1, -1,
                        TVI_ROOT, TVI_LAST);
    }
    parent.Forget();
    tree.SetWindowPos(nullptr, 0, 0, 150, 90, SWP_NOZORDER);
    ClickAt(tree.m_hWnd, CPoint(40, 20), MouseButton::Right);
    ClickAt(tree.m_hWnd, CPoint(40, 40));
    TypeText("ab");
    parent.SetFocus();
    EXPECT_EQ(parent.m_notifications.size(), 4u) << "of two selections";
    EXPECT_EQ(parent.Count(TVN_SELCHANGED), 2);
    EXPECT_EQ(tree.GetStyle() & (WS_HSCROLL | WS_VSCROLL), DWORD{WS_HSCROLL | WS_VSCROLL});
}

}  // namespace
