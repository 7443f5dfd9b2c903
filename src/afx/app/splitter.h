// CSplitterWnd: panes in rows and columns with bars between them. Included by afxext.h.
#pragma once

#include "afx/window/wnd.h"

#include <afxres.h>

class CView;

#define SPLS_DYNAMIC_SPLIT 0x0001  // the user makes and removes panes
#define SPLS_INVERT_TRACKER 0x0002

/// A splitter is static: all panes are made by the program, with CreateView, right after
/// CreateStatic; or dynamic: it begins with one view of the context's class, and splits off more
/// of that class up to its greatest numbers. Panes may be splitters themselves. Sizes are pixels.
///
/// With WS_HSCROLL and WS_VSCROLL, which a dynamic one has, the panes of a column share a scroll
/// bar, and so do those of a row. Where these bars meet in the corner of a frame that can be sized,
/// the corner is its size box.
class QVAFX_API CSplitterWnd : public CWnd {
    DECLARE_DYNAMIC(CSplitterWnd)

public:
    CSplitterWnd();
    ~CSplitterWnd() override;

    using CWnd::Create;
    /// Up to two rows and columns. sizeMin: a pane smaller than that is not shown.
    virtual BOOL Create(CWnd* pParentWnd, int nMaxRows, int nMaxCols, SIZE sizeMin,
                        CCreateContext* pContext,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL |
                                        SPLS_DYNAMIC_SPLIT,
                        UINT nID = AFX_IDW_PANE_FIRST);
    /// Up to 16 rows and columns.
    virtual BOOL CreateStatic(CWnd* pParentWnd, int nRows, int nCols,
                              DWORD dwStyle = WS_CHILD | WS_VISIBLE, UINT nID = AFX_IDW_PANE_FIRST);
    /// A view, or any window of that class. sizeInit counts for its row and column.
    virtual BOOL CreateView(int row, int col, CRuntimeClass* pViewClass, SIZE sizeInit,
                            CCreateContext* pContext);

    int GetRowCount() const { return m_nRows; }
    int GetColumnCount() const { return m_nCols; }
    void GetRowInfo(int row, int& cyCur, int& cyMin) const;
    void SetRowInfo(int row, int cyIdeal, int cyMin);  ///< RecalcLayout shows it
    void GetColumnInfo(int col, int& cxCur, int& cxMin) const;
    void SetColumnInfo(int col, int cxIdeal, int cxMin);
    DWORD GetScrollStyle() const;
    void SetScrollStyle(DWORD dwStyle);

    CWnd* GetPane(int row, int col) const;
    BOOL IsChildPane(CWnd* pWnd, int* pRow, int* pCol);
    BOOL IsChildPane(CWnd* pWnd, int& row, int& col) { return IsChildPane(pWnd, &row, &col); }
    int IdFromRowCol(int row, int col) const;
    BOOL IsTracking() const { return m_bTracking; }

    virtual void RecalcLayout();

    /// The pane of the frame's active view, or that has the focus. Null: none.
    virtual CWnd* GetActivePane(int* pRow = nullptr, int* pCol = nullptr);
    virtual void SetActivePane(int row, int col, CWnd* pWnd = nullptr);
    virtual BOOL CanActivateNext(BOOL bPrev = FALSE);
    virtual void ActivateNext(BOOL bPrev = FALSE);
    /// The bars move by the arrow keys until RETURN or ESC. FALSE: there are none.
    virtual BOOL DoKeyboardSplit();
    /// All panes of the view's column, or row, scroll. bDoScroll FALSE only asks whether they
    /// would.
    virtual BOOL DoScroll(CView* pViewFrom, UINT nScrollCode, BOOL bDoScroll = TRUE);
    virtual BOOL DoScrollBy(CView* pViewFrom, CSize sizeScroll, BOOL bDoScroll = TRUE);

    // Panes of a dynamic one
    virtual BOOL SplitRow(int cyBefore);
    virtual BOOL SplitColumn(int cxBefore);
    virtual void DeleteRow(int rowDelete);
    virtual void DeleteColumn(int colDelete);
    virtual void DeleteView(int row, int col);
    virtual BOOL CreateScrollBarCtrl(DWORD dwStyle, UINT nID);

protected:
    enum ESplitType { splitBox, splitBar, splitIntersection, splitBorder };

    virtual void OnDrawSplitter(CDC* pDC, ESplitType nType, const CRect& rect);
    virtual void OnInvertTracker(const CRect& rect);
    virtual void GetInsideRect(CRect& rect) const;
    virtual int HitTest(CPoint pt) const;
    virtual void GetHitRect(int ht, CRect& rect);
    virtual void StartTracking(int ht);
    virtual void StopTracking(BOOL bAccept);
    virtual void TrackRowSize(int y, int row);
    virtual void TrackColumnSize(int x, int col);
    virtual void SetSplitCursor(int ht);

    BOOL CreateCommon(CWnd* pParentWnd, SIZE sizeMin, DWORD dwStyle, UINT nID);
    void DrawAllSplitBars(CDC* pDC, int cxInside, int cyInside);

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseMove(UINT nFlags, CPoint pt);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint pt);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint pt);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint pt);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    DECLARE_MESSAGE_MAP()

    struct CRowColInfo {
        int nMinSize = 0;
        int nIdealSize = 0;  ///< as the user or the program wants it
        int nCurSize = 0;    ///< 0: not shown
    };

    CRuntimeClass* m_pDynamicViewClass = nullptr;
    int m_nMaxRows = 0;
    int m_nMaxCols = 0;

    int m_cxSplitter;  ///< the bar between two columns
    int m_cySplitter;
    int m_cxBorderShare = 0;
    int m_cyBorderShare = 0;
    int m_cxSplitterGap;  ///< room between two columns
    int m_cySplitterGap;
    int m_cxBorder;  ///< around each pane
    int m_cyBorder;

    int m_nRows = 0;
    int m_nCols = 0;
    BOOL m_bHasHScroll = FALSE;
    BOOL m_bHasVScroll = FALSE;
    CRowColInfo* m_pColInfo = nullptr;
    CRowColInfo* m_pRowInfo = nullptr;

    BOOL m_bTracking = FALSE;
    BOOL m_bTracking2 = FALSE;  ///< rows as well as columns
    CPoint m_ptTrackOffset;     ///< from the pointer to the tracked bar
    CRect m_rectLimit;
    CRect m_rectTracker;
    CRect m_rectTracker2;
    int m_htTrack = 0;

private:
    struct Axis;
    Axis Rows() const;
    Axis Columns() const;
    CWnd* GetActivePaneNext(BOOL bPrev);
    BOOL Split(bool bRow, int nBefore);
    void DeleteLine(bool bRow, int nDelete);
    void PlaceScrollBars(const CRect& rcInside);
    void ForwardScroll(UINT message, UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    BOOL ScrollPanes(CView* pViewFrom, CSize sizeScroll, UINT nScrollCode, bool bBy,
                     BOOL bDoScroll);
    CScrollBar* BarOf(UINT nID) const;
    CRect PaneRect(int row, int col) const;
    CRect CornerRect() const;
    HWND SizedByCorner() const;
};
