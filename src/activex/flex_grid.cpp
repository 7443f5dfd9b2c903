// From tools/activex_members/flex_grid.txt by the script beside it: change those.

#include "activex/flex_grid.h"

#include "activex/member_calls.h"

IMPLEMENT_DYNCREATE(CFlexGrid, CWnd)

const GUID& CFlexGrid::GetClsid() {
    static constexpr GUID clsid = {
        0x6262d3a0, 0x531b, 0x11cf, {0x91, 0xf6, 0xc2, 0x86, 0x3c, 0x38, 0x5e, 0x30}};
    return clsid;
}

BOOL CFlexGrid::Create(LPCSTR, LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc, CWnd* pParent,
                       UINT nID, CCreateContext*) {
    return CreateControl(GetClsid(), pszWindowName, dwStyle, rc, pParent, nID);
}

BOOL CFlexGrid::Create(LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc, CWnd* pParent, UINT nID,
                       CFile* pPersist, BOOL bStorage) {
    return CreateControl(GetClsid(), pszWindowName, dwStyle, rc, pParent, nID, pPersist, bStorage);
}

// The control

BOOL CFlexGrid::GetRightToLeft() {
    return qv::InvokeGet<BOOL>(*this, -611, VT_BOOL);
}

void CFlexGrid::SetRightToLeft(BOOL bRightToLeft) {
    qv::InvokePut(*this, -611, VTS_BOOL, bRightToLeft);
}

long CFlexGrid::GetHWnd() {
    return qv::InvokeGet<long>(*this, -515, VT_I4);
}

BOOL CFlexGrid::GetEnabled() {
    return qv::InvokeGet<BOOL>(*this, -514, VT_BOOL);
}

void CFlexGrid::SetEnabled(BOOL bEnabled) {
    qv::InvokePut(*this, -514, VTS_BOOL, bEnabled);
}

short CFlexGrid::GetVersion() {
    return qv::InvokeGet<short>(*this, 1, VT_I2);
}

BOOL CFlexGrid::GetRedraw() {
    return qv::InvokeGet<BOOL>(*this, 25, VT_BOOL);
}

void CFlexGrid::SetRedraw(BOOL bRedraw) {
    qv::InvokePut(*this, 25, VTS_BOOL, bRedraw);
}

CPicture CFlexGrid::GetPicture() {
    return CPicture(qv::InvokeGet<LPDISPATCH>(*this, 49, VT_DISPATCH));
}

long CFlexGrid::GetPictureType() {
    return qv::InvokeGet<long>(*this, 50, VT_I4);
}

void CFlexGrid::SetPictureType(long nPictureType) {
    qv::InvokePut(*this, 50, VTS_I4, nPictureType);
}

long CFlexGrid::GetMousePointer() {
    return qv::InvokeGet<long>(*this, 53, VT_I4);
}

void CFlexGrid::SetMousePointer(long nMousePointer) {
    qv::InvokePut(*this, 53, VTS_I4, nMousePointer);
}

CPicture CFlexGrid::GetMouseIcon() {
    return CPicture(qv::InvokeGet<LPDISPATCH>(*this, 54, VT_DISPATCH));
}

void CFlexGrid::SetRefMouseIcon(LPDISPATCH pMouseIcon) {
    qv::InvokePutRef(*this, 54, VTS_DISPATCH, pMouseIcon);
}

LPDISPATCH CFlexGrid::GetDataSource() {
    return qv::InvokeGet<LPDISPATCH>(*this, 76, VT_DISPATCH);
}

void CFlexGrid::SetDataSource(LPDISPATCH pDataSource) {
    qv::InvokePut(*this, 76, VTS_DISPATCH, pDataSource);
}

long CFlexGrid::GetOLEDropMode() {
    return qv::InvokeGet<long>(*this, 1551, VT_I4);
}

void CFlexGrid::SetOLEDropMode(long nOLEDropMode) {
    qv::InvokePut(*this, 1551, VTS_I4, nOLEDropMode);
}

void CFlexGrid::OLEDrag() {
    qv::InvokeMethod(*this, 1552);
}

// Rows and columns: numbers of them, the cell and block that are selected, what is in view

long CFlexGrid::GetRows() {
    return qv::InvokeGet<long>(*this, 4, VT_I4);
}

void CFlexGrid::SetRows(long nRows) {
    qv::InvokePut(*this, 4, VTS_I4, nRows);
}

