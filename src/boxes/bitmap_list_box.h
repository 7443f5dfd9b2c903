// QVBitmapListBox: a list box whose rows show a small image and several fields of text, in columns
// that a header above the list may name.
//
// The platform's list box keeps all there is. A row is one string: the text in the shared row
// format (frame/styled_rows.h), a TAB and the image's number; with SortByImageIndex number, TAB and
// text, so that a list that sorts its strings groups them by image. Plain strings count as image 0.
//
// Order of calls: SetHeader and SortByImageIndex if wanted; Initialize; AddHeader; UseTabs or
// CalcTabsFromHeader; then rows. The header, and a frame around header and list in place of the
// list's border, are children of the list's parent: its WM_NOTIFY goes there, and the parent hands
// it on to OnHdNotify.
//
// A tab stop is where a field begins, in pixels from the start of the text, plus 10000 for a
// centred or 20000 for a right-aligned field; so positions end at 9999. The first field lies before
// any stop. A table holds 20 stops, and is read as far as the list has some, on paper as well.
//
// With EnableExpectedKeys, beside the platform's keys: letters lead to the next row that begins
// with them, image numbers and style codes aside; Ctrl+A selects all rows where several may be
// selected; Ctrl+C and Ctrl+Insert copy the selected ones. A list whose parent wants the keys
// (LBS_WANTKEYBOARDINPUT) leaves it all but the letters.
//
// Screen readers hear a list of rows, whose fields have the header's titles: see
// docs/accessibility.md.
//
// On paper: SetPrintFonts, BeginPrinting, CalcPrintTabStops, for each page PrintHeader and
// PrintItems, EndPrinting. Widths are those of the titles in units of the printer; a derived
// CalcTabs widens them. No images, no colours.
//
// The parent may destroy the list's window or delete the list whenever it is told something; what
// was under way then ends, and reports failure if it reports. In some messages the platform's own
// list does not live through it: WM_MEASUREITEM, WM_DELETEITEM, and a WM_DRAWITEM that comes while
// it handles a key or a new selection. Without memory nothing is thrown: what was there stays, and
// what reports failure reports it. The protected steps may throw, to whoever of the public
// operations called them.
//
// Ownership: print fonts are the caller's; images, header and frame are the control's.

#pragma once

#include "frame/accessible.h"
#include "frame/alive.h"
#include "frame/expected_keys.h"
#include "frame/styled_rows.h"

#include <afxcmn.h>
#include <afxtempl.h>
#include <afxwin.h>

#include <string_view>

class CStdioFile;
struct CPrintInfo;

namespace qv {
enum class NumberPlace;
}

