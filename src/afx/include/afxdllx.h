// For the one source file of an extension module that holds its DllMain: included there alone.
#pragma once

#define __AFXDLLX_H__

#include <afxdll_.h>

extern "C" BOOL WINAPI DllMainCRTStartup(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved);

/// The module's entry point where the linker is told so, before any of its static constructors
/// runs. The class records that those are about to register would mix with the caller's; parking
/// the heads of its lists keeps the two apart until AfxInitExtensionModule takes the module's own
/// over.
extern "C" BOOL WINAPI AfxRawDllEntry(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        AFX_MODULE_STATE* pState = AfxGetModuleState();
        pState->m_pClassInit = pState->m_classList.m_pHead;
        pState->m_pFactoryInit = pState->m_factoryList.m_pHead;
        pState->m_classList.m_pHead = nullptr;
        pState->m_factoryList.m_pHead = nullptr;
    }
    return DllMainCRTStartup(hInstance, dwReason, lpReserved);
}
