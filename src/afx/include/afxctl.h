// Connections between objects of OLE.
#pragma once

#define __AFXCTL_H__

#include <afxdisp.h>

/// Connects a sink with a source's events of interface iid. bRefCount FALSE: the source's reference
/// to the sink is not counted. FALSE, and no cookie, if the source has no such events or
/// refuses.
QVAFX_API BOOL AfxConnectionAdvise(LPUNKNOWN pUnkSrc, REFIID iid, LPUNKNOWN pUnkSink,
                                   BOOL bRefCount, DWORD* pdwCookie);
/// Ends such a connection, with the same arguments.
QVAFX_API BOOL AfxConnectionUnadvise(LPUNKNOWN pUnkSrc, REFIID iid, LPUNKNOWN pUnkSink,
                                     BOOL bRefCount, DWORD dwCookie);
