// DetailsPage: one side of a package, in the tabs below the list. What it shows is read when its
// tab is in front, or printed, for the first time since another package was chosen. Where there is
// nothing to show it says why.

#pragma once

#include "QVControls.h"
#include "model/package_store.h"
#include "resource.h"

#include <string>

// The package that the details are of, and where more about it is found.
struct DetailsSource {
    const Inventory* pInventory = nullptr;
    PackageStore store;
    Package package;  // a copy: the inventory may be read anew
    bool bChosen = false;
};

// What stands in the database, in UTF-8, as controls show it: in the process's code page and
// without what would be no text.
CString Shown(std::string_view text);

class DetailsPage : public QVTabWndPage {
public:
    // The source has changed.
    void Forget() { m_bRead = false; }
    void ReadOnce();
    void ShowPage() override;
    void BeginPrinting(CDC* pDC, QVPrintEngine& engine) override;
    // The control that shows a row for each of something.
    virtual CWnd& Control() = 0;
    // The package that Enter in the page leads to; empty: none.
    virtual CString Target() { return ""; }
    // Why the page shows nothing; empty if it does.
    const CString& Problem() const { return m_strProblem; }

protected:
    DetailsPage(UINT nIDTemplate, const DetailsSource& source)
        : QVTabWndPage(nIDTemplate), m_source(source) {}

    // Fills the page, if there is a package; gives what to say instead.
    virtual CString Read() = 0;
    virtual void Print(CDC& dc, QVPrintEngine& engine) = 0;
    // Puts the controls into the page. Here: one, everywhere.
    virtual void LayOut(const CRect& rc);
    virtual void ShowContent(bool bShow);
    // Styles in the system's colours of the moment.
    virtual void UseColors() {}

    const DetailsSource& m_source;

    BOOL PreTranslateMessage(MSG* pMsg) override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

private:
    CString m_strProblem;
    std::string m_strRead;  // the package that was read
    bool m_bRead = false;
};
