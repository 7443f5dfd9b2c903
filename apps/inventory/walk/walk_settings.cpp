#include "walk/walk.h"

#include "sources/settings_file.h"

namespace {

constexpr int kPageSettings = 2;
constexpr int kValueColumn = 1;
constexpr int kInButton = 10;  // pixels from the end of the last column

// The middle of a cell on the screen; rows of the grid are as high as its font and three pixels.
CPoint PointOfCell(QVGridCtrl& grid, int nRow, int nCol) {
    CClientDC dc(&grid);
    const qv::SelectGuard select(dc, grid.GetFont());
    TEXTMETRIC metrics;
    dc.GetTextMetrics(&metrics);
    const int nHeight = metrics.tmHeight + 3;
    CPoint pt(grid.GetColWidth(nCol) / 2, nRow * nHeight + nHeight / 2);
    for (int i = 0; i < nCol; ++i) {
        pt.x += grid.GetColWidth(i);
    }
    grid.ClientToScreen(&pt);
    return pt;
}

}  // namespace

bool Walk::ShowSettings() {
    ClickTab(kPageSettings);
    return Expect("the settings come up",
                  [this] { return m_frame.Settings().Grid().IsWindowVisible() != FALSE; });
}

bool Walk::TypeSettings() {
    QVGridCtrl& grid = m_frame.Settings().Grid();
    if (!ShowSettings()) {
        return false;
    }
    Click(PointOfCell(grid, kSettingExportName, kValueColumn));
    if (!Expect("a click opens the editor", [&] {
            CWnd* pFocus = CWnd::GetFocus();
            return pFocus != nullptr && pFocus->GetParent() == &grid;
        })) {
        return false;
    }
    for (const char ch : {'A', 'L', 'L', ' ', 'O', 'F', ' ', 'I', 'T'}) {
        Press(static_cast<WORD>(ch));
    }
    return Expect("what is typed is in the cell",
                  [&] {
                      CString str;
                      grid.GetCellText(kSettingExportName, kValueColumn, str);
                      return str == "all of it";
                  }) &&
           Station("settings-1-typing");
}

bool Walk::ChooseSetting() {
    QVGridCtrl& grid = m_frame.Settings().Grid();
    Click(PointOfCell(grid, kSettingSeparator, kValueColumn));
    if (!Expect("a click in another cell opens its list", [&] {
            return grid.CurrentRow() == kSettingSeparator && ::FindWindow("ListBox", nullptr);
        })) {
        return false;
    }
    Press(VK_DOWN);
    if (!Station("settings-2-choosing")) {
        return false;
    }
    LetClickPass();
    Click(PointOfCell(grid, kSettingSeparator, kValueColumn));
    return Expect("the choice is taken",
                  [&] { return m_frame.Settings().Values().Choice(kSettingSeparator) == 2; });
}

// The folder browser begins with the folder of the walk, or as near to it as the shell can find;
// the next one up is chosen.
bool Walk::ChooseFolder() {
    SettingsPage& page = m_frame.Settings();
    QVGridCtrl& grid = page.Grid();
    grid.SetCellText(kSettingExportFolder, kValueColumn, m_strFolder);
    CPoint pt = PointOfCell(grid, kSettingExportFolder, kValueColumn);
    Click(pt);
    if (!Expect("a click in the folder's cell opens it",
                [&] { return grid.CurrentRow() == kSettingExportFolder; })) {
        return false;
    }
    LetClickPass();
    CRect rc;
    grid.GetClientRect(&rc);
    grid.ClientToScreen(&rc);
    pt.x = rc.right - kInButton;
    return InDialog(
               "Browse for Folder", [&] { Click(pt); },
               [this](CWnd&) {
                   HandleMessages();
                   const bool bGood = Station("settings-3-folder-browser");
                   Press(VK_LEFT);
                   HandleMessages();
                   Press(VK_RETURN);
                   return bGood;
               }) &&
           Expect("another folder is taken", [&] {
               const CString strFolder(page.Values().Value(kSettingExportFolder).c_str());
               return strFolder != m_strFolder && QVFileSystem().IsFolder(QVPath(strFolder));
           });
}

bool Walk::SettingsKept() {
    ClickTab(0);
    return Expect("leaving the page keeps the settings in their file", [this] {
        Settings settings;
        return LoadSettings(m_strFolder + "\\settings.txt", settings) == nullptr &&
               settings.Value(kSettingExportName) == "all of it" &&
               settings.Choice(kSettingSeparator) == 2;
    });
}
