// What is on the clipboard, in the process's code page.
#pragma once

#include <afxwin.h>

#include <string>

inline std::wstring WideClipboard() {
    std::wstring str;
    if (::OpenClipboard(nullptr)) {
        const HANDLE hText = ::GetClipboardData(CF_UNICODETEXT);
        const auto* psz = hText != nullptr ? static_cast<const wchar_t*>(::GlobalLock(hText)) : L"";
        str = psz;
        ::GlobalUnlock(hText);
        ::CloseClipboard();
    }
    return str;
}

inline std::string Clipboard() {
    return std::string(CString(WideClipboard().c_str()));
}

/// As another program puts it there.
inline void SetClipboard(const std::wstring& str) {
    const size_t nBytes = (str.size() + 1) * sizeof(wchar_t);
    const HGLOBAL hText = ::GlobalAlloc(GMEM_MOVEABLE, nBytes);
    memcpy(::GlobalLock(hText), str.c_str(), nBytes);
    ::GlobalUnlock(hText);
    ::OpenClipboard(nullptr);
    ::EmptyClipboard();
    ::SetClipboardData(CF_UNICODETEXT, hText);
    ::CloseClipboard();
}
