// QVGridCtrl: a small grid whose cells are edited in place: typed columns, any number of rows, one
// editor at a time. It has no headings and does not scroll sideways.
//
// Use it as a data store first (AddColumn, AddRow), then make its window with Create, or name the
// window class "QVGridCtrl" in a dialog template, register that class before the dialog comes up,
// and attach with Initialize.
//
// It tells its parent by WM_COMMAND under its own id, with its window handle in lParam and in the
// high word of wParam: 0 - the button of a cell was clicked, or a drop-list cell without choices
// was opened, which PopupList answers; 1 - a drop list has changed the cell; EN_CHANGE - the text
// being typed has changed. Nothing tells that typed text was saved: GetCellText gives it while it
// is being typed.
//
// What is typed is saved as the focus leaves, another cell is chosen, the scroll bar is used, the
// cell's button is clicked or the window is destroyed. It is dropped when the cell is disabled or
// made read-only, when its row is deleted, and, in a drop list, by Escape. Where code scrolls or a
// window is moved or resized, editors follow their cells.
//
// With EnableExpectedKeys, beside the arrows and the ends: Ctrl+C and Ctrl+Insert copy the current
// cell, Ctrl+X and Shift+Delete cut it, Ctrl+V and Shift+Insert paste what a spreadsheet copied,
// from the current cell on; Ctrl+Z takes the last edits back, one by one, Ctrl+Y and Ctrl+Shift+Z
// make them again. While a text is typed and a part of it is selected, copying and cutting are
// about that part. Each cell goes the way of a typed one, with all that the parent is told; cells
// that cannot be edited by hand are left alone, and so is a drop list that does not have the text.
// A hundred edits are kept; those of a program are none.
//
// Screen readers hear a table of rows and cells: see docs/accessibility.md. What they do goes the
// way of a user's deeds.
//
// Without memory: AddColumn, AddRow and SetCellText throw CMemoryException, and leave what was
// there. All other operations tell it by their result, or leave things as they are: an editor stays
// closed, and one whose text cannot be saved stays open with it.
//
// Ownership: arrays of choices are the caller's and must outlive their use; the grid owns its
// texts, which it keeps until it is destroyed, rows deleted or not, and its editors.
// Coordinates are client pixels.

#pragma once

#include "frame/accessible.h"
#include "frame/cust_ctrl.h"
#include "frame/expected_keys.h"
#include "grid/grid_records.h"

#include <afxwin.h>

#include <memory>
#include <string>

