// The steps of the report wizard. Each shows its part of the report that is set up, and takes over
// what its fields say whenever it is left.

#pragma once

#include "QVControls.h"
#include "model/report_definition.h"
#include "resource.h"

class ReportStep;

// The wizard, to its steps.
class ReportStepOwner {
public:
    virtual ReportDefinition& Edited() = 0;
    virtual const Inventory& Packages() const = 0;
    // Whether cancelling would lose anything.
    virtual bool HasChanged() const = 0;
    // Which steps there are to go through may have changed.
    virtual void FitWay() = 0;
    // False, and said to the user, if the report is none yet.
    virtual bool CanFinish(ReportStep& step) = 0;
    // The field that the step which comes up is to give the focus; asked once.
    virtual ReportField TakeWanted() = 0;

protected:
    ~ReportStepOwner() = default;
};

class ReportStep : public QVWizardPage {
public:
    // field: what can be wrong here, and nID: the control that the focus goes to then.
    ReportStep(ReportStepOwner& wizard, UINT nTemplate, DWORD dwButtons, ReportField field,
               UINT nID);

    bool HasField(ReportField field) const { return field == m_field; }
    virtual void FocusOn(ReportField field);
    int ValidateData() override;

protected:
    // Fills what does not change, once the window is there.
    virtual void Offer() = 0;
    // As the step comes up.
    virtual void Show() {}
    virtual void Take() = 0;
    ReportDefinition& Edited() { return m_wizard.Edited(); }
    const Inventory& Packages() const { return m_wizard.Packages(); }

    BOOL OnInitDialog() override;
    BOOL OnSetActive() override;
    LRESULT OnWizardBack() override;
    BOOL OnWizardFinish() override;
    BOOL OnQueryCancel() override;
    afx_msg LRESULT OnFocusField(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void TakeAll();

    ReportStepOwner& m_wizard;
    const ReportField m_field;
    const UINT m_nFieldID;
};

class WhatStep : public ReportStep {
public:
    explicit WhatStep(ReportStepOwner& wizard);

protected:
    void Offer() override;
    void Take() override;
    afx_msg void OnAnyDate();
    afx_msg void OnSectionChosen();
    afx_msg void OnTables();
    DECLARE_MESSAGE_MAP()

private:
    void OfferArchitectures();
    void OfferSections();

    QVBitmapComboBox m_packages;
    QVBitmapComboBox m_architecture;
    QVDateTimeEdit m_since;
    QVBitmapListBox m_sections;
};

class ColumnsStep : public ReportStep {
public:
    explicit ColumnsStep(ReportStepOwner& wizard);

protected:
    void Offer() override;
    void Take() override;
    afx_msg void OnAdd();
    afx_msg void OnRemove();
    afx_msg void OnUp();
    afx_msg void OnDown();
    afx_msg void OnSelected();
    DECLARE_MESSAGE_MAP()

private:
    // Shows both lists; the rows are selected again as far as there are so many.
    void Fill(int nOffered, int nChosen);
    void Move(int nBy);
    void EnableButtons();

    QVBitmapListBox m_offered;
    QVBitmapListBox m_chosen;
    std::vector<ReportColumn> m_columns;  // the chosen ones
};

class OrderStep : public ReportStep {
public:
    explicit OrderStep(ReportStepOwner& wizard);

protected:
    void Offer() override;
    void Show() override;
    void Take() override;
};

class LookStep : public ReportStep {
public:
    explicit LookStep(ReportStepOwner& wizard);

protected:
    void Offer() override;
    void Take() override;

private:
    static constexpr UINT kFonts = 3;

    QVMacroButton m_titleCodes;
    QVTextBox m_aSizes[kFonts];
    QVColorComboBox m_aColors[kReportColors];
};

class ReadyStep : public ReportStep {
public:
    explicit ReadyStep(ReportStepOwner& wizard);
    bool IsToBePrinted() const { return m_bPrint; }

protected:
    void Offer() override;
    void Show() override;
    void Take() override;

private:
    QVTextWnd m_summary;
    bool m_bPrint = false;
};
