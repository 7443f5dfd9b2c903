#include <afxwin.h>
// Brings what runs before the static constructors, where the framework wants it.
#include <afxdllx.h>

namespace {

AFX_EXTENSION_MODULE extensionDLL;

}  // namespace

// Without resources and runtime classes, the module needs no entry in the chain.
extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        AfxInitExtensionModule(extensionDLL, hInstance);
    } else if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(extensionDLL, FALSE);
    }
    return TRUE;
}
