// Handlers of messages about the clipboard, devices, the session and menus.
#include "afx/window/wnd.h"

#include <afxwin.h>

void CWnd::OnClipboardUpdate() {
    Default();
}
void CWnd::OnDestroyClipboard() {
    Default();
}
void CWnd::OnRenderFormat(UINT) {
    Default();
}
void CWnd::OnRenderAllFormats() {
    Default();
}
void CWnd::OnPaintClipboard(CWnd*, HGLOBAL) {
    Default();
}
void CWnd::OnSizeClipboard(CWnd*, HGLOBAL) {
    Default();
}
void CWnd::OnAskCbFormatName(UINT, LPTSTR) {
    Default();
}
void CWnd::OnHScrollClipboard(CWnd*, UINT, UINT) {
    Default();
}
void CWnd::OnVScrollClipboard(CWnd*, UINT, UINT) {
    Default();
}
void CWnd::OnCompacting(UINT) {
    Default();
}
void CWnd::OnSpoolerStatus(UINT, UINT) {
    Default();
}
void CWnd::OnIconEraseBkgnd(CDC*) {
    Default();
}
BOOL CWnd::OnDeviceChange(UINT, DWORD_PTR) {
    return static_cast<BOOL>(Default());
}
UINT CWnd::OnPowerBroadcast(UINT, LPARAM) {
    return static_cast<UINT>(Default());
}
void CWnd::OnSessionChange(UINT, UINT) {
    Default();
}
void CWnd::OnUserChanged() {
    Default();
}
void CWnd::OnWinIniChange(LPCTSTR) {
    Default();
}
void CWnd::OnInputLangChange(UINT, UINT) {
    Default();
}
void CWnd::OnInputLangChangeRequest(UINT, UINT) {
    Default();
}
void CWnd::OnHotKey(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnRawInput(UINT, HRAWINPUT) {
    Default();
}
void CWnd::OnNcMouseHover(UINT, CPoint) {
    Default();
}
void CWnd::OnNcMouseLeave() {
    Default();
}
void CWnd::OnNextMenu(UINT, LPMDINEXTMENU) {
    Default();
}
void CWnd::OnUnInitMenuPopup(CMenu*, UINT) {
    Default();
}
void CWnd::OnMenuRButtonUp(UINT, CMenu*) {
    Default();
}
UINT CWnd::OnMenuDrag(UINT, CMenu*) {
    return static_cast<UINT>(Default());
}
UINT CWnd::OnMenuGetObject(MENUGETOBJECTINFO*) {
    return static_cast<UINT>(Default());
}
void CWnd::OnMenuCommand(UINT, CMenu*) {
    Default();
}
UINT CWnd::OnQueryUIState() {
    return static_cast<UINT>(Default());
}
void CWnd::OnChangeUIState(UINT, UINT) {
    Default();
}
void CWnd::OnUpdateUIState(UINT, UINT) {
    Default();
}
