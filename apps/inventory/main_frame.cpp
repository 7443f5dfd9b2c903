#include "main_frame.h"

#include "errors.h"
#include "frame_size.h"
#include "inventory_app.h"
#include "model/count_text.h"
#include "opening.h"
#include "resource.h"
#include "sources/registry_source.h"
#include "sources/settings_file.h"
#include "sources/snapshot_file.h"
#include "work.h"

#include <algorithm>

namespace {

constexpr char kPackageDatabase[] = "Z:\\var\\lib\\dpkg\\status";
const CSize kFirstSize(1120, 760);
const CSize kLeastSize(480, 360);
const UINT s_nFindMessage = FindDesk::Message();

}  // namespace

BEGIN_MESSAGE_MAP(MainFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
    ON_WM_CLOSE()
    ON_WM_GETMINMAXINFO()
    ON_WM_QUERYENDSESSION()
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, &MainFrame::OnBar)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &MainFrame::OnBar)
    ON_COMMAND(ID_RELOAD, &MainFrame::OnReload)
    ON_COMMAND(ID_OPEN_DATABASE, &MainFrame::OnOpenDatabase)
    ON_COMMAND(ID_OPEN_MACHINE, &MainFrame::OnOpenMachine)
    ON_COMMAND(ID_SAVE_SNAPSHOT, &MainFrame::OnSaveSnapshot)
    ON_COMMAND(ID_COMPARE, &MainFrame::OnCompare)
    ON_COMMAND(ID_PACKAGES_PREVIEW, &MainFrame::OnPreview)
    ON_COMMAND(ID_PACKAGES_PRINT, &MainFrame::OnPrint)
    ON_REGISTERED_MESSAGE(s_nFindMessage, &MainFrame::OnFindMessage)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_MESSAGE, &MainFrame::OnUpdateMessage)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_MARKED, &MainFrame::OnUpdateMarked)
END_MESSAGE_MAP()

BOOL MainFrame::PreCreateWindow(CREATESTRUCT& cs) {
    const CSize size = OnScreen(kFirstSize);
    cs.cx = size.cx;
    cs.cy = size.cy;
    cs.style &= ~static_cast<LONG>(FWS_ADDTOTITLE);
    return CFrameWnd::PreCreateWindow(cs);
}

// All reports that the user keeps have one text.
void MainFrame::GetMessageString(UINT nID, CString& rMessage) const {
    const bool bReport = nID >= ID_REPORT_FIRST_NAMED && nID <= ID_REPORT_LAST_NAMED;
    CFrameWnd::GetMessageString(bReport ? ID_REPORT_FIRST_NAMED : nID, rMessage);
}

int MainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    static constexpr UINT kIndicators[] = {ID_INDICATOR_MESSAGE, ID_INDICATOR_MARKED};
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1 || !m_toolBar.Make(*this) ||
        !m_pages.Create(this) || !m_pages.Add(m_packages) || !m_pages.Add(m_report) ||
        !m_pages.Add(m_settings) || !m_pages.Add(m_log) || !m_pages.Add(m_largest) ||
        !m_pages.Add(m_files) || !m_statusBar.Create(this) ||
        !m_statusBar.SetIndicators(kIndicators, static_cast<int>(std::size(kIndicators)))) {
        return -1;
    }
    m_statusBar.SetPaneStyle(0, SBPS_STRETCH);
    SetActiveClient(&m_pages);
    m_files.m_showPackage = [this](const CString& strName) { ShowPackage(strName); };
    return 0;
}

void MainFrame::LoadSettings(const CString& strPath, bool bInteractive) {
    const CString strFile = strPath.IsEmpty() ? UsersSettingsPath() : strPath;
    const CString strFolder = strFile.Left(strFile.ReverseFind('\\') + 1);
    KeepErrorsIn(strFolder + "inventory.log");
    TellOrKeep(m_settings.Load(strFile), bInteractive);
    const class Settings& settings = m_settings.Values();
    UseSettings();
    m_packages.Tree().UseIndentedColumns(settings.Choice(kSettingTreeColumns) == 0);
    m_packages.UseFolder(strFolder);
    ShowControlBar(&m_toolBar, settings.Choice(kSettingToolBar) == 0, FALSE);
    ShowControlBar(&m_statusBar, settings.Choice(kSettingStatusBar) == 0, FALSE);
    if (settings.Choice(kSettingStartFilter) != 0) {
        m_packages.Bar().SetFilter({});
    }
    m_desk.Open(strFolder + "reports", bInteractive);
    m_pages.ShowPage(settings.Value(kSettingStartPage));
}

