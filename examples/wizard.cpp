// A wizard that shows its steps: it asks for a folder and for names of files, and counts them.
#include "resource.h"

#include <QVControls.h>

struct Search {
    CString strFolder;
    CString strPattern = "*.exe";
    int Count() const {
        int nFiles = 0;
        CFileFind find;
        for (BOOL bMore = find.FindFile(strFolder + "\\" + strPattern); bMore; ++nFiles) {
            bMore = find.FindNextFile();
        }
        return nFiles;
    }
};

// A step that asks for one text. Buttons are a matter of the page; at first it has Back alone.
class TextStep : public QVWizardPage {
public:
    TextStep(UINT nTemplate, UINT nItem, CString& strText, DWORD dwButtons)
        : QVWizardPage(nTemplate), m_nItem(nItem), m_strText(strText) {
        SetWizButtons(dwButtons);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        QVWizardPage::DoDataExchange(pDX);
        DDX_Text(pDX, m_nItem, m_strText);
    }
    // Asked before Next and Finish, never before Back.
    int ValidateData() override { return UpdateData(TRUE) && !m_strText.IsEmpty(); }

private:
    UINT m_nItem;
    CString& m_strText;
};

class ReadyStep : public QVWizardPage {
public:
    explicit ReadyStep(const Search& search) : QVWizardPage(IDD_STEP_READY), m_search(search) {
        SetWizButtons(PSWIZB_BACK | PSWIZB_FINISH);
    }

protected:
    BOOL OnSetActive() override {
        SetDlgItemText(IDC_TEXT,
                       "Finish counts " + m_search.strPattern + " in " + m_search.strFolder + ".");
        return QVWizardPage::OnSetActive();
    }

private:
    const Search& m_search;
};

class App : public CWinApp {
    BOOL InitInstance() override {
        Search search;
        ::GetWindowsDirectoryA(search.strFolder.GetBuffer(MAX_PATH), MAX_PATH);
        search.strFolder.ReleaseBuffer();
        TextStep folder(IDD_STEP_FOLDER, IDC_FOLDER, search.strFolder, PSWIZB_NEXT);
        TextStep files(IDD_STEP_FILES, IDC_PATTERN, search.strPattern, PSWIZB_BACK | PSWIZB_NEXT);
        ReadyStep ready(search);
        QVWizard wizard("Search for files");
        wizard.AddPage(&folder);
        wizard.AddPage(&files);
        wizard.AddPage(&ready);
        // Adding makes pages, registering steps: several pages may share one, and some have none.
        wizard.RegisterWizPage(&folder, "Folder");
        wizard.RegisterWizPage(&files, "Files");
        wizard.RegisterWizPage(&ready, "Ready");
        if (wizard.DoModal() == ID_WIZFINISH) {
            CString strFound;
            strFound.Format("%d files.", search.Count());
            AfxMessageBox(strFound, MB_ICONINFORMATION);
        }
        return FALSE;
    }
} theApp;
