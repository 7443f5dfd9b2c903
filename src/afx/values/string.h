// CString: 8-bit multi-byte text, shared between copies until one of them changes. Indices and
// lengths are bytes; searching and cutting by character never split one.
#pragma once

#include "afx/values/api.h"

#include <atomic>
#include <oaidl.h>

/// Stands before the text of a CString.
struct CStringData {
    std::atomic<long> nRefs;  ///< -1: the shared empty string, or locked by GetBuffer semantics
    int nDataLength;          ///< bytes without the terminator
    int nAllocLength;
    char* data() { return reinterpret_cast<char*>(this + 1); }
};

// Published as an alias, which nobody can declare without this header.
#ifdef QVAFX_STRICT
#define CString CStringA
#endif

class QVAFX_API CString {
public:
    CString();
    CString(const CString& stringSrc);
    CString(CString&& stringSrc) noexcept;
    CString(char ch, int nRepeat = 1);
    CString(
        LPCSTR lpsz);  ///< null gives the empty string; a resource id by MAKEINTRESOURCE loads it
    CString(LPCSTR lpch, int nLength);
    CString(const unsigned char* psz);
    CString(LPCWSTR lpsz);
    CString(LPCWSTR lpch, int nLength);
    CString(WCHAR ch);
    explicit CString(const VARIANT& varSrc);  ///< the value as text; empty for what has none
    ~CString();

    using XCHAR = char;
    using PXSTR = LPSTR;
    using PCXSTR = LPCSTR;
    using YCHAR = WCHAR;
    using PYSTR = LPWSTR;
    using PCYSTR = LPCWSTR;

    int GetLength() const { return Data()->nDataLength; }
    bool IsEmpty() const { return GetLength() == 0; }
    void Empty();
    /// Throws CInvalidArgException outside of 0 to GetLength().
    char GetAt(int nIndex) const;
    char operator[](int nIndex) const { return GetAt(nIndex); }
    void SetAt(int nIndex, char ch);
    operator LPCSTR() const { return m_pchData; }
    LPCSTR GetString() const { return m_pchData; }

    CString& operator=(const CString& stringSrc);
    CString& operator=(CString&& stringSrc) noexcept;
    CString& operator=(char ch);
    CString& operator=(LPCSTR lpsz);
    CString& operator=(const unsigned char* psz);
    CString& operator=(LPCWSTR lpsz);
    CString& operator=(const VARIANT& var) { return *this = CString(var); }
    CString& operator+=(const CString& string);
    CString& operator+=(char ch);
    CString& operator+=(LPCSTR lpsz);
    CString& operator+=(LPCWSTR lpsz) { return *this += CString(lpsz); }
    void Append(const CString& string) { *this += string; }
    void Append(LPCSTR lpsz);
    void Append(LPCSTR lpch, int nLength);
    void AppendChar(char ch);

    // By characters, case and the locale: -, 0, + like the run-time functions of these names.
    int Compare(LPCSTR lpsz) const;        ///< _mbscmp
    int CompareNoCase(LPCSTR lpsz) const;  ///< _mbsicmp
    int Collate(LPCSTR lpsz) const;
    int CollateNoCase(LPCSTR lpsz) const;

    CString Mid(int nFirst) const;
    CString Mid(int nFirst, int nCount) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;
    CString SpanIncluding(LPCSTR lpszCharSet) const;
    CString SpanExcluding(LPCSTR lpszCharSet) const;
    /// The next token from iStart on; iStart becomes -1 behind the last one.
    CString Tokenize(LPCSTR pszTokens, int& iStart) const;

    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    CString& TrimRight();
    CString& TrimRight(char chTarget);
    CString& TrimRight(LPCSTR lpszTargets);
    CString& TrimLeft();
    CString& TrimLeft(char chTarget);
    CString& TrimLeft(LPCSTR lpszTargets);
    CString& Trim();
    CString& Trim(char chTarget) { return TrimRight(chTarget).TrimLeft(chTarget); }
    CString& Trim(LPCSTR lpszTargets) { return TrimRight(lpszTargets).TrimLeft(lpszTargets); }

    int Replace(char chOld, char chNew);
    int Replace(LPCSTR lpszOld, LPCSTR lpszNew);
    int Remove(char chRemove);
    int Insert(int nIndex, char ch);
    int Insert(int nIndex, LPCSTR lpsz);
    int Delete(int nIndex, int nCount = 1);
    CString& Truncate(int nNewLength);

    int Find(char ch, int nStart = 0) const;
    int Find(LPCSTR lpszSub, int nStart = 0) const;
    int ReverseFind(char ch) const;
    int FindOneOf(LPCSTR lpszCharSet) const;

    // By the codes of printf; strings may be arguments of %s, and this string itself as well. Wide
    // arguments (%S) go by the locale of the run-time library, ASCII where a program sets none.
    template <class... Args>
    void Format(LPCSTR lpszFormat, Args... args) {
        FormatList(lpszFormat, AfxVarArg(args)...);
    }
    template <class... Args>
    void Format(UINT nFormatID, Args... args) {
        FormatList(CString(MAKEINTRESOURCEA(nFormatID)), AfxVarArg(args)...);
    }
    void FormatV(LPCSTR lpszFormat, va_list argList);
    template <class... Args>
    void AppendFormat(LPCSTR lpszFormat, Args... args) {
        CString strTail;
        strTail.FormatList(lpszFormat, AfxVarArg(args)...);
        *this += strTail;
    }
    template <class... Args>
    void AppendFormat(UINT nFormatID, Args... args) {
        AppendFormat(static_cast<LPCSTR>(CString(MAKEINTRESOURCEA(nFormatID))), args...);
    }
    void AppendFormatV(LPCSTR lpszFormat, va_list argList);
    /// By the codes of the system's messages: %1, %2!d! and so on.
    template <class... Args>
    void FormatMessage(LPCSTR lpszFormat, Args... args) {
        FormatMessageList(lpszFormat, AfxVarArg(args)...);
    }
    template <class... Args>
    void FormatMessage(UINT nFormatID, Args... args) {
        FormatMessageList(CString(MAKEINTRESOURCEA(nFormatID)), AfxVarArg(args)...);
    }
    void FormatMessageV(LPCSTR lpszFormat, va_list* pArgList);

