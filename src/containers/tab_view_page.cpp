#include "containers/tab_view_page.h"

#include "containers/page_steps.h"
#include "containers/tab_view.h"
#include "frame/create_window.h"

IMPLEMENT_DYNCREATE(QVTabViewPage, CDialog)

QVTabViewPage::QVTabViewPage() = default;

QVTabViewPage::QVTabViewPage(UINT nIDTemplate) : m_nIDTemplate(nIDTemplate) {}

QVTabViewPage::~QVTabViewPage() = default;

void QVTabViewPage::OnOK() {}

void QVTabViewPage::OnCancel() {}

int QVTabViewPage::Create(CWnd* pParent) {
    return qv::CreateWhole(
        *this, [&] { return CDialog::Create(MAKEINTRESOURCE(LOWORD(m_nIDTemplate)), pParent); });
}

void QVTabViewPage::Resize(const CRect& rect) {
    qv::MoveInset(*this, rect);
}

void QVTabViewPage::ShowPage() {
    const qv::WindowWatch watch(m_life.Token(), m_hWnd);
    ShowWindow(SW_SHOW);
    if (!watch || !m_bNeedsUpdate) {
        return;
    }
    UpdatePage(kOwnUpdate, nullptr, TRUE);  // may close the view
    if (watch) {
        m_bNeedsUpdate = FALSE;
    }
}

void QVTabViewPage::HidePage() {
    ShowWindow(SW_HIDE);
}

void QVTabViewPage::UpdatePage(int, void*, int) {}

void QVTabViewPage::UpdateCommand(CCmdUI*) {}

int QVTabViewPage::HandleCommand(UINT, int) {
    return 0;
}

void QVTabViewPage::SetPageFocus() {
    if (m_hWnd != nullptr) {
        SetFocus();
    }
}

void QVTabViewPage::GetMessageString(UINT, CString&) {}

QVTabView* QVTabViewPage::GetTabView() const {
    return qv::OwnerOfPage<QVTabView>(m_hWnd);
}

// --- Context menus

void QVTabViewPage::ShowContextMenu(UINT nMenuID, CPoint pt, UINT nDefaultItem) {
    CMenu menu;
    CMenu* const pPopup = menu.LoadMenu(nMenuID) ? menu.GetSubMenu(0) : nullptr;
    if (pPopup != nullptr) {
        ShowContextMenu(pPopup, pt, nDefaultItem);
    }
}

void QVTabViewPage::ShowContextMenu(CMenu* pMenu, CPoint pt, UINT nDefaultItem) {
    CWnd* const pView = GetTabView();
    CWnd* const pFrame = pView != nullptr ? pView->GetParentOwner() : nullptr;
    if (pMenu == nullptr || pFrame == nullptr) {
        return;
    }
    if (nDefaultItem != 0) {
        pMenu->SetDefaultItem(nDefaultItem);
    }
    pMenu->TrackPopupMenu(TPM_RIGHTBUTTON, pt.x, pt.y, pFrame);
}

// --- Keys and focus

BOOL QVTabViewPage::PreTranslateMessage(MSG* pMsg) {
    return qv::TranslateInPage(*this, m_life, *pMsg, m_hWndFocus,
                               [&] { return CDialog::PreTranslateMessage(pMsg); });
}

LRESULT QVTabViewPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const qv::PageLife::InUse inUse(m_life);
    if (message == WM_SETFOCUS && qv::GiveFocusBack(m_hWnd, m_hWndFocus)) {
        return 0;
    }
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CDialog::WindowProc(message, wParam, lParam); });
}
