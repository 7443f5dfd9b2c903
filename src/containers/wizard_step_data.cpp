#include "containers/wizard_step_data.h"

#include "common/process_text.h"
#include "containers/core/wizard_steps.h"
#include "containers/wizard_page.h"
#include "frame/out_of_memory.h"

QVWizardStepData* QVWizardStepData::m_pWizData = nullptr;
QVWizardStepData* QVWizardStepData::s_pYoungest = nullptr;

QVWizardStepData::QVWizardStepData() : m_pPrevData(m_pWizData), m_pOlder(s_pYoungest) {
    m_pWizData = s_pYoungest = this;
}

// Nobody is left with a pointer to this object, in whatever order objects go.
QVWizardStepData::~QVWizardStepData() {
    if (!IsUnderCurrent()) {
        m_pWizData = m_pPrevData;
    }
    for (QVWizardStepData** ppData = &s_pYoungest; *ppData != nullptr;) {
        if (*ppData == this) {
            *ppData = m_pOlder;
            continue;
        }
        if ((*ppData)->m_pPrevData == this) {
            (*ppData)->m_pPrevData = m_pPrevData;
        }
        ppData = &(*ppData)->m_pOlder;
    }
}

// Whether an object that was made while this one was current is current now.
bool QVWizardStepData::IsUnderCurrent() const {
    if (m_pWizData == nullptr || m_pWizData == this) {
        return false;
    }
    const QVWizardStepData* pData = m_pWizData->m_pPrevData;
    while (pData != nullptr && pData != this) {
        pData = pData->m_pPrevData;
    }
    return pData == this;
}

QVWizardStepData* QVWizardStepData::GetWizStepData() {
    return m_pWizData;
}

void QVWizardStepData::SetWizStepData(QVWizardStepData* pData) {
    m_pWizData = pData;
}

int QVWizardStepData::AddStep(unsigned nStepID, const CString& strTitle) {
    int nStep = -1;
    qv::MemorySuffices([&] { nStep = qv::AddStep(m_Steps, nStepID, strTitle, qv::ProcessText()); });
    return nStep;
}

int QVWizardStepData::AddStep(unsigned long dwStepID, const CString& strTitle) {
    return AddStep(static_cast<unsigned>(dwStepID), strTitle);
}

int QVWizardStepData::AddStep(QVWizardPage* pPage, const CString& strTitle) {
    return pPage != nullptr ? AddStep(pPage->WizStepID(), strTitle) : -1;
}

void QVWizardStepData::UpdateState(int nStep, WizStepState eState) {
    qv::SetStepState(m_Steps, nStep, eState);
}

int QVWizardStepData::NumSteps() const {
    return static_cast<int>(m_Steps.size());
}

const _QVWIZSTEP_INFO& QVWizardStepData::GetStepInfo(int nStep) const {
    return qv::StepAt(m_Steps, nStep);
}
