// CRecentFileList: the files that the user worked on last, and their items in the File menu.
#pragma once

#include "afx/values/string.h"

class CCmdUI;

#define AFX_ABBREV_FILENAME_LEN 30

/// The newest file is the first. CWinApp has one once LoadStdProfileSettings was called; kept in
/// the application's settings, under the section's name, as File1, File2 ...
class QVAFX_API CRecentFileList {
public:
    /// nStart: the number that the first entry has, in its name and in the menu, less one.
    /// lpszEntryFormat: an entry's name, with %d for its number.
    CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize,
                    int nMaxDispLen = AFX_ABBREV_FILENAME_LEN);
    virtual ~CRecentFileList();
    CRecentFileList(const CRecentFileList&) = delete;
    CRecentFileList& operator=(const CRecentFileList&) = delete;

    int GetSize() const { return m_nSize; }
    /// Empty strings behind the last file.
    CString& operator[](int nIndex) { return m_arrNames[nIndex]; }

    /// To the front, wherever the file was before.
    virtual void Add(LPCTSTR lpszPathName);
    virtual void Remove(int nIndex);
    /// The path, without its folder where that is lpszCurDir (nCurDir bytes, with the backslash at
    /// its end), and cut to the display length: folders first, with bAtLeastName never the name.
    BOOL GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                        BOOL bAtLeastName = TRUE) const;
    /// Puts the files in the menu, in the place of the item that stands for them. Without files
    /// that item shows, disabled.
    virtual void UpdateMenu(CCmdUI* pCmdUI);
    virtual void ReadList();
    virtual void WriteList();

    int m_nSize;
    CString* m_arrNames;
    CString m_strSectionName;
    CString m_strEntryFormat;
    UINT m_nStart;
    int m_nMaxDisplayLength;
    CString m_strOriginal;  ///< the text of the menu's item
};