long CFlexGrid::GetCols() {
    return qv::InvokeGet<long>(*this, 5, VT_I4);
}

void CFlexGrid::SetCols(long nCols) {
    qv::InvokePut(*this, 5, VTS_I4, nCols);
}

long CFlexGrid::GetFixedRows() {
    return qv::InvokeGet<long>(*this, 6, VT_I4);
}

void CFlexGrid::SetFixedRows(long nFixedRows) {
    qv::InvokePut(*this, 6, VTS_I4, nFixedRows);
}

long CFlexGrid::GetFixedCols() {
    return qv::InvokeGet<long>(*this, 7, VT_I4);
}

void CFlexGrid::SetFixedCols(long nFixedCols) {
    qv::InvokePut(*this, 7, VTS_I4, nFixedCols);
}

long CFlexGrid::GetTopRow() {
    return qv::InvokeGet<long>(*this, 8, VT_I4);
}

void CFlexGrid::SetTopRow(long nTopRow) {
    qv::InvokePut(*this, 8, VTS_I4, nTopRow);
}

long CFlexGrid::GetLeftCol() {
    return qv::InvokeGet<long>(*this, 9, VT_I4);
}

void CFlexGrid::SetLeftCol(long nLeftCol) {
    qv::InvokePut(*this, 9, VTS_I4, nLeftCol);
}

long CFlexGrid::GetRow() {
    return qv::InvokeGet<long>(*this, 10, VT_I4);
}

void CFlexGrid::SetRow(long nRow) {
    qv::InvokePut(*this, 10, VTS_I4, nRow);
}

long CFlexGrid::GetCol() {
    return qv::InvokeGet<long>(*this, 11, VT_I4);
}

void CFlexGrid::SetCol(long nCol) {
    qv::InvokePut(*this, 11, VTS_I4, nCol);
}

long CFlexGrid::GetRowSel() {
    return qv::InvokeGet<long>(*this, 12, VT_I4);
}

void CFlexGrid::SetRowSel(long nRowSel) {
    qv::InvokePut(*this, 12, VTS_I4, nRowSel);
}

long CFlexGrid::GetColSel() {
    return qv::InvokeGet<long>(*this, 13, VT_I4);
}

void CFlexGrid::SetColSel(long nColSel) {
    qv::InvokePut(*this, 13, VTS_I4, nColSel);
}

BOOL CFlexGrid::GetScrollTrack() {
    return qv::InvokeGet<BOOL>(*this, 22, VT_BOOL);
}

void CFlexGrid::SetScrollTrack(BOOL bScrollTrack) {
    qv::InvokePut(*this, 22, VTS_BOOL, bScrollTrack);
}

long CFlexGrid::GetFocusRect() {
    return qv::InvokeGet<long>(*this, 23, VT_I4);
}

void CFlexGrid::SetFocusRect(long nFocusRect) {
    qv::InvokePut(*this, 23, VTS_I4, nFocusRect);
}

long CFlexGrid::GetHighLight() {
    return qv::InvokeGet<long>(*this, 24, VT_I4);
}

void CFlexGrid::SetHighLight(long nHighLight) {
    qv::InvokePut(*this, 24, VTS_I4, nHighLight);
}

long CFlexGrid::GetScrollBars() {
    return qv::InvokeGet<long>(*this, 26, VT_I4);
}

void CFlexGrid::SetScrollBars(long nScrollBars) {
    qv::InvokePut(*this, 26, VTS_I4, nScrollBars);
}

long CFlexGrid::GetMouseRow() {
    return qv::InvokeGet<long>(*this, 27, VT_I4);
}

long CFlexGrid::GetMouseCol() {
    return qv::InvokeGet<long>(*this, 28, VT_I4);
}

long CFlexGrid::GetSelectionMode() {
    return qv::InvokeGet<long>(*this, 47, VT_I4);
}

void CFlexGrid::SetSelectionMode(long nSelectionMode) {
    qv::InvokePut(*this, 47, VTS_I4, nSelectionMode);
}

BOOL CFlexGrid::GetAllowBigSelection() {
    return qv::InvokeGet<BOOL>(*this, 51, VT_BOOL);
}

void CFlexGrid::SetAllowBigSelection(BOOL bAllowBigSelection) {
    qv::InvokePut(*this, 51, VTS_BOOL, bAllowBigSelection);
}

