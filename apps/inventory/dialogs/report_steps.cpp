#include "dialogs/report_steps.h"

#include "dialogs/day_edit.h"
#include "dialogs/package_bar.h"
#include "dialogs/report_controls.h"
#include "model/package_filter.h"
#include "package_strip.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace {

constexpr UINT kFocusField = WM_APP + 1;
constexpr DWORD kOnTheWay = PSWIZB_BACK | PSWIZB_NEXT;

}  // namespace

// --- Every step

BEGIN_MESSAGE_MAP(ReportStep, QVWizardPage)
    ON_MESSAGE(kFocusField, &ReportStep::OnFocusField)
END_MESSAGE_MAP()

ReportStep::ReportStep(ReportStepOwner& wizard, UINT nTemplate, DWORD dwButtons, ReportField field,
                       UINT nID)
    : QVWizardPage(nTemplate, 0, 0, 0), m_wizard(wizard), m_field(field), m_nFieldID(nID) {
    SetWizButtons(dwButtons);
}

BOOL ReportStep::OnInitDialog() {
    QVWizardPage::OnInitDialog();
    m_StepWnd.ScaleToFont(TRUE);
    Offer();
    return TRUE;
}

BOOL ReportStep::OnSetActive() {
    Show();
    if (const ReportField wanted = m_wizard.TakeWanted(); HasField(wanted)) {
        PostMessage(kFocusField, static_cast<WPARAM>(wanted));  // behind the sheet's own choice
    }
    const BOOL bActive = QVWizardPage::OnSetActive();
    // Behind the buttons' own message, after which Enter would finish.
    if ((m_dwWizButtons & PSWIZB_NEXT) != 0) {
        GetParent()->PostMessage(DM_SETDEFID, ID_WIZNEXT);
    }
    return bActive;
}

LRESULT ReportStep::OnFocusField(WPARAM wParam, LPARAM) {
    FocusOn(static_cast<ReportField>(wParam));
    return 0;
}

void ReportStep::FocusOn(ReportField) {
    GotoDlgCtrl(GetDlgItem(static_cast<int>(m_nFieldID)));
}

void ReportStep::TakeAll() {
    Take();
    m_wizard.FitWay();
}

// What is wrong in another step is that step's to say.
int ReportStep::ValidateData() {
    TakeAll();
    const ReportProblem problem = ProblemOf(Edited());
    if (!HasField(problem.field)) {
        return 1;
    }
    AfxMessageBox(problem.strMessage.c_str(), MB_ICONINFORMATION);
    FocusOn(problem.field);
    return 0;
}

LRESULT ReportStep::OnWizardBack() {
    TakeAll();
    return QVWizardPage::OnWizardBack();
}

BOOL ReportStep::OnWizardFinish() {
    TakeAll();
    return m_wizard.CanFinish(*this) ? QVWizardPage::OnWizardFinish() : FALSE;
}

BOOL ReportStep::OnQueryCancel() {
    TakeAll();
    SetOnCancelMessageID(m_wizard.HasChanged() ? IDS_REPORT_DROP : 0);
    return QVWizardPage::OnQueryCancel();
}

// --- What is in it

BEGIN_MESSAGE_MAP(WhatStep, ReportStep)
    ON_BN_CLICKED(IDC_WHAT_ANY_DATE, &WhatStep::OnAnyDate)
    ON_LBN_SELCHANGE(IDC_WHAT_SECTIONS, &WhatStep::OnSectionChosen)
    ON_CBN_SELCHANGE(IDC_WHAT_TABLES, &WhatStep::OnTables)
END_MESSAGE_MAP()

WhatStep::WhatStep(ReportStepOwner& wizard)
    : ReportStep(wizard, IDD_REPORT_WHAT, PSWIZB_NEXT, ReportField::Sections, IDC_WHAT_SECTIONS) {}

