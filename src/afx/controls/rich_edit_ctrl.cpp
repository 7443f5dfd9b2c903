#include "afx/controls/rich_edit_ctrl.h"

#include "afx/window/wnd_state.h"

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

BOOL CRichEditCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    // Loaded once, and for as long as the process runs.
    static const HMODULE s_hLibrary = ::LoadLibrary("riched20.dll");
    return s_hLibrary != nullptr &&
           CWnd::Create(RICHEDIT_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CRichEditCtrl::GetLineCount() const {
    return AfxSend<int>(m_hWnd, EM_GETLINECOUNT);
}

int CRichEditCtrl::GetFirstVisibleLine() const {
    return AfxSend<int>(m_hWnd, EM_GETFIRSTVISIBLELINE);
}

long CRichEditCtrl::GetTextLength() const {
    return AfxSend<long>(m_hWnd, WM_GETTEXTLENGTH);
}

long CRichEditCtrl::GetTextLengthEx(DWORD dwFlags, UINT uCodePage) const {
    GETTEXTLENGTHEX length = {};
    length.flags = dwFlags;
    length.codepage = uCodePage == static_cast<UINT>(-1) ? CP_ACP : uCodePage;
    return AfxSend<long>(m_hWnd, EM_GETTEXTLENGTHEX, &length);
}

int CRichEditCtrl::GetLine(int nIndex, LPTSTR lpszBuffer) const {
    return AfxSend<int>(m_hWnd, EM_GETLINE, nIndex, lpszBuffer);
}

int CRichEditCtrl::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    // The room stands where the text goes to.
    *reinterpret_cast<WORD*>(lpszBuffer) = static_cast<WORD>(nMaxLength);
    return GetLine(nIndex, lpszBuffer);
}

long CRichEditCtrl::LineFromChar(long nIndex) const {
    return AfxSend<long>(m_hWnd, EM_EXLINEFROMCHAR, 0, nIndex);
}

int CRichEditCtrl::LineIndex(int nLine) const {
    return AfxSend<int>(m_hWnd, EM_LINEINDEX, nLine);
}

int CRichEditCtrl::LineLength(int nLine) const {
    return AfxSend<int>(m_hWnd, EM_LINELENGTH, nLine);
}

void CRichEditCtrl::LineScroll(int nLines, int nChars) {
    AfxSend(m_hWnd, EM_LINESCROLL, nChars, nLines);
}

CString CRichEditCtrl::GetTextRange(int nFirst, int nLast) const {
    CString strText;
    GetTextRange(nFirst, nLast, strText);
    return strText;
}

void CRichEditCtrl::GetTextRange(int nFirst, int nLast, CString& refString) const {
    refString.Empty();
    if (nLast < 0) {
        nLast = static_cast<int>(GetTextLength());
    }
    if (nLast > nFirst) {
        constexpr int kLongestChar = 4;  // bytes
        TEXTRANGE range = {};
        range.chrg.cpMin = nFirst;
        range.chrg.cpMax = nLast;
        range.lpstrText = refString.GetBuffer((nLast - nFirst) * kLongestChar);
        range.lpstrText[0] = '\0';
        AfxSend(m_hWnd, EM_GETTEXTRANGE, 0, &range);
        refString.ReleaseBuffer();
    }
}

long CRichEditCtrl::FindText(DWORD dwFlags, FINDTEXTEX* pFindText) const {
    return AfxSend<long>(m_hWnd, EM_FINDTEXTEX, dwFlags, pFindText);
}

long CRichEditCtrl::GetLimitText() const {
    return AfxSend<long>(m_hWnd, EM_GETLIMITTEXT);
}

void CRichEditCtrl::LimitText(long nChars) {
    AfxSend(m_hWnd, EM_EXLIMITTEXT, 0, nChars);
}

CPoint CRichEditCtrl::PosFromChar(UINT nChar) const {
    return GetCharPos(static_cast<long>(nChar));
}

CPoint CRichEditCtrl::GetCharPos(long lChar) const {
    POINTL pt = {};
    AfxSend(m_hWnd, EM_POSFROMCHAR, &pt, lChar);
    return CPoint(pt.x, pt.y);
}

int CRichEditCtrl::CharFromPos(CPoint pt) const {
    POINTL point = {pt.x, pt.y};
    return AfxSend<int>(m_hWnd, EM_CHARFROMPOS, 0, &point);
}

void CRichEditCtrl::GetSel(long& nStartChar, long& nEndChar) const {
    CHARRANGE range = {};
    GetSel(range);
    nStartChar = range.cpMin;
    nEndChar = range.cpMax;
}

void CRichEditCtrl::GetSel(CHARRANGE& cr) const {
    AfxSend(m_hWnd, EM_EXGETSEL, 0, &cr);
}

void CRichEditCtrl::SetSel(long nStartChar, long nEndChar) {
    CHARRANGE range = {nStartChar, nEndChar};
    SetSel(range);
}

void CRichEditCtrl::SetSel(CHARRANGE& cr) {
    AfxSend(m_hWnd, EM_EXSETSEL, 0, &cr);
}

