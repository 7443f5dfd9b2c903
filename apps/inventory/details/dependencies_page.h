// DependenciesPage: what a package needs, and what needs it.

#pragma once

#include "details/details_page.h"
#include "pages/cut_tips.h"

class DependenciesPage : public DetailsPage {
public:
    explicit DependenciesPage(const DetailsSource& source)
        : DetailsPage(IDD_DETAILS_DEPENDENCIES, source) {}
    CWnd& Control() override { return m_list; }
    CString Target() override;

protected:
    BOOL OnInitDialog() override;
    CString Read() override;
    void Print(CDC& dc, QVPrintEngine& engine) override;
    void UseColors() override;
    afx_msg void OnDoubleClick(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    void Add(const char* pszRelation, const struct Relation& relation);

    CutTipList<QVSortingListCtrl> m_list;
    int m_nMissing = 0;  // styles
    int m_nDetail = 0;
};
