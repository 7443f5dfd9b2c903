// Edit control.
#include "afx/window/wnd_state.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CEdit, CWnd)

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CEdit::CanUndo() const {
    return AfxSend<BOOL>(m_hWnd, EM_CANUNDO);
}

int CEdit::GetLineCount() const {
    return AfxSend<int>(m_hWnd, EM_GETLINECOUNT);
}

BOOL CEdit::GetModify() const {
    return AfxSend<BOOL>(m_hWnd, EM_GETMODIFY);
}

void CEdit::SetModify(BOOL bModified) {
    AfxSend(m_hWnd, EM_SETMODIFY, bModified);
}

void CEdit::GetRect(LPRECT lpRect) const {
    AfxSend(m_hWnd, EM_GETRECT, 0, lpRect);
}

DWORD CEdit::GetSel() const {
    return AfxSend<DWORD>(m_hWnd, EM_GETSEL);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const {
    DWORD dwStart = 0;
    DWORD dwEnd = 0;
    AfxSend(m_hWnd, EM_GETSEL, &dwStart, &dwEnd);
    nStartChar = static_cast<int>(dwStart);
    nEndChar = static_cast<int>(dwEnd);
}

HLOCAL CEdit::GetHandle() const {
    return AfxSend<HLOCAL>(m_hWnd, EM_GETHANDLE);
}

void CEdit::SetHandle(HLOCAL hBuffer) {
    AfxSend(m_hWnd, EM_SETHANDLE, hBuffer);
}

void CEdit::SetMargins(UINT nLeft, UINT nRight) {
    AfxSend(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
}

DWORD CEdit::GetMargins() const {
    return AfxSend<DWORD>(m_hWnd, EM_GETMARGINS);
}

void CEdit::SetLimitText(UINT nMax) {
    AfxSend(m_hWnd, EM_SETLIMITTEXT, nMax);
}

UINT CEdit::GetLimitText() const {
    return AfxSend<UINT>(m_hWnd, EM_GETLIMITTEXT);
}

CPoint CEdit::PosFromChar(UINT nChar) const {
    const DWORD dwPos = AfxSend<DWORD>(m_hWnd, EM_POSFROMCHAR, nChar);
    return CPoint(static_cast<short>(LOWORD(dwPos)), static_cast<short>(HIWORD(dwPos)));
}

int CEdit::CharFromPos(CPoint pt) const {
    return AfxSend<int>(m_hWnd, EM_CHARFROMPOS, 0, MAKELONG(pt.x, pt.y));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer) const {
    return AfxSend<int>(m_hWnd, EM_GETLINE, nIndex, lpszBuffer);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    const WORD wMax = static_cast<WORD>(nMaxLength);
    memcpy(lpszBuffer, &wMax, sizeof wMax);  // the call reads its size there
    return AfxSend<int>(m_hWnd, EM_GETLINE, nIndex, lpszBuffer);
}

TCHAR CEdit::GetPasswordChar() const {
    return AfxSend<TCHAR>(m_hWnd, EM_GETPASSWORDCHAR);
}

void CEdit::SetPasswordChar(TCHAR ch) {
    AfxSend(m_hWnd, EM_SETPASSWORDCHAR, static_cast<BYTE>(ch));
}

int CEdit::GetFirstVisibleLine() const {
    return AfxSend<int>(m_hWnd, EM_GETFIRSTVISIBLELINE);
}

void CEdit::EmptyUndoBuffer() {
    AfxSend(m_hWnd, EM_EMPTYUNDOBUFFER);
}

BOOL CEdit::FmtLines(BOOL bAddEOL) {
    return AfxSend<BOOL>(m_hWnd, EM_FMTLINES, bAddEOL);
}

void CEdit::LimitText(int nChars) {
    AfxSend(m_hWnd, EM_LIMITTEXT, nChars);
}

int CEdit::LineFromChar(int nIndex) const {
    return AfxSend<int>(m_hWnd, EM_LINEFROMCHAR, nIndex);
}

int CEdit::LineIndex(int nLine) const {
    return AfxSend<int>(m_hWnd, EM_LINEINDEX, nLine);
}

int CEdit::LineLength(int nLine) const {
    return AfxSend<int>(m_hWnd, EM_LINELENGTH, nLine);
}

void CEdit::LineScroll(int nLines, int nChars) {
    AfxSend(m_hWnd, EM_LINESCROLL, nChars, nLines);
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo) {
    AfxSend(m_hWnd, EM_REPLACESEL, bCanUndo, lpszNewText);
}

void CEdit::SetRect(LPCRECT lpRect) {
    AfxSend(m_hWnd, EM_SETRECT, 0, lpRect);
}

void CEdit::SetRectNP(LPCRECT lpRect) {
    AfxSend(m_hWnd, EM_SETRECTNP, 0, lpRect);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll) {
    SetSel(LOWORD(dwSelection), HIWORD(dwSelection), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    AfxSend(m_hWnd, EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll) {
        AfxSend(m_hWnd, EM_SCROLLCARET);
    }
}

BOOL CEdit::SetTabStops(int nTabStops, LPINT rgTabStops) {
    return AfxSend<BOOL>(m_hWnd, EM_SETTABSTOPS, nTabStops, rgTabStops);
}

void CEdit::SetTabStops() {
    AfxSend(m_hWnd, EM_SETTABSTOPS);
}

BOOL CEdit::SetTabStops(const int& cxEachStop) {
    return AfxSend<BOOL>(m_hWnd, EM_SETTABSTOPS, 1, &cxEachStop);
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly) {
    return AfxSend<BOOL>(m_hWnd, EM_SETREADONLY, bReadOnly);
}

BOOL CEdit::Undo() {
    return AfxSend<BOOL>(m_hWnd, EM_UNDO);
}

void CEdit::Clear() {
    AfxSend(m_hWnd, WM_CLEAR);
}

void CEdit::Copy() {
    AfxSend(m_hWnd, WM_COPY);
}

void CEdit::Cut() {
    AfxSend(m_hWnd, WM_CUT);
}

void CEdit::Paste() {
    AfxSend(m_hWnd, WM_PASTE);
}
