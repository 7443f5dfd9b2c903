// How a program begins: what its command line asks for, and what another program asks by a message.
#include "afx/app/command_line.h"

#include <afxdlgs.h>
#include <afxwin.h>

#include <cstring>

namespace {

/// The names of a printer as print dialogs keep them; null without memory.
HGLOBAL NamesOf(const CString& strDriver, const CString& strPrinter, const CString& strPort) {
    const CString* const names[] = {&strDriver, &strPrinter, &strPort};
    size_t nBytes = sizeof(DEVNAMES);
    for (const CString* pstr : names) {
        nBytes += static_cast<size_t>(pstr->GetLength()) + 1;
    }
    const HGLOBAL hNames = ::GlobalAlloc(GHND, nBytes);
    auto* pNames = static_cast<DEVNAMES*>(::GlobalLock(hNames));
    if (pNames == nullptr) {
        return nullptr;
    }
    WORD* const offsets[] = {&pNames->wDriverOffset, &pNames->wDeviceOffset,
                             &pNames->wOutputOffset};
    size_t nAt = sizeof(DEVNAMES);
    for (size_t nName = 0; nName < _countof(names); ++nName) {
        const auto nLength = static_cast<size_t>(names[nName]->GetLength()) + 1;
        *offsets[nName] = static_cast<WORD>(nAt);
        std::memcpy(reinterpret_cast<char*>(pNames) + nAt, names[nName]->GetString(), nLength);
        nAt += nLength;
    }
    ::GlobalUnlock(hNames);
    return hNames;
}

}  // namespace

/// Prints the file without a question, on the printer that is named or the application's.
void CWinApp::PrintFile(const CCommandLineInfo& info) {
    const bool bNamed = info.m_nShellCommand == CCommandLineInfo::FilePrintTo;
    const HGLOBAL hOldNames = m_hDevNames;
    const HGLOBAL hOldMode = m_hDevMode;
    if (bNamed) {
        SelectPrinter(NamesOf(info.m_strDriverName, info.m_strPrinterName, info.m_strPortName),
                      nullptr, FALSE);
    }
    if (OpenDocumentFile(info.m_strFileName) != nullptr && m_pMainWnd != nullptr) {
        m_pMainWnd->SendMessage(WM_COMMAND, ID_FILE_PRINT_DIRECT);
    }
    if (bNamed) {
        SelectPrinter(hOldNames, hOldMode);
    }
}

BOOL CWinApp::ProcessShellCommand(CCommandLineInfo& rCmdInfo) {
    switch (rCmdInfo.m_nShellCommand) {
        case CCommandLineInfo::FileNew:
            // A program with a handler of its own begins as that does.
            if (!OnCmdMsg(ID_FILE_NEW, CN_COMMAND, nullptr, nullptr)) {
                OnFileNew();
            }
            return m_pMainWnd != nullptr;

        case CCommandLineInfo::FileOpen:
            return OpenDocumentFile(rCmdInfo.m_strFileName) != nullptr;

        case CCommandLineInfo::FilePrint:
        case CCommandLineInfo::FilePrintTo:
            m_nCmdShow = SW_HIDE;
            PrintFile(rCmdInfo);
            if (m_pMainWnd != nullptr) {
                m_pMainWnd->SendMessage(WM_CLOSE);
            }
            return FALSE;

        case CCommandLineInfo::FileDDE:
            m_nShowWhenAsked = m_nCmdShow;
            m_nCmdShow = SW_HIDE;
            return TRUE;

        case CCommandLineInfo::AppRegister:
            RegisterShellFileTypes(TRUE);
            return TRUE;

        case CCommandLineInfo::AppUnregister:
            UnregisterShellFileTypes();
            return FALSE;

        default:
            return TRUE;
    }
}

// Messages of other programs

void CWinApp::EnableShellOpen() {
    if (m_atomApp != 0) {
        return;
    }
    m_atomApp = ::GlobalAddAtom(m_pszExeName);
    m_atomSystemTopic = ::GlobalAddAtom("system");
}

namespace {

/// "[verb("first","second")]" taken apart.
class DdeCommand {
public:
    explicit DdeCommand(LPCTSTR lpszCommand) : m_strRest(lpszCommand) {
        if (m_strRest.IsEmpty() || m_strRest[0] != '[') {
            return;
        }
        const int nParenthesis = m_strRest.Find('(');
        if (nParenthesis > 0) {
            m_strVerb = m_strRest.Mid(1, nParenthesis - 1);
            m_strRest = m_strRest.Mid(nParenthesis);
        }
    }
    const CString& Verb() const { return m_strVerb; }
    /// What stands between the next two quotes.
    bool Next(CString& str) {
        const int nBegin = m_strRest.Find('"');
        const int nEnd = nBegin >= 0 ? m_strRest.Find('"', nBegin + 1) : -1;
        if (nEnd < 0) {
            return false;
        }
        str = m_strRest.Mid(nBegin + 1, nEnd - nBegin - 1);
        m_strRest = m_strRest.Mid(nEnd + 1);
        return true;
    }

private:
    CString m_strRest;
    CString m_strVerb;
};

}  // namespace

BOOL CWinApp::OnDDECommand(LPTSTR lpszCommand) {
    DdeCommand command(lpszCommand);
    CCommandLineInfo info;
    if (!command.Next(info.m_strFileName)) {
        return FALSE;
    }
    const CString strVerb(command.Verb());
    if (strVerb == "open") {
        if (m_pMainWnd != nullptr) {
            // One that waited for this shows as the shell wanted it to.
            const int nShow = m_pMainWnd->IsIconic()           ? SW_RESTORE
                              : m_nShowWhenAsked != kAlreadyUp ? m_nShowWhenAsked
                                                               : SW_SHOW;
            m_nShowWhenAsked = kAlreadyUp;
            m_pMainWnd->ShowWindow(nShow);
            m_pMainWnd->SetForegroundWindow();
        }
        OpenDocumentFile(info.m_strFileName);
        return TRUE;
    }
    const bool bPrintTo = strVerb == "printto";
    if (!bPrintTo && strVerb != "print") {
        return FALSE;
    }
    info.m_nShellCommand = bPrintTo ? CCommandLineInfo::FilePrintTo : CCommandLineInfo::FilePrint;
    if (bPrintTo && !(command.Next(info.m_strPrinterName) && command.Next(info.m_strDriverName) &&
                      command.Next(info.m_strPortName))) {
        return FALSE;
    }
    const int nOpen = GetOpenDocumentCount();
    PrintFile(info);
    // What was opened for this goes again; a program that waited for it ends.
    if (m_pMainWnd != nullptr && m_nShowWhenAsked != kAlreadyUp) {
        m_pMainWnd->PostMessage(WM_CLOSE);
    } else if (m_pMainWnd != nullptr && GetOpenDocumentCount() > nOpen) {
        m_pMainWnd->SendMessage(WM_COMMAND, ID_FILE_CLOSE);
    }
    return TRUE;
}
