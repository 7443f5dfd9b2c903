#include "inventory_app.h"

#include "compare/comparison_document.h"
#include "compare/comparison_frame.h"
#include "compare/comparison_view.h"
#include "main_frame.h"
#include "resource.h"
#include "sources/machine_name.h"
#include "walk/walk.h"

#include <ocx/qvocx.h>

namespace {

constexpr UINT kWalk = WM_APP + 1;

InventoryApp theApp;

}  // namespace

BEGIN_MESSAGE_MAP(InventoryApp, CWinApp)
    ON_COMMAND(ID_APP_ABOUT, &InventoryApp::OnAbout)
    ON_COMMAND(ID_APP_EXIT, &InventoryApp::OnAppExit)
    ON_THREAD_MESSAGE(kWalk, &InventoryApp::OnWalk)
END_MESSAGE_MAP()

BOOL InventoryApp::InitInstance() {
    if (!AfxOleInit()) {
        return FALSE;
    }
    AfxEnableControlContainer();
    const HRESULT hrControls = QVRegisterControls();
    m_pComparisons =
        new CSingleDocTemplate(IDR_COMPARISON, RUNTIME_CLASS(ComparisonDocument),
                               RUNTIME_CLASS(ComparisonFrame), RUNTIME_CLASS(ComparisonView));
    AddDocTemplate(m_pComparisons);
    CString strFile;
    for (int i = 1; i < __argc; ++i) {
        if (CString(__argv[i]) == "/walk" && i + 1 < __argc) {
            m_strWalkFolder = __argv[++i];
        } else {
            strFile = __argv[i];
        }
    }
    m_pFrame = new MainFrame;
    if (!m_pFrame->LoadFrame(IDR_MAINFRAME, WS_OVERLAPPEDWINDOW)) {
        return FALSE;
    }
    m_pMainWnd = m_pFrame;
    const bool bWalks = !m_strWalkFolder.IsEmpty();
    m_pFrame->ShowWindow(bWalks ? SW_SHOWNORMAL : m_nCmdShow);
    m_pFrame->UpdateWindow();
    m_pFrame->LoadSettings(bWalks ? m_strWalkFolder + "\\settings.txt" : CString(), !bWalks);
    if (FAILED(hrControls)) {
        Keep(Failed(kErrorControls, SystemReason(static_cast<DWORD>(hrControls), nullptr)));
    }
    m_pFrame->Open(strFile, !bWalks);
    if (bWalks) {
        PostThreadMessage(kWalk, 0, 0);
    }
    return TRUE;
}

BOOL InventoryApp::PreTranslateMessage(MSG* pMsg) {
    return m_edit.TakeKey(*pMsg) || CWinApp::PreTranslateMessage(pMsg);
}

BOOL InventoryApp::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CWinApp::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           m_edit.OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void InventoryApp::OnAbout() {
    QVAboutBox about(TRUE, CWnd::GetActiveWindow());
    about.m_strTitle = "About Inventory";
    about.m_strProductName = "Inventory: what is installed on a machine";
    about.m_nIconID = IDR_MAINFRAME;
    const CString& strFile = m_pFrame->ShownFile();
    const bool bWhole = m_pFrame->IsShownWhole();
    if (!bWhole && m_pFrame->Shown()->CountPackages() == 0) {
        about.SetDatabaseInfo("None", "", "");
    } else if (strFile.IsEmpty()) {
        about.SetDatabaseInfo("Registry", MachineName(), "Uninstall entries");
    } else {
        const QVPath path(strFile);
        about.SetDatabaseInfo(
            bWhole ? "Debian package database" : "Debian package database, in part",
            path.GetParent(), path.GetName());
    }
    about.DoModal();
}

void InventoryApp::OnWalk(WPARAM, LPARAM) {
    m_nExitCode = Walk(*m_pFrame, m_strWalkFolder).Run() ? 0 : 1;
    m_pFrame->PostMessage(WM_CLOSE);
}

int InventoryApp::ExitInstance() {
    QVRevokeControls();
    const int nResult = CWinApp::ExitInstance();
    return m_nExitCode != 0 ? m_nExitCode : nResult;
}
