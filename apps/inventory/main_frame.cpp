#include "main_frame.h"

#include "resource.h"
#include "sources/code_page.h"
#include "sources/install_dates.h"
#include "sources/registry_source.h"
#include "sources/settings_file.h"

#include <algorithm>

namespace {

constexpr char kPackageDatabase[] = "Z:\\var\\lib\\dpkg\\status";

}  // namespace

BEGIN_MESSAGE_MAP(MainFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
    ON_COMMAND(ID_RELOAD, OnReload)
    ON_COMMAND(ID_PACKAGES_PREVIEW, OnPreview)
    ON_COMMAND(ID_PACKAGES_PRINT, OnPrint)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_MESSAGE, OnUpdateMessage)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_MARKED, OnUpdateMarked)
END_MESSAGE_MAP()

BOOL MainFrame::PreCreateWindow(CREATESTRUCT& cs) {
    // As large for any size of the system's fonts, as far as the screen goes.
    const CClientDC dc(nullptr);
    const int nDpi = dc.GetDeviceCaps(LOGPIXELSX);
    cs.cx = std::min(::MulDiv(1120, nDpi, 96), ::GetSystemMetrics(SM_CXSCREEN));
    cs.cy = std::min(::MulDiv(760, nDpi, 96), ::GetSystemMetrics(SM_CYSCREEN));
    cs.style &= ~static_cast<LONG>(FWS_ADDTOTITLE);
    return CFrameWnd::PreCreateWindow(cs);
}

int MainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    static constexpr UINT kIndicators[] = {ID_INDICATOR_MESSAGE, ID_INDICATOR_MARKED};
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1 || !m_pages.Create(this) ||
        !m_pages.Add(m_packages) || !m_pages.Add(m_report) || !m_pages.Add(m_settings) ||
        !m_pages.Add(m_log) || !m_pages.Add(m_largest) || !m_statusBar.Create(this) ||
        !m_statusBar.SetIndicators(kIndicators, static_cast<int>(std::size(kIndicators)))) {
        return -1;
    }
    m_statusBar.SetPaneStyle(0, SBPS_STRETCH);
    SetActiveClient(&m_pages);
    return 0;
}

void MainFrame::LoadSettings(const CString& strPath, bool bInteractive) {
    const CString strFile = strPath.IsEmpty() ? UsersSettingsPath() : strPath;
    const CString strProblem = m_settings.Load(strFile);
    if (!strProblem.IsEmpty() && bInteractive) {
        AfxMessageBox(strProblem, MB_ICONEXCLAMATION);
    }
    const class Settings& settings = m_settings.Values();
    const CString strFolder = strFile.Left(strFile.ReverseFind('\\') + 1);
    UseSettings();
    m_packages.Tree().UseIndentedColumns(settings.Choice(kSettingTreeColumns) == 0);
    m_packages.UseFolder(strFolder);
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
    m_report.UseSettings();
}

BOOL MainFrame::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           m_desk.OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void MainFrame::OnSetFocus(CWnd*) {
    m_pages.SetFocus();
}

BOOL MainFrame::Open(const CString& strPath, bool bInteractive) {
    m_strPath = strPath;
    std::vector<Package> packages;
    DatabaseError error;
    CFileStatus status;
    bool bRead = true;
    CString strFolder;
    if (!strPath.IsEmpty() || CFile::GetStatus(kPackageDatabase, status)) {
        const CString strFile = strPath.IsEmpty() ? CString(kPackageDatabase) : strPath;
        bRead = ReadPackages(static_cast<LPCTSTR>(strFile), packages, error);
        ReadInstallDates(strFile, packages);
        ToProcessCodePage(packages);
        strFolder = ".\\";
        if (const int nEnd = std::max(strFile.ReverseFind('\\'), strFile.ReverseFind('/'));
            nEnd >= 0) {
            strFolder = strFile.Left(nEnd + 1);
        }
        m_settings.ShowDatabase(strFile);
    } else {
        packages = ReadUninstallEntries();
        m_settings.ShowDatabase("the registry's uninstall entries");
    }
    m_strProblem = error.strMessage.c_str();
    m_packages.UseDatabase(strFolder);
    m_inventory.SetPackages(std::move(packages));
    m_pages.SetInventory(m_inventory);
    m_desk.SetInventory(m_inventory);
    if (!bRead && bInteractive) {
        AfxMessageBox(m_strProblem, MB_ICONEXCLAMATION);
    }
    return bRead;
}

void MainFrame::OnReload() {
    Open(m_strPath, true);
}

void MainFrame::OnPreview() {
    m_pages.ShowPage(m_report);
}

void MainFrame::OnPrint() {
    m_report.SendMessage(WM_COMMAND, ID_REPORT_PRINT);
}

void MainFrame::OnUpdateMessage(CCmdUI* pCmdUI) {
    CString strText = m_strProblem;
    if (strText.IsEmpty()) {
        strText = m_pages.Active().Message();
    }
    if (strText.IsEmpty()) {
        strText = (CountText(m_inventory.CountPackages(), "package") + " in " +
                   CountText(m_inventory.Sections().size(), "section"))
                      .c_str();
    }
    pCmdUI->Enable();
    pCmdUI->SetText(strText);
}

void MainFrame::OnUpdateMarked(CCmdUI* pCmdUI) {
    pCmdUI->Enable();
    pCmdUI->SetText(m_pages.Active().MarkedText());
}
