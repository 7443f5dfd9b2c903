#include "inventory_app.h"

#include "main_frame.h"
#include "resource.h"
#include "walk/walk.h"

namespace {

constexpr UINT kWalk = WM_APP + 1;

InventoryApp theApp;

}  // namespace

BEGIN_MESSAGE_MAP(InventoryApp, CWinApp)
    ON_COMMAND(ID_APP_EXIT, OnAppExit)
    ON_THREAD_MESSAGE(kWalk, OnWalk)
END_MESSAGE_MAP()

BOOL InventoryApp::InitInstance() {
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
    m_pFrame->Open(strFile, !bWalks);
    if (bWalks) {
        PostThreadMessage(kWalk, 0, 0);
    }
    return TRUE;
}

void InventoryApp::OnWalk(WPARAM, LPARAM) {
    m_nExitCode = Walk(*m_pFrame, m_strWalkFolder).Run() ? 0 : 1;
    m_pFrame->PostMessage(WM_CLOSE);
}

int InventoryApp::ExitInstance() {
    const int nResult = CWinApp::ExitInstance();
    return m_nExitCode != 0 ? m_nExitCode : nResult;
}
