// CEditView: a view that is an edit. Included by afxext.h.
#pragma once

#include "afx/documents/ctrl_view.h"
#include "afx/drawing/gdi.h"

#include <vector>

class CArchive;
class CEdit;
class CFindReplaceDialog;

/// The text is the edit's. Commands of the Edit menu (undo, cut, copy, paste, clear, select all,
/// find, find next, replace) are there with their updates; a change of the text marks the document.
/// It prints its text, wrapped.
class QVAFX_API CEditView : public CCtrlView {
    DECLARE_DYNCREATE(CEditView)

public:
    CEditView();
    ~CEditView() override;

    static const DWORD dwStyleDefault;

    CEdit& GetEditCtrl() const;
    UINT GetBufferLength() const;  ///< bytes
    void GetSelectedText(CString& strResult) const;
    /// The text in the edit's memory, until UnlockBuffer. Not to be changed.
    LPCTSTR LockBuffer() const;
    void UnlockBuffer() const {}
    void SetTabStops(int nTabStops);    ///< in units of dialogs
    void SetPrinterFont(CFont* pFont);  ///< null: the screen's
    CFont* GetPrinterFont() const;
    /// Selects the next place behind the selection, or before it. FALSE if there is none.
    BOOL FindText(LPCTSTR lpszFind, BOOL bNext = TRUE, BOOL bCase = TRUE);
    /// Draws the text from byte nIndexStart up to nIndexStop; rectLayout's bottom becomes that of
    /// the last line. Gives the byte that did not fit any more.
    UINT PrintInsideRect(CDC* pDC, RECT& rectLayout, UINT nIndexStart, UINT nIndexStop);

    /// The text with its length before it, among other things of an archive.
    void Serialize(CArchive& ar) override;
    /// The text alone: the archive's file is a text file.
    void SerializeRaw(CArchive& ar);

protected:
    /// nLen bytes; fewer there than that is the archive's exception.
    void ReadFromArchive(CArchive& ar, UINT nLen);
    void WriteToArchive(CArchive& ar);

    virtual void OnFindNext(LPCTSTR lpszFind, BOOL bNext, BOOL bCase);
    virtual void OnReplaceSel(LPCTSTR lpszFind, BOOL bNext, BOOL bCase, LPCTSTR lpszReplace);
    virtual void OnReplaceAll(LPCTSTR lpszFind, LPCTSTR lpszReplace, BOOL bCase);
    virtual void OnTextNotFound(LPCTSTR lpszFind);  ///< beeps

    BOOL OnPreparePrinting(CPrintInfo* pInfo) override;
    void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo) override;
    void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = nullptr) override;
    void OnPrint(CDC* pDC, CPrintInfo* pInfo) override;
    void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpcs);
    afx_msg BOOL OnEditChange();
    afx_msg void OnUpdateNeedSel(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedClip(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedText(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedFind(CCmdUI* pCmdUI);
    afx_msg void OnUpdateEditUndo(CCmdUI* pCmdUI);
    afx_msg void OnEditCut();
    afx_msg void OnEditCopy();
    afx_msg void OnEditPaste();
    afx_msg void OnEditClear();
    afx_msg void OnEditUndo();
    afx_msg void OnEditSelectAll();
    afx_msg void OnEditFind();
    afx_msg void OnEditReplace();
    afx_msg void OnEditRepeat();
    afx_msg LRESULT OnFindReplaceCmd(WPARAM wParam, LPARAM lParam);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

    int m_nTabStops;  ///< in units of dialogs
    HFONT m_hPrinterFont = nullptr;
    std::vector<UINT>
        m_aPageStart;  ///< the byte that each printed page begins with, from page 1 on

private:
    void ShowFindDialog(BOOL bFindOnly);
    BOOL SameAsSelected(LPCTSTR lpszCompare, BOOL bCase) const;
    CString Text() const;

    CFont m_mirrorFont;           ///< the screen's, in the printer's size
    mutable CString m_strLocked;  ///< what LockBuffer gave
    CString m_strFind;            ///< what was looked for last
    CString m_strReplace;
    CFindReplaceDialog* m_pFindDialog = nullptr;  ///< while it is open; deletes itself
    BOOL m_bFindNext = TRUE;
    BOOL m_bFindCase = FALSE;
};
