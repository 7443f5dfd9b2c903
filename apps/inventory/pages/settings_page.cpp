#include "pages/settings_page.h"

#include "resource.h"
#include "sources/machine_name.h"
#include "sources/settings_file.h"

#include <shlobj.h>

namespace {

constexpr int kNameColumn = 0;
constexpr int kValueColumn = 1;
constexpr int kLeastWidth = 140;
constexpr int kListLines = 8;
constexpr UINT kTellNow = WM_APP + 1;  // to itself: pages may be changing over just now

GridColType CellTypeOf(SettingKind kind) {
    return kind == SettingKind::Text     ? gctEdit
           : kind == SettingKind::Choice ? gctDropList
                                         : gctEditButton;
}

}  // namespace

BEGIN_MESSAGE_MAP(SettingsPage, Page)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_SHOWWINDOW()
    ON_WM_DESTROY()
    ON_MESSAGE(kTellNow, &SettingsPage::OnTellNow)
    ON_COMMAND(ID_LIST_EXPORT, &SettingsPage::OnExport)
END_MESSAGE_MAP()

int SettingsPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (Page::OnCreate(lpCreateStruct) == -1 ||
        !m_grid.Create(IDC_SETTINGS, CRect(0, 0, 0, 0), this)) {
        return -1;
    }
    m_grid.AddColumn(gctStatic, kLeastWidth);
    m_grid.AddColumn(gctEdit, kLeastWidth);
    m_grid.SetWindowText(Title());
    m_grid.SetAccessibleHeadings("Setting\tValue");
    m_grid.SetShowAddedRows(TRUE);
    m_grid.SetLockReadOnlyLists(TRUE);
    m_grid.SetMaxListLines(kListLines);
    m_grid.EnableExpectedKeys();
    return 0;
}

void SettingsPage::OnSize(UINT nType, int cx, int cy) {
    Page::OnSize(nType, cx, cy);
    m_grid.MoveWindow(0, 0, cx, cy);
}

void SettingsPage::OnShowWindow(BOOL bShow, UINT nStatus) {
    Page::OnShowWindow(bShow, nStatus);
    if (!bShow) {
        KeepCells();
    }
}

void SettingsPage::OnDestroy() {
    KeepCells();
    Keep(m_pUntold);
    Page::OnDestroy();
}

Failure SettingsPage::Load(const CString& strPath) {
    m_strPath = strPath;
    Failure pReason = LoadSettings(strPath, m_settings);
    m_strSaved = m_settings.Format();
    Fill();
    return pReason != nullptr ? Failed(kErrorReadSettings, std::move(pReason)) : nullptr;
}

void SettingsPage::ShowDatabase(const CString& strPath) {
    m_strDatabase = strPath;
    if (m_grid.NumRows() > kSettingsInGrid) {
        m_grid.SetCellText(kSettingsInGrid, kValueColumn, m_strDatabase);  // the first behind them
    } else {
        Fill();
    }
}

void SettingsPage::Fill() {
    m_grid.SetRedraw(FALSE);
    m_grid.DeleteAllRows();
    for (int n = 0; n < kSettingsInGrid; ++n) {
        const Setting& setting = m_settings.All()[n];
        const int nRow = m_grid.AddRow(CString(setting.pszName), 0);
        m_grid.SetCellType(nRow, kValueColumn, CellTypeOf(setting.kind));
        m_grid.SetCellText(nRow, kValueColumn, setting.strValue.c_str());
    }
    // What is only told: the database may be copied from its cell's text, the machine's name is
    // out of anybody's hands.
    const int nDatabase = m_grid.AddRow(CString("Package database"), 0);
    m_grid.SetCellText(nDatabase, kValueColumn, m_strDatabase);
    m_grid.SetCellReadOnly(nDatabase, kValueColumn, TRUE);
    const int nMachine = m_grid.AddRow(CString("Machine"), 0);
    m_grid.SetCellText(nMachine, kValueColumn, MachineName());
    m_grid.EnableCell(nMachine, kValueColumn, FALSE);
    m_grid.AutoSizeColumn(kNameColumn, kLeastWidth);
    m_grid.SetRedraw(TRUE);
}

