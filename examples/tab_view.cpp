// A document whose view is pages behind tabs: a file of settings, by its sections and as a text.
#include "resource.h"

#include <QVControls.h>
#include <ocx/qvocx.h>

class SettingsDoc : public CDocument {
    DECLARE_DYNCREATE(SettingsDoc)
    BOOL OnOpenDocument(LPCTSTR) override { return TRUE; }  // the pages read the file themselves
};
IMPLEMENT_DYNCREATE(SettingsDoc, CDocument)

class SectionsPage : public QVTabViewPage {
    DECLARE_DYNCREATE(SectionsPage)
    SectionsPage() : QVTabViewPage(IDD_PAGE_SECTIONS) {}
    // Another document is there.
    void UpdatePage(int, void*, int) override {
        CHAR szSections[4096];
        ::GetPrivateProfileSectionNames(szSections, sizeof(szSections),
                                        GetTabView()->GetDocument()->GetPathName());
        SendDlgItemMessage(IDC_LIST, LB_RESETCONTENT);
        for (LPCSTR psz = szSections; *psz != '\0'; psz += ::strlen(psz) + 1) {
            SendDlgItemMessage(IDC_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(psz));
        }
    }
};
IMPLEMENT_DYNCREATE(SectionsPage, QVTabViewPage)

class TextPage : public QVTabViewPage {
    DECLARE_DYNCREATE(TextPage)
    TextPage() : QVTabViewPage(IDD_PAGE_TEXT) {}
    BOOL OnInitDialog() override {
        return QVTabViewPage::OnInitDialog() && m_text.Initialize(IDC_TEXT, this, TRUE);
    }
    void UpdatePage(int, void*, int) override {
        m_text.LoadFile(GetTabView()->GetDocument()->GetPathName(), 0);
    }
    // The view gives the page its size, and that its text.
    void Resize(const CRect& rect) override {
        QVTabViewPage::Resize(rect);
        CRect rcPage;
        GetClientRect(rcPage);
        m_text.MoveWindow(rcPage);
    }
    QVTextWnd m_text;
};
IMPLEMENT_DYNCREATE(TextPage, QVTabViewPage)

class SettingsView : public QVTabView {
    DECLARE_DYNCREATE(SettingsView)
    SettingsView() : QVTabView(IDC_TABS) {}
    void AddTabPages() override {
        AddPage("Text", RUNTIME_CLASS(TextPage));
        AddPage("Sections", RUNTIME_CLASS(SectionsPage));
        UpdateAllPages(0, nullptr);  // they come after the view's first OnUpdate
    }
    void OnUpdate(CView*, LPARAM lHint, CObject*) override { UpdateAllPages(int(lHint), nullptr); }
};
IMPLEMENT_DYNCREATE(SettingsView, QVTabView)

class App : public CWinApp {
    BOOL InitInstance() override {
        AfxOleInit();
        AfxEnableControlContainer();
        QVRegisterControls();  // the tabs are an automation control; ours, unless there is another
        AddDocTemplate(new CSingleDocTemplate(IDR_MAINFRAME, RUNTIME_CLASS(SettingsDoc),
                                              RUNTIME_CLASS(CFrameWnd),
                                              RUNTIME_CLASS(SettingsView)));
        const CString strWindows = ::getenv("windir");
        if (OpenDocumentFile(strWindows + "\\system.ini") == nullptr) {
            return FALSE;
        }
        m_pMainWnd->SetWindowPos(nullptr, 80, 80, 480, 300, SWP_NOZORDER);
        return TRUE;
    }
    int ExitInstance() override {
        QVRevokeControls();
        return CWinApp::ExitInstance();
    }
} theApp;
