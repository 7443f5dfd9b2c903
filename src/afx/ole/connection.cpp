#include "afx/ole/com_pointer.h"

#include <afxctl.h>

#include <ocidl.h>

static AfxComPtr<IConnectionPoint> FindPoint(LPUNKNOWN pUnkSrc, REFIID iid) {
    AfxComPtr<IConnectionPoint> pPoint;
    const auto pPoints = AfxComPtr<IUnknown>(pUnkSrc).As<IConnectionPointContainer>();
    if (!pPoints || FAILED(pPoints->FindConnectionPoint(iid, pPoint.Put()))) {
        return {};
    }
    return pPoint;
}

BOOL AfxConnectionAdvise(LPUNKNOWN pUnkSrc, REFIID iid, LPUNKNOWN pUnkSink, BOOL bRefCount,
                         DWORD* pdwCookie) {
    const auto pPoint = FindPoint(pUnkSrc, iid);
    if (!pPoint || FAILED(pPoint->Advise(pUnkSink, pdwCookie))) {
        *pdwCookie = 0;
        return FALSE;
    }
    if (!bRefCount) {
        pUnkSink->Release();
    }
    return TRUE;
}

BOOL AfxConnectionUnadvise(LPUNKNOWN pUnkSrc, REFIID iid, LPUNKNOWN pUnkSink, BOOL bRefCount,
                           DWORD dwCookie) {
    const auto pPoint = FindPoint(pUnkSrc, iid);
    if (!pPoint) {
        return FALSE;
    }
    if (!bRefCount) {
        pUnkSink->AddRef();  // which the source gives up
    }
    return SUCCEEDED(pPoint->Unadvise(dwCookie));
}
