#include "dialogs/preferences.h"

#include "model/report_settings.h"

#include <algorithm>

// --- Every page

BOOL PreferencesPage::OnInitDialog() {
    QVPropertyPage::OnInitDialog();
    Offer();
    m_bOffered = true;
    return TRUE;
}

// A page with a field that is wrong stays in front.
BOOL PreferencesPage::OnKillActive() {
    Settings settings = m_settings;
    const UINT nWrong = Take(settings);
    if (nWrong != 0) {
        AfxMessageBox(ProblemText(), MB_ICONINFORMATION);
        CWnd* pField = GetDlgItem(static_cast<int>(nWrong));
        pField->SetFocus();
        pField->SendMessage(EM_SETSEL, 0, -1);
        return FALSE;
    }
    return QVPropertyPage::OnKillActive();
}

BOOL PreferencesPage::OnApply() {
    Settings settings = m_settings;
    if (Take(settings) == 0 && settings.Format() != m_settings.Format()) {
        m_settings = settings;
        m_applied();
    }
    return QVPropertyPage::OnApply();
}

// Whatever a field tells, the page counts as changed while it says something else than the
// settings.
BOOL PreferencesPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL bHandled = QVPropertyPage::OnCommand(wParam, lParam);
    if (m_bOffered) {
        Settings settings = m_settings;
        SetModified(Take(settings) != 0 || settings.Format() != m_settings.Format());
    }
    return bHandled;
}

// --- Report

void ReportPreferences::Offer() {
    SetDlgItemText(IDC_REPORT_TITLE, m_settings.Value(kSettingTitle).c_str());
    SetDlgItemText(IDC_REPORT_FOOTER, m_settings.Value(kSettingFooter).c_str());
    OfferCodes(m_titleCodes, *this, IDC_REPORT_TITLE_CODES, IDC_REPORT_TITLE);
    OfferCodes(m_footerCodes, *this, IDC_REPORT_FOOTER_CODES, IDC_REPORT_FOOTER);
    OfferPackages(m_packages, *this, IDC_REPORT_PACKAGES, m_settings.Choice(kSettingPackages));
    CString strPapers;
    for (const Paper& paper : kPapers) {
        strPapers += CString(strPapers.IsEmpty() ? "" : "\t") + paper.pszName;
    }
    m_paper.SetTextList(strPapers);
    m_paper.Initialize(IDC_REPORT_PAPER, this);
    m_paper.SetWindowText(m_settings.Value(kSettingPaper).c_str());
    auto& orientation = static_cast<CComboBox&>(*GetDlgItem(IDC_REPORT_ORIENTATION));
    for (const char* psz : kOrientations) {
        orientation.AddString(psz);
    }
    orientation.SetCurSel(m_settings.Choice(kSettingOrientation));
    Tick(*this, IDC_REPORT_ASK, m_settings.Choice(kSettingReplace) == 0);
    UINT nID = IDC_REPORT_FIRST_MARGIN;
    for (const double margin : ReadMargins(m_settings.Value(kSettingMargins))) {
        SetDlgItemText(static_cast<int>(nID++), MarginText(margin).c_str());
    }
}

UINT ReportPreferences::Take(Settings& settings) {
    std::string strMargins;
    for (UINT nID = IDC_REPORT_FIRST_MARGIN; nID <= IDC_REPORT_LAST_MARGIN; ++nID) {
        double margin = 0;
        if (!ReadMargin(TextOf(*this, nID), margin)) {
            return nID;
        }
        strMargins += strMargins.empty() ? "" : " ";
        strMargins += MarginText(margin);
    }
    settings.Set(kSettingMargins, strMargins);
    settings.Set(kSettingTitle, TextOf(*this, IDC_REPORT_TITLE));
    settings.Set(kSettingFooter, TextOf(*this, IDC_REPORT_FOOTER));
    settings.Set(kSettingPaper, TextOf(*this, IDC_REPORT_PAPER));
    settings.Set(kSettingOrientation, TextOf(*this, IDC_REPORT_ORIENTATION));
    CString strPackages;
    m_packages.GetItemString(m_packages.GetCurSel(), strPackages);
    settings.Set(kSettingPackages, std::string(strPackages));
    const size_t nReplace = IsTicked(*this, IDC_REPORT_ASK) ? 0 : 1;
    settings.Set(kSettingReplace, std::string(settings.All()[kSettingReplace].choices[nReplace]));
    return 0;
}

