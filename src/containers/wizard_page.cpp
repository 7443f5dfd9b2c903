#include "containers/wizard_page.h"

IMPLEMENT_DYNCREATE(QVWizardPage, QVPropertyPageEx)

namespace {

constexpr LRESULT kStay = -1;

}  // namespace

QVWizardPage::QVWizardPage() {
    CommonConstruct();
}

QVWizardPage::QVWizardPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle,
                           UINT nIDHeaderSubTitle)
    : QVPropertyPageEx(nIDTemplate, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle) {
    CommonConstruct();
    m_dwWizStepID = nIDTemplate;
}

QVWizardPage::QVWizardPage(LPCTSTR pszTemplate, UINT nIDCaption, UINT nIDHeaderTitle,
                           UINT nIDHeaderSubTitle)
    : QVPropertyPageEx(pszTemplate, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle) {
    CommonConstruct();
    m_dwWizStepID = static_cast<DWORD>(reinterpret_cast<UINT_PTR>(pszTemplate));
}

void QVWizardPage::CommonConstruct() {
    m_dwWizButtons = PSWIZB_BACK;
    m_dwWizStepID = 0;
    EnableHelp(FALSE);
    m_nNextPageID = m_nPrevPageID = m_nOnCancelMessageID = 0;
}

QVWizardPage::~QVWizardPage() = default;

void QVWizardPage::EnableHelp(BOOL bEnable) {
    if (bEnable) {
        m_psp.dwFlags |= PSP_HASHELP;
    } else {
        m_psp.dwFlags &= ~static_cast<DWORD>(PSP_HASHELP);
    }
}

// --- Settings

void QVWizardPage::SetOnCancelMessageID(UINT nMessageID) {
    m_nOnCancelMessageID = nMessageID;
}

void QVWizardPage::SetWizButtons(DWORD dwWizButtons) {
    m_dwWizButtons = dwWizButtons;
}

void QVWizardPage::SetNextPageID(UINT nPageID) {
    m_nNextPageID = nPageID;
}

void QVWizardPage::SetPrevPageID(UINT nPageID) {
    m_nPrevPageID = nPageID;
}

int QVWizardPage::ValidateData() {
    return 1;
}

DWORD QVWizardPage::WizStepID() {
    return m_dwWizStepID;
}

// --- What the sheet asks

BOOL QVWizardPage::OnInitDialog() {
    QVPropertyPageEx::OnInitDialog();
    m_StepWnd.Initialize(kStepPanelID, this);
    return TRUE;
}

// The sheet is in the middle of a change of pages and sets its buttons at the end of it, so these
// are posted.
BOOL QVWizardPage::OnSetActive() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const BOOL bActive = QVPropertyPageEx::OnSetActive();
    if (bActive && watch) {
        ::PostMessage(::GetParent(m_hWnd), PSM_SETWIZBUTTONS, 0,
                      static_cast<LPARAM>(m_dwWizButtons));
    }
    return bActive;
}

BOOL QVWizardPage::OnQueryCancel() {
    if (m_nOnCancelMessageID != 0) {
        return AfxMessageBox(m_nOnCancelMessageID, MB_YESNO) == IDYES;
    }
    return QVPropertyPageEx::OnQueryCancel();
}

LRESULT QVWizardPage::OnWizardBack() {
    return m_nPrevPageID != 0 ? static_cast<LRESULT>(m_nPrevPageID)
                              : QVPropertyPageEx::OnWizardBack();
}

// A program's check may end the wizard, which then neither goes on nor finishes.
bool QVWizardPage::IsValidAndThere() {
    const qv::AliveWatch watch(m_alive);
    const HWND hWnd = m_hWnd;
    return ValidateData() != 0 && watch && m_hWnd == hWnd;
}

LRESULT QVWizardPage::OnWizardNext() {
    if (!IsValidAndThere()) {
        return kStay;
    }
    return m_nNextPageID != 0 ? static_cast<LRESULT>(m_nNextPageID)
                              : QVPropertyPageEx::OnWizardNext();
}

BOOL QVWizardPage::OnWizardFinish() {
    if (!IsValidAndThere()) {
        return FALSE;
    }
    const qv::AliveWatch watch(m_alive);
    if (m_hWnd != nullptr) {
        UpdateData(TRUE);
    }
    return watch ? QVPropertyPageEx::OnWizardFinish() : FALSE;
}
