// The pages of a preview and its way in and out; preview_input.cpp has what the user does.
#include "afx/documents/preview_view.h"

#include "afx/documents/preview_job.h"

#include <utility>

IMPLEMENT_DYNCREATE(CPreviewView, CView)

BEGIN_MESSAGE_MAP(CPreviewView, CView)
    ON_COMMAND(AFX_ID_PREVIEW_CLOSE, &CPreviewView::OnPreviewClose)
    ON_COMMAND(IDCANCEL, &CPreviewView::OnPreviewClose)
    ON_COMMAND(AFX_ID_PREVIEW_PRINT, &CPreviewView::OnPreviewPrint)
    ON_COMMAND(AFX_ID_PREVIEW_NEXT, &CPreviewView::OnNextPage)
    ON_COMMAND(AFX_ID_PREVIEW_PREV, &CPreviewView::OnPrevPage)
    ON_COMMAND(AFX_ID_PREVIEW_NUMPAGE, &CPreviewView::OnNumPageChange)
    ON_COMMAND(AFX_ID_PREVIEW_ZOOMIN, &CPreviewView::OnZoomIn)
    ON_COMMAND(AFX_ID_PREVIEW_ZOOMOUT, &CPreviewView::OnZoomOut)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_PRINT, &CPreviewView::OnUpdatePrint)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_NEXT, &CPreviewView::OnUpdateNextPage)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_PREV, &CPreviewView::OnUpdatePrevPage)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_NUMPAGE, &CPreviewView::OnUpdateNumPageChange)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_ZOOMIN, &CPreviewView::OnUpdateZoomIn)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_ZOOMOUT, &CPreviewView::OnUpdateZoomOut)
    ON_WM_DESTROY()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_SYSCHAR()
    ON_WM_LBUTTONDOWN()
    ON_WM_SETCURSOR()
END_MESSAGE_MAP()

CPreviewView::CPreviewView() : m_pShown(new Shown) {}

CPreviewView::~CPreviewView() {
    delete m_pPreviewState;
}

// The job

bool CPreviewView::PrintViewIsThere() const {
    return m_pPrintView != nullptr && FromHandlePermanent(m_hWndPrintView) == m_pPrintView;
}

BOOL CPreviewView::SetPrintView(CView* pPrintView) {
    const AfxLifeWatch life(m_life);
    return OpenJob(pPrintView) && life && PrintViewIsThere();
}

bool CPreviewView::OpenJob(CView* pPrintView) {
    const AfxLifeWatch life(m_life);
    const auto pJob = std::make_shared<AfxPreviewJob>();
    CPrintInfo& info = pJob->info;
    info.m_bPreview = TRUE;
    m_pJob = pJob;
    m_pPreviewInfo = &info;
    m_pPreviewDC = &pJob->dc;
    m_pPrintView = pPrintView;
    m_hWndPrintView = pPrintView->m_hWnd;
    if (!pPrintView->OnPreparePrinting(&info) || !life || !PrintViewIsThere() ||
        !pJob->dc.Attach(info.m_pPD->GetPrinterDC())) {
        return false;
    }
    pJob->dc.m_bPrinting = TRUE;
    m_nPages = info.m_nNumPreviewPages == 2 ? 2 : 1;
    m_bBegun = true;
    pPrintView->OnBeginPrinting(&pJob->dc, &info);
    if (!life || !PrintViewIsThere()) {
        return false;
    }
    SetCurrentPage(info.m_nCurPage, TRUE);
    return true;
}

/// Gives what the view's OnEndPrinting throws.
std::exception_ptr CPreviewView::EndPrinting() {
    const auto pJob = m_pJob;
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->m_nNumPreviewPages = m_nPages;
    }
    if (std::exchange(m_bBegun, false) && PrintViewIsThere()) {
        pJob->info.m_nCurPage = m_nCurrentPage;
        try {
            m_pPrintView->OnEndPrinting(&pJob->dc, &pJob->info);
        } catch (...) {
            return std::current_exception();
        }
    }
    return nullptr;
}

