// Small common controls: key combinations, clips, network addresses, links, and the combo box with
// images.
#pragma once

#include "afx/controls/controls.h"
#include "afx/drawing/image_list.h"

class QVAFX_API CHotKeyCtrl : public CWnd {
    DECLARE_DYNAMIC(CHotKeyCtrl)

public:
    CHotKeyCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// A virtual key, and HOTKEYF_ modifiers.
    void SetHotKey(WORD wVirtualKeyCode, WORD wModifiers);
    DWORD GetHotKey() const;  ///< key in the low byte, modifiers in the next
    void GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const;
    CString GetHotKeyName() const;
    static CString GetKeyName(UINT vk, BOOL fExtended);
    /// wInvalidComb: HKCOMB_ flags, in whose place wModifiers come.
    void SetRules(WORD wInvalidComb, WORD wModifiers);
};

class QVAFX_API CAnimateCtrl : public CWnd {
    DECLARE_DYNAMIC(CAnimateCtrl)

public:
    CAnimateCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL Open(LPCTSTR lpszFileName);  ///< a file, or a resource of the module of the window
    BOOL Open(UINT nID) { return Open(MAKEINTRESOURCE(nID)); }
    BOOL Play(UINT nFrom, UINT nTo, UINT nRep);
    BOOL Stop();
    BOOL Close();
    BOOL Seek(UINT nTo);
    BOOL IsPlaying() const;
};

class QVAFX_API CIPAddressCtrl : public CWnd {
    DECLARE_DYNAMIC(CIPAddressCtrl)

public:
    CIPAddressCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL IsBlank() const;
    void ClearAddress();
    /// The number of fields that are filled.
    int GetAddress(BYTE& nField0, BYTE& nField1, BYTE& nField2, BYTE& nField3) const;
    int GetAddress(DWORD& dwAddress) const;  ///< the first field in the highest byte
    void SetAddress(BYTE nField0, BYTE nField1, BYTE nField2, BYTE nField3);
    void SetAddress(DWORD dwAddress);
    void SetFieldFocus(WORD nField);
    void SetFieldRange(int nField, BYTE nLower, BYTE nUpper);
};

/// A text with links in it: <A HREF="address">words</A>, or <A ID="name">.
class QVAFX_API CLinkCtrl : public CWnd {
    DECLARE_DYNAMIC(CLinkCtrl)

public:
    CLinkCtrl() = default;
    virtual BOOL Create(LPCTSTR lpszLinkMarkup, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID);
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetIdealHeight() const;
    BOOL GetItem(PLITEM pItem) const;
    BOOL SetItem(PLITEM pItem);
    BOOL GetItemID(int iLink, CString& strID) const;
    BOOL SetItemID(int iLink, LPCWSTR szID);
    BOOL GetItemUrl(int iLink, CString& strUrl) const;
    BOOL SetItemUrl(int iLink, LPCWSTR szUrl);
    BOOL GetItemState(int iLink, UINT* pnState, UINT stateMask) const;
    BOOL SetItemState(int iLink, UINT state, UINT stateMask);
    BOOL HitTest(PLHITTESTINFO phti) const;
};

class QVAFX_API CComboBoxEx : public CComboBox {
    DECLARE_DYNAMIC(CComboBoxEx)

public:
    CComboBoxEx() = default;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    int InsertItem(const COMBOBOXEXITEM* pCBItem);
    int DeleteItem(int iIndex);
    BOOL GetItem(PCOMBOBOXEXITEM pCBItem);
    BOOL SetItem(const COMBOBOXEXITEM* pCBItem);
    BOOL HasEditChanged();
    DWORD GetExtendedStyle() const;
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles);
    CEdit* GetEditCtrl();
    CComboBox* GetComboBoxCtrl();
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
};
