#include "grid/grid_ctrl.h"

#include "frame/wnd_port.h"
#include "grid/grid_editors.h"

#include <algorithm>
#include <mbstring.h>

namespace {

// The grid moves the focus itself: that is not the user coming to it. The control may be gone by
// the end.
class IgnoreFocus {
public:
    IgnoreFocus(BOOL& bIgnore, std::shared_ptr<const bool> pAlive)
        : m_bIgnore(bIgnore), m_bOld(bIgnore), m_pAlive(std::move(pAlive)) {
        bIgnore = TRUE;
    }
    ~IgnoreFocus() {
        if (*m_pAlive) {
            m_bIgnore = m_bOld;
        }
    }
    IgnoreFocus(const IgnoreFocus&) = delete;
    IgnoreFocus& operator=(const IgnoreFocus&) = delete;

private:
    BOOL& m_bIgnore;
    BOOL m_bOld;
    std::shared_ptr<const bool> m_pAlive;
};

}  // namespace

// By the editor's own style: what it holds is not lost because a window around the grid is hidden.
bool QVGridCtrl::EditUp() const {
    return m_pEdit != nullptr && m_pEdit->m_hWnd != nullptr &&
           (m_pEdit->GetStyle() & WS_VISIBLE) != 0;
}

bool QVGridCtrl::ListUp() const {
    return m_pList != nullptr && m_pList->m_hWnd != nullptr &&
           (m_pList->GetStyle() & WS_VISIBLE) != 0;
}

bool QVGridCtrl::IsLockedList(int nRow, int nCol) const {
    return m_bLockReadOnlyLists && GetColType(nCol) == gctDropList && IsCellReadOnly(nRow, nCol);
}

// The parent answers at once; it may change or destroy anything of the grid.
void QVGridCtrl::NotifyParent(UINT nCode) {
    // Without an object for it, which might find no memory.
    if (HWND hWndParent = ::GetParent(m_hWnd)) {
        ::SendMessage(hWndParent, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), nCode),
                      reinterpret_cast<LPARAM>(m_hWnd));
    }
}

// --- Current cell

// From the current row to this one.
void QVGridCtrl::MoveRowMark(int nRow) {
    if (nRow != m_nCurRow && IsValidRow(m_nCurRow)) {
        RowAt(m_nCurRow).dwState &= ~GRS_CURRENT;
        InvalidateRow(m_nCurRow, FALSE);
    }
    RowAt(nRow).dwState |= GRS_CURRENT;
}

void QVGridCtrl::GotoCell(int nRow, int nCol, BOOL bActivate) {
    if (!IsValidRow(nRow) || !IsValidColumn(nCol)) {
        return;
    }
    MoveRowMark(nRow);
    const Watch watch(*this);
    const unsigned nMove = ++m_nMoves;
    if (bActivate && IsCellEnabled(nRow, nCol) && !m_bReadOnly) {
        ActivateCell(nRow, nCol);
    } else {
        SaveEditors();
    }
    if (!watch) {
        return;
    }
    const bool bTextStays = EditUp() && m_editCell != qv::GridCell{nRow, nCol};
    if (nMove != m_nMoves || !IsValidRow(nRow) || bTextStays) {
        // The parent, being told, has gone elsewhere or taken the row away: it stays at that. So
        // it does where what was typed found no memory, and would be lost.
        if (nRow != m_nCurRow && IsValidRow(nRow)) {
            RowAt(nRow).dwState &= ~GRS_CURRENT;
        }
        if (IsValidRow(m_nCurRow)) {
            RowAt(m_nCurRow).dwState |= GRS_CURRENT;
        }
        return;
    }
    // Last: what was saved belongs to the cell that was current. The rows may be other ones now.
    MoveRowMark(nRow);
    m_nCurRow = nRow;
    m_nCurCol = nCol;
    InvalidateRow(nRow, FALSE);
}

