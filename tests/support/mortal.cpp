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

void* NoMansLand::Allocate(std::size_t nBytes) {
    return ::VirtualAlloc(nullptr, nBytes, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
}

void NoMansLand::Close(void* p, std::size_t nBytes) {
    static const PVOID s_hHandler = ::AddVectoredExceptionHandler(TRUE, OnFault);
    DWORD nOld = 0;
    ::VirtualProtect(p, nBytes, s_hHandler != nullptr ? PAGE_NOACCESS : PAGE_READONLY, &nOld);
}
