#include "afx/objects/file.h"

#include "afx/objects/file_path.h"

#include <afx.h>
#include <afxtempl.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <string>

IMPLEMENT_DYNAMIC(CFile, CObject)
IMPLEMENT_DYNAMIC(CStdioFile, CFile)
IMPLEMENT_DYNAMIC(CMemFile, CFile)

namespace {

/// For the wide calls: what they give fits its buffer by characters, of which a code page's bytes
/// may be several.
std::wstring Wide(LPCTSTR lpszPath) {
    std::wstring strWide;
    const int nBytes = lpszPath != nullptr ? lstrlen(lpszPath) : 0;
    if (nBytes > 0) {
        strWide.resize(static_cast<size_t>(nBytes));  // no character has more units than bytes
        strWide.resize(static_cast<size_t>(
            ::MultiByteToWideChar(CP_ACP, 0, lpszPath, nBytes, strWide.data(), nBytes)));
    }
    return strWide;
}

}  // namespace

CString AfxWholePath(LPCTSTR lpszPath, CString* pstrName) {
    return AfxNeedMemory([&]() -> CString {
        const std::wstring strPath = Wide(lpszPath);
        const DWORD nRoom = ::GetFullPathNameW(strPath.c_str(), 0, nullptr, nullptr);
        std::wstring strWhole(nRoom, L'\0');
        LPWSTR pName = nullptr;
        const DWORD nLength = ::GetFullPathNameW(strPath.c_str(), nRoom, strWhole.data(), &pName);
        const bool bWhole = nLength > 0 && nLength < nRoom;
        if (pstrName != nullptr) {
            *pstrName = bWhole ? pName : nullptr;
        }
        return bWhole ? CString(strWhole.c_str()) : CString(lpszPath);
    });
}

bool AfxSamePath(LPCTSTR lpszOne, LPCTSTR lpszOther) {
    return AfxNeedMemory([&] {
        return ::CompareStringOrdinal(Wide(lpszOne).c_str(), -1, Wide(lpszOther).c_str(), -1,
                                      TRUE) == CSTR_EQUAL;
    });
}

// --- CFile

CFile::CFile() = default;

CFile::CFile(HANDLE hFile) : m_hFile(hFile) {}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) {
    CFileException error;
    if (!CFile::Open(lpszFileName, nOpenFlags, &error)) {
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
    }
}

CFile::~CFile() {
    if (m_hFile != INVALID_HANDLE_VALUE && m_bCloseOnDelete) {
        ::CloseHandle(m_hFile);
    }
}

void CFile::ThrowLastError() const {
    const auto lOsError = static_cast<LONG>(::GetLastError());
    AfxThrowFileException(CFileException::OsErrorToException(lOsError), lOsError, m_strFileName);
}

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace {

DWORD SystemFlags(UINT nOpenFlags) {
    return ((nOpenFlags & CFile::osNoBuffer) != 0 ? FILE_FLAG_NO_BUFFERING : 0) |
           ((nOpenFlags & CFile::osWriteThrough) != 0 ? FILE_FLAG_WRITE_THROUGH : 0) |
           ((nOpenFlags & CFile::osRandomAccess) != 0 ? FILE_FLAG_RANDOM_ACCESS : 0) |
           ((nOpenFlags & CFile::osSequentialScan) != 0 ? FILE_FLAG_SEQUENTIAL_SCAN : 0);
}

}  // namespace

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    m_strFileName = AfxWholePath(lpszFileName);

    static constexpr DWORD kAccess[] = {GENERIC_READ, GENERIC_WRITE, GENERIC_READ | GENERIC_WRITE,
                                        GENERIC_READ};
    static constexpr DWORD kShare[] = {0, 0, FILE_SHARE_READ, FILE_SHARE_WRITE,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE};
    const DWORD dwCreate = (nOpenFlags & modeCreate) == 0       ? OPEN_EXISTING
                           : (nOpenFlags & modeNoTruncate) != 0 ? OPEN_ALWAYS
                                                                : CREATE_ALWAYS;
    SECURITY_ATTRIBUTES security{sizeof(security), nullptr, (nOpenFlags & modeNoInherit) == 0};
    m_hFile = ::CreateFile(lpszFileName, kAccess[nOpenFlags & 3],
                           kShare[std::min((nOpenFlags & 0x70u) >> 4, 4u)], &security, dwCreate,
                           FILE_ATTRIBUTE_NORMAL | SystemFlags(nOpenFlags), nullptr);
    if (m_hFile == INVALID_HANDLE_VALUE) {
        if (pError != nullptr) {
            pError->m_lOsError = static_cast<LONG>(::GetLastError());
            pError->m_cause = CFileException::OsErrorToException(pError->m_lOsError);
            pError->m_strFileName = m_strFileName;
        }
        return FALSE;
    }
    m_bCloseOnDelete = TRUE;
    return TRUE;
}

