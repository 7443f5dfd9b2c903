// QVWizardPage: a page of a QVWizard. Its dialog template holds an item 30850, a static text as a
// rule, which becomes the panel of steps; it is as large as the panel is to be. A template without
// it makes a page without panel.
//
// Next and Back lead to the neighbours in the sheet, or to the pages that SetNextPageID and
// SetPrevPageID name, which a page may still decide in ValidateData. Data that are not valid keep
// the user from Next and Finish, never from Back; what DoDataExchange rejects does so in both
// directions, as in any sheet.
//
// A page stands for the step WizStepID: its template's number, unless a derived class says
// otherwise; several pages may stand for one step. A template given by name has the low 32 bits of
// the name's address for a step, which is no step that a program registered by number.

#pragma once

#include "containers/property_page.h"
#include "containers/wizard_step_wnd.h"
#include "frame/alive.h"

class QV_CONTROLS_API QVWizardPage : public QVPropertyPageEx {
    DECLARE_DYNCREATE(QVWizardPage)

public:
    // Of the item that becomes the panel.
    static constexpr UINT kStepPanelID = 30850;

    QVWizardPage();
    explicit QVWizardPage(UINT nIDTemplate, UINT nIDCaption = 0, UINT nIDHeaderTitle = 0,
                          UINT nIDHeaderSubTitle = 0);
    explicit QVWizardPage(LPCTSTR pszTemplate, UINT nIDCaption = 0, UINT nIDHeaderTitle = 0,
                          UINT nIDHeaderSubTitle = 0);
    ~QVWizardPage() override;

    BOOL OnInitDialog() override;
    BOOL OnSetActive() override;
    // Asks the question that was set, with Yes and No; only Yes ends the wizard.
    BOOL OnQueryCancel() override;
    LRESULT OnWizardBack() override;
    LRESULT OnWizardNext() override;
    // Takes the dialog's values over (UpdateData) before it lets the wizard end; whether they could
    // be taken is not looked at, that is ValidateData's to say.
    BOOL OnWizardFinish() override;

    // A string of the resources; 0, as at first: Cancel asks nothing.
    virtual void SetOnCancelMessageID(UINT nMessageID);
    // Flags PSWIZB_, only PSWIZB_BACK at first. For the page's next activation, not at once.
    virtual void SetWizButtons(DWORD dwWizButtons);
    // The template of the page to go to; 0, as at first: the neighbour in the sheet.
    virtual void SetNextPageID(UINT nPageID);
    virtual void SetPrevPageID(UINT nPageID);
    // Whether Next and Finish may go on. 1 here.
    virtual int ValidateData();
    virtual DWORD WizStepID();

protected:
    void EnableHelp(BOOL bEnable);

    DWORD m_dwWizButtons;
    DWORD m_dwWizStepID;
    QVWizardStepWnd m_StepWnd;
    UINT m_nNextPageID;
    UINT m_nPrevPageID;
    UINT m_nOnCancelMessageID;

private:
    void CommonConstruct();
    bool IsValidAndThere();

    qv::AliveToken m_alive;
};
