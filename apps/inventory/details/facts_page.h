// FactsPage: what a package's entry says, beside its description.

#pragma once

#include "details/details_page.h"
#include "pages/cut_tips.h"

class FactsPage : public DetailsPage {
public:
    explicit FactsPage(const DetailsSource& source) : DetailsPage(IDD_DETAILS_FACTS, source) {}
    CWnd& Control() override { return m_list; }

protected:
    BOOL OnInitDialog() override;
    CString Read() override;
    void Print(CDC& dc, QVPrintEngine& engine) override;
    void LayOut(const CRect& rc) override;
    void ShowContent(bool bShow) override;

private:
    CutTipList<QVListCtrlEx> m_list;
    QVTextWnd m_text;
};