// Whether the parent, being told of something, has taken the row away or made another cell current
// since the current cell had been moved nMove times.
bool QVGridCtrl::LedElsewhere(unsigned nMove, int nRow, int nCol) const {
    return !IsValidRow(nRow) || (nMove != m_nMoves && !IsCurrent(nRow, nCol));
}

void QVGridCtrl::ActivateCell(int nRow, int nCol) {
    if (m_hWnd == nullptr || (IsCurrent(nRow, nCol) && m_bEditing)) {
        return;
    }
    if (!m_model.UsesEdit(nCol) || IsCellReadOnly(nRow, nCol)) {
        SaveEditors();
        return;
    }
    const Watch watch(*this);
    const unsigned nMove = m_nMoves;
    if (ListUp()) {
        SaveListBox();
    }
    if (!watch || LedElsewhere(nMove, nRow, nCol)) {
        return;
    }
    const IgnoreFocus ignore(m_bIgnoreFocus, m_pAlive);
    // Of the cell that is left; a hidden edit would lose what it holds.
    if (SaveEdit() && watch && MeasureRows()) {
        qv::MemorySuffices([&] { OpenEdit(nRow, nCol); });  // else the cell stays closed
    }
}

// Hidden.
void QVGridCtrl::MakeEdit() {
    auto pEdit = std::make_unique<QVGridEdit>(*this);
    if (!pEdit->Create(WS_CHILD | ES_WANTRETURN | ES_AUTOHSCROLL, CRect(0, 0, 0, 0), this,
                       kGridEditId)) {
        AfxThrowResourceException();
    }
    pEdit->SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(m_hFont), FALSE);
    m_pEdit = std::move(pEdit);
}

void QVGridCtrl::OpenEdit(int nRow, int nCol) {
    if (m_pEdit == nullptr) {
        MakeEdit();
    } else {
        m_pEdit->ShowWindow(SW_HIDE);
    }
    const Watch watch(*this);
    const unsigned nMove = m_nMoves;
    // The parent hears of the new text, and may change the cell or take the ground away. A text
    // that it changed must not come back when the edit is saved.
    const auto text = [&] {
        const char* pszText = m_model.Text(nRow, nCol);
        return CString(pszText != nullptr ? pszText : "");
    };
    m_editCell = {nRow, nCol};
    const unsigned nOpening = ++m_nOpenings;
    CString strShown;
    for (int nTry = 0; nTry == 0 || (nTry == 1 && strShown != text()); ++nTry) {
        strShown = text();
        m_pEdit->SetWindowText(strShown);
        if (!watch || m_pEdit == nullptr || nOpening != m_nOpenings ||
            LedElsewhere(nMove, nRow, nCol)) {
            return;
        }
    }
    m_editCell = {nRow, nCol};  // the rows may be other ones now, and lie elsewhere
    PlaceEdit();
    m_pEdit->SendMessage(EM_SETSEL, 0, -1);
    m_pEdit->SendMessage(EM_SCROLLCARET);
    m_pEdit->ShowWindow(SW_SHOW);
    m_bEditing = TRUE;
    m_pEdit->SetFocus();
}

// --- The edit

void QVGridCtrl::HideEditCtrl() {
    if (m_pEdit == nullptr || m_pEdit->m_hWnd == nullptr) {
        return;
    }
    const Watch watch(*this);
    {
        // A window that goes may hand its focus to the grid, which must not open it again.
        const IgnoreFocus ignore(m_bIgnoreFocus, m_pAlive);
        const bool bFocus = ::GetFocus() == m_pEdit->m_hWnd;
        m_pEdit->ShowWindow(SW_HIDE);
        if (watch && bFocus && ::GetFocus() != m_hWnd) {
            SetFocus();
        }
        if (!watch) {
            return;
        }
    }
    InvalidateCell(m_nCurRow, m_nCurCol, TRUE);
    m_bEditing = FALSE;
}

