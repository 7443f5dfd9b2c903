#include "pages/log_page.h"

#include "model/count_text.h"
#include "model/log_files.h"
#include "pages/printing.h"
#include "resource.h"
#include "sources/new_file.h"

#include <algorithm>

namespace {

constexpr char kFirstLog[] = "Z:\\var\\log\\dpkg.log";
constexpr UINT_PTR kFollowTimer = 1;
constexpr UINT kFollowPeriod = 1000;  // milliseconds
constexpr int kGap = 4;
constexpr int kButtonWidth = 170;
constexpr int kButtonHeight = 22;
constexpr int kPrintPoints = 7;
constexpr double kMarginInch = 0.8;

}  // namespace

BEGIN_MESSAGE_MAP(LogPage, Page)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_COMMAND(ID_LOG_OPEN, &LogPage::OnOpen)
    ON_COMMAND(ID_LOG_APPLICATION, &LogPage::OnApplication)
    ON_COMMAND(ID_LOG_COPY, &LogPage::OnCopy)
    ON_COMMAND(ID_LOG_EXPORT, &LogPage::OnExport)
    ON_COMMAND(ID_LOG_PRINT, &LogPage::OnPrint)
    ON_COMMAND(ID_LOG_FOLLOW, &LogPage::OnFollow)
    ON_COMMAND(ID_LOG_BOTH, &LogPage::OnBoth)
    ON_UPDATE_COMMAND_UI(ID_LOG_FOLLOW, &LogPage::OnUpdateFollow)
    ON_UPDATE_COMMAND_UI(ID_LOG_BOTH, &LogPage::OnUpdateBoth)
END_MESSAGE_MAP()

int LogPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    CRect rcNone(0, 0, 0, 0);
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN;
    if (Page::OnCreate(lpCreateStruct) == -1 ||
        !m_left.Create(kStyle, rcNone, this, IDC_LOG_LEFT) ||
        !m_right.Create(kStyle, rcNone, this, IDC_LOG_RIGHT) ||
        !m_btnOpen.Create("Open a lo&g...", WS_CHILD | WS_VISIBLE | WS_TABSTOP, rcNone, this,
                          ID_LOG_OPEN) ||
        !m_btnApplication.Create("The &application's own log", WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                 rcNone, this, ID_LOG_APPLICATION)) {
        return -1;
    }
    m_btnOpen.SetFont(&m_font);
    m_btnApplication.SetFont(&m_font);
    Pair();
    return 0;
}

// Both ways, so that either moves the other.
void LogPage::Pair() {
    m_left.GetTextWnd().SyncWith(ShowsBoth() ? &m_right.GetTextWnd() : nullptr, TRUE);
    m_right.GetTextWnd().SyncWith(ShowsBoth() ? &m_left.GetTextWnd() : nullptr, TRUE);
}

void LogPage::OnShown() {
    if (!m_bOpened) {
        // Not every machine has it: the caption says so.
        Open(kFirstLog);
    }
}

Failure LogPage::Open(const CString& strPath) {
    m_bOpened = true;
    Failure pFailure = m_left.Open(strPath);
    OpenOlder();
    return pFailure;
}

// Only what a log was rotated to belongs beside it.
void LogPage::OpenOlder() {
    const CString strOlder = OlderLog(std::string(m_left.Path())).c_str();
    CFileStatus status;
    m_bOlder = CFile::GetStatus(strOlder, status) && m_right.Open(strOlder) == nullptr;
    if (!m_bOlder) {
        m_strMessage = QVPath(m_left.Path()).GetName() + " alone: there is no " +
                       QVPath(strOlder).GetName() + " beside it with what was logged before";
    } else {
        m_strMessage =
            QVPath(m_left.Path()).GetName() + ", and on the right what was logged before";
    }
    Pair();
    LayOut();
}

void LogPage::SetInventory(const Inventory&) {
    if (m_bOpened) {
        ReadMore();
    }
}

// A log that was rotated in the meantime has an older part now, or another one.
void LogPage::ReadMore() {
    const ULONGLONG nRead = m_left.BytesRead();
    m_left.ReadMore();
    CFileStatus status;
    const bool bRotated = m_left.BytesRead() < nRead;
    if (bRotated ||
        (!m_bOlder && CFile::GetStatus(OlderLog(std::string(m_left.Path())).c_str(), status))) {
        OpenOlder();
    }
}

FindResult LogPage::Find(const TextQuery& query, bool bDown) {
    LogView& view = ShowsBoth() && CWnd::GetFocus() == &m_right.GetTextWnd() ? m_right : m_left;
    FindResult result = FindInText(view.GetTextWnd(), query, bDown);
    result.strPlace = QVPath(view.Path()).GetName();
    return result;
}

void LogPage::OnSize(UINT nType, int cx, int cy) {
    Page::OnSize(nType, cx, cy);
    LayOut();
}

