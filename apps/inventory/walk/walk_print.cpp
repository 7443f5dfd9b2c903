#include "walk/walk.h"

#include "resource.h"

// By the dialogs that a user meets. A printer with paper in it is left alone.
bool Walk::PrintToNamedFile() {
    CPrintDialog printer(FALSE);
    const bool bWritesFiles = printer.GetDefaults() && printer.GetPortName() == "FILE:";
    ::DeleteDC(printer.m_pd.hDC);
    ::GlobalFree(printer.m_pd.hDevMode);
    ::GlobalFree(printer.m_pd.hDevNames);
    if (!bWritesFiles) {
        return true;
    }
    const CString strFile = m_strFolder + "\\asked.ps";
    bool bNamed = false;
    WhileUp("Print to a file", [&](CWnd&) {
        ::SetWindowText(::GetFocus(), strFile);
        bNamed = Station("print-1-to-file");
        Press(VK_RETURN);
        return bNamed;
    });
    const bool bPrinted = InDialog(
        "Print", [this] { m_frame.SendMessage(WM_COMMAND, ID_LARGEST_PRINT); },
        [](CWnd&) {
            Press(VK_RETURN);
            return true;
        });
    return bPrinted && Happened("the file of the job is asked for", bNamed) &&
           Expect("it is said where the pages are",
                  [&] { return m_frame.StatusText(0).Find(strFile) >= 0; }) &&
           Happened("and they are there", ::DeleteFile(strFile) != FALSE);
}
