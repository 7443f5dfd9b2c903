// Buttons that drop a menu: one of commands, and one of snippets for the edit below.
#include "resource.h"

#include <QVControls.h>

class SnippetsDlg : public CDialog {
public:
    SnippetsDlg() : CDialog(IDD_MENU_BUTTONS) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        // Both are owner-drawn in the template.
        m_insert.SubclassDlgItem(IDC_INSERT, this);
        m_insert.SetEditCtrlID(IDC_TEXT);
        m_insert.AddMacro("Date", COleDateTime::GetCurrentTime().Format(VAR_DATEVALUEONLY));
        m_insert.AddMacro("Time", COleDateTime::GetCurrentTime().Format(VAR_TIMEVALUEONLY));
        m_insert.AddMacro("Line", "\r\n----------------\r\n");

        m_size.SubclassDlgItem(IDC_FONT_SIZE, this);
        m_size.SetStartCmdID(IDM_SIZE);  // and on from there, a command for each entry
        for (LPCSTR pszSize : {"&Small", "&Middle", "&Large"}) {
            m_size.AddString(pszSize);
        }
        OnSize(IDM_SIZE + 1);
        SetDlgItemText(IDC_TEXT, "What is chosen comes where the caret is.");
        return TRUE;
    }

private:
    afx_msg void OnSize(UINT nID) {
        m_font.DeleteObject();
        m_font.CreatePointFont(90 + 50 * (nID - IDM_SIZE), "Tahoma");
        GetDlgItem(IDC_TEXT)->SetFont(&m_font);
    }
    DECLARE_MESSAGE_MAP()

    QVMenuButton m_size;
    QVMacroButton m_insert;
    CFont m_font;
};

BEGIN_MESSAGE_MAP(SnippetsDlg, CDialog)
    ON_COMMAND_RANGE(IDM_SIZE, IDM_SIZE + 2, &SnippetsDlg::OnSize)
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override {
        SnippetsDlg dlg;
        m_pMainWnd = &dlg;  // which gets the commands of menu buttons
        dlg.DoModal();
        return FALSE;
    }
} theApp;
