// PackagesPage: the packages as a sorted report, with export and the list's own settings.

#pragma once

#include "model/settings.h"
#include "pages/package_list.h"
#include "pages/page.h"

class PackagesPage : public Page {
public:
    LPCSTR Title() const override { return "Packages"; }
    void SetInventory(const Inventory& inventory) override;
    CWnd& Control() override { return List(); }
    CString MarkedText() override;
    bool FindNext(const CString& strText) override { return List().FindNext(strText); }

    PackageList& List() { return *static_cast<PackageList*>(m_frame.GetListBox()); }
    // What the export dialog starts with, and the colours of the rows.
    void UseSettings(const Settings& settings);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnItemChanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnExport();
    afx_msg void OnFlag(UINT nID);
    afx_msg void OnUpdateFlag(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    bool Flag(UINT nID);
    bool Export(LPCSTR pszPath, char chSeparator);

    QVListHeaderWnd m_frame{RUNTIME_CLASS(PackageList)};
    const Settings* m_pSettings = nullptr;
    CString m_strExportPath;
    bool m_bCenterImages = true;
    bool m_bAllowSelection = true;
    bool m_bStrongSelection = false;
};
