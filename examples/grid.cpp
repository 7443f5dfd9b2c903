// A grid whose cells are edited in place: columns of texts, of folders with a button, of choices.
// The rows are folders of this machine, for a plan of backups.
#include <QVControls.h>
#include <shlobj.h>

class Window : public CFrameWnd {
public:
    Window() {
        m_font.CreatePointFont(90, "Tahoma");
        Create(nullptr, "Backups", WS_OVERLAPPEDWINDOW, CRect(CPoint(80, 80), CSize(560, 150)));
        for (LPCSTR pszChoice : {"never", "each day", "each week"}) {
            m_choices.Add(pszChoice);
        }
        // A grid is filled first; its window may come later.
        m_grid.AddColumn(gctStatic, 90);
        m_grid.AddColumn(gctEditButton, 200);
        m_grid.AddColumn(gctDropList, 90);
        m_grid.AddColumn(gctEdit, 100);  // the last one reaches to the edge
        m_grid.SetColListData(kOften, &m_choices);
        AddFolder("Programs", CSIDL_PROGRAM_FILES, "never", "can be installed anew");
        AddFolder("Documents", CSIDL_COMMON_DOCUMENTS, "each day", "");
        AddFolder("Fonts", CSIDL_FONTS, "each week", "");
        AddFolder("Settings", CSIDL_COMMON_APPDATA, "each day", "");
        m_grid.SetCellReadOnly(0, kOften, TRUE);  // programs are never saved
        m_grid.SetLockReadOnlyLists(TRUE);
        m_grid.Create(AFX_IDW_PANE_FIRST, CRect(), this);
        m_grid.GotoCell(1, kFolder, FALSE);
    }

private:
    enum { kName, kFolder, kOften, kNote };

    void AddFolder(LPCSTR pszName, int nFolder, LPCSTR pszOften, LPCSTR pszNote) {
        CHAR szPath[MAX_PATH] = "";
        ::SHGetSpecialFolderPathA(nullptr, szPath, nFolder, FALSE);
        m_grid.AddRow(CString(pszName) + "\t" + szPath + "\t" + pszOften + "\t" + pszNote, 0);
    }
    // The button of the current cell was clicked.
    afx_msg void OnCellButton() {
        CString strFolder;
        m_grid.GetCellText(m_grid.CurrentRow(), kFolder, strFolder);
        QVBrowseDlg dlg(this);
        dlg.SetItemPath(strFolder);
        if (dlg.DoModal() == IDOK) {
            m_grid.SetCellText(m_grid.CurrentRow(), kFolder, dlg.GetItemPath());
        }
    }
    // The grid has no font of its own, so it asks the windows around it.
    afx_msg LRESULT OnGetFont(WPARAM, LPARAM) {
        return reinterpret_cast<LRESULT>(m_font.m_hObject);
    }
    afx_msg void OnSetFocus(CWnd*) { m_grid.SetFocus(); }
    DECLARE_MESSAGE_MAP()

    CFont m_font;
    CStringArray m_choices;  // the grid reads them whenever a list opens
    QVGridCtrl m_grid;
};

BEGIN_MESSAGE_MAP(Window, CFrameWnd)
    ON_BN_CLICKED(AFX_IDW_PANE_FIRST, &Window::OnCellButton)
    ON_MESSAGE(WM_GETFONT, &Window::OnGetFont)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override { return (m_pMainWnd = new Window)->ShowWindow(SW_SHOW), TRUE; }
} theApp;