void SettingsPage::TakeCells() {
    if (m_grid.m_hWnd == nullptr || m_strPath.IsEmpty() || m_grid.NumRows() < kSettingsInGrid) {
        return;
    }
    for (int n = 0; n < kSettingsInGrid; ++n) {
        CString strValue;
        m_grid.GetCellText(n, kValueColumn, strValue);
        m_settings.Set(n, static_cast<LPCSTR>(strValue));
    }
}

void SettingsPage::KeepCells() {
    TakeCells();
    Write();
}

void SettingsPage::Take(const Settings& settings) {
    m_settings = settings;
    Write();
}

void SettingsPage::Write() {
    const std::string text = m_settings.Format();
    if (text == m_strSaved || m_strPath.IsEmpty()) {
        return;
    }
    if (Failure pReason = SaveSettings(m_strPath, m_settings)) {
        m_strMessage.Format("The settings cannot be written to %s",
                            static_cast<LPCTSTR>(m_strPath));
        m_pUntold = Failed(kErrorWriteSettings, std::move(pReason));
        PostMessage(kTellNow);
    } else {
        m_strSaved = text;
        m_strMessage.Format("Settings kept in %s", static_cast<LPCTSTR>(m_strPath));
    }
}

LRESULT SettingsPage::OnTellNow(WPARAM, LPARAM) {
    Tell(std::move(m_pUntold));
    return 0;
}

void SettingsPage::OnExport() {
    TakeCells();
    m_exporter.UseSettings(m_settings);
    m_strMessage = m_exporter.Run(*this, "settings.csv", [this](TableWriter& writer, Work&) {
        writer.Begin("Settings", {{"Setting"}, {"Value"}});
        for (int n = 0; n < kSettingsInGrid; ++n) {
            writer.Row({m_settings.All()[n].pszName, m_settings.Value(n)});
        }
        writer.Row({"Package database", static_cast<LPCSTR>(m_strDatabase)});
        writer.Row({"Machine", static_cast<LPCSTR>(MachineName())});
        writer.End();
    });
}

// --- What the grid tells

BOOL SettingsPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    constexpr UINT kButton = 0;
    constexpr UINT kChosen = 1;
    if (LOWORD(wParam) != IDC_SETTINGS || lParam == 0) {
        return Page::OnCommand(wParam, lParam);
    }
    switch (HIWORD(wParam)) {
        case kButton:
            OnButton();
            break;
        case kChosen:
            KeepCells();
            break;
        default:
            break;
    }
    return TRUE;
}

void SettingsPage::OnButton() {
    const int nRow = m_grid.CurrentRow();
    if (nRow < 0 || nRow >= kSettingsInGrid ||
        m_grid.IsCellReadOnly(nRow, m_grid.CurrentColumn())) {
        return;
    }
    if (m_settings.All()[nRow].kind == SettingKind::Choice) {
        Choose(nRow);
    } else {
        Browse(nRow);
    }
}

void SettingsPage::Choose(int nRow) {
    m_choices.RemoveAll();
    for (const std::string& strChoice : m_settings.All()[nRow].choices) {
        m_choices.Add(strChoice.c_str());
    }
    m_grid.PopupList(m_choices);
}

void SettingsPage::Browse(int nRow) {
    CString strFolder;
    m_grid.GetCellText(nRow, kValueColumn, strFolder);
    QVBrowseDlg dialog(this);
    dialog.SetFolderLocation(CSIDL_DESKTOP);
    dialog.SetBrowseFlags(BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE);
    dialog.SetPromptString(m_settings.All()[nRow].pszName);
    dialog.SetItemPath(strFolder);
    if (dialog.DoModal() == IDOK) {
        m_grid.SetCellText(nRow, kValueColumn, dialog.GetItemPath());
        KeepCells();
    }
}
