#include "afx/values/words.h"

#include <malloc.h>

BOOL AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite) {
    constexpr DWORD kRead = PAGE_READONLY | PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READ |
                            PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    constexpr DWORD kWrite =
        PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    auto nAt = reinterpret_cast<UINT_PTR>(lp);
    if (lp == nullptr || nAt + nBytes < nAt) {
        return FALSE;
    }
    for (const UINT_PTR nEnd = nAt + (nBytes > 0 ? nBytes : 1); nAt < nEnd;) {
        MEMORY_BASIC_INFORMATION info{};
        if (::VirtualQuery(reinterpret_cast<LPCVOID>(nAt), &info, sizeof(info)) == 0 ||
            info.State != MEM_COMMIT || (info.Protect & PAGE_GUARD) != 0 ||
            (info.Protect & (bReadWrite ? kWrite : kRead)) == 0) {
            return FALSE;
        }
        nAt = reinterpret_cast<UINT_PTR>(info.BaseAddress) + info.RegionSize;
    }
    return TRUE;
}

BOOL AfxIsValidString(LPCSTR lpsz, int nLength) {
    constexpr UINT_PTR kPage = 4096;
    for (int n = 0; n != nLength; ++n) {
        const bool bNewPage = n == 0 || reinterpret_cast<UINT_PTR>(lpsz + n) % kPage == 0;
        if (bNewPage && !AfxIsValidAddress(lpsz + n, 1, FALSE)) {
            return FALSE;
        }
        if (lpsz[n] == '\0') {
            return TRUE;
        }
    }
    return lpsz != nullptr;
}

BOOL AfxCheckMemory() {
    const int nResult = _heapchk();
    return nResult == _HEAPOK || nResult == _HEAPEMPTY;
}

void AfxAbort() {
    std::abort();
}
