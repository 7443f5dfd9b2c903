// CToolBar: the bar of buttons that stand for commands. Included by afxext.h.
#pragma once

#include "afx/app/control_bar.h"
#include "afx/drawing/gdi.h"
#include "afx/drawing/image_list.h"

#include <vector>

// A button's style is in the low word, its state in the high one; a button without
// TBBS_DISABLED is enabled.
#define TBBS_BUTTON MAKELONG(TBSTYLE_BUTTON, 0)
#define TBBS_SEPARATOR MAKELONG(TBSTYLE_SEP, 0)
#define TBBS_CHECKBOX MAKELONG(TBSTYLE_CHECK, 0)
#define TBBS_GROUP MAKELONG(TBSTYLE_GROUP, 0)
#define TBBS_CHECKGROUP (TBBS_GROUP | TBBS_CHECKBOX)
#define TBBS_DROPDOWN MAKELONG(TBSTYLE_DROPDOWN, 0)
#define TBBS_AUTOSIZE MAKELONG(TBSTYLE_AUTOSIZE, 0)
#define TBBS_NOPREFIX MAKELONG(TBSTYLE_NOPREFIX, 0)
#define TBBS_CHECKED MAKELONG(0, TBSTATE_CHECKED)
#define TBBS_PRESSED MAKELONG(0, TBSTATE_PRESSED)
#define TBBS_DISABLED MAKELONG(0, TBSTATE_ENABLED)
#define TBBS_INDETERMINATE MAKELONG(0, TBSTATE_INDETERMINATE)
#define TBBS_HIDDEN MAKELONG(0, TBSTATE_HIDDEN)
#define TBBS_WRAPPED MAKELONG(0, TBSTATE_WRAP)

/// The kind of a toolbar's resource: words 1, width and height of a picture, number of buttons, and
/// each button's command, 0 for a separator. The pictures are a bitmap resource of the same number.
#define RT_TOOLBAR MAKEINTRESOURCE(241)

class CToolBarCtrl;

/// Create, then LoadToolBar, or LoadBitmap and SetButtons. At idle time each button gets the state
/// of its command. Colour RGB(192, 192, 192) of the pictures shows what is behind them.
class QVAFX_API CToolBar : public CControlBar {
    DECLARE_DYNAMIC(CToolBar)

public:
    CToolBar();
    ~CToolBar() override;

    using CWnd::Create;
    using CWnd::CreateEx;
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                        UINT nID = AFX_IDW_TOOLBAR);
    /// dwCtrlStyle: TBSTYLE_ styles of the platform's toolbar.
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP,
                          CRect rcBorders = CRect(0, 0, 0, 0), UINT nID = AFX_IDW_TOOLBAR);

    /// Of a button and of its picture, in pixels.
    void SetSizes(SIZE sizeButton, SIZE sizeImage);
    void SetHeight(int cyHeight);  ///< of the whole bar
    BOOL LoadToolBar(LPCTSTR lpszResourceName);
    BOOL LoadToolBar(UINT nIDResource) { return LoadToolBar(MAKEINTRESOURCE(nIDResource)); }
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
    BOOL SetBitmap(HBITMAP hbmImageWell);  ///< the bar owns it from then on
    /// A button for each command and a separator for each ID_SEPARATOR, with pictures in order.
    /// Null: nIDCount empty ones.
    BOOL SetButtons(const UINT* lpIDArray, int nIDCount);

    int CommandToIndex(UINT nIDFind) const;  ///< -1 if there is no such button
    UINT GetItemID(int nIndex) const;
    virtual void GetItemRect(int nIndex, LPRECT lpRect) const;
    UINT GetButtonStyle(int nIndex) const;  ///< TBBS_
    void SetButtonStyle(int nIndex, UINT nStyle);
    /// iImage: the picture; a separator's width.
    void GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const;
    void SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage);
    BOOL SetButtonText(int nIndex, LPCTSTR lpszText);
    CString GetButtonText(int nIndex) const;
    void GetButtonText(int nIndex, CString& rString) const;
    CToolBarCtrl& GetToolBarCtrl() const;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    CSize CalcDynamicLayout(int nLength, DWORD nMode) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    void OnBarStyleChange(DWORD dwOldStyle, DWORD dwNewStyle) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;

protected:
    CRect CalcInsets(BOOL bHorz) const override;
    void DrawBorders(CDC* pDC, CRect& rect) override;
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    DECLARE_MESSAGE_MAP()

private:
    using Wraps = std::vector<bool>;  ///< whether a line ends behind each button
    bool GetButton(int nIndex, TBBUTTON& button) const;
    void PutButton(int nIndex, const TBBUTTON& button);
    void ShowImages();
    Wraps NoWraps(bool bColumn = false) const;
    Wraps CurrentWraps() const;
    Wraps WrapsFor(int nWidth) const;
    Wraps WrapsForHeight(int nHeight);
    void SetWraps(const Wraps& wraps);
    CSize SizeOf(const Wraps& wraps);
    void ShapeForDock();

    CSize m_sizeButton;
    CSize m_sizeImage;
    CBitmap m_bitmap;     ///< all pictures side by side
    CImageList m_images;  ///< made of it
};
