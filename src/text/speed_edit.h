// QVSpeedEdit: an edit that completes what is typed to the first entry of a sorted list that begins
// with it. The completed part stands selected, so that the next key replaces it.
//
// Set the entries before the user types. They are the caller's, must outlive the control, and must
// be sorted in ascending order without regard to case (_mbsicmp): in a list that is not, some
// entries are not found. Without entries the control is a plain edit. The characters of ASCII are
// completed; all others, and keys in a read-only edit, are the platform's. The entries may change,
// and the control may go, whenever its parent is told of a change.

#pragma once

#include "frame/alive.h"
#include "frame/qv_api.h"

#include <afxcoll.h>
#include <afxwin.h>

class QV_CONTROLS_API QVSpeedEdit : public CEdit {
public:
    // Null ends the completion.
    void SetSpeedData(CStringArray* pData);
    // 1: of what is completed, only beginnings of entries can be typed, and backspace goes back
    // through the beginnings. 0: a character that fits no entry drops all text behind the caret.
    void SetSpeedOnly(int bOnly);

protected:
    // Ends quietly where there is no memory.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // The first entry that begins with the text, or -1; always -1 for an empty text.
    int FindSpeedText(const char* pszText);
    // 0 if entry nIndex begins with the text, else below or above 0 as it sorts. 1 for an index
    // that is not in the list.
    int SpeedMatch(const char* pszText, int nIndex);

    afx_msg void OnChar(UINT nChar, UINT nRepeat, UINT nFlags);
    DECLARE_MESSAGE_MAP()

    CStringArray* m_pSpeedData = nullptr;
    int m_bSpeedOnly = 0;

private:
    int NumEntries() const;
    bool IsTrailByte(UINT nChar);
    void Type(UINT nChar);

    UINT m_nLead = 0;  // the byte typed before, if another one may belong to it
    qv::AliveToken m_alive;
};