void CFile::Close() {
    const HANDLE hFile = m_hFile;
    m_hFile = INVALID_HANDLE_VALUE;
    m_bCloseOnDelete = FALSE;
    if (hFile != INVALID_HANDLE_VALUE && !::CloseHandle(hFile)) {
        ThrowLastError();
    }
    m_strFileName.Empty();
}

void CFile::Abort() {
    if (m_hFile != INVALID_HANDLE_VALUE) {
        ::CloseHandle(m_hFile);
        m_hFile = INVALID_HANDLE_VALUE;
        m_bCloseOnDelete = FALSE;
    }
    m_strFileName.Empty();
}

UINT CFile::Read(void* lpBuf, UINT nCount) {
    DWORD dwRead = 0;
    if (nCount > 0 && !::ReadFile(m_hFile, lpBuf, nCount, &dwRead, nullptr)) {
        ThrowLastError();
    }
    return dwRead;
}

void CFile::Write(const void* lpBuf, UINT nCount) {
    DWORD dwWritten = 0;
    if (nCount == 0) {
        return;
    }
    if (!::WriteFile(m_hFile, lpBuf, nCount, &dwWritten, nullptr)) {
        ThrowLastError();
    }
    if (dwWritten != nCount) {
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
    }
}

void CFile::Flush() {
    if (m_hFile != INVALID_HANDLE_VALUE && !::FlushFileBuffers(m_hFile)) {
        ThrowLastError();
    }
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom) {
    LARGE_INTEGER offset;
    LARGE_INTEGER position;
    offset.QuadPart = lOff;
    if (!::SetFilePointerEx(m_hFile, offset, &position, nFrom)) {
        ThrowLastError();
    }
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const {
    return const_cast<CFile*>(this)->CFile::Seek(0, current);
}

ULONGLONG CFile::GetLength() const {
    LARGE_INTEGER size;
    if (!::GetFileSizeEx(m_hFile, &size)) {
        ThrowLastError();
    }
    return static_cast<ULONGLONG>(size.QuadPart);
}

void CFile::SetLength(ULONGLONG dwNewLen) {
    Seek(static_cast<LONGLONG>(dwNewLen), begin);
    if (!::SetEndOfFile(m_hFile)) {
        ThrowLastError();
    }
}

CString CFile::GetFileName() const {
    const int nSlash = std::max(m_strFileName.ReverseFind('\\'), m_strFileName.ReverseFind('/'));
    return m_strFileName.Mid(nSlash + 1);
}

CString CFile::GetFileTitle() const {
    const CString strName = GetFileName();
    const int nDot = strName.ReverseFind('.');
    return nDot > 0 ? strName.Left(nDot) : strName;
}

BOOL CFile::GetStatus(CFileStatus& rStatus) const {
    return GetStatus(m_strFileName, rStatus);
}

BOOL CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (lpszFileName == nullptr ||
        !::GetFileAttributesEx(lpszFileName, GetFileExInfoStandard, &data)) {
        return FALSE;
    }
    rStatus.m_ctime = CTime(data.ftCreationTime);
    rStatus.m_mtime = CTime(data.ftLastWriteTime);
    rStatus.m_atime = CTime(data.ftLastAccessTime);
    rStatus.m_size = static_cast<ULONGLONG>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    rStatus.m_attribute = static_cast<BYTE>(data.dwFileAttributes & ~FILE_ATTRIBUTE_NORMAL);
    const CString strWhole = AfxWholePath(lpszFileName);
    const bool bFits = strWhole.GetLength() < static_cast<int>(_countof(rStatus.m_szFullName));
    lstrcpy(rStatus.m_szFullName, bFits ? static_cast<LPCTSTR>(strWhole) : "");
    return TRUE;
}

void CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName) {
    if (!::MoveFile(lpszOldName, lpszNewName)) {
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), lpszOldName);
    }
}

void CFile::Remove(LPCTSTR lpszFileName) {
    if (!::DeleteFile(lpszFileName)) {
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), lpszFileName);
    }
}

// --- CStdioFile

namespace {

// The platform's, of the call to a stream that has just failed.
LONG LastStreamError() {
    return _doserrno != 0 ? static_cast<LONG>(_doserrno) : -1;
}

}  // namespace

