#include "pages/report_page.h"

#include "model/flow_layout.h"
#include "model/report_export.h"
#include "model/report_settings.h"
#include "model/report_values.h"
#include "pages/printing.h"
#include "resource.h"

#include <type_traits>

namespace {

constexpr int kGap = 6;
constexpr int kPanelWidth = 130;
constexpr int kRowHeight = 22;
constexpr int kLeastRowHeight = 20;  // has room for the words
constexpr int kListHeight = 300;     // of the reports to choose from, when open

struct Choice {
    UINT nID;
    const char* pszText;
};
constexpr Choice kOptionTexts[] = {{ID_REPORT_INTRODUCTION, "Introdu&ction"},
                                   {ID_REPORT_SECTIONS, "&Sections"},
                                   {ID_REPORT_TOTALS, "Tot&als"},
                                   {ID_REPORT_LIST, "List as &you sort it"}};
// Letters that the menus of the frame leave free, for what has no key of its own in a dialog or
// menu.
constexpr Choice kButtonTexts[] = {{ID_REPORT_PREVIOUS, "Previous pa&ge"},
                                   {ID_REPORT_NEXT, "Ne&xt page"},
                                   {ID_REPORT_ZOOM_IN, "&Zoom in"},
                                   {ID_REPORT_ZOOM_OUT, "Zoo&m out"},
                                   {ID_REPORT_WIDTH, "Page &width"},
                                   {ID_REPORT_FIT, "&Fit"},
                                   {ID_REPORT_NEW, "&New report..."},
                                   {ID_REPORT_EDIT, "Edit report..."},
                                   {ID_REPORT_SAVE_AS, "Save report as..."},
                                   {ID_REPORT_RENAME, "Rename report..."},
                                   {ID_REPORT_DELETE, "Delete report"},
                                   {ID_REPORT_SETTINGS, "Settings..."},
                                   {ID_REPORT_PRINT, "Print..."}};
constexpr char kStandardName[] = "Standard report";

bool IsScale(UINT nID) {
    return nID == ID_REPORT_FIT || nID == ID_REPORT_WIDTH;
}

PreviewWindow::Scale ScaleOf(UINT nID) {
    return nID == ID_REPORT_FIT ? PreviewWindow::Scale::Whole : PreviewWindow::Scale::Width;
}

}  // namespace

BEGIN_MESSAGE_MAP(ReportPage, Page)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_COMMAND_RANGE(ID_REPORT_FIRST_OPTION, ID_REPORT_LAST_OPTION, &ReportPage::OnOption)
    ON_UPDATE_COMMAND_UI_RANGE(ID_REPORT_FIRST_OPTION, ID_REPORT_LAST_OPTION,
                               &ReportPage::OnUpdateOption)
    ON_COMMAND(ID_REPORT_PREVIOUS, &ReportPage::OnPrevious)
    ON_COMMAND(ID_REPORT_NEXT, &ReportPage::OnNext)
    ON_COMMAND(ID_REPORT_ZOOM_IN, &ReportPage::OnZoomIn)
    ON_COMMAND(ID_REPORT_ZOOM_OUT, &ReportPage::OnZoomOut)
    ON_COMMAND_RANGE(ID_REPORT_FIT, ID_REPORT_FIT, &ReportPage::OnScale)
    ON_COMMAND_RANGE(ID_REPORT_WIDTH, ID_REPORT_WIDTH, &ReportPage::OnScale)
    ON_COMMAND(ID_LIST_EXPORT, &ReportPage::OnExport)
    ON_CBN_SELCHANGE(IDC_REPORT_SHOWN, &ReportPage::OnChoice)
    ON_COMMAND(ID_REPORT_PRINT, &ReportPage::OnPrint)
    ON_UPDATE_COMMAND_UI(ID_REPORT_PREVIOUS, &ReportPage::OnUpdatePrevious)
    ON_UPDATE_COMMAND_UI(ID_REPORT_NEXT, &ReportPage::OnUpdateNext)
    ON_UPDATE_COMMAND_UI_RANGE(ID_REPORT_ZOOM_IN, ID_REPORT_ZOOM_OUT, &ReportPage::OnUpdateZoom)
    ON_UPDATE_COMMAND_UI(ID_REPORT_FIT, &ReportPage::OnUpdateScale)
    ON_UPDATE_COMMAND_UI(ID_REPORT_WIDTH, &ReportPage::OnUpdateScale)
END_MESSAGE_MAP()

int ReportPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (Page::OnCreate(lpCreateStruct) == -1 || !m_preview.Create(this, IDC_PREVIEW)) {
        return -1;
    }
    const CRect rcNone(0, 0, 0, 0);
    if (!m_choice.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, rcNone,
                         this, IDC_REPORT_SHOWN)) {
        return -1;
    }
    m_choice.SetFont(&m_font);
    const auto make = [&](CButton& button, const Choice& choice, DWORD dwStyle) {
        button.Create(choice.pszText, WS_CHILD | WS_VISIBLE | WS_TABSTOP | dwStyle, rcNone, this,
                      choice.nID);
        button.SetFont(&m_font);
    };
    for (int i = 0; i < kOptions; ++i) {
        make(m_aOptions[i], kOptionTexts[i], BS_AUTOCHECKBOX);
    }
    for (int i = 0; i < kButtons; ++i) {
        make(m_aButtons[i], kButtonTexts[i],
             IsScale(kButtonTexts[i].nID) ? BS_CHECKBOX | BS_PUSHLIKE : BS_PUSHBUTTON);
    }
    ShowNames({});
    m_preview.SetChanged([this] { ShowPreviewState(); });
    ShowPreviewState();
    return 0;
}

void ReportPage::OnSize(UINT nType, int cx, int cy) {
    Page::OnSize(nType, cx, cy);
    // Room for the words in any size of the system's fonts.
    const int nDpi = CClientDC(this).GetDeviceCaps(LOGPIXELSX);
    const auto scaled = [&](int nPixels) { return ::MulDiv(nPixels, nDpi, 96); };
    const int nColumn = scaled(kPanelWidth);
    const RowsInColumns rows = FitRows(2 + kOptions + kButtons, cy - 2 * kGap, scaled(kRowHeight),
                                       scaled(kLeastRowHeight), kGap);
    int nRow = 0;
    const auto place = [&](CWnd& wnd, int nHeight) {
        wnd.MoveWindow(kGap + nRow / rows.nInColumn * nColumn,
                       kGap + nRow % rows.nInColumn * (rows.nHeight + rows.nGap),
                       nColumn - 2 * kGap, nHeight);
        ++nRow;
    };
    place(m_choice, scaled(kListHeight));
    for (CButton& option : m_aOptions) {
        place(option, rows.nHeight);
    }
    ++nRow;  // an empty one between what is ticked and what is done
    for (CButton& button : m_aButtons) {
        place(button, rows.nHeight);
    }
    const int nPanel = (nRow + rows.nInColumn - 1) / rows.nInColumn * nColumn;
    m_preview.MoveWindow(nPanel, 0, std::max(cx - nPanel, 0), cy);
}

// --- Which report

void ReportPage::ShowReport(const ReportDefinition& report) {
    m_shown = report;
    m_tables = ReportTables::BySection;
    m_totals = ReportTotals::BySection;
    ShowNames(m_names);
    m_preview.SetReport(nullptr, nullptr);
    m_pReport.reset();
    m_preview.ShowPage(1);
    if (IsWindowVisible()) {
        MakeReport();
    }
}

void ReportPage::ShowNames(const std::vector<std::string>& names) {
    m_names = names;
    m_choice.ResetContent();
    m_choice.AddString(kStandardName);
    int nShown = 0;
    for (const std::string& strName : m_names) {
        const int nRow = m_choice.AddString(strName.c_str());
        nShown = strName == m_shown.strName ? nRow : nShown;
    }
    m_choice.SetCurSel(nShown);
    for (const UINT nID : {ID_REPORT_EDIT, ID_REPORT_RENAME, ID_REPORT_DELETE}) {
        GetDlgItem(static_cast<int>(nID))->EnableWindow(nShown != 0);
    }
    TickOptions();
}

void ReportPage::OnChoice() {
    const int nRow = m_choice.GetCurSel();
    AfxGetMainWnd()->PostMessage(
        WM_COMMAND,
        nRow > 0 ? ID_REPORT_FIRST_NAMED + static_cast<UINT>(nRow) - 1 : UINT{ID_REPORT_STANDARD});
}

// The buttons of what is not the page's own do what the menu does.
BOOL ReportPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    switch (LOWORD(wParam)) {
        case ID_REPORT_NEW:
        case ID_REPORT_EDIT:
        case ID_REPORT_SAVE_AS:
        case ID_REPORT_RENAME:
        case ID_REPORT_DELETE:
        case ID_REPORT_SETTINGS:
            if (lParam != 0 && HIWORD(wParam) == BN_CLICKED) {
                AfxGetMainWnd()->PostMessage(WM_COMMAND, LOWORD(wParam));
                return TRUE;
            }
            break;
        default:
            break;
    }
    return Page::OnCommand(wParam, lParam);
}

