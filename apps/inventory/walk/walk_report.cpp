#include "walk/walk.h"

#include "resource.h"

namespace {

bool HoldsItsChildren(CWnd& wnd) {
    CRect rcWnd;
    wnd.GetWindowRect(&rcWnd);
    for (CWnd* pChild = wnd.GetWindow(GW_CHILD); pChild != nullptr;
         pChild = pChild->GetWindow(GW_HWNDNEXT)) {
        CRect rc;
        pChild->GetWindowRect(&rc);
        CRect rcInside;
        if (pChild->IsWindowVisible() && (!rcInside.IntersectRect(rc, rcWnd) || rcInside != rc)) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool Walk::ReportPages() {
    ClickTab(1);
    if (!Expect("the report has pages", [this] { return m_frame.Report().Pages() > 1; }) ||
        !Station("report-1-first-page")) {
        return false;
    }
    PreviewWindow& preview = m_frame.Report().Preview();
    preview.SetFocus();
    constexpr int kMostPages = 6;  // of the window, in a page of the report
    for (int i = 0; i < kMostPages && preview.PageShown() == 1; ++i) {
        Press(VK_NEXT);
        HandleMessages();
    }
    return Expect("a key goes on to the end of the page and to the next one",
                  [&] { return preview.PageShown() == 2; }) &&
           Station("report-2-next-page");
}

bool Walk::Zoom() {
    ReportPage& report = m_frame.Report();
    PreviewWindow& preview = report.Preview();
    const int nPercent = preview.Percent();
    const auto click = [&](UINT nID) {
        ClickOn(*report.GetDlgItem(static_cast<int>(nID)));
        HandleMessages();
    };
    click(ID_REPORT_ZOOM_IN);
    if (!Expect("a click on the button zooms in", [&] { return preview.Percent() > nPercent; }) ||
        !Station("report-3-zoomed")) {
        return false;
    }
    click(ID_REPORT_FIT);
    const auto fits = [&] {
        return preview.ScaleShown() == PreviewWindow::Scale::Whole &&
               report.IsDlgButtonChecked(ID_REPORT_FIT) && preview.Percent() < nPercent;
    };
    if (!Expect("Fit shows the whole page and stays pressed", fits)) {
        return false;
    }
    CRect rc;
    m_frame.GetWindowRect(&rc);
    const int nWhole = preview.Percent();
    m_frame.SetWindowPos(nullptr, 0, 0, rc.Width(), rc.Height() * 3 / 4, SWP_NOMOVE | SWP_NOZORDER);
    if (!Expect("and follows the window", [&] { return fits() && preview.Percent() < nWhole; }) ||
        !Happened("all buttons are in a window that is low", HoldsItsChildren(report)) ||
        !Station("report-4-whole-page")) {
        return false;
    }
    m_frame.SetWindowPos(nullptr, 0, 0, rc.Width(), rc.Height(), SWP_NOMOVE | SWP_NOZORDER);
    preview.SetFocus();
    Press(VK_MULTIPLY);
    return Expect("a key shows the page's width again", [&] {
        return preview.ScaleShown() == PreviewWindow::Scale::Width &&
               report.IsDlgButtonChecked(ID_REPORT_WIDTH) &&
               !report.IsDlgButtonChecked(ID_REPORT_FIT);
    });
}

bool Walk::FindInReport() {
    const unsigned nPage = m_frame.Report().Preview().PageShown();
    return AskFor("ZLIB1G", "report-5-find") &&
           Happened("the page that has the text is shown",
                    m_frame.Report().Preview().PageShown() > nPage);
}

bool Walk::ExportReport() {
    return ExportTo(m_strFolder + "\\report.html", "report-6-export");
}

// Where there is a printer, its job goes to a file beside the pictures.
bool Walk::Paper() {
    m_frame.PostMessage(WM_COMMAND, ID_REPORT_LIST);
    const unsigned nPages = m_frame.Report().Pages();
    if (!Expect("the list joins the report", [&] { return m_frame.Report().Pages() > nPages; })) {
        return false;
    }
    const CString strFile = m_strFolder + "\\report.ps";
    if (const Failure pFailure = m_frame.Report().PrintToFile(strFile)) {
        std::printf("walk: not printed: %s\n", pFailure->Text());
        return true;
    }
    CFileStatus status;
    const bool bPrinted = CFile::GetStatus(strFile, status) != FALSE;
    std::printf("walk: report.ps, %u pages\n", m_frame.Report().Pages());
    return Happened("the report comes out of the printer", bPrinted);
}
