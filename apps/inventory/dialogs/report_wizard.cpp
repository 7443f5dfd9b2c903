#include "dialogs/report_wizard.h"

ReportWizard::ReportWizard(CWnd* pParent, const Inventory& inventory,
                           const ReportDefinition& report, MayTakeName mayTakeName)
    : QVWizard("Report", pParent, 0, nullptr, nullptr, nullptr),
      m_inventory(inventory),
      m_atFirst(report),
      m_mayTakeName(std::move(mayTakeName)),
      m_report(report),
      m_what(*this),
      m_columns(*this),
      m_order(*this),
      m_look(*this),
      m_ready(*this) {
    struct Step {
        ReportStep& step;
        UINT nTitle;
    };
    for (const Step& step : {Step{m_what, IDS_STEP_WHAT}, Step{m_columns, IDS_STEP_COLUMNS},
                             Step{m_order, IDS_STEP_ORDER}, Step{m_look, IDS_STEP_LOOK},
                             Step{m_ready, IDS_STEP_READY}}) {
        AddPage(&step.step);
        RegisterWizPage(&step.step, step.nTitle);
    }
    m_psh.dwFlags |= PSH_WIZARDHASFINISH;
    FitWay();
}

int ReportWizard::OnInitDialog() {
    const int nResult = QVWizard::OnInitDialog();
    CenterWindow();
    return nResult;
}

// Without columns to choose there is nothing to do in their step, on the way there and back.
void ReportWizard::FitWay() {
    const bool bColumns = m_report.ChoosesColumns();
    m_what.SetNextPageID(bColumns ? 0 : IDD_REPORT_ORDER);
    m_order.SetPrevPageID(bColumns ? 0 : IDD_REPORT_WHAT);
}

bool ReportWizard::CanFinish(ReportStep& step) {
    const ReportProblem problem = ProblemOf(m_report);
    if (problem.field != ReportField::None) {
        AfxMessageBox(problem.strMessage.c_str(), MB_ICONINFORMATION);
        GoTo(step, problem.field);
        return false;
    }
    if (!m_mayTakeName(*this, m_report.strName)) {
        GoTo(step, ReportField::Name);
        return false;
    }
    return true;
}

void ReportWizard::GoTo(ReportStep& from, ReportField field) {
    ReportStep* const apSteps[] = {&m_what, &m_columns, &m_order, &m_look, &m_ready};
    for (size_t i = 0; i < std::size(apSteps); ++i) {
        if (!apSteps[i]->HasField(field)) {
            continue;
        }
        if (apSteps[i] == &from) {
            from.FocusOn(field);
        } else {
            // The sheet is in the middle of its own button.
            m_wanted = field;
            PostMessage(PSM_SETCURSEL, i, 0);
        }
    }
}

ReportField ReportWizard::TakeWanted() {
    return std::exchange(m_wanted, ReportField::None);
}
