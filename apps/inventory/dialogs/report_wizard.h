// ReportWizard: sets up a report in steps: what is in it, its columns, order and totals, look, and
// name. It can finish at any step; the steps that were not seen keep what the report had.

#pragma once

#include "dialogs/report_steps.h"

#include <functional>

class ReportWizard : public QVWizard, private ReportStepOwner {
public:
    // Says why not, above a window, where a report cannot be kept under a name.
    using MayTakeName = std::function<bool(CWnd&, const std::string&)>;

    // Begins with a report, which has a name.
    ReportWizard(CWnd* pParent, const Inventory& inventory, const ReportDefinition& report,
                 MayTakeName mayTakeName);

    // What was made, once the wizard has finished.
    const ReportDefinition& Result() const { return m_report; }
    bool IsToBePrinted() const { return m_ready.IsToBePrinted(); }

protected:
    int OnInitDialog() override;

private:
    ReportDefinition& Edited() override { return m_report; }
    const Inventory& Packages() const override { return m_inventory; }
    bool HasChanged() const override { return m_report != m_atFirst; }
    void FitWay() override;
    bool CanFinish(ReportStep& step) override;
    ReportField TakeWanted() override;

    void GoTo(ReportStep& from, ReportField field);

    const Inventory& m_inventory;
    const ReportDefinition m_atFirst;
    const MayTakeName m_mayTakeName;
    ReportDefinition m_report;
    ReportField m_wanted = ReportField::None;  // where the focus goes in the step that comes up
    WhatStep m_what;
    ColumnsStep m_columns;
    OrderStep m_order;
    LookStep m_look;
    ReadyStep m_ready;
};
