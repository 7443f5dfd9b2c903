#include "second_module.h"

static AFX_EXTENSION_MODULE s_module;

IMPLEMENT_DYNAMIC(ModuleObject, CObject)

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(s_module, hInstance)) {
            return FALSE;
        }
        new CDynLinkLibrary(s_module);
    } else if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(s_module);
    }
    return TRUE;
}
