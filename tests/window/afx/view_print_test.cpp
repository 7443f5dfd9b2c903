// How views print and are previewed: the order of calls, each way out, and what
// the pages show.
#include "afx/documents/print_output.h"
#include "support/monkey.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/temp_file.h"
#include "support/test_app.h"
#include "virtual_printer/virtual_printer.h"
#include "window/afx/print_test_ids.h"

#include <afxext.h>
#include <afxpriv.h>

#include <gtest/gtest.h>

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
std::string s_log;
std::vector<CSize> s_sizes;  // that the view was given
std::function<void(UINT nPage)> s_onPrint;
std::function<void(CPrintInfo&)> s_onPrepare;
std::function<void()> s_onHide;
bool s_bGoesOn = false;  // as the job says behind a page
UINT s_nLastPage = 3;    // as the view says; 0: it does not
UINT s_nStopBefore = 0;  // the page that OnPrepareDC refuses
bool s_bAsks = false;    // for the printer of a document without pages

void Log(const std::string& strStep) {
    s_log += (s_log.empty() ? "" : " ") + strStep;
}

class PaperView : public CView {
    DECLARE_DYNCREATE(PaperView)
protected:
    BOOL OnPreparePrinting(CPrintInfo* pInfo) override {
        Log(pInfo->m_bPreview ? "prepare?" : "prepare");
        pInfo->m_bDirect = !s_bAsks;
        if (s_nLastPage != 0 || s_bAsks) {
            pInfo->SetMaxPage(s_nLastPage);
        }
        const BOOL bReady = DoPreparePrinting(pInfo);
        s_onPrepare ? s_onPrepare(*pInfo) : void();
        return bReady;
    }
    void OnBeginPrinting(CDC* pDC, CPrintInfo*) override {
        m_font.CreatePointFont(200, "Tahoma", pDC);
        Log("begin");
    }
    void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo) override {
        CView::OnPrepareDC(pDC, pInfo);
        if (pInfo != nullptr) {
            pDC->SetMapMode(MM_LOMETRIC);
            pInfo->m_bContinuePrinting = pInfo->m_nCurPage != s_nStopBefore;
        }
    }
    // A red square of 30 mm, 40 from the left and 50 from the top of what can
    // be printed.
    void OnPrint(CDC* pDC, CPrintInfo* pInfo) override {
        Log(std::to_string(pInfo->m_nCurPage));
        EXPECT_NEAR(pInfo->m_rectDraw.Width(), 1970, 20);
        pDC->FillSolidRect(CRect(400, -500, 700, -800), kRed);
        CPen pen(PS_SOLID, 0, kBlue);
        CPen* pOldPen = pDC->SelectObject(&pen);
        pDC->MoveTo(pInfo->m_rectDraw.right - 1, pInfo->m_rectDraw.top);
        pDC->LineTo(pInfo->m_rectDraw.right - 1, pInfo->m_rectDraw.bottom + 1);
        pDC->LineTo(pInfo->m_rectDraw.left, pInfo->m_rectDraw.bottom + 1);
        pDC->SelectObject(pOldPen);
        CFont* pOld = pDC->SelectObject(&m_font);
        pDC->TextOut(400, -1000, "Page");
        pDC->SelectObject(pOld);
        s_onPrint ? s_onPrint(pInfo->m_nCurPage) : void();
        s_bGoesOn = pDC->QueryAbort() != FALSE;
    }
    void OnEndPrinting(CDC*, CPrintInfo*) override {
        m_font.DeleteObject();
        Log("end");
    }
    void OnEndPrintPreview(CDC* pDC, CPrintInfo* pInfo, POINT pt, CPreviewView* pView) override {
        Log("close" + std::to_string(pInfo->m_nCurPage));
        CView::OnEndPrintPreview(pDC, pInfo, pt, pView);
    }
    void OnActivateView(BOOL bActivate, CView* pNew, CView* pOld) override {
        CView::OnActivateView(bActivate, pNew, pOld);
        if (bActivate && pOld != nullptr && pOld->IsKindOf(RUNTIME_CLASS(CPreviewView))) {
            Log("back");
        }
    }
    void OnDraw(CDC*) override {}
    afx_msg void OnSize(UINT, int cx, int cy) { s_sizes.emplace_back(cx, cy); }
    afx_msg void OnShowWindow(BOOL bShow, UINT) { !bShow&& s_onHide ? s_onHide() : void(); }
    DECLARE_MESSAGE_MAP()

