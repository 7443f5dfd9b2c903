#include "frame/module_state.h"
#include "frame/qv_module.h"

namespace {

AFX_EXTENSION_MODULE extensionDLL;

}  // namespace

const CString g_strEmpty;

UINT g_nMsgMouseWheel = ::RegisterWindowMessage("MSWHEEL_ROLLMSG");

extern "C" BOOL WINAPI DllMainCRTStartup(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved);

// The module's entry point, before any of its static constructors runs. The class records that
// those are about to register would mix with the caller's; parking the heads of its lists keeps the
// two apart until AfxInitExtensionModule takes ours over.
extern "C" BOOL WINAPI QVRawEntry(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        AFX_MODULE_STATE* pState = AfxGetModuleState();
        pState->m_pClassInit = pState->m_classList.m_pHead;
        pState->m_pFactoryInit = pState->m_factoryList.m_pHead;
        pState->m_classList.m_pHead = nullptr;
        pState->m_factoryList.m_pHead = nullptr;
    }
    return DllMainCRTStartup(hInstance, dwReason, lpReserved);
}

// Runs after the static constructors, under the loader's lock. Never fails the load: without memory
// the module stays without an entry in the chain.
extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        AfxInitExtensionModule(extensionDLL, hInstance);
        InitQVControlExtensionDLL();
    } else if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(extensionDLL, FALSE);
    }
    return TRUE;
}

extern "C" CDynLinkLibrary* InitQVControlExtensionDLL() {
    try {
        return new CDynLinkLibrary(extensionDLL, FALSE);
    } catch (CMemoryException* pException) {
        pException->Delete();
    } catch (const std::bad_alloc&) {
        // the result says it
    }
    return nullptr;
}
