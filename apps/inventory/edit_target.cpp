#include "edit_target.h"

#include "QVControls.h"
#include "clipboard_text.h"
#include "pages/row_fields.h"

namespace {

using qv::EditCommand;

constexpr char kEditClass[] = "Edit";

bool IsEdit(HWND hWnd) {
    char szClass[sizeof(kEditClass) + 1] = "";
    ::GetClassName(hWnd, szClass, sizeof(szClass));
    return ::lstrcmpi(szClass, kEditClass) == 0;
}

bool HasSelection(HWND hEdit) {
    DWORD dwStart = 0;
    DWORD dwEnd = 0;
    ::SendMessage(hEdit, EM_GETSEL, reinterpret_cast<WPARAM>(&dwStart),
                  reinterpret_cast<LPARAM>(&dwEnd));
    return dwStart != dwEnd;
}

// What is about the text of an edit.
void DoInEdit(HWND hEdit, EditCommand command) {
    switch (command) {
        case EditCommand::SelectAll:
            ::SendMessage(hEdit, EM_SETSEL, 0, -1);
            break;
        case EditCommand::Copy:
            ::SendMessage(hEdit, WM_COPY, 0, 0);
            break;
        case EditCommand::Cut:
            ::SendMessage(hEdit, WM_CUT, 0, 0);
            break;
        case EditCommand::Paste:
            ::SendMessage(hEdit, WM_PASTE, 0, 0);
            break;
        default:
            break;
    }
}

// The platform's edit, in a combo box as well.
class TextField : public EditTarget {
public:
    TextField(HWND hEdit, UndoneText& undone) : m_hEdit(hEdit), m_undone(undone) {}

    bool Can(EditCommand command) override {
        const auto nStyle = ::GetWindowLong(m_hEdit, GWL_STYLE);
        const bool bWrites = (nStyle & ES_READONLY) == 0;
        const bool bShown = (nStyle & ES_PASSWORD) == 0;
        switch (command) {
            case EditCommand::SelectAll:
                return ::GetWindowTextLength(m_hEdit) > 0;
            case EditCommand::Copy:
                return bShown && HasSelection(m_hEdit);
            case EditCommand::Cut:
                return bShown && bWrites && HasSelection(m_hEdit);
            case EditCommand::Paste:
                return bWrites && ClipboardHasText();
            case EditCommand::Undo:
                return CanTakeBack() && !IsUndone();
            case EditCommand::Redo:
                return CanTakeBack() && IsUndone();
            default:
                return false;
        }
    }

    void Do(EditCommand command) override {
        switch (command) {
            case EditCommand::Undo:
                ::SendMessage(m_hEdit, EM_UNDO, 0, 0);
                m_undone = {m_hEdit, Text()};
                break;
            case EditCommand::Redo:
                ::SendMessage(m_hEdit, EM_UNDO, 0, 0);
                m_undone = {};
                break;
            default:
                DoInEdit(m_hEdit, command);
                break;
        }
    }

    bool HasKey(EditCommand) const override { return false; }
    bool KeepsKeys() const override { return true; }

private:
    bool CanTakeBack() const { return ::SendMessage(m_hEdit, EM_CANUNDO, 0, 0) != 0; }
    CString Text() const {
        CString strText;
        if (::IsWindow(m_hEdit)) {
            CWnd::FromHandle(m_hEdit)->GetWindowText(strText);
        }
        return strText;
    }
    bool IsUndone() const { return m_undone.hEdit == m_hEdit && m_undone.strText == Text(); }

    HWND m_hEdit;
    UndoneText& m_undone;
};

// The grid, or the edit of a cell in it.
class GridCells : public EditTarget {
public:
    GridCells(QVGridCtrl& grid, HWND hFocus)
        : m_grid(grid), m_hEdit(hFocus != grid.m_hWnd ? hFocus : nullptr) {}

    bool Can(EditCommand command) override {
        const int nRow = m_grid.CurrentRow();
        const int nCol = m_grid.CurrentColumn();
        const bool bWrites = m_hEdit != nullptr || (m_grid.GetColType(nCol) != gctStatic &&
                                                    m_grid.IsCellEnabled(nRow, nCol) &&
                                                    !m_grid.IsCellReadOnly(nRow, nCol));
        switch (command) {
            case EditCommand::SelectAll:
                return m_hEdit != nullptr && ::GetWindowTextLength(m_hEdit) > 0;
            case EditCommand::Copy:
                return nRow >= 0;
            case EditCommand::Cut:
                return nRow >= 0 && bWrites && (m_hEdit == nullptr || HasSelection(m_hEdit));
            case EditCommand::Paste:
                return nRow >= 0 && bWrites && ClipboardHasText();
            case EditCommand::Undo:
                return m_grid.CanUndoEdit() != FALSE;
            case EditCommand::Redo:
                return m_grid.CanRedoEdit() != FALSE;
            default:
                return false;
        }
    }

    // As the keys do: in a cell that is being typed in, what is about its text is the edit's own.
    void Do(EditCommand command) override {
        if (IsOfTheEdit(command)) {
            DoInEdit(m_hEdit, command);
            return;
        }
        switch (command) {
            case EditCommand::Copy:
                m_grid.CopyCell();
                break;
            case EditCommand::Cut:
                m_grid.CutCell();
                break;
            case EditCommand::Paste:
                m_grid.PasteCells();
                break;
            case EditCommand::Undo:
                m_grid.UndoEdit();
                break;
            case EditCommand::Redo:
                m_grid.RedoEdit();
                break;
            default:
                break;
        }
    }

