// A handle map for each thread. Internal to the framework.
#pragma once

#include <windows.h>

#include <new>

/// True in the thread that asked first, whose things are at hand without thread-local storage:
/// this compiler calls into the thread library for that, several times a message. The first thread
/// of a program that has windows is its main thread.
inline bool AfxInFirstThread() {
    static const DWORD s_nFirst = ::GetCurrentThreadId();
    return ::GetCurrentThreadId() == s_nFirst;
}

/// The calling thread's map. That of the first thread needs no memory to be made, and is kept to
/// the process's end, because global objects may hold handles until then; another's goes with its
/// thread, by the system's storage: this compiler's thread-local objects are destroyed when their
/// memory is gone.
template <class Map>
Map& AfxThreadMap() {
    if (AfxInFirstThread()) {
        alignas(Map) static unsigned char s_room[sizeof(Map)];
        static Map* const pFirst = new (s_room) Map;
        return *pFirst;
    }
    struct Slot {
        static void WINAPI Destroy(void* pMap) { delete static_cast<Map*>(pMap); }
    };
    static const DWORD nSlot = ::FlsAlloc(&Slot::Destroy);
    auto* pMap = static_cast<Map*>(::FlsGetValue(nSlot));
    if (pMap == nullptr) {
        pMap = new Map;
        ::FlsSetValue(nSlot, pMap);
    }
    return *pMap;
}
