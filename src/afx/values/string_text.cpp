// CString's ways to other texts: formatted ones, wide ones, the system's, and parts of a list.
#include "afx/values/string.h"

#include "afx/values/text_convert.h"
#include "afx/values/wide_text.h"

#include <afx.h>

#include <oleauto.h>
#include <vector>

CString::CString(LPCWSTR lpch, int nLength) : CString() {
    const int nBytes =
        lpch != nullptr && nLength > 0
            ? ::WideCharToMultiByte(CP_ACP, 0, lpch, nLength, nullptr, 0, nullptr, nullptr)
            : 0;
    if (nBytes > 0) {
        Allocate(nBytes);
        ::WideCharToMultiByte(CP_ACP, 0, lpch, nLength, m_pchData, nBytes, nullptr, nullptr);
    }
}

CString::CString(WCHAR ch) : CString(&ch, 1) {}

CString::CString(const VARIANT& varSrc) : CString() {
    VARIANT var;
    ::VariantInit(&var);
    if (varSrc.vt == VT_BSTR) {
        CString strText(varSrc.bstrVal, static_cast<int>(::SysStringLen(varSrc.bstrVal)));
        std::swap(m_pchData, strText.m_pchData);
    } else if (SUCCEEDED(::VariantChangeType(&var, const_cast<VARIANT*>(&varSrc), 0, VT_BSTR))) {
        *this = var.bstrVal;
        ::VariantClear(&var);
    }
}

void CString::FormatList(LPCSTR lpszFormat, ...) {
    va_list args;
    va_start(args, lpszFormat);
    FormatV(lpszFormat, args);
    va_end(args);
}

void CString::AppendFormatV(LPCSTR lpszFormat, va_list argList) {
    CString strTail;
    strTail.FormatV(lpszFormat, argList);
    *this += strTail;
}

void CString::FormatMessageV(LPCSTR lpszFormat, va_list* pArgList) {
    LPSTR lpszText = nullptr;
    // The macro of the platform names this member, too.
    const DWORD nBytes =
        ::FormatMessage(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, lpszFormat, 0,
                        0, reinterpret_cast<LPSTR>(&lpszText), 0, pArgList);
    if (nBytes == 0 || lpszText == nullptr) {
        AfxThrowMemoryException();
    }
    CString strNew;
    try {
        strNew.Assign(lpszText, static_cast<int>(nBytes));
    } catch (...) {
        ::LocalFree(lpszText);
        throw;
    }
    ::LocalFree(lpszText);
    *this = strNew;
}

void CString::FormatMessageList(LPCSTR lpszFormat, ...) {
    va_list args;
    va_start(args, lpszFormat);
    FormatMessageV(lpszFormat, &args);
    va_end(args);
}

BOOL CString::GetEnvironmentVariable(LPCSTR lpszVar) {
    // The 8-bit call counts characters in place of bytes on some systems.
    const CA2W strVar(lpszVar);
    const DWORD nRoom = ::GetEnvironmentVariableW(strVar, nullptr, 0);
    CStringW strValue;
    if (nRoom > 0) {
        ::GetEnvironmentVariableW(strVar, strValue.GetBuffer(static_cast<int>(nRoom)), nRoom);
        strValue.ReleaseBuffer();
    }
    *this = strValue;
    return nRoom > 0;
}

BSTR CString::AllocSysString() const {
    const int nWide = ::MultiByteToWideChar(CP_ACP, 0, m_pchData, GetLength(), nullptr, 0);
    BSTR bstr = ::SysAllocStringLen(nullptr, static_cast<UINT>(nWide));
    if (bstr == nullptr) {
        AfxThrowMemoryException();
    }
    ::MultiByteToWideChar(CP_ACP, 0, m_pchData, GetLength(), bstr, nWide);
    return bstr;
}

BSTR CString::SetSysString(BSTR* pbstr) const {
    const BSTR bstrNew = AllocSysString();
    ::SysFreeString(*pbstr);
    *pbstr = bstrNew;
    return bstrNew;
}

namespace {

/// A text of one code page in another one.
CString Recoded(const CString& strText, UINT nFrom, UINT nTo) {
    if (strText.IsEmpty()) {
        return strText;
    }
    const int nBytes = strText.GetLength();
    std::vector<WCHAR> wide(static_cast<size_t>(nBytes));  // no character has more units than bytes
    const int nUnits = ::MultiByteToWideChar(nFrom, 0, strText, nBytes, wide.data(), nBytes);
    CString strNew;
    const int nNew =
        ::WideCharToMultiByte(nTo, 0, wide.data(), nUnits, nullptr, 0, nullptr, nullptr);
    ::WideCharToMultiByte(nTo, 0, wide.data(), nUnits, strNew.GetBuffer(nNew), nNew, nullptr,
                          nullptr);
    strNew.ReleaseBuffer(nNew);
    return strNew;
}

}  // namespace

void CString::AnsiToOem() {
    *this = Recoded(*this, CP_ACP, CP_OEMCP);
}

void CString::OemToAnsi() {
    *this = Recoded(*this, CP_OEMCP, CP_ACP);
}

BOOL AfxExtractSubString(CString& rString, LPCSTR lpszFullString, int iSubString, char chSep) {
    // A separator may be the second byte of a character.
    const auto endOfPart = [chSep](LPCSTR psz) {
        while (*psz != 0 && *psz != chSep) {
            constexpr int kLongestChar = 4;
            psz += AfxCharBytes(psz, kLongestChar);
        }
        return psz;
    };
    LPCSTR pszPart = iSubString >= 0 ? lpszFullString : nullptr;
    for (int nPart = 0; pszPart != nullptr && nPart < iSubString; ++nPart) {
        const LPCSTR pszEnd = endOfPart(pszPart);
        pszPart = *pszEnd != 0 ? pszEnd + 1 : nullptr;
    }
    if (pszPart == nullptr) {
        rString.Empty();
        return FALSE;
    }
    // Apart from rString, which the list may be of.
    const CString strPart(pszPart, static_cast<int>(endOfPart(pszPart) - pszPart));
    rString = strPart;
    return TRUE;
}
