// The edit as a view: its commands, its text, finding and replacing.
#include "afx/documents/edit_view.h"

#include "afx/values/wide_text.h"

#include <afxext.h>

#include <algorithm>
#include <dlgs.h>
#include <string>
#include <utility>

IMPLEMENT_DYNCREATE(CEditView, CCtrlView)

static const UINT s_nFindMessage = ::RegisterWindowMessage(FINDMSGSTRING);

BEGIN_MESSAGE_MAP(CEditView, CCtrlView)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &CEditView::OnEditChange)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CUT, &CEditView::OnUpdateNeedSel)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CEditView::OnUpdateNeedSel)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CLEAR, &CEditView::OnUpdateNeedSel)
    ON_UPDATE_COMMAND_UI(ID_EDIT_PASTE, &CEditView::OnUpdateNeedClip)
    ON_UPDATE_COMMAND_UI(ID_EDIT_SELECT_ALL, &CEditView::OnUpdateNeedText)
    ON_UPDATE_COMMAND_UI(ID_EDIT_FIND, &CEditView::OnUpdateNeedText)
    ON_UPDATE_COMMAND_UI(ID_EDIT_REPLACE, &CEditView::OnUpdateNeedText)
    ON_UPDATE_COMMAND_UI(ID_EDIT_REPEAT, &CEditView::OnUpdateNeedFind)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, &CEditView::OnUpdateEditUndo)
    ON_COMMAND(ID_EDIT_CUT, &CEditView::OnEditCut)
    ON_COMMAND(ID_EDIT_COPY, &CEditView::OnEditCopy)
    ON_COMMAND(ID_EDIT_PASTE, &CEditView::OnEditPaste)
    ON_COMMAND(ID_EDIT_CLEAR, &CEditView::OnEditClear)
    ON_COMMAND(ID_EDIT_UNDO, &CEditView::OnEditUndo)
    ON_COMMAND(ID_EDIT_SELECT_ALL, &CEditView::OnEditSelectAll)
    ON_COMMAND(ID_EDIT_REPEAT, &CEditView::OnEditRepeat)
    ON_COMMAND(ID_EDIT_FIND, &CEditView::OnEditFind)
    ON_COMMAND(ID_EDIT_REPLACE, &CEditView::OnEditReplace)
    ON_REGISTERED_MESSAGE(s_nFindMessage, &CEditView::OnFindReplaceCmd)
    ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_DIRECT, &CView::OnFilePrint)
END_MESSAGE_MAP()

const DWORD CEditView::dwStyleDefault = AFX_WS_DEFAULT_VIEW | WS_HSCROLL | WS_VSCROLL |
                                        ES_AUTOHSCROLL | ES_AUTOVSCROLL | ES_MULTILINE |
                                        ES_NOHIDESEL;

// Eight characters of average width.
static constexpr int kTabStops = 8 * 4;

CEditView::CEditView() : CCtrlView("EDIT", dwStyleDefault), m_nTabStops(kTabStops) {}

CEditView::~CEditView() = default;

int CEditView::OnCreate(LPCREATESTRUCT lpcs) {
    if (CCtrlView::OnCreate(lpcs) == -1) {
        return -1;
    }
    GetEditCtrl().LimitText(0);  // as much as there is memory for
    GetEditCtrl().SetTabStops(m_nTabStops);
    return 0;
}

CEdit& CEditView::GetEditCtrl() const {
    // The control's class adds no data: it is this window under another name.
    return *static_cast<CEdit*>(static_cast<CWnd*>(const_cast<CEditView*>(this)));
}

void CEditView::SetTabStops(int nTabStops) {
    m_nTabStops = nTabStops;
    GetEditCtrl().SetTabStops(m_nTabStops);
    Invalidate();
}

BOOL CEditView::OnEditChange() {
    if (m_pDocument != nullptr) {
        m_pDocument->SetModifiedFlag();
    }
    return FALSE;  // the parent may want to hear of it as well
}

// Text

CString CEditView::Text() const {
    CString strText;
    GetWindowText(strText);
    return strText;
}

UINT CEditView::GetBufferLength() const {
    return static_cast<UINT>(Text().GetLength());
}

LPCTSTR CEditView::LockBuffer() const {
    m_strLocked = Text();
    return m_strLocked;
}

