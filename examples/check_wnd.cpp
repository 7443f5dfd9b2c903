// Marks that a program sets and no user: the lights of the keyboard, and what is connected.
#include "resource.h"

#include <QVControls.h>

class InputDlg : public CDialog {
public:
    InputDlg() : CDialog(IDD_CHECK_WND) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        for (int n = 0; n < kMarks; ++n) {
            m_marks[n].SubclassDlgItem(IDC_CAPS + n, this);  // statics of the template
        }
        Show();
        SetTimer(1, 200, nullptr);
        return TRUE;
    }

private:
    enum { kMarks = IDC_NETWORK - IDC_CAPS + 1 };

    void Show() {
        const bool states[kMarks] = {
            (::GetKeyState(VK_CAPITAL) & 1) != 0, (::GetKeyState(VK_NUMLOCK) & 1) != 0,
            (::GetKeyState(VK_SCROLL) & 1) != 0, ::GetSystemMetrics(SM_MOUSEPRESENT) != 0,
            (::GetSystemMetrics(SM_NETWORK) & 1) != 0};
        for (int n = 0; n < kMarks; ++n) {
            if ((m_marks[n].Checked() != 0) != states[n]) {  // setting a mark repaints it
                m_marks[n].SetIsChecked(states[n]);
            }
        }
    }
    afx_msg void OnTimer(UINT_PTR) { Show(); }
    DECLARE_MESSAGE_MAP()

    QVCheckWnd m_marks[kMarks];
};

BEGIN_MESSAGE_MAP(InputDlg, CDialog)
    ON_WM_TIMER()
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override {
        InputDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
} theApp;