// Not through the public SetCellText, which would write the text into the edit again. To the cell
// that it was opened for, wherever the current cell has gone meanwhile. False without memory.
bool QVGridCtrl::KeepTypedText() {
    return qv::MemorySuffices([this] {
        CString strText;
        m_pEdit->GetWindowText(strText);
        m_model.SetText(m_editCell.nRow, m_editCell.nCol,
                        {strText, static_cast<size_t>(strText.GetLength())});
    });
}

// An edit whose text finds no memory stays up with it, and gives false.
bool QVGridCtrl::SaveEdit() {
    if (!EditUp()) {
        return true;
    }
    if (!KeepTypedText()) {
        return false;
    }
    HideEditCtrl();
    return true;
}

void QVGridCtrl::SaveEditCtrl() {
    SaveEdit();
}

void QVGridCtrl::SaveEditors() {
    const Watch watch(*this);
    {
        const IgnoreFocus ignore(m_bIgnoreFocus, m_pAlive);
        SaveEditCtrl();
        if (!watch) {
            return;
        }
    }
    if (ListUp()) {
        SaveListBox();
    }
}

void QVGridCtrl::OnChangeEditText() {
    NotifyParent(EN_CHANGE);
}

// --- The list

void QVGridCtrl::HideListBox() {
    if (m_pList == nullptr || m_pList->m_hWnd == nullptr) {
        return;
    }
    m_pList->Follow(false);
    if (::GetCapture() == m_pList->m_hWnd) {
        ::ReleaseCapture();
    }
    m_pList->ShowWindow(SW_HIDE);
    m_bEditing = FALSE;
    m_bBtnDown = FALSE;
}

// Whether the selected line is another text than the cell's, which it is then.
bool QVGridCtrl::KeepChosenLine() {
    const int nLine = m_pList->GetCurSel();
    if (nLine == LB_ERR || !IsValidRow(m_nCurRow)) {
        return false;
    }
    CString strLine;
    CString strCell;
    m_pList->GetText(nLine, strLine);
    ReadCell(m_nCurRow, m_nCurCol, strCell);
    if (_mbscmp(reinterpret_cast<const unsigned char*>(static_cast<LPCSTR>(strLine)),
                reinterpret_cast<const unsigned char*>(static_cast<LPCSTR>(strCell))) == 0) {
        return false;
    }
    SetCellText(m_nCurRow, m_nCurCol, strLine);
    return true;
}

// A choice that finds no memory is not made, and not told.
void QVGridCtrl::SaveListBox() {
    if (m_pList == nullptr || m_pList->m_hWnd == nullptr) {
        return;
    }
    const Watch watch(*this);
    bool bChosen = false;
    qv::MemorySuffices([&] { bChosen = KeepChosenLine(); });
    if (bChosen && watch) {
        NotifyParent(1);
    }
    if (watch && ListUp()) {
        HideListBox();  // unless the parent has done so, and perhaps opened the edit
    }
}

void QVGridCtrl::PopupList(CStringArray& strings) {
    if (m_hWnd == nullptr || !IsValidRow(m_nCurRow) || !IsValidColumn(m_nCurCol)) {
        return;
    }
    if (!MeasureRows() || !qv::MemorySuffices([&] { FillList(strings); })) {
        HideListBox();
        return;
    }
    m_pList->ShowWindow(SW_SHOWNA);
    m_pList->Follow(true);
    m_bEditing = TRUE;
}

// Hidden, with the choices, at its place, and with the line of the cell's text selected.
void QVGridCtrl::FillList(const CStringArray& strings) {
    if (m_pList == nullptr) {
        auto pList = std::make_unique<QVGridList>(*this);
        // The bar shows in a list that is limited in height alone.
        if (!pList->CreateEx(0, "LISTBOX", nullptr, WS_POPUP | WS_BORDER | WS_VSCROLL,
                             CRect(0, 0, 0, 0), this, 0)) {
            AfxThrowResourceException();
        }
        pList->SetOwner(this);
        pList->SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(m_hFont), FALSE);
        m_pList = std::move(pList);
    } else {
        m_pList->ShowWindow(SW_HIDE);
    }
    m_pList->ResetContent();
    for (INT_PTR i = 0; i < strings.GetSize(); ++i) {
        if (m_pList->InsertString(-1, strings[i]) < 0) {
            AfxThrowMemoryException();
        }
    }
    PlaceList();  // first: a selected line is scrolled to
    CString strCell;
    ReadCell(m_nCurRow, m_nCurCol, strCell);
    const int nLine = m_pList->FindStringExact(-1, strCell);
    if (nLine != LB_ERR) {
        m_pList->SetCurSel(nLine);
    }
}

