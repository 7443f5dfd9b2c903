#include "walk/walk.h"

#include "resource.h"

bool Walk::ReportPages() {
    ClickTab(1);
    if (!Expect("the report has pages", [this] { return m_frame.Report().Pages() > 1; }) ||
        !Station("report-1-first-page")) {
        return false;
    }
    m_frame.Report().Preview().SetFocus();
    Press(VK_NEXT);
    return Expect("a key shows the next page",
                  [this] { return m_frame.Report().Preview().PageShown() == 2; }) &&
           Station("report-2-next-page");
}

bool Walk::Zoom() {
    const int nPercent = m_frame.Report().Preview().Percent();
    for (int i = 0; i < 3; ++i) {
        ClickOn(*m_frame.Report().GetDlgItem(ID_REPORT_ZOOM_IN));
        HandleMessages();
    }
    return Expect("a click on the button zooms in",
                  [&] { return m_frame.Report().Preview().Percent() > nPercent; }) &&
           Station("report-3-zoomed");
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
