// A bar to drag between two panes: the keys of the registry that hold the user's settings, and the
// values of the one that is selected.
#include <QVControls.h>

class Window : public CFrameWnd {
public:
    Window() {
        m_font.CreatePointFont(90, "Tahoma");
        Create(nullptr, "Control Panel", WS_OVERLAPPEDWINDOW,
               CRect(CPoint(80, 80), CSize(560, 340)));
        m_tree.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | TVS_SHOWSELALWAYS, CRect(), this, kTree);
        m_list.Create(kList, CRect(), this);
        // Panes are siblings of the split window, and members here: it must not delete them.
        CRect rc;
        m_split.SetAutoDeletePanes(FALSE);
        m_split.SetSplitRatio(38);
        m_split.Create(rc, this, AFX_IDW_PANE_FIRST, TRUE);
        m_split.AddPane(&m_tree);
        m_split.AddPane(&m_list);
        RecalcLayout();  // sizes the split window, and that its panes
        m_list.AddHeader("Value\tData");
        m_list.SetupColumnsFromString("A rather long name of a value\tData*");
        CHAR szName[256];
        HKEY hKey = nullptr;
        ::RegOpenKeyEx(HKEY_CURRENT_USER, kPath, 0, KEY_READ, &hKey);
        for (DWORD n = 0; ::RegEnumKey(hKey, n, szName, sizeof(szName)) == ERROR_SUCCESS; ++n) {
            m_tree.InsertItem(szName, 0, 0, TVI_ROOT, TVI_SORT);
        }
        ::RegCloseKey(hKey);
        m_tree.SelectItem(m_tree.FindItem(TVI_ROOT, "Desktop", -1));  // tells nobody
        Fill();
    }

private:
    enum { kTree = 1, kList };
    static constexpr LPCSTR kPath = "Control Panel";

    void Fill() {
        m_list.DeleteAllItems();
        HKEY hKey = nullptr;
        const CString strKey = m_tree.GetItemText(m_tree.GetSelectedItem());
        ::RegOpenKeyEx(HKEY_CURRENT_USER, CString(kPath) + "\\" + strKey, 0, KEY_READ, &hKey);
        CHAR szName[256], szData[1024];
        for (DWORD n = 0;; ++n) {
            DWORD dwName = sizeof(szName), dwData = sizeof(szData), dwType = 0;
            if (::RegEnumValue(hKey, n, szName, &dwName, nullptr, &dwType,
                               reinterpret_cast<BYTE*>(szData), &dwData) != ERROR_SUCCESS) {
                break;
            }
            const bool bText = dwType == REG_SZ && dwData > 0;
            m_list.AddBitmapString(0, CString(szName) + "\t" + (bText ? szData : "(no text)"),
                                   FALSE);
        }
        ::RegCloseKey(hKey);
    }
    afx_msg void OnKey(NMHDR*, LRESULT*) { Fill(); }
    // What the panes draw in: the font of the nearest window around them that has one.
    afx_msg LRESULT OnGetFont(WPARAM, LPARAM) {
        return reinterpret_cast<LRESULT>(m_font.m_hObject);
    }
    afx_msg void OnSetFocus(CWnd*) { m_tree.SetFocus(); }
    DECLARE_MESSAGE_MAP()

    CFont m_font;
    QVTreeCtrlEx m_tree;
    QVListCtrlEx m_list;
    QVSplitWnd m_split;
};

BEGIN_MESSAGE_MAP(Window, CFrameWnd)
    ON_NOTIFY(TVN_SELCHANGED, kTree, &Window::OnKey)
    ON_MESSAGE(WM_GETFONT, &Window::OnGetFont)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override { return (m_pMainWnd = new Window)->ShowWindow(SW_SHOW), TRUE; }
} theApp;
