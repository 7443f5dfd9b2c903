// A control's saved state. Internal to the framework.
#pragma once

#include "afx/ole/com_pointer.h"

#include <afx.h>

/// Gives a control its first state: from pPersist, whose position is where the state begins, or as
/// new where that is null. bStorage: the file holds a compound file, else a stream. pStorage keeps
/// what a control goes on working on.
HRESULT AfxInitControlState(IUnknown* pObject, CFile* pPersist, BOOL bStorage,
                            AfxComPtr<IStorage>& pStorage);

/// The object behind a class id. A licence key is used where the machine has no licence.
HRESULT AfxCreateControlObject(REFCLSID clsid, BSTR bstrLicKey, AfxComPtr<IOleObject>& pObject);

/// The interface that a control fires its events through: what its class information calls the
/// default source, else its first connection point for anything but property changes.
HRESULT AfxFindEventInterface(IUnknown* pObject, IID* piid);
