// FindDesk: the commands that look for a text in what a frame has in front, and the platform's
// dialog that asks for it, which stays up beside the window. The frame hands its commands on to it,
// and the dialog's message.

#pragma once

#include "pages/finding.h"

#include <afxdlgs.h>
#include <afxwin.h>

// What is searched.
class FindOwner {
public:
    virtual FindResult Find(const TextQuery& query, bool bDown) = 0;
    // In the status bar.
    virtual void Say(const CString& strMessage) = 0;

protected:
    ~FindOwner() = default;
};

class FindDesk : public CCmdTarget {
public:
    FindDesk(CFrameWnd& frame, FindOwner& owner) : m_frame(frame), m_owner(owner) {}

    // The message by which the dialog tells its owner.
    static UINT Message();
    void OnDialog(LPARAM lParam);

protected:
    afx_msg void OnFind();
    afx_msg void OnNext();
    afx_msg void OnPrevious();
    DECLARE_MESSAGE_MAP()

private:
    // Says where the text was not found, or that the search went on at the other end.
    void Find(bool bDown);

    CFrameWnd& m_frame;
    FindOwner& m_owner;
    CFindReplaceDialog* m_pDialog = nullptr;  // its own; null: it is not up
    CString m_strText;
    DWORD m_dwFlags = FR_DOWN;
};
