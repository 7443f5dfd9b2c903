// CPreviewView: what a view will print, on the screen.
#pragma once

#include "afx/documents/view.h"
#include "afx/objects/life.h"

#include <exception>
#include <memory>

class AfxPreviewPage;
class CDialogBar;
struct AfxPreviewJob;

#define ZOOM_OUT 0
#define ZOOM_MIDDLE 1
#define ZOOM_IN 2

/// Takes the place of a view in its frame (CView::DoPrintPreview), and gives it back when it is
/// closed. Shows one page or two side by side, of which it keeps the drawings and of no others.
/// Page numbers are those of the print job.
class QVAFX_API CPreviewView : public CView {
    DECLARE_DYNCREATE(CPreviewView)

public:
    CPreviewView();
    ~CPreviewView() override;

    /// Calls the view as a print job does, up to its first page. FALSE if the view, or the user,
    /// wants no job, or there is no printer.
    BOOL SetPrintView(CView* pPrintView);
    /// The document has no such page: nothing happens, or the nearest page shows.
    void SetCurrentPage(UINT nPage, BOOL bClearRatios);

protected:
    /// Up to two numbers, for the frame's message line.
    virtual void OnDisplayPageNumber(UINT nPage, UINT nPagesDisplayed);
    /// nNewState: a ZOOM_ number. Zoomed in there is one page, nPage, with point (in thousandths of
    /// the page) in the middle.
    virtual void SetZoomState(UINT nNewState, UINT nPage, CPoint point);

    void OnDraw(CDC* pDC) override;

    afx_msg void OnPreviewClose();
    afx_msg void OnPreviewPrint();
    afx_msg void OnNextPage();
    afx_msg void OnPrevPage();
    afx_msg void OnNumPageChange();
    afx_msg void OnZoomIn();
    afx_msg void OnZoomOut();
    afx_msg void OnUpdatePrint(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNextPage(CCmdUI* pCmdUI);
    afx_msg void OnUpdatePrevPage(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNumPageChange(CCmdUI* pCmdUI);
    afx_msg void OnUpdateZoomIn(CCmdUI* pCmdUI);
    afx_msg void OnUpdateZoomOut(CCmdUI* pCmdUI);
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    DECLARE_MESSAGE_MAP()

    CView* m_pOrigView = nullptr;                   ///< whose place this is
    CView* m_pPrintView = nullptr;                  ///< who draws the pages
    CPrintPreviewState* m_pPreviewState = nullptr;  ///< owned
    CDialogBar* m_pToolBar = nullptr;               ///< deletes itself
    CPrintInfo* m_pPreviewInfo = nullptr;
    CDC* m_pPreviewDC = nullptr;  ///< the printer's; its output goes to a page while one is drawn
    UINT m_nZoomState = ZOOM_OUT;
    UINT m_nPages = 1;        ///< side by side, zoomed out
    UINT m_nCurrentPage = 0;  ///< the first one shown; 0: none

private:
    friend class CView;
    struct Shown;
    enum class Drawn { kPage, kBehindLast, kGone };

    static BOOL CALLBACK CloseProc(CFrameWnd* pFrameWnd);
    bool PrintViewIsThere() const;
    bool OpenJob(CView* pPrintView);
    void ShowPrintView(CView* pPrintView);
    UINT NearestPage(UINT nPage) const;
    Drawn DrawPage(UINT nPage, AfxPreviewPage& page);
    Drawn DrawPages(UINT nFirst);
    UINT SheetsShown() const { return m_nZoomState == ZOOM_OUT ? m_nPages : 1; }
    std::exception_ptr EndPrinting();
    void EnterFrame();
    void LeaveFrame();
    CDialogBar* Bar() const;
    void UpdateBar();

    void Paint(CDC& dc) const;
    CSize FullSize() const;
    CRect SheetRect(int nSheet) const;
    int SheetAt(CPoint point) const;
    CPoint Middle() const;
    void LayOut();
    void SetBar(int nBar, UINT nMin, UINT nMax, UINT nPage, UINT nPos);
    void Scroll(int nBar, UINT nSBCode);
    void ScrollPages(UINT nSBCode, UINT nTrackPage);
    void ScrollTo(CPoint pt);
    void TurnOrScroll(bool bDown);
    bool PressButton(UINT nChar);

    std::shared_ptr<AfxPreviewJob> m_pJob;  ///< outlives this while its view draws
    std::unique_ptr<Shown> m_pShown;
    HWND m_hWndToolBar = nullptr;
    HWND m_hWndPrintView = nullptr;
    HWND m_hWndOrigView = nullptr;
    HWND m_hWndActiveOld = nullptr;
    CPoint m_ptScroll = CPoint(0, 0);
    int m_nWheel = 0;       ///< turned and not used
    bool m_bBegun = false;  ///< OnBeginPrinting was called, and OnEndPrinting not yet
    bool m_bClosing = false;
    bool m_bInFrame = false;  ///< in its view's place
    bool m_bLayingOut = false;
    AfxLife m_life;
};