// Pages

/// 0 if the document has none.
UINT CPreviewView::NearestPage(UINT nPage) const {
    const UINT nFirst = m_pJob->info.GetMinPage();
    const UINT nLast = m_pJob->info.GetMaxPage();
    if (nFirst > nLast) {
        return 0;
    }
    // All sheets are filled as long as there are pages.
    const UINT nMost = std::max(nFirst, nLast - std::min(nLast, SheetsShown() - 1));
    return std::clamp(nPage, nFirst, nMost);
}

void CPreviewView::SetCurrentPage(UINT nPage, BOOL bClearRatios) {
    const auto pJob = m_pJob;
    if (pJob == nullptr || pJob->bDrawing) {
        return;
    }
    const AfxLifeWatch life(m_life);
    Drawn drawn = Drawn::kPage;
    do {
        nPage = NearestPage(nPage);
        drawn = DrawPages(nPage);
    } while (drawn == Drawn::kBehindLast);
    if (drawn == Drawn::kGone) {
        if (life) {
            OnPreviewClose();
        }
        return;
    }
    m_nCurrentPage = nPage;
    if (bClearRatios) {
        m_ptScroll = CPoint(0, 0);
    }
    LayOut();
    Invalidate(FALSE);
    OnDisplayPageNumber(m_nCurrentPage, SheetsShown());
    if (life) {
        UpdateBar();
    }
}

/// Draws what does not show already, and takes it in place of what did. kBehindLast: the document
/// turned out to be shorter.
CPreviewView::Drawn CPreviewView::DrawPages(UINT nFirst) {
    const auto pJob = m_pJob;
    const UINT nSheets = nFirst != 0 ? SheetsShown() : 0;
    AfxPreviewPage drawn[_countof(m_pShown->pages)];
    for (UINT i = 0; i < nSheets && nFirst + i <= pJob->info.GetMaxPage(); ++i) {
        if (m_pShown->Find(nFirst + i) != nullptr) {
            continue;
        }
        const Drawn result = DrawPage(nFirst + i, drawn[i]);
        if (result == Drawn::kBehindLast) {
            pJob->info.SetMaxPage(nFirst + i - 1);
        }
        if (result != Drawn::kPage) {
            return result;
        }
    }
    for (UINT i = 0; i < nSheets; ++i) {
        AfxPreviewPage* pBefore = m_pShown->Find(nFirst + i);
        if (drawn[i].Number() == 0 && pBefore != nullptr) {
            drawn[i] = std::move(*pBefore);
        }
    }
    for (UINT i = 0; i < _countof(drawn); ++i) {
        m_pShown->pages[i] = std::move(drawn[i]);
    }
    return Drawn::kPage;
}

