// What CWnd adds nothing to: one call of the system for each operation.
#include "afx/window/wnd.h"

#include "afx/ole/control_site.h"
#include "afx/ole/wnd_control.h"
#include "afx/window/wnd_state.h"

#include <afxwin.h>

namespace {

HWND HandleOf(const CWnd* pWnd) {
    return pWnd != nullptr ? pWnd->m_hWnd : nullptr;
}

HMENU MenuHandle(const CMenu* pMenu) {
    return pMenu != nullptr ? pMenu->m_hMenu : nullptr;
}

template <typename Handle>
Handle GdiHandle(const CGdiObject* pObject) {
    return pObject != nullptr ? static_cast<Handle>(pObject->m_hObject) : nullptr;
}

BOOL ChangeStyle(HWND hWnd, int nStyleOffset, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    const DWORD dwStyle = static_cast<DWORD>(::GetWindowLong(hWnd, nStyleOffset));
    const DWORD dwNewStyle = (dwStyle & ~dwRemove) | dwAdd;
    if (dwStyle == dwNewStyle) {
        return FALSE;
    }
    ::SetWindowLong(hWnd, nStyleOffset, static_cast<LONG>(dwNewStyle));
    if (nFlags != 0) {
        ::SetWindowPos(hWnd, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    }
    return TRUE;
}

}  // namespace

DWORD CWnd::GetStyle() const {
    return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const {
    return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE));
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyStyle(m_hWnd, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyStyleEx(m_hWnd, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle(hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle(hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

CWnd* CWnd::GetOwner() const {
    return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent();
}

void CWnd::SetOwner(CWnd* pOwnerWnd) {
    m_hWndOwner = HandleOf(pOwnerWnd);
}

// Text and font

void CWnd::SetWindowText(LPCTSTR lpszString) {
    if (m_pCtrlSite != nullptr) {
        m_pCtrlSite->SetWindowText(lpszString);
        return;
    }
    ::SetWindowText(m_hWnd, lpszString);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
    if (m_pCtrlSite != nullptr) {
        CString strText;
        m_pCtrlSite->GetWindowText(strText);
        return AfxCopyWhole(lpszStringBuf, strText, nMaxCount);
    }
    return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const {
    if (m_pCtrlSite != nullptr) {
        m_pCtrlSite->GetWindowText(rString);
        return;
    }
    const int nLength = ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, rString.GetBuffer(nLength), nLength + 1);
    rString.ReleaseBuffer();
}

int CWnd::GetWindowTextLength() const {
    if (m_pCtrlSite != nullptr) {
        CString strText;
        m_pCtrlSite->GetWindowText(strText);
        return strText.GetLength();
    }
    return ::GetWindowTextLength(m_hWnd);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    AfxSend(m_hWnd, WM_SETFONT, GdiHandle<HFONT>(pFont), bRedraw);
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(AfxSend<HFONT>(m_hWnd, WM_GETFONT));
}

CMenu* CWnd::GetMenu() const {
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu) {
    return ::SetMenu(m_hWnd, MenuHandle(pMenu));
}

void CWnd::DrawMenuBar() {
    ::DrawMenuBar(m_hWnd);
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const {
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

BOOL CWnd::HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite) {
    return ::HiliteMenuItem(m_hWnd, MenuHandle(pMenu), nIDHiliteItem, nHilite);
}

HICON CWnd::GetIcon(BOOL bBigIcon) const {
    return AfxSend<HICON>(m_hWnd, WM_GETICON, bBigIcon);
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon) {
    return AfxSend<HICON>(m_hWnd, WM_SETICON, bBigIcon, hIcon);
}

// Messages

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
}

// Size and position

BOOL CWnd::IsIconic() const {
    return ::IsIconic(m_hWnd);
}

BOOL CWnd::IsZoomed() const {
    return ::IsZoomed(m_hWnd);
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) {
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint) {
    ::MoveWindow(m_hWnd, lpRect->left, lpRect->top, lpRect->right - lpRect->left,
                 lpRect->bottom - lpRect->top, bRepaint);
}

int CWnd::SetWindowRgn(HRGN hRgn, BOOL bRedraw) {
    return ::SetWindowRgn(m_hWnd, hRgn, bRedraw);
}

int CWnd::GetWindowRgn(HRGN hRgn) const {
    return ::GetWindowRgn(m_hWnd, hRgn);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ::SetWindowPos(m_hWnd, HandleOf(pWndInsertAfter), x, y, cx, cy, nFlags);
}

UINT CWnd::ArrangeIconicWindows() {
    return ::ArrangeIconicWindows(m_hWnd);
}

void CWnd::BringWindowToTop() {
    ::BringWindowToTop(m_hWnd);
}

void CWnd::GetWindowRect(LPRECT lpRect) const {
    ::GetWindowRect(m_hWnd, lpRect);
}

void CWnd::GetClientRect(LPRECT lpRect) const {
    ::GetClientRect(m_hWnd, lpRect);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const {
    lpwndpl->length = sizeof *lpwndpl;
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) {
    WINDOWPLACEMENT place = *lpwndpl;
    place.length = sizeof place;
    return ::SetWindowPlacement(m_hWnd, &place);
}

void CWnd::ClientToScreen(LPPOINT lpPoint) const {
    ::ClientToScreen(m_hWnd, lpPoint);
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPPOINT lpPoint) const {
    ::ScreenToClient(m_hWnd, lpPoint);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
    ::MapWindowPoints(m_hWnd, HandleOf(pwndTo), lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, HandleOf(pwndTo), reinterpret_cast<LPPOINT>(lpRect), 2);
}

// Painting

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint) {
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

void CWnd::EndPaint(LPPAINTSTRUCT lpPaint) {
    ::EndPaint(m_hWnd, lpPaint);
}

CDC* CWnd::GetDC() {
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC() {
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

int CWnd::ReleaseDC(CDC* pDC) {
    return ::ReleaseDC(m_hWnd, pDC->m_hDC);
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags) {
    return CDC::FromHandle(::GetDCEx(m_hWnd, GdiHandle<HRGN>(prgnClip), flags));
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const {
    AfxSend(m_hWnd, WM_PRINT, pDC->m_hDC, dwFlags);
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const {
    AfxSend(m_hWnd, WM_PRINTCLIENT, pDC->m_hDC, dwFlags);
}

void CWnd::UpdateWindow() {
    ::UpdateWindow(m_hWnd);
}

void CWnd::SetRedraw(BOOL bRedraw) {
    AfxSend(m_hWnd, WM_SETREDRAW, bRedraw);
}

BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase) {
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase) {
    return ::GetUpdateRgn(m_hWnd, GdiHandle<HRGN>(pRgn), bErase);
}

void CWnd::Invalidate(BOOL bErase) {
    ::InvalidateRect(m_hWnd, nullptr, bErase);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase) {
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase) {
    ::InvalidateRgn(m_hWnd, GdiHandle<HRGN>(pRgn), bErase);
}

void CWnd::ValidateRect(LPCRECT lpRect) {
    ::ValidateRect(m_hWnd, lpRect);
}

void CWnd::ValidateRgn(CRgn* pRgn) {
    ::ValidateRgn(m_hWnd, GdiHandle<HRGN>(pRgn));
}

BOOL CWnd::ShowWindow(int nCmdShow) {
    if (m_pCtrlSite != nullptr) {
        return m_pCtrlSite->ShowWindow(nCmdShow);
    }
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::IsWindowVisible() const {
    return ::IsWindowVisible(m_hWnd);
}

void CWnd::ShowOwnedPopups(BOOL bShow) {
    ::ShowOwnedPopups(m_hWnd, bShow);
}

BOOL CWnd::LockWindowUpdate() {
    return ::LockWindowUpdate(m_hWnd);
}

void CWnd::UnlockWindowUpdate() {
    ::LockWindowUpdate(nullptr);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    return ::RedrawWindow(m_hWnd, lpRectUpdate, GdiHandle<HRGN>(prgnUpdate), flags);
}

// Timers, state, focus and capture

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                        void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD)) {
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent) {
    return ::KillTimer(m_hWnd, nIDEvent);
}

BOOL CWnd::IsWindowEnabled() const {
    return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL bEnable) {
    if (m_pCtrlSite != nullptr) {
        return m_pCtrlSite->EnableWindow(bEnable);
    }
    return ::EnableWindow(m_hWnd, bEnable);
}

CWnd* CWnd::GetActiveWindow() {
    return FromHandle(::GetActiveWindow());
}

CWnd* CWnd::SetActiveWindow() {
    return FromHandle(::SetActiveWindow(m_hWnd));
}

BOOL CWnd::SetForegroundWindow() {
    return ::SetForegroundWindow(m_hWnd);
}

CWnd* CWnd::GetForegroundWindow() {
    return FromHandle(::GetForegroundWindow());
}

CWnd* CWnd::GetCapture() {
    return FromHandle(::GetCapture());
}

CWnd* CWnd::SetCapture() {
    return FromHandle(::SetCapture(m_hWnd));
}

CWnd* CWnd::GetFocus() {
    return FromHandle(::GetFocus());
}

CWnd* CWnd::SetFocus() {
    if (m_pCtrlSite != nullptr) {
        return m_pCtrlSite->SetFocus();
    }
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd* CWnd::GetDesktopWindow() {
    return FromHandle(::GetDesktopWindow());
}

// Drop of files, clipboard, caret

void CWnd::DragAcceptFiles(BOOL bAccept) {
    ::DragAcceptFiles(m_hWnd, bAccept);
}

BOOL CWnd::OpenClipboard() {
    return ::OpenClipboard(m_hWnd);
}

void CWnd::CreateSolidCaret(int nWidth, int nHeight) {
    ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight);
}

void CWnd::CreateCaret(CBitmap* pBitmap) {
    ::CreateCaret(m_hWnd, GdiHandle<HBITMAP>(pBitmap), 0, 0);
}

CPoint CWnd::GetCaretPos() {
    POINT point = {};
    ::GetCaretPos(&point);
    return point;
}

void CWnd::SetCaretPos(POINT point) {
    ::SetCaretPos(point.x, point.y);
}

void CWnd::HideCaret() {
    ::HideCaret(m_hWnd);
}

void CWnd::ShowCaret() {
    ::ShowCaret(m_hWnd);
}

// The window tree

CWnd* CWnd::ChildWindowFromPoint(POINT point) const {
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const {
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}

CWnd* CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName) {
    return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
}

CWnd* CWnd::FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass,
                         LPCTSTR lpszWindow) {
    return FromHandle(::FindWindowEx(hwndParent, hwndChildAfter, lpszClass, lpszWindow));
}

CWnd* CWnd::GetNextWindow(UINT nFlag) const {
    return FromHandle(::GetWindow(m_hWnd, nFlag));
}

CWnd* CWnd::GetTopWindow() const {
    return FromHandle(::GetTopWindow(m_hWnd));
}

CWnd* CWnd::GetWindow(UINT nCmd) const {
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}

CWnd* CWnd::GetLastActivePopup() const {
    return FromHandle(::GetLastActivePopup(m_hWnd));
}

BOOL CWnd::IsChild(const CWnd* pWnd) const {
    return ::IsChild(m_hWnd, HandleOf(pWnd));
}

CWnd* CWnd::GetParent() const {
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent) {
    return FromHandle(::SetParent(m_hWnd, HandleOf(pWndNewParent)));
}

CWnd* CWnd::WindowFromPoint(POINT point) {
    return FromHandle(::WindowFromPoint(point));
}

BOOL CWnd::IsFrameWnd() const {
    return FALSE;
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    HWND hWndChild = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (hWndChild == nullptr || hWndChild == m_hWnd) {
        return -1;
    }
    const INT_PTR nHit = LOWORD(::GetDlgCtrlID(hWndChild));
    if (pTI != nullptr && pTI->cbSize >= TTTOOLINFO_V1_SIZE) {
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(hWndChild);
        pTI->uFlags |= TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
        ::GetWindowRect(hWndChild, &pTI->rect);
        ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(&pTI->rect), 2);
    }
    return nHit;
}
