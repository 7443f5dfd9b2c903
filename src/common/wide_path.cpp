#include "common/wide_path.h"

namespace qv {

namespace {

constexpr DWORD kLongPath = MAX_PATH - 12;  // less what a folder's short name may need

std::wstring Wide(std::string_view text) {
    std::wstring strWide(text.size(), 0);
    const int nBytes = static_cast<int>(text.size());
    strWide.resize(static_cast<std::size_t>(
        ::MultiByteToWideChar(CP_ACP, 0, text.data(), nBytes, strWide.data(), nBytes)));
    return strWide;
}

// Empty if the code page lacks a character.
CString Narrow(const wchar_t* pszWide) {
    const bool bAll = ::GetACP() == CP_UTF8;
    BOOL bLost = FALSE;
    const int nWide = static_cast<int>(wcslen(pszWide));
    const int nBytes =
        ::WideCharToMultiByte(CP_ACP, 0, pszWide, nWide, nullptr, 0, nullptr, nullptr);
    CString strText;
    ::WideCharToMultiByte(CP_ACP, bAll ? 0 : WC_NO_BEST_FIT_CHARS, pszWide, nWide,
                          strText.GetBuffer(nBytes), nBytes, nullptr, bAll ? nullptr : &bLost);
    strText.ReleaseBuffer(bLost ? 0 : nBytes);
    return strText;
}

}  // namespace

CString NarrowPath(const wchar_t* pszPath) {
    CString strPath = Narrow(pszPath);
    wchar_t szShort[MAX_PATH];
    if (strPath.IsEmpty() && ::GetShortPathNameW(pszPath, szShort, MAX_PATH) - 1 < MAX_PATH - 1) {
        strPath = Narrow(szShort);
    }
    return strPath;
}

std::wstring WidePath(std::string_view path) {
    const std::wstring strWide = Wide(path);
    if (strWide.size() < kLongPath || strWide.compare(0, 4, L"\\\\?\\") == 0) {
        return strWide;
    }
    std::wstring strFull(::GetFullPathNameW(strWide.c_str(), 0, nullptr, nullptr), 0);
    if (strFull.empty()) {
        return strWide;
    }
    strFull.resize(::GetFullPathNameW(strWide.c_str(), static_cast<DWORD>(strFull.size()),
                                      strFull.data(), nullptr));
    return strFull.compare(0, 2, L"\\\\") == 0 ? L"\\\\?\\UNC" + strFull.substr(1)
                                               : L"\\\\?\\" + strFull;
}

}  // namespace qv