CPreviewView::Drawn CPreviewView::DrawPage(UINT nPage, AfxPreviewPage& page) {
    const auto pJob = m_pJob;
    struct Drawing {
        bool& rbDrawing;
        ~Drawing() { rbDrawing = false; }
    } const drawing{pJob->bDrawing = true};
    const AfxLifeWatch life(m_life);
    const auto bStands = [&] { return life && !m_bClosing && PrintViewIsThere(); };
    AfxPreviewDC& dc = pJob->dc;
    CPrintInfo& info = pJob->info;
    info.m_nCurPage = nPage;
    info.m_bContinuePrinting = TRUE;
    AfxPageRecording recording(dc);
    if (!recording.Stands()) {
        page = AfxPreviewPage(nPage, nullptr);
        return Drawn::kPage;
    }
    m_pPrintView->OnPrepareDC(&dc, &info);
    if (!bStands()) {
        return Drawn::kGone;
    }
    if (!info.m_bContinuePrinting) {
        return Drawn::kBehindLast;
    }
    info.m_rectDraw.SetRect(0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
    dc.DPtoLP(&info.m_rectDraw);
    m_pPrintView->OnPrint(&dc, &info);
    if (!bStands()) {
        return Drawn::kGone;
    }
    page = AfxPreviewPage(nPage, recording.Close());
    return Drawn::kPage;
}

void CPreviewView::OnDisplayPageNumber(UINT nPage, UINT nPagesDisplayed) {
    CFrameWnd* pFrame = GetParentFrame();
    if (pFrame == nullptr || nPage == 0) {
        return;
    }
    const UINT nLast = std::min(nPage + nPagesDisplayed - 1, m_pJob->info.GetMaxPage());
    CString strFormat;
    if (AfxExtractSubString(strFormat, m_pJob->info.m_strPageDesc, nLast > nPage ? 1 : 0)) {
        CString strPages;
        strPages.Format(strFormat, nPage, nLast);
        pFrame->SetMessageText(strPages);
    }
}

// The way out

BOOL CALLBACK CPreviewView::CloseProc(CFrameWnd* pFrameWnd) {
    CWnd* pPane = FromHandlePermanent(::GetDlgItem(pFrameWnd->m_hWnd, AFX_IDW_PANE_FIRST));
    if (auto* pView = DYNAMIC_DOWNCAST(CPreviewView, pPane)) {
        pView->OnPreviewClose();
    }
    return FALSE;
}

void CPreviewView::OnPreviewClose() {
    if (std::exchange(m_bClosing, true)) {
        return;
    }
    const auto pJob = m_pJob;
    const AfxLifeWatch life(m_life);
    if (pJob != nullptr && m_pOrigView != nullptr &&
        FromHandlePermanent(m_hWndOrigView) == m_pOrigView) {
        pJob->info.m_nCurPage = m_nCurrentPage;
        m_pOrigView->OnEndPrintPreview(&pJob->dc, &pJob->info, CPoint(0, 0), this);
    }
    if (life) {
        DestroyWindow();  // an override went its own way
    }
}

void CPreviewView::OnDestroy() {
    m_bClosing = true;
    const std::exception_ptr thrown = EndPrinting();
    LeaveFrame();
    CView::OnDestroy();
    if (thrown) {
        std::rethrow_exception(thrown);
    }
}

/// Takes the place of the view. From here on the frame has to be given back.
void CPreviewView::EnterFrame() {
    const AfxLifeWatch life(m_life);
    m_bInFrame = true;
    GetParentFrame()->OnSetPreviewMode(TRUE, m_pPreviewState);
    if (life) {
        SetDlgCtrlID(AFX_IDW_PANE_FIRST);
        Bar() != nullptr ? Bar()->ShowWindow(SW_SHOWNA) : FALSE;
    }
}

/// The frame as it was.
void CPreviewView::LeaveFrame() {
    const std::unique_ptr<CPrintPreviewState> pState(std::exchange(m_pPreviewState, nullptr));
    CFrameWnd* pFrame = GetParentFrame();
    if (pState == nullptr || pFrame == nullptr) {
        return;
    }
    const HWND hFrame = pFrame->m_hWnd;
    const auto bFrameStands = [&] { return FromHandlePermanent(hFrame) == pFrame; };
    const HWND hOld = m_hWndActiveOld;
    if (CDialogBar* pBar = Bar()) {
        m_pToolBar = nullptr;
        pBar->DestroyWindow();
    }
    if (!m_bInFrame) {
        return;
    }
    pFrame->OnSetPreviewMode(FALSE, pState.get());
    CView* pOld = pState->pViewActiveOld;
    // The views that come back are told of it at their size.
    if (bFrameStands()) {
        pFrame->RecalcLayout();
    }
    if (bFrameStands()) {
        pFrame->SetActiveView(FromHandlePermanent(hOld) == pOld ? pOld : nullptr);
    }
    if (bFrameStands()) {
        pFrame->SetMessageText(AFX_IDS_IDLEMESSAGE);
    }
}
