// The system's common dialogs.
#pragma once

#include "afxwin.h"

class QVAFX_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);
};

/// Opening and saving files.
class QVAFX_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// lpszFilter: pairs of description and pattern, each ended by a bar, one more bar at the end.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr,
                         LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                         LPCTSTR lpszFilter = nullptr, CWnd* pParentWnd = nullptr);

    OPENFILENAME m_ofn;  ///< may be changed before DoModal
    BOOL m_bOpenFileDialog;

    INT_PTR DoModal() override;

    CString GetPathName() const;   ///< the whole path
    CString GetFileName() const;   ///< name and extension
    CString GetFileExt() const;    ///< without the dot
    CString GetFileTitle() const;  ///< the name alone
    BOOL GetReadOnlyPref() const;
    /// With OFN_ALLOWMULTISELECT: one path after the other. The position ends as null.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

private:
    CString m_strFilter;
    TCHAR m_szFileTitle[MAX_PATH] = {};
    TCHAR m_szFileName[8 * MAX_PATH] = {};
};
