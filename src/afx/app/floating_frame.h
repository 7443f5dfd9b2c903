// The small frame that one bar floats in. Internal to the framework.
#pragma once

#include "afx/app/mini_frame.h"

class CControlBar;
class CDockBar;

/// Closing it hides the bar. Its caption drags the bar; a double click docks it again. Lives until
/// the bar leaves it.
class AfxFloatingFrame : public CMiniFrameWnd {
public:
    /// A hidden one that has taken the bar, or null.
    static AfxFloatingFrame* Make(CFrameWnd* pOwner, CControlBar* pBar);
    /// The bar left; messages of the frame may be under way.
    static void CloseLater(CDockBar* pDock);

    /// Sizes it for its bar, with the upper left corner of the frame at the point.
    void FitAt(CPoint point);

protected:
    afx_msg void OnClose();
    afx_msg void OnMove(int x, int y);
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CControlBar* Bar() const;
    CSize Surrounds() const;

    CDockBar* m_pDock = nullptr;
};
