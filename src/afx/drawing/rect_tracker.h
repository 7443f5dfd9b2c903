// CRectTracker: a rectangle that the user moves and sizes by its handles.
#pragma once

#include "afx/drawing/dc.h"

/// Coordinates are the client area's, in pixels. It is no window: the window that shows it draws
/// it, asks it where the mouse is, and lets it track from a button press on.
class QVAFX_API CRectTracker {
public:
    enum StyleFlags {
        solidLine = 1,
        dottedLine = 2,
        hatchedBorder = 4,
        resizeInside = 8,
        resizeOutside = 16,
        hatchInside = 32,
    };
    enum TrackerHit {
        hitNothing = -1,
        hitTopLeft = 0,
        hitTopRight = 1,
        hitBottomRight = 2,
        hitBottomLeft = 3,
        hitTop = 4,
        hitRight = 5,
        hitBottom = 6,
        hitLeft = 7,
        hitMiddle = 8,
    };

    CRectTracker();
    CRectTracker(LPCRECT lpSrcRect, UINT nStyle);
    virtual ~CRectTracker() = default;

    UINT m_nStyle = 0;  ///< StyleFlags
    CRect m_rect;
    CSize m_sizeMin;
    int m_nHandleSize;

    void Draw(CDC* pDC) const;
    void GetTrueRect(LPRECT lpTrueRect) const;  ///< with handles and border
    /// For WM_SETCURSOR. FALSE if the pointer is outside.
    BOOL SetCursor(CWnd* pWnd, UINT nHitTest) const;
    /// Until the button is released. FALSE if nothing changed: released where it was pressed, ended
    /// by ESC or the other button, or the window lost the mouse. Queue messages of others go on.
    BOOL Track(CWnd* pWnd, CPoint point, BOOL bAllowInvert = FALSE, CWnd* pWndClipTo = nullptr);
    /// A new rectangle from the point on.
    BOOL TrackRubberBand(CWnd* pWnd, CPoint point, BOOL bAllowInvert = TRUE);
    int HitTest(CPoint point) const;  ///< TrackerHit
    /// The handle that shows where nHandle is, of a rectangle turned over.
    int NormalizeHit(int nHandle) const;

    // While tracking
    virtual void DrawTrackerRect(LPCRECT lpRect, CWnd* pWndClipTo, CDC* pDC, CWnd* pWnd);
    virtual void AdjustRect(int nHandle, LPRECT lpRect);
    virtual void OnChangedRect(const CRect& rectOld);
    virtual UINT GetHandleMask() const;  ///< a bit for each TrackerHit handle that there is

protected:
    virtual int HitTestHandles(CPoint point) const;
    void GetHandleRect(int nHandle, CRect* pHandleRect) const;
    /// Which edges a handle moves (null: none), and where they are.
    virtual void GetModifyPointers(int nHandle, int** ppx, int** ppy, int* px, int* py);
    virtual int GetHandleSize(LPCRECT lpRect = nullptr) const;
    virtual BOOL TrackHandle(int nHandle, CWnd* pWnd, CPoint point, CWnd* pWndClipTo);

    BOOL m_bAllowInvert = FALSE;
    CRect m_rectLast;
    CSize m_sizeLast;
    BOOL m_bErase = FALSE;       ///< DrawTrackerRect takes the last frame away
    BOOL m_bFinalErase = FALSE;  ///< and draws no new one
};
