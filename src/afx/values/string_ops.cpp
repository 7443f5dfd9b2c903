// CString's operations on text: comparing, searching, cutting, changing, formatting.
#include "afx/values/string.h"

#include "afx/values/wide_text.h"

#include <afx.h>
#include <afxdll_.h>

#include <algorithm>
#include <cstring>
#include <mbctype.h>
#include <mbstring.h>

namespace {

const unsigned char* Mb(LPCSTR psz) {
    return reinterpret_cast<const unsigned char*>(psz);
}

// Behind the character at psz, which is not the terminator. No character reaches beyond one.
LPCSTR NextChar(LPCSTR psz) {
    constexpr int kLongestChar = 4;
    return psz + AfxCharBytes(psz, kLongestChar);
}

// True if the character at psz is in the set.
bool InSet(LPCSTR psz, LPCSTR pszSet) {
    const auto nBytes = static_cast<size_t>(NextChar(psz) - psz);
    for (; *pszSet != 0; pszSet = NextChar(pszSet)) {
        if (static_cast<size_t>(NextChar(pszSet) - pszSet) == nBytes &&
            std::memcmp(psz, pszSet, nBytes) == 0) {
            return true;
        }
    }
    return false;
}

bool IsSpace(LPCSTR psz) {
    return NextChar(psz) == psz + 1 && isspace(static_cast<BYTE>(*psz));
}

int Order(int n) {
    return n == CSTR_LESS_THAN ? -1 : n == CSTR_GREATER_THAN ? 1 : 0;
}

// Where the characters that satisfy the test end, from the start on.
template <class Test>
int SpanOf(LPCSTR psz, Test test) {
    LPCSTR p = psz;
    while (*p != 0 && test(p)) {
        p = NextChar(p);
    }
    return static_cast<int>(p - psz);
}

// Where the characters that satisfy the test begin, up to the end.
template <class Test>
int TailOf(LPCSTR psz, Test test) {
    LPCSTR pTail = nullptr;
    LPCSTR p = psz;
    for (; *p != 0; p = NextChar(p)) {
        if (!test(p)) {
            pTail = nullptr;
        } else if (pTail == nullptr) {
            pTail = p;
        }
    }
    return static_cast<int>((pTail != nullptr ? pTail : p) - psz);
}

}  // namespace

int CString::Compare(LPCSTR lpsz) const {
    return _mbscmp(Mb(m_pchData), Mb(lpsz ? lpsz : ""));
}

int CString::CompareNoCase(LPCSTR lpsz) const {
    return _mbsicmp(Mb(m_pchData), Mb(lpsz ? lpsz : ""));
}

int CString::Collate(LPCSTR lpsz) const {
    return Order(::CompareString(LOCALE_USER_DEFAULT, 0, m_pchData, -1, lpsz ? lpsz : "", -1));
}

int CString::CollateNoCase(LPCSTR lpsz) const {
    return Order(
        ::CompareString(LOCALE_USER_DEFAULT, NORM_IGNORECASE, m_pchData, -1, lpsz ? lpsz : "", -1));
}

CString CString::Mid(int nFirst) const {
    return Mid(nFirst, GetLength() - nFirst);
}

CString CString::Mid(int nFirst, int nCount) const {
    nFirst = std::clamp(nFirst, 0, GetLength());
    nCount = std::clamp(nCount, 0, GetLength() - nFirst);
    if (nCount == GetLength()) {
        return *this;
    }
    return CString(m_pchData + nFirst, nCount);
}