CString ReportPreferences::ProblemText() const {
    CString strProblem;
    strProblem.Format("A margin is a number of millimetres from 0 to %g.", kWidestMargin);
    return strProblem;
}

// --- Colours

void ColorPreferences::Offer() {
    for (size_t i = 0; i < std::size(m_aColors); ++i) {
        OfferColors(m_aColors[i], *this, IDC_REPORT_FIRST_COLOR + static_cast<UINT>(i),
                    m_settings.Choice(kSettingColorInstalled + static_cast<int>(i)));
    }
}

UINT ColorPreferences::Take(Settings& settings) {
    for (size_t i = 0; i < std::size(m_aColors); ++i) {
        settings.Set(kSettingColorInstalled + static_cast<int>(i),
                     kTextColors[ChosenColor(m_aColors[i])].pszName);
    }
    return 0;
}

// --- Start

namespace {

// A value that is none of the names shows as the first row.
void OfferNames(CComboBox& combo, const std::string& strFirst,
                const std::vector<std::string>& names, const std::string& strValue) {
    combo.AddString(strFirst.c_str());
    for (const std::string& strName : names) {
        combo.AddString(strName.c_str());
    }
    const auto it = std::find(names.begin(), names.end(), strValue);
    combo.SetCurSel(it == names.end() ? 0 : static_cast<int>(it - names.begin()) + 1);
}

std::string ChosenName(const CComboBox& combo, const std::vector<std::string>& names) {
    const int nRow = combo.GetCurSel();
    return nRow > 0 ? names[static_cast<size_t>(nRow) - 1] : std::string();
}

}  // namespace

void StartPreferences::Offer() {
    OfferNames(ComboOf(*this, IDC_START_PAGE), "the first one", m_pages,
               m_settings.Value(kSettingStartPage));
    OfferNames(ComboOf(*this, IDC_START_REPORT), "the standard report", m_reports,
               m_settings.Value(kSettingStartReport));
    CheckRadioButton(IDC_START_FILTER, IDC_START_ALL_PACKAGES,
                     IDC_START_FILTER + m_settings.Choice(kSettingStartFilter));
}

UINT StartPreferences::Take(Settings& settings) {
    settings.Set(kSettingStartPage, ChosenName(ComboOf(*this, IDC_START_PAGE), m_pages));
    settings.Set(kSettingStartReport, ChosenName(ComboOf(*this, IDC_START_REPORT), m_reports));
    const size_t nFilter = IsTicked(*this, IDC_START_ALL_PACKAGES) ? 1 : 0;
    settings.Set(kSettingStartFilter,
                 std::string(settings.All()[kSettingStartFilter].choices[nFilter]));
    return 0;
}

// --- The sheet

Preferences::Preferences(CWnd* pParent, const Settings& settings,
                         std::function<void(const Settings&)> apply,
                         const StartPreferences::Names& pages,
                         const StartPreferences::Names& reports)
    : QVPropertySheet("Preferences", pParent),
      m_settings(settings),
      m_applied([this, apply = std::move(apply)] { apply(m_settings); }),
      m_report(m_settings, m_applied),
      m_colors(m_settings, m_applied),
      m_start(m_settings, m_applied, pages, reports) {
    AddPage(&m_report);
    AddPage(&m_colors);
    AddPage(&m_start);
    m_psh.dwFlags &= ~static_cast<DWORD>(PSH_HASHELP);
    for (PreferencesPage* pPage :
         {static_cast<PreferencesPage*>(&m_report), static_cast<PreferencesPage*>(&m_colors),
          static_cast<PreferencesPage*>(&m_start)}) {
        pPage->m_psp.dwFlags &= ~static_cast<DWORD>(PSP_HASHELP);
    }
}

int Preferences::OnInitDialog() {
    const int nResult = QVPropertySheet::OnInitDialog();
    CenterWindow();
    return nResult;
}