BOOL CFlexGrid::GetRowIsVisible(long nRow) {
    return qv::InvokeGet<BOOL>(*this, 85, VT_BOOL, VTS_I4, nRow);
}

BOOL CFlexGrid::GetColIsVisible(long nCol) {
    return qv::InvokeGet<BOOL>(*this, 86, VT_BOOL, VTS_I4, nCol);
}

// Texts

CString CFlexGrid::GetText() {
    return qv::InvokeGet<CString>(*this, 0, VT_BSTR);
}

void CFlexGrid::SetText(LPCTSTR pszText) {
    qv::InvokePut(*this, 0, VTS_BSTR, pszText);
}

CString CFlexGrid::GetFormatString() {
    return qv::InvokeGet<CString>(*this, 2, VT_BSTR);
}

void CFlexGrid::SetFormatString(LPCTSTR pszFormatString) {
    qv::InvokePut(*this, 2, VTS_BSTR, pszFormatString);
}

CString CFlexGrid::GetClip() {
    return qv::InvokeGet<CString>(*this, 45, VT_BSTR);
}

void CFlexGrid::SetClip(LPCTSTR pszClip) {
    qv::InvokePut(*this, 45, VTS_BSTR, pszClip);
}

void CFlexGrid::SetSort(short nSort) {
    qv::InvokePut(*this, 46, VTS_I2, nSort);
}

CString CFlexGrid::GetTextArray(long nIndex) {
    return qv::InvokeGet<CString>(*this, 55, VT_BSTR, VTS_I4, nIndex);
}

void CFlexGrid::SetTextArray(long nIndex, LPCTSTR pszTextArray) {
    qv::InvokePut(*this, 55, VTS_I4 VTS_BSTR, nIndex, pszTextArray);
}

long CFlexGrid::GetRowData(long nRow) {
    return qv::InvokeGet<long>(*this, 63, VT_I4, VTS_I4, nRow);
}

void CFlexGrid::SetRowData(long nRow, long nRowData) {
    qv::InvokePut(*this, 63, VTS_I4 VTS_I4, nRow, nRowData);
}

long CFlexGrid::GetColData(long nCol) {
    return qv::InvokeGet<long>(*this, 64, VT_I4, VTS_I4, nCol);
}

void CFlexGrid::SetColData(long nCol, long nColData) {
    qv::InvokePut(*this, 64, VTS_I4 VTS_I4, nCol, nColData);
}

CString CFlexGrid::GetTextMatrix(long nRow, long nCol) {
    return qv::InvokeGet<CString>(*this, 65, VT_BSTR, VTS_I4 VTS_I4, nRow, nCol);
}

void CFlexGrid::SetTextMatrix(long nRow, long nCol, LPCTSTR pszTextMatrix) {
    qv::InvokePut(*this, 65, VTS_I4 VTS_I4 VTS_BSTR, nRow, nCol, pszTextMatrix);
}

void CFlexGrid::AddItem(LPCTSTR pszItem, const VARIANT& varIndex) {
    qv::InvokeMethod(*this, 66, VTS_BSTR VTS_VARIANT, pszItem, &varIndex);
}

void CFlexGrid::RemoveItem(long nIndex) {
    qv::InvokeMethod(*this, 67, VTS_I4, nIndex);
}

void CFlexGrid::Clear() {
    qv::InvokeMethod(*this, 68);
}

// Rows and columns one by one: sizes and places in twips, alignment, merging

BOOL CFlexGrid::GetWordWrap() {
    return qv::InvokeGet<BOOL>(*this, 19, VT_BOOL);
}

void CFlexGrid::SetWordWrap(BOOL bWordWrap) {
    qv::InvokePut(*this, 19, VTS_BOOL, bWordWrap);
}

long CFlexGrid::GetRowHeightMin() {
    return qv::InvokeGet<long>(*this, 33, VT_I4);
}

void CFlexGrid::SetRowHeightMin(long nRowHeightMin) {
    qv::InvokePut(*this, 33, VTS_I4, nRowHeightMin);
}

long CFlexGrid::GetMergeCells() {
    return qv::InvokeGet<long>(*this, 48, VT_I4);
}

void CFlexGrid::SetMergeCells(long nMergeCells) {
    qv::InvokePut(*this, 48, VTS_I4, nMergeCells);
}

long CFlexGrid::GetAllowUserResizing() {
    return qv::InvokeGet<long>(*this, 52, VT_I4);
}