private:
    CFont m_font;
};
IMPLEMENT_DYNCREATE(PaperView, CView)
BEGIN_MESSAGE_MAP(PaperView, CView)
    ON_WM_SIZE()
    ON_WM_SHOWWINDOW()
    ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

class PaperFrame : public CFrameWnd {
public:
    CDialogBar m_tools;
    CStatusBar m_status;
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext) override {
        static const UINT indicators[] = {ID_SEPARATOR};
        return CFrameWnd::OnCreateClient(lpcs, pContext) &&
               m_tools.Create(this, AFX_IDD_PREVIEW_TOOLBAR, CBRS_TOP, AFX_IDW_TOOLBAR) &&
               m_status.Create(this) && m_status.SetIndicators(indicators, 1);
    }
};

/// Each way to print and preview starts from a frame of its own and leaves no
/// handle behind.
class ViewPrinting : public testing::Test {
protected:
    void SetUp() override {
        std::string strError;
        ASSERT_TRUE(EnsureVirtualPrinter(strError)) << strError;
        TheTestApp().Forget();
        m_nHandles = AfxGetOwnedHandleCount();
        m_pFrame = new PaperFrame;
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(PaperView);
        ASSERT_TRUE(m_pFrame->LoadFrame(IDR_PRINT_FRAME, WS_OVERLAPPEDWINDOW, nullptr, &context));
        m_pFrame->MoveWindow(0, 0, 900, 700);
        m_pFrame->InitialUpdateFrame(nullptr, TRUE);
        m_hFrame = m_pFrame->m_hWnd;
        m_pView = m_pFrame->GetActiveView();
        s_log.clear();
        TheTestApp().m_nNumPreviewPages = 0;
    }
    void TearDown() override {
        s_onPrint = nullptr;
        s_onPrepare = nullptr;
        s_onHide = nullptr;
        s_nLastPage = 3;
        s_nStopBefore = 0;
        s_bAsks = false;
        if (::IsWindow(m_hFrame)) {
            m_pFrame->DestroyWindow();
        }
        PumpPending();
        EXPECT_EQ(AfxGetOwnedHandleCount(), m_nHandles);
    }
    void Command(UINT nID) { ::SendMessage(m_hFrame, WM_COMMAND, nID, 0); }
    std::string LogOf(UINT nID) {
        s_log.clear();
        Command(nID);
        return s_log;
    }
    HWND Button(int nID) { return ::GetDlgItem(::GetDlgItem(m_hFrame, AFX_IDW_PREVIEW_BAR), nID); }
    CWnd* Pages() { return m_pFrame->GetActiveView(); }
    bool InPreview() { return ::IsWindow(m_hFrame) && Pages() != nullptr && Pages() != m_pView; }
    int Prints(const TempFile& file) {
        const std::string strText = file.Content();
        int nPages = 0;
        for (size_t n = 0; (n = strText.find("%%Page:", n)) != std::string::npos; ++n) {
            ++nPages;
        }
        return nPages;
    }

    LONG m_nHandles = 0;
    PaperFrame* m_pFrame = nullptr;
    CView* m_pView = nullptr;
    HWND m_hFrame = nullptr;
};

/// Takes the system's print dialog as it is.
void CALLBACK AcceptPrintDialog(HWND, UINT, UINT_PTR nTimer, DWORD) {
    if (const HWND hDialog = ::FindWindow("#32770", "Print")) {
        ::KillTimer(nullptr, nTimer);
        ::PostMessage(hDialog, WM_COMMAND, IDOK, 0);
    }
}

std::string s_strJobFile;  // empty: there is none to give

/// Answers the question for a job's file, whose field has the focus.
void CALLBACK NameJobFile(HWND, UINT, UINT_PTR nTimer, DWORD) {
    const HWND hDialog = ::FindWindow("#32770", "Print to File");
    if (hDialog != nullptr && ::IsChild(hDialog, ::GetFocus())) {
        ::KillTimer(nullptr, nTimer);
        ::SetWindowText(::GetFocus(), s_strJobFile.c_str());
        ::PostMessage(hDialog, WM_COMMAND, s_strJobFile.empty() ? IDCANCEL : IDOK, 0);
    }
}