namespace {

/// An edit counts the wide characters of its text, or the bytes; its view's texts are bytes.
class EditText {
public:
    EditText(const CEdit& edit, const CString& strText) : m_strText(strText) {
        const int nLine = edit.GetLineCount() - 1;
        const int nStart = edit.LineIndex(nLine);
        const int nLength = nStart + edit.LineLength(nStart);
        m_bBytes = nLength == m_strText.GetLength();
    }
    int ByteAt(int nPosition) const {
        if (m_bBytes) {
            return std::min(nPosition, m_strText.GetLength());
        }
        int nByte = 0;
        int nUnits = 0;
        while (nByte < m_strText.GetLength() && nUnits < nPosition) {
            const int nBytes = CharBytes(nByte);
            nUnits += Units(nByte, nBytes);
            nByte += nBytes;
        }
        return nByte;
    }
    int PositionAt(int nByte) const { return m_bBytes ? nByte : Units(0, nByte); }
    int CharBytes(int nByte) const {
        return AfxCharBytes(static_cast<LPCSTR>(m_strText) + nByte, m_strText.GetLength() - nByte);
    }

private:
    int Units(int nByte, int nBytes) const {
        return ::MultiByteToWideChar(CP_ACP, 0, static_cast<LPCSTR>(m_strText) + nByte, nBytes,
                                     nullptr, 0);
    }
    const CString& m_strText;
    bool m_bBytes = true;
};

bool SameText(LPCTSTR lpszText, LPCTSTR lpszFind, int nLength, BOOL bCase) {
    return ::CompareString(LOCALE_USER_DEFAULT, bCase ? 0 : NORM_IGNORECASE, lpszText, nLength,
                           lpszFind, nLength) == CSTR_EQUAL &&
           (!bCase || memcmp(lpszText, lpszFind, static_cast<size_t>(nLength)) == 0);
}

}  // namespace

void CEditView::GetSelectedText(CString& strResult) const {
    int nStart = 0;
    int nEnd = 0;
    GetEditCtrl().GetSel(nStart, nEnd);
    const CString strText = Text();
    const EditText text(GetEditCtrl(), strText);
    const int nFirst = text.ByteAt(nStart);
    strResult = strText.Mid(nFirst, text.ByteAt(nEnd) - nFirst);
}

// Commands

void CEditView::OnUpdateNeedSel(CCmdUI* pCmdUI) {
    int nStart = 0;
    int nEnd = 0;
    GetEditCtrl().GetSel(nStart, nEnd);
    pCmdUI->Enable(nStart != nEnd);
}

void CEditView::OnUpdateNeedClip(CCmdUI* pCmdUI) {
    pCmdUI->Enable(::IsClipboardFormatAvailable(CF_TEXT));
}

void CEditView::OnUpdateNeedText(CCmdUI* pCmdUI) {
    pCmdUI->Enable(GetWindowTextLength() != 0);
}

void CEditView::OnUpdateNeedFind(CCmdUI* pCmdUI) {
    pCmdUI->Enable(GetWindowTextLength() != 0 && !m_strFind.IsEmpty());
}

void CEditView::OnUpdateEditUndo(CCmdUI* pCmdUI) {
    pCmdUI->Enable(GetEditCtrl().CanUndo());
}

void CEditView::OnEditCut() {
    GetEditCtrl().Cut();
}

void CEditView::OnEditCopy() {
    GetEditCtrl().Copy();
}

void CEditView::OnEditPaste() {
    GetEditCtrl().Paste();
}

void CEditView::OnEditClear() {
    GetEditCtrl().Clear();
}

void CEditView::OnEditUndo() {
    GetEditCtrl().Undo();
}

void CEditView::OnEditSelectAll() {
    GetEditCtrl().SetSel(0, -1);
}

void CEditView::OnEditRepeat() {
    if (!FindText(m_strFind, m_bFindNext, m_bFindCase)) {
        OnTextNotFound(m_strFind);
    }
}

// Finding and replacing

BOOL CEditView::FindText(LPCTSTR lpszFind, BOOL bNext, BOOL bCase) {
    const int nFind = lstrlen(lpszFind);
    const CString strText = Text();
    if (nFind == 0 || nFind > strText.GetLength()) {
        return FALSE;
    }
    const CWaitCursor wait;
    const EditText text(GetEditCtrl(), strText);
    int nStart = 0;
    int nEnd = 0;
    GetEditCtrl().GetSel(nStart, nEnd);
    nStart = text.ByteAt(nStart);
    nEnd = text.ByteAt(nEnd);
    const int nLast = strText.GetLength() - nFind;
    // What is selected already, and found there, is not found again.
    const int nFrom = bNext && SameAsSelected(lpszFind, bCase) ? nEnd : nStart;
    int nFound = -1;
    for (int nByte = 0; nByte <= nLast && (bNext || nByte < nStart);
         nByte += text.CharBytes(nByte)) {
        if ((!bNext || nByte >= nFrom) &&
            SameText(static_cast<LPCTSTR>(strText) + nByte, lpszFind, nFind, bCase)) {
            nFound = nByte;
            if (bNext) {
                break;
            }
        }
    }
    if (nFound < 0) {
        return FALSE;
    }
    GetEditCtrl().SetSel(text.PositionAt(nFound), text.PositionAt(nFound + nFind));
    return TRUE;
}

