#include "afx/window/wnd_state.h"

#include <exception>
#include <new>

AfxWndState& AfxGetWndState() {
    static AfxWndState first;
    static thread_local AfxWndState other;
    return AfxInFirstThread() ? first : other;
}

namespace {

/// Dresses up an exception of the language or of a foreign library for the framework's reporting.
/// Lives on the stack of whoever reports: there may be no memory.
class ForeignException : public CException {
public:
    explicit ForeignException(const char* pszWhat) : CException(FALSE) {
        lstrcpyn(m_szWhat, pszWhat, _countof(m_szWhat));
    }

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) override {
        if (pnHelpContext != nullptr) {
            *pnHelpContext = 0;
        }
        if (lpszError == nullptr || nMaxError == 0) {
            return FALSE;
        }
        lstrcpyn(lpszError, m_szWhat, static_cast<int>(nMaxError));
        return TRUE;
    }

private:
    char m_szWhat[256];
};

/// What the system gets where nobody could be told.
LRESULT ResultUntold(const MSG& msg) {
    if (msg.message == WM_PAINT) {
        ::ValidateRect(msg.hwnd, nullptr);  // or it would be painted again at once, for ever
    }
    return msg.message == WM_CREATE ? -1 : 0;
}

// The application's answer may throw in its turn; that ends here.
LRESULT ProcessException(CException* e, const MSG& msg) {
    LRESULT lResult = 0;
    try {
        CWinThread* pThread = AfxGetThread();
        lResult =
            pThread != nullptr ? pThread->ProcessWndProcException(e, &msg) : ResultUntold(msg);
    } catch (CException* pSecond) {
        if (pSecond != e) {
            pSecond->Delete();
        }
        lResult = ResultUntold(msg);
    } catch (...) {
        lResult = ResultUntold(msg);
    }
    e->Delete();
    return lResult;
}

}  // namespace

LRESULT AfxProcessCurrentException(const MSG& msg) {
    try {
        throw;
    } catch (CException* e) {
        return ProcessException(e, msg);
    } catch (const std::bad_alloc&) {
        CMemoryException memory(FALSE);
        return ProcessException(&memory, msg);
    } catch (const std::exception& e) {
        ForeignException foreign(e.what());
        return ProcessException(&foreign, msg);
    } catch (...) {
        ForeignException unknown("unknown exception");
        return ProcessException(&unknown, msg);
    }
}

int CALLBACK AfxCompareGuard::Call(LPARAM lParam1, LPARAM lParam2, LPARAM lGuard) {
    auto* pGuard = reinterpret_cast<AfxCompareGuard*>(lGuard);
    if (pGuard->m_pThrown != nullptr) {
        return 0;
    }
    try {
        return pGuard->m_pfnCompare(lParam1, lParam2, pGuard->m_lParamSort);
    } catch (...) {
        pGuard->m_pThrown = std::current_exception();
        return 0;
    }
}

BOOL AfxCompareGuard::Result(BOOL bSorted, HWND hWnd, UINT message) const {
    if (m_pThrown == nullptr) {
        return bSorted;
    }
    try {
        std::rethrow_exception(m_pThrown);
    } catch (...) {
        AfxProcessCurrentException(hWnd, message);
    }
    return FALSE;
}

LRESULT AfxProcessCurrentException(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG msg = {};
    msg.hwnd = hWnd;
    msg.message = message;
    msg.wParam = wParam;
    msg.lParam = lParam;
    return AfxProcessCurrentException(msg);
}
