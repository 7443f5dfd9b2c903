// CFlexGrid: a flexible grid, as a window. From tools/activex_members/flex_grid.txt by the
// script beside it: change those.
//
// A grid of texts with fixed rows and columns, in twips, behind an outside party's control or the
// one of qvocx.dll (docs/automation.md). Create it from code, or tie it to a control that a
// dialog's template made by DDX_Control.
//
// Each member asks the control at once, and what the control refuses leaves it as the framework's
// dispatch exception (COleDispatchException*, or another COleException*). Without a control a
// getter gives 0, empty or null, and nothing else happens. Fonts and pictures that come back are
// objects that let go of what they hold. GetDataSource gives a reference that the caller releases.

#pragma once

#include "activex/ole_objects.h"
#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API CFlexGrid : public CWnd {
    DECLARE_DYNCREATE(CFlexGrid)

public:
    // {6262D3A0-531B-11CF-91F6-C2863C385E30}
    const GUID& GetClsid();

    // Makes the control. The class name and the context are not used. FALSE if there
    // is no such control.
    BOOL Create(LPCSTR pszClassName, LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc,
                CWnd* pParent, UINT nID, CCreateContext* pContext = nullptr) override;
    // With a state that was saved: as a stream, or with bStorage as a storage.
    BOOL Create(LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc, CWnd* pParent, UINT nID,
                CFile* pPersist = nullptr, BOOL bStorage = FALSE);

    // The control
    BOOL GetRightToLeft();
    void SetRightToLeft(BOOL bRightToLeft);
    long GetHWnd();
    BOOL GetEnabled();
    void SetEnabled(BOOL bEnabled);
    short GetVersion();
    BOOL GetRedraw();
    void SetRedraw(BOOL bRedraw);
    CPicture GetPicture();
    long GetPictureType();
    void SetPictureType(long nPictureType);
    long GetMousePointer();
    void SetMousePointer(long nMousePointer);
    CPicture GetMouseIcon();
    void SetRefMouseIcon(LPDISPATCH pMouseIcon);
    LPDISPATCH GetDataSource();
    void SetDataSource(LPDISPATCH pDataSource);
    long GetOLEDropMode();
    void SetOLEDropMode(long nOLEDropMode);
    void OLEDrag();

    // Rows and columns: numbers of them, the cell and block that are selected, what is in view
    long GetRows();
    void SetRows(long nRows);
    long GetCols();
    void SetCols(long nCols);
    long GetFixedRows();
    void SetFixedRows(long nFixedRows);
    long GetFixedCols();
    void SetFixedCols(long nFixedCols);
    long GetTopRow();
    void SetTopRow(long nTopRow);
    long GetLeftCol();
    void SetLeftCol(long nLeftCol);
    long GetRow();
    void SetRow(long nRow);
    long GetCol();
    void SetCol(long nCol);
    long GetRowSel();
    void SetRowSel(long nRowSel);
    long GetColSel();
    void SetColSel(long nColSel);
    BOOL GetScrollTrack();
    void SetScrollTrack(BOOL bScrollTrack);
    long GetFocusRect();
    void SetFocusRect(long nFocusRect);
    long GetHighLight();
    void SetHighLight(long nHighLight);
    long GetScrollBars();
    void SetScrollBars(long nScrollBars);
    long GetMouseRow();
    long GetMouseCol();
    long GetSelectionMode();
    void SetSelectionMode(long nSelectionMode);
    BOOL GetAllowBigSelection();
    void SetAllowBigSelection(BOOL bAllowBigSelection);
    BOOL GetRowIsVisible(long nRow);
    BOOL GetColIsVisible(long nCol);

    // Texts
    CString GetText();
    void SetText(LPCTSTR pszText);
    CString GetFormatString();
    void SetFormatString(LPCTSTR pszFormatString);
    CString GetClip();
    void SetClip(LPCTSTR pszClip);
    void SetSort(short nSort);
    CString GetTextArray(long nIndex);
    void SetTextArray(long nIndex, LPCTSTR pszTextArray);
    long GetRowData(long nRow);
    void SetRowData(long nRow, long nRowData);
    long GetColData(long nCol);
    void SetColData(long nCol, long nColData);
    CString GetTextMatrix(long nRow, long nCol);
    void SetTextMatrix(long nRow, long nCol, LPCTSTR pszTextMatrix);
    void AddItem(LPCTSTR pszItem, const VARIANT& varIndex);
    void RemoveItem(long nIndex);
    void Clear();

    // Rows and columns one by one: sizes and places in twips, alignment, merging
    BOOL GetWordWrap();
    void SetWordWrap(BOOL bWordWrap);
    long GetRowHeightMin();
    void SetRowHeightMin(long nRowHeightMin);
    long GetMergeCells();
    void SetMergeCells(long nMergeCells);
    long GetAllowUserResizing();
    void SetAllowUserResizing(long nAllowUserResizing);
    short GetColAlignment(long nCol);
    void SetColAlignment(long nCol, short nColAlignment);
    long GetColWidth(long nCol);
    void SetColWidth(long nCol, long nColWidth);
    long GetRowHeight(long nRow);
    void SetRowHeight(long nRow, long nRowHeight);
    BOOL GetMergeRow(long nRow);
    void SetMergeRow(long nRow, BOOL bMergeRow);
    BOOL GetMergeCol(long nCol);
    void SetMergeCol(long nCol, BOOL bMergeCol);
    void SetRowPosition(long nRow, long nRowPosition);
    void SetColPosition(long nCol, long nColPosition);
    long GetRowPos(long nRow);
    long GetColPos(long nCol);
    short GetFixedAlignment(long nCol);
    void SetFixedAlignment(long nCol, short nFixedAlignment);

    // The current cell, or the selected block as FillStyle says
    long GetFillStyle();
    void SetFillStyle(long nFillStyle);
    long GetCellLeft();
    long GetCellTop();
    long GetCellWidth();
    long GetCellHeight();
    long GetCellBackColor();
    void SetCellBackColor(long nCellBackColor);
    long GetCellForeColor();
    void SetCellForeColor(long nCellForeColor);
    short GetCellAlignment();
    void SetCellAlignment(short nCellAlignment);
    long GetCellTextStyle();
    void SetCellTextStyle(long nCellTextStyle);
    CPicture GetCellPicture();
    void SetRefCellPicture(LPDISPATCH pCellPicture);
    short GetCellPictureAlignment();
    void SetCellPictureAlignment(short nCellPictureAlignment);
    CString GetCellFontName();
    void SetCellFontName(LPCTSTR pszCellFontName);
    float GetCellFontSize();
    void SetCellFontSize(float fltCellFontSize);
    BOOL GetCellFontBold();
    void SetCellFontBold(BOOL bCellFontBold);
    BOOL GetCellFontItalic();
    void SetCellFontItalic(BOOL bCellFontItalic);
    BOOL GetCellFontUnderline();
    void SetCellFontUnderline(BOOL bCellFontUnderline);
    BOOL GetCellFontStrikeThrough();
    void SetCellFontStrikeThrough(BOOL bCellFontStrikeThrough);
    float GetCellFontWidth();
    void SetCellFontWidth(float fltCellFontWidth);

    // Looks
    void Refresh();
    long GetAppearance();
    void SetAppearance(long nAppearance);
    long GetForeColor();
    void SetForeColor(long nForeColor);
    COleFont GetFont();
    void SetRefFont(LPDISPATCH pFont);
    long GetBorderStyle();
    void SetBorderStyle(long nBorderStyle);
    long GetBackColor();
    void SetBackColor(long nBackColor);
    long GetBackColorFixed();
    void SetBackColorFixed(long nBackColorFixed);
    long GetForeColorFixed();
    void SetForeColorFixed(long nForeColorFixed);
    long GetBackColorSel();
    void SetBackColorSel(long nBackColorSel);
    long GetForeColorSel();
    void SetForeColorSel(long nForeColorSel);
    long GetBackColorBkg();
    void SetBackColorBkg(long nBackColorBkg);
    long GetTextStyle();
    void SetTextStyle(long nTextStyle);
    long GetTextStyleFixed();
    void SetTextStyleFixed(long nTextStyleFixed);
    long GetGridLines();
    void SetGridLines(long nGridLines);
    long GetGridLinesFixed();
    void SetGridLinesFixed(long nGridLinesFixed);
    long GetGridColor();
    void SetGridColor(long nGridColor);
    long GetGridColorFixed();
    void SetGridColorFixed(long nGridColorFixed);
    float GetFontWidth();
    void SetFontWidth(float fltFontWidth);
    short GetGridLineWidth();
    void SetGridLineWidth(short nGridLineWidth);
};
