#include "afx/dialogs/find_replace_dialog.h"

#include "afx/values/wide_text.h"
#include "afx/window/wnd_state.h"

#include <afxdlgs.h>

#include <cstddef>

IMPLEMENT_DYNAMIC(CFindReplaceDialog, CCommonDialog)

CFindReplaceDialog::CFindReplaceDialog() : CCommonDialog(nullptr), m_fr() {
    m_fr.lStructSize = sizeof m_fr;
    m_fr.Flags = FR_ENABLEHOOK;
    m_fr.lpfnHook = &CFindReplaceDialog::SystemDialogHook;
    m_fr.lpstrFindWhat = m_szFindWhat;
    m_fr.wFindWhatLen = kMostText;
    m_fr.lpstrReplaceWith = m_szReplaceWith;
    m_fr.wReplaceWithLen = kMostText;
}

BOOL CFindReplaceDialog::Create(BOOL bFindDialogOnly, LPCTSTR lpszFindWhat, LPCTSTR lpszReplaceWith,
                                DWORD dwFlags, CWnd* pParentWnd) {
    m_fr.Flags |= dwFlags;
    m_fr.hwndOwner =
        pParentWnd != nullptr ? pParentWnd->GetSafeHwnd() : AfxGetMainWnd()->GetSafeHwnd();
    AfxCopyChars(m_szFindWhat, lpszFindWhat, kMostText);
    AfxCopyChars(m_szReplaceWith, lpszReplaceWith, kMostText);
    AfxWndState& state = AfxGetWndState();
    CWnd* const pOuter = state.pHookInit;
    state.pHookInit = this;
    const HWND hWnd = bFindDialogOnly ? ::FindText(&m_fr) : ::ReplaceText(&m_fr);
    state.pHookInit = pOuter;
    return hWnd != nullptr;
}

CFindReplaceDialog* CFindReplaceDialog::GetNotifier(LPARAM lParam) {
    // The structure is a member, so the object is around it.
    auto* pStart = reinterpret_cast<BYTE*>(lParam);
    static const ptrdiff_t s_nOffset = [] {
        const CFindReplaceDialog dlg;
        return reinterpret_cast<const BYTE*>(&dlg.m_fr) - reinterpret_cast<const BYTE*>(&dlg);
    }();
    return lParam != 0 ? reinterpret_cast<CFindReplaceDialog*>(pStart - s_nOffset) : nullptr;
}

void CFindReplaceDialog::PostNcDestroy() {
    delete this;
}