/// The dialog that names the page, while a job prints.
HWND PrintingDialog() {
    HWND hFound = nullptr;
    while ((hFound = ::FindWindowEx(nullptr, hFound, "#32770", nullptr)) != nullptr) {
        if (::GetDlgItem(hFound, AFX_IDC_PRINT_PAGENUM) != nullptr) {
            return hFound;
        }
    }
    return nullptr;
}

}  // namespace

TEST_F(ViewPrinting, PrintsThePagesThatDocumentAndDialogHaveInCommon) {
    const struct {
        UINT nLast, nStop, nFrom, nTo;
        const char* pszLog;
        int nPages;
        bool bAsks = false;
    } kCases[] = {{3, 0, 0, 0, "prepare begin 1 2 3 end", 3},
                  {0, 3, 0, 0, "prepare begin 1 2 end", 2},
                  {3, 0, 2, 9, "prepare begin 2 3 end", 2},
                  {0xFFF0, 0xFFF1, 0xFFF0, 0xFFF0, "prepare begin 65520 end", 1},
                  {0, 0, 0, 0, "prepare begin end", 0},
                  {0, 0, 0, 0, "prepare begin end", 0, true}};
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.pszLog);
        const TempFile file;
        const AfxPrintOutput output(file.Path());
        s_nLastPage = c.nLast;
        s_nStopBefore = c.nStop;
        s_onPrepare = [&](CPrintInfo& info) {
            if (c.nFrom != 0) {
                info.m_pPD->m_pd.Flags |= PD_PAGENUMS;
                info.m_pPD->m_pd.nFromPage = static_cast<WORD>(c.nFrom);
                info.m_pPD->m_pd.nToPage = static_cast<WORD>(c.nTo);
            } else if (c.nPages == 0 && !c.bAsks) {
                info.SetMaxPage(0);
            }
        };
        s_bAsks = c.bAsks && ::SetTimer(nullptr, 0, 10, AcceptPrintDialog) != 0;
        EXPECT_EQ(LogOf(ID_FILE_PRINT), c.pszLog);
        EXPECT_EQ(Prints(file), c.nPages);
    }
}

TEST_F(ViewPrinting, APrinterThatWritesFilesAsksForTheirNames) {
    for (const bool bGives : {false, true}) {
        const TempFile file;
        s_strJobFile = bGives ? std::string(file.Path()) + ".prn" : "";
        ::SetTimer(nullptr, 0, 10, NameJobFile);
        EXPECT_EQ(LogOf(ID_FILE_PRINT), bGives ? "prepare begin 1 2 3 end" : "prepare");
        EXPECT_EQ(::DeleteFile(s_strJobFile.c_str()) != FALSE, bGives);
        EXPECT_EQ(::GetFileAttributes("FILE:"), INVALID_FILE_ATTRIBUTES);
    }
}

TEST_F(ViewPrinting, EachWayOutOfAJobTakesItBack) {
    const struct {
        const char* pszWay;
        std::function<void()> deed;
        bool bFrameStays;
    } kWays[] = {
        {"throws", [] { AfxThrowUserException(); }, true},
        {"cancels", [] { ::PostMessage(PrintingDialog(), WM_COMMAND, IDCANCEL, 0); }, true},
        {"destroys", [this] { ::DestroyWindow(m_hFrame); }, false}};
    for (const auto& way : kWays) {
        SCOPED_TRACE(way.pszWay);
        const TempFile file;
        const AfxPrintOutput output(file.Path());
        s_onPrint = [&](UINT nPage) {
            char szPage[40] = "";
            ::GetDlgItemText(PrintingDialog(), AFX_IDC_PRINT_PAGENUM, szPage, sizeof szPage);
            EXPECT_EQ(szPage, "Page " + std::to_string(nPage) + " of 3");
            EXPECT_FALSE(::IsWindowEnabled(m_hFrame));
            nPage == 2 ? way.deed() : void();
        };
        EXPECT_EQ(LogOf(ID_FILE_PRINT),
                  way.bFrameStays ? "prepare begin 1 2 end" : "prepare begin 1 2");
        EXPECT_EQ(s_bGoesOn, std::string("throws") == way.pszWay) << "up to the first page";
        EXPECT_EQ(::IsWindowEnabled(m_hFrame) != FALSE, way.bFrameStays);
        EXPECT_EQ(PrintingDialog(), nullptr);
        EXPECT_EQ(::GetFileAttributes(file.Path()), INVALID_FILE_ATTRIBUTES);
    }
    EXPECT_EQ(TheTestApp().m_exceptions.size(), 1u);
}