CStdioFile::CStdioFile() = default;

CStdioFile::CStdioFile(FILE* pOpenStream)
    : CFile(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(pOpenStream)))),
      m_pStream(pOpenStream) {}

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags) {
    CFileException error;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, &error)) {
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
    }
}

CStdioFile::~CStdioFile() {
    if (m_pStream != nullptr && m_bCloseOnDelete) {
        std::fclose(m_pStream);
        m_hFile = INVALID_HANDLE_VALUE;  // the stream closed it
    }
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    const bool bBinary = (nOpenFlags & typeBinary) != 0;
    if (!CFile::Open(lpszFileName, nOpenFlags & ~(typeText | typeBinary), pError)) {
        return FALSE;
    }
    const UINT nAccess = nOpenFlags & 3;
    const char szMode[] = {nAccess == modeWrite ? 'w' : 'r', bBinary ? 'b' : 't',
                           nAccess == modeReadWrite ? '+' : '\0', '\0'};
    const int nFile =
        _open_osfhandle(reinterpret_cast<intptr_t>(m_hFile), bBinary ? _O_BINARY : _O_TEXT);
    m_pStream = nFile >= 0 ? _fdopen(nFile, szMode) : nullptr;
    if (m_pStream == nullptr) {
        if (pError != nullptr) {
            pError->m_cause = CFileException::tooManyOpenFiles;
            pError->m_strFileName = m_strFileName;
        }
        CFile::Abort();
        return FALSE;
    }
    return TRUE;
}

void CStdioFile::Close() {
    FILE* pStream = m_pStream;
    m_pStream = nullptr;
    m_hFile = INVALID_HANDLE_VALUE;
    m_bCloseOnDelete = FALSE;
    if (pStream == nullptr) {
        return;
    }
    // Closing alone does not tell of every write that failed on the way.
    const bool bFlushed = std::fflush(pStream) == 0;
    const LONG lOsError = LastStreamError();
    if (std::fclose(pStream) != 0 || !bFlushed) {
        AfxThrowFileException(CFileException::diskFull, lOsError, m_strFileName);
    }
}

void CStdioFile::Abort() {
    if (m_pStream != nullptr) {
        std::fclose(m_pStream);
        m_pStream = nullptr;
    }
    m_hFile = INVALID_HANDLE_VALUE;
    m_bCloseOnDelete = FALSE;
}

UINT CStdioFile::Read(void* lpBuf, UINT nCount) {
    const size_t nRead = std::fread(lpBuf, 1, nCount, m_pStream);
    if (nRead < nCount && std::ferror(m_pStream)) {
        std::clearerr(m_pStream);
        AfxThrowFileException(CFileException::genericException, LastStreamError(), m_strFileName);
    }
    return static_cast<UINT>(nRead);
}

void CStdioFile::Write(const void* lpBuf, UINT nCount) {
    if (std::fwrite(lpBuf, 1, nCount, m_pStream) != nCount) {
        std::clearerr(m_pStream);
        AfxThrowFileException(CFileException::diskFull, LastStreamError(), m_strFileName);
    }
}

void CStdioFile::WriteString(LPCTSTR lpsz) {
    if (std::fputs(lpsz, m_pStream) == EOF) {
        std::clearerr(m_pStream);
        AfxThrowFileException(CFileException::diskFull, LastStreamError(), m_strFileName);
    }
}

LPTSTR CStdioFile::ReadString(LPTSTR lpsz, UINT nMax) {
    LPTSTR lpszResult = std::fgets(lpsz, static_cast<int>(nMax), m_pStream);
    if (lpszResult == nullptr && std::ferror(m_pStream)) {
        std::clearerr(m_pStream);
        AfxThrowFileException(CFileException::genericException, LastStreamError(), m_strFileName);
    }
    return lpszResult;
}

BOOL CStdioFile::ReadString(CString& rString) {
    // A line may hold zeros, so its end is not the first one: behind it the filling is untouched.
    constexpr char kFilling = 1;
    char szPart[1024];
    CString strLine;
    bool bRead = false;
    bool bEnd = false;
    while (!bEnd) {
        std::memset(szPart, kFilling, sizeof(szPart));
        if (ReadString(szPart, sizeof(szPart)) == nullptr) {
            break;
        }
        bRead = true;
        size_t nPart = sizeof(szPart) - 1;
        while (szPart[nPart] != '\0') {
            --nPart;
        }
        bEnd = nPart > 0 && szPart[nPart - 1] == '\n';
        strLine.Append(szPart, static_cast<int>(bEnd ? nPart - 1 : nPart));
    }
    rString = strLine;
    return bRead;
}

