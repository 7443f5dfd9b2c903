// CArchive's bytes, lines and strings.
#include "afx/objects/archive.h"

#include "afx/objects/archive_references.h"

#include <afx.h>

#include <algorithm>
#include <climits>
#include <new>

IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace {

constexpr UINT kLeastBuffer = 128;
constexpr UINT kPiece = 65536;  // bytes of a string that are read at a time

constexpr BYTE kLongString = 0xFF;      // a word follows
constexpr WORD kLongerString = 0xFFFF;  // a double word follows
constexpr WORD kWideString = 0xFFFE;    // of 16-bit units; its length follows

}  // namespace

CArchiveException::CArchiveException(int cause, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_strFileName(lpszArchiveName) {}

BOOL CArchiveException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) {
    static constexpr LPCSTR kMessages[] = {"No error occurred",
                                           "An unknown error occurred while accessing %s",
                                           "An attempt was made to write to the reading of %s",
                                           "The end of %s was passed",
                                           "An attempt was made to read from the writing of %s",
                                           "%s has a bad format",
                                           "%s contains an unexpected object",
                                           "%s is of another version of the program",
                                           "%s does not fit"};
    if (pnHelpContext != nullptr) {
        *pnHelpContext = 0;
    }
    if (lpszError == nullptr || nMaxError == 0) {
        return FALSE;
    }
    const int nMessages = static_cast<int>(std::size(kMessages));
    const int nMessage = m_cause >= 0 && m_cause < nMessages ? m_cause : genericException;
    CString strMessage;
    strMessage.Format(kMessages[nMessage],
                      m_strFileName.IsEmpty() ? "a file" : static_cast<LPCSTR>(m_strFileName));
    lstrcpyn(lpszError, strMessage, static_cast<int>(nMaxError));
    return TRUE;
}

void AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName) {
    auto* pException = new (std::nothrow) CArchiveException(cause, lpszArchiveName);
    if (pException == nullptr) {
        AfxThrowMemoryException();
    }
    throw pException;
}

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf)
    : m_pFile(pFile),
      m_nMode(nMode),
      m_nBufSize(static_cast<UINT>(std::max(nBufSize, 0))),
      m_pBuffer(static_cast<BYTE*>(lpBuf)),
      m_bOwnsBuffer(lpBuf == nullptr || m_nBufSize < kLeastBuffer),
      m_strFileName(pFile != nullptr ? pFile->GetFilePath() : CString()) {
    if (m_bOwnsBuffer) {
        m_nBufSize = std::max(m_nBufSize, kLeastBuffer);
        m_pBuffer = new (std::nothrow) BYTE[m_nBufSize];
        if (m_pBuffer == nullptr) {
            AfxThrowMemoryException();
        }
    }
}

CArchive::~CArchive() {
    if (m_pFile != nullptr && (m_nMode & bNoFlushOnDelete) == 0) {
        try {
            Close();
        } catch (CException* e) {
            e->Delete();
        } catch (...) {
        }
    }
    if (m_bOwnsBuffer) {
        delete[] m_pBuffer;
    }
    delete m_pRefs;
}

void CArchive::Throw(int cause) const {
    AfxThrowArchiveException(cause, m_strFileName);
}

void CArchive::MustLoad() const {
    if (!IsLoading()) {
        Throw(CArchiveException::writeOnly);
    }
    if (m_pFile == nullptr) {
        Throw(CArchiveException::genericException);
    }
}

void CArchive::MustStore() const {
    if (!IsStoring()) {
        Throw(CArchiveException::readOnly);
    }
    if (m_pFile == nullptr) {
        Throw(CArchiveException::genericException);
    }
}

void CArchive::Flush() {
    if (m_pFile == nullptr) {
        return;
    }
    const UINT nAt = m_nAt;
    const UINT nEnd = m_nEnd;
    m_nAt = m_nEnd = 0;
    if (IsLoading()) {
        if (nAt != nEnd) {
            m_pFile->Seek(-static_cast<LONGLONG>(nEnd - nAt), CFile::current);
        }
        return;
    }
    if (nAt > 0) {
        m_pFile->Write(m_pBuffer, nAt);
    }
    m_pFile->Flush();
}

void CArchive::Close() {
    Flush();
    m_pFile = nullptr;
}

void CArchive::Abort() {
    m_pFile = nullptr;
    m_nAt = m_nEnd = 0;
}

