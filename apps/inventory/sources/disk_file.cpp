#include "sources/disk_file.h"

bool IsDevice(LPCSTR pszPath) {
    const HANDLE hFile =
        ::CreateFile(pszPath, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                     OPEN_EXISTING, 0, nullptr);
    if (hFile == INVALID_HANDLE_VALUE) {
        return false;
    }
    const bool bDevice = ::GetFileType(hFile) != FILE_TYPE_DISK;
    ::CloseHandle(hFile);
    return bDevice;
}

void RemovePart(LPCSTR pszPath) {
    if (!IsDevice(pszPath)) {
        ::DeleteFile(pszPath);
    }
}