BOOL CEditView::SameAsSelected(LPCTSTR lpszCompare, BOOL bCase) const {
    CString strSelected;
    GetSelectedText(strSelected);
    const int nLength = lstrlen(lpszCompare);
    return strSelected.GetLength() == nLength && nLength > 0 &&
           SameText(strSelected, lpszCompare, nLength, bCase);
}

void CEditView::ShowFindDialog(BOOL bFindOnly) {
    if (m_pFindDialog != nullptr) {
        // One at a time: the other kind takes its place.
        const bool bSame = (m_pFindDialog->GetDlgItem(psh1) != nullptr) != (bFindOnly != FALSE);
        if (bSame) {
            m_pFindDialog->SetActiveWindow();
            return;
        }
        m_pFindDialog->DestroyWindow();
        m_pFindDialog = nullptr;
    }
    CString strFind;
    GetSelectedText(strFind);
    if (strFind.IsEmpty() || strFind.FindOneOf("\r\n") >= 0) {
        strFind = m_strFind;
    }
    auto* pDialog = new CFindReplaceDialog;
    const DWORD dwFlags = FR_HIDEWHOLEWORD | (m_bFindNext || !bFindOnly ? FR_DOWN : 0) |
                          (m_bFindCase ? FR_MATCHCASE : 0);
    if (pDialog->Create(bFindOnly, strFind, m_strReplace, dwFlags, this)) {
        m_pFindDialog = pDialog;
    } else {
        delete pDialog;
    }
}

void CEditView::OnEditFind() {
    ShowFindDialog(TRUE);
}

void CEditView::OnEditReplace() {
    ShowFindDialog(FALSE);
}

LRESULT CEditView::OnFindReplaceCmd(WPARAM, LPARAM lParam) {
    CFindReplaceDialog* pDialog = CFindReplaceDialog::GetNotifier(lParam);
    if (pDialog == nullptr || pDialog != m_pFindDialog) {
        return 0;
    }
    const CString strFind = pDialog->GetFindString();
    const CString strReplace = pDialog->GetReplaceString();
    const BOOL bCase = pDialog->MatchCase();
    if (pDialog->IsTerminating()) {
        m_pFindDialog = nullptr;
    } else if (pDialog->FindNext()) {
        OnFindNext(strFind, pDialog->SearchDown(), bCase);
    } else if (pDialog->ReplaceCurrent()) {
        OnReplaceSel(strFind, TRUE, bCase, strReplace);
    } else if (pDialog->ReplaceAll()) {
        OnReplaceAll(strFind, strReplace, bCase);
    }
    return 0;
}

void CEditView::OnDestroy() {
    // The frame owns the dialog and may stay.
    if (m_pFindDialog != nullptr) {
        std::exchange(m_pFindDialog, nullptr)->DestroyWindow();
    }
    CCtrlView::OnDestroy();
}

void CEditView::OnFindNext(LPCTSTR lpszFind, BOOL bNext, BOOL bCase) {
    m_strFind = lpszFind;
    m_bFindNext = bNext;
    m_bFindCase = bCase;
    if (!FindText(m_strFind, bNext, bCase)) {
        OnTextNotFound(m_strFind);
    }
}

void CEditView::OnReplaceSel(LPCTSTR lpszFind, BOOL bNext, BOOL bCase, LPCTSTR lpszReplace) {
    const CString strReplace(lpszReplace);
    m_strReplace = strReplace;
    const HWND hWnd = m_hWnd;
    if (SameAsSelected(lpszFind, bCase)) {
        GetEditCtrl().ReplaceSel(strReplace, TRUE);
    }
    if (FromHandlePermanent(hWnd) == this) {
        OnFindNext(CString(lpszFind), bNext, bCase);
    }
}

void CEditView::OnReplaceAll(LPCTSTR lpszFind, LPCTSTR lpszReplace, BOOL bCase) {
    const CString strFind(lpszFind);
    m_strFind = strFind;
    m_strReplace = lpszReplace;
    m_bFindCase = bCase;
    const CString strText = Text();
    const EditText text(GetEditCtrl(), strText);
    const int nFind = strFind.GetLength();
    CString strNew;
    int nKept = 0;
    bool bAny = false;
    for (int nByte = 0; nFind > 0 && nByte + nFind <= strText.GetLength();) {
        if (SameText(static_cast<LPCTSTR>(strText) + nByte, strFind, nFind, bCase)) {
            strNew += strText.Mid(nKept, nByte - nKept) + m_strReplace;
            nByte += nFind;
            nKept = nByte;
            bAny = true;
        } else {
            nByte += text.CharBytes(nByte);
        }
    }
    if (!bAny) {
        OnTextNotFound(strFind);
        return;
    }
    strNew += strText.Mid(nKept);
    CEdit& edit = GetEditCtrl();
    edit.SetSel(0, -1);
    edit.ReplaceSel(strNew, TRUE);  // one step to undo
}

void CEditView::OnTextNotFound(LPCTSTR) {
    ::MessageBeep(0);
}
