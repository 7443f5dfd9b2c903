// Modules: the state of the process, extension modules and the chain in which their classes and
// resources are found.
#pragma once

#define __AFXDLL_H__

#include <afx.h>

#include <new>

class CWinApp;
class CDynLinkLibrary;
class COleObjectFactory;

/// A list that runs through a link in its elements. It owns nothing.
template <class Element, Element* Element::*pNext>
struct CTypedSimpleList {
    Element* m_pHead = nullptr;
    void AddHead(Element* p) {
        p->*pNext = m_pHead;
        m_pHead = p;
    }
    /// Gives FALSE if the element is not in the list.
    BOOL Remove(Element* p) {
        for (Element** pp = &m_pHead; *pp != nullptr; pp = &((*pp)->*pNext)) {
            if (*pp == p) {
                *pp = p->*pNext;
                p->*pNext = nullptr;
                return TRUE;
            }
        }
        return FALSE;
    }
};

/// Only the place in the list is known of a factory here.
class COleObjectFactory {
public:
    COleObjectFactory* m_pNextFactory = nullptr;
};

using CRuntimeClassList = CTypedSimpleList<CRuntimeClass, &CRuntimeClass::m_pNextClass>;
using CFactoryList = CTypedSimpleList<COleObjectFactory, &COleObjectFactory::m_pNextFactory>;

/// What an extension module keeps of itself, in static memory.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
    CRuntimeClass* pFirstSharedClass = nullptr;
    COleObjectFactory* pFirstSharedFactory = nullptr;
};

/// An extension module's entry in the chain. The framework owns the entries, so make them by new.
class QVAFX_API CDynLinkLibrary : public CObject {
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    /// bSystem: resources are looked up here after those of all other modules.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    ~CDynLinkLibrary() override;

#ifndef QVAFX_STRICT
    /// Made with new under the loader's lock, where no exception may pass: null without memory.
    static void* operator new(size_t nBytes) noexcept;
    static void* operator new(size_t nBytes, const std::nothrow_t&) noexcept;
    static void operator delete(void* p) noexcept;
#endif

    HMODULE m_hModule;
    HMODULE m_hResource;
    CRuntimeClassList m_classList;
    CFactoryList m_factoryList;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL = nullptr;
};

/// The state that the process's modules share.
struct AFX_MODULE_STATE {
    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
    LPCTSTR m_lpszCurrentAppName = nullptr;

    /// What static constructors have registered. A module's raw entry may park both heads in the
    /// init slots before its own static constructors run; AfxInitExtensionModule puts them back.
    CRuntimeClassList m_classList;
    CRuntimeClass* m_pClassInit = nullptr;
    CFactoryList m_factoryList;
    COleObjectFactory* m_pFactoryInit = nullptr;

    CTypedSimpleList<CDynLinkLibrary, &CDynLinkLibrary::m_pNextDLL> m_libraryList;
};

QVAFX_API AFX_MODULE_STATE* AfxGetModuleState();
QVAFX_API AFX_MODULE_STATE* AfxGetStaticModuleState();
QVAFX_API AFX_MODULE_STATE* AfxGetAppModuleState();

/// Fills the record at process attach and takes over the classes and factories that the module's
/// static constructors have registered: those that lie in its image. What a raw entry of the module
/// parked is put back. A second call does nothing. Gives FALSE without an instance.
QVAFX_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HINSTANCE hInstance);
/// Takes the module's entries out of the chain, and what it registered since out of the lists of
/// the process. bAll: the entries of all extension modules.
QVAFX_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

QVAFX_API HINSTANCE AfxGetInstanceHandle();
QVAFX_API HINSTANCE AfxGetResourceHandle();
QVAFX_API void AfxSetResourceHandle(HINSTANCE hInstResource);

/// The module that holds a resource: the application, then the extension modules, the latest to
/// join first, then system ones. The application's handle if none does.
QVAFX_API HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
#ifndef QVAFX_STRICT
/// The same for one string of the tables, which is not there where it is empty.
QVAFX_API HINSTANCE AfxFindStringResourceHandle(UINT nID);
#endif
/// Gives the length of the string copied, 0 if there is none. nMaxBuf in bytes.
QVAFX_API int AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);
