#include "pages/log_page.h"

#include "pages/printing.h"
#include "resource.h"

#include <afxdlgs.h>

namespace {

constexpr char kLeftLog[] = "Z:\\var\\log\\dpkg.log";
constexpr char kRightLog[] = "Z:\\var\\log\\apt\\history.log";
constexpr UINT_PTR kFollowTimer = 1;
constexpr UINT kFollowPeriod = 1000;  // milliseconds
constexpr int kGap = 4;
constexpr int kPrintPoints = 7;
constexpr double kMarginInch = 0.8;

}  // namespace

BEGIN_MESSAGE_MAP(LogPage, Page)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_COMMAND(ID_LOG_OPEN, OnOpen)
    ON_COMMAND(ID_LOG_COPY, OnCopy)
    ON_COMMAND(ID_LOG_EXPORT, OnExport)
    ON_COMMAND(ID_LOG_PRINT, OnPrint)
    ON_COMMAND(ID_LOG_FOLLOW, OnFollow)
    ON_COMMAND(ID_LOG_BOTH, OnBoth)
    ON_UPDATE_COMMAND_UI(ID_LOG_FOLLOW, OnUpdateFollow)
    ON_UPDATE_COMMAND_UI(ID_LOG_BOTH, OnUpdateBoth)
END_MESSAGE_MAP()

int LogPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    CRect rcNone(0, 0, 0, 0);
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN;
    if (Page::OnCreate(lpCreateStruct) == -1 ||
        !m_left.Create(kStyle, rcNone, this, IDC_LOG_LEFT) ||
        !m_right.Create(kStyle, rcNone, this, IDC_LOG_RIGHT)) {
        return -1;
    }
    Pair();
    return 0;
}

// Both ways, so that either moves the other.
void LogPage::Pair() {
    m_left.GetTextWnd().SyncWith(m_bBoth ? &m_right.GetTextWnd() : nullptr, TRUE);
    m_right.GetTextWnd().SyncWith(m_bBoth ? &m_left.GetTextWnd() : nullptr, TRUE);
}

void LogPage::OnShown() {
    if (!m_bOpened) {
        m_bOpened = true;
        m_left.Open(kLeftLog);
        m_right.Open(kRightLog);
    }
}

bool LogPage::Open(const CString& strPath) {
    return m_left.Open(strPath);
}

void LogPage::OnSize(UINT nType, int cx, int cy) {
    Page::OnSize(nType, cx, cy);
    LayOut();
}

void LogPage::LayOut() {
    CRect rc;
    GetClientRect(&rc);
    const int nLeft = m_bBoth ? rc.Width() / 2 : rc.Width();
    m_right.ShowWindow(m_bBoth ? SW_SHOW : SW_HIDE);
    m_left.MoveWindow(0, 0, nLeft - (m_bBoth ? kGap : 0), rc.Height());
    m_right.MoveWindow(nLeft, 0, rc.Width() - nLeft, rc.Height());
}

CString LogPage::MarkedText() {
    CString strText;
    strText.Format("%d lines, %d rows", m_left.GetTextWnd().NumLines(),
                   m_left.GetTextWnd().NumRows());
    return strText;
}

// --- Commands

void LogPage::OnOpen() {
    CFileDialog dialog(TRUE, "log", nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST,
                       "Logs|*.log;*.txt|All files|*.*||", this);
    if (dialog.DoModal() == IDOK && !Open(dialog.GetPathName())) {
        m_strMessage.Format("%s cannot be read", static_cast<LPCTSTR>(dialog.GetPathName()));
    }
}

void LogPage::OnCopy() {
    m_strMessage.Format(
        m_left.GetTextWnd().CopyToClipboard() ? "%d lines copied" : "%d lines could not be copied",
        m_left.GetTextWnd().NumLines());
}

bool LogPage::Export(LPCSTR pszPath) {
    try {
        if (m_left.GetTextWnd().ExportData(pszPath)) {
            m_strMessage.Format("%d lines written to %s", m_left.GetTextWnd().NumLines(), pszPath);
            return true;
        }
        m_strMessage.Format("%s cannot be opened for writing", pszPath);
    } catch (CFileException* pException) {
        pException->Delete();
        ::DeleteFile(pszPath);  // half a log would look like a whole one
        m_strMessage.Format("The log could not be written to %s", pszPath);
    }
    return false;
}

