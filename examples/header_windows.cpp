// A tree, a list and a text, each under a caption: the folders of Windows, their files, and what a
// file says.
#include "resource.h"

#include <QVControls.h>

class WindowsDlg : public CDialog {
public:
    WindowsDlg() : CDialog(IDD_HEADER_WINDOWS) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        // Captions, styles and ids first: each makes its inner control as it is made itself.
        m_tree.SetHeaderText("Folders");
        m_tree.SetTreeID(IDC_FOLDER);
        m_tree.Initialize(IDC_FOLDER, this);
        m_list.SetHeaderText("Files");
        m_list.SetListStyle(WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_OWNERDRAWFIXED |
                            LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOCOLUMNHEADER);
        m_list.SetListID(IDC_FILE);
        m_list.SetImageInfo(IDB_IMAGES, RGB(255, 0, 255), 16);
        m_list.Initialize(IDC_FILE, this);
        m_text.SetHeaderText("Text");
        m_text.Initialize(IDC_TEXT, this);
        const CString strWindows = ::getenv("windir");
        QVTreeCtrlEx& tree = m_tree.GetTreeCtrl();
        for (LPCSTR pszFolder : {"", "\\Fonts", "\\system32", "\\system32\\drivers\\etc"}) {
            tree.InsertItem(strWindows + pszFolder, 0, 0, TVI_ROOT, TVI_LAST);
        }
        tree.SelectItem(tree.GetRootItem());  // tells nobody
        Fill();
        return TRUE;
    }

private:
    CString Folder() {
        QVTreeCtrlEx& tree = m_tree.GetTreeCtrl();
        return tree.GetItemText(tree.GetSelectedItem());
    }
    void Fill() {
        QVListCtrlEx& list = *m_list.GetListBox();
        list.DeleteAllItems();
        m_text.ClearTextData();
        CFileFind find;
        for (BOOL bMore = find.FindFile(Folder() + "\\*"); bMore;) {
            bMore = find.FindNextFile();
            if (!find.IsDirectory()) {
                list.AddBitmapString(IMAGE_FILE, find.GetFileName(), FALSE);
            }
        }
        list.SetupColumns();
        list.SelectItem(list.GetItemCount() - 1);
    }
    // Notifications of the inner controls come under the ids that they were given.
    afx_msg void OnFolder(NMHDR*, LRESULT*) { Fill(); }
    afx_msg void OnFile(NMHDR*, LRESULT*) {
        QVListCtrlEx& list = *m_list.GetListBox();
        m_text.LoadFile(Folder() + "\\" + list.GetItemText(list.GetSelectedItem(), 0));
    }
    DECLARE_MESSAGE_MAP()

    QVTreeHeaderWnd m_tree;
    QVListHeaderWnd m_list;
    QVTextHeaderWnd m_text;
};

BEGIN_MESSAGE_MAP(WindowsDlg, CDialog)
    ON_NOTIFY(TVN_SELCHANGED, IDC_FOLDER, &WindowsDlg::OnFolder)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_FILE, &WindowsDlg::OnFile)
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override {
        WindowsDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
} theApp;
