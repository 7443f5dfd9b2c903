// Asks for what the report shows and how: its texts, with codes that the printed report replaces,
// its packages, paper and margins, and the colours of the list.

#pragma once

#include "QVControls.h"
#include "model/settings.h"
#include "resource.h"

#include <vector>

class ReportSettingsDialog : public CDialog {
public:
    ReportSettingsDialog(CWnd* pParent, const Settings& settings)
        : CDialog(IDD_REPORT_SETTINGS, pParent), m_settings(settings) {}

    Settings m_settings;  // changed by OK alone

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    static constexpr int kColors = IDC_REPORT_LAST_COLOR - IDC_REPORT_FIRST_COLOR + 1;

    void OfferCodes(QVMacroButton& button, UINT nButton, UINT nEdit);
    void OfferPackages();
    void OfferPapers();
    void OfferColors();
    void ShowMargins();
    bool ReadMarginEdits(std::string& strMargins);
    std::string TextOf(UINT nID);

    QVMacroButton m_titleCodes;
    QVMacroButton m_footerCodes;
    QVBitmapComboBox m_packages;
    QVTextBox m_paper;
    QVColorComboBox m_aColors[kColors];
};
