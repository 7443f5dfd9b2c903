#include "containers/tab_wnd_page.h"

#include "containers/page_steps.h"
#include "containers/tab_wnd.h"
#include "frame/create_window.h"

#include <afxpriv.h>

IMPLEMENT_DYNCREATE(QVTabWndPage, CDialog)

BEGIN_MESSAGE_MAP(QVTabWndPage, CDialog)
    ON_MESSAGE(WM_COMMANDHELP, &QVTabWndPage::OnCommandHelp)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

QVTabWndPage::QVTabWndPage() = default;

QVTabWndPage::QVTabWndPage(UINT nIDTemplate) : m_nIDTemplate(nIDTemplate) {}

QVTabWndPage::~QVTabWndPage() = default;

void QVTabWndPage::OnOK() {}

void QVTabWndPage::OnCancel() {}

int QVTabWndPage::Create(CWnd* pParent) {
    return qv::CreateWhole(
        *this, [&] { return CDialog::Create(MAKEINTRESOURCE(LOWORD(m_nIDTemplate)), pParent); });
}

void QVTabWndPage::Resize(const CRect& rect) {
    qv::MoveInset(*this, rect);
}

void QVTabWndPage::ShowPage() {
    ShowWindow(SW_SHOW);
}

void QVTabWndPage::HidePage() {
    ShowWindow(SW_HIDE);
}

void QVTabWndPage::BeginPrinting(CDC*, QVPrintEngine&) {}

QVTabWnd* QVTabWndPage::GetTabWnd() const {
    return qv::OwnerOfPage<QVTabWnd>(m_hWnd);
}

LRESULT QVTabWndPage::OnCommandHelp(WPARAM, LPARAM) {
    return 1;
}

// --- Keys and focus

BOOL QVTabWndPage::PreTranslateMessage(MSG* pMsg) {
    return qv::TranslateInPage(*this, m_life, *pMsg, m_hWndFocus,
                               [&] { return CDialog::PreTranslateMessage(pMsg); });
}

void QVTabWndPage::OnSetFocus(CWnd* pOldWnd) {
    if (!qv::GiveFocusBack(m_hWnd, m_hWndFocus)) {
        CDialog::OnSetFocus(pOldWnd);
    }
}

// --- How long the object lives

LRESULT QVTabWndPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const qv::PageLife::InUse inUse(m_life);
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CDialog::WindowProc(message, wParam, lParam); });
}
