// CString as a value: ownership, assignment, buffers.
#include "afx/values/string.h"

#include <afx.h>

#include <algorithm>
#include <climits>
#include <mbstring.h>
#include <new>

namespace {

struct EmptyString {
    CStringData data{-1, 0, 0};
    char chTerminator = 0;
};

// Never counted and never freed.
EmptyString& Nothing() {
    static EmptyString s_empty;
    return s_empty;
}

// Lengths are int, and header and terminator come on top.
constexpr int kMostBytes = INT_MAX - 64;

bool IsLocked(const CStringData& data) {
    return data.nRefs < 0 && &data != &Nothing().data;
}

int Length(LPCSTR lpsz) {
    return lpsz != nullptr ? static_cast<int>(std::strlen(lpsz)) : 0;
}

}  // namespace

CString::CString() : m_pchData(Nothing().data.data()) {}

CString::CString(const CString& stringSrc) : m_pchData(stringSrc.m_pchData) {
    if (Data()->nRefs >= 0) {
        ++Data()->nRefs;
    } else if (IsLocked(*Data())) {  // a locked buffer is not shared
        m_pchData = Nothing().data.data();
        Assign(stringSrc.m_pchData, stringSrc.GetLength());
    }
}

CString::CString(CString&& stringSrc) noexcept : m_pchData(stringSrc.m_pchData) {
    stringSrc.m_pchData = Nothing().data.data();
}

CString::CString(char ch, int nRepeat) : CString() {
    if (nRepeat > 0) {
        Allocate(nRepeat);
        std::memset(m_pchData, ch, static_cast<size_t>(nRepeat));
    }
}

CString::CString(LPCSTR lpsz) : CString() {
    if (lpsz != nullptr && IS_INTRESOURCE(lpsz)) {
        LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(lpsz)));
    } else {
        Assign(lpsz, Length(lpsz));
    }
}

CString::CString(LPCSTR lpch, int nLength) : CString() {
    Assign(lpch, nLength);
}

CString::CString(const unsigned char* psz) : CString(reinterpret_cast<LPCSTR>(psz)) {}

CString::CString(LPCWSTR lpsz) : CString() {
    *this = lpsz;
}

CString::~CString() {
    Release();
}

// Lets go of the text without giving it another.
void CString::Release() {
    CStringData* pData = Data();
    if (pData != &Nothing().data && (pData->nRefs < 0 || --pData->nRefs <= 0)) {
        ::operator delete(pData);
    }
    m_pchData = Nothing().data.data();
}

// A new text of that length, its bytes undefined. The old one must have been let go.
void CString::Allocate(int nLength) {
    if (nLength <= 0) {
        m_pchData = Nothing().data.data();
        return;
    }
    void* pMemory =
        ::operator new(sizeof(CStringData) + static_cast<size_t>(nLength) + 1, std::nothrow);
    if (pMemory == nullptr) {
        AfxThrowMemoryException();
    }
    auto* pData = new (pMemory) CStringData{1, nLength, nLength};
    m_pchData = pData->data();
    m_pchData[nLength] = 0;
}

// The source may be a part of this string.
void CString::Assign(LPCSTR lpch, int nLength) {
    if (lpch == nullptr || nLength <= 0) {
        Release();
        return;
    }
    if ((Data()->nRefs == 1 || IsLocked(*Data())) && Data()->nAllocLength >= nLength) {
        std::memmove(m_pchData, lpch, static_cast<size_t>(nLength));
        Data()->nDataLength = nLength;
        m_pchData[nLength] = 0;
        return;
    }
    CString strNew;
    strNew.Allocate(nLength);
    std::memcpy(strNew.m_pchData, lpch, static_cast<size_t>(nLength));
    std::swap(m_pchData, strNew.m_pchData);
}

// Makes the text this string's own, with room for nRoom bytes.
void CString::MakeUnique(int nRoom) {
    const int nLength = GetLength();
    if ((Data()->nRefs == 1 || IsLocked(*Data())) && Data()->nAllocLength >= nRoom) {
        return;
    }
    CString strNew;
    strNew.Allocate(std::max({nRoom, nLength, 1}));
    std::memcpy(strNew.m_pchData, m_pchData, static_cast<size_t>(nLength) + 1);
    strNew.Data()->nDataLength = nLength;
    std::swap(m_pchData, strNew.m_pchData);
}

void CString::Empty() {
    Release();
}

char CString::GetAt(int nIndex) const {
    if (nIndex < 0 || nIndex > GetLength()) {
        AfxThrowInvalidArgException();
    }
    return m_pchData[nIndex];
}

void CString::SetAt(int nIndex, char ch) {
    if (nIndex < 0 || nIndex >= GetLength()) {
        AfxThrowInvalidArgException();
    }
    MakeUnique(GetLength());
    m_pchData[nIndex] = ch;
}

