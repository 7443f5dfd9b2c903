#include "dialogs/browse_machine_dlg.h"

#include "common/path.h"
#include "dialogs/ask_parts.h"
#include "dialogs/core/lazy_branches.h"
#include "dialogs/dialog_ids.h"
#include "dialogs/typed_escape.h"
#include "frame/out_of_memory.h"
#include "frame/redraw_pause.h"

#include <string>
#include <vector>

namespace {

constexpr LPARAM kRepeatedKey = LPARAM{1} << 30;

// The shell's list of small images. Null if it has none.
HIMAGELIST SystemImages() {
    wchar_t szWindows[MAX_PATH];
    if (::GetWindowsDirectoryW(szWindows, MAX_PATH) == 0) {
        return nullptr;
    }
    SHFILEINFOW info{};
    return reinterpret_cast<HIMAGELIST>(
        ::SHGetFileInfoW(szWindows, 0, &info, sizeof(info), SHGFI_SYSICONINDEX | SHGFI_SMALLICON));
}

}  // namespace

// The branches on the dialog's tree, and the folders by the dialog's interface.
class QVBrowseMachineDlg::Core : public qv::BranchTree, public qv::BranchSource {
public:
    explicit Core(QVBrowseMachineDlg& dlg) : branches(*this, *this), m_dlg(dlg) {}

    QVMachineFolders& Folders() const {
        return m_pFolders != nullptr ? *m_pFolders : QVMachineFolders::Network();
    }

    qv::LazyBranches branches;
    qv::AliveToken alive;
    QVMachineFolders* m_pFolders = nullptr;
    bool m_bEscapeHeld = false;  // the one that ended a reading

    // As long as a reading lasts the tree shows nothing new, and ESC is looked for.
    class Scope {
    public:
        explicit Scope(Core& core)
            : m_watch(core.alive),
              m_pause(core.m_dlg.m_wndTree),
              m_escape(core.m_dlg.m_hWnd),
              m_core(core) {
            core.m_pEscape = &m_escape;
        }
        ~Scope() {
            if (m_watch) {
                m_core.m_pEscape = nullptr;
            }
        }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        const CWaitCursor m_wait;
        const qv::AliveWatch m_watch;
        const qv::RedrawPause m_pause;
        qv::TypedEscape m_escape;
        Core& m_core;
    };
    bool IsReading() const { return m_pEscape != nullptr; }

    // --- The tree

    std::string Text(HTREEITEM hItem) override {
        return static_cast<LPCSTR>(Tree().GetItemText(hItem));
    }
    HTREEITEM Parent(HTREEITEM hItem) override { return Tree().GetParentItem(hItem); }
    HTREEITEM FirstChild(HTREEITEM hItem) override { return Tree().GetChildItem(hItem); }
    HTREEITEM FindChild(HTREEITEM hItem, const std::string& strText) override {
        return Tree().FindItem(hItem, strText.c_str(), -1);
    }
    HTREEITEM Append(HTREEITEM hItem, const char* pszText, int nImage) override {
        return Tree().InsertItem(pszText, nImage, nImage, hItem, TVI_LAST);
    }
    void DeleteChildren(HTREEITEM hItem) override { Tree().DeleteChildren(hItem); }
    void SortChildren(HTREEITEM hItem) override { Tree().SortChildren(hItem); }
    void Open(HTREEITEM hItem) override { Tree().Expand(hItem, TVE_EXPAND, TRUE, TRUE); }
    void Close(HTREEITEM hItem) override { Tree().Expand(hItem, TVE_COLLAPSE, FALSE, TRUE); }

    // --- The folders

    void ListShares(const std::string& strMachine, qv::BranchTaker& taker) override {
        Relay relay(taker);
        Folders().ListShares(strMachine.c_str(), relay);
    }
    void ListFolders(const std::string& strPath, qv::BranchTaker& taker) override {
        Relay relay(taker);
        Folders().ListSubfolders(strPath.c_str(), relay);
    }
    bool GivenUp() override {
        const qv::AliveWatch watch(alive);
        const bool bGivenUp = m_pEscape != nullptr && m_pEscape->Look();
        if (bGivenUp && watch) {
            m_bEscapeHeld = true;
        }
        return bGivenUp;
    }

private:
    class Relay : public QVFolderTaker {
    public:
        explicit Relay(qv::BranchTaker& taker) : m_taker(taker) {}
        BOOL TakeFolder(LPCSTR pszName, int nImage) override {
            return m_taker.Take(pszName, nImage);
        }

