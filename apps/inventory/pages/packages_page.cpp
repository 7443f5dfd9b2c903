#include "pages/packages_page.h"

#include "model/count_text.h"
#include "model/report_settings.h"
#include "resource.h"
#include "sources/settings_file.h"

namespace {

// Neither is worth a question at the start or at the end: the log has it.
void Load(const CString& strPath, KeyedValues& values) {
    if (Failure pReason = LoadSettings(strPath, values)) {
        Keep(Failed(kErrorReadSettings, std::move(pReason)));
    }
}

void Save(const CString& strPath, const KeyedValues& values) {
    if (Failure pReason = SaveSettings(strPath, values)) {
        Keep(Failed(kErrorWriteSettings, std::move(pReason)));
    }
}

}  // namespace

BEGIN_MESSAGE_MAP(PackagesPage, Page)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_LIST, &PackagesPage::OnItemChanged)
    ON_COMMAND(ID_LIST_EXPORT, &PackagesPage::OnExport)
    ON_COMMAND(ID_PACKAGES_EXPORT, &PackagesPage::OnExport)
    ON_COMMAND(IDOK, &PackagesPage::OnEnter)
END_MESSAGE_MAP()

int PackagesPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (Page::OnCreate(lpCreateStruct) == -1 || !m_bar.Create(this) ||
        !m_browser.Create(this, &m_font)) {
        return -1;
    }
    return 0;
}

void PackagesPage::OnSize(UINT nType, int cx, int cy) {
    Page::OnSize(nType, cx, cy);
    const int nHeight = m_bar.LayOut(cx);
    m_bar.MoveWindow(0, 0, cx, nHeight);
    m_browser.MoveTo(CRect(0, nHeight, cx, std::max(cy, nHeight)));
}

// --- Keyboard and commands

std::vector<CWnd*> PackagesPage::Panes() {
    return {&m_bar, &Tree(), &List(), &m_browser.Details()};
}

ContextMenu PackagesPage::MenuOf(CWnd& control) {
    const HWND hDetails = m_browser.Details().m_hWnd;
    return &control == &Tree()   ? ContextMenu::Tree
           : &control == &List() ? ContextMenu::Packages
           : ::IsChild(hDetails, control.m_hWnd) && dynamic_cast<DetailsPage*>(&control) == nullptr
               ? ContextMenu::Details
               : ContextMenu::None;
}

bool PackagesPage::HasFocus(CWnd& wnd) {
    const HWND hFocus = LastControl();
    return hFocus == wnd.m_hWnd || ::IsChild(wnd.m_hWnd, hFocus);
}

BOOL PackagesPage::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (Page::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    const bool bCommand = nCode == CN_COMMAND || nCode == static_cast<int>(CN_UPDATE_COMMAND_UI);
    const BOOL bDone = bCommand && m_browser.OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    if (bDone && nCode == CN_COMMAND) {
        m_bar.ShowImageColumn(List().HasImageColumn());
    }
    return bDone;
}

void PackagesPage::OnEnter() {
    if (m_bar.HasFocusInJump()) {
        List().SetFocus();
    } else if (HasFocus(m_browser.Details())) {
        m_browser.Details().GoToTarget();
    } else {
        Page::OnEnter();
    }
}

// The bar and what else holds no rows leave it to the list.
FindResult PackagesPage::Find(const TextQuery& query, bool bDown) {
    if (HasFocus(Tree())) {
        return Tree().Find(query, bDown);
    }
    FindResult result;
    if (!HasFocus(List())) {
        result = FindInControl(LastControl(), query, bDown);
    }
    if (result.strPlace.IsEmpty()) {
        result = FindInList(List(), query, bDown);
        if (!m_bar.Filter().IsOpen()) {
            result.strPlace += ", as it is filtered";
        }
    }
    return result;
}

CString PackagesPage::MarkedText() {
    if (HasFocus(Tree())) {
        return m_browser.TreeFrame().MarkedText();
    }
    const PackageList::Selected selected = List().CountSelected();
    return (CountText(static_cast<size_t>(selected.nPackages), "package") + " selected, " +
            SizeText(selected.nSizeKiB))
        .c_str();
}

