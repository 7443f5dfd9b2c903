#include "sources/md5.h"

#include <wincrypt.h>

namespace {

class FileHandle {
public:
    explicit FileHandle(LPCSTR pszPath)
        : m_h(::CreateFile(pszPath, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                           OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr)) {}
    ~FileHandle() {
        if (m_h != INVALID_HANDLE_VALUE) {
            ::CloseHandle(m_h);
        }
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    bool IsFile() const {
        return m_h != INVALID_HANDLE_VALUE && ::GetFileType(m_h) == FILE_TYPE_DISK;
    }
    operator HANDLE() const { return m_h; }

private:
    const HANDLE m_h;
};

class Hash {
public:
    Hash() {
        if (::CryptAcquireContext(&m_hProvider, nullptr, nullptr, PROV_RSA_FULL,
                                  CRYPT_VERIFYCONTEXT) &&
            !::CryptCreateHash(m_hProvider, CALG_MD5, 0, 0, &m_hHash)) {
            m_hHash = 0;
        }
    }
    ~Hash() {
        if (m_hHash != 0) {
            ::CryptDestroyHash(m_hHash);
        }
        if (m_hProvider != 0) {
            ::CryptReleaseContext(m_hProvider, 0);
        }
    }
    Hash(const Hash&) = delete;
    Hash& operator=(const Hash&) = delete;

    bool Add(const BYTE* pBytes, DWORD nBytes) {
        return m_hHash != 0 && ::CryptHashData(m_hHash, pBytes, nBytes, 0);
    }
    CString Digits() const {
        BYTE aDigest[16];
        DWORD nBytes = sizeof(aDigest);
        CString strDigits;
        if (m_hHash != 0 && ::CryptGetHashParam(m_hHash, HP_HASHVAL, aDigest, &nBytes, 0)) {
            for (const BYTE b : aDigest) {
                CString strByte;
                strByte.Format("%02x", b);
                strDigits += strByte;
            }
        }
        return strDigits;
    }

private:
    HCRYPTPROV m_hProvider = 0;
    HCRYPTHASH m_hHash = 0;
};

}  // namespace

CString Md5OfFile(const CString& strPath) {
    const FileHandle file(strPath);
    Hash hash;
    if (!file.IsFile()) {
        return "";
    }
    BYTE aBytes[65536];
    DWORD nRead = 0;
    while (::ReadFile(file, aBytes, sizeof(aBytes), &nRead, nullptr)) {
        if (nRead == 0) {
            return hash.Digits();
        }
        if (!hash.Add(aBytes, nRead)) {
            break;
        }
    }
    return "";
}