void WhatStep::Offer() {
    const ReportDefinition& report = Edited();
    OfferPackages(m_packages, *this, IDC_WHAT_PACKAGES, static_cast<int>(report.packages));
    OfferArchitectures();
    m_since.SubclassDlgItem(IDC_WHAT_SINCE, this);
    ShowDay(m_since, report.tSince);
    OfferSections();
    CheckRadioButton(IDC_WHAT_ALL_SECTIONS, IDC_WHAT_SOME_SECTIONS,
                     report.bAllSections ? IDC_WHAT_ALL_SECTIONS : IDC_WHAT_SOME_SECTIONS);
    CComboBox& tables = ComboOf(*this, IDC_WHAT_TABLES);
    for (const char* psz : {"one for each section", "one for all packages", "none"}) {
        tables.AddString(psz);
    }
    tables.SetCurSel(static_cast<int>(report.tables));
    CComboBox& columns = ComboOf(*this, IDC_WHAT_COLUMNS);
    columns.AddString("all that there are");
    columns.AddString("those that I choose");
    columns.SetCurSel(report.bAllColumns ? 0 : 1);
    Tick(*this, IDC_WHAT_INTRODUCTION, report.bIntroduction);
    Tick(*this, IDC_WHAT_LIST, report.bList);
    OnTables();
}

void WhatStep::OfferArchitectures() {
    const std::string& strChosen = Edited().strArchitecture;
    std::vector<std::string> names = Architectures(Packages());
    if (!strChosen.empty() && std::find(names.begin(), names.end(), strChosen) == names.end()) {
        names.push_back(strChosen);  // this inventory does not have it, but the report asks for it
    }
    m_architecture.Initialize(IDC_WHAT_ARCHITECTURE, IDB_PACKAGES, kStripMask, kStripImageWidth,
                              this);
    m_architecture.EnableExpectedKeys();
    m_architecture.AddBitmapString(kPlainPackage, "all");
    m_architecture.SetCurSel(0);
    for (const std::string& strName : names) {
        const int nRow = m_architecture.AddBitmapString(kPlainPackage, strName.c_str());
        if (strName == strChosen) {
            m_architecture.SetCurSel(nRow);
        }
    }
}

void WhatStep::OfferSections() {
    const std::vector<std::string>& chosen = Edited().sections;
    std::set<std::string> missing(chosen.begin(), chosen.end());
    m_sections.Initialize(IDC_WHAT_SECTIONS, IDB_PACKAGES, kStripMask, kStripImageWidth, this);
    m_sections.EnableExpectedKeys();
    const auto add = [&](PackageImage image, const std::string& strName) {
        const int nRow = m_sections.AddBitmapString(image, strName.c_str());
        if (std::find(chosen.begin(), chosen.end(), strName) != chosen.end()) {
            m_sections.SetSel(nRow);
        }
    };
    for (const Section& section : Packages().Sections()) {
        add(ImageOf(section), section.strName);
        missing.erase(section.strName);
    }
    for (const std::string& strName : missing) {
        add(kPlainPackage, strName);
    }
    m_sections.SetTopIndex(0);
}

void WhatStep::Take() {
    ReportDefinition& report = Edited();
    report.packages = static_cast<ReportPackages>(m_packages.GetCurSel());
    CString str;
    report.strArchitecture.clear();
    if (const int nRow = m_architecture.GetCurSel();
        nRow > 0 && m_architecture.GetItemString(nRow, str)) {
        report.strArchitecture = std::string(str);
    }
    report.tSince = DayIn(m_since);
    report.bAllSections = IsTicked(*this, IDC_WHAT_ALL_SECTIONS);
    report.sections.clear();
    for (int nRow = 0; nRow < m_sections.GetCount(); ++nRow) {
        if (m_sections.GetSel(nRow) > 0 && m_sections.GetItemString(nRow, str)) {
            report.sections.emplace_back(str);
        }
    }
    report.tables = static_cast<ReportTables>(ComboOf(*this, IDC_WHAT_TABLES).GetCurSel());
    report.bAllColumns = ComboOf(*this, IDC_WHAT_COLUMNS).GetCurSel() == 0;
    report.bIntroduction = IsTicked(*this, IDC_WHAT_INTRODUCTION);
    report.bList = IsTicked(*this, IDC_WHAT_LIST);
}