UINT CArchive::FillBuffer() {
    m_nAt = 0;
    m_nEnd = 0;
    m_nEnd = m_pFile->Read(m_pBuffer, m_nBufSize);
    return m_nEnd;
}

UINT CArchive::Read(void* lpBuf, UINT nMax) {
    MustLoad();
    auto* pTo = static_cast<BYTE*>(lpBuf);
    UINT nLeft = nMax;
    while (nLeft > 0) {
        UINT nCount = m_nEnd - m_nAt;
        if (nCount > 0) {
            nCount = std::min(nCount, nLeft);
            std::memcpy(pTo, m_pBuffer + m_nAt, nCount);
            m_nAt += nCount;
        } else if (nLeft >= m_nBufSize) {
            nCount = m_pFile->Read(pTo, nLeft);
        } else if (FillBuffer() > 0) {
            continue;
        }
        if (nCount == 0) {
            break;
        }
        pTo += nCount;
        nLeft -= nCount;
    }
    return nMax - nLeft;
}

void CArchive::EnsureRead(void* lpBuf, UINT nCount) {
    MustLoad();
    if (nCount <= m_nEnd - m_nAt) {  // most values
        std::memcpy(lpBuf, m_pBuffer + m_nAt, nCount);
        m_nAt += nCount;
    } else if (Read(lpBuf, nCount) != nCount) {
        Throw(CArchiveException::endOfFile);
    }
}

void CArchive::Write(const void* lpBuf, UINT nMax) {
    MustStore();
    if (nMax > m_nBufSize - m_nAt) {
        const UINT nBuffered = m_nAt;
        m_nAt = 0;
        if (nBuffered > 0) {
            m_pFile->Write(m_pBuffer, nBuffered);
        }
        if (nMax >= m_nBufSize) {
            m_pFile->Write(lpBuf, nMax);
            return;
        }
    }
    std::memcpy(m_pBuffer + m_nAt, lpBuf, nMax);
    m_nAt += nMax;
}

void CArchive::WriteString(LPCTSTR lpsz) {
    Write(lpsz, static_cast<UINT>(std::strlen(lpsz)));
}

bool CArchive::ReadChar(char& ch) {
    MustLoad();
    if (m_nAt == m_nEnd && FillBuffer() == 0) {
        return false;
    }
    ch = static_cast<char>(m_pBuffer[m_nAt++]);
    return true;
}

LPTSTR CArchive::ReadString(LPTSTR lpsz, UINT nMax) {
    UINT nRead = 0;
    bool bAny = false;
    char ch = 0;
    while (nRead + 1 < nMax && ReadChar(ch)) {
        bAny = true;
        if (ch == '\r') {
            // The line feed of a pair goes with it.
            if (ReadChar(ch) && ch != '\n') {
                --m_nAt;
            }
            break;
        }
        if (ch == '\n') {
            break;
        }
        lpsz[nRead++] = ch;
    }
    if (nMax > 0) {
        lpsz[nRead] = '\0';
    }
    return bAny ? lpsz : nullptr;
}

BOOL CArchive::ReadString(CString& rString) {
    constexpr UINT kPart = 128;
    char szPart[kPart];
    CString strLine;
    BOOL bAny = FALSE;
    // A part that is full may be a whole line, and what follows its end alone.
    while (ReadString(szPart, kPart) != nullptr) {
        bAny = TRUE;
        const size_t nPart = std::strlen(szPart);
        strLine.Append(szPart, static_cast<int>(nPart));
        if (nPart < kPart - 1) {
            break;
        }
    }
    rString = strLine;
    return bAny;
}

DWORD_PTR CArchive::ReadCount() {
    WORD wCount = 0;
    *this >> wCount;
    if (wCount != 0xFFFF) {
        return wCount;
    }
    DWORD dwCount = 0;
    *this >> dwCount;
    if (dwCount != 0xFFFFFFFF) {
        return dwCount;
    }
    ULONGLONG qwCount = 0;
    *this >> qwCount;
    if (qwCount > static_cast<ULONGLONG>(MAXINT_PTR)) {
        Throw(CArchiveException::badIndex);
    }
    return static_cast<DWORD_PTR>(qwCount);
}

