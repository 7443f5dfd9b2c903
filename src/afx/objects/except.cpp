#include "afx/objects/except.h"

#include "afx/values/wide_text.h"

#include <afxwin.h>

#include <cstdio>
#include <new>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CFileException, CException)

namespace {

BOOL GiveMessage(LPCSTR lpszMessage, LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) {
    if (pnHelpContext != nullptr) {
        *pnHelpContext = 0;
    }
    if (lpszError == nullptr || nMaxError == 0) {
        return FALSE;
    }
    lstrcpyn(lpszError, lpszMessage != nullptr ? lpszMessage : "", static_cast<int>(nMaxError));
    return lpszMessage != nullptr;
}

}  // namespace

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}
CException::~CException() = default;

void CException::Delete() {
    if (m_bAutoDelete) {
        delete this;
    }
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) {
    return GiveMessage(nullptr, lpszError, nMaxError, pnHelpContext);
}

int CException::ReportError(UINT nType, UINT nMessageID) {
    char szMessage[512];
    if (!GetErrorMessage(szMessage, sizeof(szMessage)) &&
        (nMessageID == 0 || AfxLoadString(nMessageID, szMessage, sizeof(szMessage)) == 0)) {
        lstrcpyn(szMessage, "An error occurred.", sizeof(szMessage));
    }
    return AfxMessageBox(szMessage, nType);
}

CSimpleException::CSimpleException(BOOL bAutoDelete, LPCSTR lpszMessage)
    : CException(bAutoDelete), m_lpszMessage(lpszMessage) {}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) {
    return GiveMessage(m_lpszMessage, lpszError, nMaxError, pnHelpContext);
}

CMemoryException::CMemoryException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete, "Out of memory.") {}
CNotSupportedException::CNotSupportedException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete, "The operation is not supported.") {}
CResourceException::CResourceException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete, "A resource is not available.") {}
CUserException::CUserException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, nullptr) {}
CInvalidArgException::CInvalidArgException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete, "An argument is not valid.") {}

CFileException::CFileException(int cause, LONG lOsError, LPCTSTR lpszFileName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszFileName) {}

int CFileException::OsErrorToException(LONG lOsError) {
    switch (lOsError) {
        case NO_ERROR:
            return none;
        case ERROR_FILE_NOT_FOUND:
            return fileNotFound;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
            return badPath;
        case ERROR_TOO_MANY_OPEN_FILES:
            return tooManyOpenFiles;
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
        case ERROR_ALREADY_EXISTS:
        case ERROR_FILE_EXISTS:
        case ERROR_DIR_NOT_EMPTY:
        case ERROR_NETWORK_ACCESS_DENIED:
            return accessDenied;
        case ERROR_INVALID_HANDLE:
            return invalidFile;
        case ERROR_CURRENT_DIRECTORY:
            return removeCurrentDir;
        case ERROR_CANNOT_MAKE:
            return directoryFull;
        case ERROR_SEEK:
        case ERROR_NEGATIVE_SEEK:
        case ERROR_SEEK_ON_DEVICE:
            return badSeek;
        case ERROR_SHARING_VIOLATION:
            return sharingViolation;
        case ERROR_LOCK_VIOLATION:
        case ERROR_LOCKED:
            return lockViolation;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return diskFull;
        case ERROR_HANDLE_EOF:
            return endOfFile;
        case ERROR_CRC:
        case ERROR_WRITE_FAULT:
        case ERROR_READ_FAULT:
        case ERROR_NOT_READY:
        case ERROR_GEN_FAILURE:
        case ERROR_IO_DEVICE:
            return hardIO;
        default:
            return genericException;
    }
}

void CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName) {
    if (lOsError != NO_ERROR) {
        AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
    }
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) {
    static constexpr LPCSTR kMessages[] = {"No error occurred",
                                           "An unknown error occurred while accessing %.*s",
                                           "%.*s was not found",
                                           "%.*s contains an incorrect path",
                                           "Too many files are open",
                                           "Access to %.*s was denied",
                                           "The handle of %.*s is invalid",
                                           "%.*s is the current directory and cannot be removed",
                                           "The directory of %.*s is full",
                                           "Seek failed on %.*s",
                                           "A hardware error was reported while accessing %.*s",
                                           "A sharing violation occurred while accessing %.*s",
                                           "A locking violation occurred while accessing %.*s",
                                           "The disk was full while accessing %.*s",
                                           "The end of %.*s was passed"};
    const int nMessages = static_cast<int>(std::size(kMessages));
    const int nMessage = m_cause >= 0 && m_cause < nMessages ? m_cause : genericException;
    GiveMessage("", lpszError, nMaxError, pnHelpContext);
    if (lpszError == nullptr || nMaxError == 0) {
        return FALSE;
    }
    // A name that finds no room loses characters, not the message its end.
    constexpr int kPlaceholder = 4;
    const LPCTSTR lpszName = m_strFileName.IsEmpty() ? "a file" : m_strFileName.GetString();
    const int nRoom =
        static_cast<int>(nMaxError) - 1 - (lstrlen(kMessages[nMessage]) - kPlaceholder);
    std::snprintf(lpszError, nMaxError, kMessages[nMessage], AfxWholeBytes(lpszName, nRoom),
                  lpszName);
    return TRUE;
}

namespace {

// The simple exceptions are thrown where things are short already, so making them needs nothing.
template <class Exception>
[[noreturn]] void ThrowKept() {
    static Exception s_exception(FALSE);
    throw &s_exception;
}

}  // namespace

void AfxThrowMemoryException() {
    ThrowKept<CMemoryException>();
}
void AfxThrowNotSupportedException() {
    ThrowKept<CNotSupportedException>();
}
void AfxThrowResourceException() {
    ThrowKept<CResourceException>();
}
void AfxThrowUserException() {
    ThrowKept<CUserException>();
}
void AfxThrowInvalidArgException() {
    ThrowKept<CInvalidArgException>();
}
void AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName) {
    auto* pException = new (std::nothrow) CFileException(cause, lOsError, lpszFileName);
    if (pException == nullptr) {
        AfxThrowMemoryException();
    }
    throw pException;
}
