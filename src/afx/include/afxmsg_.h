// The entries of a message map. Each turns a message's parameters into the arguments of a typed
// handler; a handler whose signature differs from the published one does not compile.
#pragma once

#define __AFXMSG_H__

#include "afx/window/cmdtarget.h"

// Reflected messages come back to the child under their number plus this.
#define WM_REFLECT_BASE 0xBC00

#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019  // stands for all WM_CTLCOLOR... messages in maps and handlers
#endif

/// What WM_CTLCOLOR carries in lParam once the window has taken the message apart.
struct AFX_CTLCOLOR {
    HWND hWnd;
    HDC hDC;
    UINT nCtlType;
};

// A handler's result as a message result.
inline LRESULT AfxMsgResult(HBRUSH hbr) {
    return reinterpret_cast<LRESULT>(hbr);
}
inline LRESULT AfxMsgResult(HCURSOR hCursor) {
    return reinterpret_cast<LRESULT>(hCursor);
}
inline LRESULT AfxMsgResult(LRESULT lResult) {
    return lResult;
}
inline LRESULT AfxMsgResult(int nResult) {
    return nResult;
}
inline LRESULT AfxMsgResult(UINT nResult) {
    return static_cast<LRESULT>(nResult);
}

// Timers came with 32 bits once, and programs from then have them so.
template <class Target, class Base>
void AfxCallTimer(Target* pTarget, void (Base::*pfn)(UINT_PTR), WPARAM wParam) {
    (pTarget->*pfn)(wParam);
}
#if defined(_WIN64) && !defined(QVAFX_STRICT)
template <class Target, class Base>
void AfxCallTimer(Target* pTarget, void (Base::*pfn)(UINT), WPARAM wParam) {
    (pTarget->*pfn)(static_cast<UINT>(wParam));
}
#endif

// Parameters as arguments. They read the names that AFX_ENTRY_ declares.
#define AFX_WP_ call.wParam
#define AFX_LP_ call.lParam
#define AFX_WPLO_ LOWORD(call.wParam)
#define AFX_WPHI_ HIWORD(call.wParam)
#define AFX_LPLO_ LOWORD(call.lParam)
#define AFX_LPHI_ HIWORD(call.lParam)
#define AFX_LPX_ static_cast<short>(LOWORD(call.lParam))
#define AFX_LPY_ static_cast<short>(HIWORD(call.lParam))
#define AFX_LPPOINT_ CPoint(AFX_LPX_, AFX_LPY_)
#define AFX_WPWND_ CWnd::FromHandle(reinterpret_cast<HWND>(call.wParam))
#define AFX_LPWND_ CWnd::FromHandle(reinterpret_cast<HWND>(call.lParam))
#define AFX_LPBAR_ static_cast<CScrollBar*>(AFX_LPWND_)
#define AFX_WPMENU_ CMenu::FromHandle(reinterpret_cast<HMENU>(call.wParam))
#define AFX_LPMENU_ CMenu::FromHandle(reinterpret_cast<HMENU>(call.lParam))
#define AFX_WPDC_ CDC::FromHandle(reinterpret_cast<HDC>(call.wParam))
#define AFX_LPAS_(type) reinterpret_cast<type>(call.lParam)
#define AFX_WPAS_(type) reinterpret_cast<type>(call.wParam)

#define AFX_ENTRY_(message, code, id, lastId, registered, ...)                                 \
    {message,                                                                                  \
     static_cast<WORD>(code),                                                                  \
     static_cast<UINT>(id),                                                                    \
     static_cast<UINT>(lastId),                                                                \
     registered,                                                                               \
     []([[maybe_unused]] CCmdTarget* pTarget, [[maybe_unused]] AFX_MSGCALL& call) -> LRESULT { \
         __VA_ARGS__                                                                           \
     }},

// fn is written &ThisClass::Handler; ret and params are the published signature.
#define AFX_PMF_(fn, ret, params) \
    (static_cast<ThisClass*>(pTarget)->*static_cast<ret(ThisClass::*) params>(fn))

#define AFX_VOID_(message, fn, params, ...) \
    AFX_ENTRY_(message, 0, 0, 0, nullptr, AFX_PMF_(fn, void, params)(__VA_ARGS__); return 0;)
// For messages whose sender wants to hear TRUE from who handled them.
#define AFX_DONE_(message, fn, params, ...) \
    AFX_ENTRY_(message, 0, 0, 0, nullptr, AFX_PMF_(fn, void, params)(__VA_ARGS__); return TRUE;)
#define AFX_RESULT_(message, fn, ret, params, ...) \
    AFX_ENTRY_(message, 0, 0, 0, nullptr,          \
               return AfxMsgResult(AFX_PMF_(fn, ret, params)(__VA_ARGS__));)

// Commands
#define AFX_COMMAND_(code, id, lastId, fn, params, ...)                                        \
    AFX_ENTRY_(WM_COMMAND, code, id, lastId, nullptr, AFX_PMF_(fn, void, params)(__VA_ARGS__); \
               return 0;)
#define AFX_COMMAND_EX_(message, code, id, lastId, fn, params, ...)     \
    AFX_ENTRY_(message, code, id, lastId, nullptr,                      \
               call.bHandled = AFX_PMF_(fn, BOOL, params)(__VA_ARGS__); \
               return 0;)
#define ON_COMMAND(id, memberFxn) AFX_COMMAND_(CN_COMMAND, id, id, memberFxn, (), )
#define ON_COMMAND_RANGE(id, idLast, memberFxn) \
    AFX_COMMAND_(CN_COMMAND, id, idLast, memberFxn, (UINT), call.nID)
#define ON_COMMAND_EX(id, memberFxn) \
    AFX_COMMAND_EX_(WM_COMMAND, CN_COMMAND, id, id, memberFxn, (UINT), call.nID)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn) \
    AFX_COMMAND_EX_(WM_COMMAND, CN_COMMAND, id, idLast, memberFxn, (UINT), call.nID)

