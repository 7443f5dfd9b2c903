#include "afxdll_.h"

#include "afx_cmdtarget.h"

#include <memory>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

AFX_MODULE_STATE* AfxGetModuleState() {
    // Made on first use: static constructors of any module may come before this module's own.
    static AFX_MODULE_STATE state;
    return &state;
}

AFX_MODULE_STATE* AfxGetStaticModuleState() {
    return AfxGetModuleState();
}

AFX_MODULE_STATE* AfxGetAppModuleState() {
    return AfxGetModuleState();
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem) {
    m_classList.m_pHead = state.pFirstSharedClass;
    m_factoryList.m_pHead = state.pFirstSharedFactory;
    AfxGetModuleState()->m_libraryList.AddHead(this);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    AfxGetModuleState()->m_libraryList.Remove(this);
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HINSTANCE hInstance) {
    if (state.bInitialized) {
        return TRUE;
    }
    if (hInstance == nullptr) {
        return FALSE;
    }
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    state.bInitialized = TRUE;
    state.hModule = state.hResource = hInstance;
    state.pFirstSharedClass = pState->m_classList.m_pHead;
    state.pFirstSharedFactory = pState->m_factoryList.m_pHead;
    pState->m_classList.m_pHead = pState->m_pClassInit;
    pState->m_factoryList.m_pHead = pState->m_pFactoryInit;
    pState->m_pClassInit = nullptr;
    pState->m_pFactoryInit = nullptr;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll) {
    if (!state.bInitialized) {
        return;
    }
    CDynLinkLibrary* pNext = nullptr;
    for (CDynLinkLibrary* pDll = AfxGetModuleState()->m_libraryList.m_pHead; pDll != nullptr;
         pDll = pNext) {
        pNext = pDll->m_pNextDLL;
        if (bAll || pDll->m_hModule == state.hModule) {
            delete pDll;
        }
    }
    state.bInitialized = FALSE;
    AfxForgetMessageMaps();
}

HINSTANCE AfxGetInstanceHandle() {
    const HINSTANCE hInstance = AfxGetModuleState()->m_hCurrentInstanceHandle;
    return hInstance != nullptr ? hInstance : ::GetModuleHandle(nullptr);
}

HINSTANCE AfxGetResourceHandle() {
    const HINSTANCE hInstance = AfxGetModuleState()->m_hCurrentResourceHandle;
    return hInstance != nullptr ? hInstance : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE hInstResource) {
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
    const HINSTANCE hApp = AfxGetResourceHandle();
    if (::FindResource(hApp, lpszName, lpszType) != nullptr) {
        return hApp;
    }
    for (const BOOL bSystem : {FALSE, TRUE}) {
        for (CDynLinkLibrary* pDll = AfxGetModuleState()->m_libraryList.m_pHead; pDll != nullptr;
             pDll = pDll->m_pNextDLL) {
            if (pDll->m_bSystem == bSystem && pDll->m_hResource != nullptr &&
                ::FindResource(pDll->m_hResource, lpszName, lpszType) != nullptr) {
                return pDll->m_hResource;
            }
        }
    }
    return hApp;
}

int AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf) {
    // Strings lie in tables of sixteen, which are the resources.
    const LPCTSTR lpszTable = MAKEINTRESOURCE((nIDS >> 4) + 1);
    const int nLength = ::LoadString(AfxFindResourceHandle(lpszTable, RT_STRING), nIDS, lpszBuf,
                                     static_cast<int>(nMaxBuf));
    if (nLength == 0 && nMaxBuf > 0) {
        lpszBuf[0] = 0;
    }
    return nLength;
}

void AfxAssertFailedLine(LPCSTR lpszFileName, int nLine) {
    AfxTrace("%s(%d): assertion failed\n", lpszFileName, nLine);
    std::fprintf(stderr, "%s(%d): assertion failed\n", lpszFileName, nLine);
    ::DebugBreak();
}

void AfxTrace(LPCTSTR lpszFormat, ...) {
    char szText[512];
    va_list args;
    va_start(args, lpszFormat);
    std::vsnprintf(szText, sizeof(szText), lpszFormat, args);
    va_end(args);
    ::OutputDebugString(szText);
}