class QV_CONTROLS_API QVGridCtrl : public QVCustCtrl,
                                   public QVExpectedKeys,
                                   public QVAccessible,
                                   protected QVGridState {
    DECLARE_DYNCREATE(QVGridCtrl)

public:
    QVGridCtrl();
    ~QVGridCtrl() override;

    // Registers the window class "QVGridCtrl" for a module, null meaning the program, or for the
    // module that holds a dialog template. Throws CResourceException if the system refuses.
    static void RegisterControlClass(HINSTANCE hInstance);
    static void RegisterDlgControlClass(UINT nDialogID);

    // --- Columns. Bad indices read 0 and write nothing.

    // At the right end; gives its index. Earlier cells keep their texts.
    int AddColumn(GridColType nType, int nWidth);
    int NumColumns() const;
    // In pixels. The last column is drawn to the window's edge, whatever its width. Repaints.
    int GetColWidth(int nCol) const;
    void SetColWidth(int nCol, int nWidth);
    // Neither repaints nor closes an editor.
    GridColType GetColType(int nCol) const;
    void SetColType(int nCol, GridColType nType);
    // The choices of a drop-list column, not owned. Null: the parent is asked.
    CStringArray* GetColListData(int nCol) const;
    void SetColListData(int nCol, CStringArray* pList);
    // The caller's value, 0 at first.
    DWORD_PTR GetColumnData(int nCol) const;
    void SetColumnData(int nCol, DWORD_PTR dwData);
    // Fits the column to its texts or to the given ones, with room for a button, and to nMinWidth
    // at least. Gives the width; 0 without memory, the column keeping its own.
    int AutoSizeColumn(int nCol, int nMinWidth);
    int SizeToStrings(int nCol, const CStringArray& strings, int nMinWidth);

    // --- Rows

    // Whether an added row is painted by itself. Off, it shows with the next paint of its place, or
    // as the scroll bar moves; that is how it has always been.
    void SetShowAddedRows(BOOL bShow) { m_bShowAddedRows = bShow; }
    // A row of TAB-separated texts, given or loaded; gives its index. Texts beyond the columns are
    // dropped, missing ones are empty. dwState: GRS_ bits, normally 0.
    int AddRow(const CString& strRow, DWORD dwState);
    int AddRow(UINT nStringID, DWORD dwState);
    // An editor that is open stays until the focus leaves it; what it holds is dropped then.
    void DeleteAllRows();
    int NumRows() const;
    // Of the current cell; -1 if there is none.
    int CurrentRow() const { return m_nCurRow; }
    int CurrentColumn() const { return m_nCurCol; }
    // The caller's value, 0 at first. A bad index reads 0 and writes nothing.
    DWORD_PTR GetRowData(int nRow) const;
    void SetRowData(int nRow, DWORD_PTR dwData);

    // --- Cells. Where there is none, nothing is written.

    // What is being typed in the cell, or its text. 0 for a cell that never had a text, and, with
    // str as it was, where there is no such cell or no memory.
    BOOL GetCellText(int nRow, int nCol, CString& str);
    // Into the edit as well where the cell is being typed in, which tells of a change. Repaints.
    void SetCellText(int nRow, int nCol, const CString& str);
    // A cell that is of another type than its column, until the rows are deleted: so that one
    // column holds settings of several kinds. Neither repaints nor closes an editor. Throws
    // CMemoryException.
    GridColType GetCellType(int nRow, int nCol) const;
    void SetCellType(int nRow, int nCol, GridColType nType);
    // The caller's value, 0 at first and where there is no such cell.
    DWORD_PTR GetItemData(int nRow, int nCol) const;
    void SetItemData(int nRow, int nCol, DWORD_PTR dwData);
    // Disabling a cell, or making it read-only, drops what is being typed in it. A cell that there
    // is not is enabled, and not read-only.
    void EnableCell(int nRow, int nCol, BOOL bEnable);
    BOOL IsCellEnabled(int nRow, int nCol) const;
    void SetCellReadOnly(int nRow, int nCol, BOOL bReadOnly);
    BOOL IsCellReadOnly(int nRow, int nCol) const;
    // Whether a drop-list cell that is read-only by itself stays closed, tells nothing and shows no
    // button. Off, it opens like any other; that is how it has always been.
    void SetLockReadOnlyLists(BOOL bLock);
    // Of the whole grid. Neither repaints nor closes an editor. An edit column still opens as the
    // grid gets the focus; that is how it has always been.
    void SetReadOnly(BOOL bReadOnly) { m_bReadOnly = bReadOnly; }

    // --- Current cell

    // Makes a cell current, and keeps what an open editor holds. bActivate opens the cell's edit,
    // if it has one and may be edited. Without effect where there is no such cell.
    void GotoCell(int nRow, int nCol, BOOL bActivate);
    // Scrolls as far as it must.
    void EnsureRowVisible(int nRow);
    // Shows choices under the current cell, with the line of its text selected. They are copied.
    void PopupList(CStringArray& strings);
    // How many lines of a list show at most; the list scrolls to the others, and keeps to the
    // screen. 0 is no limit: as tall as its choices, wherever that ends, as it has always been. For
    // the next list that opens.
    void SetMaxListLines(int nLines);

    // --- What the expected keys do, for menus. Undo and redo know what was edited while the keys
    // were enabled. The grid may be gone afterwards, as the parent is told.

    // 0 without a current cell, or if the clipboard is another's. A cell that cannot be edited by
    // hand is copied by CutCell, and stays.
    BOOL CopyCell();
    BOOL CutCell();
    void PasteCells();
    // 0 if there was nothing to take back or make again.
    BOOL UndoEdit();
    BOOL RedoEdit();
    // Whether there is something. What is being typed can be taken back, and ends what could be
    // made again.
    BOOL CanUndoEdit() const;
    BOOL CanRedoEdit() const;

    // --- What a screen reader is told

    // Headings of the columns, with TABs between: a cell is named by them, and by the first cell of
    // its row if that is a text alone ("colour, Value").
    void SetAccessibleHeadings(const CString& strHeadings) { m_strHeadings = strHeadings; }
    const CString& GetAccessibleHeadings() const { return m_strHeadings; }
    // The number of a cell, as long as no column is added; column -1: of the row. 0 if there is no
    // such cell.
    long GetCellPart(int nRow, int nCol) const;
    // Column -1: the part is a row. FALSE, and both as they were, for a part that there is not.
    BOOL GetPartCell(long nPart, int& nRow, int& nCol) const;

    // Of a row: the first cell's text. Of a cell: its headings, or its text if there are none.
    CString GetAccessibleName(long nPart) override;
    // A cell's text: what is being typed, or the line selected in its list.
    CString GetAccessibleValue(long nPart) override;
    // Of a row: the other cells, with their headings.
    CString GetAccessibleDescription(long nPart) override;
    // "Press", "Edit", "Open" or "Close" of a cell. A press comes with the messages that are posted.
    CString GetAccessibleAction(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    long GetAccessibleState(long nPart) override;
    BOOL GetAccessibleRect(long nPart, CRect& rect) override;
    // Each row, its cells behind it.
    long GetAccessibleCount() override;
    long AccessibleHitTest(CPoint pt) override;
    // Up and down in the column, left and right in the row; the children of a row are its cells.
    long NavigateAccessible(long nPart, long nDirection) override;
    long GetNextAccessibleSelected(long nPart) override;
    BOOL SelectAccessible(long nPart, long nFlags) override;
    BOOL DoAccessibleAction(long nPart) override;
    // As typed, or chosen from the list.
    BOOL SetAccessibleValue(long nPart, const CString& strValue) override;

protected:
    // --- Painting. dc has the grid's font and m_penGrid selected.

    void Draw(CDC& dc, const CRect& rcClient) override;
    // bFocus: the focus is on the grid itself, and the current cell shows it.
    void DrawRow(CDC& dc, int nRow, const CRect& rcRow, BOOL bFocus);
    // The text, nButtonWidth pixels being left free at the right, and the lines. dwStyle: GCS_
    // bits.
    void DrawCell(CDC& dc, const CRect& rc, const CString& str, DWORD dwStyle, int nButtonWidth);
    void DrawButton(CDC& dc, const CRect& rc, GridColType nType, BOOL bPressed);

    // --- The store

    BOOL IsValidRow(int nRow) const;
    BOOL IsValidColumn(int nCol) const;
    // Whether cells of the column have a button; 0 for a bad index.
    BOOL UseFieldButton(int nCol) const;
    _QVGRID_ROW_INFO& RowAt(int nRow);  // unchecked
    // The texts of a row string; no empty one behind a TAB at its end.
    void ParseRowString(const CString& strRow, CStringArray& fields) const;
    // GCS_ bits; 0 where there is no such cell.
    DWORD GetCellStyle(int nRow, int nCol) const;
    // TRUE if the style is another one then; the cell is repainted.
    BOOL ModifyCellStyle(int nRow, int nCol, DWORD dwAdd, DWORD dwRemove);

    // --- Where things lie

    // Measures the font: the grid's, or the parent's if it has none.
    void CalcCellHeight();
    void CalcRowRect(const CRect& rcClient, int nRow, CRect& rc);
    // rc stays as it is for a cell that there is not.
    void CalcCellRect(int nRow, int nCol, CRect& rc);
    // From a cell's rectangle, in place.
    void ButtonRectFromCellRect(CRect& rc);
    // Of the cell button that is being pressed, or was last.
    CRect PressedButtonRect() const;
    // Both -1 under the rows; column -1 right of the client area. bOnButton: where the cell's
    // button would be, current or not.
    void CellFromPoint(const CPoint& pt, int& nRow, int& nCol);
    void CellFromPoint(const CPoint& pt, int& nRow, int& nCol, BOOL& bOnButton);
    void InvalidateCell(int nRow, int nCol, BOOL bErase);
    void InvalidateRow(int nRow, BOOL bErase);

    // --- Scrolling. None goes beyond the first row or the last page.

    // Shows or hides the bar and sets its range. The top row stays.
    void CalcScrollBars();
    void ScrollUp(int nRows);
    void ScrollDown(int nRows);
    void ScrollTo(int nRow);

    // --- Editors. The grid may be gone afterwards, as the parent may be told.

    // Opens the edit of a cell that has one, and keeps what another editor holds.
    void ActivateCell(int nRow, int nCol);
    // Hide... drops what the editor holds, Save... keeps it.
    void HideEditCtrl();
    void SaveEditCtrl();
    void HideListBox();
    void SaveListBox();
    // Keeps a list that is open; else opens it, or asks the parent for choices.
    void TogglePopupList();
    // The editors' windows, which are made at first use: until then without a handle.
    CEdit& InPlaceEdit() const;
    CListBox& ChoiceList() const;

    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnVScroll(UINT nCode, UINT nPos, CScrollBar* pBar);
    afx_msg LRESULT OnSetRedraw(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint pt);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint pt);
    afx_msg void OnMouseMove(UINT nFlags, CPoint pt);
    afx_msg LRESULT OnNcHitTest(CPoint pt);
    afx_msg void OnCancelMode();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChangeEditText();
    afx_msg void OnDestroy();
    void DoPostedAccessible(long nPart) override;
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    int m_nCellHeight = -1;  // pixels; -1: measure before use
    int m_nTopRow = 0;       // -1 after DeleteAllRows, until the next row
    CPen m_penGrid;          // live for one Draw
    CBrush m_brWindow;
    CBrush m_brHighlight;
    HFONT m_hFont = nullptr;  // not owned
    BOOL m_bRedraw = TRUE;
    SCROLLINFO m_si{};  // nPage: whole rows that show

private:
    class Core;

    bool MeasureRows();  // if that is due; false without memory
    void RefitRows();
    bool CanRepaint() const { return m_bRedraw && m_hWnd != nullptr; }
    void InvalidateAll();
    void ShowTopRow(int nTop);
    bool ReadCell(int nRow, int nCol, CString& str) const;
    void DrawRows(CDC& dc, const CRect& rcClient);
    bool TakeExpectedKey(UINT nKey, bool bInEdit);
    void DropLocked(int nRow, int nCol, bool bLocked);
    std::string SpokenCell(int nRow, int nCol) const;
    std::string SpokenHeadings(int nRow, int nCol) const;

    std::unique_ptr<Core> m_pCore;
    BOOL m_bShowAddedRows = FALSE;
    CString m_strHeadings;
};
