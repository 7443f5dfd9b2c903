// Pages on tabs, as one control of a dialog: what the screen can be set to, and which code pages
// there are.
#include "resource.h"

#include <QVControls.h>

class ScreenPage : public QVTabWndPage {
    DECLARE_DYNCREATE(ScreenPage)
    ScreenPage() : QVTabWndPage(IDD_PAGE_SCREEN) {}
    BOOL OnInitDialog() override {
        QVTabWndPage::OnInitDialog();
        m_list.Initialize(IDC_LIST, this);
        m_list.AddHeader("Size\tColours\tFrequency");
        DEVMODE mode = {};
        mode.dmSize = sizeof(mode);
        for (DWORD n = 0; ::EnumDisplaySettings(nullptr, n, &mode); ++n) {
            CString strRow;
            strRow.Format("%lu by %lu\t%lu bits\t%lu Hz", mode.dmPelsWidth, mode.dmPelsHeight,
                          mode.dmBitsPerPel, mode.dmDisplayFrequency);
            m_list.InsertBitmapString(0, -1, strRow);
        }
        m_list.SelectItem(0);
        return TRUE;
    }
    // The tab window gives the page its size, and that its list.
    void Resize(const CRect& rect) override {
        QVTabWndPage::Resize(rect);
        CRect rcPage;
        GetClientRect(rcPage);
        m_list.MoveWindow(rcPage);
        m_list.SetupColumnsFromString("10000 by 10000\t100 bits\tHz*");
    }
    QVListCtrlEx m_list;
};
IMPLEMENT_DYNCREATE(ScreenPage, QVTabWndPage)

class CodesPage : public QVTabWndPage {
    DECLARE_DYNCREATE(CodesPage)
    CodesPage() : QVTabWndPage(IDD_PAGE_CODES) {}
    BOOL OnInitDialog() override {
        QVTabWndPage::OnInitDialog();
        CString strCodes;
        strCodes.Format("Texts of 8 bits: %u\nConsoles: %u", ::GetACP(), ::GetOEMCP());
        SetDlgItemText(IDC_TEXT, strCodes);
        return TRUE;
    }
};
IMPLEMENT_DYNCREATE(CodesPage, QVTabWndPage)

class Tabs : public QVTabWnd {
    void AddTabPages() override {
        AddPage("Screen", RUNTIME_CLASS(ScreenPage));
        AddPage("Code pages", RUNTIME_CLASS(CodesPage));
    }
};

class MachineDlg : public CDialog {
public:
    MachineDlg() : CDialog(IDD_TAB_WINDOW) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        return m_tabs.Initialize(IDC_TABS, this);
    }
    Tabs m_tabs;
};

class App : public CWinApp {
    BOOL InitInstance() override {
        MachineDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
} theApp;
