// An error with its causes, shown whole: a file that cannot be opened, because of what the platform
// says, in the midst of what the program was doing.
#include <QVControls.h>

namespace {

CString ReadAll(LPCSTR pszPath) {
    CFile file(pszPath, CFile::modeRead);  // throws a CFileException
    CString strAll;
    const UINT nLength = static_cast<UINT>(file.GetLength());
    file.Read(strAll.GetBufferSetLength(nLength), nLength);
    return strAll;
}

// Each storey adds what it knows, and lets the status go on with the former one as its cause.
CString ReadSettings(LPCSTR pszPath) {
    try {
        return ReadAll(pszPath);
    } catch (CException* pException) {
        auto* pStatus = new QVStatus(1001,
                                     "The settings could not be read. The program goes on with "
                                     "those that it came with.");
        pStatus->SetWhere(CString("reading ") + pszPath);
        pStatus->SetCause(new QVStatus(pException));
        pException->Delete();
        throw pStatus;
    }
}

}  // namespace

class App : public CWinApp {
    BOOL InitInstance() override {
        CHAR szFolder[MAX_PATH];
        ::GetWindowsDirectoryA(szFolder, MAX_PATH);
        QVPath path(szFolder);
        path.Append("settings of an example.ini");
        try {
            AfxMessageBox(ReadSettings(path));
        } catch (QVStatus* pStatus) {
            QVStatusReport::Report(pStatus, nullptr, FALSE);  // takes the status over
        }
        return FALSE;
    }
} theApp;
