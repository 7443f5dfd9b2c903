#include "pages/packages_page.h"

#include "model/report_settings.h"
#include "package_strip.h"
#include "resource.h"
#include "sources/settings_file.h"

BEGIN_MESSAGE_MAP(PackagesPage, Page)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_LIST, OnItemChanged)
    ON_COMMAND(ID_LIST_EXPORT, OnExport)
    ON_COMMAND(ID_PACKAGES_EXPORT, OnExport)
    ON_COMMAND(IDOK, OnEnter)
    ON_COMMAND_RANGE(ID_LIST_IMAGE_COLUMN, ID_LIST_PRINT_SUMMARY, OnFlag)
    ON_UPDATE_COMMAND_UI_RANGE(ID_LIST_IMAGE_COLUMN, ID_LIST_PRINT_SUMMARY, OnUpdateFlag)
END_MESSAGE_MAP()

int PackagesPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    m_frame.SetListStyle(WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS |
                         LVS_OWNERDRAWFIXED);
    m_frame.SetListID(IDC_LIST);
    m_frame.SetImageInfo(IDB_PACKAGES, kStripMask, kStripImageWidth);
    m_frame.SetHeaderText("Packages: a click on a heading sorts, a second turns the order");
    CRect rcNone(0, 0, 0, 0);
    if (Page::OnCreate(lpCreateStruct) == -1 || !m_bar.Create(this) ||
        !m_frame.Create(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, rcNone, this, IDC_LIST_FRAME)) {
        return -1;
    }
    m_frame.ModifyStyleEx(0, WS_EX_CONTROLPARENT);  // Tab goes through it to the list
    List().SetUp(&m_font);
    return 0;
}

void PackagesPage::OnSize(UINT nType, int cx, int cy) {
    Page::OnSize(nType, cx, cy);
    CRect rc;
    m_bar.GetWindowRect(&rc);
    m_bar.MoveWindow(0, 0, cx, rc.Height());
    m_frame.MoveWindow(0, rc.Height(), cx, std::max(cy - rc.Height(), 0));
}

// Tab, mnemonics and Enter go around in bar and list as in a dialog. What a dialog sees it keeps,
// so the frame's accelerators come first.
BOOL PackagesPage::PreTranslateMessage(MSG* pMsg) {
    return Page::PreTranslateMessage(pMsg) || GetParentFrame()->PreTranslateMessage(pMsg) ||
           PreTranslateInput(pMsg);
}

void PackagesPage::SetInventory(const Inventory& inventory) {
    m_pInventory = &inventory;
    m_bar.SetInventory(inventory);
    Refill();
}

// --- The filter

void PackagesPage::UseFilterFile(const CString& strPath) {
    m_strFilterFile = strPath;
    FilterValues values;
    LoadSettings(strPath, values);  // damaged: all packages show, and the file is set aside
    m_bar.SetFilter(values.Filter());
}

void PackagesPage::OnDestroy() {
    if (!m_strFilterFile.IsEmpty()) {
        SaveSettings(m_strFilterFile, FilterValues(m_bar.Filter()));
    }
    Page::OnDestroy();
}

void PackagesPage::OnFilterChanged() {
    Refill();
}

void PackagesPage::Refill() {
    if (m_pInventory == nullptr) {
        return;
    }
    List().Show(*m_pInventory, m_bar.Filter());
    m_strMessage.Empty();
    if (!m_bar.Filter().IsOpen()) {
        m_strMessage.Format("%d of %u packages", List().GetItemCount(),
                            static_cast<unsigned>(m_pInventory->CountPackages()));
    }
    m_bar.ShowMarks(List().PackageOf(List().GetNextItem(-1, LVNI_FOCUSED)));
}

void PackagesPage::OnJump(const CString& strName) {
    if (!List().GoTo(strName)) {
        m_strMessage.Format("The filter hides %s", static_cast<LPCTSTR>(strName));
    }
}

void PackagesPage::OnEnter() {
    if (m_bar.HasFocusInJump()) {
        List().SetFocus();
    }
}

void PackagesPage::UseSettings(const Settings& settings) {
    m_exporter.UseSettings(settings);
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
        m_bar.ShowMarks(pPackage);
    }
}

void PackagesPage::OnExport() {
    const auto write = [this](LPCSTR pszPath, char chSeparator) {
        return List().ExportData(pszPath, chSeparator);
    };
    if (m_exporter.Run(*this, nullptr, write)) {
        m_strMessage.Format("%d rows written to %s", List().GetItemCount(),
                            static_cast<LPCTSTR>(m_exporter.Path()));
    }
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
            m_bar.ShowImageColumn(bSet);
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