void MainFrame::UseSettings() {
    const class Settings& settings = m_settings.Values();
    m_packages.UseSettings(settings);
    m_largest.UseSettings(settings);
    m_files.UseSettings(settings);
    m_report.UseSettings();
}

BOOL MainFrame::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    // Commands that were posted before work began come while it is dispatching.
    if (nCode == CN_COMMAND && Work::IsRunning()) {
        return TRUE;
    }
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           m_desk.OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           m_find.OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void MainFrame::OnSetFocus(CWnd*) {
    m_pages.SetFocus();
}

// No smaller than what shows something of each part.
void MainFrame::OnGetMinMaxInfo(MINMAXINFO* pInfo) {
    CFrameWnd::OnGetMinMaxInfo(pInfo);
    pInfo->ptMinTrackSize = CPoint(OnScreen(kLeastSize));
}

void MainFrame::OnClose() {
    if (!Work::ClosesLater(*this)) {
        CFrameWnd::OnClose();
    }
}

// Work is left before the session is over: nothing half done stays behind.
BOOL MainFrame::OnQueryEndSession() {
    Work::Cancel();
    return CFrameWnd::OnQueryEndSession();
}

BOOL MainFrame::Open(const CString& strPath, bool bInteractive) {
    const auto pInventory = std::make_shared<Inventory>();
    Problem problem;
    CFileStatus status;
    CString strFile;
    bool bRead = true;
    if (!m_bShown) {
        m_strPath = strPath;  // also what was cancelled can be read again
    }
    if (!strPath.IsEmpty() || CFile::GetStatus(kPackageDatabase, status)) {
        strFile = strPath.IsEmpty() ? CString(kPackageDatabase) : strPath;
        const Failure pLeft = Work::Run("Reading the packages...", [&](Work& work) {
            std::vector<Package> packages;
            bRead = ReadDatabase(work, strFile, packages, problem);
            if (bRead || !m_bShown) {
                work.Say("Showing the packages...");
                pInventory->SetPackages(std::move(packages));
                m_packages.Prepare(*pInventory, work);
            }
        });
        if (pLeft != nullptr) {
            m_pages.Active().Say("Reading the packages was cancelled.");
            return FALSE;
        }
    } else {
        pInventory->SetPackages(ReadUninstallEntries());
    }
    if (!bRead) {
        TellOrKeep(Failed(kErrorOpenInventory, ProblemReason(problem)), bInteractive);
        if (m_bShown) {
            return FALSE;
        }
    }
    m_strPath = strPath;
    m_strProblem = ProblemText(problem).c_str();
    ShowInventory(pInventory, strFile);
    return bRead;
}

// An empty file: the packages come from the registry.
void MainFrame::ShowInventory(std::shared_ptr<const Inventory> pInventory, const CString& strFile) {
    const CWaitCursor wait;
    m_bShown = true;
    CString strFolder;
    if (!strFile.IsEmpty()) {
        const int nEnd = std::max(strFile.ReverseFind('\\'), strFile.ReverseFind('/'));
        strFolder = nEnd >= 0 ? strFile.Left(nEnd + 1) : CString(".\\");
    }
    m_settings.ShowDatabase(strFile.IsEmpty() ? "the registry's uninstall entries" : strFile);
    m_packages.UseDatabase(strFolder);
    m_files.UseDatabase(strFolder);
    m_pInventory = std::move(pInventory);
    m_strFile = strFile;
    m_pages.SetInventory(*m_pInventory);
    m_desk.SetInventory(*m_pInventory);
}

