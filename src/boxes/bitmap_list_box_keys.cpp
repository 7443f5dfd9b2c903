// The list box's expected keys: type-ahead, all rows, copying.

#include "boxes/bitmap_list_box.h"

#include "boxes/core/box_row.h"
#include "boxes/list_rows.h"
#include "frame/clipboard.h"
#include "frame/core/sheet_text.h"
#include "frame/core/styled_text.h"
#include "frame/core/typed_search.h"
#include "frame/edit_command.h"
#include "frame/notify.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"

// Where the parent wants keys, all of them are its own.
void QVBitmapListBox::OnKeyDown(UINT nChar, UINT, UINT) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const qv::HeldKeys held;
    Default();
    if (!watch || !AreExpectedKeysEnabled() || (GetStyle() & LBS_WANTKEYBOARDINPUT) != 0) {
        return;
    }
    const qv::EditCommand command = qv::EditCommandOf(nChar, held);
    if (command == qv::EditCommand::SelectAll && HasSeveralSelected() && GetCount() > 0) {
        SetSel(-1);
        if (watch) {
            TellSelection();
        }
    } else if (command == qv::EditCommand::Copy) {
        CopySelection();
    }
}

void QVBitmapListBox::OnChar(UINT nChar, UINT, UINT) {
    if (!AreExpectedKeysEnabled() || !TakeTypedChar(nChar)) {
        Default();
    }
}

void QVBitmapListBox::TellSelection() {
    if ((GetStyle() & LBS_NOTIFY) != 0) {
        qv::CommandParent(*this, m_alive, LBN_SELCHANGE);
    }
}

bool QVBitmapListBox::TakeTypedChar(UINT nChar) {
    const auto answer =
        Typed().Type(static_cast<unsigned char>(nChar), static_cast<unsigned>(::GetMessageTime()));
    if (answer != qv::TypedSearch::Answer::Searches) {
        return answer != qv::TypedSearch::Answer::NotTyped;
    }
    const bool bByCaret = HasSeveralSelected() || (GetStyle() & LBS_NOSEL) != 0;
    const int nCurrent = bByCaret ? GetCaretIndex() : GetCurSel();
    CString strStored;
    const int nFound = Typed().Find(GetCount(), nCurrent, [&](int nRow) {
        strStored = Stored(nRow);
        // What stands behind the text begins with a TAB, which nobody types.
        const std::string_view text = qv::SplitBoxRow(qv::View(strStored), Place()).text;
        return ParseStyleText(text.empty() ? "" : text.data());
    });
    if (nFound != -1 && (nFound != nCurrent || GetSel(nFound) <= 0)) {
        GoToRow(nFound);
    }
    return true;
}

// As an arrow key leads to a row.
void QVBitmapListBox::GoToRow(int nRow) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if ((GetStyle() & LBS_NOSEL) != 0) {
        qv::GoToListRow(m_hWnd, nRow);
        return;
    }
    if (!HasSeveralSelected()) {
        SetCurSel(nRow);
    } else if ((GetStyle() & LBS_EXTENDEDSEL) != 0) {
        SetSel(-1, FALSE);
        if (watch) {
            SetSel(nRow);
        }
        if (watch) {
            SetAnchorIndex(nRow);
            SetCaretIndex(nRow, FALSE);
        }
    } else {
        SetCaretIndex(nRow, FALSE);  // rows are selected one by one, by the blank
        return;
    }
    if (watch) {
        TellSelection();
    }
}

int QVBitmapListBox::CopySelection() {
    bool bCopied = false;
    qv::MemorySuffices([&] {
        qv::SheetWriter sheet;
        for (int nRow = 0; nRow < GetCount(); ++nRow) {
            if (GetSel(nRow) <= 0) {
                continue;
            }
            const CString strStored = Stored(nRow);
            const std::string_view text = qv::SplitBoxRow(qv::View(strStored), Place()).text;
            std::string_view field;
            for (int nPos = 0, nStyle; qv::NextField(text, nPos, field);) {
                sheet.AddCell(m_aStyles.ParseField(field, nStyle));
            }
            sheet.EndRow();
        }
        bCopied = !sheet.Text().empty() && qv::CopyText(*this, sheet.Text());
    });
    return bCopied;
}
