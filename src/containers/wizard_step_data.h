// QVWizardStepData: the steps of a wizard, as its step panels draw them. A panel knows no wizard;
// it asks GetWizStepData for the object that is current, which is the one constructed last. So a
// wizard that another one opens shows its own steps while it lives, and the outer one's come back
// with its end. An outer panel that is painted meanwhile shows the inner steps, and marks there the
// step that has its own index.
//
// Objects go in reverse order of construction. One that goes earlier leaves the younger ones
// current. They live on one thread, as all windows of the library do: nothing locks the current
// one.

#pragma once

#include "containers/wizard_records.h"
#include "frame/qv_api.h"

#include <afxwin.h>

#include <vector>

class QVWizardPage;

class QV_CONTROLS_API QVWizardStepData {
public:
    // Becomes the current one.
    QVWizardStepData();
    virtual ~QVWizardStepData();
    QVWizardStepData(const QVWizardStepData&) = delete;
    QVWizardStepData& operator=(const QVWizardStepData&) = delete;

    // Appends a step that was not visited and gives its index; -1 without memory, and for a null
    // page. A page's id, its WizStepID, is asked for at once. Of the title 30 bytes are kept, less
    // where they would cut a character.
    int AddStep(unsigned nStepID, const CString& strTitle);
    int AddStep(unsigned long dwStepID, const CString& strTitle);
    int AddStep(QVWizardPage* pPage, const CString& strTitle);
    // Does nothing out of range.
    void UpdateState(int nStep, WizStepState eState);

    int NumSteps() const;
    // Valid until the next AddStep. Out of range an empty record.
    const _QVWIZSTEP_INFO& GetStepInfo(int nStep) const;

    // Null where none is current.
    static QVWizardStepData* GetWizStepData();

protected:
    static void SetWizStepData(QVWizardStepData* pData);

    std::vector<_QVWIZSTEP_INFO> m_Steps;
    QVWizardStepData* m_pPrevData;  // current before this one
    static QVWizardStepData* m_pWizData;

private:
    friend class QVWizardStepWnd;

    bool IsUnderCurrent() const;

    QVWizardStepData* m_pOlder;  // of all that live
    static QVWizardStepData* s_pYoungest;
};
