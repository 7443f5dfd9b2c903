// The platform's headers and the words that every header of the framework uses.
#pragma once

#if defined(UNICODE) || defined(_UNICODE)
#error \
    "The framework stand-in takes 8-bit text: build with _MBCS and without UNICODE and _UNICODE, and let the program's manifest say activeCodePage UTF-8."
#endif

#if __cplusplus < 201703L
#error "QVControls and the framework stand-in need C++17 or later: build with -std=c++17."
#endif

// The modules were built without them, and their classes have members of the standard library.
#if defined(_GLIBCXX_DEBUG) || (defined(_GLIBCXX_USE_CXX11_ABI) && !_GLIBCXX_USE_CXX11_ABI)
#error \
    "_GLIBCXX_DEBUG and _GLIBCXX_USE_CXX11_ABI=0 change the layout of classes that QVControls shares with the program: build without them. _GLIBCXX_ASSERTIONS changes none."
#endif

// With QVAFX_STRICT, for compiling alone, the headers have what the published reference has,
// declared as it is there, and nothing that programs have here beyond it.

// Windows 7 is the oldest system that the modules run on.
#ifndef WINVER
#define WINVER 0x0601
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0601
#endif
#ifndef _WIN32_IE
#define _WIN32_IE 0x0700
#endif

#ifndef STRICT
#define STRICT
#endif
// Numbers of the system's bitmaps come with this.
#ifndef OEMRESOURCE
#define OEMRESOURCE
#endif
#include <windows.h>
#ifndef QVAFX_STRICT
#include <windowsx.h>
#endif

#include <commctrl.h>
#include <commdlg.h>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <shellapi.h>
#include <tchar.h>
#include <type_traits>
#include <winspool.h>

// Message crackers of the SDK that would rewrite members of the same name.
#undef GetFirstChild
#undef GetNextSibling
#undef GetPrevSibling
#undef GetTopWindow
#undef GetNextWindow
#undef SubclassWindow
#undef CopyRgn
#undef GetCurrentTime

// What those were, for callers of the platform's names.
inline HWND GetNextWindow(HWND hWnd, UINT nDirection) {
    return ::GetWindow(hWnd, nDirection);
}
inline DWORD GetCurrentTime() {
    return ::GetTickCount();
}
#ifndef QVAFX_STRICT
inline HWND GetFirstChild(HWND hWnd) {
    return ::GetTopWindow(hWnd);
}
inline HWND GetNextSibling(HWND hWnd) {
    return ::GetWindow(hWnd, GW_HWNDNEXT);
}
inline HWND GetPrevSibling(HWND hWnd) {
    return ::GetWindow(hWnd, GW_HWNDPREV);
}
inline WNDPROC SubclassWindow(HWND hWnd, WNDPROC pfnWndProc) {
    return reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(pfnWndProc)));
}
inline int CopyRgn(HRGN hrgnDst, HRGN hrgnSrc) {
    return ::CombineRgn(hrgnDst, hrgnSrc, nullptr, RGN_COPY);
}
#endif

// What the platform's headers define elsewhere as macros. Functions leave the names alone that
// others have in their scopes.
#if !defined(min) && !defined(max)
template <class First, class Second>
constexpr std::common_type_t<First, Second> min(const First& first, const Second& second) {
    return first < second ? first : second;
}
template <class First, class Second>
constexpr std::common_type_t<First, Second> max(const First& first, const Second& second) {
    return first < second ? second : first;
}
#endif

#ifdef QVAFX_BUILD
#define QVAFX_API __declspec(dllexport)
#else
#define QVAFX_API __declspec(dllimport)
#endif

#include "afx/values/words.h"