void QVGridCtrl::TogglePopupList() {
    if (ListUp()) {
        SaveListBox();
    } else if (CStringArray* pList = GetColListData(m_nCurCol)) {
        PopupList(*pList);
    } else {
        NotifyParent(0);
    }
}

void QVGridCtrl::MoveListSelection(bool bDown) {
    if (m_pList != nullptr && m_pList->m_hWnd != nullptr) {
        m_pList->SetCurSel(qv::ListLineAfterKey(m_pList->GetCurSel(), bDown, m_pList->GetCount()));
    }
}

// --- Mouse

void QVGridCtrl::OnLButtonDown(UINT, CPoint pt) {
    int nRow;
    int nCol;
    BOOL bOnButton;
    CellFromPoint(pt, nRow, nCol, bOnButton);
    const Watch watch(*this);
    {
        // The focus that comes to the grid saves what the edit holds.
        const IgnoreFocus ignore(m_bIgnoreFocus, m_pAlive);
        const bool bInEditedCell = m_bEditing && IsValidRow(nRow) && IsCurrent(nRow, nCol);
        if (bInEditedCell && EditUp()) {
            m_pEdit->SetFocus();
        } else if (!bInEditedCell || !ListUp()) {
            SetFocus();
        }
        if (!watch) {
            return;
        }
    }
    if (!IsValidRow(nRow) || !IsValidColumn(nCol)) {
        Default();
        return;
    }
    const bool bDisabled = !IsCellEnabled(nRow, nCol);
    GotoCell(nRow, nCol, TRUE);
    if (!watch) {
        return;
    }
    InvalidateAll();
    if (bDisabled || m_bReadOnly || !IsCurrent(nRow, nCol) || IsLockedList(nRow, nCol)) {
        return;
    }
    if (GetColType(nCol) == gctDropList) {
        const BOOL bWasEditing = m_bEditing;
        TogglePopupList();
        if (watch && bWasEditing) {
            SetFocus();
        }
    } else if (bOnButton) {
        m_bBtnDown = m_bBtnOver = TRUE;
        CalcCellRect(nRow, nCol, m_rcBtn);
        ButtonRectFromCellRect(m_rcBtn);
        SetCapture();
        RowAt(nRow).dwState |= GRS_BUTTONDOWN;
    }
}

// Shows the button of the current cell pressed or raised.
void QVGridCtrl::PressButton(bool bPressed) {
    if (IsValidRow(m_nCurRow)) {
        unsigned& dwState = RowAt(m_nCurRow).dwState;
        dwState = bPressed ? dwState | GRS_BUTTONDOWN : dwState & ~GRS_BUTTONDOWN;
    }
}

void QVGridCtrl::OnMouseMove(UINT, CPoint pt) {
    const BOOL bOver = m_rcBtn.PtInRect(pt);
    if (m_bBtnDown && bOver != m_bBtnOver) {
        m_bBtnOver = bOver;
        PressButton(bOver != FALSE);
        if (bOver && ::GetCapture() != m_hWnd) {
            SetCapture();
        }
        if (m_bRedraw) {
            InvalidateRect(&m_rcBtn, FALSE);
        }
    }
    Default();
}

