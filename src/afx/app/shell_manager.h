// CShellManager: what a program asks of the shell.
#pragma once

#include "afx/values/string.h"
#include "afx/window/wnd.h"

#include <shlobj.h>

/// COM is in use in the thread for as long as the object lives, as the shell wants it.
class QVAFX_API CShellManager : public CObject {
    DECLARE_DYNAMIC(CShellManager)

public:
    CShellManager();
    ~CShellManager() override;

    /// Shows the system's dialog of folders. FALSE if the user cancelled; strOutFolder stays.
    BOOL BrowseForFolder(CString& strOutFolder, CWnd* pWndParent = nullptr,
                         LPCTSTR lplszInitialFolder = nullptr, LPCTSTR lpszTitle = nullptr,
                         UINT ulFlags = BIF_RETURNONLYFSDIRS, LPINT piFolderImage = nullptr);

private:
    bool m_bComInUse;
};
