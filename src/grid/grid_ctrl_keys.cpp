// The grid's expected keys: cells to the clipboard and back, undo and redo.

#include "grid/grid_ctrl.h"

#include "frame/clipboard.h"
#include "frame/edit_command.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "grid/grid_ctrl_core.h"

bool QVGridCtrl::Core::TakesEditKey(UINT nKey) {
    return m_grid.AreExpectedKeysEnabled() && m_grid.TakeExpectedKey(nKey, true);
}

void QVGridCtrl::Core::NoteEdit(qv::GridCell cell, const std::string& strBefore,
                                const std::string& strAfter) {
    deeds.Note(m_grid.AreExpectedKeysEnabled() != FALSE, cell, strBefore, strAfter);
}

bool QVGridCtrl::Core::HasTyped() const {
    const qv::GridCell cell = editing.CurrentCell();
    bool bTyped = false;
    qv::MemorySuffices([&] {
        const char* const pszKept = model.Text(cell.nRow, cell.nCol);
        bTyped = m_grid.AreExpectedKeysEnabled() && m_grid.IsValidRow(cell.nRow) &&
                 editing.IsTyping(cell) && edit.Text() != (pszKept != nullptr ? pszKept : "");
    });
    return bTyped;
}

// In the edit the keys are its own where they are about a part of its text.
bool QVGridCtrl::TakeExpectedKey(UINT nKey, bool bInEdit) {
    if (!IsValidRow(m_nCurRow) || !IsValidColumn(m_nCurCol)) {
        return false;
    }
    const qv::EditCommand command = qv::EditCommandOf(nKey, qv::HeldKeys());
    if (bInEdit) {
        int nStart;
        int nEnd;
        m_pCore->edit.GetSel(nStart, nEnd);
        std::string strText;
        const bool bEditsOwn = (command == qv::EditCommand::Copy && nStart != nEnd) ||
                               command == qv::EditCommand::Cut ||
                               (command == qv::EditCommand::Paste &&
                                (!qv::PasteText(*this, strText) || qv::IsOneCell(strText)));
        if (bEditsOwn) {
            return false;
        }
    }
    switch (command) {
        case qv::EditCommand::Copy:
            CopyCell();
            return true;
        case qv::EditCommand::Cut:
            CutCell();
            return true;
        case qv::EditCommand::Paste:
            PasteCells();
            return true;
        case qv::EditCommand::Undo:
            UndoEdit();
            return true;
        case qv::EditCommand::Redo:
            RedoEdit();
            return true;
        default:
            return false;
    }
}

BOOL QVGridCtrl::CopyCell() {
    bool bCopied = false;
    qv::MemorySuffices([&] {
        CString strText;
        if (IsValidRow(m_nCurRow) && IsValidColumn(m_nCurCol)) {
            ReadCell(m_nCurRow, m_nCurCol, strText);
            qv::SheetWriter sheet;
            sheet.AddCell(qv::View(strText));
            bCopied = qv::CopyText(
                *this, qv::IsOneCell(qv::View(strText)) ? qv::View(strText) : sheet.Text());
        }
    });
    return bCopied;
}

BOOL QVGridCtrl::CutCell() {
    const BOOL bCopied = CopyCell();
    if (bCopied) {
        qv::MemorySuffices([&] { m_pCore->deeds.Paste({m_nCurRow, m_nCurCol}, {{""}}); });
    }
    return bCopied;
}

void QVGridCtrl::PasteCells() {
    qv::MemorySuffices([&] {
        std::string strText;
        if (IsValidRow(m_nCurRow) && qv::PasteText(*this, strText)) {
            std::vector<qv::SheetRow> rows;
            if (qv::IsOneCell(strText)) {
                rows.push_back({strText.substr(0, strText.find_first_of("\r\n"))});
            } else {
                rows = qv::ReadSheet(strText);
            }
            m_pCore->deeds.Paste({m_nCurRow, m_nCurCol}, rows);
        }
    });
}

BOOL QVGridCtrl::UndoEdit() {
    bool bDone = false;
    qv::MemorySuffices([&] { bDone = m_pCore->deeds.Undo(); });
    return bDone;
}

BOOL QVGridCtrl::RedoEdit() {
    bool bDone = false;
    qv::MemorySuffices([&] { bDone = m_pCore->deeds.Redo(); });
    return bDone;
}

BOOL QVGridCtrl::CanUndoEdit() const {
    return m_pCore->HasTyped() || m_pCore->deeds.History().CanUndo();
}

BOOL QVGridCtrl::CanRedoEdit() const {
    return !m_pCore->HasTyped() && m_pCore->deeds.History().CanRedo();
}
