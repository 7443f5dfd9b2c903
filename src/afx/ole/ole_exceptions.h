// What automation fails with: a code alone, or what the object that was asked told about it.
#pragma once

#include <afx.h>

#include <oaidl.h>

/// A failure of OLE.
class QVAFX_API COleException : public CException {
    DECLARE_DYNAMIC(COleException)

public:
    COleException();

    SCODE m_sc = S_OK;

    /// The code that stands for an exception: its own, or one of memory, support, or the
    /// unexpected.
    static SCODE Process(const CException* pAnyException);
    /// The system's text for the code, else the code in hexadecimal digits.
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) override;
};

/// A failure that an automation object told about, or that a handler wants to tell.
class QVAFX_API COleDispatchException : public COleException {
    DECLARE_DYNAMIC(COleDispatchException)

public:
    COleDispatchException(LPCTSTR lpszDescription, UINT nHelpID, WORD wCode);

    WORD m_wCode;              ///< the object's own number of the error, 0 if it has only m_scError
    CString m_strDescription;  ///< what GetErrorMessage gives
    DWORD m_dwHelpContext;     ///< 0: no help
    CString m_strHelpFile;
    CString m_strSource;  ///< which program or class it comes from
    SCODE m_scError = S_OK;

    /// Tells a caller through automation about an exception.
    static void Process(EXCEPINFO* pInfo, const CException* pAnyException);
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) override;
};

// Without memory for the exception these throw a CMemoryException.
[[noreturn]] QVAFX_API void AfxThrowOleException(SCODE sc);
[[noreturn]] QVAFX_API void AfxThrowOleDispatchException(WORD wCode, LPCTSTR lpszDescription,
                                                         UINT nHelpID = 0);
/// The text is a string of the resources.
[[noreturn]] QVAFX_API void AfxThrowOleDispatchException(WORD wCode, UINT nDescriptionID,
                                                         UINT nHelpID = static_cast<UINT>(-1));
