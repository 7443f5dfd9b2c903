#include "dialogs/report_settings_dialog.h"

#include "model/report_settings.h"
#include "package_strip.h"

namespace {

// Of all, required and unusual packages.
constexpr PackageImage kPackageImages[] = {kPlainPackage, kRequiredPackage, kPackageInTrouble};

}  // namespace

BOOL ReportSettingsDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    CenterWindow();
    SetDlgItemText(IDC_REPORT_TITLE, m_settings.Value(kSettingTitle).c_str());
    SetDlgItemText(IDC_REPORT_FOOTER, m_settings.Value(kSettingFooter).c_str());
    OfferCodes(m_titleCodes, IDC_REPORT_TITLE_CODES, IDC_REPORT_TITLE);
    OfferCodes(m_footerCodes, IDC_REPORT_FOOTER_CODES, IDC_REPORT_FOOTER);
    OfferPackages();
    OfferPapers();
    OfferColors();
    ShowMargins();
    return TRUE;
}

void ReportSettingsDialog::OfferCodes(QVMacroButton& button, UINT nButton, UINT nEdit) {
    button.SubclassDlgItem(nButton, this);
    button.AddMacro("The machine's name", kCodeMachine);
    button.AddMacro("The date of printing", kCodeDate);
    button.AddMacro("The number of packages", kCodePackages);
    button.SetEditCtrlID(nEdit);
}

void ReportSettingsDialog::OfferPackages() {
    m_packages.Initialize(IDC_REPORT_PACKAGES, IDB_PACKAGES, kStripMask, kStripImageWidth, this);
    const std::vector<std::string>& choices = m_settings.All()[kSettingPackages].choices;
    for (size_t i = 0; i < choices.size(); ++i) {
        m_packages.AddBitmapString(kPackageImages[i], choices[i].c_str());
    }
    m_packages.SetCurSel(m_settings.Choice(kSettingPackages));
}

void ReportSettingsDialog::OfferPapers() {
    CString strPapers;
    for (const Paper& paper : kPapers) {
        strPapers += CString(strPapers.IsEmpty() ? "" : "\t") + paper.pszName;
    }
    m_paper.SetTextList(strPapers);
    m_paper.Initialize(IDC_REPORT_PAPER, this);
    m_paper.SetWindowText(m_settings.Value(kSettingPaper).c_str());
}

void ReportSettingsDialog::OfferColors() {
    std::vector<COLORREF> colors;
    for (const NamedColor& named : kTextColors) {
        colors.push_back(RGB(named.red, named.green, named.blue));
    }
    for (int i = 0; i < kColors; ++i) {
        QVColorComboBox& combo = m_aColors[i];
        combo.Initialize(IDC_REPORT_FIRST_COLOR + static_cast<UINT>(i), colors.data(),
                         static_cast<int>(colors.size()), this);
        for (int nColor = 0; nColor < static_cast<int>(colors.size()); ++nColor) {
            combo.InsertColorString(nColor, nColor, kTextColors[nColor].pszName);
        }
        combo.SetCurSel(m_settings.Choice(kSettingColorInstalled + i));
    }
}

void ReportSettingsDialog::ShowMargins() {
    UINT nID = IDC_REPORT_FIRST_MARGIN;
    for (const double margin : ReadMargins(m_settings.Value(kSettingMargins))) {
        SetDlgItemText(static_cast<int>(nID++), MarginText(margin).c_str());
    }
}

std::string ReportSettingsDialog::TextOf(UINT nID) {
    CString strText;
    GetDlgItem(static_cast<int>(nID))->GetWindowText(strText);
    return std::string(strText);
}

bool ReportSettingsDialog::ReadMarginEdits(std::string& strMargins) {
    for (UINT nID = IDC_REPORT_FIRST_MARGIN; nID <= IDC_REPORT_LAST_MARGIN; ++nID) {
        double margin = 0;
        if (!ReadMargin(TextOf(nID), margin)) {
            CString strProblem;
            strProblem.Format("A margin is a number of millimetres from 0 to %g.", kWidestMargin);
            AfxMessageBox(strProblem, MB_ICONINFORMATION);
            GotoDlgCtrl(GetDlgItem(static_cast<int>(nID)));
            return false;
        }
        strMargins += strMargins.empty() ? "" : " ";
        strMargins += MarginText(margin);
    }
    return true;
}

void ReportSettingsDialog::OnOK() {
    std::string strMargins;
    if (!ReadMarginEdits(strMargins)) {
        return;
    }
    m_settings.Set(kSettingMargins, strMargins);
    m_settings.Set(kSettingTitle, TextOf(IDC_REPORT_TITLE));
    m_settings.Set(kSettingFooter, TextOf(IDC_REPORT_FOOTER));
    m_settings.Set(kSettingPaper, TextOf(IDC_REPORT_PAPER));
    CString strPackages;
    m_packages.GetItemString(m_packages.GetCurSel(), strPackages);
    m_settings.Set(kSettingPackages, std::string(strPackages));
    for (int i = 0; i < kColors; ++i) {
        const int nColor = m_aColors[i].GetColor(m_aColors[i].GetCurSel());
        m_settings.Set(kSettingColorInstalled + i, kTextColors[nColor].pszName);
    }
    CDialog::OnOK();
}