WORD CRichEditCtrl::GetSelectionType() const {
    return AfxSend<WORD>(m_hWnd, EM_SELECTIONTYPE);
}

CString CRichEditCtrl::GetSelText() const {
    constexpr int kLongestChar = 4;  // bytes
    CHARRANGE range = {};
    GetSel(range);
    CString strText;
    if (range.cpMax > range.cpMin) {
        GetSelText(strText.GetBuffer(static_cast<int>(range.cpMax - range.cpMin) * kLongestChar));
        strText.ReleaseBuffer();
    }
    return strText;
}

long CRichEditCtrl::GetSelText(LPSTR lpBuf) const {
    return AfxSend<long>(m_hWnd, EM_GETSELTEXT, 0, lpBuf);
}

void CRichEditCtrl::HideSelection(BOOL bHide, BOOL bPerm) {
    AfxSend(m_hWnd, EM_HIDESELECTION, bHide, bPerm);
}

void CRichEditCtrl::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo) {
    AfxSend(m_hWnd, EM_REPLACESEL, bCanUndo, lpszNewText);
}

DWORD CRichEditCtrl::GetDefaultCharFormat(CHARFORMAT& cf) const {
    cf.cbSize = sizeof cf;
    return AfxSend<DWORD>(m_hWnd, EM_GETCHARFORMAT, SCF_DEFAULT, &cf);
}

DWORD CRichEditCtrl::GetSelectionCharFormat(CHARFORMAT& cf) const {
    cf.cbSize = sizeof cf;
    return AfxSend<DWORD>(m_hWnd, EM_GETCHARFORMAT, SCF_SELECTION, &cf);
}

BOOL CRichEditCtrl::SetDefaultCharFormat(CHARFORMAT& cf) {
    cf.cbSize = sizeof cf;
    return AfxSend<BOOL>(m_hWnd, EM_SETCHARFORMAT, SCF_DEFAULT, &cf);
}

BOOL CRichEditCtrl::SetSelectionCharFormat(CHARFORMAT& cf) {
    cf.cbSize = sizeof cf;
    return AfxSend<BOOL>(m_hWnd, EM_SETCHARFORMAT, SCF_SELECTION, &cf);
}

BOOL CRichEditCtrl::SetWordCharFormat(CHARFORMAT& cf) {
    cf.cbSize = sizeof cf;
    return AfxSend<BOOL>(m_hWnd, EM_SETCHARFORMAT, SCF_SELECTION | SCF_WORD, &cf);
}

DWORD CRichEditCtrl::GetDefaultCharFormat(CHARFORMAT2& cf) const {
    cf.cbSize = sizeof cf;
    return AfxSend<DWORD>(m_hWnd, EM_GETCHARFORMAT, SCF_DEFAULT, &cf);
}

DWORD CRichEditCtrl::GetSelectionCharFormat(CHARFORMAT2& cf) const {
    cf.cbSize = sizeof cf;
    return AfxSend<DWORD>(m_hWnd, EM_GETCHARFORMAT, SCF_SELECTION, &cf);
}

BOOL CRichEditCtrl::SetDefaultCharFormat(CHARFORMAT2& cf) {
    cf.cbSize = sizeof cf;
    return AfxSend<BOOL>(m_hWnd, EM_SETCHARFORMAT, SCF_DEFAULT, &cf);
}

BOOL CRichEditCtrl::SetSelectionCharFormat(CHARFORMAT2& cf) {
    cf.cbSize = sizeof cf;
    return AfxSend<BOOL>(m_hWnd, EM_SETCHARFORMAT, SCF_SELECTION, &cf);
}

BOOL CRichEditCtrl::SetWordCharFormat(CHARFORMAT2& cf) {
    cf.cbSize = sizeof cf;
    return AfxSend<BOOL>(m_hWnd, EM_SETCHARFORMAT, SCF_SELECTION | SCF_WORD, &cf);
}

DWORD CRichEditCtrl::GetParaFormat(PARAFORMAT& pf) const {
    pf.cbSize = sizeof pf;
    return AfxSend<DWORD>(m_hWnd, EM_GETPARAFORMAT, 0, &pf);
}

BOOL CRichEditCtrl::SetParaFormat(PARAFORMAT& pf) {
    pf.cbSize = sizeof pf;
    return AfxSend<BOOL>(m_hWnd, EM_SETPARAFORMAT, 0, &pf);
}

DWORD CRichEditCtrl::GetParaFormat(PARAFORMAT2& pf) const {
    pf.cbSize = sizeof pf;
    return AfxSend<DWORD>(m_hWnd, EM_GETPARAFORMAT, 0, &pf);
}

BOOL CRichEditCtrl::SetParaFormat(PARAFORMAT2& pf) {
    pf.cbSize = sizeof pf;
    return AfxSend<BOOL>(m_hWnd, EM_SETPARAFORMAT, 0, &pf);
}

COLORREF CRichEditCtrl::SetBackgroundColor(BOOL bSysColor, COLORREF cr) {
    return AfxSend<COLORREF>(m_hWnd, EM_SETBKGNDCOLOR, bSysColor, cr);
}