void WhatStep::OnAnyDate() {
    ShowDay(m_since, 0);
}

void WhatStep::OnSectionChosen() {
    CheckRadioButton(IDC_WHAT_ALL_SECTIONS, IDC_WHAT_SOME_SECTIONS, IDC_WHAT_SOME_SECTIONS);
}

void WhatStep::OnTables() {
    const bool bTables =
        ComboOf(*this, IDC_WHAT_TABLES).GetCurSel() != static_cast<int>(ReportTables::None);
    ComboOf(*this, IDC_WHAT_COLUMNS).EnableWindow(bTables);
}

// --- Columns

BEGIN_MESSAGE_MAP(ColumnsStep, ReportStep)
    ON_BN_CLICKED(IDC_COLUMN_ADD, &ColumnsStep::OnAdd)
    ON_BN_CLICKED(IDC_COLUMN_REMOVE, &ColumnsStep::OnRemove)
    ON_BN_CLICKED(IDC_COLUMN_UP, &ColumnsStep::OnUp)
    ON_BN_CLICKED(IDC_COLUMN_DOWN, &ColumnsStep::OnDown)
    ON_LBN_DBLCLK(IDC_COLUMNS_OFFERED, &ColumnsStep::OnAdd)
    ON_LBN_DBLCLK(IDC_COLUMNS_CHOSEN, &ColumnsStep::OnRemove)
    ON_LBN_SELCHANGE(IDC_COLUMNS_OFFERED, &ColumnsStep::OnSelected)
    ON_LBN_SELCHANGE(IDC_COLUMNS_CHOSEN, &ColumnsStep::OnSelected)
END_MESSAGE_MAP()

ColumnsStep::ColumnsStep(ReportStepOwner& wizard)
    : ReportStep(wizard, IDD_REPORT_COLUMNS, kOnTheWay, ReportField::Columns, IDC_COLUMNS_OFFERED) {
}

void ColumnsStep::Offer() {
    m_offered.Initialize(IDC_COLUMNS_OFFERED, 0, 0, 0, this);
    m_chosen.Initialize(IDC_COLUMNS_CHOSEN, 0, 0, 0, this);
    m_offered.EnableExpectedKeys();
    m_chosen.EnableExpectedKeys();
    m_columns = Edited().columns;
    Fill(0, 0);
}

void ColumnsStep::Take() {
    Edited().columns = m_columns;
}

void ColumnsStep::Fill(int nOffered, int nChosen) {
    m_offered.ResetContent();
    m_chosen.ResetContent();
    for (int i = 0; i < kReportColumns; ++i) {
        const auto column = static_cast<ReportColumn>(i);
        if (std::find(m_columns.begin(), m_columns.end(), column) == m_columns.end()) {
            const int nRow = m_offered.AddBitmapString(0, InfoOf(column).pszHeading);
            m_offered.SetItemData(nRow, static_cast<DWORD_PTR>(i));
        }
    }
    for (const ReportColumn column : m_columns) {
        m_chosen.AddBitmapString(0, InfoOf(column).pszHeading);
    }
    m_offered.SetCurSel(std::min(nOffered, m_offered.GetCount() - 1));
    m_chosen.SetCurSel(std::min(nChosen, m_chosen.GetCount() - 1));
    EnableButtons();
}

// A button that can do nothing more hands the focus on.
void ColumnsStep::EnableButtons() {
    const int nChosen = m_chosen.GetCurSel();
    const auto enable = [this](UINT nID, bool bEnable, QVBitmapListBox& list) {
        CWnd* pButton = GetDlgItem(static_cast<int>(nID));
        if (!bEnable && ::GetFocus() == pButton->m_hWnd) {
            GotoDlgCtrl(&list);
        }
        pButton->EnableWindow(bEnable);
    };
    enable(IDC_COLUMN_ADD, m_offered.GetCurSel() >= 0, m_chosen);
    enable(IDC_COLUMN_REMOVE, nChosen >= 0, m_offered);
    enable(IDC_COLUMN_UP, nChosen > 0, m_chosen);
    enable(IDC_COLUMN_DOWN, nChosen >= 0 && nChosen < m_chosen.GetCount() - 1, m_chosen);
}

