// QVTextWnd: shows lines of text, each in one style, wrapped to the window: logs and reports of any
// length. It scrolls, copies, exports and prints; nothing in it can be edited.
//
// With EnableExpectedKeys, text is selected: by dragging, which scrolls beyond the window's edge, a
// double click for a word, and Shift with a click, the arrows, Home, End and the page keys, by
// words and to the ends of the text with Ctrl as well. Ctrl+A selects all, Ctrl+C and Ctrl+Insert
// copy. Without Shift the keys scroll as ever. Rows that a class draws by itself show what is
// selected in the plain way.
//
// Add lines with AddText and call CalcLayout behind the last one, or load a file. Two windows can
// scroll together (SyncWith on both) and print side by side, line by line level.
//
// Scroll units are rows and, in the fixed grid, columns of characters. Rows show pieces of lines in
// the order of the lines. A row is as high as the font, which is the system's font for windows.
//
// Derived classes read and write the view through the fields of qv::TextViewState and those below;
// CalcLayout then fits rows and bars. Lines, rows and pages have accessors.
//
// Ownership: the window owns its lines; a partner is not owned. Destroy partners together, or end
// the pairing first; a partner that goes ends it on its own side.

#pragma once

#include "frame/accessible.h"
#include "frame/expected_keys.h"
#include "frame/styled_rows.h"
#include "text/text_records.h"

#include <afxtempl.h>
#include <afxwin.h>

#include <memory>
#include <string_view>

struct CPrintInfo;

namespace qv {
class ShownText;
class TextSelection;
struct TextPlace;
}  // namespace qv

