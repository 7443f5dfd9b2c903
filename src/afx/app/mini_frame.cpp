#include "afx/app/mini_frame.h"

#include <afxwin.h>

IMPLEMENT_DYNCREATE(CMiniFrameWnd, CFrameWnd)

CMiniFrameWnd::~CMiniFrameWnd() = default;

BOOL CMiniFrameWnd::Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle,
                           const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, lpClassName, lpWindowName, dwStyle, rect, pParentWnd, nID);
}

BOOL CMiniFrameWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName,
                             DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    m_strTitle = lpWindowName;
    constexpr DWORD kSizable = MFS_THICKFRAME | MFS_4THICKFRAME;
    if (dwStyle & kSizable) {
        dwStyle |= WS_THICKFRAME;
    }
    // The low word of a window's style is its class's; these are not meant for it.
    dwStyle &= ~static_cast<DWORD>(MFS_SYNCACTIVE | kSizable | MFS_MOVEFRAME | MFS_BLOCKSYSMENU);
    return CWnd::CreateEx(dwExStyle | WS_EX_TOOLWINDOW, lpClassName, lpWindowName,
                          dwStyle | WS_POPUP, rect, pParentWnd, nID);
}