    private:
        qv::BranchTaker& m_taker;
    };

    QVTreeCtrlEx& Tree() const { return m_dlg.m_wndTree; }

    QVBrowseMachineDlg& m_dlg;
    qv::TypedEscape* m_pEscape = nullptr;
};

BEGIN_MESSAGE_MAP(QVBrowseMachineDlg, CDialog)
    ON_WM_DESTROY()
    ON_NOTIFY(TVN_ITEMEXPANDING, QV_IDC_BROWSE_TREE, &QVBrowseMachineDlg::OnItemexpandingBrowseTree)
    ON_NOTIFY(TVN_SELCHANGED, QV_IDC_BROWSE_TREE, &QVBrowseMachineDlg::OnSelchangedBrowseTree)
END_MESSAGE_MAP()

QVBrowseMachineDlg::QVBrowseMachineDlg(CWnd* pParent)
    : CDialog(QV_IDD_BROWSE_MACHINE, pParent),
      m_pCore(qv::AsMemoryException([this] { return std::make_unique<Core>(*this); })) {}

// A window that is still there goes while the list can be given back to the shell.
QVBrowseMachineDlg::~QVBrowseMachineDlg() {
    DestroyWindow();
    m_imlSystem.Detach();
}

void QVBrowseMachineDlg::SetMachineName(LPCSTR pszName) {
    qv::StoreText(m_strMachineName, pszName);
    m_strItemPath.Empty();
}

void QVBrowseMachineDlg::SetPromptString(LPCSTR pszPrompt) {
    qv::StoreText(m_strPrompt, pszPrompt);
}

void QVBrowseMachineDlg::SetPromptString(UINT nStringID) {
    qv::StoreText(m_strPrompt, nStringID);
}

void QVBrowseMachineDlg::SetItemPath(LPCSTR pszPath) {
    qv::StoreText(m_strItemPath, pszPath);
}

void QVBrowseMachineDlg::SetMachineFolders(QVMachineFolders* pFolders) {
    m_pCore->m_pFolders = pFolders;
}

// --- The dialog

BOOL QVBrowseMachineDlg::OnInitDialog() {
    const qv::WindowWatch<HWND> watch(m_pCore->alive, m_hWnd);
    CDialog::OnInitDialog();
    const HIMAGELIST hImages = SystemImages();
    if (!watch || hImages == nullptr) {
        if (watch) {
            EndDialog(IDCANCEL);
        }
        return TRUE;
    }
    m_imlSystem.Attach(hImages);
    m_wndTree.SetImageList(&m_imlSystem, TVSIL_NORMAL);
    const CWaitCursor wait;
    BuildTree();
    // Who gave up the machine's reading is not made to wait for another.
    if (watch && !m_strItemPath.IsEmpty() && !IsNodeReset(m_hMachineItem)) {
        BuildAndSelectPath();
    }
    if (watch) {
        UpdateButtons();
    }
    return TRUE;
}

void QVBrowseMachineDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, QV_IDC_BROWSE_TREE, m_wndTree);
    DDX_Control(pDX, IDOK, m_btnOK);
    if (!pDX->m_bSaveAndValidate) {
        if (!m_strPrompt.IsEmpty()) {
            SetDlgItemText(QV_IDC_BROWSE_PROMPT, m_strPrompt);
        }
    } else if (const HTREEITEM hItem = m_wndTree.GetSelectedItem()) {
        FindNodePath(hItem, m_strItemPath);
    }
}

// Whoever sends the command gets no further than the button would let the user.
void QVBrowseMachineDlg::OnOK() {
    if (m_btnOK.IsWindowEnabled()) {
        CDialog::OnOK();
    }
}

void QVBrowseMachineDlg::OnDestroy() {
    CDialog::OnDestroy();
    m_imlSystem.Detach();
    m_hMachineItem = nullptr;
    m_pCore->branches.SetRoot(nullptr);
    m_pCore->m_bEscapeHeld = false;
}

