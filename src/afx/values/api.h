// The platform's headers and the words that every header of the framework uses.
#pragma once

#ifdef UNICODE
#error "The framework stand-in is built for 8-bit multi-byte text."
#endif

#ifndef STRICT
#define STRICT
#endif
#include <windows.h>
#include <windowsx.h>

#include <commctrl.h>
#include <commdlg.h>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <shellapi.h>
#include <tchar.h>
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

#ifdef QVAFX_BUILD
#define QVAFX_API __declspec(dllexport)
#else
#define QVAFX_API __declspec(dllimport)
#endif

// For extension modules: their own classes go out, everybody else's come in.
#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#define AFX_EXT_API __declspec(dllexport)
#define AFX_EXT_DATA __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#define AFX_EXT_API __declspec(dllimport)
#define AFX_EXT_DATA __declspec(dllimport)
#endif

#define afx_msg
#define AFXAPI
#define AFX_CDECL

#ifdef NDEBUG
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#else
/// Reports a failed assertion on the debugger's output and standard error, and breaks.
QVAFX_API void AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);
#define ASSERT(f) ((f) ? (void)0 : AfxAssertFailedLine(__FILE__, __LINE__))
#define VERIFY(f) ASSERT(f)
#endif
#define ASSERT_VALID(pOb) ASSERT((pOb) != nullptr)
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))

/// Formatted text to the debugger; nothing in a release build.
QVAFX_API void AfxTrace(LPCTSTR lpszFormat, ...);
#ifdef NDEBUG
#define TRACE(...) ((void)0)
#else
#define TRACE(...) AfxTrace(__VA_ARGS__)
#endif
#define TRACE0(sz) TRACE(sz)
#define TRACE1(sz, p1) TRACE(sz, p1)
#define TRACE2(sz, p1, p2) TRACE(sz, p1, p2)

#ifndef DEBUG_NEW
#define DEBUG_NEW new
#endif