    /// Finds the string along the resource chain. FALSE, and an empty string, if there is none.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    /// FALSE, and an empty string, if there is no such variable.
    BOOL GetEnvironmentVariable(LPCSTR lpszVar);
    /// The caller frees it.
    BSTR AllocSysString() const;
    /// Puts the text into a string that is there, or null; gives the new one.
    BSTR SetSysString(BSTR* pbstr) const;
    void AnsiToOem();
    void OemToAnsi();

    void Preallocate(int nLength) { GetBuffer(nLength), ReleaseBuffer(); }
    int GetAllocLength() const { return Data()->nAllocLength; }
    void SetString(LPCSTR lpsz) { *this = lpsz; }
    void SetString(LPCSTR lpsz, int nLength) { Assign(lpsz, nLength); }
    static int StringLength(LPCSTR lpsz) {
        return lpsz != nullptr ? static_cast<int>(std::strlen(lpsz)) : 0;
    }
    static void CopyChars(LPSTR pDest, LPCSTR pSource, int nChars) {
        std::memcpy(pDest, pSource, static_cast<size_t>(nChars));
    }

    /// Room for nMinBufLength bytes and a terminator; call ReleaseBuffer before any other
    /// operation.
    LPSTR GetBuffer(int nMinBufLength);
    LPSTR GetBuffer() { return GetBuffer(GetLength()); }
    LPSTR GetBufferSetLength(int nNewLength);
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength) { ReleaseBuffer(nNewLength); }
    void FreeExtra();
    LPSTR LockBuffer();
    void UnlockBuffer();

private:
    CStringData* Data() const { return reinterpret_cast<CStringData*>(m_pchData) - 1; }
    void Release();
    void Assign(LPCSTR lpch, int nLength);
    void FormatList(LPCSTR lpszFormat, ...);
    void FormatMessageList(LPCSTR lpszFormat, ...);
    void Allocate(int nLength);
    void MakeUnique(int nRoom);

    char* m_pchData;
};

#ifdef QVAFX_STRICT
#undef CString
using CString = CStringA;
#endif

QVAFX_API CString operator+(const CString& string1, const CString& string2);
QVAFX_API CString operator+(const CString& string, char ch);
QVAFX_API CString operator+(char ch, const CString& string);
QVAFX_API CString operator+(const CString& string, LPCSTR lpsz);
QVAFX_API CString operator+(LPCSTR lpsz, const CString& string);

/// The part of that number, from 0 on, between separators. FALSE, and empty, if there is none.
QVAFX_API BOOL AfxExtractSubString(CString& rString, LPCSTR lpszFullString, int iSubString,
                                   char chSep = '\n');

inline bool operator==(const CString& s, char ch) {
    return s.GetLength() == 1 && s[0] == ch;
}
inline bool operator==(char ch, const CString& s) {
    return s == ch;
}
inline bool operator!=(const CString& s, char ch) {
    return !(s == ch);
}
inline bool operator!=(char ch, const CString& s) {
    return !(s == ch);
}
inline bool operator==(const CString& s1, const CString& s2) {
    return s1.Compare(s2) == 0;
}
inline bool operator==(const CString& s1, LPCSTR s2) {
    return s1.Compare(s2) == 0;
}
inline bool operator==(LPCSTR s1, const CString& s2) {
    return s2.Compare(s1) == 0;
}
inline bool operator!=(const CString& s1, const CString& s2) {
    return s1.Compare(s2) != 0;
}
inline bool operator!=(const CString& s1, LPCSTR s2) {
    return s1.Compare(s2) != 0;
}
inline bool operator!=(LPCSTR s1, const CString& s2) {
    return s2.Compare(s1) != 0;
}
inline bool operator<(const CString& s1, const CString& s2) {
    return s1.Compare(s2) < 0;
}
inline bool operator<(const CString& s1, LPCSTR s2) {
    return s1.Compare(s2) < 0;
}
inline bool operator<(LPCSTR s1, const CString& s2) {
    return s2.Compare(s1) > 0;
}
inline bool operator>(const CString& s1, const CString& s2) {
    return s1.Compare(s2) > 0;
}
inline bool operator>(const CString& s1, LPCSTR s2) {
    return s1.Compare(s2) > 0;
}
inline bool operator>(LPCSTR s1, const CString& s2) {
    return s2.Compare(s1) < 0;
}
inline bool operator<=(const CString& s1, const CString& s2) {
    return s1.Compare(s2) <= 0;
}
inline bool operator<=(const CString& s1, LPCSTR s2) {
    return s1.Compare(s2) <= 0;
}
inline bool operator<=(LPCSTR s1, const CString& s2) {
    return s2.Compare(s1) >= 0;
}
inline bool operator>=(const CString& s1, const CString& s2) {
    return s1.Compare(s2) >= 0;
}
inline bool operator>=(const CString& s1, LPCSTR s2) {
    return s1.Compare(s2) >= 0;
}
inline bool operator>=(LPCSTR s1, const CString& s2) {
    return s2.Compare(s1) <= 0;
}
