#include "afx/ole/ole_exceptions.h"

#include "afx/ole/wnd_control.h"

#include <afxwin.h>

#include <algorithm>
#include <climits>
#include <memory>
#include <new>

IMPLEMENT_DYNAMIC(COleException, CException)
IMPLEMENT_DYNAMIC(COleDispatchException, COleException)

namespace {

constexpr UINT kHelpOfText = static_cast<UINT>(-1);  // help under the text's own number

/// As much of the text as the buffer takes, in whole characters.
BOOL GiveText(const CString& strText, LPTSTR lpszError, UINT nMaxError) {
    if (lpszError == nullptr || nMaxError == 0) {
        return FALSE;
    }
    AfxCopyWhole(lpszError, strText, static_cast<int>(std::min<UINT>(nMaxError, INT_MAX)));
    return TRUE;
}

CString SystemText(SCODE sc) {
    WCHAR szText[512] = L"";
    const DWORD nLength = ::FormatMessageW(
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
        nullptr, static_cast<DWORD>(sc), 0, szText, _countof(szText), nullptr);
    CString strText(nLength > 0 ? szText : L"");
    strText.TrimRight();
    if (strText.IsEmpty()) {
        strText.Format("Automation failed (0x%08lX).", static_cast<unsigned long>(sc));
    }
    return strText;
}

// Without memory the caller is told less.
BSTR TextFor(LPCSTR lpsz) {
    try {
        return CString(lpsz).AllocSysString();
    } catch (CException* e) {
        e->Delete();
        return nullptr;
    }
}

}  // namespace

COleException::COleException() = default;

SCODE COleException::Process(const CException* pAnyException) {
    if (const auto* pOle = dynamic_cast<const COleException*>(pAnyException)) {
        return pOle->m_sc;
    }
    if (dynamic_cast<const CMemoryException*>(pAnyException) != nullptr) {
        return E_OUTOFMEMORY;
    }
    return dynamic_cast<const CNotSupportedException*>(pAnyException) != nullptr ? E_NOTIMPL
                                                                                 : E_UNEXPECTED;
}

BOOL COleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) {
    if (pnHelpContext != nullptr) {
        *pnHelpContext = 0;
    }
    return GiveText(SystemText(m_sc), lpszError, nMaxError);
}

COleDispatchException::COleDispatchException(LPCTSTR lpszDescription, UINT nHelpID, WORD wCode)
    : m_wCode(wCode), m_strDescription(lpszDescription), m_dwHelpContext(nHelpID) {
    m_sc = DISP_E_EXCEPTION;
}

void COleDispatchException::Process(EXCEPINFO* pInfo, const CException* pAnyException) {
    *pInfo = {};
    if (const auto* pTold = dynamic_cast<const COleDispatchException*>(pAnyException)) {
        pInfo->wCode = pTold->m_wCode;
        // One of the two is set, never both.
        pInfo->scode = pTold->m_wCode != 0        ? S_OK
                       : pTold->m_scError != S_OK ? pTold->m_scError
                                                  : E_UNEXPECTED;
        pInfo->dwHelpContext = pTold->m_dwHelpContext;
        pInfo->bstrHelpFile = TextFor(pTold->m_strHelpFile);
        pInfo->bstrSource = TextFor(pTold->m_strSource);
        pInfo->bstrDescription = TextFor(pTold->m_strDescription);
    } else {
        char szText[512] = "";
        const_cast<CException*>(pAnyException)->GetErrorMessage(szText, sizeof szText);
        pInfo->scode = COleException::Process(pAnyException);
        pInfo->bstrDescription = TextFor(szText);
    }
    if (pInfo->bstrSource == nullptr || *pInfo->bstrSource == 0) {
        ::SysFreeString(pInfo->bstrSource);
        pInfo->bstrSource = TextFor(AfxGetAppName());
    }
}

BOOL COleDispatchException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) {
    if (pnHelpContext != nullptr) {
        *pnHelpContext = m_dwHelpContext;
    }
    return GiveText(m_strDescription, lpszError, nMaxError);
}

void AfxThrowOleException(SCODE sc) {
    auto* pException = new (std::nothrow) COleException;
    if (pException == nullptr) {
        AfxThrowMemoryException();
    }
    pException->m_sc = sc;
    throw pException;
}

void AfxThrowOleDispatchException(WORD wCode, LPCTSTR lpszDescription, UINT nHelpID) {
    auto* pException = new (std::nothrow) COleDispatchException(lpszDescription, nHelpID, wCode);
    if (pException == nullptr) {
        AfxThrowMemoryException();
    }
    throw pException;
}

void AfxThrowOleDispatchException(WORD wCode, UINT nDescriptionID, UINT nHelpID) {
    CString strText;
    strText.LoadString(nDescriptionID);
    AfxThrowOleDispatchException(wCode, static_cast<LPCTSTR>(strText),
                                 nHelpID == kHelpOfText ? nDescriptionID : nHelpID);
}