void LogPage::OnExport() {
    CFileDialog dialog(FALSE, "txt", nullptr, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       "Text files|*.txt|All files|*.*||", this);
    if (dialog.DoModal() == IDOK && !Export(dialog.GetPathName())) {
        AfxMessageBox(m_strMessage, MB_ICONEXCLAMATION);
    }
}

void LogPage::OnFollow() {
    m_bFollow = !m_bFollow;
    if (m_bFollow) {
        m_left.ReadMore();
        m_left.ShowEnd();
        SetTimer(kFollowTimer, kFollowPeriod, nullptr);
    } else {
        KillTimer(kFollowTimer);
    }
}

void LogPage::OnTimer(UINT_PTR) {
    m_left.ReadMore();
}

void LogPage::OnBoth() {
    m_bBoth = !m_bBoth;
    Pair();
    LayOut();
}

void LogPage::OnUpdateFollow(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_bFollow);
}

void LogPage::OnUpdateBoth(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_bBoth);
}

// --- Paper

void LogPage::OnPrint() {
    PrinterChoice printer(this);
    CDC dc;
    constexpr unsigned kMostPages = 9999;
    if (printer.Ask(kMostPages, dc) &&
        !Print(dc, printer.FirstPage(), printer.LastPage(), nullptr)) {
        AfxMessageBox(m_strMessage, MB_ICONEXCLAMATION);
    }
}

bool LogPage::PrintToFile(LPCSTR pszOutput, unsigned nFirst, unsigned nLast) {
    CDC dc;
    if (!OpenDefaultPrinter(this, dc)) {
        m_strMessage = "There is no printer to print on.";
        return false;
    }
    return Print(dc, nFirst, nLast, pszOutput);
}

bool LogPage::Print(CDC& dc, unsigned nFirst, unsigned nLast, LPCSTR pszOutput) {
    const CWaitCursor wait;
    CFont font;
    MakePrintFont(font, dc, kPrintPoints, FW_NORMAL);
    const qv::SelectGuard select(dc, &font);
    CRect rc(0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
    rc.DeflateRect(static_cast<int>(kMarginInch * dc.GetDeviceCaps(LOGPIXELSX)),
                   static_cast<int>(kMarginInch * dc.GetDeviceCaps(LOGPIXELSY)));
    const int nGap = dc.GetDeviceCaps(LOGPIXELSX) / 4;
    CRect rcLeft(rc);
    CRect rcRight(rc);
    if (m_bBoth) {
        rcLeft.right = rc.left + (rc.Width() - nGap) / 2;
        rcRight.left = rc.right - rcLeft.Width();
    }
    QVTextWnd& left = m_left.GetTextWnd();
    left.FormatText(&dc, rcLeft.Size());
    const auto nPages = static_cast<unsigned>(left.NumPages());
    const bool bPrinted =
        PrintJob(dc, "Log", nFirst, std::min(nLast, nPages), pszOutput, [&](unsigned nPage) {
            // A page of a printer begins with the device's own font.
            const qv::SelectGuard selectForPage(dc, &font);
            PrintColumn(dc, nPage, left, rcLeft);
            if (m_bBoth) {
                PrintColumn(dc, nPage, m_right.GetTextWnd(), rcRight);
            }
            CString strFooter;
            strFooter.Format("Page %u of %u", nPage, nPages);
            CRect rcFooter(rc.left, rc.bottom, rc.right, rc.bottom + nGap);
            dc.DrawText(strFooter, &rcFooter, DT_SINGLELINE | DT_CENTER | DT_BOTTOM);
        });
    m_strMessage = bPrinted ? "The log was printed." : "The printer did not take the log.";
    return bPrinted;
}

void LogPage::PrintColumn(CDC& dc, unsigned nPage, QVTextWnd& text, const CRect& rc) {
    const int nHeight = dc.GetTextExtent(" ", 1).cy;
    CString strRow;
    int nStyle = 0;
    int nLine = 0;
    const int nFirst = (static_cast<int>(nPage) - 1) * text.LinesPerPage();
    for (int i = 0; i < text.LinesPerPage(); ++i) {
        if (text.GetPrintRow(nFirst + i, strRow, nStyle, nLine)) {
            dc.TextOut(rc.left, rc.top + i * nHeight, strRow);
        }
    }
}
