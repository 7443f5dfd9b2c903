#include "second_module.h"

static AFX_EXTENSION_MODULE s_module;

IMPLEMENT_DYNAMIC(ModuleWnd, CWnd)

BEGIN_MESSAGE_MAP(ModuleWnd, CWnd)
    ON_WM_SIZE()
END_MESSAGE_MAP()

void ModuleWnd::OnSize(UINT nType, int cx, int cy) {
    ++m_nBaseSize;
    CWnd::OnSize(nType, cx, cy);
}

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