long CRichEditCtrl::StreamIn(int nFormat, EDITSTREAM& es) {
    return AfxSend<long>(m_hWnd, EM_STREAMIN, nFormat, &es);
}

long CRichEditCtrl::StreamOut(int nFormat, EDITSTREAM& es) {
    return AfxSend<long>(m_hWnd, EM_STREAMOUT, nFormat, &es);
}

long CRichEditCtrl::FormatRange(FORMATRANGE* pfr, BOOL bDisplay) {
    return AfxSend<long>(m_hWnd, EM_FORMATRANGE, bDisplay, pfr);
}

BOOL CRichEditCtrl::DisplayBand(LPRECT pDisplayRect) {
    return AfxSend<BOOL>(m_hWnd, EM_DISPLAYBAND, 0, pDisplayRect);
}

BOOL CRichEditCtrl::SetTargetDevice(HDC hDC, long lLineWidth) {
    return AfxSend<BOOL>(m_hWnd, EM_SETTARGETDEVICE, hDC, lLineWidth);
}

BOOL CRichEditCtrl::SetTargetDevice(CDC& dc, long lLineWidth) {
    return SetTargetDevice(dc.m_hDC, lLineWidth);
}

BOOL CRichEditCtrl::GetModify() const {
    return AfxSend<BOOL>(m_hWnd, EM_GETMODIFY);
}

void CRichEditCtrl::SetModify(BOOL bModified) {
    AfxSend(m_hWnd, EM_SETMODIFY, bModified);
}

BOOL CRichEditCtrl::SetReadOnly(BOOL bReadOnly) {
    return AfxSend<BOOL>(m_hWnd, EM_SETREADONLY, bReadOnly);
}

void CRichEditCtrl::GetRect(LPRECT lpRect) const {
    AfxSend(m_hWnd, EM_GETRECT, 0, lpRect);
}

void CRichEditCtrl::SetRect(LPCRECT lpRect) {
    AfxSend(m_hWnd, EM_SETRECT, 0, lpRect);
}

long CRichEditCtrl::GetEventMask() const {
    return AfxSend<long>(m_hWnd, EM_GETEVENTMASK);
}

DWORD CRichEditCtrl::SetEventMask(DWORD dwEventMask) {
    return AfxSend<DWORD>(m_hWnd, EM_SETEVENTMASK, 0, dwEventMask);
}

void CRichEditCtrl::SetOptions(WORD wOp, DWORD dwFlags) {
    AfxSend(m_hWnd, EM_SETOPTIONS, wOp, dwFlags);
}

BOOL CRichEditCtrl::SetAutoURLDetect(BOOL bEnable) {
    return AfxSend<BOOL>(m_hWnd, EM_AUTOURLDETECT, bEnable);
}

UINT CRichEditCtrl::SetUndoLimit(UINT nLimit) {
    return AfxSend<UINT>(m_hWnd, EM_SETUNDOLIMIT, nLimit);
}

void CRichEditCtrl::RequestResize() {
    AfxSend(m_hWnd, EM_REQUESTRESIZE);
}

IRichEditOle* CRichEditCtrl::GetIRichEditOle() const {
    IRichEditOle* pOle = nullptr;
    AfxSend(m_hWnd, EM_GETOLEINTERFACE, 0, &pOle);
    return pOle;
}

BOOL CRichEditCtrl::SetOLECallback(IRichEditOleCallback* pCallback) {
    return AfxSend<BOOL>(m_hWnd, EM_SETOLECALLBACK, 0, pCallback);
}

BOOL CRichEditCtrl::CanPaste(UINT nFormat) const {
    return AfxSend<BOOL>(m_hWnd, EM_CANPASTE, nFormat);
}

void CRichEditCtrl::PasteSpecial(UINT nClipFormat, DWORD dvAspect, HMETAFILE hMF) {
    REPASTESPECIAL special = {};
    special.dwAspect = dvAspect;
    special.dwParam = reinterpret_cast<DWORD_PTR>(hMF);
    AfxSend(m_hWnd, EM_PASTESPECIAL, nClipFormat, &special);
}

BOOL CRichEditCtrl::CanUndo() const {
    return AfxSend<BOOL>(m_hWnd, EM_CANUNDO);
}

BOOL CRichEditCtrl::CanRedo() const {
    return AfxSend<BOOL>(m_hWnd, EM_CANREDO);
}

BOOL CRichEditCtrl::Undo() {
    return AfxSend<BOOL>(m_hWnd, EM_UNDO);
}

BOOL CRichEditCtrl::Redo() {
    return AfxSend<BOOL>(m_hWnd, EM_REDO);
}

void CRichEditCtrl::EmptyUndoBuffer() {
    AfxSend(m_hWnd, EM_EMPTYUNDOBUFFER);
}

void CRichEditCtrl::Clear() {
    AfxSend(m_hWnd, WM_CLEAR);
}

void CRichEditCtrl::Copy() {
    AfxSend(m_hWnd, WM_COPY);
}

void CRichEditCtrl::Cut() {
    AfxSend(m_hWnd, WM_CUT);
}

void CRichEditCtrl::Paste() {
    AfxSend(m_hWnd, WM_PASTE);
}
