// ScriptsPage: what runs as a package is installed and removed.

#pragma once

#include "details/details_page.h"

class ScriptsPage : public DetailsPage {
public:
    explicit ScriptsPage(const DetailsSource& source) : DetailsPage(IDD_DETAILS_SCRIPTS, source) {}
    CWnd& Control() override { return m_text; }

protected:
    BOOL OnInitDialog() override;
    CString Read() override;
    void Print(CDC& dc, QVPrintEngine& engine) override;
    void UseColors() override;

private:
    // Tells of each script that there is, as a heading and a text, or why that cannot be read.
    template <class Take>
    void ForEachScript(Take take) const;

    QVTextWnd m_text;
    int m_nHeading = 0;  // styles
    int m_nComment = 0;
    int m_nTrouble = 0;
};
