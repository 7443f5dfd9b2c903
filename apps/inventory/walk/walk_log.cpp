#include "walk/walk.h"

#include "resource.h"

#include <fstream>

namespace {

constexpr int kPageLog = 3;

}  // namespace

// Two parts of a log, as it would be rotated.
bool Walk::Logs() {
    ClickTab(kPageLog);
    LogPage& log = m_frame.Log();
    QVTextWnd& left = log.Left().GetTextWnd();
    QVTextWnd& right = log.Right().GetTextWnd();
    if (!Expect("the log comes up",
                [&] { return left.IsWindowVisible() && left.NumLines() > 0; }) ||
        !Happened("a log without an older part is alone, and that is said",
                  log.ShowsBoth() || m_frame.Log().Message().Find(" alone: ") >= 0) ||
        !Station("log-1-one-file")) {
        return false;
    }
    const CString strFile = m_strFolder + "\\rotated.log";
    const auto write = [&](const CString& strPath, int nFrom, int nTo) {
        std::ofstream file(strPath);
        for (int i = nFrom; i < nTo; ++i) {
            file << left.GetLineText(i) << '\n';
        }
    };
    write(strFile + ".1", 0, left.NumLines() / 2);
    write(strFile, left.NumLines() / 2, left.NumLines());
    if (!Happened("a rotated log opens", log.Open(strFile) == nullptr) ||
        !Happened("with what was logged before beside it",
                  log.ShowsBoth() && right.IsWindowVisible() && right.NumLines() > 0) ||
        !Expect("which the status bar says",
                [&] {
                    return m_frame.StatusText(0) ==
                           "rotated.log, and on the right what was logged before";
                }) ||
        !Station("log-2-two-parts")) {
        return false;
    }
    left.SetFocus();
    Press(VK_NEXT);
    Press(VK_DOWN);
    if (!Expect("both scroll together", [&] {
            return left.VScrollPos() > 1 &&
                   (right.NumRows() < 40 || right.VScrollPos() == left.VScrollPos());
        })) {
        return false;
    }
    const int nPos = left.VScrollPos();
    Press(VK_F5);
    return Expect("F5 leaves the log where it is",
                  [&] { return left.VScrollPos() == nPos && left.NumLines() > 0; }) &&
           AskFor("REMOVE", "log-3-find");
}

// A log of the walk's own grows while it is shown.
bool Walk::FollowLog() {
    const CString strFile = m_strFolder + "\\growing.log";
    const auto append = [&](int nFrom, int nTo) {
        CStdioFile file;
        if (!file.Open(strFile, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite |
                                    CFile::typeText | CFile::shareDenyNone)) {
            return;
        }
        file.SeekToEnd();
        for (int i = nFrom; i < nTo; ++i) {
            CString strLine;
            strLine.Format("line %d%s\n", i, i % 10 == 0 ? " remove a package" : "");
            file.WriteString(strLine);
        }
    };
    append(0, 100);
    QVTextWnd& left = m_frame.Log().Left().GetTextWnd();
    if (!Happened("a file of its own opens",
                  m_frame.Log().Open(strFile) == nullptr && left.NumLines() == 100)) {
        return false;
    }
    m_frame.PostMessage(WM_COMMAND, ID_LOG_FOLLOW);
    if (!Expect("following begins at the end", [&] { return left.VScrollPos() > 0; })) {
        return false;
    }
    const int nPos = left.VScrollPos();
    append(100, 150);
    if (!Expect("the end of a growing log is followed",
                [&] { return left.NumLines() == 150 && left.VScrollPos() > nPos; }) ||
        !Station("log-4-following")) {
        return false;
    }
    m_frame.PostMessage(WM_COMMAND, ID_LOG_FOLLOW);
    m_frame.PostMessage(WM_COMMAND, ID_LOG_COPY);
    return Expect("the log is on the clipboard", [&] {
        return m_frame.StatusText(0).Find("lines copied") >= 0 &&
               ::IsClipboardFormatAvailable(CF_TEXT);
    });
}

bool Walk::LogOnPaper() {
    constexpr unsigned kPages = 4;
    LogPage& log = m_frame.Log();
    const CString strExport = m_strFolder + "\\log.txt";
    if (!Happened("the log is exported", log.Export(strExport) == nullptr) ||
        !Happened("the log opens again", log.Open("Z:\\var\\log\\dpkg.log") == nullptr)) {
        return false;
    }
    const CString strFile = m_strFolder + "\\log.ps";
    if (const Failure pFailure = log.PrintToFile(strFile, 1, kPages)) {
        std::printf("walk: not printed: %s\n", pFailure->Text());
        return true;
    }
    CFileStatus status;
    std::printf("walk: log.ps\n");
    return Happened("the log comes out of the printer", CFile::GetStatus(strFile, status) != FALSE);
}