void PackagesPage::OnExport() {
    m_strMessage = m_exporter.Run(*this, nullptr, [this](TableWriter& writer, Work& work) {
        WriteList(List(), "Packages", writer, work);
    });
}

// --- What is shown

void PackagesPage::UseDatabase(const CString& strFolder) {
    m_store = strFolder.IsEmpty() ? PackageStore() : PackageStore(std::string(strFolder));
}

void PackagesPage::SetInventory(const Inventory& inventory) {
    m_pInventory = &inventory;
    m_browser.Details().UseSource(inventory, m_store);
    m_browser.TreeFrame().Show(inventory);
    m_bar.SetInventory(inventory);
    Refill();
}

void PackagesPage::Prepare(const Inventory& inventory, Work& work) {
    try {
        List().Prepare(inventory, m_bar.Filter(), work);
    } catch (...) {
        static const Inventory none;
        List().Show(m_pInventory != nullptr ? *m_pInventory : none, m_bar.Filter());
        throw;
    }
}

void PackagesPage::OnFilterChanged() {
    Refill();
}

void PackagesPage::Refill() {
    if (m_pInventory == nullptr) {
        return;
    }
    m_browser.TreeFrame().ShowSection(m_bar.Filter().strSection);
    List().Show(*m_pInventory, m_bar.Filter());
    ShowPackage(List().Front());
    m_strMessage.Empty();
    if (!m_bar.Filter().IsOpen()) {
        m_strMessage = (std::to_string(List().GetItemCount()) + " of " +
                        CountText(m_pInventory->CountPackages(), "package"))
                           .c_str();
    }
}

void PackagesPage::ShowPackage(const Package* pPackage) {
    m_bar.ShowMarks(pPackage);
    m_browser.Details().Show(pPackage);
}

void PackagesPage::OnItemChanged(NMHDR* pNMHDR, LRESULT* pResult) {
    const auto& change = *reinterpret_cast<NMLISTVIEW*>(pNMHDR);
    *pResult = 0;
    if ((change.uNewState & LVIS_FOCUSED) != 0) {
        const Package* pPackage = List().PackageOf(change.iItem);
        m_strMessage = pPackage != nullptr ? pPackage->strSummary.c_str() : "";
        ShowPackage(pPackage);
    }
}

void PackagesPage::UseSection(const std::string& strSection) {
    PackageFilter filter = m_bar.Filter();
    if (filter.strSection != strSection) {
        filter.strSection = strSection;
        m_bar.SetFilter(filter);
        Refill();
    }
}

void PackagesPage::OnSectionChosen(const std::string& strSection) {
    UseSection(strSection);
}

void PackagesPage::OnPackageChosen(const Package& package) {
    if (!m_bar.Filter().strSection.empty()) {
        UseSection(package.strSection);
    }
    OnJump(package.strName.c_str());
}

void PackagesPage::OnJump(const CString& strName) {
    if (!List().GoTo(strName)) {
        m_strMessage.Format("The filter hides %s", static_cast<LPCTSTR>(strName));
    }
}

// The way from one package to another leads out of its section.
void PackagesPage::OnGoTo(const CString& strName) {
    if (!List().GoTo(strName)) {
        UseSection("");
        OnJump(strName);
    }
}

// --- What is kept

void PackagesPage::UseFolder(const CString& strFolder) {
    m_strFilterFile = strFolder + "filter.txt";
    m_strLayoutFile = strFolder + "layout.txt";
    FilterValues filter;
    Load(m_strFilterFile, filter);  // damaged: all packages show, and the file is set aside
    m_bar.SetFilter(filter.Filter());
    LayoutValues layout;
    Load(m_strLayoutFile, layout);
    m_browser.SetLayout(layout.Layout());
}

void PackagesPage::KeepLayout() {
    Save(m_strLayoutFile, LayoutValues(m_browser.Layout()));
}

void PackagesPage::OnDestroy() {
    if (!m_strFilterFile.IsEmpty()) {
        Save(m_strFilterFile, FilterValues(m_bar.Filter()));
        KeepLayout();
    }
    Page::OnDestroy();
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
