// QVListCtrlEx: a report list on the platform's list control that draws itself, prints and exports.
//
// A row is one string in the shared row format (frame/styled_rows.h), a field for each column; each
// cell may have a style of its own. The platform's control keeps items, texts, selection and scroll
// position; item data are the caller's.
//
// A list starts in single-column mode: one column without heading, as wide as the widest row and at
// least as the window. The first AddHeader or CalcColsFromHeader ends that mode for good.
//
// With EnableExpectedKeys, beside the platform's keys: letters lead to the next row that begins
// with them, style codes aside; Ctrl+A selects all rows where several may be selected; Ctrl+C and
// Ctrl+Insert copy the selected ones; Ctrl+1 to Ctrl+9 and Ctrl+0 click the first to the tenth
// heading from the left, once more for the other direction where a click has one. The parent hears
// of every key as ever.
//
// On paper the list follows a protocol: SetPrintFonts, BeginPrinting, CalcPrintCols, then any
// number of PrintHeader and PrintItems, EndPrinting. A QVPrintEngine drives it; so can any caller.
//
// The parent may destroy the list's window or delete the list whenever it is told or asked
// something; what was under way then ends, and reports failure if it reports. In one notification
// the platform's own control does not live through it: LVN_DELETEITEM of a DeleteAllItems.
//
// Without memory nothing is thrown: what was there stays, and what reports failure reports it. The
// protected steps may throw, to whoever of the public operations called them.
//
// Screen readers hear the rows, part 1 being row 0, and behind them the headings: see
// docs/accessibility.md.
//
// Ownership: print fonts and image resources are the caller's; the image list is the control's.
// Widths are in pixels of the control's font, on paper in units of the printer's device context.

#pragma once

#include "frame/accessible.h"
#include "frame/alive.h"
#include "frame/expected_keys.h"
#include "frame/styled_rows.h"

#include <afxcmn.h>
#include <afxtempl.h>
#include <afxwin.h>

#include <memory>
#include <string>

class CStdioFile;
struct CPrintInfo;

namespace qv {
enum class Highlight;
class RowChanges;
struct RowLayout;
class RowsOnDemand;
}  // namespace qv

