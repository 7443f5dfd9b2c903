#include "find_desk.h"

#include "resource.h"
#include "work.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(FindDesk, CCmdTarget)
    ON_COMMAND(ID_FIND, &FindDesk::OnFind)
    ON_COMMAND(ID_FIND_NEXT, &FindDesk::OnNext)
    ON_COMMAND(ID_FIND_PREVIOUS, &FindDesk::OnPrevious)
END_MESSAGE_MAP()

UINT FindDesk::Message() {
    static const UINT s_nMessage = ::RegisterWindowMessage(FINDMSGSTRING);
    return s_nMessage;
}

void FindDesk::OnFind() {
    if (m_pDialog != nullptr) {
        m_pDialog->SetActiveWindow();
        return;
    }
    m_pDialog = new CFindReplaceDialog;
    if (!m_pDialog->Create(TRUE, m_strText, nullptr, m_dwFlags, &m_frame)) {
        delete m_pDialog;
        m_pDialog = nullptr;
        return;
    }
    // In the corner where it hides least of what is found.
    CRect rc;
    CRect rcFrame;
    m_pDialog->GetWindowRect(&rc);
    m_frame.GetWindowRect(&rcFrame);
    m_pDialog->SetWindowPos(nullptr, std::max(rcFrame.right - rc.Width(), 0L),
                            std::max(rcFrame.bottom - rc.Height(), 0L), 0, 0,
                            SWP_NOSIZE | SWP_NOZORDER);
}

void FindDesk::OnDialog(LPARAM lParam) {
    const CFindReplaceDialog* const pDialog = CFindReplaceDialog::GetNotifier(lParam);
    if (pDialog == nullptr) {
        return;
    }
    m_strText = pDialog->GetFindString();
    m_dwFlags = pDialog->m_fr.Flags & (FR_DOWN | FR_MATCHCASE | FR_WHOLEWORD);
    if (pDialog->IsTerminating()) {
        m_pDialog = nullptr;
    } else if (pDialog->FindNext()) {
        Find(pDialog->SearchDown() != FALSE);
    }
}

void FindDesk::OnNext() {
    Find(true);
}

void FindDesk::OnPrevious() {
    Find(false);
}

void FindDesk::Find(bool bDown) {
    if (m_strText.IsEmpty()) {
        OnFind();
        return;
    }
    if (Work::IsRunning()) {
        return;
    }
    const TextQuery query(m_strText, (m_dwFlags & FR_MATCHCASE) != 0,
                          (m_dwFlags & FR_WHOLEWORD) != 0);
    const FindResult result = m_owner.Find(query, bDown);
    if (!result.bFound) {
        ::MessageBeep(MB_ICONINFORMATION);
        m_owner.Say("\"" + m_strText + "\" is not in " + result.strPlace);
    } else if (result.bWrapped) {
        m_owner.Say(CString("Found from the ") + (bDown ? "top" : "end") + " again: the " +
                    (bDown ? "end" : "top") + " of " + result.strPlace + " was reached");
    } else {
        m_owner.Say("\"" + m_strText + "\" found in " + result.strPlace);
    }
}
