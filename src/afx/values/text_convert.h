// Conversions between 8-bit text of the process's code page and wide text: each object holds a
// converted text for as long as it lives. CStringW, text that is wide.
#pragma once

#include "afx/values/string.h"

#include <algorithm>
#include <climits>
#include <cwchar>
#include <oleauto.h>
#include <string>

/// Wide text. Indices and lengths are units of 16 bits.
class CStringW {
public:
    CStringW() = default;
    CStringW(LPCWSTR lpsz) : m_text(lpsz != nullptr ? lpsz : L"") {}
    CStringW(LPCWSTR lpch, int nLength) : m_text(lpch, static_cast<size_t>(nLength)) {}
    CStringW(LPCSTR lpsz, UINT nCodePage = CP_ACP) { *this = Converted(lpsz, -1, nCodePage); }
    CStringW(const CString& str) { *this = Converted(str, str.GetLength(), CP_ACP); }
    CStringW(WCHAR ch, int nRepeat = 1) : m_text(static_cast<size_t>(nRepeat), ch) {}

    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    WCHAR GetAt(int nIndex) const { return m_text[Check(nIndex)]; }
    WCHAR operator[](int nIndex) const { return GetAt(nIndex); }
    void SetAt(int nIndex, WCHAR ch) { m_text[Check(nIndex)] = ch; }
    operator LPCWSTR() const { return m_text.c_str(); }
    LPCWSTR GetString() const { return m_text.c_str(); }

    CStringW& operator+=(const CStringW& str) { return m_text += str.m_text, *this; }
    friend CStringW operator+(CStringW str1, const CStringW& str2) { return str1 += str2; }
    int Compare(LPCWSTR lpsz) const { return std::wcscmp(*this, lpsz); }
    int CompareNoCase(LPCWSTR lpsz) const { return _wcsicmp(*this, lpsz); }
    friend bool operator==(const CStringW& s1, const CStringW& s2) {
        return s1.m_text == s2.m_text;
    }
    friend bool operator!=(const CStringW& s1, const CStringW& s2) {
        return s1.m_text != s2.m_text;
    }
    friend bool operator<(const CStringW& s1, const CStringW& s2) { return s1.Compare(s2) < 0; }

    CStringW Mid(int nFirst, int nCount = INT_MAX) const {
        const int nFrom = (std::min)((std::max)(nFirst, 0), GetLength());
        return CStringW(GetString() + nFrom,
                        (std::min)((std::max)(nCount, 0), GetLength() - nFrom));
    }
    CStringW Left(int nCount) const { return Mid(0, nCount); }
    CStringW Right(int nCount) const {
        return Mid(GetLength() - (std::min)((std::max)(nCount, 0), GetLength()));
    }
    int Find(LPCWSTR lpszSub, int nStart = 0) const {
        return static_cast<int>(m_text.find(lpszSub, static_cast<size_t>((std::max)(nStart, 0))));
    }
    int Find(WCHAR ch, int nStart = 0) const {
        return static_cast<int>(m_text.find(ch, static_cast<size_t>((std::max)(nStart, 0))));
    }
    int ReverseFind(WCHAR ch) const { return static_cast<int>(m_text.rfind(ch)); }
    template <class... Args>
    void Format(LPCWSTR lpszFormat, Args... args) {
        std::wstring text(static_cast<size_t>((std::max)(
                              _snwprintf(nullptr, 0, lpszFormat, AfxVarArg(args)...), 0)),
                          L'\0');
        _snwprintf(text.data(), text.size() + 1, lpszFormat, AfxVarArg(args)...);
        m_text = text;
    }
    /// Room for nLength units; ReleaseBuffer before any other operation.
    LPWSTR GetBuffer(int nLength) {
        m_text.resize(static_cast<size_t>((std::max)(nLength, GetLength())));
        return m_text.data();
    }
    void ReleaseBuffer(int nLength = -1) {
        m_text.resize(nLength >= 0 ? static_cast<size_t>(nLength) : std::wcslen(m_text.c_str()));
    }
    BSTR AllocSysString() const {
        return ::SysAllocStringLen(GetString(), static_cast<UINT>(GetLength()));
    }

private:
    size_t Check(int nIndex) const {
        if (nIndex < 0 || nIndex > GetLength()) {
            AfxThrowInvalidArgException();
        }
        return static_cast<size_t>(nIndex);
    }
    static CStringW Converted(LPCSTR lpsz, int nBytes, UINT nCodePage) {
        CStringW strWide;
        if (lpsz != nullptr && nBytes != 0) {
            const int nUnits = ::MultiByteToWideChar(nCodePage, 0, lpsz, nBytes, nullptr, 0);
            strWide.m_text.resize(static_cast<size_t>(nUnits));
            ::MultiByteToWideChar(nCodePage, 0, lpsz, nBytes, strWide.m_text.data(), nUnits);
            if (nBytes < 0 && nUnits > 0) {
                strWide.m_text.pop_back();  // the terminator
            }
        }
        return strWide;
    }

