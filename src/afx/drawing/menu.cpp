#include "afx/drawing/menu.h"

#include "afx/drawing/handle_map.h"
#include "afx/drawing/thread_map.h"

#include <afxwin.h>

IMPLEMENT_DYNCREATE(CMenu, CObject)

struct AfxMenuMap {
    static void Put(CMenu& menu, HMENU hMenu) {
        menu.m_hMenu = hMenu;
        menu.m_bTemporary = true;
    }
    struct Map : CHandleMap<CMenu, HMENU> {
        Map() : CHandleMap(&Put) {}
    };
    static Map& Get() { return AfxThreadMap<Map>(); }
};

namespace {

// Programs call these through null pointers; without noipa the check would be compiled away.
[[gnu::noipa]] HMENU HandleOrNull(const CMenu* pMenu) {
    return pMenu != nullptr ? pMenu->m_hMenu : nullptr;
}

HBITMAP BitmapOf(const CBitmap* pBitmap) {
    return pBitmap != nullptr ? static_cast<HBITMAP>(pBitmap->GetSafeHandle()) : nullptr;
}

}  // namespace

CMenu::CMenu() = default;
CMenu::~CMenu() {
    DestroyMenu();
}

HMENU CMenu::GetSafeHmenu() const {
    return HandleOrNull(this);
}

CMenu* CMenu::FromHandle(HMENU hMenu) {
    return AfxMenuMap::Get().FromHandle(hMenu);
}
CMenu* CMenu::FromHandlePermanent(HMENU hMenu) {
    return AfxMenuMap::Get().LookupPermanent(hMenu);
}
void CMenu::DeleteTempMap() {
    AfxMenuMap::Get().DeleteTemp();
}

BOOL CMenu::Attach(HMENU hMenu) {
    if (hMenu == nullptr) {
        return FALSE;
    }
    DestroyMenu();
    m_hMenu = hMenu;
    AfxMenuMap::Get().SetPermanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach() {
    const HMENU hMenu = m_hMenu;
    if (hMenu != nullptr && !m_bTemporary) {
        AfxMenuMap::Get().RemovePermanent(this);
    }
    m_hMenu = nullptr;
    return hMenu;
}

BOOL CMenu::DestroyMenu() {
    return m_hMenu != nullptr && ::DestroyMenu(Detach());
}

BOOL CMenu::CreateMenu() {
    return Attach(::CreateMenu());
}
BOOL CMenu::CreatePopupMenu() {
    return Attach(::CreatePopupMenu());
}
BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    return Attach(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}
BOOL CMenu::LoadMenuIndirect(const void* lpMenuTemplate) {
    return Attach(::LoadMenuIndirect(lpMenuTemplate));
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
}
BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm) {
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, pWnd->GetSafeHwnd(), lptpm);
}
BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nID, const CBitmap* pBmp) {
    return AppendMenu(nFlags | MF_BITMAP, nID, reinterpret_cast<LPCTSTR>(BitmapOf(pBmp)));
}
BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nID, const CBitmap* pBmp) {
    return InsertMenu(nPosition, nFlags | MF_BITMAP, nID,
                      reinterpret_cast<LPCTSTR>(BitmapOf(pBmp)));
}
BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nID, const CBitmap* pBmp) {
    return ModifyMenu(nPosition, nFlags | MF_BITMAP, nID,
                      reinterpret_cast<LPCTSTR>(BitmapOf(pBmp)));
}
BOOL CMenu::InsertMenuItem(UINT uItem, LPMENUITEMINFO p, BOOL fByPos) {
    return ::InsertMenuItem(m_hMenu, uItem, fByPos, p);
}
BOOL CMenu::SetMenuContextHelpId(DWORD dwContextHelpId) {
    return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId);
}
DWORD CMenu::GetMenuContextHelpId() const {
    return ::GetMenuContextHelpId(m_hMenu);
}
BOOL CMenu::GetMenuInfo(LPMENUINFO p) const {
    p->cbSize = sizeof *p;
    return ::GetMenuInfo(m_hMenu, p);
}
BOOL CMenu::SetMenuInfo(LPCMENUINFO p) {
    MENUINFO info = *p;
    info.cbSize = sizeof info;
    return ::SetMenuInfo(m_hMenu, &info);
}
BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags) {
    return ::DeleteMenu(m_hMenu, nPosition, nFlags);
}
BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nID, LPCTSTR lpsz) {
    return ::AppendMenu(m_hMenu, nFlags, nID, lpsz);
}
BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nID, LPCTSTR lpsz) {
    return ::InsertMenu(m_hMenu, nPosition, nFlags, nID, lpsz);
}
BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nID, LPCTSTR lpsz) {
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nID, lpsz);
}
BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags) {
    return ::RemoveMenu(m_hMenu, nPosition, nFlags);
}
UINT CMenu::CheckMenuItem(UINT nID, UINT nCheck) {
    return ::CheckMenuItem(m_hMenu, nID, nCheck);
}
BOOL CMenu::CheckMenuRadioItem(UINT nFirst, UINT nLast, UINT nID, UINT nFlags) {
    return ::CheckMenuRadioItem(m_hMenu, nFirst, nLast, nID, nFlags);
}
UINT CMenu::EnableMenuItem(UINT nID, UINT nEnable) {
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, nID, nEnable));
}
BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos) {
    return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
}
UINT CMenu::GetDefaultItem(UINT gmdiFlags, BOOL fByPos) {
    return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
}
UINT CMenu::GetMenuItemCount() const {
    return static_cast<UINT>(::GetMenuItemCount(m_hMenu));
}
UINT CMenu::GetMenuItemID(int nPos) const {
    return ::GetMenuItemID(m_hMenu, nPos);
}
UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const {
    return ::GetMenuState(m_hMenu, nID, nFlags);
}
int CMenu::GetMenuString(UINT nID, LPTSTR lpString, int nMaxCount, UINT nFlags) const {
    const int nLength = ::GetMenuString(m_hMenu, nID, lpString, nMaxCount, nFlags);
    if (lpString != nullptr && nMaxCount > 0) {
        lpString[nMaxCount - 1] = 0;  // not every platform ends what it cuts
    }
    return nLength;
}
int CMenu::GetMenuString(UINT nID, CString& rString, UINT nFlags) const {
    const int nLength = ::GetMenuString(m_hMenu, nID, nullptr, 0, nFlags);
    rString.Empty();
    if (nLength > 0) {
        ::GetMenuString(m_hMenu, nID, rString.GetBuffer(nLength), nLength + 1, nFlags);
        rString.ReleaseBuffer();
    }
    return nLength;
}
BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO p, BOOL fByPos) {
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, p);
}
BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO p, BOOL fByPos) {
    return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, p);
}
BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pUnchecked,
                               const CBitmap* pChecked) {
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, BitmapOf(pUnchecked),
                                BitmapOf(pChecked));
}
CMenu* CMenu::GetSubMenu(int nPos) const {
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}
void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}
