// FilesPage: the files that a package brought, from the database's list of them. The list holds no
// rows: it asks for those in view, so that a size is looked up when it is seen.

#pragma once

#include "details/details_page.h"
#include "pages/cut_tips.h"

#include <map>
#include <vector>

class FilesPage : public DetailsPage {
public:
    explicit FilesPage(const DetailsSource& source) : DetailsPage(IDD_DETAILS_FILES, source) {}
    CWnd& Control() override { return m_list; }

protected:
    BOOL OnInitDialog() override;
    CString Read() override;
    void Print(CDC& dc, QVPrintEngine& engine) override;
    afx_msg void OnGetDispInfo(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    // On the machine that the database is of; empty where that is not known.
    CString SizeOf(const std::string& strFile) const;

    CutTipList<QVListCtrlEx> m_list;
    std::vector<std::string> m_files;
    std::map<size_t, CString> m_sizes;  // of those that were seen
};
