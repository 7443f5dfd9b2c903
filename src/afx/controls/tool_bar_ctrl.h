// CToolBarCtrl, the platform's toolbar.
#pragma once

#include "afx/drawing/image_list.h"

#include <afxwin.h>

class CToolTipCtrl;

class QVAFX_API CToolBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolBarCtrl)

public:
    CToolBarCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Buttons by command number
    BOOL IsButtonEnabled(int nID) const;
    BOOL IsButtonChecked(int nID) const;
    BOOL IsButtonPressed(int nID) const;
    BOOL IsButtonHidden(int nID) const;
    BOOL IsButtonIndeterminate(int nID) const;
    BOOL IsButtonHighlighted(int nID) const;
    BOOL EnableButton(int nID, BOOL bEnable = TRUE);
    BOOL CheckButton(int nID, BOOL bCheck = TRUE);
    BOOL PressButton(int nID, BOOL bPress = TRUE);
    BOOL HideButton(int nID, BOOL bHide = TRUE);
    BOOL Indeterminate(int nID, BOOL bIndeterminate = TRUE);
    BOOL MarkButton(int nID, BOOL fHighlight = TRUE);
    BOOL SetState(int nID, UINT nState);
    int GetState(int nID) const;
    BOOL GetRect(int nID, LPRECT lpRect) const;
    int GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const;
    BOOL SetButtonInfo(int nID, TBBUTTONINFO* ptbbi);
    UINT CommandToIndex(UINT nID) const;
    int GetBitmap(int nID) const;
    BOOL ChangeBitmap(int idButton, int iBitmap);

    // Buttons by index
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const;
    int GetButtonCount() const;
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons);
    BOOL InsertButton(int nIndex, LPTBBUTTON lpButton);
    BOOL DeleteButton(int nIndex);
    BOOL MoveButton(UINT nOldPos, UINT nNewPos);
    BOOL SetCmdID(int nIndex, UINT nID);
    int GetHotItem() const;
    int SetHotItem(int nHot);
    int HitTest(LPPOINT ppt) const;  ///< negative: a separator, or none

    void SetButtonStructSize(int nSize);
    CSize GetButtonSize() const;
    BOOL SetButtonSize(CSize size);
    BOOL SetBitmapSize(CSize size);
    BOOL SetButtonWidth(int cxMin, int cxMax);
    BOOL SetIndent(int iIndent);
    BOOL SetMaxTextRows(int iMaxRows);
    int GetMaxTextRows() const;
    BOOL GetMaxSize(LPSIZE pSize) const;
    void AutoSize();
    void SetRows(int nRows, BOOL bLarger, LPRECT lpRect);
    int GetRows() const;
    UINT GetBitmapFlags() const;
    DWORD GetStyle() const;
    void SetStyle(DWORD dwStyle);
    DWORD GetExtendedStyle() const;
    DWORD SetExtendedStyle(DWORD dwExStyle);
    UINT SetDrawTextFlags(DWORD dwMask, DWORD dwDTFlags);
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pTip);
    void SetOwner(CWnd* pWnd);

    // Pictures and texts
    int AddBitmap(int nNumButtons, UINT nBitmapID);
    int AddBitmap(int nNumButtons, CBitmap* pBitmap);
    int AddString(UINT nStringID);
    /// Each with its terminator, and one more at the end.
    int AddStrings(LPCTSTR lpszStrings);
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    CImageList* GetHotImageList() const;
    CImageList* SetHotImageList(CImageList* pImageList);
    CImageList* GetDisabledImageList() const;
    CImageList* SetDisabledImageList(CImageList* pImageList);
    void LoadImages(int iBitmapID, HINSTANCE hinst);

    /// Where the user put the buttons, in the registry.
    void SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
    void RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
    void Customize();
};
