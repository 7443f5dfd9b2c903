// CBitmapButton: a button whose looks are bitmaps.
#pragma once

#include "afx/controls/controls.h"
#include "afx/drawing/gdi.h"

/// For a button with BS_OWNERDRAW. Only the first bitmap is needed.
class QVAFX_API CBitmapButton : public CButton {
    DECLARE_DYNAMIC(CBitmapButton)

public:
    CBitmapButton() = default;

    /// Up, pressed, with the focus, disabled. FALSE if one that is named cannot be loaded.
    BOOL LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = nullptr,
                     LPCTSTR lpszBitmapResourceFocus = nullptr,
                     LPCTSTR lpszBitmapResourceDisabled = nullptr);
    BOOL LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0,
                     UINT nIDBitmapResourceFocus = 0, UINT nIDBitmapResourceDisabled = 0);
    /// Takes a dialog's button over, with the bitmaps named as its caption is and U, D, F and X
    /// behind it, and gives it their size.
    BOOL AutoLoad(UINT nID, CWnd* pParent);
    void SizeToContent();

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    CBitmap m_bitmap;
    CBitmap m_bitmapSel;
    CBitmap m_bitmapFocus;
    CBitmap m_bitmapDisabled;
};
