#include "afx/controls/small_ctrls.h"

#include "afx/values/wide_text.h"
#include "afx/window/wnd_state.h"

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CHotKeyCtrl, CWnd)
IMPLEMENT_DYNAMIC(CAnimateCtrl, CWnd)
IMPLEMENT_DYNAMIC(CIPAddressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CLinkCtrl, CWnd)
IMPLEMENT_DYNAMIC(CComboBoxEx, CComboBox)

BOOL CHotKeyCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(HOTKEY_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CHotKeyCtrl::SetHotKey(WORD wVirtualKeyCode, WORD wModifiers) {
    AfxSend(m_hWnd, HKM_SETHOTKEY, MAKEWORD(wVirtualKeyCode, wModifiers));
}

DWORD CHotKeyCtrl::GetHotKey() const {
    return AfxSend<DWORD>(m_hWnd, HKM_GETHOTKEY);
}

void CHotKeyCtrl::GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const {
    const DWORD dwKey = GetHotKey();
    wVirtualKeyCode = LOBYTE(LOWORD(dwKey));
    wModifiers = HIBYTE(LOWORD(dwKey));
}

CString CHotKeyCtrl::GetHotKeyName() const {
    WORD wKey = 0;
    WORD wModifiers = 0;
    GetHotKey(wKey, wModifiers);
    if (wKey == 0 && wModifiers == 0) {
        return CString();
    }
    CString strName;
    const auto add = [&](WORD wFlag, UINT nKey) {
        if (wModifiers & wFlag) {
            strName += GetKeyName(nKey, FALSE) + " + ";
        }
    };
    add(HOTKEYF_CONTROL, VK_CONTROL);
    add(HOTKEYF_SHIFT, VK_SHIFT);
    add(HOTKEYF_ALT, VK_MENU);
    return strName + GetKeyName(wKey, wModifiers & HOTKEYF_EXT);
}

CString CHotKeyCtrl::GetKeyName(UINT vk, BOOL fExtended) {
    constexpr UINT kExtended = 0x01000000;
    const UINT nScan = ::MapVirtualKey(vk, 0) << 16 | (fExtended ? kExtended : 0);
    TCHAR szName[64] = {};
    ::GetKeyNameText(static_cast<LONG>(nScan), szName, _countof(szName));
    return szName;
}

void CHotKeyCtrl::SetRules(WORD wInvalidComb, WORD wModifiers) {
    AfxSend(m_hWnd, HKM_SETRULES, wInvalidComb, MAKELPARAM(wModifiers, 0));
}

BOOL CAnimateCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(ANIMATE_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CAnimateCtrl::Open(LPCTSTR lpszFileName) {
    return AfxSend<BOOL>(m_hWnd, ACM_OPEN, 0, lpszFileName);
}

BOOL CAnimateCtrl::Play(UINT nFrom, UINT nTo, UINT nRep) {
    return AfxSend<BOOL>(m_hWnd, ACM_PLAY, nRep, MAKELPARAM(nFrom, nTo));
}

BOOL CAnimateCtrl::Stop() {
    return AfxSend<BOOL>(m_hWnd, ACM_STOP);
}

BOOL CAnimateCtrl::Close() {
    return Open(static_cast<LPCTSTR>(nullptr));
}

BOOL CAnimateCtrl::Seek(UINT nTo) {
    return Play(nTo, nTo, 1);
}

BOOL CAnimateCtrl::IsPlaying() const {
    return AfxSend<BOOL>(m_hWnd, ACM_ISPLAYING);
}

BOOL CIPAddressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_IPADDRESS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CIPAddressCtrl::IsBlank() const {
    return AfxSend<BOOL>(m_hWnd, IPM_ISBLANK);
}

void CIPAddressCtrl::ClearAddress() {
    AfxSend(m_hWnd, IPM_CLEARADDRESS);
}

int CIPAddressCtrl::GetAddress(BYTE& nField0, BYTE& nField1, BYTE& nField2, BYTE& nField3) const {
    DWORD dwAddress = 0;
    const int nFilled = GetAddress(dwAddress);
    nField0 = static_cast<BYTE>(FIRST_IPADDRESS(dwAddress));
    nField1 = static_cast<BYTE>(SECOND_IPADDRESS(dwAddress));
    nField2 = static_cast<BYTE>(THIRD_IPADDRESS(dwAddress));
    nField3 = static_cast<BYTE>(FOURTH_IPADDRESS(dwAddress));
    return nFilled;
}

int CIPAddressCtrl::GetAddress(DWORD& dwAddress) const {
    return AfxSend<int>(m_hWnd, IPM_GETADDRESS, 0, &dwAddress);
}

void CIPAddressCtrl::SetAddress(BYTE nField0, BYTE nField1, BYTE nField2, BYTE nField3) {
    SetAddress(static_cast<DWORD>(MAKEIPADDRESS(nField0, nField1, nField2, nField3)));
}

void CIPAddressCtrl::SetAddress(DWORD dwAddress) {
    AfxSend(m_hWnd, IPM_SETADDRESS, 0, dwAddress);
}

void CIPAddressCtrl::SetFieldFocus(WORD nField) {
    AfxSend(m_hWnd, IPM_SETFOCUS, nField);
}

void CIPAddressCtrl::SetFieldRange(int nField, BYTE nLower, BYTE nUpper) {
    AfxSend(m_hWnd, IPM_SETRANGE, nField, MAKEIPRANGE(nLower, nUpper));
}

BOOL CLinkCtrl::Create(LPCTSTR lpszLinkMarkup, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                       UINT nID) {
    return CWnd::Create("SysLink", lpszLinkMarkup, dwStyle, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return Create(nullptr, dwStyle, rect, pParentWnd, nID);
}

int CLinkCtrl::GetIdealHeight() const {
    return AfxSend<int>(m_hWnd, LM_GETIDEALHEIGHT);
}

BOOL CLinkCtrl::GetItem(PLITEM pItem) const {
    return AfxSend<BOOL>(m_hWnd, LM_GETITEM, 0, pItem);
}

BOOL CLinkCtrl::SetItem(PLITEM pItem) {
    return AfxSend<BOOL>(m_hWnd, LM_SETITEM, 0, pItem);
}

namespace {

LITEM LinkItem(int iLink, UINT nMask) {
    LITEM item = {};
    item.mask = LIF_ITEMINDEX | nMask;
    item.iLink = iLink;
    return item;
}

}  // namespace

BOOL CLinkCtrl::GetItemID(int iLink, CString& strID) const {
    LITEM item = LinkItem(iLink, LIF_ITEMID);
    const BOOL bDone = GetItem(&item);
    strID = item.szID;
    return bDone;
}

BOOL CLinkCtrl::SetItemID(int iLink, LPCWSTR szID) {
    LITEM item = LinkItem(iLink, LIF_ITEMID);
    lstrcpynW(item.szID, szID, _countof(item.szID));
    return SetItem(&item);
}

BOOL CLinkCtrl::GetItemUrl(int iLink, CString& strUrl) const {
    LITEM item = LinkItem(iLink, LIF_URL);
    const BOOL bDone = GetItem(&item);
    strUrl = item.szUrl;
    return bDone;
}

BOOL CLinkCtrl::SetItemUrl(int iLink, LPCWSTR szUrl) {
    LITEM item = LinkItem(iLink, LIF_URL);
    lstrcpynW(item.szUrl, szUrl, _countof(item.szUrl));
    return SetItem(&item);
}

BOOL CLinkCtrl::GetItemState(int iLink, UINT* pnState, UINT stateMask) const {
    LITEM item = LinkItem(iLink, LIF_STATE);
    item.stateMask = stateMask;
    const BOOL bDone = GetItem(&item);
    *pnState = item.state;
    return bDone;
}

BOOL CLinkCtrl::SetItemState(int iLink, UINT state, UINT stateMask) {
    LITEM item = LinkItem(iLink, LIF_STATE);
    item.state = state;
    item.stateMask = stateMask;
    return SetItem(&item);
}

BOOL CLinkCtrl::HitTest(PLHITTESTINFO phti) const {
    return AfxSend<BOOL>(m_hWnd, LM_HITTEST, 0, phti);
}

BOOL CComboBoxEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_COMBOBOXEX, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CComboBoxEx::InsertItem(const COMBOBOXEXITEM* pCBItem) {
    return AfxSend<int>(m_hWnd, CBEM_INSERTITEM, 0, pCBItem);
}

int CComboBoxEx::DeleteItem(int iIndex) {
    return AfxSend<int>(m_hWnd, CBEM_DELETEITEM, iIndex);
}

BOOL CComboBoxEx::GetItem(PCOMBOBOXEXITEM pCBItem) {
    return AfxSend<BOOL>(m_hWnd, CBEM_GETITEM, 0, pCBItem);
}

BOOL CComboBoxEx::SetItem(const COMBOBOXEXITEM* pCBItem) {
    return AfxSend<BOOL>(m_hWnd, CBEM_SETITEM, 0, pCBItem);
}

BOOL CComboBoxEx::HasEditChanged() {
    return AfxSend<BOOL>(m_hWnd, CBEM_HASEDITCHANGED);
}

DWORD CComboBoxEx::GetExtendedStyle() const {
    return AfxSend<DWORD>(m_hWnd, CBEM_GETEXTENDEDSTYLE);
}

DWORD CComboBoxEx::SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles) {
    return AfxSend<DWORD>(m_hWnd, CBEM_SETEXTENDEDSTYLE, dwExMask, dwExStyles);
}

CEdit* CComboBoxEx::GetEditCtrl() {
    return static_cast<CEdit*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, CBEM_GETEDITCONTROL)));
}

CComboBox* CComboBoxEx::GetComboBoxCtrl() {
    return static_cast<CComboBox*>(CWnd::FromHandle(AfxSend<HWND>(m_hWnd, CBEM_GETCOMBOCONTROL)));
}

CImageList* CComboBoxEx::GetImageList() const {
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(m_hWnd, CBEM_GETIMAGELIST));
}

CImageList* CComboBoxEx::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(
        AfxSend<HIMAGELIST>(m_hWnd, CBEM_SETIMAGELIST, 0, pImageList->GetSafeHandle()));
}
