#include "base/no_memory.h"
#include "frame/module_state.h"
#include "frame/qv_module.h"

// Brings what runs before the static constructors.
#include <afxdllx.h>

namespace {

AFX_EXTENSION_MODULE extensionDLL;

// What the framework's own new throws.
bool IsMemoryException() {
    try {
        throw;
    } catch (CMemoryException* pException) {
        pException->Delete();
        return true;
    } catch (...) {
        return false;
    }
}

}  // namespace

const CString g_strEmpty;

UINT g_nMsgMouseWheel = ::RegisterWindowMessage("MSWHEEL_ROLLMSG");

// Runs after the static constructors, under the loader's lock. Never fails the load: without memory
// the module stays without an entry in the chain.
extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        qv::SetOtherWordForNoMemory(IsMemoryException);
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
