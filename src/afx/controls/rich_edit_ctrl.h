// CRichEditCtrl, the edit with formats.
#pragma once

#include "afx/controls/controls.h"

#include <richedit.h>
#include <richole.h>

/// Positions are the control's characters. Texts are of the process's code page.
class QVAFX_API CRichEditCtrl : public CWnd {
    DECLARE_DYNAMIC(CRichEditCtrl)

public:
    CRichEditCtrl() = default;
    /// Loads the control's library if need be; a dialog with such a control wants AfxInitRichEdit2
    /// before.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Text and lines
    int GetLineCount() const;
    int GetFirstVisibleLine() const;
    long GetTextLength() const;
    long GetTextLengthEx(DWORD dwFlags, UINT uCodePage = static_cast<UINT>(-1)) const;
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    long LineFromChar(long nIndex) const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    void LineScroll(int nLines, int nChars = 0);
    CString GetTextRange(int nFirst, int nLast) const;
    void GetTextRange(int nFirst, int nLast, CString& refString) const;
    long FindText(DWORD dwFlags, FINDTEXTEX* pFindText) const;
    long GetLimitText() const;
    void LimitText(long nChars = 0);
    CPoint PosFromChar(UINT nChar) const;
    CPoint GetCharPos(long lChar) const;
    int CharFromPos(CPoint pt) const;

    // Selection
    void GetSel(long& nStartChar, long& nEndChar) const;
    void GetSel(CHARRANGE& cr) const;
    void SetSel(long nStartChar, long nEndChar);
    void SetSel(CHARRANGE& cr);
    WORD GetSelectionType() const;
    CString GetSelText() const;
    long GetSelText(LPSTR lpBuf) const;
    void HideSelection(BOOL bHide, BOOL bPerm);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);

    // Formats. GetDefault... and SetDefault... are about text that comes later.
    DWORD GetDefaultCharFormat(CHARFORMAT& cf) const;
    DWORD GetDefaultCharFormat(CHARFORMAT2& cf) const;
    DWORD GetSelectionCharFormat(CHARFORMAT& cf) const;
    DWORD GetSelectionCharFormat(CHARFORMAT2& cf) const;
    DWORD GetParaFormat(PARAFORMAT& pf) const;
    DWORD GetParaFormat(PARAFORMAT2& pf) const;
    BOOL SetDefaultCharFormat(CHARFORMAT& cf);
    BOOL SetDefaultCharFormat(CHARFORMAT2& cf);
    BOOL SetSelectionCharFormat(CHARFORMAT& cf);
    BOOL SetSelectionCharFormat(CHARFORMAT2& cf);
    BOOL SetWordCharFormat(CHARFORMAT& cf);
    BOOL SetWordCharFormat(CHARFORMAT2& cf);
    BOOL SetParaFormat(PARAFORMAT& pf);
    BOOL SetParaFormat(PARAFORMAT2& pf);
    COLORREF SetBackgroundColor(BOOL bSysColor, COLORREF cr);

    // Streams
    long StreamIn(int nFormat, EDITSTREAM& es);
    long StreamOut(int nFormat, EDITSTREAM& es);
    long FormatRange(FORMATRANGE* pfr, BOOL bDisplay = TRUE);
    BOOL DisplayBand(LPRECT pDisplayRect);
    BOOL SetTargetDevice(HDC hDC, long lLineWidth);
    BOOL SetTargetDevice(CDC& dc, long lLineWidth);

    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    void GetRect(LPRECT lpRect) const;
    void SetRect(LPCRECT lpRect);
    long GetEventMask() const;
    DWORD SetEventMask(DWORD dwEventMask);
    void SetOptions(WORD wOp, DWORD dwFlags);
    BOOL SetAutoURLDetect(BOOL bEnable = TRUE);
    UINT SetUndoLimit(UINT nLimit);
    void RequestResize();
    IRichEditOle* GetIRichEditOle() const;  ///< the caller releases it
    BOOL SetOLECallback(IRichEditOleCallback* pCallback);

    BOOL CanPaste(UINT nFormat = 0) const;
    void PasteSpecial(UINT nClipFormat, DWORD dvAspect = 0, HMETAFILE hMF = nullptr);
    BOOL CanUndo() const;
    BOOL CanRedo() const;
    BOOL Undo();
    BOOL Redo();
    void EmptyUndoBuffer();
    void Clear();
    void Copy();
    void Cut();
    void Paste();
};
