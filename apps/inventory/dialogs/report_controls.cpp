#include "dialogs/report_controls.h"

#include "model/report_settings.h"
#include "model/settings.h"
#include "package_strip.h"
#include "resource.h"

namespace {

// Of all, required and unusual packages.
constexpr PackageImage kPackageImages[] = {kPlainPackage, kRequiredPackage, kPackageInTrouble};

}  // namespace

void OfferCodes(QVMacroButton& button, CWnd& dialog, UINT nButton, UINT nEdit) {
    button.SubclassDlgItem(nButton, &dialog);
    button.AddMacro("The machine's name", kCodeMachine);
    button.AddMacro("The date of printing", kCodeDate);
    button.AddMacro("The number of packages", kCodePackages);
    button.SetEditCtrlID(nEdit);
}

void OfferColors(QVColorComboBox& combo, CWnd& dialog, UINT nID, int nColor) {
    COLORREF aColors[std::size(kTextColors)];
    for (size_t i = 0; i < std::size(kTextColors); ++i) {
        aColors[i] = RGB(kTextColors[i].red, kTextColors[i].green, kTextColors[i].blue);
    }
    constexpr int kCount = static_cast<int>(std::size(kTextColors));
    combo.Initialize(nID, aColors, kCount, &dialog);
    combo.EnableExpectedKeys();
    for (int i = 0; i < kCount; ++i) {
        combo.InsertColorString(i, i, kTextColors[i].pszName);
    }
    combo.SetCurSel(nColor);
}

int ChosenColor(QVColorComboBox& combo) {
    return combo.GetColor(combo.GetCurSel());
}

void OfferPackages(QVBitmapComboBox& combo, CWnd& dialog, UINT nID, int nChosen) {
    combo.Initialize(nID, IDB_PACKAGES, kStripMask, kStripImageWidth, &dialog);
    combo.EnableExpectedKeys();
    Settings settings;
    const std::vector<std::string>& choices = settings.All()[kSettingPackages].choices;
    for (size_t i = 0; i < choices.size(); ++i) {
        combo.AddBitmapString(kPackageImages[i], choices[i].c_str());
    }
    combo.SetCurSel(nChosen);
}

std::string TextOf(CWnd& dialog, UINT nID) {
    CString strText;
    dialog.GetDlgItem(static_cast<int>(nID))->GetWindowText(strText);
    return std::string(strText);
}

std::string TrimmedTextOf(CWnd& dialog, UINT nID) {
    const std::string strText = TextOf(dialog, nID);
    const size_t nFirst = strText.find_first_not_of(' ');
    return nFirst == std::string::npos
               ? std::string()
               : strText.substr(nFirst, strText.find_last_not_of(' ') - nFirst + 1);
}

CComboBox& ComboOf(CWnd& dialog, UINT nID) {
    return *static_cast<CComboBox*>(dialog.GetDlgItem(static_cast<int>(nID)));
}

bool IsTicked(CWnd& dialog, UINT nID) {
    return dialog.IsDlgButtonChecked(static_cast<int>(nID)) == BST_CHECKED;
}

void Tick(CWnd& dialog, UINT nID, bool bTicked) {
    dialog.CheckDlgButton(static_cast<int>(nID), bTicked ? BST_CHECKED : BST_UNCHECKED);
}