void CStdioFile::Flush() {
    if (m_pStream != nullptr && std::fflush(m_pStream) != 0) {
        AfxThrowFileException(CFileException::diskFull, LastStreamError(), m_strFileName);
    }
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom) {
    if (_fseeki64(m_pStream, lOff, static_cast<int>(nFrom)) != 0) {
        AfxThrowFileException(CFileException::badSeek, LastStreamError(), m_strFileName);
    }
    return GetPosition();
}

ULONGLONG CStdioFile::GetPosition() const {
    const auto nPosition = _ftelli64(m_pStream);
    if (nPosition < 0) {
        AfxThrowFileException(CFileException::invalidFile, LastStreamError(), m_strFileName);
    }
    return static_cast<ULONGLONG>(nPosition);
}

ULONGLONG CStdioFile::GetLength() const {
    std::fflush(m_pStream);
    return static_cast<ULONGLONG>(_filelengthi64(_fileno(m_pStream)));
}

void CStdioFile::SetLength(ULONGLONG dwNewLen) {
    Flush();
    CFile::SetLength(dwNewLen);
}

// --- CMemFile

CMemFile::CMemFile(UINT nGrowBytes) : m_nGrowBytes(nGrowBytes) {}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) : CMemFile(nGrowBytes) {
    Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile::~CMemFile() {
    CMemFile::Close();
}

void CMemFile::Close() {
    BYTE* pBuffer = m_bOwnsBuffer ? m_pBuffer : nullptr;
    Detach();
    std::free(pBuffer);
}

BYTE* CMemFile::Detach() {
    BYTE* pBuffer = m_pBuffer;
    m_pBuffer = nullptr;
    m_bOwnsBuffer = true;
    m_nBufferSize = m_nFileSize = m_nPosition = 0;
    return pBuffer;
}

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) {
    CMemFile::Close();
    m_pBuffer = lpBuffer;
    m_bOwnsBuffer = false;
    m_nBufferSize = nBufferSize;
    m_nGrowBytes = nGrowBytes;
    // A block that may grow counts as empty, one that may not as full.
    m_nFileSize = nGrowBytes == 0 ? nBufferSize : 0;
}

void CMemFile::Grow(size_t nSize) {
    if (nSize <= m_nBufferSize) {
        return;
    }
    if (m_nGrowBytes == 0 || nSize > INT_MAX) {
        AfxThrowFileException(CFileException::diskFull);
    }
    const size_t nNew = std::max(m_nBufferSize * 2, (nSize / m_nGrowBytes + 1) * m_nGrowBytes);
    auto* pNew = static_cast<BYTE*>(std::realloc(m_pBuffer, nNew));
    if (pNew == nullptr) {
        AfxThrowMemoryException();
    }
    m_pBuffer = pNew;
    m_nBufferSize = nNew;
}

UINT CMemFile::Read(void* lpBuf, UINT nCount) {
    if (m_nPosition >= m_nFileSize) {
        return 0;
    }
    const size_t nRead = std::min<size_t>(nCount, m_nFileSize - m_nPosition);
    std::memcpy(lpBuf, m_pBuffer + m_nPosition, nRead);
    m_nPosition += nRead;
    return static_cast<UINT>(nRead);
}

void CMemFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount == 0) {
        return;
    }
    Grow(m_nPosition + nCount);
    if (m_nPosition > m_nFileSize) {
        std::memset(m_pBuffer + m_nFileSize, 0, m_nPosition - m_nFileSize);
    }
    std::memcpy(m_pBuffer + m_nPosition, lpBuf, nCount);
    m_nPosition += nCount;
    m_nFileSize = std::max(m_nFileSize, m_nPosition);
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom) {
    const LONGLONG nBase = nFrom == begin     ? 0
                           : nFrom == current ? static_cast<LONGLONG>(m_nPosition)
                                              : static_cast<LONGLONG>(m_nFileSize);
    if (nBase + lOff < 0 || nBase + lOff > INT_MAX) {
        AfxThrowFileException(CFileException::badSeek);
    }
    m_nPosition = static_cast<size_t>(nBase + lOff);
    return m_nPosition;
}

void CMemFile::SetLength(ULONGLONG dwNewLen) {
    const auto nNew = static_cast<size_t>(dwNewLen);
    Grow(nNew);
    if (nNew > m_nFileSize) {
        std::memset(m_pBuffer + m_nFileSize, 0, nNew - m_nFileSize);
    }
    m_nFileSize = nNew;
    m_nPosition = std::min(m_nPosition, nNew);
}
