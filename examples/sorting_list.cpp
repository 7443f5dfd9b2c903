// A list that sorts itself by the column whose heading is clicked: as texts, numbers or dates. The
// rows are what lies in the folder of Windows.
#include "resource.h"

#include <QVControls.h>

class FilesDlg : public CDialog {
public:
    FilesDlg() : CDialog(IDD_SORTING_LIST) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        m_list.Initialize(IDC_LIST, IDB_IMAGES, RGB(255, 0, 255), 16, this);
        // Each heading comes with the type by which its column is compared.
        m_list.AddHeader("Name", lcdtString);
        m_list.AddHeader("Bytes", lcdtNumber);
        m_list.AddHeader("Changed", lcdtDate);
        m_list.SetupColumnsFromString("Name*\t000000000\t12/30/2026 10:30:00 AM");
        m_list.SetColFormat(1, LVCFMT_RIGHT);
        m_list.SetHdrFormat(1, LVCFMT_RIGHT);
        Fill();
        m_list.ReSort();  // by the first column, until a heading is clicked
        m_list.SelectItem(0);
        return TRUE;
    }

private:
    void Fill() {
        CHAR szFolder[MAX_PATH];
        ::GetWindowsDirectory(szFolder, MAX_PATH);
        CFileFind find;
        for (BOOL bMore = find.FindFile(CString(szFolder) + "\\*"); bMore;) {
            bMore = find.FindNextFile();
            CString strSize;
            if (!find.IsDirectory()) {
                strSize.Format("%llu", find.GetLength());
            }
            FILETIME time = {};
            find.GetLastWriteTime(&time);
            // In the user's own way of writing dates, which is also how they are read for sorting.
            const CString strDate = COleDateTime(time).Format();
            if (!find.IsDots()) {
                m_list.InsertBitmapString(find.IsDirectory() ? IMAGE_FOLDER : IMAGE_FILE, -1,
                                          find.GetFileName() + "\t" + strSize + "\t" + strDate);
            }
        }
    }

    QVSortingListCtrl m_list;
};

class App : public CWinApp {
    BOOL InitInstance() override {
        FilesDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
} theApp;