void ColumnsStep::OnAdd() {
    const int nRow = m_offered.GetCurSel();
    if (nRow >= 0) {
        m_columns.push_back(static_cast<ReportColumn>(m_offered.GetItemData(nRow)));
        Fill(nRow, m_chosen.GetCount());
    }
}

void ColumnsStep::OnRemove() {
    const int nRow = m_chosen.GetCurSel();
    if (nRow >= 0) {
        m_columns.erase(m_columns.begin() + nRow);
        Fill(m_offered.GetCurSel(), nRow);
    }
}

void ColumnsStep::Move(int nBy) {
    const int nRow = m_chosen.GetCurSel();
    const int nTo = nRow + nBy;
    if (nRow >= 0 && nTo >= 0 && nTo < m_chosen.GetCount()) {
        std::swap(m_columns[static_cast<size_t>(nRow)], m_columns[static_cast<size_t>(nTo)]);
        Fill(m_offered.GetCurSel(), nTo);
    }
}

void ColumnsStep::OnUp() {
    Move(-1);
}

void ColumnsStep::OnDown() {
    Move(1);
}

void ColumnsStep::OnSelected() {
    EnableButtons();
}

// --- Order and totals

OrderStep::OrderStep(ReportStepOwner& wizard)
    : ReportStep(wizard, IDD_REPORT_ORDER, kOnTheWay, ReportField::Totals, IDC_TOTALS_NONE) {}

void OrderStep::Offer() {
    const ReportDefinition& report = Edited();
    CComboBox& order = ComboOf(*this, IDC_ORDER_COLUMN);
    for (int i = 0; i < kReportColumns; ++i) {
        order.AddString(InfoOf(static_cast<ReportColumn>(i)).pszHeading);
    }
    order.SetCurSel(static_cast<int>(report.order));
    CheckRadioButton(IDC_ORDER_RISING, IDC_ORDER_FALLING,
                     report.bFalling ? IDC_ORDER_FALLING : IDC_ORDER_RISING);
    CheckRadioButton(IDC_TOTALS_NONE, IDC_TOTALS_OVERALL,
                     IDC_TOTALS_NONE + static_cast<int>(report.totals));
}

// Without a table there is nothing to be put in order.
void OrderStep::Show() {
    for (const int nID : {IDC_ORDER_COLUMN, IDC_ORDER_RISING, IDC_ORDER_FALLING}) {
        GetDlgItem(nID)->EnableWindow(Edited().tables != ReportTables::None);
    }
}

void OrderStep::Take() {
    ReportDefinition& report = Edited();
    report.order = static_cast<ReportColumn>(ComboOf(*this, IDC_ORDER_COLUMN).GetCurSel());
    report.bFalling = IsTicked(*this, IDC_ORDER_FALLING);
    report.totals = static_cast<ReportTotals>(
        GetCheckedRadioButton(IDC_TOTALS_NONE, IDC_TOTALS_OVERALL) - IDC_TOTALS_NONE);
}

// --- Look

namespace {

constexpr int kPoints[] = {6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36};

ReportFont ReportDefinition::*const kReportFonts[] = {
    &ReportDefinition::titleFont, &ReportDefinition::headingFont, &ReportDefinition::textFont};

// Faces for writing from top to bottom are left out.
int CALLBACK TakeFace(const LOGFONT* pFont, const TEXTMETRIC*, DWORD, LPARAM lParam) {
    if (pFont->lfFaceName[0] != '@') {
        reinterpret_cast<std::set<std::string>*>(lParam)->insert(pFont->lfFaceName);
    }
    return TRUE;
}

// A face that this machine does not have is offered nevertheless: the report asks for it.
void OfferFaces(CWnd& dialog, UINT nID, std::set<std::string> faces, const std::string& strFace) {
    faces.insert(strFace);
    CComboBox& combo = ComboOf(dialog, nID);
    for (const std::string& strOne : faces) {
        const int nRow = combo.AddString(strOne.c_str());
        if (strOne == strFace) {
            combo.SetCurSel(nRow);
        }
    }
}

}  // namespace

