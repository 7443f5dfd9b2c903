#include "support/mortal.h"

#include <cstdio>

namespace {

bool IsClosed(ULONG_PTR nAddress) {
    MEMORY_BASIC_INFORMATION info{};
    ::VirtualQuery(reinterpret_cast<const void*>(nAddress), &info, sizeof(info));
    return info.State == MEM_COMMIT && info.Protect == PAGE_NOACCESS;
}

// The system catches faults inside window procedures and goes on: it must not get to see them.
LONG CALLBACK OnFault(EXCEPTION_POINTERS* pInfo) {
    const EXCEPTION_RECORD& record = *pInfo->ExceptionRecord;
    if (record.ExceptionCode == STATUS_ACCESS_VIOLATION &&
        IsClosed(record.ExceptionInformation[1])) {
        std::puts("somebody touched an object that was deleted");
        std::fflush(stdout);
        ::TerminateProcess(::GetCurrentProcess(), 1);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

}  // namespace

// From a range of its own, whole pages at a time: never where a heap of the system's has been, for
// its headers read on in what they have freed.
void* NoMansLand::Allocate(std::size_t nBytes) {
    constexpr std::size_t kRange = std::size_t{1} << 30;
    constexpr std::size_t kPage = 4096;
    static char* s_pNext =
        static_cast<char*>(::VirtualAlloc(nullptr, kRange, MEM_RESERVE, PAGE_NOACCESS));
    char* const p = s_pNext;
    s_pNext += (nBytes + kPage - 1) / kPage * kPage;
    return ::VirtualAlloc(p, nBytes, MEM_COMMIT, PAGE_READWRITE);
}

void NoMansLand::Close(void* p, std::size_t nBytes) {
    static const PVOID s_hHandler = ::AddVectoredExceptionHandler(TRUE, OnFault);
    DWORD nOld = 0;
    ::VirtualProtect(p, nBytes, s_hHandler != nullptr ? PAGE_NOACCESS : PAGE_READONLY, &nOld);
}