CString& CString::operator=(const CString& stringSrc) {
    if (IsLocked(*Data())) {
        Assign(stringSrc.m_pchData, stringSrc.GetLength());
    } else if (m_pchData != stringSrc.m_pchData) {
        CString strNew(stringSrc);
        std::swap(m_pchData, strNew.m_pchData);
    }
    return *this;
}

CString& CString::operator=(CString&& stringSrc) noexcept {
    std::swap(m_pchData, stringSrc.m_pchData);
    return *this;
}

CString& CString::operator=(char ch) {
    Assign(&ch, 1);
    return *this;
}

CString& CString::operator=(LPCSTR lpsz) {
    Assign(lpsz, Length(lpsz));
    return *this;
}

CString& CString::operator=(const unsigned char* psz) {
    return *this = reinterpret_cast<LPCSTR>(psz);
}

CString& CString::operator=(LPCWSTR lpsz) {
    const int nBytes =
        lpsz != nullptr ? ::WideCharToMultiByte(CP_ACP, 0, lpsz, -1, nullptr, 0, nullptr, nullptr)
                        : 0;
    CString strNew;
    if (nBytes > 1) {
        strNew.Allocate(nBytes - 1);
        ::WideCharToMultiByte(CP_ACP, 0, lpsz, -1, strNew.m_pchData, nBytes, nullptr, nullptr);
    }
    std::swap(m_pchData, strNew.m_pchData);
    return *this;
}

void CString::Append(LPCSTR lpch, int nLength) {
    if (lpch == nullptr || nLength <= 0) {
        return;
    }
    const int nOld = GetLength();
    const ptrdiff_t nInside = lpch - m_pchData;  // the source may be a part of this string
    const bool bInside = nInside >= 0 && nInside <= nOld;
    if (nLength > kMostBytes - nOld) {
        AfxThrowMemoryException();
    }
    const int nNew = nOld + nLength;
    if (Data()->nRefs != 1 || Data()->nAllocLength < nNew) {
        MakeUnique(std::max(nNew, nOld + std::min(nOld / 2, kMostBytes - nOld)));
    }
    if (bInside) {
        lpch = m_pchData + nInside;
    }
    std::memmove(m_pchData + nOld, lpch, static_cast<size_t>(nLength));
    m_pchData[nNew] = 0;
    Data()->nDataLength = nNew;
}

void CString::Append(LPCSTR lpsz) {
    Append(lpsz, Length(lpsz));
}

void CString::AppendChar(char ch) {
    Append(&ch, 1);
}

CString& CString::operator+=(const CString& string) {
    Append(string.m_pchData, string.GetLength());
    return *this;
}

CString& CString::operator+=(char ch) {
    AppendChar(ch);
    return *this;
}

CString& CString::operator+=(LPCSTR lpsz) {
    Append(lpsz);
    return *this;
}

CString operator+(const CString& string1, const CString& string2) {
    CString strSum;
    strSum.GetBuffer(string1.GetLength() + string2.GetLength());
    strSum.ReleaseBuffer(0);
    strSum += string1;
    strSum += string2;
    return strSum;
}

CString operator+(const CString& string, char ch) {
    return string + CString(ch);
}
CString operator+(char ch, const CString& string) {
    return CString(ch) + string;
}
CString operator+(const CString& string, LPCSTR lpsz) {
    return string + CString(lpsz);
}
CString operator+(LPCSTR lpsz, const CString& string) {
    return CString(lpsz) + string;
}

LPSTR CString::GetBuffer(int nMinBufLength) {
    MakeUnique(nMinBufLength);
    return m_pchData;
}

LPSTR CString::GetBufferSetLength(int nNewLength) {
    GetBuffer(nNewLength);
    ReleaseBuffer(nNewLength);
    return m_pchData;
}

void CString::ReleaseBuffer(int nNewLength) {
    if (Data() == &Nothing().data) {
        return;
    }
    MakeUnique(GetLength());
    if (nNewLength < 0) {
        nNewLength =
            static_cast<int>(strnlen(m_pchData, static_cast<size_t>(Data()->nAllocLength)));
    }
    nNewLength = std::min(nNewLength, Data()->nAllocLength);
    Data()->nDataLength = nNewLength;
    m_pchData[nNewLength] = 0;
}

void CString::FreeExtra() {
    if (Data()->nRefs == 1 && Data()->nAllocLength > GetLength()) {
        CString strNew;
        strNew.Assign(m_pchData, GetLength());
        std::swap(m_pchData, strNew.m_pchData);
    }
}

LPSTR CString::LockBuffer() {
    MakeUnique(GetLength());
    Data()->nRefs = -1;
    return m_pchData;
}

void CString::UnlockBuffer() {
    if (IsLocked(*Data())) {
        Data()->nRefs = 1;
    }
}
