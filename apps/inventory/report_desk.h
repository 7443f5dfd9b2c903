// ReportDesk: the reports that the user keeps, and the commands about them: set up, change, delete,
// show. And the preferences, which reports have most of. The frame hands its commands on to it.

#pragma once

#include "dialogs/preferences.h"
#include "sources/report_files.h"

#include <afxwin.h>

class MainFrame;

class ReportDesk : public CCmdTarget {
public:
    explicit ReportDesk(MainFrame& frame) : m_frame(frame) {}

    // Reads what is kept in a folder, and shows the report that the settings ask for at the start.
    void Open(const CString& strFolder, bool bInteractive);
    void SetInventory(const Inventory& inventory) { m_pInventory = &inventory; }
    const NamedReports& Reports() const { return m_reports; }

protected:
    afx_msg void OnNew();
    afx_msg void OnEdit();
    afx_msg void OnSaveAs();
    afx_msg void OnRename();
    afx_msg void OnDelete();
    afx_msg void OnStandard();
    afx_msg void OnNamed(UINT nID);
    afx_msg void OnPreferences();
    afx_msg void OnUpdateNamed(CCmdUI* pCmdUI);
    afx_msg void OnUpdateKept(CCmdUI* pCmdUI);
    afx_msg void OnUpdateStandard(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    void SetUp(const ReportDefinition& report, const std::string& strOld);
    void Keep(const ReportDefinition& report, const std::string& strOld);
    // Asks for the name of a report, which takes the place of strOld or stands beside all others.
    // False: the user does not want to, or it cannot be kept, which is said.
    bool AskName(LPCSTR pszTitle, ReportDefinition& report, const std::string& strOld);
    // The same for a name that is given. Asks before another report goes.
    bool MayTakeName(CWnd& parent, const std::string& strName, const std::string& strOld);
    // Names in the menu, on the page and in the button; the report itself comes to the front.
    void Show(const ReportDefinition& report);
    void ShowNames();
    // The report that is on the page, if it is kept.
    const NamedReport* Shown() const;
    std::vector<std::string> Names() const;
    void StartWith(const std::string& strOld, const std::string& strNew);

    MainFrame& m_frame;
    const Inventory* m_pInventory = nullptr;
    NamedReports m_reports;
    ReportFiles m_files;
};
