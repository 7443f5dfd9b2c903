// PackagesPage: the packages as a sorted report below a bar that filters it, with export and the
// list's own settings.

#pragma once

#include "dialogs/package_bar.h"
#include "model/settings.h"
#include "pages/exporting.h"
#include "pages/package_list.h"
#include "pages/page.h"

class PackagesPage : public Page, private PackageBarOwner {
public:
    LPCSTR Title() const override { return "Packages"; }
    void SetInventory(const Inventory& inventory) override;
    CWnd& Control() override { return List(); }
    CString MarkedText() override;
    bool FindNext(const CString& strText) override { return List().FindNext(strText); }

    PackageList& List() { return *static_cast<PackageList*>(m_frame.GetListBox()); }
    PackageBar& Bar() { return m_bar; }
    // Shows what the file says, and writes there what the filter is at the end.
    void UseFilterFile(const CString& strPath);
    // What the export dialog starts with, and the colours of the rows.
    void UseSettings(const Settings& settings);

protected:
    BOOL PreTranslateMessage(MSG* pMsg) override;
    afx_msg void OnDestroy();
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnItemChanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnExport();
    afx_msg void OnEnter();
    afx_msg void OnFlag(UINT nID);
    afx_msg void OnUpdateFlag(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    void OnFilterChanged() override;
    void OnJump(const CString& strName) override;
    void Refill();
    bool Flag(UINT nID);

    const Inventory* m_pInventory = nullptr;
    PackageBar m_bar{*this};
    CString m_strFilterFile;
    QVListHeaderWnd m_frame{RUNTIME_CLASS(PackageList)};
    Exporter m_exporter;
    bool m_bCenterImages = true;
    bool m_bAllowSelection = true;
    bool m_bStrongSelection = false;
};