#define AFX_UPDATE_(message, id, lastId, fn)                       \
    AFX_ENTRY_(message, CN_UPDATE_COMMAND_UI, id, lastId, nullptr, \
               AFX_PMF_(fn, void, (CCmdUI*))(call.pCmdUI);         \
               return 0;)
#define ON_UPDATE_COMMAND_UI(id, memberFxn) AFX_UPDATE_(WM_COMMAND, id, id, memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn) \
    AFX_UPDATE_(WM_COMMAND, id, idLast, memberFxn)
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn) \
    AFX_UPDATE_(WM_REFLECT_BASE + WM_COMMAND, 0, 0xFFFF, memberFxn)

// Control codes
#define ON_CONTROL(wNotifyCode, id, memberFxn) AFX_COMMAND_(wNotifyCode, id, id, memberFxn, (), )
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn) \
    AFX_COMMAND_(wNotifyCode, id, idLast, memberFxn, (UINT), call.nID)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                            \
    AFX_ENTRY_(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0xFFFF, nullptr, \
               AFX_PMF_(memberFxn, void, ())();                               \
               return 0;)
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn) \
    AFX_COMMAND_EX_(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0xFFFF, memberFxn, (), )

// Notifications
#define AFX_NOTIFY_(message, code, id, lastId, fn, params, ...)                             \
    AFX_ENTRY_(message, code, id, lastId, nullptr, AFX_PMF_(fn, void, params)(__VA_ARGS__); \
               return 0;)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                               \
    AFX_NOTIFY_(WM_NOTIFY, wNotifyCode, id, id, memberFxn, (NMHDR*, LRESULT*), call.pNMHDR, \
                call.pResult)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                        \
    AFX_NOTIFY_(WM_NOTIFY, wNotifyCode, id, idLast, memberFxn, (UINT, NMHDR*, LRESULT*), call.nID, \
                call.pNMHDR, call.pResult)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                   \
    AFX_COMMAND_EX_(WM_NOTIFY, wNotifyCode, id, id, memberFxn, (UINT, NMHDR*, LRESULT*), call.nID, \
                    call.pNMHDR, call.pResult)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                               \
    AFX_COMMAND_EX_(WM_NOTIFY, wNotifyCode, id, idLast, memberFxn, (UINT, NMHDR*, LRESULT*), \
                    call.nID, call.pNMHDR, call.pResult)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                               \
    AFX_NOTIFY_(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0xFFFF, memberFxn, \
                (NMHDR*, LRESULT*), call.pNMHDR, call.pResult)
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                \
    AFX_COMMAND_EX_(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0xFFFF, memberFxn, \
                    (NMHDR*, LRESULT*), call.pNMHDR, call.pResult)

// Messages by number
#define ON_MESSAGE(message, memberFxn) \
    AFX_RESULT_(message, memberFxn, LRESULT, (WPARAM, LPARAM), AFX_WP_, AFX_LP_)
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn) \
    AFX_ENTRY_(0xC000, 0, 0, 0, &nMessageVariable,         \
               return AFX_PMF_(memberFxn, LRESULT, (WPARAM, LPARAM))(AFX_WP_, AFX_LP_);)
#define ON_THREAD_MESSAGE(message, memberFxn) \
    AFX_VOID_(message, memberFxn, (WPARAM, LPARAM), AFX_WP_, AFX_LP_)
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn)             \
    AFX_ENTRY_(0xC000, 0, 0, 0, &nMessageVariable,                            \
               AFX_PMF_(memberFxn, void, (WPARAM, LPARAM))(AFX_WP_, AFX_LP_); \
               return 0;)

// Window messages
#define ON_WM_CREATE() \
    AFX_RESULT_(WM_CREATE, &ThisClass::OnCreate, int, (LPCREATESTRUCT), AFX_LPAS_(LPCREATESTRUCT))
#define ON_WM_DESTROY() AFX_VOID_(WM_DESTROY, &ThisClass::OnDestroy, (), )
#define ON_WM_NCDESTROY() AFX_VOID_(WM_NCDESTROY, &ThisClass::OnNcDestroy, (), )
#define ON_WM_NCCREATE()                                                     \
    AFX_RESULT_(WM_NCCREATE, &ThisClass::OnNcCreate, BOOL, (LPCREATESTRUCT), \
                AFX_LPAS_(LPCREATESTRUCT))
#define ON_WM_CLOSE() AFX_VOID_(WM_CLOSE, &ThisClass::OnClose, (), )
#define ON_WM_MOVE() AFX_VOID_(WM_MOVE, &ThisClass::OnMove, (int, int), AFX_LPX_, AFX_LPY_)
#define ON_WM_SIZE()                                                                     \
    AFX_VOID_(WM_SIZE, &ThisClass::OnSize, (UINT, int, int), static_cast<UINT>(AFX_WP_), \
              AFX_LPLO_, AFX_LPHI_)
#define ON_WM_MOVING()                                                                     \
    AFX_VOID_(WM_MOVING, &ThisClass::OnMoving, (UINT, LPRECT), static_cast<UINT>(AFX_WP_), \
              AFX_LPAS_(LPRECT))
#define ON_WM_SIZING()                                                                     \
    AFX_VOID_(WM_SIZING, &ThisClass::OnSizing, (UINT, LPRECT), static_cast<UINT>(AFX_WP_), \
              AFX_LPAS_(LPRECT))
#define ON_WM_ACTIVATE()                                                                       \
    AFX_VOID_(WM_ACTIVATE, &ThisClass::OnActivate, (UINT, CWnd*, BOOL), AFX_WPLO_, AFX_LPWND_, \
              AFX_WPHI_)
