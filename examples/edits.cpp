// Two small edits: one that steps through a few texts, one for dates and times as the user writes
// them.
#include "resource.h"

#include <QVControls.h>

class ReportDlg : public CDialog {
public:
    ReportDlg() : CDialog(IDD_EDITS) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        // Initialize takes the item's text over; the list comes behind it.
        m_often.Initialize(IDC_OFTEN, this);
        m_often.SetTextList("once\teach hour\teach day\teach week");
        m_often.SetWindowText("each day");

        // What a picker shows is worked out with its first value: say before whether with seconds.
        m_date.SubclassDlgItem(IDC_DATE, this);
        m_date.SetDate(CTime::GetCurrentTime());
        m_time.SetShowSeconds(FALSE);
        m_time.SubclassDlgItem(IDC_TIME, this);
        m_time.SetTime(6, 30, 0);
        return TRUE;
    }
    void OnOK() override {
        CString strOften, strText;
        m_often.GetWindowText(strOften);
        int nYear, nMonth, nDay, nHour, nMinute;
        m_date.GetDate(nYear, nMonth, nDay);
        m_time.GetTime(nHour, nMinute);
        strText.Format("A report %s, first on %d-%02d-%02d at %d:%02d.", strOften.GetString(),
                       nYear, nMonth, nDay, nHour, nMinute);
        AfxMessageBox(strText, MB_ICONINFORMATION);
        CDialog::OnOK();
    }

private:
    QVTextBox m_often;
    QVDateTimeEdit m_date;
    QVDateTimeEdit m_time;
};

class App : public CWinApp {
    BOOL InitInstance() override {
        ReportDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
} theApp;
