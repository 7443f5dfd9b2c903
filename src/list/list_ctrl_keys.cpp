// The list's expected keys: type-ahead, all rows, copying, sorting.

#include "list/list_ctrl.h"

#include "frame/clipboard.h"
#include "frame/core/sheet_text.h"
#include "frame/core/typed_search.h"
#include "frame/edit_command.h"
#include "frame/out_of_memory.h"
#include "frame/redraw_pause.h"

// The control sees every key, and its parent is told of it. Characters are the control's own only
// where they find no row.
void QVListCtrlEx::OnKeyDown(UINT nChar, UINT, UINT) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const qv::HeldKeys held;
    Default();
    if (!watch || !AreExpectedKeysEnabled()) {
        return;
    }
    const qv::EditCommand command = qv::EditCommandOf(nChar, held);
    if (command == qv::EditCommand::SelectAll) {
        SelectAllRows();
    } else if (command == qv::EditCommand::Copy) {
        CopySelection();
    } else if (held.bControl && !held.bShift && !held.bMenu && nChar >= '0' && nChar <= '9') {
        ClickHeading(nChar == '0' ? 9 : static_cast<int>(nChar - '1'));
    }
}

void QVListCtrlEx::OnChar(UINT nChar, UINT, UINT) {
    bool bTaken = false;
    const qv::WindowWatch watch(m_alive, m_hWnd);
    qv::MemorySuffices([&] { bTaken = AreExpectedKeysEnabled() && TakeTypedChar(nChar); });
    if (!bTaken && watch) {
        Default();
    }
}

bool QVListCtrlEx::TakeTypedChar(UINT nChar) {
    const qv::TypedSearch& typed = Typed();
    const auto answer =
        Typed().Type(static_cast<unsigned char>(nChar), static_cast<unsigned>(::GetMessageTime()));
    if (answer != qv::TypedSearch::Answer::Searches) {
        return answer != qv::TypedSearch::Answer::NotTyped;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const int nCurrent = GetNextItem(-1, LVNI_FOCUSED);
    int nFirstShown = FirstTextColumn();
    while (nFirstShown + 1 < NumColumns() && GetColWidth(nFirstShown, nullptr) == 0) {
        ++nFirstShown;
    }
    const int nFound = typed.Find(GetItemCount(), nCurrent, [&](int nItem) {
        LPCSTR pszText = CellText(nItem, nFirstShown);
        return watch ? ParseStyleText(pszText) : nullptr;  // a parent may be asked for the text
    });
    if (!watch || nFound == -1) {
        return true;
    }
    // As an arrow key leads to a row.
    constexpr UINT kStates = LVIS_SELECTED | LVIS_FOCUSED;
    {
        const qv::RedrawPause pause(*this, PausesFor(static_cast<int>(GetSelectedCount())));
        for (int nOld = -1; watch && (nOld = GetNextItem(nOld, LVNI_SELECTED)) != -1;) {
            if (nOld != nFound) {
                SetItemState(nOld, 0, LVIS_SELECTED);
            }
        }
    }
    if (watch) {
        SetItemState(nFound, kStates, kStates);
    }
    if (watch) {
        SetSelectionMark(nFound);
        EnsureVisible(nFound, FALSE);
    }
    return true;
}

// One by one: not every platform's list lives through a parent that takes it away in the middle of
// all at once, which one over an application's rows alone can do fast.
void QVListCtrlEx::SelectAllRows() {
    if ((GetStyle() & LVS_SINGLESEL) != 0) {
        return;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const qv::RedrawPause pause(*this, PausesFor(GetItemCount()));
    if ((GetStyle() & LVS_OWNERDATA) != 0) {
        SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
        return;
    }
    for (int nItem = 0; watch && nItem < GetItemCount(); ++nItem) {
        SetItemState(nItem, LVIS_SELECTED, LVIS_SELECTED);
    }
}

BOOL QVListCtrlEx::CopySelection() {
    bool bCopied = false;
    const qv::WindowWatch watch(m_alive, m_hWnd);
    qv::MemorySuffices([&] {
        qv::SheetWriter sheet;
        for (int nItem = -1; watch && (nItem = GetNextItem(nItem, LVNI_SELECTED)) != -1;) {
            for (int nCol = FirstTextColumn(); watch && nCol < NumColumns(); ++nCol) {
                LPCSTR pszText = CellText(nItem, nCol);
                sheet.AddCell(watch ? ParseStyleText(pszText) : "");
            }
            sheet.EndRow();
        }
        bCopied = watch && !sheet.Text().empty() && qv::CopyText(*this, sheet.Text());
    });
    return bCopied;
}

// The parent is told as of a click; the click is handled on its way through it.
void QVListCtrlEx::ClickHeading(int nPlace) {
    const HWND hHeadings = ListView_GetHeader(m_hWnd);
    if ((GetStyle() & (LVS_NOCOLUMNHEADER | LVS_NOSORTHEADER)) != 0 ||
        nPlace >= Header_GetItemCount(hHeadings)) {
        return;
    }
    NMLISTVIEW click{};
    click.hdr.hwndFrom = m_hWnd;
    click.hdr.idFrom = static_cast<UINT>(GetDlgCtrlID());
    click.hdr.code = LVN_COLUMNCLICK;
    click.iItem = -1;
    click.iSubItem = static_cast<int>(
        ::SendMessage(hHeadings, HDM_ORDERTOINDEX, static_cast<WPARAM>(nPlace), 0));
    ::SendMessage(ToldWindow(), WM_NOTIFY, click.hdr.idFrom, reinterpret_cast<LPARAM>(&click));
}