void CFlexGrid::SetAllowUserResizing(long nAllowUserResizing) {
    qv::InvokePut(*this, 52, VTS_I4, nAllowUserResizing);
}

short CFlexGrid::GetColAlignment(long nCol) {
    return qv::InvokeGet<short>(*this, 56, VT_I2, VTS_I4, nCol);
}

void CFlexGrid::SetColAlignment(long nCol, short nColAlignment) {
    qv::InvokePut(*this, 56, VTS_I4 VTS_I2, nCol, nColAlignment);
}

long CFlexGrid::GetColWidth(long nCol) {
    return qv::InvokeGet<long>(*this, 57, VT_I4, VTS_I4, nCol);
}

void CFlexGrid::SetColWidth(long nCol, long nColWidth) {
    qv::InvokePut(*this, 57, VTS_I4 VTS_I4, nCol, nColWidth);
}

long CFlexGrid::GetRowHeight(long nRow) {
    return qv::InvokeGet<long>(*this, 58, VT_I4, VTS_I4, nRow);
}

void CFlexGrid::SetRowHeight(long nRow, long nRowHeight) {
    qv::InvokePut(*this, 58, VTS_I4 VTS_I4, nRow, nRowHeight);
}

BOOL CFlexGrid::GetMergeRow(long nRow) {
    return qv::InvokeGet<BOOL>(*this, 59, VT_BOOL, VTS_I4, nRow);
}

void CFlexGrid::SetMergeRow(long nRow, BOOL bMergeRow) {
    qv::InvokePut(*this, 59, VTS_I4 VTS_BOOL, nRow, bMergeRow);
}

BOOL CFlexGrid::GetMergeCol(long nCol) {
    return qv::InvokeGet<BOOL>(*this, 60, VT_BOOL, VTS_I4, nCol);
}

void CFlexGrid::SetMergeCol(long nCol, BOOL bMergeCol) {
    qv::InvokePut(*this, 60, VTS_I4 VTS_BOOL, nCol, bMergeCol);
}

void CFlexGrid::SetRowPosition(long nRow, long nRowPosition) {
    qv::InvokePut(*this, 61, VTS_I4 VTS_I4, nRow, nRowPosition);
}

void CFlexGrid::SetColPosition(long nCol, long nColPosition) {
    qv::InvokePut(*this, 62, VTS_I4 VTS_I4, nCol, nColPosition);
}

long CFlexGrid::GetRowPos(long nRow) {
    return qv::InvokeGet<long>(*this, 87, VT_I4, VTS_I4, nRow);
}

long CFlexGrid::GetColPos(long nCol) {
    return qv::InvokeGet<long>(*this, 88, VT_I4, VTS_I4, nCol);
}

short CFlexGrid::GetFixedAlignment(long nCol) {
    return qv::InvokeGet<short>(*this, 90, VT_I2, VTS_I4, nCol);
}

void CFlexGrid::SetFixedAlignment(long nCol, short nFixedAlignment) {
    qv::InvokePut(*this, 90, VTS_I4 VTS_I2, nCol, nFixedAlignment);
}

// The current cell, or the selected block as FillStyle says

long CFlexGrid::GetFillStyle() {
    return qv::InvokeGet<long>(*this, -511, VT_I4);
}

void CFlexGrid::SetFillStyle(long nFillStyle) {
    qv::InvokePut(*this, -511, VTS_I4, nFillStyle);
}

long CFlexGrid::GetCellLeft() {
    return qv::InvokeGet<long>(*this, 29, VT_I4);
}

long CFlexGrid::GetCellTop() {
    return qv::InvokeGet<long>(*this, 30, VT_I4);
}

long CFlexGrid::GetCellWidth() {
    return qv::InvokeGet<long>(*this, 31, VT_I4);
}

long CFlexGrid::GetCellHeight() {
    return qv::InvokeGet<long>(*this, 32, VT_I4);
}

long CFlexGrid::GetCellBackColor() {
    return qv::InvokeGet<long>(*this, 38, VT_I4);
}

void CFlexGrid::SetCellBackColor(long nCellBackColor) {
    qv::InvokePut(*this, 38, VTS_I4, nCellBackColor);
}

long CFlexGrid::GetCellForeColor() {
    return qv::InvokeGet<long>(*this, 39, VT_I4);
}

void CFlexGrid::SetCellForeColor(long nCellForeColor) {
    qv::InvokePut(*this, 39, VTS_I4, nCellForeColor);
}

