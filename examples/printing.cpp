// A list on paper: the print engine lays out the pages, the program sends them to the printer. The
// rows are the system's error messages.
#include "resource.h"

#include <QVControls.h>

class MessagesDlg : public CDialog {
public:
    MessagesDlg() : CDialog(IDD_PRINTING) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        m_list.Initialize(IDC_LIST, this);
        m_list.AddHeader("Error\tMessage");
        m_list.SetupColumnsFromString("00000\tMessage*");
        CHAR szText[512];
        for (DWORD dwError = 0; dwError < 500; ++dwError) {
            if (::FormatMessage(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                dwError, 0, szText, sizeof(szText), nullptr) != 0) {
                CString strRow;
                strRow.Format("%lu\t%s", dwError, szText);
                m_list.InsertBitmapString(0, -1, strRow.TrimRight());
            }
        }
        return TRUE;
    }

private:
    afx_msg void OnPrint() {
        CPrintDialog dlg(FALSE);
        if (AfxGetApp()->DoPrintDialog(&dlg) != IDOK) {  // which keeps what the user chose
            return;
        }
        CDC dc;
        dc.Attach(dlg.GetPrinterDC());
        dc.m_bPrinting = TRUE;  // lists scale the margins of their cells then
        CFont fontHeader, fontNormal, fontSection;
        fontHeader.CreatePointFont(100, "Tahoma", &dc);
        fontNormal.CreatePointFont(90, "Tahoma", &dc);
        fontSection.CreatePointFont(160, "Tahoma", &dc);
        CRect rcText(0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
        rcText.DeflateRect(dc.GetDeviceCaps(LOGPIXELSX), dc.GetDeviceCaps(LOGPIXELSY));

        QVPrintEngine engine(&dc, &fontHeader, &fontNormal, &fontSection);
        engine.SetPrintAllRows(true);  // before pages are made
        engine.AddSectionHeader("Error messages");
        engine.AddList(&m_list, &dc);
        const unsigned nPages = engine.Paginate(rcText);
        DOCINFO doc = {};
        doc.cbSize = sizeof(doc);
        doc.lpszDocName = "Error messages";
        dc.StartDoc(&doc);
        for (unsigned nPage = 1; nPage <= nPages; ++nPage) {
            dc.StartPage();
            engine.PrintPage(&dc, rcText, nPage);
            dc.EndPage();
        }
        dc.EndDoc();
    }
    DECLARE_MESSAGE_MAP()

    QVListCtrlEx m_list;
};

BEGIN_MESSAGE_MAP(MessagesDlg, CDialog)
    ON_BN_CLICKED(IDC_PRINT, &MessagesDlg::OnPrint)
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override {
        MessagesDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
} theApp;
