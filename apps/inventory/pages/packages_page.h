// PackagesPage: the packages, as a tree of sections, a sorted list and the details of one, below a
// bar that filters them. The bar holds which packages are shown: a section chosen in the tree is a
// choice in the bar, and the tree follows the bar.

#pragma once

#include "dialogs/package_bar.h"
#include "model/settings.h"
#include "pages/exporting.h"
#include "pages/package_browser.h"
#include "pages/page.h"

class PackagesPage : public Page, private PackageBarOwner, private BrowserOwner {
public:
    LPCSTR Title() const override { return "Packages"; }
    void SetInventory(const Inventory& inventory) override;
    // Does the long part of that before, with a step of the work for each package. Where the work
    // is left, what was shown before is shown again.
    void Prepare(const Inventory& inventory, Work& work);
    CWnd& Control() override { return List(); }
    std::vector<CWnd*> Panes() override;
    ContextMenu MenuOf(CWnd& control) override;
    CString MarkedText() override;
    FindResult Find(const TextQuery& query, bool bDown) override;

    // Selects the package of that name in the list, behind another filter if it must be.
    void GoTo(const CString& strName) { OnGoTo(strName); }
    PackageBrowser& Browser() { return m_browser; }
    PackageTree& Tree() { return m_browser.Tree(); }
    PackageList& List() { return m_browser.List(); }
    PackageBar& Bar() { return m_bar; }
    // The files beside the one with the settings that keep the filter and the layout: shows what
    // they say, and writes there what is in force at the end.
    void UseFolder(const CString& strFolder);
    // What the export dialog starts with, and the colours of the rows.
    void UseSettings(const Settings& settings);
    // Of the status file, with a separator at the end; empty: there is none. Call before
    // SetInventory.
    void UseDatabase(const CString& strFolder);
    void KeepLayout();

protected:
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    afx_msg void OnDestroy();
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnItemChanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnExport();
    afx_msg void OnEnter();
    DECLARE_MESSAGE_MAP()

private:
    void OnFilterChanged() override;
    void OnJump(const CString& strName) override;
    void OnSectionChosen(const std::string& strSection) override;
    void OnPackageChosen(const Package& package) override;
    void OnGoTo(const CString& strName) override;
    void Say(const CString& strMessage) override { m_strMessage = strMessage; }
    void UseSection(const std::string& strSection);
    void Refill();
    void ShowPackage(const Package* pPackage);
    bool HasFocus(CWnd& wnd);

    const Inventory* m_pInventory = nullptr;
    PackageStore m_store;
    PackageBar m_bar{*this};
    PackageBrowser m_browser{*this};
    CString m_strFilterFile;
    CString m_strLayoutFile;
    Exporter m_exporter;
};
