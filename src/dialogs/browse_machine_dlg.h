// QVBrowseMachineDlg: lets the user pick a folder on another machine. A tree shows the machine, its
// shared folders, and the folders below those. A branch is read when it is opened, and while that
// takes the dialog stands still; between two folders ESC ends the reading, and the branch is as
// unread as before.
//
// The order of calls: the constructor, SetMachineName, SetItemPath if a folder is to be open at the
// start, DoModal; after IDOK GetItemPath gives the folder that was chosen. It is one below the
// machine: the machine itself cannot be chosen. What cannot be read shows no folders; there are no
// messages.
//
// Where the folders come from is an object of the application's if it gives one
// (machine_folders.h), which has to be there for as long as the dialog is. Whatever that does, even
// to the dialog, is survived.
//
// The tree's images are the shell's own list, on loan.

#pragma once

#include "dialogs/machine_folders.h"
#include "tree/tree_ctrl.h"

#include <memory>

class QV_CONTROLS_API QVBrowseMachineDlg : public CDialog {
public:
    explicit QVBrowseMachineDlg(CWnd* pParent = nullptr);
    ~QVBrowseMachineDlg() override;

    // Without leading backslashes. Empties the item path: to be called before SetItemPath.
    void SetMachineName(LPCSTR pszName);
    // Above the tree, instead of the usual text. An empty one, or an id without string, keeps that.
    void SetPromptString(LPCSTR pszPrompt);
    void SetPromptString(UINT nStringID);
    // A UNC path: its folder is selected as the dialog opens. As far as it does not exist the tree
    // is open, and nothing is selected.
    void SetItemPath(LPCSTR pszPath);
    const CString& GetItemPath() { return m_strItemPath; }
    // Not owned; null stands for the platform's network.
    void SetMachineFolders(QVMachineFolders* pFolders);

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;

    // The machine, which is the root, and its shares.
    void BuildTree();
    // The way to the item path, which is read as far as need be.
    void BuildAndSelectPath();
    // Makes a branch an unread one.
    void ResetNode(HTREEITEM hItem);
    BOOL IsNodeReset(HTREEITEM hItem);
    // Reads an unread branch; strPath is its UNC path. The dialog may be gone afterwards.
    void BuildNode(HTREEITEM hItem, const CString& strPath);
    // The UNC path of an item.
    void FindNodePath(HTREEITEM hItem, CString& strPath);
    void UpdateButtons();

    afx_msg void OnDestroy();
    afx_msg void OnItemexpandingBrowseTree(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSelchangedBrowseTree(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

    CString m_strMachineName;
    CString m_strPrompt;
    CString m_strItemPath;
    CImageList m_imlSystem;  // the shell's, attached while there is a window
    QVTreeCtrlEx m_wndTree;
    HTREEITEM m_hMachineItem = nullptr;
    CButton m_btnOK;

private:
    class Core;

    template <class Action>
    bool WhileReading(Action action);

    std::unique_ptr<Core> m_pCore;
};
