#include "walk/walk.h"

#include "sources/settings_file.h"

namespace {

constexpr int kPageSettings = 2;
constexpr int kTextColumn = 1;
constexpr int kChoiceColumn = 2;

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

bool Walk::TypeSettings() {
    ClickTab(kPageSettings);
    QVGridCtrl& grid = m_frame.Settings().Grid();
    if (!Expect("the settings come up", [&] { return grid.IsWindowVisible() != FALSE; })) {
        return false;
    }
    Click(PointOfCell(grid, kSettingExportName, kTextColumn));
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
                      grid.GetCellText(kSettingExportName, kTextColumn, str);
                      return str == "all of it";
                  }) &&
           Station("settings-1-typing");
}

bool Walk::ChooseSetting() {
    QVGridCtrl& grid = m_frame.Settings().Grid();
    Click(PointOfCell(grid, kSettingSeparator, kChoiceColumn));
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
    Click(PointOfCell(grid, kSettingSeparator, kChoiceColumn));
    return Expect("the choice is taken",
                  [&] { return m_frame.Settings().Values().Choice(kSettingSeparator) == 1; });
}

bool Walk::SettingsKept() {
    ClickTab(0);
    return Expect("leaving the page keeps the settings in their file", [this] {
        Settings settings;
        return LoadSettings(m_strFolder + "\\settings.txt", settings).IsEmpty() &&
               settings.Value(kSettingExportName) == "all of it" &&
               settings.Choice(kSettingSeparator) == 1;
    });
}