TEST_F(ViewPrinting, APreviewTakesTheViewsPlaceAndGivesItBack) {
    s_onPrepare = [this](CPrintInfo&) {
        EXPECT_TRUE(m_pView->IsWindowVisible() && m_pFrame->m_tools.IsVisible()) << "until a page";
    };
    EXPECT_EQ(LogOf(ID_FILE_PRINT_PREVIEW), "prepare? begin 1");
    ASSERT_TRUE(InPreview());
    EXPECT_FALSE(m_pView->IsWindowVisible());
    EXPECT_FALSE(m_pFrame->m_tools.IsVisible());
    EXPECT_EQ(::GetMenu(m_hFrame), nullptr);
    EXPECT_EQ(::GetFocus(), Pages()->m_hWnd);
    EXPECT_STREQ(m_pFrame->m_status.GetPaneText(0), "Page 1");
    const struct {
        UINT nID;
        const char* pszDrawn;
        const char* pszShown;
        bool bPrev, bNext, bOut;
    } kSteps[] = {{AFX_ID_PREVIEW_NEXT, "2", "Page 2", true, true, false},
                  {AFX_ID_PREVIEW_NUMPAGE, "3", "Pages 2-3", true, false, false},
                  {AFX_ID_PREVIEW_PREV, "1", "Pages 1-2", false, true, false},
                  {AFX_ID_PREVIEW_ZOOMIN, "", "Page 1", false, true, true},
                  {AFX_ID_PREVIEW_ZOOMOUT, "2", "Pages 1-2", false, true, false}};
    for (const auto& step : kSteps) {
        SCOPED_TRACE(step.pszShown);
        EXPECT_EQ(LogOf(step.nID), step.pszDrawn);
        EXPECT_STREQ(m_pFrame->m_status.GetPaneText(0), step.pszShown);
        EXPECT_EQ(::IsWindowEnabled(Button(AFX_ID_PREVIEW_PREV)), step.bPrev);
        EXPECT_EQ(::IsWindowEnabled(Button(AFX_ID_PREVIEW_NEXT)), step.bNext);
        EXPECT_EQ(::IsWindowEnabled(Button(AFX_ID_PREVIEW_ZOOMOUT)), step.bOut);
    }
    m_pFrame->MoveWindow(0, 0, 300, 700);
    CRect rcBar, rcClose;
    ::GetWindowRect(::GetParent(Button(AFX_ID_PREVIEW_CLOSE)), rcBar);
    ::GetWindowRect(Button(AFX_ID_PREVIEW_CLOSE), rcClose);
    EXPECT_TRUE(rcBar.right > rcClose.right && rcBar.bottom > rcClose.bottom);
    EXPECT_EQ((s_log.clear(), ::SendMessage(m_hFrame, WM_CLOSE, 0, 0), s_log), "close1 end back");
    ASSERT_EQ(Pages(), m_pView);
    EXPECT_TRUE(m_pView->IsWindowVisible() && m_pFrame->m_tools.IsVisible());
    EXPECT_NE(::GetMenu(m_hFrame), nullptr);
    EXPECT_EQ(::GetFocus(), m_pView->m_hWnd);
    EXPECT_EQ(Button(AFX_ID_PREVIEW_CLOSE), nullptr);
    const TempFile file;
    const AfxPrintOutput output(file.Path());
    Command(ID_FILE_PRINT_PREVIEW);
    EXPECT_EQ(LogOf(AFX_ID_PREVIEW_PRINT), "close1 end back prepare begin 1 2 3 end");
}

TEST_F(ViewPrinting, TheFrameMayGoWhileAPreviewComesUp) {
    s_onHide = [&] {
        s_onHide = nullptr;
        m_pFrame->DestroyWindow();
    };
    EXPECT_EQ(LogOf(ID_FILE_PRINT_PREVIEW), "prepare? begin 1 end");
    EXPECT_FALSE(::IsWindow(m_hFrame));
    EXPECT_TRUE(TheTestApp().m_exceptions.empty());
}

