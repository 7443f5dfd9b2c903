#include "frame/clipboard.h"

#include "frame/text_out.h"

#include <algorithm>

namespace qv {

bool CopyText(CWnd& wnd, std::string_view text) {
    const HGLOBAL hText = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, text.size() + 1);
    auto* pText = static_cast<char*>(hText != nullptr ? ::GlobalLock(hText) : nullptr);
    if (pText == nullptr) {
        ::GlobalFree(hText);
        return false;
    }
    *std::copy(text.begin(), text.end(), pText) = '\0';
    ::GlobalUnlock(hText);
    return GiveToClipboard(wnd, hText);
}

namespace {

class OpenedClipboard {
public:
    explicit OpenedClipboard(CWnd& wnd) : m_bOpen(wnd.OpenClipboard() != FALSE) {}
    ~OpenedClipboard() {
        if (m_bOpen) {
            ::CloseClipboard();
        }
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    HGLOBAL WideText() const { return m_bOpen ? ::GetClipboardData(CF_UNICODETEXT) : nullptr; }

private:
    bool m_bOpen;
};

// The units of a block as long as it is locked.
class LockedText {
public:
    explicit LockedText(HGLOBAL hText)
        : m_hText(hText),
          m_pUnits(hText != nullptr ? static_cast<const wchar_t*>(::GlobalLock(hText)) : nullptr) {}
    ~LockedText() {
        if (m_pUnits != nullptr) {
            ::GlobalUnlock(m_hText);
        }
    }
    LockedText(const LockedText&) = delete;
    LockedText& operator=(const LockedText&) = delete;
    explicit operator bool() const { return m_pUnits != nullptr; }
    // Up to its terminator, which another program may have left out.
    std::wstring_view View() const {
        const std::wstring_view all(m_pUnits, ::GlobalSize(m_hText) / sizeof(wchar_t));
        return all.substr(0, all.find(L'\0'));
    }

private:
    HGLOBAL m_hText;
    const wchar_t* m_pUnits;
};

}  // namespace

bool PasteText(CWnd& wnd, std::string& strText) {
    const OpenedClipboard clipboard(wnd);
    const LockedText locked(clipboard.WideText());
    if (!locked) {
        return false;
    }
    const std::wstring_view wide = locked.View();
    const int nUnits = static_cast<int>(wide.size());
    std::string strBytes(static_cast<size_t>(::WideCharToMultiByte(CP_ACP, 0, wide.data(), nUnits,
                                                                   nullptr, 0, nullptr, nullptr)),
                         '\0');
    ::WideCharToMultiByte(CP_ACP, 0, wide.data(), nUnits, strBytes.data(),
                          static_cast<int>(strBytes.size()), nullptr, nullptr);
    strText = std::move(strBytes);
    return true;
}

}  // namespace qv
