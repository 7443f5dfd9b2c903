// What a program tells about itself, with the database that it works on.
#include "resource.h"

#include <QVControls.h>
#include <ocx/qvocx.h>

class App : public CWinApp {
    BOOL InitInstance() override {
        AfxOleInit();
        AfxEnableControlContainer();
        QVRegisterControls();  // the box shows the database in automation controls

        CHAR szFolder[MAX_PATH];
        ::GetWindowsDirectoryA(szFolder, MAX_PATH);
        QVAboutBox box(TRUE, nullptr);
        box.m_strTitle = "About Example";
        box.m_strProductName = "Example of an about box";
        box.m_nIconID = IDR_MAINFRAME;
        box.SetDatabaseInfo("Settings", szFolder, "system.ini");
        box.DoModal();
        QVRevokeControls();
        return FALSE;
    }
} theApp;
