#include "common/status_log_text.h"

#include "common/core/log_file.h"
#include "common/status_chain.h"
#include "common/wide_path.h"

#include <new>

namespace {

// Locked while the file changes: a byte that no log reaches, so that readers are let in.
constexpr DWORD kLockHigh = 0x7FFFFFFF;
constexpr DWORD kLockBytes = 1;
constexpr DWORD kLongestWait = 10000;  // milliseconds

// The file for as long as an entry takes, and nobody else's meanwhile.
class LogFile : public qv::LogBytes {
public:
    explicit LogFile(LPCSTR pszPath) : m_pszPath(pszPath) {
        m_hFile = ::CreateFileW(qv::WidePath(pszPath).c_str(), GENERIC_READ | GENERIC_WRITE,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (m_hFile == INVALID_HANDLE_VALUE) {
            ThrowLastError();
        }
        // A device has nothing that another process could take away, and cannot be locked.
        if (::GetFileType(m_hFile) == FILE_TYPE_DISK && !Lock()) {
            const DWORD dwError = ::GetLastError();
            ::CloseHandle(m_hFile);
            ::SetLastError(dwError);
            ThrowLastError();
        }
    }
    ~LogFile() {
        OVERLAPPED place = LockPlace();
        ::UnlockFileEx(m_hFile, 0, kLockBytes, 0, &place);
        ::CloseHandle(m_hFile);
    }
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    std::uint64_t Size() override {
        LARGE_INTEGER size{};
        if (!::GetFileSizeEx(m_hFile, &size)) {
            ThrowLastError();
        }
        return static_cast<std::uint64_t>(size.QuadPart);
    }
    void Read(std::uint64_t nFrom, std::span<char> bytes) override {
        OVERLAPPED place = Place(nFrom);
        DWORD nRead = 0;
        const auto nBytes = static_cast<DWORD>(bytes.size());
        Check(::ReadFile(m_hFile, bytes.data(), nBytes, &nRead, &place) && nRead == nBytes,
              ERROR_HANDLE_EOF);
    }
    void Write(std::uint64_t nFrom, std::string_view bytes) override {
        OVERLAPPED place = Place(nFrom);
        DWORD nWritten = 0;
        const auto nBytes = static_cast<DWORD>(bytes.size());
        Check(::WriteFile(m_hFile, bytes.data(), nBytes, &nWritten, &place) && nWritten == nBytes,
              ERROR_DISK_FULL);
    }
    bool Cut(std::uint64_t nSize) override {
        LARGE_INTEGER place{};
        place.QuadPart = static_cast<LONGLONG>(nSize);
        return ::SetFilePointerEx(m_hFile, place, nullptr, FILE_BEGIN) && ::SetEndOfFile(m_hFile);
    }
    [[noreturn]] void ThrowLastError() const {
        const auto lError = static_cast<LONG>(::GetLastError());
        AfxThrowFileException(CFileException::OsErrorToException(lError), lError, m_pszPath);
    }

private:
    static OVERLAPPED Place(std::uint64_t nFrom) {
        OVERLAPPED place{};
        place.Offset = static_cast<DWORD>(nFrom);
        place.OffsetHigh = static_cast<DWORD>(nFrom >> 32);
        return place;
    }
    static OVERLAPPED LockPlace() { return Place(std::uint64_t{kLockHigh} << 32); }

    // Asked again and again: a wait of the system's for a process that hangs would have no end.
    bool Lock() {
        const ULONGLONG nStart = ::GetTickCount64();
        for (;;) {
            OVERLAPPED place = LockPlace();
            if (::LockFileEx(m_hFile, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0,
                             kLockBytes, 0, &place)) {
                return true;
            }
            const DWORD dwError = ::GetLastError();
            if ((dwError != ERROR_LOCK_VIOLATION && dwError != ERROR_IO_PENDING) ||
                ::GetTickCount64() - nStart > kLongestWait) {
                return false;
            }
            ::Sleep(1);
        }
    }

    // A call that did less than it was asked for has set no error.
    void Check(bool bDone, DWORD dwErrorElse) const {
        if (!bDone) {
            if (::GetLastError() == NO_ERROR) {
                ::SetLastError(dwErrorElse);
            }
            ThrowLastError();
        }
    }

    LPCSTR m_pszPath;
    HANDLE m_hFile;
};

}  // namespace

QVStatusLogText::QVStatusLogText(const char* pszPath, unsigned long nLimit)
    : m_strPath(pszPath), m_nLimit(nLimit) {}

QVStatusLogText::~QVStatusLogText() = default;

void QVStatusLogText::Log(QVStatus* pStatus) {
    try {
        const std::string strEntry = qv::LogEntry(pStatus, {}, "\r\n");
        LogFile file(m_strPath);
        if (!qv::AppendToLog(file, strEntry, m_nLimit)) {
            file.ThrowLastError();
        }
        return;
    } catch (const std::bad_alloc&) {
    }
    AfxThrowMemoryException();
}
