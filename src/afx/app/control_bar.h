// CControlBar: what toolbars, status bars, dialog bars and rebars have in common. Included by
// afxext.h.
#pragma once

#include "afx/app/bar_styles.h"
#include "afx/window/wnd.h"

#include <afxres.h>

#include <memory>

class AfxBarDrag;
class CDockBar;

/// A window that takes a strip off its frame's client area and is kept up to date at idle time.
/// Once bar and frame have EnableDocking, it lies in one of the frame's dock bars or floats in a
/// small frame of its own; the user drags it by its gripper or by any place without a control.
class QVAFX_API CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)

public:
    ~CControlBar() override;

    BOOL m_bAutoDelete = FALSE;
    CDockBar* m_pDockBar = nullptr;  ///< that it lies in, or null

    int GetCount() const { return m_nCount; }
    /// CBRS_ styles.
    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD dwStyle);
    /// Room inside the bar around what it shows, in pixels; toolbars have it.
    void SetBorders(int cxLeft = 0, int cyTop = 0, int cxRight = 0, int cyBottom = 0);
    void SetBorders(LPCRECT lpRect);
    CRect GetBorders() const;
    BOOL IsVisible() const;
    CFrameWnd* GetDockingFrame() const;
    BOOL IsFloating() const;
    virtual BOOL IsDockBar() const { return FALSE; }
    /// dwDockStyle: the CBRS_ALIGN_ edges that the bar may lie at; 0 for none.
    void EnableDocking(DWORD dwDockStyle);

    /// The size along the edge that the bar lies at.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    /// nMode: LM_ values. nLength: a width or height that is asked for, or -1.
    virtual CSize CalcDynamicLayout(int nLength, DWORD nMode);
    /// Takes gripper and borders off the rectangle.
    void CalcInsideRect(CRect& rect, BOOL bHorz) const;
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;
    virtual void OnBarStyleChange(DWORD dwOldStyle, DWORD dwNewStyle);
    /// Shows or hides it at the next idle time.
    virtual void DelayShow(BOOL bShow);

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    CControlBar();
    void PostNcDestroy() override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void JoinFrame(CFrameWnd* pFrame);
    /// Of the gripper and the borders at each side.
    virtual CRect CalcInsets(BOOL bHorz) const;
    /// Draws them; rect is the whole bar.
    virtual void DrawBorders(CDC* pDC, CRect& rect);
    void DrawGripper(CDC* pDC, const CRect& rect);

    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInitialUpdate(WPARAM wParam, LPARAM lParam);
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg void OnNcPaint();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnMouseLeave();

    DWORD m_dwStyle = CBRS_TOP;
    DWORD m_dwDockStyle = 0;
    int m_nCount = 0;
    CFrameWnd* m_pDockSite = nullptr;
    int m_cxLeftBorder = 0;
    int m_cyTopBorder = 0;
    int m_cxRightBorder = 0;
    int m_cyBottomBorder = 0;
    int m_nMRUWidth = 0;  ///< when it floated last; 0: not yet

    DECLARE_MESSAGE_MAP()

private:
    friend class AfxBarDrag;
    friend class AfxFloatingFrame;
    friend class CDockBar;
    friend class CFrameWnd;

    enum Delayed { NotDelayed, DelayedShow, DelayedHide };

    bool IsHorizontal() const { return (m_dwStyle & CBRS_ORIENT_HORZ) != 0; }
    bool CanDrag(CPoint point) const;
    void ShowFlyBy(INT_PTR nHit);
    void LeaveDocks();

    std::unique_ptr<AfxBarDrag> m_pDrag;  ///< while the user drags it
    INT_PTR m_nFlyBy = -1;                ///< the command whose text shows in the message line
    Delayed m_delayed = NotDelayed;
    int m_nDockOffset = 0;    ///< pixels along its edge, as wished
    UINT m_nLastDock = 0;     ///< the dock bar that it lay in last, by number
    CPoint m_ptLastFloat;     ///< where it floated last, on the screen
    bool m_bFloated = false;  ///< m_ptLastFloat is known
};
