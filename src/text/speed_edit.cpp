#include "text/speed_edit.h"

#include "common/process_text.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "text/core/type_ahead.h"
#include "text/edit_positions.h"

#include <cstring>
#include <utility>

BEGIN_MESSAGE_MAP(QVSpeedEdit, CEdit)
    ON_WM_CHAR()
END_MESSAGE_MAP()

void QVSpeedEdit::SetSpeedData(CStringArray* pData) {
    m_pSpeedData = pData;
}

void QVSpeedEdit::SetSpeedOnly(int bOnly) {
    m_bSpeedOnly = bOnly;
}

LRESULT QVSpeedEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_KEYDOWN || message == WM_KILLFOCUS) {
        m_nLead = 0;  // what follows is typed anew
    }
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CEdit::WindowProc(message, wParam, lParam); });
}

// --- Search

int QVSpeedEdit::NumEntries() const {
    return m_pSpeedData != nullptr ? static_cast<int>(m_pSpeedData->GetSize()) : 0;
}

int QVSpeedEdit::SpeedMatch(const char* pszText, int nIndex) {
    if (nIndex < 0 || nIndex >= NumEntries()) {
        return 1;
    }
    return qv::ProcessText().CompareNoCase((*m_pSpeedData)[nIndex], pszText, std::strlen(pszText));
}

int QVSpeedEdit::FindSpeedText(const char* pszText) {
    if (pszText == nullptr || *pszText == 0) {
        return -1;
    }
    return qv::FindTyped(NumEntries(), [&](int nIndex) { return SpeedMatch(pszText, nIndex); });
}

// --- Typing

// A character of two bytes comes in two messages, and its second byte may look like one of ASCII.
bool QVSpeedEdit::IsTrailByte(UINT nChar) {
    const char bytes[] = {static_cast<char>(std::exchange(m_nLead, 0)), static_cast<char>(nChar)};
    const bool bTrail = bytes[0] != 0 && qv::ProcessText().CharBytes({bytes, 2}) == 2;
    if (!bTrail && nChar <= 0xFF && qv::ProcessText().CanLead(static_cast<unsigned char>(nChar))) {
        m_nLead = nChar;
    }
    return bTrail;
}

void QVSpeedEdit::OnChar(UINT nChar, UINT nRepeat, UINT nFlags) {
    const bool bTrail = IsTrailByte(nChar);
    const bool bTaken = qv::IsTyped(nChar) || (nChar == qv::kBackspace && m_bSpeedOnly);
    if (m_pSpeedData == nullptr || bTrail || !bTaken || (GetStyle() & ES_READONLY) != 0) {
        CEdit::OnChar(nChar, nRepeat, nFlags);
    } else {
        Type(nChar);
    }
}

// The parent is told of each change.
void QVSpeedEdit::Type(UINT nChar) {
    CString strText;
    GetWindowText(strText);
    int nStart;
    int nEnd;
    GetSel(nStart, nEnd);
    const qv::EditPositions before(m_hWnd, qv::View(strText));
    const auto find = [this](const char* psz) { return FindSpeedText(psz); };
    const qv::TypedAnswer answer =
        nChar == qv::kBackspace
            ? qv::TypeBackspace(qv::View(strText), before.ToByte(nStart - 1), NumEntries(), find)
            : qv::TypeChar(qv::View(strText), before.ToByte(nStart), static_cast<char>(nChar),
                           m_bSpeedOnly != 0, find);
    if (answer.action == qv::TypedAnswer::Action::Beep) {
        ::MessageBeep(0);
    }
    if (answer.action != qv::TypedAnswer::Action::Show) {
        return;
    }
    const bool bEntry = answer.nEntry >= 0;
    const CString strShown =
        bEntry ? (*m_pSpeedData)[answer.nEntry] : CString(answer.strText.c_str());
    const qv::WindowWatch watch(m_alive, m_hWnd);
    SetWindowText(strShown);
    if (!watch) {
        return;
    }
    const qv::EditPositions shown(m_hWnd, qv::View(strShown));
    // One behind the end puts the caret there.
    const int nFirst = bEntry ? shown.FromByte(answer.nSelect) : shown.FromByte(answer.nSelect) + 1;
    const int nLast = bEntry ? shown.FromByte(strShown.GetLength()) : nFirst;
    SendMessage(EM_SETSEL, static_cast<WPARAM>(nFirst), nLast);
    if (watch) {
        SendMessage(EM_SCROLLCARET);
    }
}
