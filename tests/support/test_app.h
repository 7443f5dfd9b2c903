// The application object of the test program. It shows nothing: prompts and exceptions that reach
// it are written down.
#pragma once

#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

class TestApp : public CWinApp {
public:
    TestApp() : CWinApp("Window tests") {}

    std::vector<std::string> m_prompts;         ///< texts of message boxes
    int m_nAnswer = IDOK;                       ///< to each of them
    bool m_bShowsBoxes = false;                 ///< real ones, which want an answer
    std::vector<std::string> m_exceptions;      ///< messages of exceptions that left a handler
    std::function<void(CException*)> m_report;  ///< runs before an exception is written down

    void Forget() {
        m_prompts.clear();
        m_exceptions.clear();
    }
    int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) override;
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;
};

/// The one object, made by the program's main file.
TestApp& TheTestApp();

/// All that such a program does; its main function gives the result.
int RunTests(int argc, char** argv);
