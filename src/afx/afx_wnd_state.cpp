#include "afx_wnd_state.h"

#include <exception>

AfxWndState& AfxGetWndState() {
    static thread_local AfxWndState state;
    return state;
}

namespace {

/// Dresses up an exception of the language or of a foreign library for the framework's reporting.
class ForeignException : public CException {
public:
    explicit ForeignException(const char* pszWhat) : m_strWhat(pszWhat) {}

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) override {
        if (pnHelpContext != nullptr) {
            *pnHelpContext = 0;
        }
        if (lpszError == nullptr || nMaxError == 0) {
            return FALSE;
        }
        lstrcpyn(lpszError, m_strWhat, static_cast<int>(nMaxError));
        return TRUE;
    }

private:
    CString m_strWhat;
};

LRESULT ProcessException(CException* e, const MSG& msg) {
    LRESULT lResult = 0;
    if (CWinThread* pThread = AfxGetThread()) {
        lResult = pThread->ProcessWndProcException(e, &msg);
    } else if (msg.message == WM_CREATE) {
        lResult = -1;
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
    } catch (const std::exception& e) {
        return ProcessException(new ForeignException(e.what()), msg);
    } catch (...) {
        return ProcessException(new ForeignException("unknown exception"), msg);
    }
}
