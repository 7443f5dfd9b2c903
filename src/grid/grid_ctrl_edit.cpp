// Editing in place: what core asks of the grid's window, and what the window tells core.

#include "grid/grid_ctrl.h"

#include "frame/notify.h"
#include "frame/rectangles.h"
#include "grid/core/grid_keys.h"
#include "grid/grid_ctrl_core.h"

#include <mbstring.h>

namespace {

qv::Point At(CPoint pt) {
    return {static_cast<int>(pt.x), static_cast<int>(pt.y)};
}

}  // namespace

// --- Core's way to the window

qv::GridLayout QVGridCtrl::Core::Layout() const {
    return {model, port.HasWindow() ? port.ClientRect() : qv::Rect{}, m_grid.m_nCellHeight,
            m_grid.m_nTopRow};
}

void QVGridCtrl::Core::InvalidateCell(qv::GridCell cell) {
    if (m_grid.CanRepaint()) {
        m_grid.InvalidateCell(cell.nRow, cell.nCol, FALSE);
    }
}

void QVGridCtrl::Core::EraseCell(qv::GridCell cell) {
    m_grid.InvalidateCell(cell.nRow, cell.nCol, TRUE);
}

void QVGridCtrl::Core::InvalidateButton(const qv::Rect& rc) {
    if (m_grid.CanRepaint()) {
        port.Invalidate(rc, false);
    }
}

void QVGridCtrl::Core::Update() {
    if (m_grid.CanRepaint()) {
        m_grid.UpdateWindow();
    }
}

void QVGridCtrl::Core::TellParent(unsigned nCode) {
    qv::CommandParent(m_grid, Alive(), nCode);
}

bool QVGridCtrl::Core::SameText(const char* psz1, const char* psz2) const {
    return _mbscmp(reinterpret_cast<const unsigned char*>(psz1),
                   reinterpret_cast<const unsigned char*>(psz2)) == 0;
}

// --- The current cell and its editors

void QVGridCtrl::GotoCell(int nRow, int nCol, BOOL bActivate) {
    m_pCore->editing.GotoCell({nRow, nCol}, bActivate != FALSE);
}

void QVGridCtrl::ActivateCell(int nRow, int nCol) {
    m_pCore->editing.ActivateCell({nRow, nCol});
}

void QVGridCtrl::HideEditCtrl() {
    m_pCore->editing.HideEdit();
}

void QVGridCtrl::SaveEditCtrl() {
    m_pCore->editing.SaveEdit();
}

void QVGridCtrl::HideListBox() {
    m_pCore->editing.HideList();
}

void QVGridCtrl::SaveListBox() {
    m_pCore->editing.SaveList();
}

void QVGridCtrl::PopupList(CStringArray& strings) {
    m_pCore->editing.PopupList(strings);
}

void QVGridCtrl::TogglePopupList() {
    m_pCore->editing.ToggleList();
}

void QVGridCtrl::SetLockReadOnlyLists(BOOL bLock) {
    m_pCore->editing.SetLockReadOnlyLists(bLock != FALSE);
}

void QVGridCtrl::SetMaxListLines(int nLines) {
    m_pCore->list.SetMaxLines(nLines);
}

CEdit& QVGridCtrl::InPlaceEdit() const {
    return m_pCore->edit;
}

CListBox& QVGridCtrl::ChoiceList() const {
    return m_pCore->list;
}

CRect QVGridCtrl::PressedButtonRect() const {
    return qv::ToCRect(m_pCore->editing.ButtonRect());
}

void QVGridCtrl::OnChangeEditText() {
    qv::CommandParent(*this, m_pCore->Alive(), EN_CHANGE);
}

// --- Mouse

void QVGridCtrl::OnLButtonDown(UINT, CPoint pt) {
    if (!m_pCore->editing.Press(At(pt))) {
        Default();
    }
}

void QVGridCtrl::OnMouseMove(UINT, CPoint pt) {
    const qv::WindowWatch watch(m_pCore->Alive(), m_hWnd);
    m_pCore->editing.Drag(At(pt));
    if (watch) {
        Default();
    }
}

void QVGridCtrl::OnLButtonUp(UINT, CPoint pt) {
    const MSG msg = *GetCurrentMessage();
    const qv::WindowWatch watch(m_pCore->Alive(), m_hWnd);
    m_pCore->editing.Release(At(pt));
    if (watch) {
        DefWindowProc(msg.message, msg.wParam, msg.lParam);
    }
}

LRESULT QVGridCtrl::OnNcHitTest(CPoint pt) {
    CRect rc;
    GetClientRect(&rc);
    ClientToScreen(&rc);
    if (rc.PtInRect(pt)) {
        return HTCLIENT;
    }
    rc.left = rc.right;
    rc.right += ::GetSystemMetrics(SM_CXVSCROLL);
    if ((GetStyle() & WS_VSCROLL) != 0 && rc.PtInRect(pt)) {
        return HTVSCROLL;
    }
    return Default();
}

void QVGridCtrl::OnCancelMode() {
    const qv::WindowWatch watch(m_pCore->Alive(), m_hWnd);
    Default();
    if (watch) {
        m_pCore->editing.CancelMode();
    }
}

// --- Focus and keys

void QVGridCtrl::OnSetFocus(CWnd*) {
    const qv::WindowWatch watch(m_pCore->Alive(), m_hWnd);
    Default();
    if (watch) {
        m_pCore->editing.GotFocus();
    }
    // Unless its edit has the focus now, or the grid moves it and is going on.
    if (watch && !m_bIgnoreFocus && ::GetFocus() == m_hWnd) {
        if (const long nPart = GetAccessibleFocus()) {
            TellAccessible(EVENT_OBJECT_FOCUS, nPart);
        }
    }
}

void QVGridCtrl::OnKillFocus(CWnd*) {
    const qv::WindowWatch watch(m_pCore->Alive(), m_hWnd);
    Default();
    if (watch) {
        m_pCore->editing.LostFocus();
    }
}

UINT QVGridCtrl::OnGetDlgCode() {
    return DLGC_WANTALLKEYS;
}

void QVGridCtrl::OnKeyDown(UINT nChar, UINT, UINT) {
    if (!AreExpectedKeysEnabled() || !TakeExpectedKey(nChar, false)) {
        m_pCore->editing.Key(nChar);
    }
}

void QVGridCtrl::OnSysKeyDown(UINT nChar, UINT, UINT) {
    if (!m_pCore->editing.SystemKey(nChar)) {
        Default();
    }
}

// A key that opened the edit has left its character behind for the grid. What is not to be seen
// would only do harm there: it would act on a text that is selected as a whole.
void QVGridCtrl::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    QVGridEdit& edit = m_pCore->edit;
    if (qv::IsTyped(nChar) && edit.Up() && edit.HasFocus()) {
        edit.SendMessage(WM_CHAR, nChar, MAKELPARAM(nRepCnt, nFlags));
    } else {
        Default();
    }
}
