// An extension module for tests: a window class to derive from, and resources of its own.
#pragma once

#include <afxwin.h>

#ifdef SECOND_MODULE_BUILD
#define SECOND_MODULE_API __declspec(dllexport)
#else
#define SECOND_MODULE_API __declspec(dllimport)
#endif

/// Its map lies in the module; programs derive from it.
class SECOND_MODULE_API ModuleWnd : public CWnd {
    DECLARE_DYNAMIC(ModuleWnd)

public:
    int m_nBaseSize = 0;  ///< calls of the module's WM_SIZE handler

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()
};
