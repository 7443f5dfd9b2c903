// A text file in a dialog that can be sized: the network services that this machine knows by name.
#include <QVControls.h>

class App : public CWinApp {
    BOOL InitInstance() override {
        CHAR szFolder[MAX_PATH];
        ::GetSystemDirectoryA(szFolder, MAX_PATH);
        QVPath path(szFolder);
        path.Append("drivers\\etc\\services");

        // All that the dialog is to show is set before it opens.
        QVTextDlg dlg;
        dlg.SetTitle("Network services");
        QVFileSystem files;
        if (files.Exists(path)) {
            dlg.SetMessage("Names of services, their ports, and other names for them:");
            dlg.SetFilePath(path.GetPath());
        } else {
            dlg.SetMessage("This machine has no file of services.");
        }
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
} theApp;