void CArchive::WriteCount(DWORD_PTR dwCount) {
    if (dwCount < 0xFFFF) {
        *this << static_cast<WORD>(dwCount);
        return;
    }
    *this << static_cast<WORD>(0xFFFF);
    if (dwCount < 0xFFFFFFFF) {
        *this << static_cast<DWORD>(dwCount);
        return;
    }
    *this << static_cast<DWORD>(0xFFFFFFFF) << static_cast<ULONGLONG>(dwCount);
}

namespace {

void WriteStringLength(CArchive& ar, DWORD nLength) {
    if (nLength < kLongString) {
        ar << static_cast<BYTE>(nLength);
    } else if (nLength < kWideString) {
        ar << kLongString << static_cast<WORD>(nLength);
    } else {
        ar << kLongString << kLongerString << nLength;
    }
}

/// Gives the number of units, each of nUnit bytes.
ULONGLONG ReadStringLength(CArchive& ar, UINT& nUnit) {
    nUnit = sizeof(char);
    BYTE nShort = 0;
    ar >> nShort;
    if (nShort != kLongString) {
        return nShort;
    }
    WORD nLong = 0;
    ar >> nLong;
    if (nLong == kWideString) {
        nUnit = sizeof(WCHAR);
        ar >> nShort;
        if (nShort != kLongString) {
            return nShort;
        }
        ar >> nLong;
    }
    if (nLong != kLongerString) {
        return nLong;
    }
    DWORD nLonger = 0;
    ar >> nLonger;
    if (nLonger != 0xFFFFFFFF) {
        return nLonger;
    }
    ULONGLONG nLongest = 0;
    ar >> nLongest;
    return nLongest;
}

}  // namespace

CArchive& operator<<(CArchive& ar, const CString& string) {
    WriteStringLength(ar, static_cast<DWORD>(string.GetLength()));
    ar.Write(static_cast<LPCSTR>(string), static_cast<UINT>(string.GetLength()));
    return ar;
}

CArchive& operator>>(CArchive& ar, CString& string) {
    UINT nUnit = 0;
    const ULONGLONG nUnits = ReadStringLength(ar, nUnit);
    if (nUnits > INT_MAX / nUnit) {
        AfxThrowArchiveException(CArchiveException::badIndex, ar.GetFile()->GetFilePath());
    }
    // Piece by piece: the length may be a lie.
    CString strRead;
    for (UINT nLeft = static_cast<UINT>(nUnits) * nUnit; nLeft > 0;) {
        const UINT nPiece = std::min(nLeft, kPiece);
        const int nOld = strRead.GetLength();
        LPSTR pEnd = strRead.GetBuffer(nOld + static_cast<int>(nPiece)) + nOld;
        const UINT nRead = ar.Read(pEnd, nPiece);
        strRead.ReleaseBuffer(nOld + static_cast<int>(nRead));
        if (nRead != nPiece) {
            AfxThrowArchiveException(CArchiveException::endOfFile, ar.GetFile()->GetFilePath());
        }
        nLeft -= nPiece;
    }
    string = nUnit == sizeof(char)
                 ? strRead
                 : CString(reinterpret_cast<LPCWSTR>(static_cast<LPCSTR>(strRead)),
                           static_cast<int>(nUnits));
    return ar;
}

CArchive& operator<<(CArchive& ar, SIZE size) {
    return ar << size.cx << size.cy;
}
CArchive& operator<<(CArchive& ar, POINT point) {
    return ar << point.x << point.y;
}
CArchive& operator<<(CArchive& ar, const RECT& rect) {
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}
CArchive& operator>>(CArchive& ar, SIZE& size) {
    return ar >> size.cx >> size.cy;
}
CArchive& operator>>(CArchive& ar, POINT& point) {
    return ar >> point.x >> point.y;
}
CArchive& operator>>(CArchive& ar, RECT& rect) {
    return ar >> rect.left >> rect.top >> rect.right >> rect.bottom;
}

CArchive& operator<<(CArchive& ar, CTime time) {
    return ar << static_cast<LONGLONG>(time.GetTime());
}
CArchive& operator<<(CArchive& ar, CTimeSpan timeSpan) {
    return ar << timeSpan.GetTimeSpan();
}
CArchive& operator>>(CArchive& ar, CTime& rtime) {
    LONGLONG nTime = 0;
    ar >> nTime;
    rtime = CTime(nTime);
    return ar;
}
CArchive& operator>>(CArchive& ar, CTimeSpan& rtimeSpan) {
    LONGLONG nSpan = 0;
    ar >> nSpan;
    rtimeSpan = CTimeSpan(nSpan);
    return ar;
}