bool ReportPage::HasOption(UINT nID) const {
    switch (nID) {
        case ID_REPORT_INTRODUCTION:
            return m_shown.bIntroduction;
        case ID_REPORT_SECTIONS:
            return m_shown.tables != ReportTables::None;
        case ID_REPORT_TOTALS:
            return m_shown.totals != ReportTotals::None;
        default:
            return m_shown.bList;
    }
}

void ReportPage::TickOptions() {
    for (CButton& option : m_aOptions) {
        option.SetCheck(HasOption(static_cast<UINT>(option.GetDlgCtrlID())));
    }
}

// --- The report

void ReportPage::SetInventory(const Inventory& inventory) {
    m_pInventory = &inventory;
    m_preview.SetReport(nullptr, nullptr);
    m_pReport.reset();
    if (IsWindowVisible()) {
        MakeReport();
    }
}

void ReportPage::OnShown() {
    MakeReport();
}

int ReportPage::PaperNumber() const {
    return kPapers[m_settings.Values().Choice(kSettingPaper)].nPlatformNumber;
}

bool ReportPage::IsLandscape() {
    const int nOrientation = m_settings.Values().Choice(kSettingOrientation);
    if (nOrientation != kByTables) {
        return nOrientation == kLandscape;
    }
    CDC dc;
    OpenDevice(dc, false);
    return Report::NeedsLandscape(m_shown, m_settings.Values(), m_packages.List(), dc);
}

// Pages are laid out for the printer that they will come from.
void ReportPage::OpenDevice(CDC& dc, bool bLandscape) {
    if (OpenDefaultPrinter(this, dc, PaperNumber(), bLandscape)) {
        dc.CreateCompatibleDC(nullptr);
    }
}

std::unique_ptr<Report> ReportPage::Compose(Work& work, CDC& dc, bool bLandscape) {
    return std::make_unique<Report>(work, *m_pInventory, m_shown, m_settings.Values(), *this,
                                    m_packages.List(), dc, bLandscape);
}

void ReportPage::MakeReport() {
    if (m_pInventory == nullptr) {
        return;
    }
    const CWaitCursor wait;
    m_preview.SetReport(nullptr, nullptr);
    m_pReport.reset();
    const bool bLandscape = IsLandscape();
    m_dcDevice.DeleteDC();
    OpenDevice(m_dcDevice, bLandscape);
    const Failure pLeft = Work::Run("Laying out the report...", [&](Work& work) {
        m_pReport = Compose(work, m_dcDevice, bLandscape);
    });
    m_preview.SetReport(m_pReport.get(), &m_dcDevice);
    m_strMessage =
        pLeft == nullptr ? "" : "The report was not laid out: there is no preview of it.";
}

CString ReportPage::MarkedText() {
    static constexpr LPCSTR kScales[] = {"%, page width", "%, whole page", "%"};
    CString strText;
    if (Pages() > 0) {
        strText.Format("Page %u of %u, %d", m_preview.PageShown(), Pages(), m_preview.Percent());
        strText += kScales[static_cast<int>(m_preview.ScaleShown())];
    }
    return strText;
}

void ReportPage::OnExport() {
    if (m_pInventory == nullptr) {
        return;
    }
    m_exporter.UseSettings(m_settings.Values());
    m_strMessage = m_exporter.Run(*this, "report.html", [this](TableWriter& writer, Work& work) {
        const ReportContent content(*m_pInventory, m_shown);
        size_t nRows = 0;
        WriteReport(writer, m_shown, content, std::string(ReportText(m_shown.strTitle, content)),
                    m_shown.bIntroduction ? IntroductionText(content) : "",
                    [&] { work.Step(nRows++, content.all.packages.size()); });
    });
}

void ReportPage::OnOption(UINT nID) {
    // None and the kind that there was take turns.
    const auto turn = [](auto& kind, auto& other) {
        using Kind = std::remove_reference_t<decltype(kind)>;
        if (kind != Kind::None) {
            other = kind;
        }
        kind = kind != Kind::None ? Kind::None : other;
    };
    switch (nID) {
        case ID_REPORT_INTRODUCTION:
            m_shown.bIntroduction = !m_shown.bIntroduction;
            break;
        case ID_REPORT_SECTIONS:
            turn(m_shown.tables, m_tables);
            break;
        case ID_REPORT_TOTALS:
            turn(m_shown.totals, m_totals);
            break;
        default:
            m_shown.bList = !m_shown.bList;
            break;
    }
    TickOptions();
    MakeReport();
}

void ReportPage::OnUpdateOption(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(HasOption(pCmdUI->m_nID));
}

// --- The preview

void ReportPage::OnPrevious() {
    m_preview.ShowPage(m_preview.PageShown() - 1);
}