class QV_CONTROLS_API QVBitmapListBox : public CListBox,
                                        public QVStyledRows,
                                        public QVExpectedKeys,
                                        public QVAccessible {
    DECLARE_DYNCREATE(QVBitmapListBox)

public:
    QVBitmapListBox();
    ~QVBitmapListBox() override;

    // --- Set-up

    // For a list of a dialog template, which must be owner-drawn, of variable height and with
    // strings; Create makes it so by itself, and Initialize comes after it as well. The bitmap
    // resource holds images nBitmapWidth wide, crMask being transparent; 0: no images. One that
    // cannot be loaded leaves images as they were. 0 if there is no such item, or no memory.
    int Initialize(UINT nID, UINT nBitmapID, COLORREF crMask, int nBitmapWidth, CWnd* pParent);
    // The id of the header that Initialize makes; 0: none.
    void SetHeader(UINT nHeaderID) { m_nHeaderID = nHeaderID; }
    UINT HeaderID() const { return m_nHeaderID; }
    // Before the first row: rows that are there are neither rewritten nor sorted, and misread.
    void SortByImageIndex(int bSort) { m_bSortByImageIndex = bSort; }

    // --- Rows

    using QVStyledRows::AppendStyleText;
    // The index, or what is negative from the platform.
    int AddBitmapString(int nImage, const char* pszText);
    int InsertBitmapString(int nImage, int nIndex, const char* pszText);
    // The first row of that image and text, without regard to case; LB_ERR if there is none.
    int FindBitmapString(int nImage, const char* pszText);
    // -1 for a row that is empty, or none.
    int GetImage(int nIndex);
    // 0, and strText as it was, for a row that is empty, or none.
    int GetItemString(int nIndex, CString& strText);
    // Put a new row in the place of the old one, with its data, selection and caret; a list that
    // sorts does not move it. 1 if that was done. The parent sees the old row's WM_DELETEITEM.
    int SetImage(int nIndex, int nImage);
    int SetItemString(int nIndex, const char* pszText);

    // The selected rows as text that spreadsheets take, a cell for each field, without style codes.
    // 0 if there is none, or no memory, or the clipboard is another's.
    int CopySelection();

    // --- Tab stops. A null table means the list's own; others hold as many stops as the list has.

    // nCount -1: up to the first 0. More than 20 are not taken.
    void UseTabs(const int* pTabs, int nCount);
    // The header stays as it is.
    void ClearTabs();
    // Position, 0 for an index that is none. Setting keeps the alignment.
    int GetTabValue(int nTab, int* pTabs = nullptr);
    void SetTabValue(int nTab, int nValue, int* pTabs = nullptr);
    // 0 left, 1 centred, 2 right; below 0 that of the first field. Setting keeps the position.
    UINT GetTabFormat(int nTab, int* pTabs = nullptr);
    void SetTabFormat(int nTab, UINT nFormat, int* pTabs = nullptr);
    // Puts a stop 12 behind the width of each field, codes measured as they stand, into a table of
    // 20, and a 0 behind the last one if there is room. Gives their number; fields beyond 20 have
    // none. The list's number of stops does not change.
    int MakeTabsFromString(CDC* pDC, const CString& strFields, int* pTabs);
    // Fits the stops to the titles; what the header has left goes to the column that ends at stop
    // nStretchFrom, unless -1.
    void CalcTabsFromHeader(int nStretchFrom);
    // Asks CalcTabs with the list's font, then fits the header.
    virtual void CalcListTabs();
    // For derived classes: sets stops of the table by their data, and gives how many there are; 0
    // to 20 count. Here nothing changes.
    virtual int CalcTabs(CDC* pDC, int* pTabs);

    // --- Header. Without one, nothing of this has an effect.

    // A column 30 pixels wide, or as wide as its stop if there are stops.
    void AddHeader(const char* pszText);
    // A column for each field of a string resource.
    void AddHeader(UINT nStringID);
    void ClearHeaders();
    // Appends the titles, up to 99 bytes of each, with TABs between; gives how many were read. The
    // first one follows what is there without a TAB. 0, and strOut as it was, without memory.
    int MakeHeaderString(CString& strOut);
    void InvalidateHeader(int bErase);
    // To be called by the parent for notifications of the header: a divider that was dragged moves
    // the stops, a click on a title calls SortOnHeader.
    void OnHdNotify(int nCode, NMHEADER* pNotify);

    // --- Order

    // Of a row given by image and text against row nItem: below 0, 0, above 0. By image first with
    // SortByImageIndex. Without styles in either row the whole text without case, otherwise field
    // by field with it. In a list without images the other text counts as empty.
    int CompareToItem(int nImage, const char* pszText, int nItem);

    // Draws a row's fields; a style's colours stay for the fields behind it.
    void OutputFormattedText(CDC* pDC, const CRect& rc, const CString& strRow, int bSelected,
                             int* pTabs, int bUseColors);

    // --- Printing and export

    // Not owned; null prints in the font selected in the device context.
    void SetPrintFonts(CFont* pItemFont, CFont* pHeaderFont);
    virtual int HeaderPrintHeight(CDC* pDC);
    // Gives the number of stops on paper; 0 without memory.
    virtual int CalcPrintTabStops(CDC* pDC, int nReserved);
    // The titles and a rule under them.
    virtual void PrintHeader(CDC* pDC, const CRect& rc);
    // The rows of page pInfo->m_nCurPage, counted from 1; gives their number. An empty row repeats
    // the one before it on the page.
    virtual int PrintItems(CDC* pDC, CPrintInfo* pInfo, const CRect& rc);
    virtual void BeginPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void EndPrinting(CDC* pDC, CPrintInfo* pInfo);
    // A line for each row, chSeparator between the fields, codes removed, nothing quoted; empty
    // fields at the start of a row leave no separator. 0 if the file cannot be opened, or if memory
    // runs out. Throws the framework's CFileException if writing fails.
    virtual int ExportData(const char* pszPath, char chSeparator);

    // --- What a screen reader is told. A part is a row, counted from 1.

    // The fields that are shown; with a header the first one.
    CString GetAccessibleName(long nPart) override;
    // With a header the other fields, with their titles.
    CString GetAccessibleDescription(long nPart) override;
    // "Double Click", of which the parent is told with the messages that are posted.
    CString GetAccessibleAction(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    long GetAccessibleState(long nPart) override;
    // None for a row that does not show.
    BOOL GetAccessibleRect(long nPart, CRect& rect) override;
    long GetAccessibleCount() override;
    long AccessibleHitTest(CPoint pt) override;
    long GetAccessibleFocus() override;
    long GetNextAccessibleSelected(long nPart) override;
    BOOL SelectAccessible(long nPart, long nFlags) override;
    BOOL DoAccessibleAction(long nPart) override;

    void DrawItem(DRAWITEMSTRUCT* pDraw) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMeasure) override;
    int CompareItem(COMPAREITEMSTRUCT* pCompare) override;

protected:
    // --- Steps that a derived class may replace, beside the public ones

    // rc: what header and list are going to share, in the parent's client area.
    virtual void PreCreateHeaders(CRect& rc);
    virtual void SortOnHeader(int nColumn);
    // On screen; pTabs are the list's.
    virtual void DrawItemText(CDC* pDC, UINT nItem, const CRect& rc, int bSelected, int* pTabs);

    void CalcItemHeight();
    void ExtractInfo(const char* pszStored, int& nImage, CString& strText);
    // The selection by item data; restoring selects the first row that has each, and deselects
    // none.
    void SaveSelections();
    void RestoreSelections();
    int CreateHeaders();
    // Makes a header at the top of rc, nIconWidth of it left to an empty column above the images,
    // which nobody keeps. rc becomes what is left.
    int CreateHeader(CHeaderCtrl& header, UINT nID, CRect& rc, int nIconWidth);
    void ChangeHeaderWidth(int nCol, int nWidth);
    // Gives the header's columns the widths of the stops, and centres all titles but the first.
    // Titles keep 99 bytes.
    void SyncHeaderWithTabs();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSysColorChange();
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg LRESULT OnSetRedraw(WPARAM wParam, LPARAM lParam);
    void DoPostedAccessible(long nPart) override;
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    static constexpr int kTableSize = 20;

    int m_nBitmapHeight = 0;  // 0: no images
    int m_nBitmapWidth = 0;
    int m_nFontHeight = 0;  // as asked for; 0 until known
    int m_nItemHeight = 0;  // 0 until known
    CImageList m_imageList;
    int m_nTabs = 0;
    int m_anTabs[kTableSize] = {};
    UINT m_nFirstFieldFormat = 0;
    int m_bSortByImageIndex = 0;
    UINT m_nHeaderID = 0;
    CHeaderCtrl m_header;
    CWnd m_wndFrame;
    int m_bRedraw = 1;
    CPen m_penPrint;
    CFont* m_pPrintFont = nullptr;
    CFont* m_pPrintHeaderFont = nullptr;
    int m_nPrintHeaderHeight = 0;  // unless 0, what HeaderPrintHeight gives
    int m_anPrintTabs[kTableSize] = {};
    int m_anPrintHeaderTabs[kTableSize] = {};
    CArray<DWORD_PTR, DWORD_PTR> m_aSavedSelections;  // wide as item data are
    qv::AliveToken m_alive;                           // for whoever leads out to the parent

private:
    // For as long as the header may tell the parent something.
    struct InHeader : qv::SetWhileAlive<bool> {
        explicit InHeader(QVBitmapListBox& list)
            : SetWhileAlive(list.m_alive, list.m_bInHeader, true) {}
    };

    qv::NumberPlace Place() const;
    bool SetUp(UINT nBitmapID, COLORREF crMask, int nBitmapWidth);
    void LoadImages(UINT nBitmapID, COLORREF crMask, int nBitmapWidth);
    bool HasSeveralSelected() const;
    CString Stored(int nIndex) const;
    int KeepText(CString& strStored) const;
    bool HasRow(int nIndex) const { return nIndex >= 0 && nIndex < GetCount(); }
    int Replace(int nIndex, const char* pszStored);
    bool PutInPlace(int nIndex, const char* pszStored);
    void Select(int nIndex);
    void SelectUnderMouse(int nRow);
    bool TakeTypedChar(UINT nChar);
    void GoToRow(int nRow);
    void TellSelection();

    CRect InParent(const CWnd& wnd) const;
    void FitHeaderToWidth(int cx);
    bool MakeFrame(CRect& rc);
    int ReadTitles(CString& str);

    void DrawRow(const DRAWITEMSTRUCT& draw);
    void DrawTextArea(CDC& dc, const DRAWITEMSTRUCT& draw);
    void DrawImageCell(CDC& dc, const DRAWITEMSTRUCT& draw);
    void DrawFields(CDC& dc, const CRect& rc, std::string_view row, int bSelected, const int* pTabs,
                    int bUseColors);
    int PrintRows(CDC& dc, int nFirst, int nMost, int nHeight, CRect rcRow);
    void WriteRows(CStdioFile& file, char chSeparator) const;

    // What listeners know of the row with the focus.
    struct Told {
        int nCaret = kUnknown;
        bool bSelected = false;
        static constexpr int kUnknown = -2;
    };
    int PartRow(long nPart) const;
    int FieldsShown(std::string_view row) const;
    CString SpokenRow(int nRow, bool bName);
    bool SelectAsUser(int nRow, long nFlags);
    void SelectRows(int nRow, long nFlags);
    Told CaretNow() const { return {GetCaretIndex(), GetSel(GetCaretIndex()) > 0}; }
    bool SeeMessage(UINT nMessage, LPARAM lParam);
    void TellChange(UINT nMessage, LPARAM lParam, bool bWasSelected);
    void TellSelected(UINT nMessage, int nAbout, bool bWasSelected);
    void TellCaretSelected(UINT nMessage, const Told& before, bool bMoved);

    bool m_bInHeader = false;
    bool m_bReplacing = false;   // one row by another, which does not move any
    bool m_bCaretStays = false;  // or comes back, before anybody is told
    Told m_told;
};
