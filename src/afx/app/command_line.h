// CCommandLineInfo: what the command line asks the program to begin with.
#pragma once

#include "afx/objects/object.h"
#include "afx/values/string.h"

/// Filled by CWinApp::ParseCommandLine, carried out by CWinApp::ProcessShellCommand. Without
/// arguments the program begins with a new document, with a file's name by opening it.
///
///     /p file                        prints it and ends
///     /pt file printer driver port   the same on that printer
///     /dde                           waits for a message that names the file
///     /Register, /Regserver          registers the kinds of documents; and goes on as if new
///     /Unregister, /Unregserver      takes them out and ends
///     /Embedding, /Automation        another program runs this one
class QVAFX_API CCommandLineInfo : public CObject {
public:
    enum {
        FileNew,
        FileOpen,
        FilePrint,
        FilePrintTo,
        FileDDE,
        AppRegister,
        AppUnregister,
        FileNothing = -1
    } m_nShellCommand = FileNew;

    CCommandLineInfo();
    ~CCommandLineInfo() override;

    BOOL m_bShowSplash = TRUE;  ///< FALSE when another program runs this one
    BOOL m_bRunEmbedded = FALSE;
    BOOL m_bRunAutomated = FALSE;
    CString m_strFileName;
    CString m_strPrinterName;
    CString m_strDriverName;
    CString m_strPortName;

    /// One argument, of a flag without its slash or hyphen.
    virtual void ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast);

protected:
    void ParseParamFlag(LPCTSTR pszParam);
    void ParseParamNotFlag(LPCTSTR pszParam);
    void ParseLast(BOOL bLast);
};
