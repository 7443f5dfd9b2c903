// Archives: objects and values written one behind the other, and read in the same order.
//
// Numbers stand in them as the machine has them. A string is its length (a byte, or 0xFF and a
// word, or 0xFFFF and a double word more) and its bytes. An object is a reference to one that the
// archive had before, or its class, once with name and schema and later by reference, and what its
// Serialize writes. References count classes and objects from 1 on, in the order of their coming.
#pragma once

#include "afx/objects/file.h"

class CArchive;
class CDocument;

class QVAFX_API CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)

public:
    // The published names of the causes.
    enum {
        none,
        genericException,
        readOnly,   ///< writing into an archive that loads
        endOfFile,  ///< less there than was to be read
        writeOnly,  ///< reading from an archive that stores
        badIndex,   ///< a reference or length that cannot be
        badClass,   ///< an object of another class than was asked for
        badSchema,  ///< an object of another version of its class
        bufferFull
    };

    explicit CArchiveException(int cause = none, LPCTSTR lpszArchiveName = nullptr);

    int m_cause;
    CString m_strFileName;

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) override;
};

[[noreturn]] QVAFX_API void AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName = nullptr);

/// An archive uses a file, which must outlive it or its Close. What is wrong is thrown: as
/// CArchiveException, as CFileException of the file, as CMemoryException. Whatever a damaged file
/// claims, memory is taken only for what is there.
class QVAFX_API CArchive {
public:
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

    /// lpBuf: a buffer of nBufSize bytes of the caller's, who frees it later; null makes one.
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = nullptr);
    /// Closes unless closed or bNoFlushOnDelete is set; what goes wrong then nobody hears of.
    ~CArchive();
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    CDocument* m_pDocument = nullptr;  ///< what is stored or loaded; for Serialize to look at
    BOOL m_bForceFlat = TRUE;

    BOOL IsLoading() const { return (m_nMode & load) != 0; }
    BOOL IsStoring() const { return !IsLoading(); }
    BOOL IsByteSwapping() const { return FALSE; }
    BOOL IsBufferEmpty() const { return m_nAt == m_nEnd; }
    CFile* GetFile() const { return m_pFile; }

    // Bytes
    UINT Read(void* lpBuf, UINT nMax);  ///< fewer at the end of the file
    void EnsureRead(void* lpBuf, UINT nCount);
    void Write(const void* lpBuf, UINT nMax);
    /// Writes what is buffered; while loading, goes back in the file to what was read last.
    void Flush();
    void Close();  ///< Flush, and no more use of the file
    void Abort();  ///< no more use of the file

    // Text by lines, as in a text file
    void WriteString(LPCTSTR lpsz);
    /// A line without its end, or nMax - 1 bytes of it. Null if nothing was left to read.
    LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    BOOL ReadString(CString& rString);

    // Counts: a word, or 0xFFFF and a double word, or 0xFFFFFFFF more and eight bytes
    DWORD_PTR ReadCount();
    void WriteCount(DWORD_PTR dwCount);

    // Objects
    /// An object that the archive had before, or a new one, the caller's. One that throws while it
    /// loads is deleted. Null where null was written. pClass: what it must be of; may be null.
    CObject* ReadObject(const CRuntimeClass* pClass);
    /// Throws CNotSupportedException for an object without IMPLEMENT_SERIAL.
    void WriteObject(const CObject* pOb);
    /// Gives an object that is not written by WriteObject the next reference, on both sides.
    void MapObject(const CObject* pOb);
    void WriteClass(const CRuntimeClass* pClassRef);
    CRuntimeClass* ReadClass(const CRuntimeClass* pClassRefRequested = nullptr,
                             UINT* pSchema = nullptr, DWORD* pObTag = nullptr);
    void SerializeClass(const CRuntimeClass* pClassRef);
    /// Of the object being loaded; can be asked once in its Serialize, then -1.
    UINT GetObjectSchema();
    void SetObjectSchema(UINT nSchema) { m_nObjectSchema = nSchema; }
    // How many references are expected.
    void SetLoadParams(UINT nGrowBy = 1024);
    void SetStoreParams(UINT nHashSize = 2053, UINT nBlockSize = 128);

    CArchive& operator<<(BYTE by) { return Put(by); }
    CArchive& operator<<(WORD w) { return Put(w); }
    CArchive& operator<<(LONG l) { return Put(l); }
    CArchive& operator<<(DWORD dw) { return Put(dw); }
    CArchive& operator<<(float f) { return Put(f); }
    CArchive& operator<<(double d) { return Put(d); }
    CArchive& operator<<(LONGLONG dwdw) { return Put(dwdw); }
    CArchive& operator<<(ULONGLONG dwdw) { return Put(dwdw); }
    CArchive& operator<<(int i) { return Put(i); }
    CArchive& operator<<(short w) { return Put(w); }
    CArchive& operator<<(char ch) { return Put(ch); }
    CArchive& operator<<(wchar_t ch) { return Put(ch); }
    CArchive& operator<<(unsigned u) { return Put(u); }
    CArchive& operator<<(bool b) { return Put(static_cast<BYTE>(b ? 1 : 0)); }

    CArchive& operator>>(BYTE& by) { return Get(by); }
    CArchive& operator>>(WORD& w) { return Get(w); }
    CArchive& operator>>(LONG& l) { return Get(l); }
    CArchive& operator>>(DWORD& dw) { return Get(dw); }
    CArchive& operator>>(float& f) { return Get(f); }
    CArchive& operator>>(double& d) { return Get(d); }
    CArchive& operator>>(LONGLONG& dwdw) { return Get(dwdw); }
    CArchive& operator>>(ULONGLONG& dwdw) { return Get(dwdw); }
    CArchive& operator>>(int& i) { return Get(i); }
    CArchive& operator>>(short& w) { return Get(w); }
    CArchive& operator>>(char& ch) { return Get(ch); }
    CArchive& operator>>(wchar_t& ch) { return Get(ch); }
    CArchive& operator>>(unsigned& u) { return Get(u); }
    CArchive& operator>>(bool& b) {
        BYTE by = 0;
        Get(by);
        b = by != 0;
        return *this;
    }