void ReportPage::OnNext() {
    m_preview.ShowPage(m_preview.PageShown() + 1);
}

void ReportPage::OnZoomIn() {
    m_preview.Zoom(true);
}

void ReportPage::OnZoomOut() {
    m_preview.Zoom(false);
}

void ReportPage::OnScale(UINT nID) {
    m_preview.Fit(ScaleOf(nID));
}

void ReportPage::ShowPreviewState() {
    const auto enable = [this](UINT nID, bool bEnable) {
        CWnd& button = *GetDlgItem(static_cast<int>(nID));
        if (!bEnable && CWnd::GetFocus() == &button) {
            m_preview.SetFocus();  // the keyboard does not go with what is disabled
        }
        button.EnableWindow(bEnable);
    };
    enable(ID_REPORT_PREVIOUS, m_preview.PageShown() > 1);
    enable(ID_REPORT_NEXT, m_preview.PageShown() < Pages());
    enable(ID_REPORT_ZOOM_IN, m_preview.CanZoom(true));
    enable(ID_REPORT_ZOOM_OUT, m_preview.CanZoom(false));
    for (const UINT nID : {ID_REPORT_WIDTH, ID_REPORT_FIT}) {
        CheckDlgButton(static_cast<int>(nID), m_preview.ScaleShown() == ScaleOf(nID));
    }
}

void ReportPage::OnUpdateZoom(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_preview.CanZoom(pCmdUI->m_nID == ID_REPORT_ZOOM_IN));
}

void ReportPage::OnUpdateScale(CCmdUI* pCmdUI) {
    pCmdUI->SetRadio(m_preview.ScaleShown() == ScaleOf(pCmdUI->m_nID));
}

FindResult ReportPage::Find(const TextQuery& query, bool bDown) {
    const FoundRow found =
        m_preview.Find([&](const std::wstring& strPiece, size_t& nAt,
                           size_t& nEnd) { return query.FindIn(strPiece, nAt, nEnd); },
                       bDown);
    return {found.nRow >= 0, found.bWrapped, "the report's pages"};
}

void ReportPage::OnUpdatePrevious(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_preview.PageShown() > 1);
}

void ReportPage::OnUpdateNext(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_preview.PageShown() < Pages());
}

// --- Settings

void ReportPage::UseSettings() {
    if (m_shown.strName.empty()) {
        const ReportDefinition standard = StandardReport(m_settings.Values());
        m_shown.strTitle = standard.strTitle;
        m_shown.packages = standard.packages;
    }
    m_preview.SetReport(nullptr, nullptr);
    m_pReport.reset();
    if (IsWindowVisible()) {
        MakeReport();
    }
}

// --- Paper

void ReportPage::OnPrint() {
    if (m_pInventory == nullptr) {
        return;
    }
    PrinterChoice printer(this);
    printer.UsePaper(PaperNumber());
    printer.UseOrientation(IsLandscape());
    CDC dc;
    if (printer.Ask(Pages(), "Inventory", dc)) {
        Tell(Print(dc, printer.FirstPage(), printer.LastPage(), printer.Output()), this);
    }
}

Failure ReportPage::PrintToFile(LPCSTR pszOutput) {
    CDC dc;
    Failure pFailure = OpenDefaultPrinter(this, dc, PaperNumber(), IsLandscape());
    return pFailure != nullptr ? std::move(pFailure) : Print(dc, 1, ~0u, pszOutput);
}

Failure ReportPage::Print(CDC& dc, unsigned nFirst, unsigned nLast, LPCSTR pszOutput) {
    const CWaitCursor wait;
    // The lists can be in one print run at a time: the preview begins another one afterwards.
    m_preview.SetReport(nullptr, nullptr);
    m_pReport.reset();
    unsigned nPages = 0;
    Failure pFailure = Work::Run("Laying out the report...", [&](Work& work) {
        const std::unique_ptr<Report> pReport = Compose(work, dc, false);
        work.Say("Printing the report...");
        nLast = std::min(nLast, pReport->Pages());
        nPages = nLast - nFirst + 1;
        PrintJob(work, dc, "Inventory", nFirst, nLast, pszOutput,
                 [&](unsigned nPage) { pReport->PrintPage(dc, nPage); });
        if (!pReport->IsComplete()) {  // parts are missing on paper
            throw Failed(kErrorPrint, std::make_unique<QVStatus>(QVStatus::outOfMemory)).release();
        }
    });
    if (IsWindowVisible()) {
        MakeReport();
    }
    m_strMessage = PrintedText(pFailure, nPages, pszOutput);
    return pFailure;
}