class QV_CONTROLS_API QVListCtrlEx : public CListCtrl,
                                     public QVStyledRows,
                                     public QVExpectedKeys,
                                     public QVAccessible {
    DECLARE_DYNCREATE(QVListCtrlEx)

public:
    QVListCtrlEx();
    ~QVListCtrlEx() override;

    // --- Creation: either Create, or Initialize for a control of a dialog template.

    // Window style for Create; call before it. At first a bordered report with one selected row at
    // a time, shown also without the focus.
    void SetDefStyle(DWORD dwStyle) { m_dwDefStyle = dwStyle; }
    void ModifyDefStyle(DWORD dwRemove, DWORD dwAdd);
    // With images cx pixels wide from a bitmap resource, crMask being transparent. A bitmap that
    // cannot be loaded leaves the list without images.
    BOOL Create(UINT nID, const CRect& rc, UINT nBitmapID, COLORREF crMask, int cx, CWnd* pParent);
    BOOL Create(UINT nID, const CRect& rc, CWnd* pParent);
    // Attaches to the dialog item nID if there is no window yet, and makes the control an
    // owner-drawn report. 0 if there is no such item, or no memory.
    virtual BOOL Initialize(UINT nID, UINT nBitmapID, COLORREF crMask, int cx, CWnd* pParent);
    BOOL Initialize(UINT nID, CWnd* pParent);

    // --- Columns

    // A column 60 pixels wide, left-aligned, for each field; several calls add up. Columns behind
    // index 20 are not made.
    void AddHeader(LPCSTR pszHeaders);
    void AddHeader(UINT nStringID);
    void ClearHeaders();
    // Forgets columns, alignments and styles; the control's columns stay.
    void ClearCols();
    // Single-column mode: fits the column. Otherwise asks CalcColWidths.
    virtual void SetupColumns();
    // Sets the widths through SetColWidth(nCol, nWidth, pWidths); gives the number of columns. A
    // step for derived classes: here it does nothing.
    virtual int CalcColWidths(CDC* pDC, int* pWidths);
    // Widens columns to a sample row. A field that ends in '*' marks the column that fills the
    // window, less a vertical scroll bar.
    void SetupColumnsFromString(const CString& strSample);
    // Sets each column to its field's width and 12 pixels, codes measured as they stand. Gives the
    // number of fields. A null table means the control's columns, here and below.
    int MakeColsFromString(CDC* pDC, const CString& strRow, int* pWidths);
    // Appends the headings with TABs between; gives their number, 0 without memory.
    int MakeHeaderString(CString& str);
    // Sets each column to its heading; nFillCol, unless -1, gets what the window has left.
    void CalcColsFromHeader(int nFillCol);
    int CalcDataWidth(int* pWidths);
    // Sum of the column widths, kept until a column changes.
    int GetDataWidth();
    int GetColWidth(int nCol, int* pWidths);
    void SetColWidth(int nCol, int nWidth, int* pWidths);
    int NumColumns() const;
    // Alignment of the cells: LVCFMT_LEFT, LVCFMT_RIGHT or LVCFMT_CENTER. Headings have their own.
    int GetColFormat(int nCol) const;
    void SetColFormat(int nCol, int nFormat);
    // The style whose background fills the column under the last row, and stands in where a cell's
    // style has a background of -1.
    int GetColStyle(int nCol) const;
    void SetColStyle(int nCol, int nStyle);
    int GetHdrFormat(int nCol);
    void SetHdrFormat(int nCol, int nFormat);
    // Called on a click on a heading.
    void SetSortMethod(void (*pfn)(int nCol, void* pData), void* pData);

    // --- Rows

    using QVStyledRows::AppendStyleText;
    // Inserts in front of the first row whose text is greater, or whose number is if bNumeric.
    // Gives the index, or -1. The style code of a row that is there takes part in the comparison,
    // that of the new row does not.
    int AddBitmapString(int nImage, LPCSTR pszText, BOOL bNumeric);
    // nIndex -1: at the end. An empty row shows "-".
    int InsertBitmapString(int nImage, int nIndex, LPCSTR pszText);
    // Columns without a field keep their text. 0 if there is no such row, or no memory.
    BOOL SetItemString(int nItem, LPCSTR pszText);
    // Empty columns at the start leave no TAB. 0, and str as it was, if there is no such row or no
    // memory.
    BOOL GetItemString(int nItem, CString& str);
    int GetImage(int nItem);
    BOOL SetImage(int nItem, int nImage);

    // --- Looks. None repaints.

    void SetImageCenterVertically(BOOL bCenter) { m_bImageCenterVert = bCenter; }
    // Column 0 holds the image alone, and rows begin at column 1.
    void SetImageFirstCol(BOOL bFirst);
    // The selection keeps its colour without the focus (with LVS_SHOWSELALWAYS).
    void SetAlwaysHighlightSel(BOOL bAlways) { m_bAlwaysHighlightSel = bAlways; }
    // FALSE draws selected rows as all others.
    void SetAllowSel(BOOL bAllow) { m_bAllowSel = bAllow; }

    // --- Selection

    // -1 unless exactly one row is selected.
    int GetSelectedItem();
    // Deselects the selected item and selects nItem; -1 only deselects. Always gives -1.
    int SelectItem(int nItem);
    // Remembers the selected rows by their item data; restoring selects the first row that has
    // each.
    void SaveSelections();
    void RestoreSelections();
    // The selected rows as text that spreadsheets take, without headings and style codes. 0 if
    // there is none, or no memory, or the clipboard is another's.
    BOOL CopySelection();
    // Nothing in a list that lets only one be selected. Many are drawn at once, at the end. The
    // parent is told of each; where rows are the application's, of all at once.
    void SelectAllRows();
    // Repaints the rows, not the headings.
    void InvalidateData(BOOL bErase);

    // --- Printing and export

    // Not owned; null prints in the font selected in the device context.
    void SetPrintFonts(CFont* pItemFont, CFont* pHeaderFont);
    virtual int HeaderPrintHeight(CDC* pDC);
    // Spreads nPageWidth over the columns that are printed, in proportion to their widths on
    // screen. Where these have no width at all, neither have they on paper. Gives the number of
    // columns, 0 without memory.
    virtual int CalcPrintCols(CDC* pDC, int nPageWidth);
    // The headings and a rule under them.
    virtual void PrintHeader(CDC* pDC, const CRect& rc);
    // As many rows as fit, from nFirst to nLast or from the page pInfo->m_nCurPage on; gives their
    // number. 0 for a row height of 0; without memory, those that were printed.
    virtual int PrintItems(CDC* pDC, UINT nFirst, UINT nLast, const CRect& rc);
    virtual int PrintItems(CDC* pDC, CPrintInfo* pInfo, const CRect& rc);
    virtual int CalculateItemHeight(CDC* pDC);
    virtual void BeginPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void EndPrinting(CDC* pDC, CPrintInfo* pInfo);
    // False once a heading or a row was left out, since BeginPrinting, for want of memory.
    BOOL IsPrintComplete() const;
    // For the life of the control. Exports are not affected.
    void ExcludeColumnFromPrinting(int nCol);
    BOOL IsColumnExcludedFromPrinting(int nCol) const;
    int CalcExcludedColsWidth();
    int GetPrintColWidth(int nCol);
    // A line for each row, chSeparator between the cells, codes removed, nothing quoted; empty
    // cells at the start of a row leave no separator. 0 if the file cannot be opened, or if memory
    // runs out, with the lines before in the file. Throws the framework's CFileException if writing
    // fails.
    virtual BOOL ExportData(LPCSTR pszPath, char chSeparator);

    void DrawItem(LPDRAWITEMSTRUCT lpDIS) override;

    // --- What a screen reader is told. A row's name is its first column that shows; the others
    // are the description, with their headings: "Size: 3 GB, Date: today".

    CString GetAccessibleName(long nPart) override;
    CString GetAccessibleDescription(long nPart) override;
    // "Double Click" of a row, "Click" of a heading.
    CString GetAccessibleAction(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    long GetAccessibleState(long nPart) override;
    BOOL GetAccessibleRect(long nPart, CRect& rect) override;
    BOOL IsAccessiblePart(long nPart) override;
    long GetAccessibleCount() override;
    long GetAccessiblePart(long nIndex) override;
    long GetAccessibleIndex(long nPart) override;
    long AccessibleHitTest(CPoint pt) override;
    long NavigateAccessible(long nPart, long nDirection) override;
    long GetAccessibleFocus() override;
    long GetNextAccessibleSelected(long nPart) override;
    BOOL SelectAccessible(long nPart, long nFlags) override;
    BOOL DoAccessibleAction(long nPart) override;
    void DoPostedAccessible(long nPart) override;

protected:
    // --- Steps that a derived class may replace, beside the public ones

    // pWidths is null on screen.
    virtual void DrawItemText(CDC* pDC, UINT nItem, const CRect& rc, BOOL bSelected, int* pWidths);
    virtual void DrawItemBitmap(CDC* pDC, UINT nItem, const CRect& rc);
    virtual void SortOnHeader(int nCol);
    virtual int CalculateItemWidth(CDC* pDC, int nItem);

    void OutputFormattedText(CDC* pDC, const CRect& rc, const CString& strText, BOOL bSelected,
                             UINT nFormat, BOOL bUseColors);
    BOOL FillEmptySpace(CDC* pDC);
    void CalcSingleColWidth();
    BOOL InReportMode();
    UINT GetColDrawFormat(int nCol) const;
    UINT GetHdrDrawFormat(int nCol);
    // The columns' widths on paper, from CalcPrintCols on: what DrawItemText is given there.
    int* PrintColWidths();
    // For a class that sets up its columns itself: how many there are, and that the sum of their
    // widths is no longer known.
    void SetNumColumns(int nColumns);
    void InvalidateDataWidth() { m_nDataWidth = -1; }
    // What WM_SETREDRAW said last.
    bool Redraws() const;
    // From now on rows come from there instead of the control, for the library's own classes; null
    // undoes that. Not owned.
    void SetRowsOnDemand(qv::RowsOnDemand* pRows);
    // What is known of changes to rows, for the library's own classes.
    const qv::RowChanges& Changes() const;
    // The window that the control tells in notifications: its parent when it was made.
    HWND ToldWindow() const;
    // The text of a cell with its style code, valid until the next call; empty if the parent, asked
    // for it, takes the list away.
    LPCSTR CellText(int nItem, int nCol);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDestroy();
    afx_msg void OnSysColorChange();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnWindowPosChanging(WINDOWPOS* pPos);
    afx_msg void OnWindowPosChanged(WINDOWPOS* pPos);
    afx_msg void OnItemclick(NMHDR* pHdr, LRESULT* pResult);
    afx_msg LRESULT OnInsertColumn(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteColumn(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteListItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteAllItems(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnTellItemChanged(NMHDR* pHdr, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

    qv::AliveToken m_alive;  // for whoever leads out to the parent
    void (*m_pfnSort)(int nCol, void* pData) = nullptr;
    void* m_pSortData = nullptr;
    BOOL m_bSingleColumn = TRUE;
    CImageList m_imageList;
    int m_nTextHeight = 0;  // without internal leading, measured once
    int m_nImageWidth = 0;  // 0: no images
    int m_nImageHeight = 0;
    int m_nClientWidth = 0;
    int m_nDataWidth = -1;  // -1: not known
    CRect m_rcWindow;       // at the last fit of the single column
    int m_nBackWidth = 0;   // of the bitmap that a row is composed in; it only grows
    int m_nBackHeight = 0;
    CBitmap m_bmpBack;
    CDC m_dcMem;      // lives for one paint
    CBrush m_brItem;  // both live for one row
    CBrush m_brBlank;
    CPen m_penPrint;
    CFont* m_pPrintFont = nullptr;
    CFont* m_pPrintHeaderFont = nullptr;
    int m_nPrintHeaderHeight = 0;  // unless 0, what HeaderPrintHeight gives
    BOOL m_bImageCenterVert = TRUE;
    BOOL m_bImageFirstCol = FALSE;
    BOOL m_bAlwaysHighlightSel = FALSE;
    BOOL m_bAllowSel = TRUE;
    CArray<DWORD_PTR, DWORD_PTR> m_aSavedSel;
    int m_nPrintScale = 1;  // printer pixels a screen pixel
    DWORD m_dwDefStyle;

private:
    class Core;
    class Columns;
    class ItemCells;
    class HeadingCells;

    int FirstTextColumn() const { return m_bImageFirstCol ? 1 : 0; }
    bool SetUp(UINT nBitmapID, COLORREF crMask, int cx);
    void LoadImages(UINT nBitmapID, COLORREF crMask, int cx);
    void MeasureFont();
    bool HasFocus() const { return ::GetFocus() == m_hWnd; }
    bool ShowsSelAlways() const { return (GetStyle() & LVS_SHOWSELALWAYS) != 0; }
    bool SortsItself();
    bool TakeTypedChar(UINT nChar);
    // Whether a change of so many rows is drawn at its end.
    bool PausesFor(int nRows) const;
    void ClickHeading(int nPlace);

    int PartRow(long nPart) const;
    int PartHeading(long nPart) const;
    int HeadingCount() const;
    CString SpokenRow(int nItem, bool bName);
    void DeselectAll(const qv::WindowWatch<HWND>& watch);
    void RowsRect(CRect& rect) const;
    void TellChange(UINT nMessage, WPARAM wParam, LPARAM lParam);

    void SizeToHeadings(int nFillCol);
    int ReadHeadings(CString& str);

    void ForgetWidths();
    qv::RowLayout Layout();
    int PaintColWidth(int nCol, int* pWidths);
    bool BeginRows();
    void DrawRow(LPDRAWITEMSTRUCT lpDIS);
    void ExcludeHeader(CDC& dc);
    void DefaultAndRedrawFocus();
    void GrowBackBitmap(CDC& dc, int cx, int cy);
    bool StylesColorText(BOOL bSelected) const;
    bool PaintsFocused() const;
    HGDIOBJ FontHandle() const {
        return reinterpret_cast<HGDIOBJ>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0));
    }
    bool HasEmptySpace();
    void ComposeText(UINT nItem, const CRect& rcRow, const qv::RowLayout& layout,
                     qv::Highlight highlight);

    template <class Step>
    bool PrintStep(Step step);
    int PrintMargin(const CDC& dc) const;
    void PrintHeadings(CDC* pDC, const CRect& rc);
    bool WriteRows(CStdioFile& file, char chSeparator);
    int RowsThatFit(CDC* pDC, const CRect& rc, int& nHeight);
    int PrintRows(CDC* pDC, UINT nFirst, UINT nEnd, const CRect& rc, int nHeight, int nMost);

    // Inserting a row, and what becomes of the places kept for AddBitmapString.
    int InsertRow(int nImage, int nIndex, LPCSTR pszText);
    bool SetFields(int nItem, int nCol, char* pszFields);
    void AddInPlace(int nImage, LPCSTR pszText, bool bNumeric, int& nIndex);
    std::string PlaceKey(LPCSTR pszText, bool bNumeric) const;
    bool ReadPlaces(bool bNumeric);
    bool PlacesHold(bool bNumeric);
    void KeepPlaces(bool bNumeric);

    std::unique_ptr<Core> m_pCore;
};
