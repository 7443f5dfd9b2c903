// Exceptions are thrown and caught by pointer, and deleted by whoever catches them last.
#pragma once

#include "afx/objects/object.h"
#include "afx/values/string.h"

class QVAFX_API CException : public CObject {
    DECLARE_DYNAMIC(CException)

public:
    /// bAutoDelete is FALSE for an object that Delete leaves alone, such as a static one.
    explicit CException(BOOL bAutoDelete = TRUE);
    ~CException() override;
    void Delete();

    /// FALSE if there is no message; the buffer is cut at nMaxError bytes and terminated.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr);
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

private:
    BOOL m_bAutoDelete;
};

class QVAFX_API CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)

public:
    explicit CSimpleException(BOOL bAutoDelete = TRUE, LPCSTR lpszMessage = nullptr);
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) override;

private:
    LPCSTR m_lpszMessage;  // a literal
};

class QVAFX_API CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    explicit CMemoryException(BOOL bAutoDelete = TRUE);
};

class QVAFX_API CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    explicit CNotSupportedException(BOOL bAutoDelete = TRUE);
};

class QVAFX_API CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
public:
    explicit CResourceException(BOOL bAutoDelete = TRUE);
};

class QVAFX_API CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
public:
    explicit CUserException(BOOL bAutoDelete = TRUE);
};

class QVAFX_API CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    explicit CInvalidArgException(BOOL bAutoDelete = TRUE);
};

class QVAFX_API CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)

public:
    // The published names of the causes.
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG lOsError = -1, LPCTSTR lpszFileName = nullptr);

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;

    /// The cause that stands for an error of GetLastError.
    static int OsErrorToException(LONG lOsError);
    static void ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = nullptr);
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) override;
};

// What these throw, but for a file's, is kept for the purpose: throwing needs no memory, and Delete
// leaves it alone. A file's exception becomes a CMemoryException where there is no memory for it.
[[noreturn]] QVAFX_API void AfxThrowMemoryException();
[[noreturn]] QVAFX_API void AfxThrowNotSupportedException();
[[noreturn]] QVAFX_API void AfxThrowResourceException();
[[noreturn]] QVAFX_API void AfxThrowUserException();
[[noreturn]] QVAFX_API void AfxThrowInvalidArgException();
[[noreturn]] QVAFX_API void AfxThrowFileException(int cause, LONG lOsError = -1,
                                                  LPCTSTR lpszFileName = nullptr);

// The macros of old. What a CATCH block does not throw on is deleted at its end.
struct AFX_EXCEPTION_KEEPER {
    CException* m_pException;
    ~AFX_EXCEPTION_KEEPER() {
        if (m_pException != nullptr) {
            m_pException->Delete();
        }
    }
};
#define TRY try {
#define CATCH(class, e) \
    }                   \
    catch (class * e) { \
        AFX_EXCEPTION_KEEPER _afxKeeper{e};
#define AND_CATCH(class, e) CATCH(class, e)
#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)
#define END_CATCH }
#define END_CATCH_ALL }
#define END_TRY              \
    }                        \
    catch (CException * e) { \
        e->Delete();         \
    }
#define THROW(e) throw e
#define THROW_LAST() (_afxKeeper.m_pException = nullptr, throw)
