#include "afx/app/visual_manager.h"

#include "afx/objects/create_object.h"

#include <afx.h>

#include <memory>

IMPLEMENT_DYNCREATE(CMFCVisualManager, CObject)
IMPLEMENT_DYNCREATE(CMFCVisualManagerOfficeXP, CMFCVisualManager)
IMPLEMENT_DYNCREATE(CMFCVisualManagerWindows, CMFCVisualManagerOfficeXP)

namespace {

CRuntimeClass* s_pDefault = nullptr;
std::unique_ptr<CMFCVisualManager> s_pInstance;

}  // namespace

void CMFCVisualManager::SetDefaultManager(CRuntimeClass* pRTI) {
    s_pInstance.reset();
    s_pDefault = pRTI;
}

CMFCVisualManager* CMFCVisualManager::GetInstance() {
    if (s_pInstance == nullptr) {
        CRuntimeClass* pClass =
            s_pDefault != nullptr ? s_pDefault : RUNTIME_CLASS(CMFCVisualManager);
        s_pInstance.reset(AfxCreateOf<CMFCVisualManager>(pClass));
    }
    return s_pInstance.get();
}

void CMFCVisualManager::DestroyInstance(BOOL bAutoDestroyOnly) {
    if (!bAutoDestroyOnly) {
        s_pInstance.reset();
    }
}
