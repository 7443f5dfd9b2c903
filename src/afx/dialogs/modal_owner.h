// What a modal loop does to the windows beside its dialog. Internal to the framework.
#pragma once

#include <afxwin.h>

#include <new>

/// A window disabled while this lives. The owner of a modal dialog must be enabled again before
/// the dialog is destroyed, or the system activates somebody else. One that was disabled before
/// stays so, though the system enables the owner of each dialog that ends.
class AfxDisabledOwner {
public:
    explicit AfxDisabledOwner(HWND hWnd)
        : m_hWnd(hWnd != ::GetDesktopWindow() ? hWnd : nullptr),
          m_bEnabled(::IsWindowEnabled(m_hWnd)) {
        ::EnableWindow(m_hWnd, FALSE);
    }
    ~AfxDisabledOwner() { ::EnableWindow(m_hWnd, m_bEnabled); }
    AfxDisabledOwner(const AfxDisabledOwner&) = delete;
    AfxDisabledOwner& operator=(const AfxDisabledOwner&) = delete;

private:
    HWND m_hWnd;
    BOOL m_bEnabled;
};

/// FALSE if run threw: want of memory or another exception of the framework's, which ends here.
template <class Run>
BOOL AfxEndsQuietly(Run run) {
    try {
        run();
        return TRUE;
    } catch (CException* e) {
        e->Delete();
    } catch (const std::bad_alloc&) {
    }
    return FALSE;
}

/// Where a command goes that a dialog-like window has no handler for: to its parent and to the
/// thread, if it is a command proper. Control codes end at the window.
BOOL AfxRouteDialogCommand(CWnd* pWnd, UINT nID, int nCode, void* pExtra,
                           AFX_CMDHANDLERINFO* pHandlerInfo);

/// Calls OnInitDialog of the dialog that hWnd belongs to. What it throws goes to the application;
/// a dialog that threw ends, a page stays.
INT_PTR CALLBACK AfxDialogProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