    bool HasKey(EditCommand command) const override { return command != EditCommand::SelectAll; }

private:
    bool IsOfTheEdit(EditCommand command) const {
        switch (command) {
            case EditCommand::SelectAll:
            case EditCommand::Cut:
                return m_hEdit != nullptr;
            case EditCommand::Copy:
                return m_hEdit != nullptr && HasSelection(m_hEdit);
            case EditCommand::Paste:
                return m_hEdit != nullptr && ClipboardText(m_grid).FindOneOf("\t\r\n") < 0;
            default:
                return false;
        }
    }

    QVGridCtrl& m_grid;
    HWND m_hEdit;  // null: none is open
};

class TextLines : public EditTarget {
public:
    explicit TextLines(QVTextWnd& text) : m_text(text) {}
    bool Can(EditCommand command) override {
        return command == EditCommand::Copy        ? m_text.HasSelection() != FALSE
               : command == EditCommand::SelectAll ? m_text.NumLines() > 0
                                                   : false;
    }
    void Do(EditCommand command) override {
        if (command == EditCommand::Copy) {
            m_text.CopySelection();
        } else {
            m_text.SelectAll();
        }
    }

private:
    QVTextWnd& m_text;
};

class ListRows : public EditTarget {
public:
    explicit ListRows(QVListCtrlEx& list) : m_list(list) {}
    bool Can(EditCommand command) override {
        return command == EditCommand::Copy ? m_list.GetSelectedCount() > 0
               : command == EditCommand::SelectAll
                   ? (m_list.GetStyle() & LVS_SINGLESEL) == 0 && m_list.GetItemCount() > 0
                   : false;
    }
    void Do(EditCommand command) override {
        if (command == EditCommand::Copy) {
            m_list.CopySelection();
        } else {
            m_list.SelectAllRows();
        }
    }

private:
    QVListCtrlEx& m_list;
};

class BoxRows : public EditTarget {
public:
    explicit BoxRows(QVBitmapListBox& box) : m_box(box) {}
    bool Can(EditCommand command) override {
        constexpr DWORD kSeveral = LBS_MULTIPLESEL | LBS_EXTENDEDSEL;
        const bool bSeveral = (m_box.GetStyle() & kSeveral) != 0;
        return command == EditCommand::Copy
                   ? (bSeveral ? m_box.GetSelCount() > 0 : m_box.GetCurSel() >= 0)
               : command == EditCommand::SelectAll ? bSeveral && m_box.GetCount() > 0
                                                   : false;
    }
    // The parent hears of what the user has selected, as from a key.
    void Do(EditCommand command) override {
        if (command == EditCommand::Copy) {
            m_box.CopySelection();
            return;
        }
        m_box.SetSel(-1);
        m_box.GetParent()->SendMessage(
            WM_COMMAND, MAKEWPARAM(static_cast<UINT>(m_box.GetDlgCtrlID()), LBN_SELCHANGE),
            reinterpret_cast<LPARAM>(m_box.m_hWnd));
    }

private:
    QVBitmapListBox& m_box;
};

// The row that is selected, as it shows.
class TreeRow : public EditTarget {
public:
    explicit TreeRow(QVTreeCtrlEx& tree) : m_tree(tree) {}
    bool Can(EditCommand command) override {
        return command == EditCommand::Copy && m_tree.GetSelectedItem() != nullptr;
    }
    void Do(EditCommand) override {
        CString strRow;
        for (const std::string& strField :
             FieldsOf(m_tree, m_tree.GetItemText(m_tree.GetSelectedItem()))) {
            strRow += (strRow.IsEmpty() ? "" : "\t") + CString(strField.c_str());
        }
        CopyText(m_tree, strRow + "\r\n");
    }
    bool HasKey(EditCommand) const override { return false; }

private:
    QVTreeCtrlEx& m_tree;
};

// The object of a window of the library's; null for any other.
template <class Control>
Control* As(HWND hWnd) {
    return dynamic_cast<Control*>(CWnd::FromHandlePermanent(hWnd));
}

}  // namespace

std::unique_ptr<EditTarget> EditTargetAt(HWND hWnd, UndoneText& undone) {
    if (hWnd == nullptr) {
        return nullptr;
    }
    if (auto* pGrid = As<QVGridCtrl>(IsEdit(hWnd) ? ::GetParent(hWnd) : hWnd)) {
        return std::make_unique<GridCells>(*pGrid, hWnd);
    }
    if (IsEdit(hWnd)) {
        return std::make_unique<TextField>(hWnd, undone);
    }
    if (auto* pText = As<QVTextWnd>(hWnd)) {
        return std::make_unique<TextLines>(*pText);
    }
    if (auto* pList = As<QVListCtrlEx>(hWnd)) {
        return std::make_unique<ListRows>(*pList);
    }
    if (auto* pBox = As<QVBitmapListBox>(hWnd)) {
        return std::make_unique<BoxRows>(*pBox);
    }
    if (auto* pTree = As<QVTreeCtrlEx>(hWnd)) {
        return std::make_unique<TreeRow>(*pTree);
    }
    return nullptr;
}
