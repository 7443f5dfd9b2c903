// Visual managers, which programs choose by their class. The controls here look as the system's
// do, whichever is chosen: it is kept and given back.
#pragma once

#include "afx/objects/object.h"

class QVAFX_API CMFCVisualManager : public CObject {
    DECLARE_DYNCREATE(CMFCVisualManager)

public:
    /// The class of the manager from now on; null for CMFCVisualManager.
    static void SetDefaultManager(CRuntimeClass* pRTI);
    /// The one object of that class, made when it is asked for first.
    static CMFCVisualManager* GetInstance();
    static void DestroyInstance(BOOL bAutoDestroyOnly = FALSE);
};

class QVAFX_API CMFCVisualManagerOfficeXP : public CMFCVisualManager {
    DECLARE_DYNCREATE(CMFCVisualManagerOfficeXP)
};

class QVAFX_API CMFCVisualManagerWindows : public CMFCVisualManagerOfficeXP {
    DECLARE_DYNCREATE(CMFCVisualManagerWindows)
};
