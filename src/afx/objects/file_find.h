// CFileFind: the files of a folder by a pattern.
#pragma once

#include "afx/objects/object.h"
#include "afx/values/string.h"
#include "afx/values/time.h"

/// After FindFile, each FindNextFile makes one more file the current one, which the other functions
/// are about:
///     BOOL bMore = finder.FindFile(pattern);
///     while (bMore) { bMore = finder.FindNextFile(); ... }
class QVAFX_API CFileFind : public CObject {
    DECLARE_DYNAMIC(CFileFind)

public:
    CFileFind() = default;
    ~CFileFind() override;

    /// Null finds all files of the current folder. FALSE if there is none; GetLastError tells why.
    virtual BOOL FindFile(LPCTSTR pstrName = nullptr, DWORD dwUnused = 0);
    /// FALSE if the file that is current now is the last one.
    virtual BOOL FindNextFile();
    void Close();

    ULONGLONG GetLength() const;
    virtual CString GetFileName() const;   ///< with its extension
    virtual CString GetFilePath() const;   ///< the whole path
    virtual CString GetFileTitle() const;  ///< without extension
    virtual CString GetFileURL() const;
    virtual CString GetRoot() const;  ///< the pattern's folder as it was given
    virtual BOOL GetCreationTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetCreationTime(CTime& refTime) const;
    virtual BOOL GetLastAccessTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastAccessTime(CTime& refTime) const;
    virtual BOOL GetLastWriteTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastWriteTime(CTime& refTime) const;

    virtual BOOL MatchesMask(DWORD dwMask) const;
    virtual BOOL IsDots() const;  ///< "." or ".."
    BOOL IsReadOnly() const { return MatchesMask(FILE_ATTRIBUTE_READONLY); }
    BOOL IsDirectory() const { return MatchesMask(FILE_ATTRIBUTE_DIRECTORY); }
    BOOL IsCompressed() const { return MatchesMask(FILE_ATTRIBUTE_COMPRESSED); }
    BOOL IsSystem() const { return MatchesMask(FILE_ATTRIBUTE_SYSTEM); }
    BOOL IsHidden() const { return MatchesMask(FILE_ATTRIBUTE_HIDDEN); }
    BOOL IsTemporary() const { return MatchesMask(FILE_ATTRIBUTE_TEMPORARY); }
    BOOL IsNormal() const { return MatchesMask(FILE_ATTRIBUTE_NORMAL); }
    BOOL IsArchived() const { return MatchesMask(FILE_ATTRIBUTE_ARCHIVE); }

protected:
    virtual void CloseContext();

    HANDLE m_hContext = nullptr;
    CString m_strRoot;

private:
    const WIN32_FIND_DATA* Current() const { return m_bCurrent ? &m_current : nullptr; }

    CString m_strFolder;  ///< whole, with a backslash at its end
    bool m_bCurrent = false;
    bool m_bNext = false;
    WIN32_FIND_DATA m_current = {};
    WIN32_FIND_DATA m_next = {};
};
