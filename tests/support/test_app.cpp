#include "support/test_app.h"

#include <afxdisp.h>

#include <gtest/gtest.h>

int TestApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) {
    m_prompts.emplace_back(lpszPrompt);
    return m_bShowsBoxes ? CWinApp::DoMessageBox(lpszPrompt, nType, nIDPrompt) : m_nAnswer;
}

LRESULT TestApp::ProcessWndProcException(CException* e, const MSG* pMsg) {
    if (m_report) {
        m_report(e);
    }
    char szMessage[256] = "";
    e->GetErrorMessage(szMessage, sizeof szMessage);
    m_exceptions.emplace_back(szMessage);
    // The framework's own answer, but for telling the user.
    if (pMsg->message == WM_CREATE || pMsg->message == WM_PAINT) {
        return CWinApp::ProcessWndProcException(e, pMsg);
    }
    return 0;
}

TestApp& TheTestApp() {
    return *static_cast<TestApp*>(AfxGetApp());
}

int RunTests(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL)) {
        return 1;
    }
    AfxOleInit();
    AfxEnableControlContainer();
    const int nResult = RUN_ALL_TESTS();
    AfxWinTerm();
    return nResult;
}
