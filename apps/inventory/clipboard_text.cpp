#include "clipboard_text.h"

bool CopyText(CWnd& owner, const CString& strText) {
    const int nWide = ::MultiByteToWideChar(CP_ACP, 0, strText, -1, nullptr, 0);
    const HGLOBAL hText = ::GlobalAlloc(GMEM_MOVEABLE, static_cast<size_t>(nWide) * sizeof(WCHAR));
    if (hText == nullptr || !owner.OpenClipboard()) {
        ::GlobalFree(hText);
        return false;
    }
    ::MultiByteToWideChar(CP_ACP, 0, strText, -1, static_cast<WCHAR*>(::GlobalLock(hText)), nWide);
    ::GlobalUnlock(hText);
    const bool bTaken = ::EmptyClipboard() && ::SetClipboardData(CF_UNICODETEXT, hText) != nullptr;
    if (!bTaken) {
        ::GlobalFree(hText);
    }
    ::CloseClipboard();
    return bTaken;
}

bool ClipboardHasText() {
    return ::IsClipboardFormatAvailable(CF_UNICODETEXT) || ::IsClipboardFormatAvailable(CF_TEXT);
}

CString ClipboardText(CWnd& owner) {
    CString strText;
    if (owner.OpenClipboard()) {
        const HANDLE hText = ::GetClipboardData(CF_UNICODETEXT);
        if (const auto* pszText = static_cast<const WCHAR*>(::GlobalLock(hText))) {
            strText = pszText;
            ::GlobalUnlock(hText);
        }
        ::CloseClipboard();
    }
    return strText;
}