#define ON_WM_ACTIVATEAPP()                                             \
    AFX_VOID_(WM_ACTIVATEAPP, &ThisClass::OnActivateApp, (BOOL, DWORD), \
              static_cast<BOOL>(AFX_WP_), static_cast<DWORD>(AFX_LP_))
#define ON_WM_CHILDACTIVATE() AFX_VOID_(WM_CHILDACTIVATE, &ThisClass::OnChildActivate, (), )
#define ON_WM_MDIACTIVATE()                                                                       \
    AFX_VOID_(WM_MDIACTIVATE, &ThisClass::OnMDIActivate, (BOOL, CWnd*, CWnd*),                    \
              reinterpret_cast<HWND>(AFX_LP_) == static_cast<CWnd*>(pTarget)->m_hWnd, AFX_LPWND_, \
              AFX_WPWND_)
#define ON_WM_SETFOCUS() AFX_VOID_(WM_SETFOCUS, &ThisClass::OnSetFocus, (CWnd*), AFX_WPWND_)
#define ON_WM_KILLFOCUS() AFX_VOID_(WM_KILLFOCUS, &ThisClass::OnKillFocus, (CWnd*), AFX_WPWND_)
#define ON_WM_ENABLE() \
    AFX_VOID_(WM_ENABLE, &ThisClass::OnEnable, (BOOL), static_cast<BOOL>(AFX_WP_))
#define ON_WM_PAINT() AFX_VOID_(WM_PAINT, &ThisClass::OnPaint, (), )
#define ON_WM_ERASEBKGND() \
    AFX_RESULT_(WM_ERASEBKGND, &ThisClass::OnEraseBkgnd, BOOL, (CDC*), AFX_WPDC_)
#define ON_WM_SHOWWINDOW()                                                                       \
    AFX_VOID_(WM_SHOWWINDOW, &ThisClass::OnShowWindow, (BOOL, UINT), static_cast<BOOL>(AFX_WP_), \
              static_cast<UINT>(AFX_LP_))
#define ON_WM_CANCELMODE() AFX_VOID_(WM_CANCELMODE, &ThisClass::OnCancelMode, (), )
#define ON_WM_QUERYENDSESSION() \
    AFX_RESULT_(WM_QUERYENDSESSION, &ThisClass::OnQueryEndSession, BOOL, (), )
#define ON_WM_ENDSESSION() \
    AFX_VOID_(WM_ENDSESSION, &ThisClass::OnEndSession, (BOOL), static_cast<BOOL>(AFX_WP_))
#define ON_WM_QUERYOPEN() AFX_RESULT_(WM_QUERYOPEN, &ThisClass::OnQueryOpen, BOOL, (), )
#define ON_WM_QUERYDRAGICON() \
    AFX_RESULT_(WM_QUERYDRAGICON, &ThisClass::OnQueryDragIcon, HCURSOR, (), )
#define ON_WM_SYSCOLORCHANGE() AFX_VOID_(WM_SYSCOLORCHANGE, &ThisClass::OnSysColorChange, (), )
#define ON_WM_SETTINGCHANGE()                                                 \
    AFX_VOID_(WM_SETTINGCHANGE, &ThisClass::OnSettingChange, (UINT, LPCTSTR), \
              static_cast<UINT>(AFX_WP_), AFX_LPAS_(LPCTSTR))
#define ON_WM_FONTCHANGE() AFX_VOID_(WM_FONTCHANGE, &ThisClass::OnFontChange, (), )
#define ON_WM_TIMECHANGE() AFX_VOID_(WM_TIMECHANGE, &ThisClass::OnTimeChange, (), )
#define ON_WM_DEVMODECHANGE() \
    AFX_VOID_(WM_DEVMODECHANGE, &ThisClass::OnDevModeChange, (LPTSTR), AFX_LPAS_(LPTSTR))
#define ON_WM_DISPLAYCHANGE()                                                  \
    AFX_VOID_(WM_DISPLAYCHANGE, &ThisClass::OnDisplayChange, (UINT, int, int), \
              static_cast<UINT>(AFX_WP_), AFX_LPLO_, AFX_LPHI_)
#define ON_WM_THEMECHANGED() AFX_RESULT_(WM_THEMECHANGED, &ThisClass::OnThemeChanged, LRESULT, (), )
#define ON_WM_SETCURSOR()                                                                     \
    AFX_RESULT_(WM_SETCURSOR, &ThisClass::OnSetCursor, BOOL, (CWnd*, UINT, UINT), AFX_WPWND_, \
                static_cast<UINT>(AFX_LPX_), AFX_LPHI_)
#define ON_WM_MOUSEACTIVATE()                                                            \
    AFX_RESULT_(WM_MOUSEACTIVATE, &ThisClass::OnMouseActivate, int, (CWnd*, UINT, UINT), \
                AFX_WPWND_, static_cast<UINT>(AFX_LPX_), AFX_LPHI_)
#define ON_WM_GETMINMAXINFO() \
    AFX_VOID_(WM_GETMINMAXINFO, &ThisClass::OnGetMinMaxInfo, (MINMAXINFO*), AFX_LPAS_(MINMAXINFO*))
#define ON_WM_WINDOWPOSCHANGING()                                                  \
    AFX_VOID_(WM_WINDOWPOSCHANGING, &ThisClass::OnWindowPosChanging, (WINDOWPOS*), \
              AFX_LPAS_(WINDOWPOS*))
#define ON_WM_WINDOWPOSCHANGED()                                                 \
    AFX_VOID_(WM_WINDOWPOSCHANGED, &ThisClass::OnWindowPosChanged, (WINDOWPOS*), \
              AFX_LPAS_(WINDOWPOS*))
#define ON_WM_STYLECHANGING()                                                      \
    AFX_VOID_(WM_STYLECHANGING, &ThisClass::OnStyleChanging, (int, LPSTYLESTRUCT), \
              static_cast<int>(AFX_WP_), AFX_LPAS_(LPSTYLESTRUCT))
