// Files, text files and files in memory. Failures are thrown as CFileException, but for Open, which
// says no by its result.
#pragma once

#include "afx/objects/except.h"
#include "afx/values/string.h"
#include "afx/values/time.h"

struct CFileStatus {
    CTime m_ctime;  ///< creation, last change, last access
    CTime m_mtime;
    CTime m_atime;
    ULONGLONG m_size = 0;
    BYTE m_attribute = 0;
    char m_szFullName[3 * MAX_PATH] = {};  ///< MAX_PATH characters in UTF-8
};

class QVAFX_API CFile : public CObject {
    DECLARE_DYNAMIC(CFile)

public:
    enum OpenFlags {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000,
        typeBinary = 0x8000,
        // For the system's reading ahead and its cache.
        osNoBuffer = 0x10000,  ///< positions and counts in sectors then
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    enum Attribute {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20
    };
    enum SeekPosition { begin = 0, current = 1, end = 2 };

    CFile();
    explicit CFile(HANDLE hFile);  ///< closed by Close, not by the destructor
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CFile() override;

    HANDLE m_hFile = INVALID_HANDLE_VALUE;
    static const HANDLE hFileNull;
    operator HANDLE() const { return m_hFile; }

    /// FALSE on failure, with the cause in pError if one is given; nothing is thrown.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    virtual void Close();
    virtual void Abort();  ///< closes, whatever happens
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void Flush();
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    virtual void SetLength(ULONGLONG dwNewLen);
    virtual CString GetFilePath() const { return m_strFileName; }
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual void SetFilePath(LPCTSTR lpszNewName) { m_strFileName = lpszNewName; }
    BOOL GetStatus(CFileStatus& rStatus) const;
    /// A second handle to the file, with the same position; made with new.
    virtual CFile* Duplicate() const;
    /// Nobody else reads or writes these bytes until they are unlocked.
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);

    static BOOL GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus);
    /// Attributes, and the times that are not 0.
    static void SetStatus(LPCTSTR lpszFileName, const CFileStatus& status);
    static void Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName);
    static void Remove(LPCTSTR lpszFileName);

protected:
    [[noreturn]] void ThrowLastError() const;

    BOOL m_bCloseOnDelete = FALSE;
    CString m_strFileName;
};

/// A text file by lines. With typeText, the default, a line ends in CR LF on disk and in LF here.
class QVAFX_API CStdioFile : public CFile {
    DECLARE_DYNAMIC(CStdioFile)

public:
    CStdioFile();
    explicit CStdioFile(FILE* pOpenStream);
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CStdioFile() override;

    FILE* m_pStream = nullptr;

    /// At most nMax - 1 bytes, up to and with the line's LF. Null at the end of the file.
    virtual LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    /// A whole line without its end. FALSE if nothing was left to read.
    virtual BOOL ReadString(CString& rString);
    virtual void WriteString(LPCTSTR lpsz);

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    void Close() override;
    void Abort() override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void Flush() override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    // Not supported.
    CFile* Duplicate() const override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
};

/// A file in memory that grows as it is written.
class QVAFX_API CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)

public:
    explicit CMemFile(UINT nGrowBytes = 1024);
    /// With a block to begin with, as Attach takes it.
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    ~CMemFile() override;

    /// Works on a block of the caller's, who frees it. With nGrowBytes it counts as empty and must
    /// come from malloc: it moves as it grows, and Detach tells where to.
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    BYTE* Detach();

    BOOL Open(LPCTSTR, UINT, CFileException* = nullptr) override { return FALSE; }
    void Close() override;
    void Abort() override { Close(); }
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void Flush() override {}
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override { return m_nPosition; }
    ULONGLONG GetLength() const override { return m_nFileSize; }
    void SetLength(ULONGLONG dwNewLen) override;
    // Not supported.
    CFile* Duplicate() const override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;

private:
    void Grow(size_t nSize);

    size_t m_nGrowBytes;
    size_t m_nPosition = 0;
    size_t m_nBufferSize = 0;
    size_t m_nFileSize = 0;
    BYTE* m_pBuffer = nullptr;
    bool m_bOwnsBuffer = true;
};
