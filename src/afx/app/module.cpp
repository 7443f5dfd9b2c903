#include "afx/window/cmdtarget.h"

#include <afxdll_.h>

#include <cstdlib>

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

void* CDynLinkLibrary::operator new(size_t nBytes) noexcept {
    return std::malloc(nBytes);
}

void* CDynLinkLibrary::operator new(size_t nBytes, const std::nothrow_t&) noexcept {
    return std::malloc(nBytes);
}

void CDynLinkLibrary::operator delete(void* p) noexcept {
    std::free(p);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    AfxGetModuleState()->m_libraryList.Remove(this);
}

namespace {

/// Where a module lies.
class ModuleImage {
public:
    explicit ModuleImage(HMODULE hModule) : m_pBegin(reinterpret_cast<const BYTE*>(hModule)) {
        const auto* pDos = reinterpret_cast<const IMAGE_DOS_HEADER*>(m_pBegin);
        const auto* pNt = reinterpret_cast<const IMAGE_NT_HEADERS*>(m_pBegin + pDos->e_lfanew);
        m_nBytes = pNt->OptionalHeader.SizeOfImage;
    }
    bool Holds(const void* p) const { return p >= m_pBegin && p < m_pBegin + m_nBytes; }

private:
    const BYTE* m_pBegin;
    size_t m_nBytes;
};

/// Takes the records that lie in an image out of a list, and gives them as a list of their own, in
/// the same order.
template <class Element, Element* Element::*pNext>
Element* TakeOut(CTypedSimpleList<Element, pNext>& list, const ModuleImage& image) {
    Element* pTaken = nullptr;
    Element** ppTakenEnd = &pTaken;
    for (Element** pp = &list.m_pHead; *pp != nullptr;) {
        Element* p = *pp;
        if (!image.Holds(p)) {
            pp = &(p->*pNext);
            continue;
        }
        *pp = p->*pNext;
        p->*pNext = nullptr;
        *ppTakenEnd = p;
        ppTakenEnd = &(p->*pNext);
    }
    return pTaken;
}

/// Puts what was parked behind a list's elements.
template <class Element, Element* Element::*pNext>
void PutBack(CTypedSimpleList<Element, pNext>& list, Element*& pParked) {
    Element** pp = &list.m_pHead;
    while (*pp != nullptr) {
        pp = &((*pp)->*pNext);
    }
    *pp = pParked;
    pParked = nullptr;
}

}  // namespace

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
    // By place rather than by time: a module without a raw entry of its own registers straight into
    // the lists of whoever loads it.
    const ModuleImage image(hInstance);
    state.pFirstSharedClass = TakeOut(pState->m_classList, image);
    state.pFirstSharedFactory = TakeOut(pState->m_factoryList, image);
    PutBack(pState->m_classList, pState->m_pClassInit);
    PutBack(pState->m_factoryList, pState->m_pFactoryInit);
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
    const ModuleImage image(state.hModule);
    TakeOut(AfxGetModuleState()->m_classList, image);
    TakeOut(AfxGetModuleState()->m_factoryList, image);
    state.pFirstSharedClass = nullptr;
    state.pFirstSharedFactory = nullptr;
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

/// The first module of the chain that has it; the application where none has.
template <class Has>
static HINSTANCE FindInModules(Has has) {
    const HINSTANCE hApp = AfxGetResourceHandle();
    if (has(hApp)) {
        return hApp;
    }
    for (const BOOL bSystem : {FALSE, TRUE}) {
        for (CDynLinkLibrary* pDll = AfxGetModuleState()->m_libraryList.m_pHead; pDll != nullptr;
             pDll = pDll->m_pNextDLL) {
            if (pDll->m_bSystem == bSystem && pDll->m_hResource != nullptr &&
                has(pDll->m_hResource)) {
                return pDll->m_hResource;
            }
        }
    }
    return hApp;
}

HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
    return FindInModules(
        [=](HINSTANCE hModule) { return ::FindResource(hModule, lpszName, lpszType) != nullptr; });
}

HINSTANCE AfxFindStringResourceHandle(UINT nID) {
    // Strings lie in tables of sixteen, which are the resources: one that a module has says nothing
    // of the others.
    return FindInModules([=](HINSTANCE hModule) {
        LPCWSTR pText = nullptr;
        return ::LoadStringW(hModule, nID, reinterpret_cast<LPWSTR>(&pText), 0) > 0;
    });
}

int AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf) {
    const int nLength =
        ::LoadString(AfxFindStringResourceHandle(nIDS), nIDS, lpszBuf, static_cast<int>(nMaxBuf));
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

void AfxTraceText(LPCTSTR lpszFormat, ...) {
    char szText[512];
    va_list args;
    va_start(args, lpszFormat);
    std::vsnprintf(szText, sizeof(szText), lpszFormat, args);
    va_end(args);
    ::OutputDebugString(szText);
}
