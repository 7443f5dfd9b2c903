// CScrollView: a view of something larger than itself. Included by afxwin.h.
#pragma once

#include "afx/documents/view.h"

#define MM_NONE 0         // no sizes yet
#define MM_SCALETOFIT -1  // SetScaleToFitSize

/// SetScrollSizes in OnInitialUpdate or OnUpdate; OnDraw then draws in logical units from the upper
/// left corner of the whole on.
class QVAFX_API CScrollView : public CView {
    DECLARE_DYNAMIC(CScrollView)

public:
    static const SIZE sizeDefault;

    /// Logical units of a mapping mode other than MM_ISOTROPIC and MM_ANISOTROPIC. A page is a
    /// tenth of the whole by default, a line a tenth of a page.
    void SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage = sizeDefault,
                        const SIZE& sizeLine = sizeDefault);
    /// The whole of it always shows, without scroll bars.
    void SetScaleToFitSize(SIZE sizeTotal);
    CPoint GetScrollPosition() const;  ///< logical, of the upper left corner
    CSize GetTotalSize() const { return m_totalLog; }
    CPoint GetDeviceScrollPosition() const;
    void GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage, SIZE& sizeLine) const;
    void ScrollToPosition(POINT pt);  ///< logical
    /// What is beside the whole, where the window is larger. The context is a prepared one.
    void FillOutsideRect(CDC* pDC, CBrush* pBrush);
    void ResizeParentToFit(BOOL bShrinkOnly = TRUE);
    void CheckScrollBars(BOOL& bHasHorzBar, BOOL& bHasVertBar) const;

    void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = nullptr) override;
    BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE) override;
    BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE) override;

protected:
    CScrollView() = default;

    void OnDraw(CDC* pDC) override = 0;
    void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) override;

    void CenterOnPoint(CPoint ptCenter);  ///< device units of the whole
    void ScrollToDevicePosition(POINT ptDev);
    void UpdateBars();
    BOOL GetTrueClientSize(CSize& size, CSize& sizeSb);
    void GetScrollBarSizes(CSize& sizeSb);

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    DECLARE_MESSAGE_MAP()

    int m_nMapMode = MM_NONE;
    CSize m_totalLog;
    CSize m_totalDev;
    CSize m_pageDev;
    CSize m_lineDev;
    BOOL m_bCenter = FALSE;        ///< what is smaller than the window lies in its middle
    BOOL m_bInsideUpdate = FALSE;  ///< bars are being shown or hidden

private:
    int m_nWheelRest = 0;  ///< turns too small for a line
};
