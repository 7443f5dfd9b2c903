// QVPropertyPage and QVPropertyPageEx: pages of a property sheet that keep their dialog template as
// it was designed. The framework writes its own font into each page's template, and with it goes
// the layout; these pages hand theirs over unchanged. The sheets that belong to them
// (property_sheet.h) give the pages' font to the tabs instead. Pages and sheets of the framework go
// together with these.
//
// A page is the application's, as long as its sheet shows. QVPropertyPageEx has a title and a
// subtitle for the header of a wizard, which QVPropertySheetEx alone shows.

#pragma once

#include "frame/qv_api.h"

#include <afxdlgs.h>

class QV_CONTROLS_API QVPropertyPage : public CPropertyPage {
    DECLARE_DYNCREATE(QVPropertyPage)

public:
    // Construct of the framework has to follow.
    QVPropertyPage();
    // nIDCaption: a string for the tab, 0 for the template's caption.
    explicit QVPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0);
    explicit QVPropertyPage(const char* pszTemplate, UINT nIDCaption = 0);

protected:
    // Lets psp, the sheet's record of this page, point at the page's template in memory. A page
    // whose template is not found is left as it is.
    void PreProcessPageTemplate(PROPSHEETPAGE& psp, int bWizard) override;
};

class QV_CONTROLS_API QVPropertyPageEx : public CPropertyPageEx {
    DECLARE_DYNCREATE(QVPropertyPageEx)

public:
    QVPropertyPageEx();
    // Title and subtitle: strings of the resources, 0 for none.
    explicit QVPropertyPageEx(UINT nIDTemplate, UINT nIDCaption = 0, UINT nIDHeaderTitle = 0,
                              UINT nIDHeaderSubTitle = 0);
    explicit QVPropertyPageEx(const char* pszTemplate, UINT nIDCaption = 0, UINT nIDHeaderTitle = 0,
                              UINT nIDHeaderSubTitle = 0);

protected:
    void PreProcessPageTemplate(PROPSHEETPAGE& psp, int bWizard) override;

private:
    friend class QVPropertySheetEx;

    // Puts those that are not empty into a record that has room for them.
    void AddHeaderTitles(PROPSHEETPAGE& psp) const;
};