LookStep::LookStep(ReportStepOwner& wizard)
    : ReportStep(wizard, IDD_REPORT_LOOK, kOnTheWay, ReportField::Title, IDC_LOOK_TITLE) {}

void LookStep::Offer() {
    const ReportDefinition& report = Edited();
    SetDlgItemText(IDC_LOOK_TITLE, report.strTitle.c_str());
    static_cast<CEdit*>(GetDlgItem(IDC_LOOK_TITLE))->LimitText(kLongestReportTitle);
    OfferCodes(m_titleCodes, *this, IDC_LOOK_TITLE_CODES, IDC_LOOK_TITLE);
    std::set<std::string> faces;
    LOGFONT any{};
    any.lfCharSet = DEFAULT_CHARSET;
    ::EnumFontFamiliesEx(CClientDC(this), &any, TakeFace, reinterpret_cast<LPARAM>(&faces), 0);
    CString strSizes;
    for (const int nPoints : kPoints) {
        strSizes += CString(strSizes.IsEmpty() ? "" : "\t") + std::to_string(nPoints).c_str();
    }
    for (UINT i = 0; i < kFonts; ++i) {
        const ReportFont& font = report.*kReportFonts[i];
        OfferFaces(*this, IDC_LOOK_FIRST_FACE + i, faces, font.strFace);
        m_aSizes[i].SetTextList(strSizes);
        m_aSizes[i].Initialize(IDC_LOOK_FIRST_SIZE + i, this);
        m_aSizes[i].SetWindowText(std::to_string(font.nPoints).c_str());
    }
    for (UINT i = 0; i < kReportColors; ++i) {
        OfferColors(m_aColors[i], *this, IDC_LOOK_FIRST_COLOR + i, report.colors[i]);
    }
}

void LookStep::Take() {
    ReportDefinition& report = Edited();
    report.strTitle = TextOf(*this, IDC_LOOK_TITLE);
    for (UINT i = 0; i < kFonts; ++i) {
        ReportFont& font = report.*kReportFonts[i];
        font.strFace = TextOf(*this, IDC_LOOK_FIRST_FACE + i);
        font.nPoints = std::atoi(TextOf(*this, IDC_LOOK_FIRST_SIZE + i).c_str());
    }
    for (UINT i = 0; i < kReportColors; ++i) {
        report.colors[i] = ChosenColor(m_aColors[i]);
    }
}

// --- Ready

ReadyStep::ReadyStep(ReportStepOwner& wizard)
    : ReportStep(wizard, IDD_REPORT_READY, PSWIZB_BACK | PSWIZB_FINISH, ReportField::Name,
                 IDC_READY_NAME) {}

void ReadyStep::Offer() {
    m_summary.Initialize(IDC_READY_SUMMARY, this, TRUE);
    m_summary.SetExactLayout(TRUE);
    m_summary.EnableExpectedKeys();
    m_summary.SetFont(GetFont());
    SetDlgItemText(IDC_READY_NAME, Edited().strName.c_str());
    static_cast<CEdit*>(GetDlgItem(IDC_READY_NAME))->LimitText(kLongestReportName);
    CheckRadioButton(IDC_READY_SHOW, IDC_READY_PRINT, m_bPrint ? IDC_READY_PRINT : IDC_READY_SHOW);
}

void ReadyStep::Show() {
    m_summary.ClearTextData();
    const std::string strText = Describe(Edited());
    for (size_t nStart = 0; nStart < strText.size();) {
        const size_t nEnd = std::min(strText.find('\n', nStart), strText.size());
        m_summary.AddText(strText.substr(nStart, nEnd - nStart).c_str(), 0);
        nStart = nEnd + 1;
    }
    m_summary.CalcLayout();
}

void ReadyStep::Take() {
    Edited().strName = TrimmedTextOf(*this, IDC_READY_NAME);
    m_bPrint = IsTicked(*this, IDC_READY_PRINT);
}
