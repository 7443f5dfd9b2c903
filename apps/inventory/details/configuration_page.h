// ConfigurationPage: the configuration files of a package, and whether they are as they came.

#pragma once

#include "details/details_page.h"
#include "pages/cut_tips.h"

class ConfigurationPage : public DetailsPage {
public:
    explicit ConfigurationPage(const DetailsSource& source)
        : DetailsPage(IDD_DETAILS_CONFIGURATION, source) {}
    CWnd& Control() override { return m_list; }

protected:
    BOOL OnInitDialog() override;
    CString Read() override;
    void Print(CDC& dc, QVPrintEngine& engine) override;
    void UseColors() override;

private:
    void Add(const struct ConfigurationFile& file);

    CutTipList<QVListCtrlEx> m_list;
    int m_nChanged = 0;  // styles
    int m_nDetail = 0;
};
