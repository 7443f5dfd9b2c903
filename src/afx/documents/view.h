// CView: a window that shows a document, and what it prints.
#pragma once

#include "afx/window/wnd.h"

class COleDataObject;
class CDocument;
class CPreviewView;
class CSplitterWnd;
class CView;
struct CPrintInfo;
struct CPrintPreviewState;

#define AFX_WS_DEFAULT_VIEW (WS_CHILD | WS_VISIBLE | WS_BORDER)

typedef DWORD DROPEFFECT;  // DROPEFFECT_NONE and its like

/// A view belongs to the document of the context that it is created with, and deletes itself with
/// its window.
class QVAFX_API CView : public CWnd {
    DECLARE_DYNAMIC(CView)

public:
    ~CView() override;

    CDocument* GetDocument() const { return m_pDocument; }

    virtual BOOL IsSelected(const CObject* pDocItem) const;
    /// Before OnDraw and before each page. Without a known last page, printing ends behind the
    /// first one.
    virtual void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = nullptr);
    /// Once the view has its document, before it shows first. Calls OnUpdate.
    virtual void OnInitialUpdate();

    // Scrolling, of a splitter's pane as well. bDoScroll FALSE only asks whether it would.
    /// nScrollCode: SB_ codes, low byte for the horizontal bar, high byte for the vertical one;
    /// 0xFF for none.
    virtual BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE);
    virtual BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE);

    // A drag over the view, for those that a program connects; these defaults take nothing.
    virtual DROPEFFECT OnDragEnter(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point);
    virtual DROPEFFECT OnDragOver(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point);
    virtual void OnDragLeave();
    virtual BOOL OnDrop(COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point);
    /// -1: OnDrop is to be called.
    virtual DROPEFFECT OnDropEx(COleDataObject* pDataObject, DROPEFFECT dropDefault,
                                DROPEFFECT dropList, CPoint point);
    virtual DROPEFFECT OnDragScroll(DWORD dwKeyState, CPoint point);

    /// The splitter that the window is a pane of, or null. bAnyState FALSE: none while the frame is
    /// an icon.
    static CSplitterWnd* GetParentSplitter(const CWnd* pWnd, BOOL bAnyState);
    CScrollBar* GetScrollBarCtrl(int nBar) const override;

    // For the map of a view that prints: ID_FILE_PRINT, ID_FILE_PRINT_DIRECT,
    // ID_FILE_PRINT_PREVIEW.
    afx_msg void OnFilePrint();
    afx_msg void OnFilePrintPreview();

    /// The view's own handlers, then its document's.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    CView();

    /// The frame's active view changes, or the frame becomes active: both views are the same then.
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);
    virtual void OnActivateFrame(UINT nState, CFrameWnd* pFrameWnd);
    /// The document changed. pSender: the view that changed it, or null.
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
    virtual void OnDraw(CDC* pDC) = 0;

    // Printing, in the order of the calls
    /// FALSE ends the job before it begins. A derived class that prints calls DoPreparePrinting.
    virtual BOOL OnPreparePrinting(CPrintInfo* pInfo);
    virtual void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnPrint(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnEndPrintPreview(CDC* pDC, CPrintInfo* pInfo, POINT point, CPreviewView* pView);
    BOOL DoPreparePrinting(CPrintInfo* pInfo);
    /// pPrintView draws, often this view itself. The preview takes pState, made with new, over and
    /// gives TRUE, also where it ends at once; FALSE leaves pState to the caller.
    BOOL DoPrintPreview(UINT nIDResource, CView* pPrintView, CRuntimeClass* pPreviewViewClass,
                        CPrintPreviewState* pState);

    /// A border asked for is a sunken edge.
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg LRESULT OnInitialUpdateMessage(WPARAM wParam, LPARAM lParam);
    afx_msg void OnUpdateSplitCmd(CCmdUI* pCmdUI);
    afx_msg BOOL OnSplitCmd(UINT nID);
    afx_msg void OnUpdateNextPaneMenu(CCmdUI* pCmdUI);
    afx_msg BOOL OnNextPaneCmd(UINT nID);
    DECLARE_MESSAGE_MAP()

    CDocument* m_pDocument = nullptr;

private:
    friend class AfxPrintJob;
    friend class CDocument;
    friend class CFrameWnd;
    friend class CPreviewView;

    bool m_bBeingDeleted = false;
};
