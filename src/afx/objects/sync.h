// What threads wait for: critical sections, mutexes, semaphores and events, and locks that let go
// of them at the end of a block.
#pragma once

#include "afx/objects/object.h"

/// Owns the system's object.
class QVAFX_API CSyncObject : public CObject {
    DECLARE_DYNAMIC(CSyncObject)

public:
    /// pstrName is not kept.
    explicit CSyncObject(LPCTSTR pstrName);
    ~CSyncObject() override;

    HANDLE m_hObject = nullptr;
    operator HANDLE() const { return m_hObject; }

    /// FALSE when the time, in milliseconds, is over.
    virtual BOOL Lock(DWORD dwTimeout = INFINITE);
    virtual BOOL Unlock() = 0;
    virtual BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr);

protected:
    /// The handle, or CResourceException for null.
    void Take(HANDLE hObject);
};

class QVAFX_API CSemaphore : public CSyncObject {
    DECLARE_DYNAMIC(CSemaphore)

public:
    explicit CSemaphore(LONG lInitialCount = 1, LONG lMaxCount = 1, LPCTSTR pstrName = nullptr,
                        LPSECURITY_ATTRIBUTES lpsaAttributes = nullptr);
    BOOL Unlock() override { return Unlock(1, nullptr); }
    BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr) override;
};

class QVAFX_API CMutex : public CSyncObject {
    DECLARE_DYNAMIC(CMutex)

public:
    explicit CMutex(BOOL bInitiallyOwn = FALSE, LPCTSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    using CSyncObject::Unlock;
    BOOL Unlock() override;
};

class QVAFX_API CEvent : public CSyncObject {
    DECLARE_DYNAMIC(CEvent)

public:
    explicit CEvent(BOOL bInitiallyOwn = FALSE, BOOL bManualReset = FALSE,
                    LPCTSTR lpszName = nullptr, LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    BOOL SetEvent();
    BOOL PulseEvent();
    BOOL ResetEvent();
    using CSyncObject::Unlock;
    BOOL Unlock() override { return TRUE; }  ///< an event is nobody's
};

/// Waits without an end, in one process.
class QVAFX_API CCriticalSection : public CSyncObject {
    DECLARE_DYNAMIC(CCriticalSection)

public:
    CCriticalSection();
    ~CCriticalSection() override;

    CRITICAL_SECTION m_sect;
    operator CRITICAL_SECTION*() { return &m_sect; }

    BOOL Lock();
    BOOL Lock(DWORD dwTimeout) override;  ///< the time does not count
    using CSyncObject::Unlock;
    BOOL Unlock() override;
};

/// One object, let go of at the latest when this goes.
class QVAFX_API CSingleLock {
public:
    explicit CSingleLock(CSyncObject* pObject, BOOL bInitialLock = FALSE);
    ~CSingleLock();
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;

    BOOL Lock(DWORD dwTimeOut = INFINITE);
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    BOOL IsLocked() { return m_bAcquired; }

private:
    CSyncObject* m_pObject;
    BOOL m_bAcquired = FALSE;
};

/// Several objects at once, which are no critical sections and at most MAXIMUM_WAIT_OBJECTS.
class QVAFX_API CMultiLock {
public:
    CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock = FALSE);
    ~CMultiLock();
    CMultiLock(const CMultiLock&) = delete;
    CMultiLock& operator=(const CMultiLock&) = delete;

    /// What WaitForMultipleObjects or its sister for messages gives.
    DWORD Lock(DWORD dwTimeOut = INFINITE, BOOL bWaitForAll = TRUE, DWORD dwWakeMask = 0);
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    BOOL IsLocked(DWORD dwItem) { return dwItem < m_dwCount && m_bLocked[dwItem]; }

private:
    template <class Release>
    BOOL UnlockEach(Release release);

    CSyncObject** m_ppObjects;
    DWORD m_dwCount;
    HANDLE m_handles[MAXIMUM_WAIT_OBJECTS] = {};
    bool m_bLocked[MAXIMUM_WAIT_OBJECTS] = {};
};