#define ON_WM_STYLECHANGED()                                                     \
    AFX_VOID_(WM_STYLECHANGED, &ThisClass::OnStyleChanged, (int, LPSTYLESTRUCT), \
              static_cast<int>(AFX_WP_), AFX_LPAS_(LPSTYLESTRUCT))
#define ON_WM_CONTEXTMENU() \
    AFX_VOID_(WM_CONTEXTMENU, &ThisClass::OnContextMenu, (CWnd*, CPoint), AFX_WPWND_, AFX_LPPOINT_)
#define ON_WM_HELPINFO() \
    AFX_RESULT_(WM_HELP, &ThisClass::OnHelpInfo, BOOL, (HELPINFO*), AFX_LPAS_(HELPINFO*))
#define ON_WM_DROPFILES() \
    AFX_VOID_(WM_DROPFILES, &ThisClass::OnDropFiles, (HDROP), AFX_WPAS_(HDROP))
#define ON_WM_COPYDATA()                                                                         \
    AFX_RESULT_(WM_COPYDATA, &ThisClass::OnCopyData, BOOL, (CWnd*, COPYDATASTRUCT*), AFX_WPWND_, \
                AFX_LPAS_(COPYDATASTRUCT*))
#define ON_WM_DRAWCLIPBOARD() AFX_VOID_(WM_DRAWCLIPBOARD, &ThisClass::OnDrawClipboard, (), )
#define ON_WM_CHANGECBCHAIN()                                                               \
    AFX_VOID_(WM_CHANGECBCHAIN, &ThisClass::OnChangeCbChain, (HWND, HWND), AFX_WPAS_(HWND), \
              AFX_LPAS_(HWND))
#define ON_WM_PARENTNOTIFY()                                               \
    AFX_VOID_(WM_PARENTNOTIFY, &ThisClass::OnParentNotify, (UINT, LPARAM), \
              static_cast<UINT>(AFX_WP_), AFX_LP_)

// Owner drawing, colours and item messages
#define ON_WM_DRAWITEM()                                                    \
    AFX_DONE_(WM_DRAWITEM, &ThisClass::OnDrawItem, (int, LPDRAWITEMSTRUCT), \
              static_cast<int>(AFX_WP_), AFX_LPAS_(LPDRAWITEMSTRUCT))
#define ON_WM_MEASUREITEM()                                                          \
    AFX_DONE_(WM_MEASUREITEM, &ThisClass::OnMeasureItem, (int, LPMEASUREITEMSTRUCT), \
              static_cast<int>(AFX_WP_), AFX_LPAS_(LPMEASUREITEMSTRUCT))
#define ON_WM_COMPAREITEM()                                                                 \
    AFX_RESULT_(WM_COMPAREITEM, &ThisClass::OnCompareItem, int, (int, LPCOMPAREITEMSTRUCT), \
                static_cast<int>(AFX_WP_), AFX_LPAS_(LPCOMPAREITEMSTRUCT))
#define ON_WM_DELETEITEM()                                                        \
    AFX_DONE_(WM_DELETEITEM, &ThisClass::OnDeleteItem, (int, LPDELETEITEMSTRUCT), \
              static_cast<int>(AFX_WP_), AFX_LPAS_(LPDELETEITEMSTRUCT))
#define ON_WM_VKEYTOITEM()                                                                        \
    AFX_RESULT_(WM_VKEYTOITEM, &ThisClass::OnVKeyToItem, int, (UINT, CListBox*, UINT), AFX_WPLO_, \
                static_cast<CListBox*>(AFX_LPWND_), AFX_WPHI_)
#define ON_WM_CHARTOITEM()                                                                        \
    AFX_RESULT_(WM_CHARTOITEM, &ThisClass::OnCharToItem, int, (UINT, CListBox*, UINT), AFX_WPLO_, \
                static_cast<CListBox*>(AFX_LPWND_), AFX_WPHI_)
#define ON_WM_CTLCOLOR()                                                          \
    AFX_RESULT_(WM_CTLCOLOR, &ThisClass::OnCtlColor, HBRUSH, (CDC*, CWnd*, UINT), \
                CDC::FromHandle(AFX_LPAS_(AFX_CTLCOLOR*)->hDC),                   \
                CWnd::FromHandle(AFX_LPAS_(AFX_CTLCOLOR*)->hWnd),                 \
                AFX_LPAS_(AFX_CTLCOLOR*)->nCtlType)

// The frame of a window
#define ON_WM_NCCALCSIZE()                                                         \
    AFX_VOID_(WM_NCCALCSIZE, &ThisClass::OnNcCalcSize, (BOOL, NCCALCSIZE_PARAMS*), \
              static_cast<BOOL>(AFX_WP_), AFX_LPAS_(NCCALCSIZE_PARAMS*))
#define ON_WM_NCHITTEST() \
    AFX_RESULT_(WM_NCHITTEST, &ThisClass::OnNcHitTest, LRESULT, (CPoint), AFX_LPPOINT_)
#define ON_WM_NCPAINT() AFX_VOID_(WM_NCPAINT, &ThisClass::OnNcPaint, (), )
#define ON_WM_NCACTIVATE() \
    AFX_RESULT_(WM_NCACTIVATE, &ThisClass::OnNcActivate, BOOL, (BOOL), static_cast<BOOL>(AFX_WP_))
