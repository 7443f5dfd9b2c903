// Words of several scripts, as far as the process's code page has their characters.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

constexpr const wchar_t* kWords[] = {
    L"plain",
    L"Gr\u00FC\u00DFe",                  // in 1252
    L"\u201Ccurly\u201D \u20AC \u2013",  // in 1252, the signs above its controls
    L"\u65E5\u672C\u8A9E",               // in 932
    L"\u30BD\u30FC\u30B9\u8868\u793A",   // in 932 with trail bytes 5C
    L"\uFF76\uFF85",                     // in 932 as single bytes
    L"\u0141\u00F3d\u017A",              // in UTF-8 alone
    L"\u03A9mega \u0416",                // in UTF-8 and 932
    L"e\u0301 a\u0308",                  // letters with marks behind them
    L"smile \U0001F600!",                // two units
};

/// The text in the process's code page; false if it has no such characters.
inline bool ToPage(const std::wstring& strWide, std::string& str) {
    str.assign(strWide.size() * 4, '\0');
    BOOL bLost = FALSE;
    const bool bUtf8 = ::GetACP() == CP_UTF8;
    const int nBytes = ::WideCharToMultiByte(
        CP_ACP, bUtf8 ? 0 : WC_NO_BEST_FIT_CHARS, strWide.data(), static_cast<int>(strWide.size()),
        str.data(), static_cast<int>(str.size()), nullptr, bUtf8 ? nullptr : &bLost);
    str.resize(static_cast<size_t>(nBytes));
    return !bLost;
}

inline std::wstring FromPage(const std::string& str) {
    std::wstring strWide(str.size(), L'\0');
    strWide.resize(static_cast<size_t>(
        ::MultiByteToWideChar(CP_ACP, 0, str.data(), static_cast<int>(str.size()), strWide.data(),
                              static_cast<int>(strWide.size()))));
    return strWide;
}

/// Whether the keyboard has all of these characters; its code page need not be the process's.
inline bool OnKeyboard(const std::wstring& str) {
    const auto wLanguage = LOWORD(reinterpret_cast<DWORD_PTR>(::GetKeyboardLayout(0)));
    wchar_t szPage[8] = L"";
    ::GetLocaleInfoW(wLanguage, LOCALE_IDEFAULTANSICODEPAGE, szPage, 8);
    BOOL bLost = FALSE;
    char szKeys[100];
    return ::WideCharToMultiByte(static_cast<UINT>(_wtoi(szPage)), WC_NO_BEST_FIT_CHARS,
                                 str.c_str(), -1, szKeys, 100, nullptr, &bLost) > 0 &&
           !bLost;
}

/// All at one time, as the system brings keys to a window that is not wide.
inline void TypeWide(HWND hWnd, const std::wstring& str) {
    for (const wchar_t c : str) {
        ::SendMessageW(hWnd, WM_CHAR, c, 1);
    }
}

/// What the wide call says of a window.
inline std::wstring WideTextOf(HWND hWnd) {
    wchar_t szText[1000] = L"";
    ::GetWindowTextW(hWnd, szText, 1000);
    return szText;
}

/// One word in both forms.
struct PageWord {
    std::wstring strWide;
    std::string str;
};

/// Those of kWords that the code page has.
inline std::vector<PageWord> PageWords() {
    std::vector<PageWord> words;
    for (const wchar_t* pszWord : kWords) {
        PageWord word{pszWord, {}};
        if (ToPage(word.strWide, word.str)) {
            words.push_back(word);
        }
    }
    return words;
}

/// A long text of the longest characters of the code page, nChars of them.
inline PageWord LongWord(size_t nChars) {
    PageWord word;
    for (const wchar_t c : {L'\u65E5', L'\u00FC'}) {
        word.strWide.clear();
        for (size_t i = 0; i < nChars; ++i) {
            word.strWide +=
                i % 9 == 8 ? L' ' : static_cast<wchar_t>(c + (c == L'\u65E5' ? 0 : i % 3));
        }
        if (ToPage(word.strWide, word.str)) {
            break;
        }
    }
    return word;
}
