// QVWizard: a wizard on the framework's property sheet, whose pages show where the user is among
// its steps. The order of calls: construct the pages and the wizard, AddPage for each page as with
// any sheet, RegisterWizPage for each step with its title, DoModal. A page that is registered but
// not added never shows; one that is added but not registered shows all steps and is none of them.
//
//     QVWizard wizard("Report");
//     wizard.AddPage(&pageSource);
//     wizard.RegisterWizPage(&pageSource, "Source");
//     wizard.DoModal();
//
// Pages are the program's and outlive the wizard's window. Wizards may open wizards; all live on
// one thread, as their steps reach the panels through QVWizardStepData::GetWizStepData.

#pragma once

#include "containers/property_sheet.h"
#include "containers/wizard_page.h"
#include "containers/wizard_step_data.h"

class QV_CONTROLS_API QVWizard : public QVPropertySheetEx {
    DECLARE_DYNAMIC(QVWizard)

public:
    QVWizard();
    explicit QVWizard(UINT nIDCaption, CWnd* pParent = nullptr, UINT iSelectPage = 0,
                      HBITMAP hbmWatermark = nullptr, HPALETTE hpalWatermark = nullptr,
                      HBITMAP hbmHeader = nullptr);
    explicit QVWizard(LPCTSTR pszCaption, CWnd* pParent = nullptr, UINT iSelectPage = 0,
                      HBITMAP hbmWatermark = nullptr, HPALETTE hpalWatermark = nullptr,
                      HBITMAP hbmHeader = nullptr);
    ~QVWizard() override;

    // Adds a step and gives its index; -1 without memory, and for a null page. A page's WizStepID
    // is asked for at once; several pages can stand for a step that is given by id alone. A title
    // that is not in the resources is empty. Before DoModal.
    int RegisterWizPage(QVWizardPage* pPage, const CString& strTitle);
    int RegisterWizPage(QVWizardPage* pPage, UINT nTitleID);
    int RegisterWizPage(DWORD dwStepID, const CString& strTitle);
    int RegisterWizPage(DWORD dwStepID, UINT nTitleID);

protected:
    // Whether the wizard has a Help button; not at first.
    void EnableHelp(BOOL bEnable);

    QVWizardStepData m_StepData;

private:
    void CommonConstruct();
    template <class Step>
    int RegisterByTitleID(Step step, UINT nTitleID);
};
