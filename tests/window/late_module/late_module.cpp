#include <afxdllx.h>
#include <afxwin.h>

static AFX_EXTENSION_MODULE LateModule;

/// Made by name alone; its message map lies in the module.
class LateWnd : public CWnd {
    DECLARE_DYNCREATE(LateWnd)

protected:
    afx_msg LRESULT OnAsk(WPARAM, LPARAM) { return 77; }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(LateWnd, CWnd)
BEGIN_MESSAGE_MAP(LateWnd, CWnd)
    ON_MESSAGE(WM_APP, &LateWnd::OnAsk)
END_MESSAGE_MAP()

extern "C" int APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(LateModule, hInstance)) {
            return 0;
        }
        new CDynLinkLibrary(LateModule);
    } else if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(LateModule);
    }
    return 1;
}