class QV_CONTROLS_API QVTextWnd : public CWnd,
                                  public QVStyleTable,
                                  public QVExpectedKeys,
                                  public QVAccessible,
                                  protected qv::TextViewState {
    DECLARE_DYNCREATE(QVTextWnd)

public:
    QVTextWnd();
    ~QVTextWnd() override;

    // Takes the place of the control nID of pParent, which is destroyed; on a window that exists it
    // measures the font and adds style 0. 0 if there is no such control or no font.
    int Initialize(UINT nID, CWnd* pParent, int bBorder);
    // bBorder: a sunken edge.
    int Create(CRect& rc, CWnd* pParent, UINT nID, int bBorder);

    // --- Text

    // Does nothing: text is always wrapped. A derived class may write m_bUseProportionalFont.
    void SetUseProportionalFont(int /*bUse*/) {}
    // Appends a line; nStyle -1 means 0. The new number of lines, or -1 without memory. Nothing is
    // laid out or painted: call CalcLayout behind the last line.
    int AddText(const char* pszText, int nStyle);
    // Replaces the lines by those of a file. 0 if it cannot be opened or read to its end; what was
    // read stays.
    int LoadFile(const char* pszPath, int nStyle);
    int LoadFile(CStdioFile& file, int nStyle);
    void ClearTextData();
    int NumLines() const;
    // With its style code; null if there is no such line.
    const char* GetLine(int nLine) const;
    // As it was added, without the code in front, whatever styles there are; null if there is no
    // such line.
    const char* GetLineText(int nLine) const;
    // Fits rows and scroll bars to the lines, and repaints.
    void CalcLayout();
    // Asks for no repaint. Style 0 takes the colour as well; neither follows the system's colours
    // from then on.
    void SetBkColor(COLORREF cr);

    // --- View

    // Exact: every byte of every line shows in some row, whatever the width and the bars; also in a
    // maximised window. At first off: rows are then made for the width without the vertical bar,
    // once that shows, and the ends of some lines never show. Lays out.
    void SetExactLayout(BOOL bExact);
    BOOL IsExactLayout() const;
    // Scrolls pOther with this window; null ends that. bShowVScroll 0: no vertical bar here.
    void SyncWith(QVTextWnd* pOther, int bShowVScroll);
    // Brings display row nLine to nMargin rows below the top. Always 1.
    int ScrollTo(int nLine, int nMargin);
    int VScrollPos() const { return m_nVScrollPos; }
    int NumRows() const { return m_nNumRows; }
    // The rows of wrapped text as they were laid out last, and the piece of a line that each of
    // them shows. 0, and row as it was, if there is no such row.
    int NumDisplayLines() const;
    int GetDisplayLine(int nRow, QVTEXTLINE& row) const;

    // --- Selection, with EnableExpectedKeys

    BOOL HasSelection() const;
    void SelectAll();

    // --- What a screen reader is told: all lines, numbered from 1, laid out or not

    // Of a line its text, without style code.
    CString GetAccessibleName(long nPart) override;
    // The text of the rows that show, in lines; in the fixed grid their lines to the whole width.
    CString GetAccessibleValue(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    // Lines can be selected with EnableExpectedKeys.
    long GetAccessibleState(long nPart) override;
    // All rows of a line, as they were laid out last.
    BOOL GetAccessibleRect(long nPart, CRect& rect) override;
    long GetAccessibleCount() override;
    long AccessibleHitTest(CPoint pt) override;
    long GetAccessibleFocus() override;
    long GetNextAccessibleSelected(long nPart) override;
    // A line is selected from end to end, or with all from the one where the selection began. It
    // is scrolled into view.
    BOOL SelectAccessible(long nPart, long nFlags) override;

    // --- Out of the window

    // The lines without style codes, also before the window is made. The letter of a style that is
    // not in the table shows as it does in the window; GetLineText never shows one. 0 if the file
    // cannot be opened; throws CFileException if writing fails.
    virtual int ExportData(const char* pszPath);
    // All lines as text. 1 if the clipboard has it now.
    int CopyToClipboard();
    // What is selected. 0 if there is nothing, or no memory, or the clipboard is another's.
    int CopySelection();

    // --- Printing: FormatText, then GetPrintRow for the rows of each page

    // Lays out for an area in units of pDC, which has the font selected. A partner is laid out with
    // it: both get the same number of rows, blank ones filling the shorter side. Without memory the
    // layout of before stays.
    void FormatText(CDC* pDC, const CSize& sizeArea);
    int NumPages() const;
    void SetNumPages(int nPages);
    // Row nRow of all pages, from 0, whole: its text, style and line. The rows of a line joined are
    // the line. A row that only keeps two partners level is blank. 0, and nothing changes, if there
    // is no such row, if a derived class added it, or without memory.
    int GetPrintRow(int nRow, CString& strText, int& nStyle, int& nLine);
    int NumPrintRows() const;
    // Page n from 1 has the rows from (n - 1) * LinesPerPage() on.
    int LinesPerPage() const;
    // For callers of long standing, row by row in order; many a row comes cut in the wrong place.
    // A row of page pInfo->m_nCurPage: its text, style and line; 0 if there is none. Pass the same
    // variable for nLine from row to row: its value going in names the line whose pieces are
    // counted, as it always has.
    int StartPage(CDC* pDC, CPrintInfo* pInfo, CString& strText, int& nStyle, int& nLine);
    int NextLine(CDC* pDC, CPrintInfo* pInfo, CString& strText, int& nStyle, int& nLine);
    int GetCurrentLine(CDC* pDC, CString& strText, int& nStyle, int& nLine);

protected:
    // --- Steps that a derived class may replace

    // Paints piece nFrom to nTo (-1: to the end) of strText as display row nRow of the window.
    virtual void DrawText(CDC& dc, int nRow, const CString& strText, int nStyle, int nFrom,
                          int nTo);
    // Paints line nLine of the fixed grid, nCols columns from the scroll position on.
    virtual void DrawText(CDC& dc, int nLine, int nCols);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    // Attaches the system's font for windows; 0 if there is none. Cleaning up lets go of it.
    int CreateDisplayFont(CFont& font);
    void CleanupDisplayFont(CFont& font);
    // The size of the whole text in pixels, wrapped to nWidth pixels, 0 being the client area; the
    // fixed grid has its own width.
    void CalculateDataSize(int& cx, int& cy, int nWidth);
    // The client rectangle of row nRow, counted from the top of the window.
    void CalculateLineRect(int nRow, CRect& rc);
    // Wraps the lines to nWidth pixels, 0 being the client area. Without memory the rows stay.
    void FormatDisplayText(int nWidth);
    // Word wrap in the font selected in pDC: the bytes at which the pieces of a text begin, the
    // first being 0. Without memory aStarts stays.
    void SplitTextLines(CDC* pDC, int nWidth, const CString& strText, CArray<int, int>& aStarts);
    // Fits rows and scroll bars; CalcLayout without the repaint. The window may be told another
    // size before it returns.
    void CalculateScrollBars();
    // Moves this window alone by an SB_ code, nPos being a row. 1 if it has moved; it may have been
    // painted then.
    int DoVScroll(UINT nCode, UINT nPos);
    // The partner; null without one, and once it is gone.
    QVTextWnd* SyncWnd() const;

    // The pages as FormatText leaves them, for classes that lay out their own. Rows that a page
    // takes; the area in units of the printer's context.
    void SetLinesPerPage(int nLines);
    void SetPrintAreaSize(const CSize& size);
    CSize PrintAreaSize() const;
    void ClearPrintData();
    // Adds nothing without memory.
    void AddPrintLine(int nLine, int nSubLine);
    // Row nRow of all pages; 0, and row as it was, if there is no such row.
    int GetPrintLine(int nRow, QVTEXTLINE& row) const;
    // The row that GetCurrentLine gives.
    int CurPrintLine() const;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSysColorChange();
    afx_msg void OnPaint();
    afx_msg void OnHScroll(UINT nCode, UINT nPos, CScrollBar* pBar);
    afx_msg void OnVScroll(UINT nCode, UINT nPos, CScrollBar* pBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint pt);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint pt);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint pt);
    afx_msg void OnMouseMove(UINT nFlags, CPoint pt);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnTimer(UINT_PTR nTimer);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    int m_nTabStop = 8;  // pixels
    int m_bBorder = 0;
    COLORREF m_crBk;

private:
    class Core;
    class FontScope;

    bool ReplaceControl(UINT nID, CWnd* pParent, int bBorder);
    bool MeasureFont();
    bool ReadLines(CStdioFile& file, int nStyle);
    void FormatPrint(CDC& dc, const CSize& sizeArea);
    void Paint();
    int DrawRows(CDC& dc, int nRow, int nEnd, int nWidth);
    void DrawPiece(CDC& dc, const CRect& rcRow, std::string_view text, size_t nLength, int nStyle);
    bool ScrollBoth(UINT nCode, UINT nPos);

    qv::TextSelection& Selection() const;
    qv::ShownText Shown() const;
    qv::TextPlace PlaceUnder(CPoint pt) const;
    template <class Deed>
    void Select(Deed deed);
    bool TakeExpectedKey(UINT nKey);
    void ShowCaret();
    void BeginSelection(UINT nFlags, CPoint pt);
    void DragSelection(CPoint pt);
    void FollowFocus();
    void DrawSelected(CDC& dc, int nRow);
    bool SelectLine(int nLine, bool bExtend);

    int PartLine(long nPart) const;
    void ShowRow(int nRow);

    bool m_bOwnBk = false;  // a program's background, not the system's
    std::unique_ptr<Core> m_pCore;
};