// It is so again at the next start.
BOOL MainFrame::OnBar(UINT nID) {
    if (!CFrameWnd::OnBarCheck(nID)) {
        return FALSE;
    }
    class Settings settings = m_settings.Values();
    const auto keep = [&](int nSetting, CControlBar& bar) {
        settings.Set(nSetting, settings.All()[nSetting].choices[bar.IsVisible() ? 0 : 1]);
    };
    keep(kSettingToolBar, m_toolBar);
    keep(kSettingStatusBar, m_statusBar);
    m_settings.Take(settings);
    return TRUE;
}

void MainFrame::OnReload() {
    Open(m_strPath, true);
}

void MainFrame::OnOpenDatabase() {
    const CString strFile = AskForDatabase(*this);
    if (!strFile.IsEmpty()) {
        OpenAnother(strFile);
    }
}

void MainFrame::OnOpenMachine() {
    if (!AskForMachinesFolder(*this, *m_pMachines, m_strMachine, m_strMachinesFolder)) {
        return;
    }
    const CString strFile = DatabaseIn(m_strMachinesFolder);
    if (strFile.IsEmpty()) {
        Tell(Failed(kErrorNoInventory, nullptr, m_strMachinesFolder), this);
    } else {
        OpenAnother(strFile);
    }
}

void MainFrame::OpenAnother(const CString& strFile) {
    if (Open(strFile, true)) {
        m_pages.ShowPage(m_packages);
    }
}

void MainFrame::OnSaveSnapshot() {
    const CString strFile = AskForSnapshot(*this);
    if (strFile.IsEmpty()) {
        return;
    }
    Failure pFailure = WriteSnapshot(strFile, *m_pInventory);
    if (pFailure == nullptr) {
        m_pages.Active().Say(
            (CountText(m_pInventory->CountPackages(), "package") + " written to ").c_str() +
            strFile);
    } else if (WasCancelled(pFailure)) {
        m_pages.Active().Say("Writing the snapshot was cancelled.");
    }
    Tell(std::move(pFailure), this);
}

void MainFrame::OnCompare() {
    const CString strFile = AskForDatabaseBefore(*this, m_strFile);
    if (!strFile.IsEmpty()) {
        Compare(strFile);
    }
}

BOOL MainFrame::Compare(const CString& strFile) {
    CDocument* pDocument =
        static_cast<InventoryApp*>(AfxGetApp())->Comparisons().OpenDocumentFile(strFile);
    if (pDocument == nullptr) {
        return FALSE;
    }
    POSITION pos = pDocument->GetFirstViewPosition();
    pDocument->GetNextView(pos)->GetParentFrame()->ActivateFrame();
    return TRUE;
}

void MainFrame::ShowPackage(const CString& strName) {
    m_pages.ShowPage(m_packages);
    m_packages.GoTo(strName);
    ActivateFrame();
    SetForegroundWindow();
}

void MainFrame::OnPreview() {
    m_pages.ShowPage(m_report);
}

void MainFrame::OnPrint() {
    m_report.SendMessage(WM_COMMAND, ID_REPORT_PRINT);
}

LRESULT MainFrame::OnFindMessage(WPARAM, LPARAM lParam) {
    m_find.OnDialog(lParam);
    return 0;
}

void MainFrame::OnUpdateMessage(CCmdUI* pCmdUI) {
    pCmdUI->Enable();
    if (IsTracking()) {
        return;  // it says what the command below the mouse does
    }
    // How a search or an export went is newer than what was wrong with the database.
    CString strText = m_pages.Active().Message();
    if (strText.IsEmpty()) {
        strText = m_strProblem;
    }
    if (strText.IsEmpty()) {
        strText = (CountText(m_pInventory->CountPackages(), "package") + " in " +
                   CountText(m_pInventory->Sections().size(), "section"))
                      .c_str();
    }
    pCmdUI->SetText(strText);
}

void MainFrame::OnUpdateMarked(CCmdUI* pCmdUI) {
    pCmdUI->Enable();
    pCmdUI->SetText(m_pages.Active().MarkedText());
}