    std::wstring m_text;
};

using CStringA = CString;

/// 8-bit text as wide text. Null stays null.
class CA2W {
public:
    CA2W(LPCSTR lpsz, UINT nCodePage = CP_ACP)
        : m_text(lpsz, nCodePage), m_psz(lpsz != nullptr ? m_text.GetBuffer(0) : nullptr) {}
    CA2W(const CA2W&) = delete;
    CA2W& operator=(const CA2W&) = delete;
    operator LPWSTR() const { return m_psz; }

private:
    CStringW m_text;

public:
    LPWSTR m_psz;
};

/// Wide text as 8-bit text. Null stays null.
class CW2A {
public:
    CW2A(LPCWSTR lpsz, UINT nCodePage = CP_ACP) {
        const int nBytes = lpsz != nullptr ? ::WideCharToMultiByte(nCodePage, 0, lpsz, -1, nullptr,
                                                                   0, nullptr, nullptr)
                                           : 0;
        if (nBytes > 0) {
            m_text.resize(static_cast<size_t>(nBytes));
            ::WideCharToMultiByte(nCodePage, 0, lpsz, -1, m_text.data(), nBytes, nullptr, nullptr);
            m_psz = m_text.data();
        }
    }
    CW2A(const CW2A&) = delete;
    CW2A& operator=(const CW2A&) = delete;
    operator LPSTR() const { return m_psz; }

private:
    std::string m_text;

public:
    LPSTR m_psz = nullptr;
};

// Text of the same kind stays as it is.
using CA2CA = LPCSTR;
using CA2A = LPCSTR;
using CW2W = LPCWSTR;
using CA2CW = CA2W;
using CW2CA = CW2A;
using CT2A = LPCSTR;
using CT2CA = LPCSTR;
using CA2T = LPCSTR;
using CA2CT = LPCSTR;
using CT2W = CA2W;
using CT2CW = CA2W;
using CW2T = CW2A;
using CW2CT = CW2A;
template <int nBufferLength = 128>
using CA2WEX = CA2W;
template <int nBufferLength = 128>
using CW2AEX = CW2A;

/// The conversions of old: their texts live as long as the function that has USES_CONVERSION.
class AfxOldConversions {
public:
    ~AfxOldConversions() {
        while (m_pLast != nullptr) {
            const Text* pText = m_pLast;
            m_pLast = pText->pBefore;
            delete pText;
        }
    }
    AfxOldConversions() = default;
    AfxOldConversions(const AfxOldConversions&) = delete;
    AfxOldConversions& operator=(const AfxOldConversions&) = delete;

    LPWSTR Wide(LPCSTR lpsz) {
        return lpsz != nullptr
                   ? Keep(new Text{CStringW(lpsz), CString(), m_pLast})->wide.GetBuffer(0)
                   : nullptr;
    }
    LPSTR Narrow(LPCWSTR lpsz) {
        return lpsz != nullptr
                   ? Keep(new Text{CStringW(), CString(lpsz), m_pLast})->narrow.GetBuffer()
                   : nullptr;
    }

private:
    struct Text {
        CStringW wide;
        CString narrow;
        const Text* pBefore;
    };
    Text* Keep(Text* pText) {
        m_pLast = pText;
        return pText;
    }
    const Text* m_pLast = nullptr;
};
#define USES_CONVERSION AfxOldConversions _afxConversions [[maybe_unused]]
#define A2W(lpa) (_afxConversions.Wide(lpa))
#define A2CW(lpa) (static_cast<LPCWSTR>(_afxConversions.Wide(lpa)))
#define W2A(lpw) (_afxConversions.Narrow(lpw))
#define W2CA(lpw) (static_cast<LPCSTR>(_afxConversions.Narrow(lpw)))
#define T2W(lp) A2W(lp)
#define T2CW(lp) A2CW(lp)
#define W2T(lp) W2A(lp)
#define W2CT(lp) W2CA(lp)
#define T2OLE(lp) A2W(lp)
#define T2COLE(lp) A2CW(lp)
#define OLE2T(lp) W2A(lp)
#define OLE2CT(lp) W2CA(lp)
#define A2OLE(lp) A2W(lp)
#define OLE2A(lp) W2A(lp)
#define T2A(lp) (lp)
#define T2CA(lp) (lp)
#define A2T(lp) (lp)
#define A2CT(lp) (lp)
#define A2BSTR(lpa) (CString(lpa).AllocSysString())
#define T2BSTR(lp) (CString(lp).AllocSysString())
