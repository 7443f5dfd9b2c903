#include "afx/objects/sync.h"

#include <afx.h>

IMPLEMENT_DYNAMIC(CSyncObject, CObject)
IMPLEMENT_DYNAMIC(CSemaphore, CSyncObject)
IMPLEMENT_DYNAMIC(CMutex, CSyncObject)
IMPLEMENT_DYNAMIC(CEvent, CSyncObject)
IMPLEMENT_DYNAMIC(CCriticalSection, CSyncObject)

CSyncObject::CSyncObject(LPCTSTR) {}

CSyncObject::~CSyncObject() {
    if (m_hObject != nullptr) {
        ::CloseHandle(m_hObject);
    }
}

void CSyncObject::Take(HANDLE hObject) {
    m_hObject = hObject;
    if (hObject == nullptr) {
        AfxThrowResourceException();
    }
}

BOOL CSyncObject::Lock(DWORD dwTimeout) {
    const DWORD dwResult = ::WaitForSingleObject(m_hObject, dwTimeout);
    return dwResult == WAIT_OBJECT_0 || dwResult == WAIT_ABANDONED;
}

BOOL CSyncObject::Unlock(LONG, LPLONG) {
    return TRUE;
}

CSemaphore::CSemaphore(LONG lInitialCount, LONG lMaxCount, LPCTSTR pstrName,
                       LPSECURITY_ATTRIBUTES lpsaAttributes)
    : CSyncObject(pstrName) {
    Take(::CreateSemaphore(lpsaAttributes, lInitialCount, lMaxCount, pstrName));
}

BOOL CSemaphore::Unlock(LONG lCount, LPLONG lpPrevCount) {
    return ::ReleaseSemaphore(m_hObject, lCount, lpPrevCount);
}

CMutex::CMutex(BOOL bInitiallyOwn, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName) {
    Take(::CreateMutex(lpsaAttribute, bInitiallyOwn, lpszName));
}

BOOL CMutex::Unlock() {
    return ::ReleaseMutex(m_hObject);
}

CEvent::CEvent(BOOL bInitiallyOwn, BOOL bManualReset, LPCTSTR lpszName,
               LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName) {
    Take(::CreateEvent(lpsaAttribute, bManualReset, bInitiallyOwn, lpszName));
}

BOOL CEvent::SetEvent() {
    return ::SetEvent(m_hObject);
}
BOOL CEvent::PulseEvent() {
    return ::PulseEvent(m_hObject);
}
BOOL CEvent::ResetEvent() {
    return ::ResetEvent(m_hObject);
}

CCriticalSection::CCriticalSection() : CSyncObject(nullptr) {
    ::InitializeCriticalSection(&m_sect);
}
CCriticalSection::~CCriticalSection() {
    ::DeleteCriticalSection(&m_sect);
}
BOOL CCriticalSection::Lock() {
    ::EnterCriticalSection(&m_sect);
    return TRUE;
}
BOOL CCriticalSection::Lock(DWORD) {
    return Lock();
}
BOOL CCriticalSection::Unlock() {
    ::LeaveCriticalSection(&m_sect);
    return TRUE;
}

CSingleLock::CSingleLock(CSyncObject* pObject, BOOL bInitialLock) : m_pObject(pObject) {
    if (pObject == nullptr) {
        AfxThrowInvalidArgException();
    }
    if (bInitialLock) {
        Lock();
    }
}

CSingleLock::~CSingleLock() {
    Unlock();
}

BOOL CSingleLock::Lock(DWORD dwTimeOut) {
    m_bAcquired = m_pObject->Lock(dwTimeOut);
    return m_bAcquired;
}

BOOL CSingleLock::Unlock() {
    if (m_bAcquired) {
        m_bAcquired = !m_pObject->Unlock();
    }
    return !m_bAcquired;
}

BOOL CSingleLock::Unlock(LONG lCount, LPLONG lPrevCount) {
    if (m_bAcquired) {
        m_bAcquired = !m_pObject->Unlock(lCount, lPrevCount);
    }
    return !m_bAcquired;
}

CMultiLock::CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock)
    : m_ppObjects(ppObjects), m_dwCount(dwCount) {
    if (ppObjects == nullptr || dwCount == 0 || dwCount > MAXIMUM_WAIT_OBJECTS) {
        AfxThrowInvalidArgException();
    }
    for (DWORD n = 0; n < dwCount; ++n) {
        if (ppObjects[n] == nullptr || ppObjects[n]->m_hObject == nullptr) {
            AfxThrowInvalidArgException();
        }
        m_handles[n] = ppObjects[n]->m_hObject;
    }
    if (bInitialLock) {
        Lock();
    }
}

CMultiLock::~CMultiLock() {
    Unlock();
}

DWORD CMultiLock::Lock(DWORD dwTimeOut, BOOL bWaitForAll, DWORD dwWakeMask) {
    const DWORD dwResult =
        dwWakeMask == 0
            ? ::WaitForMultipleObjects(m_dwCount, m_handles, bWaitForAll, dwTimeOut)
            : ::MsgWaitForMultipleObjects(m_dwCount, m_handles, bWaitForAll, dwTimeOut, dwWakeMask);
    for (DWORD n = 0; n < m_dwCount; ++n) {
        const bool bThis = dwResult == WAIT_OBJECT_0 + n || dwResult == WAIT_ABANDONED_0 + n;
        const bool bAll = bWaitForAll && (dwResult - WAIT_OBJECT_0 < m_dwCount ||
                                          dwResult - WAIT_ABANDONED_0 < m_dwCount);
        m_bLocked[n] = m_bLocked[n] || bThis || bAll;
    }
    return dwResult;
}

template <class Release>
BOOL CMultiLock::UnlockEach(Release release) {
    BOOL bAll = TRUE;
    for (DWORD n = 0; n < m_dwCount; ++n) {
        if (m_bLocked[n]) {
            m_bLocked[n] = !release(m_ppObjects[n]);
            bAll = bAll && !m_bLocked[n];
        }
    }
    return bAll;
}

BOOL CMultiLock::Unlock() {
    return UnlockEach([](CSyncObject* pObject) { return pObject->Unlock(); });
}

BOOL CMultiLock::Unlock(LONG lCount, LPLONG lPrevCount) {
    return UnlockEach([=](CSyncObject* pObject) { return pObject->Unlock(lCount, lPrevCount); });
}
