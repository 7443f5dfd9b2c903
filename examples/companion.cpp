// The companion library: paths, files, errors with causes, and a log of them. It needs no window;
// here a text shows what it does.
#include <QVControls.h>

class Window : public CFrameWnd {
public:
    Window() {
        Create(nullptr, "Companion", WS_OVERLAPPEDWINDOW, CRect(CPoint(80, 80), CSize(560, 400)));
        CRect rc;
        GetClientRect(rc);
        m_text.Create(rc, this, AFX_IDW_PANE_FIRST, FALSE);
        m_nHeading = m_text.AddStyle(RGB(0, 64, 160), ::GetSysColor(COLOR_WINDOW));
        Paths();
        Errors();
        m_text.CalcLayout();
    }

private:
    void Add(const CString& strLine) { m_text.AddText("    " + strLine, 0); }

    void Paths() {
        m_text.AddText("QVPath, QVFileSystem", m_nHeading);
        CHAR szFolder[MAX_PATH];
        ::GetWindowsDirectoryA(szFolder, MAX_PATH);
        QVPath path(szFolder);
        path.Append("..\\windows\\system.ini");  // with a separator between
        path.Normalize();                        // text alone: no disk is asked
        QVFileSystem files;
        ULONGLONG nBytes = 0;
        files.GetSize(path, nBytes);
        CString strLine;
        strLine.Format("%s has %llu bytes.", path.GetPath().GetString(), nBytes);
        Add(strLine);
        Add("Name " + path.GetName() + ", title " + path.GetTitle() + ", extension " +
            path.GetExtension() + ", in " + path.GetParent().GetPath());
    }
    void Errors() {
        QVFileSystem files;
        QVPath log;
        try {
            files.CreateTempFile(log, "log", "txt");  // a name that nobody can guess
            // Kept below a limit: the oldest entries go first.
            QVStatusLogText logText(log, 10000);
            QVStatus status(1001, "The report could not be saved.");
            status.SetWhere("writing \\\\server\\reports\\today.txt");
            status.SetCause(QVStatus::FromSystem(ERROR_DISK_FULL));  // owned from here on
            logText.Log(&status);
            QVStatus cancelled(QVStatus::cancelled);  // has a text of its own
            logText.Log(&cancelled);
            CString strBox;
            QVStatusOutputGenerator("Companion").AsCompactString(&status, strBox);
            m_text.AddText("QVStatus, as a message box tells it", m_nHeading);
            int nPos = 0;
            for (CString str = strBox.Tokenize("\n", nPos); !str.IsEmpty();
                 str = strBox.Tokenize("\n", nPos)) {
                Add(str);
            }
            m_text.AddText("QVStatusLogText: the log", m_nHeading);
            CStdioFile file(log, CFile::modeRead | CFile::typeText);
            for (CString strLine; file.ReadString(strLine);) {
                Add(strLine);
            }
        } catch (CException* pException) {
            pException->ReportError();
            pException->Delete();
        }
        if (!log.IsEmpty()) {
            files.DeleteFile(log);
        }
    }

    QVTextWnd m_text;
    int m_nHeading = 0;
};

class App : public CWinApp {
    BOOL InitInstance() override { return (m_pMainWnd = new Window)->ShowWindow(SW_SHOW), TRUE; }
} theApp;
