// The application.
//     inventory [FILE]               opens the inventory of this machine, or of a status file
//     inventory /walk FOLDER [FILE]  walks through its pages by real input and leaves pictures

#pragma once

#include "edit_desk.h"

#include <afxwin.h>

class CSingleDocTemplate;
class MainFrame;

class InventoryApp : public CWinApp {
public:
    InventoryApp() : CWinApp("Inventory") {}
    BOOL InitInstance() override;
    int ExitInstance() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    CSingleDocTemplate& Comparisons() { return *m_pComparisons; }

private:
    afx_msg void OnAbout();
    afx_msg void OnWalk(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    MainFrame* m_pFrame = nullptr;
    CSingleDocTemplate* m_pComparisons = nullptr;  // the framework's
    EditDesk m_edit;
    CString m_strWalkFolder;
    int m_nExitCode = 0;
};
