#include "afx/app/command_line.h"

#include <afxwin.h>

CCommandLineInfo::CCommandLineInfo() = default;
CCommandLineInfo::~CCommandLineInfo() = default;

void CCommandLineInfo::ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast) {
    if (bFlag) {
        ParseParamFlag(pszParam);
    } else {
        ParseParamNotFlag(pszParam);
    }
    ParseLast(bLast);
}

void CCommandLineInfo::ParseParamFlag(LPCTSTR pszParam) {
    static const struct {
        LPCTSTR lpszFlag;
        decltype(FileNew) nCommand;
    } kCommands[] = {
        {"pt", FilePrintTo},           {"p", FilePrint},           {"dde", FileDDE},
        {"Register", AppRegister},     {"Regserver", AppRegister}, {"Unregister", AppUnregister},
        {"Unregserver", AppUnregister}};
    for (const auto& command : kCommands) {
        if (::lstrcmpi(pszParam, command.lpszFlag) == 0) {
            m_nShellCommand = command.nCommand;
        }
    }
    m_bRunEmbedded |= ::lstrcmpi(pszParam, "Embedding") == 0;
    m_bRunAutomated |= ::lstrcmpi(pszParam, "Automation") == 0;
}

void CCommandLineInfo::ParseParamNotFlag(LPCTSTR pszParam) {
    if (m_strFileName.IsEmpty()) {
        m_strFileName = pszParam;
        return;
    }
    if (m_nShellCommand != FilePrintTo) {
        return;
    }
    for (CString* pstr : {&m_strPrinterName, &m_strDriverName, &m_strPortName}) {
        if (pstr->IsEmpty()) {
            *pstr = pszParam;
            return;
        }
    }
}

void CCommandLineInfo::ParseLast(BOOL bLast) {
    if (!bLast) {
        return;
    }
    if (m_nShellCommand == FileNew && !m_strFileName.IsEmpty()) {
        m_nShellCommand = FileOpen;
    }
    m_bShowSplash = !m_bRunEmbedded && !m_bRunAutomated;
}

// From the wide command line: the run-time library's arguments come by another code page than the
// process's where a program brings its own.
void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo) {
    int nArguments = 0;
    struct Arguments {
        LPWSTR* pp;
        ~Arguments() { ::LocalFree(pp); }
    } const arguments{::CommandLineToArgvW(::GetCommandLineW(), &nArguments)};
    for (int nArgument = 1; arguments.pp != nullptr && nArgument < nArguments; ++nArgument) {
        const CString strParam(arguments.pp[nArgument]);
        const bool bFlag = strParam.GetLength() > 0 && (strParam[0] == '-' || strParam[0] == '/');
        rCmdInfo.ParseParam(bFlag ? strParam.Mid(1) : strParam, bFlag, nArgument + 1 == nArguments);
    }
}
