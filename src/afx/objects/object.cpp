#include "afx/objects/object.h"

#include <afx.h>
#include <afxdll_.h>

CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF,
                                       nullptr,   nullptr,         nullptr};
static const AFX_CLASSINIT s_init_CObject(&CObject::classCObject);

CObject::CObject() = default;
CObject::~CObject() = default;

CRuntimeClass* CObject::GetThisClass() {
    return &classCObject;
}

CRuntimeClass* CObject::GetRuntimeClass() const {
    return &classCObject;
}

BOOL CObject::IsSerializable() const {
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

void CObject::Serialize(CArchive&) {}

void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext& dc) const {
    dc << "a " << GetRuntimeClass()->m_lpszClassName << " at " << static_cast<const void*>(this)
       << "\n";
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const {
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    for (const CRuntimeClass* pClass = this; pClass != nullptr;
         pClass = pClass->m_pfnGetBaseClass != nullptr ? pClass->m_pfnGetBaseClass() : nullptr) {
        if (pClass == pBaseClass) {
            return TRUE;
        }
    }
    return FALSE;
}

CObject* CRuntimeClass::CreateObject() {
    if (m_pfnCreateObject == nullptr) {
        return nullptr;
    }
    try {
        return m_pfnCreateObject();
    } catch (const std::bad_alloc&) {
        return nullptr;
    } catch (CMemoryException* e) {
        e->Delete();
        return nullptr;
    }
}

CRuntimeClass* CRuntimeClass::FromName(LPCSTR lpszClassName) {
    const auto find = [lpszClassName](CRuntimeClass* pClass) {
        while (pClass != nullptr && lstrcmp(pClass->m_lpszClassName, lpszClassName) != 0) {
            pClass = pClass->m_pNextClass;
        }
        return pClass;
    };
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    CRuntimeClass* pFound = find(pState->m_classList.m_pHead);
    for (CDynLinkLibrary* pDll = pState->m_libraryList.m_pHead;
         pFound == nullptr && pDll != nullptr; pDll = pDll->m_pNextDLL) {
        pFound = find(pDll->m_classList.m_pHead);
    }
    return pFound;
}

CObject* CRuntimeClass::CreateObject(LPCSTR lpszClassName) {
    CRuntimeClass* pClass = FromName(lpszClassName);
    return pClass != nullptr ? pClass->CreateObject() : nullptr;
}

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) : m_pClass(pNewClass) {
    AfxGetModuleState()->m_classList.AddHead(pNewClass);
}

AFX_CLASSINIT::~AFX_CLASSINIT() {
    AfxGetModuleState()->m_classList.Remove(m_pClass);
}

CObject* AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject) {
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}
