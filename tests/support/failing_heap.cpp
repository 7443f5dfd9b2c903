#include "support/failing_heap.h"

#include <windows.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <psapi.h>

namespace {

// Nothing here may allocate, thread-local variables included.
struct Refusal {
    DWORD nThread = 0;  ///< 0: nothing is refused
    int nSucceeding = 0;
    FailingHeap::Mode mode = FailingHeap::kAllLater;
    int nAsked = 0;
    int nRefused = 0;
};
Refusal s_refusal;

bool Refuses() {
    if (s_refusal.nThread == 0 || s_refusal.nThread != ::GetCurrentThreadId()) {
        return false;
    }
    const int nBefore = s_refusal.nAsked++;
    const bool bRefuse = s_refusal.mode == FailingHeap::kAllLater
                             ? nBefore >= s_refusal.nSucceeding
                             : nBefore == s_refusal.nSucceeding;
    s_refusal.nRefused += bRefuse;
    return bRefuse;
}

decltype(&std::malloc) s_pfnMalloc;
decltype(&std::calloc) s_pfnCalloc;
decltype(&std::realloc) s_pfnRealloc;
void* (*s_pfnAlignedMalloc)(size_t, size_t);

void* Malloc(size_t nBytes) {
    return Refuses() ? nullptr : s_pfnMalloc(nBytes);
}
void* Calloc(size_t nCount, size_t nBytes) {
    return Refuses() ? nullptr : s_pfnCalloc(nCount, nBytes);
}
void* Realloc(void* p, size_t nBytes) {
    return Refuses() ? nullptr : s_pfnRealloc(p, nBytes);
}
void* AlignedMalloc(size_t nBytes, size_t nAlignment) {
    return Refuses() ? nullptr : s_pfnAlignedMalloc(nBytes, nAlignment);
}

struct Replacement {
    FARPROC pfnOriginal;
    FARPROC pfnOurs;
};
using Replacements = std::array<Replacement, 4>;

template <typename Function>
Replacement Replace(const char* pszName, Function& pfnOriginal, Function pfnOurs) {
    const FARPROC pfn = ::GetProcAddress(::GetModuleHandleA("msvcrt.dll"), pszName);
    std::memcpy(&pfnOriginal, &pfn, sizeof pfn);
    FARPROC pfnReplacement = nullptr;
    std::memcpy(&pfnReplacement, &pfnOurs, sizeof pfnOurs);
    return {pfn, pfnReplacement};
}

const Replacements& AllReplacements() {
    static const Replacements s_all = {
        Replace("malloc", s_pfnMalloc, &Malloc), Replace("calloc", s_pfnCalloc, &Calloc),
        Replace("realloc", s_pfnRealloc, &Realloc),
        Replace("_aligned_malloc", s_pfnAlignedMalloc, &AlignedMalloc)};
    return s_all;
}

// The system's modules are not ours to starve, and the unwinder's and the threads' support end the
// process where they get no memory for their own housekeeping.
bool IsOurs(HMODULE hModule) {
    char szPath[MAX_PATH] = "";
    char szSystem[MAX_PATH] = "";
    ::GetModuleFileNameA(hModule, szPath, MAX_PATH);
    const size_t nSystem = ::GetWindowsDirectoryA(szSystem, MAX_PATH);
    const char* pszSlash = std::strrchr(szPath, '\\');
    const char* pszName = pszSlash != nullptr ? pszSlash + 1 : szPath;
    return _strnicmp(szPath, szSystem, nSystem) != 0 && _strnicmp(pszName, "libgcc_s", 8) != 0 &&
           _strnicmp(pszName, "libwinpthread", 13) != 0;
}

void ReplaceSlot(FARPROC& slot) {
    for (const Replacement& replacement : AllReplacements()) {
        if (slot == replacement.pfnOriginal && slot != nullptr) {
            DWORD nOld = 0;
            ::VirtualProtect(&slot, sizeof slot, PAGE_READWRITE, &nOld);
            slot = replacement.pfnOurs;
            ::VirtualProtect(&slot, sizeof slot, nOld, &nOld);
        }
    }
}

void ReplaceImports(HMODULE hModule) {
    auto* pBase = reinterpret_cast<BYTE*>(hModule);
    const auto* pDos = reinterpret_cast<const IMAGE_DOS_HEADER*>(pBase);
    const auto* pNt = reinterpret_cast<const IMAGE_NT_HEADERS*>(pBase + pDos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& table =
        pNt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (table.VirtualAddress == 0) {
        return;
    }
    const auto* pImport =
        reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(pBase + table.VirtualAddress);
    for (; pImport->FirstThunk != 0; ++pImport) {
        for (auto* pSlot = reinterpret_cast<FARPROC*>(pBase + pImport->FirstThunk);
             *pSlot != nullptr; ++pSlot) {
            ReplaceSlot(*pSlot);
        }
    }
}

// Modules may have come since the last time; those already done have nothing left to replace.
void ReplaceInAllModules() {
    static std::array<HMODULE, 256> s_seen;
    static DWORD s_nSeen;
    std::array<HMODULE, 256> modules = {};
    DWORD nBytes = 0;
    ::K32EnumProcessModules(::GetCurrentProcess(), modules.data(), sizeof modules, &nBytes);
    if (nBytes == s_nSeen && modules == s_seen) {
        return;
    }
    for (DWORD i = 0; i < modules.size() && i < nBytes / sizeof(HMODULE); ++i) {
        if (IsOurs(modules[i])) {
            ReplaceImports(modules[i]);
        }
    }
    s_seen = modules;
    s_nSeen = nBytes;
}

// The language's runtime keeps a record for each thread that threw, made on its first throw, and
// ends the process where it cannot.
void ThrowOnce() {
    try {
        throw 0;
    } catch (int) {
        return;
    }
}

}  // namespace

FailingHeap::FailingHeap(int nSucceeding, Mode mode) {
    ReplaceInAllModules();
    ThrowOnce();
    s_refusal = {::GetCurrentThreadId(), nSucceeding, mode, 0, 0};
}

FailingHeap::~FailingHeap() {
    s_refusal.nThread = 0;
}

int FailingHeap::Refused() const {
    return s_refusal.nRefused;
}
