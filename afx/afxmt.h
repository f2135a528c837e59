// Synchronisation objects: the critical section that guards a graph's series
// and the scoped lock that takes it.
#pragma once

#include "afx/afx.h"

class AFX_EXT_CLASS CSyncObject : public CObject
{
public:
    virtual ~CSyncObject();
    virtual BOOL Lock(DWORD dwTimeout = INFINITE) = 0;
    virtual BOOL Unlock() = 0;
};

class AFX_EXT_CLASS CCriticalSection : public CSyncObject
{
public:
    CCriticalSection();
    virtual ~CCriticalSection();   // DeleteCriticalSection

    operator CRITICAL_SECTION*() { return &m_sect; }
    virtual BOOL Lock(DWORD dwTimeout = INFINITE);  // the time-out is ignored: waits for ever
    virtual BOOL Unlock();

    CRITICAL_SECTION m_sect;
};

// Takes the object at construction when asked to and always releases it at
// destruction if held.
class AFX_EXT_CLASS CSingleLock
{
public:
    explicit CSingleLock(CSyncObject* pObject, BOOL bInitialLock = FALSE);
    ~CSingleLock();

    BOOL Lock(DWORD dwTimeOut = INFINITE);
    BOOL Unlock();
    BOOL IsLocked() const { return m_bAcquired; }

private:
    CSingleLock(const CSingleLock&) = delete;
    void operator=(const CSingleLock&) = delete;

    CSyncObject* m_pObject;
    BOOL m_bAcquired;
};
