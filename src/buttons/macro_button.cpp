#include "buttons/macro_button.h"

#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "text/edit_positions.h"

IMPLEMENT_DYNAMIC(QVMacroButton, QVMenuButton)

namespace {

bool IsEdit(HWND hWnd) {
    constexpr int kRoom = 8;  // longer names are other classes
    char szClass[kRoom] = {};
    return ::GetClassName(hWnd, szClass, kRoom) != 0 && ::lstrcmpi(szClass, "EDIT") == 0;
}

// EM_CHARFROMPOS has room for the low 16 bits of a position only. The rest of it comes from the
// ends of the selection, one of which is the caret.
int CaretPosition(HWND hEdit) {
    CPoint ptCaret;
    ::GetCaretPos(&ptCaret);
    const WORD wLow =
        LOWORD(::SendMessage(hEdit, EM_CHARFROMPOS, 0, MAKELPARAM(ptCaret.x, ptCaret.y)));
    DWORD ends[2] = {wLow, wLow};
    ::SendMessage(hEdit, EM_GETSEL, reinterpret_cast<WPARAM>(&ends[0]),
                  reinterpret_cast<LPARAM>(&ends[1]));
    for (const DWORD dwEnd : ends) {
        if (LOWORD(dwEnd) == wLow) {
            return static_cast<int>(dwEnd);
        }
    }
    return wLow;
}

CString TextOf(HWND hWnd) {
    CString strText;
    const int nRoom = ::GetWindowTextLength(hWnd);
    ::GetWindowText(hWnd, strText.GetBuffer(nRoom + 1), nRoom + 1);
    strText.ReleaseBuffer();
    return strText;
}

// For an edit that does not tell its selection.
void InsertAtCaret(HWND hEdit, const CString& strSnippet) {
    const int nPosition = CaretPosition(hEdit);
    const CString strOld = TextOf(hEdit);
    const int nByte = qv::EditPositions(hEdit, qv::View(strOld)).ToByte(nPosition);
    const CString strNew = strOld.Left(nByte) + strSnippet + strOld.Mid(nByte);
    ::SetWindowText(hEdit, strNew);
    if (!::IsWindow(hEdit)) {
        return;
    }
    const int nBehind =
        qv::EditPositions(hEdit, qv::View(strNew)).FromByte(nByte + strSnippet.GetLength());
    const auto lPoint =
        static_cast<LONG>(::SendMessage(hEdit, EM_POSFROMCHAR, static_cast<WPARAM>(nBehind), 0));
    if (lPoint != -1) {
        ::SetCaretPos(static_cast<short>(LOWORD(lPoint)), static_cast<short>(HIWORD(lPoint)));
    }
}

}  // namespace

QVMacroButton::QVMacroButton() : m_nEditCtrlID(0) {}

QVMacroButton::~QVMacroButton() = default;

void QVMacroButton::AddMacro(const CString& strTitle, const CString& strMacro) {
    const int nIndex = QVMenuButton::AddString(strTitle);
    if (nIndex >= 0 && !qv::MemorySuffices([&] { m_astrMacros.SetAtGrow(nIndex, strMacro); })) {
        m_astrItems.RemoveAt(nIndex);
    }
}

void QVMacroButton::AddString(const CString&) {}

void QVMacroButton::SetEditCtrlID(unsigned nID) {
    m_nEditCtrlID = nID;
}

// By handles alone: telling the parent of the change may take anything away.
void QVMacroButton::OnMenuSelected(unsigned nIndex) {
    if (nIndex >= static_cast<unsigned>(m_astrMacros.GetSize())) {
        return;
    }
    const HWND hEdit = m_nEditCtrlID != 0
                           ? ::GetDlgItem(::GetParent(m_hWnd), static_cast<int>(m_nEditCtrlID))
                           : ::GetFocus();
    if (hEdit == nullptr || !IsEdit(hEdit)) {
        return;
    }
    const CString strSnippet = m_astrMacros[static_cast<INT_PTR>(nIndex)];
    if (static_cast<LONG>(::SendMessage(hEdit, EM_GETSEL, 0, 0)) != -1) {
        ::SendMessage(hEdit, EM_REPLACESEL, FALSE,
                      reinterpret_cast<LPARAM>(static_cast<LPCSTR>(strSnippet)));
    } else {
        qv::MemorySuffices([&] { InsertAtCaret(hEdit, strSnippet); });
    }
}