TEST_F(ViewPrinting, TheViewBelowAPreviewGetsNoSizeButTheLast) {
    for (const int cx : {900, 700}) {
        s_sizes.clear();
        Command(ID_FILE_PRINT_PREVIEW);
        m_pFrame->MoveWindow(0, 0, cx, 600);
        m_pFrame->MoveWindow(0, 0, cx, 700);
        Command(AFX_ID_PREVIEW_CLOSE);
        CRect rc;
        m_pView->GetClientRect(&rc);
        EXPECT_EQ(s_sizes, cx == 900 ? std::vector<CSize>() : std::vector<CSize>{rc.Size()});
    }
}

TEST_F(ViewPrinting, KeysTurnPagesUpToTheLastWhichMayNotBeKnown) {
    s_nLastPage = 0;
    s_nStopBefore = 3;
    Command(ID_FILE_PRINT_PREVIEW);
    const struct {
        WORD vk;
        bool bAlt;
        const char* pszShown;
    } kKeys[] = {{VK_NEXT, false, "Page 2"},  {VK_NEXT, false, "Page 2"},
                 {VK_PRIOR, false, "Page 1"}, {'N', true, "Page 2"},
                 {VK_HOME, false, "Page 1"},  {VK_END, false, "Page 2"}};
    for (const auto& key : kKeys) {
        ASSERT_TRUE(BringToFront(m_hFrame) && TypeKey(key.vk, false, false, key.bAlt));
        EXPECT_STREQ(m_pFrame->m_status.GetPaneText(0), key.pszShown) << key.vk;
    }
    EXPECT_TRUE(TypeKey(VK_TAB));  // to the bar, where page keys go on working
    EXPECT_TRUE(TypeKey(VK_PRIOR));
    EXPECT_STREQ(m_pFrame->m_status.GetPaneText(0), "Page 1");
    EXPECT_TRUE(TypeKey(VK_DOWN));
    EXPECT_STREQ(m_pFrame->m_status.GetPaneText(0), "Page 2");
    EXPECT_TRUE(TypeKey(VK_ADD));
    EXPECT_TRUE(::IsWindowEnabled(Button(AFX_ID_PREVIEW_ZOOMOUT)));
    EXPECT_TRUE(TypeKey(VK_ESCAPE));
    EXPECT_EQ(Pages(), m_pView);
}

TEST_F(ViewPrinting, AmongTenThousandPagesOnlyTheOneThatShowsIsDrawn) {
    s_nLastPage = 10000;
    s_onPrepare = [](CPrintInfo& info) { info.m_nCurPage = 9999; };
    EXPECT_EQ(LogOf(ID_FILE_PRINT_PREVIEW), "prepare? begin 9999");
    EXPECT_EQ((s_log.clear(), ::SendMessage(*Pages(), WM_VSCROLL, SB_LINEDOWN, 0), s_log), "10000");
    EXPECT_EQ(LogOf(AFX_ID_PREVIEW_NUMPAGE), "9999");
    Pages()->RedrawWindow();
    EXPECT_EQ(s_log, "9999");
}

TEST_F(ViewPrinting, ASquareIsOneAtEachZoomAndInItsPlace) {
    m_pFrame->MoveWindow(0, 0, 700, 500);
    Command(ID_FILE_PRINT_PREVIEW);
    EXPECT_GT(Picture::Fresh(*Pages()).Count(kBlue), 400) << "both lines at the edge";
    int nBefore = 0;
    for (int nZoom = 0; nZoom < 3; ++nZoom) {
        const Picture picture = Picture::Fresh(*Pages());
        CRect rc(9999, 9999, 0, 0);
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x) {
                if (picture.At(x, y) == kRed) {
                    rc = CRect(std::min<int>(rc.left, x), std::min<int>(rc.top, y),
                               std::max<int>(rc.right, x + 1), std::max<int>(rc.bottom, y + 1));
                }
            }
        }
        EXPECT_NEAR(rc.Width(), rc.Height(), 1) << nZoom;
        EXPECT_GT(rc.Width(), nBefore);
        nBefore = rc.Width();
        ASSERT_TRUE(ClickAt(*Pages(), rc.CenterPoint()));  // zooms in on it
    }
    EXPECT_NEAR(nBefore, ::MulDiv(300, CClientDC(nullptr).GetDeviceCaps(LOGPIXELSX), 254), 1);
    EXPECT_FALSE(::IsWindowEnabled(Button(AFX_ID_PREVIEW_ZOOMOUT)));
}

