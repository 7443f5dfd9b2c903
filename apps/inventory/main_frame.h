// The application's window: menu, pages, and a status bar.

#pragma once

#include "app_tool_bar.h"
#include "find_desk.h"
#include "model/package_database.h"
#include "pages/all_files_page.h"
#include "pages/largest_page.h"
#include "pages/log_page.h"
#include "pages/packages_page.h"
#include "pages/page_host.h"
#include "pages/report_page.h"
#include "pages/settings_page.h"
#include "report_desk.h"

#include <afxext.h>

#include <memory>

class MainFrame : public CFrameWnd, private FindOwner {
public:
    // An empty path: this machine's own inventory. If it cannot be read, or the user cancels, what
    // is shown stays.
    BOOL Open(const CString& strPath, bool bInteractive);
    // What is shown; it lives on for whoever holds it when another inventory takes its place.
    const std::shared_ptr<const Inventory>& Shown() const { return m_pInventory; }
    // The file it comes from; empty: the registry.
    const CString& ShownFile() const { return m_strFile; }
    // False if the file could not be read, or not to its end.
    bool IsShownWhole() const { return m_strProblem.IsEmpty(); }
    // Opens a frame with what is different from a status file, or shows that in the frame that is
    // there. False if it cannot be read, which is said, or the user cancels.
    BOOL Compare(const CString& strFile);
    // Brings the window to the front with a package of that name in the list.
    void ShowPackage(const CString& strName);
    PackagesPage& Packages() { return m_packages; }
    ReportPage& Report() { return m_report; }
    SettingsPage& Settings() { return m_settings; }
    LogPage& Log() { return m_log; }
    LargestPage& Largest() { return m_largest; }
    AllFilesPage& Files() { return m_files; }
    // Empty: the user's own file. Call before Open.
    void LoadSettings(const CString& strPath, bool bInteractive);
    // The settings have changed.
    void UseSettings();
    // How other machines are looked at; the network's own way at first.
    void UseMachines(QVMachineFolders& folders) { m_pMachines = &folders; }
    PageHost& Pages() { return m_pages; }
    ReportDesk& Desk() { return m_desk; }
    AppToolBar& ToolBar() { return m_toolBar; }
    CString StatusText(int nPane) { return m_statusBar.GetPaneText(nPane); }

protected:
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void GetMessageString(UINT nID, CString& rMessage) const override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnClose();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* pInfo);
    afx_msg BOOL OnQueryEndSession();
    afx_msg BOOL OnBar(UINT nID);
    afx_msg void OnReload();
    afx_msg void OnOpenDatabase();
    afx_msg void OnOpenMachine();
    afx_msg void OnSaveSnapshot();
    afx_msg void OnCompare();
    afx_msg void OnPreview();
    afx_msg void OnPrint();
    afx_msg LRESULT OnFindMessage(WPARAM wParam, LPARAM lParam);
    afx_msg void OnUpdateMessage(CCmdUI* pCmdUI);
    afx_msg void OnUpdateMarked(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    void ShowInventory(std::shared_ptr<const Inventory> pInventory, const CString& strFile);
    void OpenAnother(const CString& strFile);
    FindResult Find(const TextQuery& query, bool bDown) override {
        return m_pages.Active().Find(query, bDown);
    }
    void Say(const CString& strMessage) override { m_pages.Active().Say(strMessage); }

    bool m_bShown = false;  // an inventory, be it none for want of a file that can be read
    CString m_strPath;
    CString m_strProblem;
    CString m_strMachine;         // that was looked at last
    CString m_strMachinesFolder;  // on it
    QVMachineFolders* m_pMachines = &QVMachineFolders::Network();
    std::shared_ptr<const Inventory> m_pInventory = std::make_shared<Inventory>();
    CString m_strFile;
    AppToolBar m_toolBar;
    CStatusBar m_statusBar;
    PackagesPage m_packages;
    SettingsPage m_settings;
    ReportPage m_report{m_packages, m_settings};
    ReportDesk m_desk{*this};
    FindDesk m_find{*this, *this};
    LogPage m_log;
    LargestPage m_largest;
    AllFilesPage m_files;
    PageHost m_pages;
};
