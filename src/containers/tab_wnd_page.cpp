#include "containers/tab_wnd_page.h"

#include "containers/tab_wnd.h"
#include "frame/create_window.h"

#include <afxpriv.h>

IMPLEMENT_DYNCREATE(QVTabWndPage, CDialog)

namespace {

constexpr int kPageInset = 10;

// A main window that is no frame has no accelerators.
BOOL TranslateByMainWindow(MSG& msg) {
    auto* pFrame = DYNAMIC_DOWNCAST(CFrameWnd, AfxGetMainWnd());
    const HACCEL hTable = pFrame != nullptr ? pFrame->GetDefaultAccelerator() : nullptr;
    return hTable != nullptr && ::TranslateAccelerator(pFrame->m_hWnd, hTable, &msg);
}

}  // namespace

BEGIN_MESSAGE_MAP(QVTabWndPage, CDialog)
    ON_MESSAGE(WM_COMMANDHELP, OnCommandHelp)
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
    MoveWindow(rect.left + kPageInset, rect.top + kPageInset, rect.Width() - 2 * kPageInset,
               rect.Height() - 2 * kPageInset, TRUE);
}

void QVTabWndPage::ShowPage() {
    ShowWindow(SW_SHOW);
}

void QVTabWndPage::HidePage() {
    ShowWindow(SW_HIDE);
}

void QVTabWndPage::BeginPrinting(CDC*, QVPrintEngine&) {}

QVTabWnd* QVTabWndPage::GetTabWnd() const {
    HWND hTabs = m_hWnd != nullptr ? ::GetParent(m_hWnd) : nullptr;
    HWND hTabWnd = hTabs != nullptr ? ::GetParent(hTabs) : nullptr;
    return hTabWnd != nullptr ? DYNAMIC_DOWNCAST(QVTabWnd, FromHandlePermanent(hTabWnd)) : nullptr;
}

LRESULT QVTabWndPage::OnCommandHelp(WPARAM, LPARAM) {
    return 1;
}

// --- Keys and focus

BOOL QVTabWndPage::PreTranslateMessage(MSG* pMsg) {
    const InUse inUse(*this);
    if (TranslateByMainWindow(*pMsg) || !inUse) {
        return TRUE;
    }
    const BOOL bDone = CDialog::PreTranslateMessage(pMsg);
    if (inUse && m_hWnd != nullptr) {
        HWND hFocus = ::GetFocus();
        if (::IsChild(m_hWnd, hFocus)) {
            m_hWndFocus = hFocus;
        }
    }
    return bDone;
}

// A frame that comes to the front gives the focus to its client window, which knows nothing of who
// had it before.
void QVTabWndPage::OnSetFocus(CWnd* pOldWnd) {
    if (::IsChild(m_hWnd, m_hWndFocus) && ::IsWindowVisible(m_hWndFocus) &&
        ::IsWindowEnabled(m_hWndFocus)) {
        ::SetFocus(m_hWndFocus);
    } else {
        CDialog::OnSetFocus(pOldWnd);
    }
}

// --- How long the object lives

LRESULT QVTabWndPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const InUse inUse(*this);
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CDialog::WindowProc(message, wParam, lParam); });
}

QVTabWndPage::InUse::~InUse() {
    if (m_watch.ObjectAlive() && --m_page.m_nInUse == 0 && m_page.m_bDiscarded) {
        delete &m_page;
    }
}

void QVTabWndPage::Discard() {
    m_bDiscarded = true;
    if (m_nInUse == 0) {
        delete this;
    }
}