#define ON_WM_NCMOUSEMOVE()                                              \
    AFX_VOID_(WM_NCMOUSEMOVE, &ThisClass::OnNcMouseMove, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_NCLBUTTONDOWN()                                                \
    AFX_VOID_(WM_NCLBUTTONDOWN, &ThisClass::OnNcLButtonDown, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_NCLBUTTONUP()                                              \
    AFX_VOID_(WM_NCLBUTTONUP, &ThisClass::OnNcLButtonUp, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_NCLBUTTONDBLCLK()                                                  \
    AFX_VOID_(WM_NCLBUTTONDBLCLK, &ThisClass::OnNcLButtonDblClk, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_NCRBUTTONDOWN()                                                \
    AFX_VOID_(WM_NCRBUTTONDOWN, &ThisClass::OnNcRButtonDown, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_NCRBUTTONUP()                                              \
    AFX_VOID_(WM_NCRBUTTONUP, &ThisClass::OnNcRButtonUp, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_NCRBUTTONDBLCLK()                                                  \
    AFX_VOID_(WM_NCRBUTTONDBLCLK, &ThisClass::OnNcRButtonDblClk, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_NCMBUTTONDOWN()                                                \
    AFX_VOID_(WM_NCMBUTTONDOWN, &ThisClass::OnNcMButtonDown, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_NCMBUTTONUP()                                              \
    AFX_VOID_(WM_NCMBUTTONUP, &ThisClass::OnNcMButtonUp, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_NCMBUTTONDBLCLK()                                                  \
    AFX_VOID_(WM_NCMBUTTONDBLCLK, &ThisClass::OnNcMButtonDblClk, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)

// Keyboard
#define ON_WM_GETDLGCODE() AFX_RESULT_(WM_GETDLGCODE, &ThisClass::OnGetDlgCode, UINT, (), )
#define ON_WM_KEYDOWN()                                                                          \
    AFX_VOID_(WM_KEYDOWN, &ThisClass::OnKeyDown, (UINT, UINT, UINT), static_cast<UINT>(AFX_WP_), \
              AFX_LPLO_, AFX_LPHI_)
#define ON_WM_KEYUP()                                                                        \
    AFX_VOID_(WM_KEYUP, &ThisClass::OnKeyUp, (UINT, UINT, UINT), static_cast<UINT>(AFX_WP_), \
              AFX_LPLO_, AFX_LPHI_)
#define ON_WM_CHAR()                                                                       \
    AFX_VOID_(WM_CHAR, &ThisClass::OnChar, (UINT, UINT, UINT), static_cast<UINT>(AFX_WP_), \
              AFX_LPLO_, AFX_LPHI_)
#define ON_WM_DEADCHAR()                                                                           \
    AFX_VOID_(WM_DEADCHAR, &ThisClass::OnDeadChar, (UINT, UINT, UINT), static_cast<UINT>(AFX_WP_), \
              AFX_LPLO_, AFX_LPHI_)
#define ON_WM_SYSKEYDOWN()                                                 \
    AFX_VOID_(WM_SYSKEYDOWN, &ThisClass::OnSysKeyDown, (UINT, UINT, UINT), \
              static_cast<UINT>(AFX_WP_), AFX_LPLO_, AFX_LPHI_)
#define ON_WM_SYSKEYUP()                                                                           \
    AFX_VOID_(WM_SYSKEYUP, &ThisClass::OnSysKeyUp, (UINT, UINT, UINT), static_cast<UINT>(AFX_WP_), \
              AFX_LPLO_, AFX_LPHI_)
#define ON_WM_SYSCHAR()                                                                          \
    AFX_VOID_(WM_SYSCHAR, &ThisClass::OnSysChar, (UINT, UINT, UINT), static_cast<UINT>(AFX_WP_), \
              AFX_LPLO_, AFX_LPHI_)
#define ON_WM_SYSDEADCHAR()                                                  \
    AFX_VOID_(WM_SYSDEADCHAR, &ThisClass::OnSysDeadChar, (UINT, UINT, UINT), \
              static_cast<UINT>(AFX_WP_), AFX_LPLO_, AFX_LPHI_)

// Commands of the system, menus, timers and scroll bars
#define ON_WM_SYSCOMMAND()                                                                         \
    AFX_VOID_(WM_SYSCOMMAND, &ThisClass::OnSysCommand, (UINT, LPARAM), static_cast<UINT>(AFX_WP_), \
              AFX_LP_)
#define ON_WM_TIMER()                                                                        \
    AFX_ENTRY_(WM_TIMER, 0, 0, 0, nullptr,                                                   \
               AfxCallTimer(static_cast<ThisClass*>(pTarget), &ThisClass::OnTimer, AFX_WP_); \
               return 0;)
#define ON_WM_HSCROLL()                                                                           \
    AFX_VOID_(WM_HSCROLL, &ThisClass::OnHScroll, (UINT, UINT, CScrollBar*), AFX_WPLO_, AFX_WPHI_, \
              AFX_LPBAR_)
#define ON_WM_VSCROLL()                                                                           \
    AFX_VOID_(WM_VSCROLL, &ThisClass::OnVScroll, (UINT, UINT, CScrollBar*), AFX_WPLO_, AFX_WPHI_, \
              AFX_LPBAR_)
#define ON_WM_INITMENU() AFX_VOID_(WM_INITMENU, &ThisClass::OnInitMenu, (CMenu*), AFX_WPMENU_)
#define ON_WM_INITMENUPOPUP()                                                                   \
    AFX_VOID_(WM_INITMENUPOPUP, &ThisClass::OnInitMenuPopup, (CMenu*, UINT, BOOL), AFX_WPMENU_, \
              AFX_LPLO_, AFX_LPHI_)
#define ON_WM_MENUSELECT()                                                                        \
    AFX_VOID_(WM_MENUSELECT, &ThisClass::OnMenuSelect, (UINT, UINT, HMENU), AFX_WPLO_, AFX_WPHI_, \
              AFX_LPAS_(HMENU))
#define ON_WM_MENUCHAR()                                                                       \
    AFX_RESULT_(WM_MENUCHAR, &ThisClass::OnMenuChar, LRESULT, (UINT, UINT, CMenu*), AFX_WPLO_, \
                AFX_WPHI_, AFX_LPMENU_)
#define ON_WM_ENTERIDLE()                                                                       \
    AFX_VOID_(WM_ENTERIDLE, &ThisClass::OnEnterIdle, (UINT, CWnd*), static_cast<UINT>(AFX_WP_), \
              AFX_LPWND_)
#define ON_WM_ENTERMENULOOP() \
    AFX_VOID_(WM_ENTERMENULOOP, &ThisClass::OnEnterMenuLoop, (BOOL), static_cast<BOOL>(AFX_WP_))
#define ON_WM_EXITMENULOOP() \
    AFX_VOID_(WM_EXITMENULOOP, &ThisClass::OnExitMenuLoop, (BOOL), static_cast<BOOL>(AFX_WP_))

// Mouse
#define ON_WM_MOUSEMOVE()                                                                        \
    AFX_VOID_(WM_MOUSEMOVE, &ThisClass::OnMouseMove, (UINT, CPoint), static_cast<UINT>(AFX_WP_), \
              AFX_LPPOINT_)
#define ON_WM_LBUTTONDOWN()                                              \
    AFX_VOID_(WM_LBUTTONDOWN, &ThisClass::OnLButtonDown, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_LBUTTONUP()                                                                        \
    AFX_VOID_(WM_LBUTTONUP, &ThisClass::OnLButtonUp, (UINT, CPoint), static_cast<UINT>(AFX_WP_), \
              AFX_LPPOINT_)
#define ON_WM_LBUTTONDBLCLK()                                                \
    AFX_VOID_(WM_LBUTTONDBLCLK, &ThisClass::OnLButtonDblClk, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_RBUTTONDOWN()                                              \
    AFX_VOID_(WM_RBUTTONDOWN, &ThisClass::OnRButtonDown, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_RBUTTONUP()                                                                        \
    AFX_VOID_(WM_RBUTTONUP, &ThisClass::OnRButtonUp, (UINT, CPoint), static_cast<UINT>(AFX_WP_), \
              AFX_LPPOINT_)
#define ON_WM_RBUTTONDBLCLK()                                                \
    AFX_VOID_(WM_RBUTTONDBLCLK, &ThisClass::OnRButtonDblClk, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_MBUTTONDOWN()                                              \
    AFX_VOID_(WM_MBUTTONDOWN, &ThisClass::OnMButtonDown, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_MBUTTONUP()                                                                        \
    AFX_VOID_(WM_MBUTTONUP, &ThisClass::OnMButtonUp, (UINT, CPoint), static_cast<UINT>(AFX_WP_), \
              AFX_LPPOINT_)
#define ON_WM_MBUTTONDBLCLK()                                                \
    AFX_VOID_(WM_MBUTTONDBLCLK, &ThisClass::OnMButtonDblClk, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_XBUTTONDOWN()                                                               \
    AFX_VOID_(WM_XBUTTONDOWN, &ThisClass::OnXButtonDown, (UINT, UINT, CPoint), AFX_WPLO_, \
              AFX_WPHI_, AFX_LPPOINT_)
#define ON_WM_XBUTTONUP()                                                                        \
    AFX_VOID_(WM_XBUTTONUP, &ThisClass::OnXButtonUp, (UINT, UINT, CPoint), AFX_WPLO_, AFX_WPHI_, \
              AFX_LPPOINT_)
#define ON_WM_XBUTTONDBLCLK()                                                                 \
    AFX_VOID_(WM_XBUTTONDBLCLK, &ThisClass::OnXButtonDblClk, (UINT, UINT, CPoint), AFX_WPLO_, \
              AFX_WPHI_, AFX_LPPOINT_)
#define ON_WM_MOUSEWHEEL()                                                                       \
    AFX_RESULT_(WM_MOUSEWHEEL, &ThisClass::OnMouseWheel, BOOL, (UINT, short, CPoint), AFX_WPLO_, \
                static_cast<short>(AFX_WPHI_), AFX_LPPOINT_)
#define ON_WM_MOUSEHWHEEL()                                                                \
    AFX_VOID_(WM_MOUSEHWHEEL, &ThisClass::OnMouseHWheel, (UINT, short, CPoint), AFX_WPLO_, \
              static_cast<short>(AFX_WPHI_), AFX_LPPOINT_)
#define ON_WM_MOUSEHOVER()                                                                         \
    AFX_VOID_(WM_MOUSEHOVER, &ThisClass::OnMouseHover, (UINT, CPoint), static_cast<UINT>(AFX_WP_), \
              AFX_LPPOINT_)
#define ON_WM_MOUSELEAVE() AFX_VOID_(WM_MOUSELEAVE, &ThisClass::OnMouseLeave, (), )
#define ON_WM_CAPTURECHANGED() \
    AFX_VOID_(WM_CAPTURECHANGED, &ThisClass::OnCaptureChanged, (CWnd*), AFX_LPWND_)

// Clipboard, devices, the session, and what menus tell besides
#define ON_WM_CLIPBOARDUPDATE() AFX_VOID_(WM_CLIPBOARDUPDATE, &ThisClass::OnClipboardUpdate, (), )
#define ON_WM_DESTROYCLIPBOARD() \
    AFX_VOID_(WM_DESTROYCLIPBOARD, &ThisClass::OnDestroyClipboard, (), )
#define ON_WM_RENDERFORMAT() \
    AFX_VOID_(WM_RENDERFORMAT, &ThisClass::OnRenderFormat, (UINT), static_cast<UINT>(AFX_WP_))
#define ON_WM_RENDERALLFORMATS() \
    AFX_VOID_(WM_RENDERALLFORMATS, &ThisClass::OnRenderAllFormats, (), )
#define ON_WM_PAINTCLIPBOARD()                                                               \
    AFX_VOID_(WM_PAINTCLIPBOARD, &ThisClass::OnPaintClipboard, (CWnd*, HGLOBAL), AFX_WPWND_, \
              AFX_LPAS_(HGLOBAL))
#define ON_WM_SIZECLIPBOARD()                                                              \
    AFX_VOID_(WM_SIZECLIPBOARD, &ThisClass::OnSizeClipboard, (CWnd*, HGLOBAL), AFX_WPWND_, \
              AFX_LPAS_(HGLOBAL))
#define ON_WM_ASKCBFORMATNAME()                                                  \
    AFX_VOID_(WM_ASKCBFORMATNAME, &ThisClass::OnAskCbFormatName, (UINT, LPTSTR), \
              static_cast<UINT>(AFX_WP_), AFX_LPAS_(LPTSTR))
#define ON_WM_HSCROLLCLIPBOARD()                                                        \
    AFX_VOID_(WM_HSCROLLCLIPBOARD, &ThisClass::OnHScrollClipboard, (CWnd*, UINT, UINT), \
              AFX_WPWND_, AFX_LPLO_, AFX_LPHI_)
#define ON_WM_VSCROLLCLIPBOARD()                                                        \
    AFX_VOID_(WM_VSCROLLCLIPBOARD, &ThisClass::OnVScrollClipboard, (CWnd*, UINT, UINT), \
              AFX_WPWND_, AFX_LPLO_, AFX_LPHI_)
#define ON_WM_COMPACTING() \
    AFX_VOID_(WM_COMPACTING, &ThisClass::OnCompacting, (UINT), static_cast<UINT>(AFX_WP_))
#define ON_WM_SPOOLERSTATUS()                                              \
    AFX_VOID_(WM_SPOOLERSTATUS, &ThisClass::OnSpoolerStatus, (UINT, UINT), \
              static_cast<UINT>(AFX_WP_), AFX_LPLO_)
#define ON_WM_ICONERASEBKGND() \
    AFX_VOID_(WM_ICONERASEBKGND, &ThisClass::OnIconEraseBkgnd, (CDC*), AFX_WPDC_)
#define ON_WM_DEVICECHANGE()                                                          \
    AFX_RESULT_(WM_DEVICECHANGE, &ThisClass::OnDeviceChange, BOOL, (UINT, DWORD_PTR), \
                static_cast<UINT>(AFX_WP_), static_cast<DWORD_PTR>(AFX_LP_))
#define ON_WM_POWERBROADCAST()                                                         \
    AFX_RESULT_(WM_POWERBROADCAST, &ThisClass::OnPowerBroadcast, UINT, (UINT, LPARAM), \
                static_cast<UINT>(AFX_WP_), AFX_LP_)
#define ON_WM_SESSION_CHANGE()                                                 \
    AFX_VOID_(WM_WTSSESSION_CHANGE, &ThisClass::OnSessionChange, (UINT, UINT), \
              static_cast<UINT>(AFX_WP_), static_cast<UINT>(AFX_LP_))
#define ON_WM_USERCHANGED() AFX_VOID_(WM_USERCHANGED, &ThisClass::OnUserChanged, (), )
#define ON_WM_WININICHANGE() \
    AFX_VOID_(WM_WININICHANGE, &ThisClass::OnWinIniChange, (LPCTSTR), AFX_LPAS_(LPCTSTR))
#define ON_WM_INPUTLANGCHANGE()                                                \
    AFX_VOID_(WM_INPUTLANGCHANGE, &ThisClass::OnInputLangChange, (UINT, UINT), \
              static_cast<UINT>(AFX_WP_), static_cast<UINT>(AFX_LP_))
#define ON_WM_INPUTLANGCHANGEREQUEST()                                                       \
    AFX_VOID_(WM_INPUTLANGCHANGEREQUEST, &ThisClass::OnInputLangChangeRequest, (UINT, UINT), \
              static_cast<UINT>(AFX_WP_), static_cast<UINT>(AFX_LP_))
#define ON_WM_HOTKEY()                                                                         \
    AFX_VOID_(WM_HOTKEY, &ThisClass::OnHotKey, (UINT, UINT, UINT), static_cast<UINT>(AFX_WP_), \
              AFX_LPLO_, AFX_LPHI_)
#define ON_WM_INPUT()                                              \
    AFX_VOID_(WM_INPUT, &ThisClass::OnRawInput, (UINT, HRAWINPUT), \
              GET_RAWINPUT_CODE_WPARAM(AFX_WP_), AFX_LPAS_(HRAWINPUT))
#define ON_WM_NCMOUSEHOVER()                                               \
    AFX_VOID_(WM_NCMOUSEHOVER, &ThisClass::OnNcMouseHover, (UINT, CPoint), \
              static_cast<UINT>(AFX_WP_), AFX_LPPOINT_)
#define ON_WM_NCMOUSELEAVE() AFX_VOID_(WM_NCMOUSELEAVE, &ThisClass::OnNcMouseLeave, (), )
#define ON_WM_NEXTMENU()                                                  \
    AFX_VOID_(WM_NEXTMENU, &ThisClass::OnNextMenu, (UINT, LPMDINEXTMENU), \
              static_cast<UINT>(AFX_WP_), AFX_LPAS_(LPMDINEXTMENU))
#define ON_WM_UNINITMENUPOPUP()                                                               \
    AFX_VOID_(WM_UNINITMENUPOPUP, &ThisClass::OnUnInitMenuPopup, (CMenu*, UINT), AFX_WPMENU_, \
              AFX_LPHI_)
#define ON_WM_MENURBUTTONUP()                                                \
    AFX_VOID_(WM_MENURBUTTONUP, &ThisClass::OnMenuRButtonUp, (UINT, CMenu*), \
              static_cast<UINT>(AFX_WP_), AFX_LPMENU_)
#define ON_WM_MENUDRAG()                                                   \
    AFX_RESULT_(WM_MENUDRAG, &ThisClass::OnMenuDrag, UINT, (UINT, CMenu*), \
                static_cast<UINT>(AFX_WP_), AFX_LPMENU_)
#define ON_WM_MENUGETOBJECT()                                                              \
    AFX_RESULT_(WM_MENUGETOBJECT, &ThisClass::OnMenuGetObject, UINT, (MENUGETOBJECTINFO*), \
                AFX_LPAS_(MENUGETOBJECTINFO*))
#define ON_WM_MENUCOMMAND()                                              \
    AFX_VOID_(WM_MENUCOMMAND, &ThisClass::OnMenuCommand, (UINT, CMenu*), \
              static_cast<UINT>(AFX_WP_), AFX_LPMENU_)
#define ON_WM_QUERYUISTATE() AFX_RESULT_(WM_QUERYUISTATE, &ThisClass::OnQueryUIState, UINT, (), )
#define ON_WM_CHANGEUISTATE() \
    AFX_VOID_(WM_CHANGEUISTATE, &ThisClass::OnChangeUIState, (UINT, UINT), AFX_WPLO_, AFX_WPHI_)
#define ON_WM_UPDATEUISTATE() \
    AFX_VOID_(WM_UPDATEUISTATE, &ThisClass::OnUpdateUIState, (UINT, UINT), AFX_WPLO_, AFX_WPHI_)

// Palettes
#define ON_WM_QUERYNEWPALETTE() \
    AFX_RESULT_(WM_QUERYNEWPALETTE, &ThisClass::OnQueryNewPalette, BOOL, (), )
#define ON_WM_PALETTECHANGED() \
    AFX_VOID_(WM_PALETTECHANGED, &ThisClass::OnPaletteChanged, (CWnd*), AFX_WPWND_)
#define ON_WM_PALETTEISCHANGING() \
    AFX_VOID_(WM_PALETTEISCHANGING, &ThisClass::OnPaletteIsChanging, (CWnd*), AFX_WPWND_)

// Messages to the parent, handled by the child that they are about
#define ON_WM_CTLCOLOR_REFLECT()                                                                 \
    AFX_ENTRY_(                                                                                  \
        WM_REFLECT_BASE + WM_CTLCOLOR, 0, 0, 0, nullptr,                                         \
        HBRUSH hbr = AFX_PMF_(&ThisClass::CtlColor, HBRUSH, (CDC*, UINT))(                       \
            CDC::FromHandle(AFX_LPAS_(AFX_CTLCOLOR*)->hDC), AFX_LPAS_(AFX_CTLCOLOR*)->nCtlType); \
        call.bHandled = hbr != nullptr; return AfxMsgResult(hbr);)
#define ON_WM_DRAWITEM_REFLECT()                                                       \
    AFX_DONE_(WM_REFLECT_BASE + WM_DRAWITEM, &ThisClass::DrawItem, (LPDRAWITEMSTRUCT), \
              AFX_LPAS_(LPDRAWITEMSTRUCT))
#define ON_WM_MEASUREITEM_REFLECT()                                                             \
    AFX_DONE_(WM_REFLECT_BASE + WM_MEASUREITEM, &ThisClass::MeasureItem, (LPMEASUREITEMSTRUCT), \
              AFX_LPAS_(LPMEASUREITEMSTRUCT))
#define ON_WM_COMPAREITEM_REFLECT()                                             \
    AFX_RESULT_(WM_REFLECT_BASE + WM_COMPAREITEM, &ThisClass::CompareItem, int, \
                (LPCOMPAREITEMSTRUCT), AFX_LPAS_(LPCOMPAREITEMSTRUCT))
#define ON_WM_DELETEITEM_REFLECT()                                                           \
    AFX_DONE_(WM_REFLECT_BASE + WM_DELETEITEM, &ThisClass::DeleteItem, (LPDELETEITEMSTRUCT), \
              AFX_LPAS_(LPDELETEITEMSTRUCT))
#define ON_WM_VKEYTOITEM_REFLECT()                                                          \
    AFX_RESULT_(WM_REFLECT_BASE + WM_VKEYTOITEM, &ThisClass::VKeyToItem, int, (UINT, UINT), \
                AFX_WPLO_, AFX_WPHI_)
#define ON_WM_CHARTOITEM_REFLECT()                                                          \
    AFX_RESULT_(WM_REFLECT_BASE + WM_CHARTOITEM, &ThisClass::CharToItem, int, (UINT, UINT), \
                AFX_WPLO_, AFX_WPHI_)
#define ON_WM_HSCROLL_REFLECT() \
    AFX_VOID_(WM_REFLECT_BASE + WM_HSCROLL, &ThisClass::HScroll, (UINT, UINT), AFX_WPLO_, AFX_WPHI_)
#define ON_WM_VSCROLL_REFLECT() \
    AFX_VOID_(WM_REFLECT_BASE + WM_VSCROLL, &ThisClass::VScroll, (UINT, UINT), AFX_WPLO_, AFX_WPHI_)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                       \
    AFX_VOID_(WM_REFLECT_BASE + WM_PARENTNOTIFY, &ThisClass::ParentNotify, (UINT, LPARAM), \
              static_cast<UINT>(AFX_WP_), AFX_LP_)

// Control codes by name
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)
#define ON_BN_PAINT(id, memberFxn) ON_CONTROL(BN_PAINT, id, memberFxn)
#define ON_BN_HILITE(id, memberFxn) ON_CONTROL(BN_HILITE, id, memberFxn)
#define ON_BN_UNHILITE(id, memberFxn) ON_CONTROL(BN_UNHILITE, id, memberFxn)
#define ON_BN_DISABLE(id, memberFxn) ON_CONTROL(BN_DISABLE, id, memberFxn)
