// What the dialogs share: texts that callers set. And of message box and prompt, the check box.

#pragma once

#include "frame/out_of_memory.h"

#include <afxwin.h>

namespace qv {

// Without memory the text stays what it was.
inline void StoreText(CString& strText, const CString& strNew) {
    MemorySuffices([&] { strText = strNew; });
}

inline void StoreText(CString& strText, LPCSTR pszNew) {
    MemorySuffices([&] { strText = pszNew; });
}

// A string that does not load is an empty one.
inline void StoreText(CString& strText, UINT nStringID) {
    strText.Empty();
    MemorySuffices([&] { strText.LoadString(nStringID); });
}

// The template's title and the hidden check box stay where there is no text for them.
inline void ShowTitleAndCheck(CWnd& dlg, const CString& strTitle, CButton& check,
                              const CString& strCheck, BOOL bCheckEnabled) {
    if (!strTitle.IsEmpty()) {
        dlg.SetWindowText(strTitle);
    }
    if (!strCheck.IsEmpty()) {
        check.SetWindowText(strCheck);
        check.ShowWindow(SW_SHOW);
        check.EnableWindow(bCheckEnabled);
    }
}

}  // namespace qv