void LogPage::LayOut() {
    CRect rc;
    GetClientRect(&rc);
    // Room for the words in any size of the system's fonts.
    const int nDpi = CClientDC(this).GetDeviceCaps(LOGPIXELSX);
    const int nButton = ::MulDiv(kButtonWidth, nDpi, 96);
    const int nHigh = ::MulDiv(kButtonHeight, nDpi, 96);
    m_btnOpen.MoveWindow(kGap, kGap, nButton, nHigh);
    m_btnApplication.MoveWindow(nButton + 2 * kGap, kGap, nButton, nHigh);
    const int nTop = nHigh + 2 * kGap;
    const int nHeight = std::max(rc.Height() - nTop, 0);
    const bool bBoth = ShowsBoth();
    const int nLeft = bBoth ? rc.Width() / 2 : rc.Width();
    m_right.ShowWindow(bBoth ? SW_SHOW : SW_HIDE);
    m_left.MoveWindow(0, nTop, nLeft - (bBoth ? kGap : 0), nHeight);
    m_right.MoveWindow(nLeft, nTop, rc.Width() - nLeft, nHeight);
}

CString LogPage::LinesText() {
    return CountText(static_cast<size_t>(m_left.GetTextWnd().NumLines()), "line").c_str();
}

CString LogPage::MarkedText() {
    const auto nRows = static_cast<size_t>(m_left.GetTextWnd().NumRows());
    return LinesText() + ", " + CountText(nRows, "row").c_str();
}

// --- Commands

void LogPage::OnOpen() {
    QVFileDialogEx dialog(TRUE, "log", nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST,
                          "Logs|*.log;*.txt|All files|*.*||", this);
    dialog.SetDlgTitle(IDS_OPEN_LOG);
    dialog.SetOkButtonText(IDS_SHOW);
    if (dialog.DoModal() == IDOK) {
        Tell(Open(dialog.GetPathName()), this);
    }
}

void LogPage::OnApplication() {
    // No error yet, no log.
    CFileStatus status;
    if (CFile::GetStatus(ErrorLogPath(), status)) {
        Tell(Open(ErrorLogPath()), this);
        m_left.ShowEnd();
    } else {
        m_strMessage = "No error has been kept in the application's log.";
    }
}

void LogPage::OnCopy() {
    const bool bCopied = m_left.GetTextWnd().CopyToClipboard() != 0;
    m_strMessage = LinesText() + (bCopied ? " copied" : " could not be copied");
}

Failure LogPage::Export(LPCSTR pszPath) {
    NewFile file(pszPath);
    ::SetLastError(NO_ERROR);
    try {
        if (m_left.GetTextWnd().ExportData(file.Path()) && file.PutInPlace()) {
            m_strMessage = LinesText() + " written to " + pszPath;
            return nullptr;
        }
        return Failed(kErrorExportLog, SystemReason(::GetLastError(), pszPath), pszPath);
    } catch (CFileException* pException) {
        return Failed(kErrorExportLog, FileReason(pException), pszPath);
    }
}

void LogPage::OnExport() {
    QVFileDialogEx dialog(FALSE, "txt", nullptr, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                          "Text files|*.txt|All files|*.*||", this);
    dialog.SetDlgTitle(IDS_EXPORT_LOG);
    if (dialog.DoModal() == IDOK) {
        Tell(Export(dialog.GetPathName()), this);
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
    ReadMore();
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
    pCmdUI->Enable(m_bOlder);
    pCmdUI->SetCheck(ShowsBoth());
}

// --- Paper

void LogPage::OnPrint() {
    PrinterChoice printer(this);
    CDC dc;
    constexpr unsigned kMostPages = 9999;
    if (printer.Ask(kMostPages, "Log", dc)) {
        Tell(Print(dc, printer.FirstPage(), printer.LastPage(), printer.Output()), this);
    }
}

Failure LogPage::PrintToFile(LPCSTR pszOutput, unsigned nFirst, unsigned nLast) {
    CDC dc;
    Failure pFailure = OpenDefaultPrinter(this, dc);
    return pFailure != nullptr ? std::move(pFailure) : Print(dc, nFirst, nLast, pszOutput);
}

Failure LogPage::Print(CDC& dc, unsigned nFirst, unsigned nLast, LPCSTR pszOutput) {
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
    if (ShowsBoth()) {
        rcLeft.right = rc.left + (rc.Width() - nGap) / 2;
        rcRight.left = rc.right - rcLeft.Width();
    }
    QVTextWnd& left = m_left.GetTextWnd();
    left.FormatText(&dc, rcLeft.Size());
    const auto nPages = static_cast<unsigned>(left.NumPages());
    const auto printPage = [&](unsigned nPage) {
        // A page of a printer begins with the device's own font.
        const qv::SelectGuard selectForPage(dc, &font);
        PrintColumn(dc, nPage, left, rcLeft);
        if (ShowsBoth()) {
            PrintColumn(dc, nPage, m_right.GetTextWnd(), rcRight);
        }
        CString strFooter;
        strFooter.Format("Page %u of %u", nPage, nPages);
        CRect rcFooter(rc.left, rc.bottom, rc.right, rc.bottom + nGap);
        dc.DrawText(strFooter, &rcFooter, DT_SINGLELINE | DT_CENTER | DT_BOTTOM);
    };
    nLast = std::min(nLast, nPages);
    Failure pFailure = Work::Run("Printing the log...", [&](Work& work) {
        PrintJob(work, dc, "Log", nFirst, nLast, pszOutput, printPage);
    });
    m_strMessage = PrintedText(pFailure, nLast - nFirst + 1, pszOutput);
    return pFailure;
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