void QVGridCtrl::OnLButtonUp(UINT, CPoint pt) {
    const MSG msg = *GetCurrentMessage();
    const Watch watch(*this);
    if (m_bBtnDown) {
        if (::GetCapture() == m_hWnd) {
            ::ReleaseCapture();
        }
        PressButton(false);
        m_bBtnDown = FALSE;
        int nRow;
        int nCol;
        CellFromPoint(pt, nRow, nCol);
        if (m_rcBtn.PtInRect(pt)) {
            if (m_bRedraw) {
                InvalidateRect(&m_rcBtn, FALSE);
                UpdateWindow();
            }
            if (GetColType(nCol) == gctEditButton) {
                const IgnoreFocus ignore(m_bIgnoreFocus, m_pAlive);
                SaveEditCtrl();
            }
            if (watch && GetColType(nCol) != gctDropList) {
                NotifyParent(0);
            }
        }
    }
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
    Default();
    if (m_bBtnDown) {
        m_bBtnDown = FALSE;
        ::ReleaseCapture();
        PressButton(false);
        InvalidateRect(&m_rcBtn, TRUE);
    }
    m_bEditing = FALSE;  // an editor that is up stays on the screen
}

// --- Focus and keys

// Coming to the grid opens the editor at once, in a read-only grid and a disabled cell as well:
// only the column and the cell's own read-only style decide.
void QVGridCtrl::OnSetFocus(CWnd*) {
    const Watch watch(*this);
    Default();
    if (!watch || !IsValidRow(m_nCurRow)) {
        return;
    }
    if (m_bRedraw) {
        InvalidateCell(m_nCurRow, m_nCurCol, FALSE);
    }
    if (!m_bIgnoreFocus) {
        ActivateCell(m_nCurRow, m_nCurCol);
    }
}

void QVGridCtrl::OnKillFocus(CWnd*) {
    const Watch watch(*this);
    Default();
    if (watch && ListUp()) {
        SaveListBox();
    }
    if (watch && m_bRedraw) {
        InvalidateCell(m_nCurRow, m_nCurCol, FALSE);
    }
}

UINT QVGridCtrl::OnGetDlgCode() {
    return DLGC_WANTALLKEYS;
}

// Keys that act on an open list and not on the current cell.
bool QVGridCtrl::OwnKey(UINT nChar) {
    const bool bList = m_bEditing && GetColType(m_nCurCol) == gctDropList;
    if ((nChar == VK_UP || nChar == VK_DOWN) && bList && m_nCurRow != -1) {
        MoveListSelection(nChar == VK_DOWN);
        return true;
    }
    if (nChar == VK_ESCAPE && ListUp()) {
        HideListBox();
        return true;
    }
    return false;
}

void QVGridCtrl::OnKeyDown(UINT nChar, UINT, UINT) {
    const bool bOwn = OwnKey(nChar);
    const Watch watch(*this);
    qv::GridCell target = qv::KeyTarget(bOwn ? 0 : nChar, {m_nCurRow, m_nCurCol}, m_model,
                                        m_nTopRow, static_cast<int>(m_si.nPage));
    switch (nChar) {
        case VK_LEFT:
        case VK_RIGHT:
        case VK_UP:
        case VK_DOWN:
        case VK_HOME:
        case VK_END:
        case VK_NEXT:
        case VK_PRIOR:
            break;
        default:
            if (!bOwn) {
                Default();
            }
            break;
    }
    if (!watch || IsCurrent(target.nRow, target.nCol)) {
        return;
    }
    const IgnoreFocus ignore(m_bIgnoreFocus, m_pAlive);
    const unsigned nMove = m_nMoves;
    EnsureRowVisible(target.nRow);
    if (!watch || nMove != m_nMoves) {
        return;  // the parent was told of an open list's choice, and has led elsewhere
    }
    GotoCell(target.nRow, target.nCol, FALSE);
    if (watch && IsCurrent(target.nRow, target.nCol) && m_model.UsesEdit(target.nCol) &&
        IsCellEnabled(target.nRow, target.nCol) && !m_bReadOnly) {
        ActivateCell(target.nRow, target.nCol);
    }
}

