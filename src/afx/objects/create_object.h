// Objects by their runtime class. Internal to the framework.
#pragma once

#include "afx/objects/object.h"

/// An object of the class, or null if that makes no Class.
template <class Class>
Class* AfxCreateOf(CRuntimeClass* pClass) {
    CObject* pObject = pClass != nullptr ? pClass->CreateObject() : nullptr;
    auto* pMade = DYNAMIC_DOWNCAST(Class, pObject);
    if (pMade == nullptr) {
        delete pObject;
    }
    return pMade;
}