TEST_F(ViewPrinting, WhateverAViewDoesUnderItsPreviewLeavesNothingBehind) {
    const struct {
        const char* pszWay;
        std::function<void()> deed;
        bool bPreview, bFrame;
        UINT nPage = 2;
    } kWays[] = {{"throws at once", [] { AfxThrowUserException(); }, false, true, 1},
                 {"frame first", [this] { ::DestroyWindow(m_hFrame); }, false, false, 1},
                 {"throws", [] { AfxThrowUserException(); }, true, true},
                 {"closes", [this] { Command(AFX_ID_PREVIEW_CLOSE); }, false, true},
                 {"pages", [this] { Command(AFX_ID_PREVIEW_PREV); }, true, true},
                 {"loses its window", [this] { m_pView->DestroyWindow(); }, false, true},
                 {"takes the preview", [this] { Pages()->DestroyWindow(); }, false, true},
                 {"takes the frame", [this] { ::DestroyWindow(m_hFrame); }, false, false}};
    for (const auto& way : kWays) {
        SCOPED_TRACE(way.pszWay);
        SetUp();
        s_onPrint = [&](UINT nPage) { nPage == way.nPage ? way.deed() : void(); };
        Command(ID_FILE_PRINT_PREVIEW);
        Command(AFX_ID_PREVIEW_NEXT);
        EXPECT_EQ(::IsWindow(m_hFrame) != FALSE, way.bFrame);
        EXPECT_EQ(InPreview(), way.bPreview);
        TearDown();
    }
    SetUp();
    EXPECT_TRUE(TheTestApp().m_prompts.empty());
}

TEST_F(ViewPrinting, PreviewMonkey) {
    std::mt19937 random = MonkeyRandom(15);
    const TempFile file;
    const AfxPrintOutput output(file.Path());
    const auto send = [&](UINT message, WPARAM wParam, LPARAM lParam = 0) {
        ::SendMessage(*Pages(), message, wParam, lParam);
    };
    s_nStopBefore = 7;
    for (int i = 0; i < MonkeySteps() / 20; ++i) {
        s_nLastPage = random() % 2 * 40;
        InPreview() ? void() : Command(ID_FILE_PRINT_PREVIEW);
        const UINT n = random() % 60;
        switch (random() % 6) {
            case 0:
                Command(AFX_ID_PREVIEW_CLOSE + n % 7 + (n < 50 && n % 7 == 0));
                break;
            case 1:
                send(n % 2 ? WM_HSCROLL : WM_VSCROLL, n % 8);
                break;
            case 2:
                send(WM_KEYDOWN, VK_PRIOR + n % 8);
                break;
            case 3:
                send(WM_LBUTTONDOWN, 0, MAKELPARAM(n * 15, n * 10));
                break;
            case 4:
                send(WM_MOUSEWHEEL, MAKEWPARAM(0, (static_cast<int>(n) - 30) * 40));
                break;
            default:
                m_pFrame->SetWindowPos(nullptr, 0, 0, n * 20, n * 15, SWP_NOMOVE | SWP_NOZORDER);
                Pages()->RedrawWindow();
        }
        PumpPending();
    }
    EXPECT_TRUE(TheTestApp().m_exceptions.empty());
}

TEST_F(ViewPrinting, WithoutAPrinterTheUserIsToldAndTheViewStays) {
    char szDefault[256] = "";
    ::GetProfileString("windows", "device", "", szDefault, sizeof szDefault);
    ::WriteProfileString("windows", "device", "");
    TheTestApp().SelectPrinter(nullptr, nullptr);
    EXPECT_EQ(LogOf(ID_FILE_PRINT_PREVIEW), "prepare? close0");
    EXPECT_EQ(LogOf(ID_FILE_PRINT), "prepare");
    EXPECT_EQ(TheTestApp().m_prompts.size(), 2u);
    EXPECT_EQ(Pages(), m_pView);
    ::WriteProfileString("windows", "device", szDefault);
}