// A key that opened the edit has left its character behind for the grid. What is not to be seen
// would only do harm there: it would act on a text that is selected as a whole.
void QVGridCtrl::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    constexpr UINT kDelete = 0x7F;
    if (nChar >= ' ' && nChar != kDelete && EditUp() && ::GetFocus() == m_pEdit->m_hWnd) {
        m_pEdit->SendMessage(WM_CHAR, nChar, MAKELPARAM(nRepCnt, nFlags));
    } else {
        Default();
    }
}

void QVGridCtrl::OnSysKeyDown(UINT nChar, UINT, UINT) {
    const bool bOpens =
        nChar == VK_DOWN && IsValidRow(m_nCurRow) && GetColType(m_nCurCol) == gctDropList &&
        IsCellEnabled(m_nCurRow, m_nCurCol) && !m_bReadOnly && !IsLockedList(m_nCurRow, m_nCurCol);
    if (!bOpens) {
        Default();
    } else if (m_bEditing) {
        SaveListBox();
    } else {
        const Watch watch(*this);
        EnsureRowVisible(m_nCurRow);
        if (watch) {
            TogglePopupList();
        }
    }
}

// --- QVGridEdit

BEGIN_MESSAGE_MAP(QVGridEdit, CEdit)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

// A dialog that comes to the front again gives the focus back to the window that had it, hidden
// meanwhile or not.
void QVGridEdit::OnSetFocus(CWnd*) {
    if (m_grid.EditUp()) {
        Default();
    } else {
        m_grid.SetFocus();  // opens it again
    }
}

void QVGridEdit::OnKillFocus(CWnd*) {
    const HWND hWnd = m_hWnd;
    const MSG msg = *GetCurrentMessage();
    m_grid.SaveEditCtrl();
    if (::IsWindow(hWnd)) {
        DefWindowProc(msg.message, msg.wParam, msg.lParam);
    }
}

bool QVGridEdit::LeavesCell(UINT nChar) {
    if (nChar == VK_UP || nChar == VK_DOWN) {
        return true;
    }
    int nStart;
    int nEnd;
    GetSel(nStart, nEnd);
    // In the units of the selection, which the bytes of the text are not everywhere.
    return nStart == nEnd &&
           ((nChar == VK_LEFT && nStart == 0) || (nChar == VK_RIGHT && nStart == LineLength(0)));
}

void QVGridEdit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (LeavesCell(nChar)) {
        GetParent()->SendMessage(WM_KEYDOWN, nChar, MAKELPARAM(nRepCnt, nFlags));
    } else {
        Default();
    }
}

// --- QVGridList

BEGIN_MESSAGE_MAP(QVGridList, CListBox)
    ON_WM_MOUSEACTIVATE()
    ON_WM_KILLFOCUS()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

void QVGridList::OnKillFocus(CWnd*) {
    const HWND hWnd = m_hWnd;
    const MSG msg = *GetCurrentMessage();
    m_grid.SaveListBox();
    if (::IsWindow(hWnd)) {
        DefWindowProc(msg.message, msg.wParam, msg.lParam);
    }
}

int QVGridList::OnMouseActivate(CWnd*, UINT, UINT) {
    return MA_NOACTIVATE;
}

// The choice is made by the release.
void QVGridList::OnLButtonDown(UINT, CPoint) {}

void QVGridList::OnLButtonUp(UINT, CPoint) {
    m_grid.SaveListBox();
}

void QVGridList::OnMouseMove(UINT, CPoint pt) {
    CRect rc;
    GetClientRect(&rc);
    if (rc.PtInRect(pt)) {
        BOOL bOutside;
        const int nLine = static_cast<int>(ItemFromPoint(pt, bOutside));
        if (GetCurSel() != nLine) {
            SetCurSel(nLine);
        }
        if (::GetCapture() != m_hWnd) {
            SetCapture();
        }
    } else {
        ::ReleaseCapture();
        SetCurSel(-1);
    }
    Default();
}
