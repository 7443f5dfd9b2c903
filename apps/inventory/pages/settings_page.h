// SettingsPage: the application's settings in a grid. Each setting has a row with its name and its
// value, which is typed, chosen from a list or browsed for.

#pragma once

#include "errors.h"
#include "model/settings.h"
#include "pages/exporting.h"
#include "pages/page.h"
#include "pages/settings_grid.h"

class SettingsPage : public Page {
public:
    LPCSTR Title() const override { return "Settings"; }
    void SetInventory(const Inventory& /*inventory*/) override {}
    CWnd& Control() override { return m_grid; }
    ContextMenu MenuOf(CWnd& control) override {
        return &control == &m_grid ? ContextMenu::Settings : ContextMenu::None;
    }
    FindResult Find(const TextQuery& query, bool bDown) override {
        FindResult result = FindInGrid(m_grid, query, bDown);
        result.strPlace = "the settings";
        return result;
    }

    // Reads the settings and shows them. Null: nothing was wrong.
    Failure Load(const CString& strPath);
    void ShowDatabase(const CString& strPath);
    const CString& Database() const { return m_strDatabase; }
    const Settings& Values() const { return m_settings; }
    QVGridCtrl& Grid() { return m_grid; }
    // Takes what stands in the cells, also what is being typed, and writes it if it is new.
    void KeepCells();
    // Takes settings that were made elsewhere, as in the report's dialog, and writes them. If they
    // cannot be written, this and KeepCells tell it once they are through.
    void Take(const Settings& settings);

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnTellNow(WPARAM wParam, LPARAM lParam);
    afx_msg void OnExport();
    DECLARE_MESSAGE_MAP()

private:
    void Fill();
    void TakeCells();
    void Write();
    void OnButton();
    void Choose(int nRow);
    void Browse(int nRow);

    Failure m_pUntold;
    SettingsGrid m_grid;
    CStringArray m_choices;  // of the list that is up
    Settings m_settings;
    std::string m_strSaved;  // as it stands in the file
    CString m_strPath;
    CString m_strDatabase;
    Exporter m_exporter;
};