short CFlexGrid::GetCellAlignment() {
    return qv::InvokeGet<short>(*this, 40, VT_I2);
}

void CFlexGrid::SetCellAlignment(short nCellAlignment) {
    qv::InvokePut(*this, 40, VTS_I2, nCellAlignment);
}

long CFlexGrid::GetCellTextStyle() {
    return qv::InvokeGet<long>(*this, 41, VT_I4);
}

void CFlexGrid::SetCellTextStyle(long nCellTextStyle) {
    qv::InvokePut(*this, 41, VTS_I4, nCellTextStyle);
}

CPicture CFlexGrid::GetCellPicture() {
    return CPicture(qv::InvokeGet<LPDISPATCH>(*this, 42, VT_DISPATCH));
}

void CFlexGrid::SetRefCellPicture(LPDISPATCH pCellPicture) {
    qv::InvokePutRef(*this, 42, VTS_DISPATCH, pCellPicture);
}

short CFlexGrid::GetCellPictureAlignment() {
    return qv::InvokeGet<short>(*this, 43, VT_I2);
}

void CFlexGrid::SetCellPictureAlignment(short nCellPictureAlignment) {
    qv::InvokePut(*this, 43, VTS_I2, nCellPictureAlignment);
}

CString CFlexGrid::GetCellFontName() {
    return qv::InvokeGet<CString>(*this, 77, VT_BSTR);
}

void CFlexGrid::SetCellFontName(LPCTSTR pszCellFontName) {
    qv::InvokePut(*this, 77, VTS_BSTR, pszCellFontName);
}

float CFlexGrid::GetCellFontSize() {
    return qv::InvokeGet<float>(*this, 78, VT_R4);
}

void CFlexGrid::SetCellFontSize(float fltCellFontSize) {
    qv::InvokePut(*this, 78, VTS_R4, fltCellFontSize);
}

BOOL CFlexGrid::GetCellFontBold() {
    return qv::InvokeGet<BOOL>(*this, 79, VT_BOOL);
}

void CFlexGrid::SetCellFontBold(BOOL bCellFontBold) {
    qv::InvokePut(*this, 79, VTS_BOOL, bCellFontBold);
}

BOOL CFlexGrid::GetCellFontItalic() {
    return qv::InvokeGet<BOOL>(*this, 80, VT_BOOL);
}

void CFlexGrid::SetCellFontItalic(BOOL bCellFontItalic) {
    qv::InvokePut(*this, 80, VTS_BOOL, bCellFontItalic);
}

BOOL CFlexGrid::GetCellFontUnderline() {
    return qv::InvokeGet<BOOL>(*this, 81, VT_BOOL);
}

void CFlexGrid::SetCellFontUnderline(BOOL bCellFontUnderline) {
    qv::InvokePut(*this, 81, VTS_BOOL, bCellFontUnderline);
}

BOOL CFlexGrid::GetCellFontStrikeThrough() {
    return qv::InvokeGet<BOOL>(*this, 82, VT_BOOL);
}

void CFlexGrid::SetCellFontStrikeThrough(BOOL bCellFontStrikeThrough) {
    qv::InvokePut(*this, 82, VTS_BOOL, bCellFontStrikeThrough);
}

float CFlexGrid::GetCellFontWidth() {
    return qv::InvokeGet<float>(*this, 83, VT_R4);
}

void CFlexGrid::SetCellFontWidth(float fltCellFontWidth) {
    qv::InvokePut(*this, 83, VTS_R4, fltCellFontWidth);
}

// Looks

void CFlexGrid::Refresh() {
    qv::InvokeMethod(*this, -550);
}

long CFlexGrid::GetAppearance() {
    return qv::InvokeGet<long>(*this, -520, VT_I4);
}

void CFlexGrid::SetAppearance(long nAppearance) {
    qv::InvokePut(*this, -520, VTS_I4, nAppearance);
}

long CFlexGrid::GetForeColor() {
    return qv::InvokeGet<long>(*this, -513, VT_I4);
}

void CFlexGrid::SetForeColor(long nForeColor) {
    qv::InvokePut(*this, -513, VTS_I4, nForeColor);
}

COleFont CFlexGrid::GetFont() {
    return COleFont(qv::InvokeGet<LPDISPATCH>(*this, -512, VT_DISPATCH));
}

