// The words that declarations and checks are written in, and the version that programs test.
#pragma once

#include "afx/values/api.h"

#include <cstdlib>
#include <type_traits>

#define _AFX
#define _MFC_VER 0x0E00
#define _ATL_VER 0x0E00

// For extension modules: their own classes go out, everybody else's come in.
#define AFX_CLASS_EXPORT __declspec(dllexport)
#define AFX_CLASS_IMPORT __declspec(dllimport)
#define AFX_API_EXPORT __declspec(dllexport)
#define AFX_API_IMPORT __declspec(dllimport)
#define AFX_DATA_EXPORT __declspec(dllexport)
#define AFX_DATA_IMPORT __declspec(dllimport)
#ifdef _AFXEXT
#define AFX_EXT_CLASS AFX_CLASS_EXPORT
#define AFX_EXT_API AFX_API_EXPORT
#define AFX_EXT_DATA AFX_DATA_EXPORT
#else
#define AFX_EXT_CLASS AFX_CLASS_IMPORT
#define AFX_EXT_API AFX_API_IMPORT
#define AFX_EXT_DATA AFX_DATA_IMPORT
#endif
#define AFX_EXT_DATADEF
// A program's own declarations have none of these.
#define AFX_API
#define AFX_CLASS
#define AFX_DATA
#define AFX_DATADEF
#define AFX_COMDAT
#define AFX_STATIC extern
#define AFX_STATIC_DATA extern __declspec(selectany)
#define AFX_INLINE inline
#define AFX_NOVTABLE
#define AFX_CRT_ERRORCHECK(expr) (expr)

#define afx_msg
#define AFXAPI
#define AFXAPIENTRY __stdcall
#define AFX_CDECL
#define BASED_CODE
#define BASED_DEBUG
#define BASED_STACK
#define UNUSED_ALWAYS(x) (static_cast<void>(x))
#ifdef _DEBUG
#define UNUSED(x)
#else
#define UNUSED(x) UNUSED_ALWAYS(x)
#endif

#ifdef NDEBUG
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#else
/// Reports a failed assertion on the debugger's output and standard error, and breaks.
QVAFX_API void AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);
#define ASSERT(f) ((f) ? (void)0 : AfxAssertFailedLine(__FILE__, __LINE__))
#define VERIFY(f) ASSERT(f)
#endif
/// Calls the object's AssertValid, with NDEBUG nothing.
#define ASSERT_VALID(pOb) ASSERT((pOb) != nullptr && ((pOb)->AssertValid(), true))
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#define ASSERT_POINTER(p, type) \
    ASSERT((p) != nullptr && AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type) \
    ASSERT((p) == nullptr || AfxIsValidAddress((p), sizeof(type), FALSE))

[[noreturn]] QVAFX_API void AfxThrowInvalidArgException();
[[noreturn]] QVAFX_API void AfxThrowNotSupportedException();
// In every build: what does not hold is thrown as CInvalidArgException.
#define ENSURE_THROW(cond, exception) \
    do {                              \
        if (!(cond)) {                \
            exception;                \
        }                             \
    } while (false)
#define ENSURE(cond) ENSURE_THROW(cond, AfxThrowInvalidArgException())
#define ENSURE_ARG(cond) ENSURE(cond)
#define ENSURE_VALID(pOb) ENSURE_THROW((pOb) != nullptr, AfxThrowInvalidArgException())
#define ASSUME(cond) ASSERT(cond)

#ifndef ATLASSERT
#define ATLASSERT(expr) ASSERT(expr)
#endif
#ifndef ATLVERIFY
#define ATLVERIFY(expr) VERIFY(expr)
#endif
#ifndef ATLENSURE
#define ATLENSURE(expr) ENSURE(expr)
#endif
#define ATLTRACE TRACE

/// Whether memory can be read, or written, as far as the system knows at this moment.
QVAFX_API BOOL AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite = TRUE);
/// nLength: bytes at most to look for the terminator in; -1 for any.
QVAFX_API BOOL AfxIsValidString(LPCSTR lpsz, int nLength = -1);
/// FALSE if the run-time library's heap is damaged.
QVAFX_API BOOL AfxCheckMemory();
[[noreturn]] QVAFX_API void AfxAbort();

/// What traces may be sorted by. Nothing is filtered: a category goes before the text.
class CTraceCategory {
public:
    constexpr CTraceCategory(LPCSTR lpszName = nullptr) : m_lpszName(lpszName) {}
    LPCSTR GetCategoryName() const { return m_lpszName; }

private:
    LPCSTR m_lpszName;
};
inline constexpr CTraceCategory traceAppMsg("Messages");
inline constexpr CTraceCategory traceDumpContext("Dump");
inline constexpr CTraceCategory traceWinMsg("Windows");
inline constexpr CTraceCategory traceMemory("Memory");
inline constexpr CTraceCategory traceCmdRouting("Commands");
inline constexpr CTraceCategory traceOle("OLE");
inline constexpr CTraceCategory atlTraceGeneral("General");

/// An argument as a function with a variable list takes it: a string as its text.
template <class Arg>
auto AfxVarArg(const Arg& arg) {
    if constexpr (std::is_class_v<Arg> && std::is_convertible_v<const Arg&, LPCSTR>) {
        return static_cast<LPCSTR>(arg);
    } else if constexpr (std::is_class_v<Arg> && std::is_convertible_v<const Arg&, LPCWSTR>) {
        return static_cast<LPCWSTR>(arg);
    } else {
        return arg;
    }
}

/// Formatted text to the debugger; nothing in a release build.
QVAFX_API void AfxTraceText(LPCTSTR lpszFormat, ...);
template <class... Args>
void AfxTrace(LPCTSTR lpszFormat, Args... args) {
    AfxTraceText(lpszFormat, AfxVarArg(args)...);
}
template <class... Args>
void AfxTrace(const CTraceCategory& category, UINT, LPCTSTR lpszFormat, Args... args) {
    AfxTraceText("%s: ", category.GetCategoryName());
    AfxTraceText(lpszFormat, AfxVarArg(args)...);
}
#ifdef NDEBUG
#define TRACE(...) ((void)0)
#else
#define TRACE(...) AfxTrace(__VA_ARGS__)
#endif
#define TRACE0(sz) TRACE(sz)
#define TRACE1(sz, p1) TRACE(sz, p1)
#define TRACE2(sz, p1, p2) TRACE(sz, p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(sz, p1, p2, p3)

#ifndef DEBUG_NEW
#define DEBUG_NEW new
#endif