CString CString::Left(int nCount) const {
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const {
    nCount = std::clamp(nCount, 0, GetLength());
    return Mid(GetLength() - nCount, nCount);
}

CString CString::SpanIncluding(LPCSTR lpszCharSet) const {
    return Left(SpanOf(m_pchData, [=](LPCSTR p) { return InSet(p, lpszCharSet); }));
}

CString CString::SpanExcluding(LPCSTR lpszCharSet) const {
    return Left(SpanOf(m_pchData, [=](LPCSTR p) { return !InSet(p, lpszCharSet); }));
}

CString CString::Tokenize(LPCSTR pszTokens, int& iStart) const {
    if (iStart >= 0 && iStart < GetLength()) {
        const auto isToken = [=](LPCSTR p) { return InSet(p, pszTokens); };
        const int nFirst = iStart + SpanOf(m_pchData + iStart, isToken);
        if (nFirst < GetLength()) {
            const int nCount = SpanOf(m_pchData + nFirst, [&](LPCSTR p) { return !isToken(p); });
            LPCSTR pEnd = m_pchData + nFirst + nCount;
            iStart = nFirst + nCount + (*pEnd != 0 ? static_cast<int>(NextChar(pEnd) - pEnd) : 1);
            return Mid(nFirst, nCount);
        }
    }
    iStart = -1;
    return CString();
}

CString& CString::MakeUpper() {
    MakeUnique(GetLength());
    ::CharUpperBuff(m_pchData, static_cast<DWORD>(GetLength()));
    return *this;
}

CString& CString::MakeLower() {
    MakeUnique(GetLength());
    ::CharLowerBuff(m_pchData, static_cast<DWORD>(GetLength()));
    return *this;
}

CString& CString::MakeReverse() {
    CString strReversed(' ', GetLength());
    int nEnd = GetLength();
    for (LPCSTR p = m_pchData; nEnd > 0;) {
        LPCSTR pNext = NextChar(p);
        nEnd -= static_cast<int>(pNext - p);
        std::copy(p, pNext, strReversed.m_pchData + nEnd);
        p = pNext;
    }
    return *this = strReversed;
}

CString& CString::Truncate(int nNewLength) {
    if (nNewLength < GetLength()) {
        *this = Left(nNewLength);
    }
    return *this;
}

CString& CString::TrimRight() {
    return Truncate(TailOf(m_pchData, IsSpace));
}
CString& CString::TrimRight(char chTarget) {
    const char set[] = {chTarget, 0};
    return TrimRight(set);
}
CString& CString::TrimRight(LPCSTR lpszTargets) {
    return Truncate(TailOf(m_pchData, [=](LPCSTR p) { return InSet(p, lpszTargets); }));
}

CString& CString::TrimLeft() {
    return *this = Mid(SpanOf(m_pchData, IsSpace));
}
CString& CString::TrimLeft(char chTarget) {
    const char set[] = {chTarget, 0};
    return TrimLeft(set);
}
CString& CString::TrimLeft(LPCSTR lpszTargets) {
    return *this = Mid(SpanOf(m_pchData, [=](LPCSTR p) { return InSet(p, lpszTargets); }));
}

CString& CString::Trim() {
    return TrimRight().TrimLeft();
}

int CString::Replace(char chOld, char chNew) {
    int nReplaced = 0;
    for (int i = chOld != chNew ? Find(chOld) : -1; i >= 0; i = Find(chOld, i + 1)) {
        SetAt(i, chNew);
        ++nReplaced;
    }
    return nReplaced;
}

int CString::Replace(LPCSTR lpszOld, LPCSTR lpszNew) {
    const int nOld = static_cast<int>(std::strlen(lpszOld));
    if (nOld == 0) {
        return 0;
    }
    const CString strNew(lpszNew != nullptr ? lpszNew : "");
    CString strResult;
    int nReplaced = 0;
    int nFrom = 0;
    for (int i = Find(lpszOld); i >= 0; i = Find(lpszOld, nFrom)) {
        strResult.Append(m_pchData + nFrom, i - nFrom);
        strResult += strNew;
        nFrom = i + nOld;
        ++nReplaced;
    }
    if (nReplaced > 0) {
        strResult.Append(m_pchData + nFrom, GetLength() - nFrom);
        *this = strResult;
    }
    return nReplaced;
}

int CString::Remove(char chRemove) {
    const char set[] = {chRemove, 0};
    return Replace(set, "");
}

int CString::Insert(int nIndex, LPCSTR lpsz) {
    nIndex = std::clamp(nIndex, 0, GetLength());
    if (lpsz != nullptr && *lpsz != 0) {
        CString strNew(Left(nIndex));
        strNew += lpsz;
        strNew.Append(m_pchData + nIndex, GetLength() - nIndex);
        *this = strNew;
    }
    return GetLength();
}

int CString::Insert(int nIndex, char ch) {
    const char sz[] = {ch, 0};
    return Insert(nIndex, sz);
}

int CString::Delete(int nIndex, int nCount) {
    nIndex = std::max(nIndex, 0);
    if (nIndex < GetLength() && nCount > 0) {
        nCount = std::min(nCount, GetLength() - nIndex);
        CString strNew(Left(nIndex));
        strNew.Append(m_pchData + nIndex + nCount, GetLength() - nIndex - nCount);
        *this = strNew;
    }
    return GetLength();
}

int CString::Find(char ch, int nStart) const {
    const char sub[] = {ch, 0};
    return ch != 0 ? Find(sub, nStart) : -1;
}

int CString::Find(LPCSTR lpszSub, int nStart) const {
    if (nStart < 0 || nStart > GetLength() || lpszSub == nullptr) {
        return -1;
    }
    // Not every run-time library's _mbsstr leaves the inside of characters alone.
    const size_t nSub = std::strlen(lpszSub);
    LPCSTR p = m_pchData + nStart;
    while (std::strncmp(p, lpszSub, nSub) != 0) {
        if (*p == 0) {
            return -1;
        }
        p = NextChar(p);
    }
    return static_cast<int>(p - m_pchData);
}

int CString::ReverseFind(char ch) const {
    const auto* pFound = _mbsrchr(Mb(m_pchData), static_cast<BYTE>(ch));
    return pFound != nullptr ? static_cast<int>(pFound - Mb(m_pchData)) : -1;
}

int CString::FindOneOf(LPCSTR lpszCharSet) const {
    const int nSpan = SpanOf(m_pchData, [=](LPCSTR p) { return !InSet(p, lpszCharSet); });
    return m_pchData[nSpan] != 0 ? nSpan : -1;
}

void CString::FormatV(LPCSTR lpszFormat, va_list argList) {
    va_list argCopy;
    va_copy(argCopy, argList);
    const int nLength = std::vsnprintf(nullptr, 0, lpszFormat, argCopy);
    va_end(argCopy);
    // Apart from this string, which may be one of the arguments.
    CString strNew;
    if (nLength > 0) {
        std::vsnprintf(strNew.GetBuffer(nLength), static_cast<size_t>(nLength) + 1, lpszFormat,
                       argList);
        strNew.ReleaseBuffer(nLength);
    }
    *this = strNew;
}

BOOL CString::LoadString(UINT nID) {
    return LoadString(AfxFindStringResourceHandle(nID), nID);
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID) {
    // Without room, the platform gives the place and length of the text in its wide characters.
    LPCWSTR pwsz = nullptr;
    const int nWide = ::LoadStringW(hInstance, nID, reinterpret_cast<LPWSTR>(&pwsz), 0);
    const int nBytes =
        nWide > 0 ? ::WideCharToMultiByte(CP_ACP, 0, pwsz, nWide, nullptr, 0, nullptr, nullptr) : 0;
    CString strNew;
    if (nBytes > 0) {
        strNew.Allocate(nBytes);
        ::WideCharToMultiByte(CP_ACP, 0, pwsz, nWide, strNew.m_pchData, nBytes, nullptr, nullptr);
    }
    std::swap(m_pchData, strNew.m_pchData);
    return nBytes > 0;
}
