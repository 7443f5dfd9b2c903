#include "pages/packages_page.h"

#include "dialogs/export_dialog.h"
#include "model/report_settings.h"
#include "resource.h"

BEGIN_MESSAGE_MAP(PackagesPage, Page)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_LIST, OnItemChanged)
    ON_COMMAND(ID_LIST_EXPORT, OnExport)
    ON_COMMAND_RANGE(ID_LIST_IMAGE_COLUMN, ID_LIST_PRINT_SUMMARY, OnFlag)
    ON_UPDATE_COMMAND_UI_RANGE(ID_LIST_IMAGE_COLUMN, ID_LIST_PRINT_SUMMARY, OnUpdateFlag)
END_MESSAGE_MAP()

int PackagesPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    constexpr int kImageWidth = 16;
    constexpr COLORREF kImageMask = RGB(255, 0, 255);
    m_frame.SetListStyle(WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS |
                         LVS_OWNERDRAWFIXED);
    m_frame.SetListID(IDC_LIST);
    m_frame.SetImageInfo(IDB_PACKAGES, kImageMask, kImageWidth);
    m_frame.SetHeaderText("Packages: a click on a heading sorts, a second turns the order");
    CRect rcNone(0, 0, 0, 0);
    if (Page::OnCreate(lpCreateStruct) == -1 ||
        !m_frame.Create(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, rcNone, this, IDC_LIST_FRAME)) {
        return -1;
    }
    List().SetUp(&m_font);
    return 0;
}

void PackagesPage::OnSize(UINT nType, int cx, int cy) {
    Page::OnSize(nType, cx, cy);
    m_frame.MoveWindow(0, 0, cx, cy);
}

void PackagesPage::SetInventory(const Inventory& inventory) {
    List().Show(inventory);
}

void PackagesPage::UseSettings(const Settings& settings) {
    m_pSettings = &settings;
    const auto color = [&](int nSetting) {
        const NamedColor& named = kTextColors[settings.Choice(nSetting)];
        return RGB(named.red, named.green, named.blue);
    };
    List().UseColors(color(kSettingColorInstalled), color(kSettingColorRequired),
                     color(kSettingColorUnusual));
}

CString PackagesPage::MarkedText() {
    const PackageList::Selected selected = List().CountSelected();
    CString strText;
    strText.Format("%d packages selected, %s", selected.nPackages,
                   SizeText(selected.nSizeKiB).c_str());
    return strText;
}

void PackagesPage::OnItemChanged(NMHDR* pNMHDR, LRESULT* pResult) {
    const auto& change = *reinterpret_cast<NMLISTVIEW*>(pNMHDR);
    *pResult = 0;
    if ((change.uNewState & LVIS_FOCUSED) != 0) {
        const Package* pPackage = List().PackageOf(change.iItem);
        m_strMessage = pPackage != nullptr ? pPackage->strSummary.c_str() : "";
    }
}

// --- Export

void PackagesPage::OnExport() {
    ExportDialog dialog(this);
    dialog.m_strPath = m_strExportPath;
    if (m_pSettings != nullptr) {
        dialog.m_nSeparator = m_pSettings->Choice(kSettingSeparator);
        const CString strFolder = m_pSettings->Value(kSettingExportFolder).c_str();
        if (m_strExportPath.IsEmpty() && !strFolder.IsEmpty()) {
            dialog.m_strPath = strFolder + "\\" + m_pSettings->Value(kSettingExportName).c_str();
        }
    }
    if (dialog.DoModal() == IDOK && Export(dialog.m_strPath, dialog.Separator())) {
        m_strExportPath = dialog.m_strPath;
    }
}

// Half a list would look like a whole one, so what could not be finished is taken away again.
bool PackagesPage::Export(LPCSTR pszPath, char chSeparator) {
    const CWaitCursor wait;
    CString strProblem;
    try {
        if (List().ExportData(pszPath, chSeparator)) {
            m_strMessage.Format("%d rows written to %s", List().GetItemCount(), pszPath);
            return true;
        }
        strProblem.Format("%s cannot be opened for writing.", pszPath);
    } catch (CFileException* pException) {
        char szReason[256];
        pException->GetErrorMessage(szReason, sizeof(szReason));
        pException->Delete();
        ::DeleteFile(pszPath);
        strProblem.Format("The list could not be written to %s: %s", pszPath, szReason);
    }
    AfxMessageBox(strProblem, MB_ICONEXCLAMATION);
    return false;
}

// --- The list's settings

bool PackagesPage::Flag(UINT nID) {
    switch (nID) {
        case ID_LIST_IMAGE_COLUMN:
            return List().HasImageColumn();
        case ID_LIST_CENTER_IMAGES:
            return m_bCenterImages;
        case ID_LIST_ALLOW_SELECTION:
            return m_bAllowSelection;
        case ID_LIST_STRONG_SELECTION:
            return m_bStrongSelection;
        case ID_LIST_MANY_SELECTED:
            return (List().GetStyle() & LVS_SINGLESEL) == 0;
        default:
            return List().IsColumnExcludedFromPrinting(List().SummaryColumn()) != FALSE;
    }
}

void PackagesPage::OnFlag(UINT nID) {
    const bool bSet = !Flag(nID);
    switch (nID) {
        case ID_LIST_IMAGE_COLUMN:
            List().UseImageColumn(bSet);
            break;
        case ID_LIST_CENTER_IMAGES:
            List().SetImageCenterVertically(m_bCenterImages = bSet);
            break;
        case ID_LIST_ALLOW_SELECTION:
            List().SetAllowSel(m_bAllowSelection = bSet);
            break;
        case ID_LIST_STRONG_SELECTION:
            List().SetAlwaysHighlightSel(m_bStrongSelection = bSet);
            break;
        case ID_LIST_MANY_SELECTED:
            List().SetItemState(-1, 0, LVIS_SELECTED);
            List().ModifyStyle(bSet ? LVS_SINGLESEL : 0, bSet ? 0 : LVS_SINGLESEL);
            break;
        default:
            List().ExcludeColumnFromPrinting(List().SummaryColumn());
            break;
    }
    List().InvalidateData(FALSE);
}

void PackagesPage::OnUpdateFlag(CCmdUI* pCmdUI) {
    const bool bSet = Flag(pCmdUI->m_nID);
    pCmdUI->SetCheck(bSet);
    // What was left off paper stays off.
    pCmdUI->Enable(pCmdUI->m_nID != ID_LIST_PRINT_SUMMARY || !bSet);
}
