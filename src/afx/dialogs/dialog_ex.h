// CDialogEx: a dialog with a colour or a picture behind its controls.
#pragma once

#include "afx/dialogs/dialog.h"
#include "afx/drawing/gdi.h"

class QVAFX_API CDialogEx : public CDialog {
    DECLARE_DYNAMIC(CDialogEx)

public:
    enum BackgroundLocation {
        BACKGR_TILE,
        BACKGR_TOPLEFT,
        BACKGR_TOPRIGHT,
        BACKGR_BOTTOMLEFT,
        BACKGR_BOTTOMRIGHT
    };

    CDialogEx() = default;
    explicit CDialogEx(UINT nIDTemplate, CWnd* pParent = nullptr) : CDialog(nIDTemplate, pParent) {}
    CDialogEx(UINT nIDTemplate, CWnd* pParentWnd, UINT) : CDialog(nIDTemplate, pParentWnd) {}
    explicit CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr)
        : CDialog(lpszTemplateName, pParentWnd) {}
    ~CDialogEx() override;

    /// Behind static texts, check boxes and the like as well; -1: the system's again.
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE);
    /// Null: none any more. bAutoDestroy: the bitmap is the dialog's from then on.
    void SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location = BACKGR_TILE,
                            BOOL bAutoDestroy = TRUE, BOOL bRepaint = TRUE);
    /// FALSE if there is no such bitmap; 0: none any more.
    BOOL SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location = BACKGR_TILE,
                            BOOL bRepaint = TRUE);

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    DECLARE_MESSAGE_MAP()

    HBITMAP m_hBkgrBitmap = nullptr;
    CSize m_sizeBkgrBitmap = CSize(0, 0);
    CBrush m_brBkgr;
    BackgroundLocation m_BkgrLocation = BACKGR_TILE;
    BOOL m_bAutoDestroyBmp = FALSE;

private:
    void DropBitmap();
    void DrawBitmap(CDC* pDC, const CRect& rcClient);
};
