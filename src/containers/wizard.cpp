#include "containers/wizard.h"

#include "frame/out_of_memory.h"

IMPLEMENT_DYNAMIC(QVWizard, QVPropertySheetEx)

QVWizard::QVWizard() {
    CommonConstruct();
}

QVWizard::QVWizard(UINT nIDCaption, CWnd* pParent, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark, HBITMAP hbmHeader)
    : QVPropertySheetEx(nIDCaption, pParent, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader) {
    CommonConstruct();
}

QVWizard::QVWizard(LPCTSTR pszCaption, CWnd* pParent, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark, HBITMAP hbmHeader)
    : QVPropertySheetEx(pszCaption, pParent, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader) {
    CommonConstruct();
}

void QVWizard::CommonConstruct() {
    m_psh.dwFlags |= PSH_WIZARD;
    EnableHelp(FALSE);
}

QVWizard::~QVWizard() = default;

void QVWizard::EnableHelp(BOOL bEnable) {
    if (bEnable) {
        m_psh.dwFlags |= PSH_HASHELP;
    } else {
        m_psh.dwFlags &= ~static_cast<DWORD>(PSH_HASHELP);
    }
}

int QVWizard::RegisterWizPage(QVWizardPage* pPage, const CString& strTitle) {
    return m_StepData.AddStep(pPage, strTitle);
}

int QVWizard::RegisterWizPage(QVWizardPage* pPage, UINT nTitleID) {
    return RegisterByTitleID(pPage, nTitleID);
}

int QVWizard::RegisterWizPage(DWORD dwStepID, const CString& strTitle) {
    return m_StepData.AddStep(dwStepID, strTitle);
}

int QVWizard::RegisterWizPage(DWORD dwStepID, UINT nTitleID) {
    return RegisterByTitleID(dwStepID, nTitleID);
}

template <class Step>
int QVWizard::RegisterByTitleID(Step step, UINT nTitleID) {
    int nStep = -1;
    qv::MemorySuffices([&] {
        CString strTitle;
        strTitle.LoadString(nTitleID);
        nStep = m_StepData.AddStep(step, strTitle);
    });
    return nStep;
}
