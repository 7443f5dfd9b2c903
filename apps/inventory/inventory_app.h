// The application.
//     inventory [FILE]               opens the inventory of this machine, or of a status file
//     inventory /walk FOLDER [FILE]  walks through its pages by real input and leaves pictures

#pragma once

#include <afxwin.h>

class MainFrame;

class InventoryApp : public CWinApp {
public:
    InventoryApp() : CWinApp("Inventory") {}
    BOOL InitInstance() override;
    int ExitInstance() override;

private:
    afx_msg void OnWalk(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    MainFrame* m_pFrame = nullptr;
    CString m_strWalkFolder;
    int m_nExitCode = 0;
};