void CFlexGrid::SetRefFont(LPDISPATCH pFont) {
    qv::InvokePutRef(*this, -512, VTS_DISPATCH, pFont);
}

long CFlexGrid::GetBorderStyle() {
    return qv::InvokeGet<long>(*this, -504, VT_I4);
}

void CFlexGrid::SetBorderStyle(long nBorderStyle) {
    qv::InvokePut(*this, -504, VTS_I4, nBorderStyle);
}

long CFlexGrid::GetBackColor() {
    return qv::InvokeGet<long>(*this, -501, VT_I4);
}

void CFlexGrid::SetBackColor(long nBackColor) {
    qv::InvokePut(*this, -501, VTS_I4, nBackColor);
}

long CFlexGrid::GetBackColorFixed() {
    return qv::InvokeGet<long>(*this, 14, VT_I4);
}

void CFlexGrid::SetBackColorFixed(long nBackColorFixed) {
    qv::InvokePut(*this, 14, VTS_I4, nBackColorFixed);
}

long CFlexGrid::GetForeColorFixed() {
    return qv::InvokeGet<long>(*this, 15, VT_I4);
}

void CFlexGrid::SetForeColorFixed(long nForeColorFixed) {
    qv::InvokePut(*this, 15, VTS_I4, nForeColorFixed);
}

long CFlexGrid::GetBackColorSel() {
    return qv::InvokeGet<long>(*this, 16, VT_I4);
}

void CFlexGrid::SetBackColorSel(long nBackColorSel) {
    qv::InvokePut(*this, 16, VTS_I4, nBackColorSel);
}

long CFlexGrid::GetForeColorSel() {
    return qv::InvokeGet<long>(*this, 17, VT_I4);
}

void CFlexGrid::SetForeColorSel(long nForeColorSel) {
    qv::InvokePut(*this, 17, VTS_I4, nForeColorSel);
}

long CFlexGrid::GetBackColorBkg() {
    return qv::InvokeGet<long>(*this, 18, VT_I4);
}

void CFlexGrid::SetBackColorBkg(long nBackColorBkg) {
    qv::InvokePut(*this, 18, VTS_I4, nBackColorBkg);
}

long CFlexGrid::GetTextStyle() {
    return qv::InvokeGet<long>(*this, 20, VT_I4);
}

void CFlexGrid::SetTextStyle(long nTextStyle) {
    qv::InvokePut(*this, 20, VTS_I4, nTextStyle);
}

long CFlexGrid::GetTextStyleFixed() {
    return qv::InvokeGet<long>(*this, 21, VT_I4);
}

void CFlexGrid::SetTextStyleFixed(long nTextStyleFixed) {
    qv::InvokePut(*this, 21, VTS_I4, nTextStyleFixed);
}

long CFlexGrid::GetGridLines() {
    return qv::InvokeGet<long>(*this, 34, VT_I4);
}

void CFlexGrid::SetGridLines(long nGridLines) {
    qv::InvokePut(*this, 34, VTS_I4, nGridLines);
}

long CFlexGrid::GetGridLinesFixed() {
    return qv::InvokeGet<long>(*this, 35, VT_I4);
}

void CFlexGrid::SetGridLinesFixed(long nGridLinesFixed) {
    qv::InvokePut(*this, 35, VTS_I4, nGridLinesFixed);
}

long CFlexGrid::GetGridColor() {
    return qv::InvokeGet<long>(*this, 36, VT_I4);
}

void CFlexGrid::SetGridColor(long nGridColor) {
    qv::InvokePut(*this, 36, VTS_I4, nGridColor);
}

long CFlexGrid::GetGridColorFixed() {
    return qv::InvokeGet<long>(*this, 37, VT_I4);
}

void CFlexGrid::SetGridColorFixed(long nGridColorFixed) {
    qv::InvokePut(*this, 37, VTS_I4, nGridColorFixed);
}

float CFlexGrid::GetFontWidth() {
    return qv::InvokeGet<float>(*this, 84, VT_R4);
}

void CFlexGrid::SetFontWidth(float fltFontWidth) {
    qv::InvokePut(*this, 84, VTS_R4, fltFontWidth);
}

short CFlexGrid::GetGridLineWidth() {
    return qv::InvokeGet<short>(*this, 89, VT_I2);
}

void CFlexGrid::SetGridLineWidth(short nGridLineWidth) {
    qv::InvokePut(*this, 89, VTS_I2, nGridLineWidth);
}