// The key that ended a reading goes on repeating until it is let go.
BOOL QVBrowseMachineDlg::PreTranslateMessage(MSG* pMsg) {
    if (m_pCore->m_bEscapeHeld && pMsg->wParam == VK_ESCAPE) {
        if (pMsg->message == WM_KEYDOWN && (pMsg->lParam & kRepeatedKey) != 0) {
            return TRUE;
        }
        m_pCore->m_bEscapeHeld = false;
    }
    return CDialog::PreTranslateMessage(pMsg);
}

void QVBrowseMachineDlg::UpdateButtons() {
    const HTREEITEM hItem = m_wndTree.GetSelectedItem();
    m_btnOK.EnableWindow(hItem != nullptr && m_wndTree.GetParentItem(hItem) != nullptr);
}

void QVBrowseMachineDlg::OnSelchangedBrowseTree(NMHDR*, LRESULT* pResult) {
    UpdateButtons();
    *pResult = 0;
}

// --- The branches

// Runs what may read. The tree shows what came of it, unless the window has gone: false then. The
// want of memory leaves a branch unread.
template <class Action>
bool QVBrowseMachineDlg::WhileReading(Action action) {
    const qv::WindowWatch<HWND> watch(m_pCore->alive, m_hWnd);
    if (m_hWnd == nullptr || m_pCore->IsReading()) {
        return false;
    }
    qv::MemorySuffices([&] {
        const Core::Scope scope(*m_pCore);
        action();
    });
    if (!watch) {
        return false;
    }
    m_wndTree.InvalidateRect(nullptr);
    return true;
}

void QVBrowseMachineDlg::BuildTree() {
    const qv::WindowWatch<HWND> watch(m_pCore->alive, m_hWnd);
    int nImage = -1;
    qv::MemorySuffices([&] { nImage = m_pCore->Folders().GetImage("\\\\" + m_strMachineName); });
    if (!watch) {
        return;
    }
    m_hMachineItem = m_wndTree.InsertItem(m_strMachineName, nImage, nImage, TVI_ROOT, TVI_LAST);
    m_pCore->branches.SetRoot(m_hMachineItem);
    if (m_hMachineItem != nullptr) {
        m_pCore->branches.Reset(m_hMachineItem);
        WhileReading([this] { m_pCore->branches.MayToggle(m_hMachineItem); });
    }
}

void QVBrowseMachineDlg::BuildAndSelectPath() {
    std::vector<std::string> names;
    QVPath path;
    path.Set(m_strItemPath);
    int nPos = 0;
    for (CString strName; path.GetNextComponent(nPos, strName);) {
        names.emplace_back(static_cast<LPCSTR>(strName));
    }
    HTREEITEM hItem = nullptr;
    if (WhileReading([&] { hItem = m_pCore->branches.Follow(names); }) && hItem != nullptr) {
        m_wndTree.EnsureVisible(hItem);
        m_wndTree.SelectItem(hItem);
    }
}

void QVBrowseMachineDlg::ResetNode(HTREEITEM hItem) {
    if (hItem != nullptr) {
        const qv::RedrawPause pause(m_wndTree);
        m_pCore->branches.Reset(hItem);
        m_wndTree.InvalidateRect(nullptr);
    }
}

BOOL QVBrowseMachineDlg::IsNodeReset(HTREEITEM hItem) {
    return m_pCore->branches.IsReset(hItem);
}

void QVBrowseMachineDlg::BuildNode(HTREEITEM hItem, const CString& strPath) {
    if (IsNodeReset(hItem)) {
        WhileReading([&] { m_pCore->branches.Read(hItem, static_cast<LPCSTR>(strPath)); });
    }
}

void QVBrowseMachineDlg::FindNodePath(HTREEITEM hItem, CString& strPath) {
    strPath = m_pCore->branches.PathOf(hItem).c_str();
}

void QVBrowseMachineDlg::OnItemexpandingBrowseTree(NMHDR* pNMHDR, LRESULT* pResult) {
    const HTREEITEM hItem = reinterpret_cast<NM_TREEVIEW*>(pNMHDR)->itemNew.hItem;
    bool bMay = false;
    if (IsNodeReset(hItem)) {
        WhileReading([&] { bMay = m_pCore->branches.MayToggle(hItem); });
    } else {
        bMay = m_pCore->branches.MayToggle(hItem);
    }
    *pResult = !bMay;
}