private:
    struct References;

    template <class Value>
    CArchive& Put(Value value) {
        Write(&value, sizeof(value));
        return *this;
    }
    template <class Value>
    CArchive& Get(Value& value) {
        EnsureRead(&value, sizeof(value));
        return *this;
    }
    [[noreturn]] void Throw(int cause) const;
    void MustLoad() const;
    void MustStore() const;
    UINT FillBuffer();
    bool ReadChar(char& ch);
    References& Refs();
    DWORD NextReference();
    void WriteReference(DWORD dwReference, bool bClass);
    CObject* MakeObject(CRuntimeClass* pClass, UINT nSchema);

    CFile* m_pFile;
    UINT m_nMode;
    UINT m_nBufSize;
    BYTE* m_pBuffer;
    bool m_bOwnsBuffer;
    UINT m_nAt = 0;   ///< in the buffer: of the next byte
    UINT m_nEnd = 0;  ///< behind the last byte read from the file
    CString m_strFileName;
    References* m_pRefs = nullptr;  ///< owned
    UINT m_nObjectSchema = static_cast<UINT>(-1);
    UINT m_nExpected = 0;
    int m_nDepth = 0;  ///< objects being loaded
};

QVAFX_API CArchive& operator<<(CArchive& ar, const CString& string);
/// Takes strings of Unicode programs as well, in the code page then.
QVAFX_API CArchive& operator>>(CArchive& ar, CString& string);

inline CArchive& operator<<(CArchive& ar, const CObject* pOb) {
    ar.WriteObject(pOb);
    return ar;
}
inline CArchive& operator>>(CArchive& ar, CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}
inline CArchive& operator>>(CArchive& ar, const CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}

// Values, as the machine has them.
QVAFX_API CArchive& operator<<(CArchive& ar, SIZE size);
QVAFX_API CArchive& operator<<(CArchive& ar, POINT point);
QVAFX_API CArchive& operator<<(CArchive& ar, const RECT& rect);
QVAFX_API CArchive& operator>>(CArchive& ar, SIZE& size);
QVAFX_API CArchive& operator>>(CArchive& ar, POINT& point);
QVAFX_API CArchive& operator>>(CArchive& ar, RECT& rect);
QVAFX_API CArchive& operator<<(CArchive& ar, CTime time);
QVAFX_API CArchive& operator<<(CArchive& ar, CTimeSpan timeSpan);
QVAFX_API CArchive& operator>>(CArchive& ar, CTime& rtime);
QVAFX_API CArchive& operator>>(CArchive& ar, CTimeSpan& rtimeSpan);
