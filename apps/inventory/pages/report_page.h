// ReportPage: chooses what goes into the report, shows its pages and prints them.

#pragma once

#include "pages/exporting.h"
#include "pages/packages_page.h"
#include "pages/page.h"
#include "pages/preview_window.h"
#include "pages/report.h"
#include "pages/settings_page.h"

#include <memory>
#include <string>
#include <vector>

class ReportPage : public Page {
public:
    // The list that can be printed as it stands.
    ReportPage(PackagesPage& packages, SettingsPage& settings)
        : m_packages(packages), m_settings(settings) {}

    LPCSTR Title() const override { return "Report"; }
    void SetInventory(const Inventory& inventory) override;
    CWnd& Control() override { return m_preview; }
    std::vector<CWnd*> Panes() override { return {&m_choice, &m_preview}; }
    ContextMenu MenuOf(CWnd& control) override {
        return &control == &m_preview ? ContextMenu::Preview : ContextMenu::None;
    }
    void OnShown() override;
    FindResult Find(const TextQuery& query, bool bDown) override;
    CString MarkedText() override;

    PreviewWindow& Preview() { return m_preview; }
    // What is shown and printed from now on. The standard report, that without a name, takes from
    // the settings what these tell of it. What is ticked beside the preview belongs to what is
    // shown, until something else is.
    void ShowReport(const ReportDefinition& report);
    const ReportDefinition& Shown() const { return m_shown; }
    // The names of the reports that can be shown beside the standard one.
    void ShowNames(const std::vector<std::string>& names);
    // The settings have changed.
    void UseSettings();

    // Of what is shown, in units of the printer; empty without pages.
    CSize PaperSize() const { return m_pReport != nullptr ? m_pReport->PaperSize() : CSize(0, 0); }
    unsigned Pages() const { return m_pReport != nullptr ? m_pReport->Pages() : 0; }
    // Prints pages nFirst to nLast on a printer's context. pszOutput: a file that the job goes to,
    // null for the printer's own port. Null: it is printed. The page's message says so, or why not.
    Failure Print(CDC& dc, unsigned nFirst, unsigned nLast, LPCSTR pszOutput);
    // The whole report on the default printer, without a question.
    Failure PrintToFile(LPCSTR pszOutput);

    // Asks which printer, and prints.
    afx_msg void OnPrint();

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnOption(UINT nID);
    afx_msg void OnUpdateOption(CCmdUI* pCmdUI);
    afx_msg void OnPrevious();
    afx_msg void OnNext();
    afx_msg void OnZoomIn();
    afx_msg void OnZoomOut();
    afx_msg void OnScale(UINT nID);
    afx_msg void OnExport();
    afx_msg void OnChoice();
    afx_msg void OnUpdatePrevious(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNext(CCmdUI* pCmdUI);
    afx_msg void OnUpdateZoom(CCmdUI* pCmdUI);
    afx_msg void OnUpdateScale(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr int kOptions = 4;
    static constexpr int kButtons = 13;

    bool HasOption(UINT nID) const;
    void TickOptions();
    int PaperNumber() const;
    // How the paper lies, by the settings or by what the tables need.
    bool IsLandscape();
    void OpenDevice(CDC& dc, bool bLandscape);
    // The buttons as the preview is.
    void ShowPreviewState();
    void MakeReport();
    std::unique_ptr<Report> Compose(Work& work, CDC& dc, bool bLandscape);

    PackagesPage& m_packages;
    SettingsPage& m_settings;
    const Inventory* m_pInventory = nullptr;
    ReportDefinition m_shown;
    // What comes back with the option.
    ReportTables m_tables = ReportTables::BySection;
    ReportTotals m_totals = ReportTotals::BySection;
    std::vector<std::string> m_names;
    CComboBox m_choice;
    CButton m_aOptions[kOptions];
    CButton m_aButtons[kButtons];
    PreviewWindow m_preview;
    CDC m_dcDevice;  // the default printer, or the screen where there is none
    std::unique_ptr<Report> m_pReport;
    Exporter m_exporter;
};
