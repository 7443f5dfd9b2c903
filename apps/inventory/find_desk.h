// FindDesk: the commands that look for a text in the page in front, and the platform's dialog that
// asks for it, which stays up beside the window. The frame hands its commands on to it.

#pragma once

#include "pages/text_query.h"

#include <afxdlgs.h>
#include <afxwin.h>

class MainFrame;

class FindDesk : public CCmdTarget {
public:
    explicit FindDesk(MainFrame& frame) : m_frame(frame) {}

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

    MainFrame& m_frame;
    CFindReplaceDialog* m_pDialog = nullptr;  // its own; null: it is not up
    CString m_strText;
    DWORD m_dwFlags = FR_DOWN;
};
