// CFindReplaceDialog: the modeless dialog for finding and replacing text.
#pragma once

#include "afx/dialogs/dialog.h"

#include <afxdlgs.h>

/// Made with new; deletes itself with its window. What the user wants comes to the owner in the
/// registered message FINDMSGSTRING, whose lParam GetNotifier turns into this object.
class QVAFX_API CFindReplaceDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFindReplaceDialog)

public:
    CFindReplaceDialog();

    FINDREPLACE m_fr;  ///< may be changed before Create

    using CDialog::Create;
    /// The texts are cut at 127 bytes. Without a parent the main window is the owner. After a
    /// failure the object is still the caller's.
    virtual BOOL Create(BOOL bFindDialogOnly, LPCTSTR lpszFindWhat,
                        LPCTSTR lpszReplaceWith = nullptr, DWORD dwFlags = FR_DOWN,
                        CWnd* pParentWnd = nullptr);
    static CFindReplaceDialog* GetNotifier(LPARAM lParam);

    // In the handler of the message
    CString GetReplaceString() const { return m_fr.lpstrReplaceWith; }
    CString GetFindString() const { return m_fr.lpstrFindWhat; }
    BOOL SearchDown() const { return (m_fr.Flags & FR_DOWN) != 0; }
    BOOL FindNext() const { return (m_fr.Flags & FR_FINDNEXT) != 0; }
    BOOL MatchCase() const { return (m_fr.Flags & FR_MATCHCASE) != 0; }
    BOOL MatchWholeWord() const { return (m_fr.Flags & FR_WHOLEWORD) != 0; }
    BOOL ReplaceCurrent() const { return (m_fr.Flags & FR_REPLACE) != 0; }
    BOOL ReplaceAll() const { return (m_fr.Flags & FR_REPLACEALL) != 0; }
    /// TRUE once: the dialog is about to go.
    BOOL IsTerminating() const { return (m_fr.Flags & FR_DIALOGTERM) != 0; }

protected:
    void PostNcDestroy() override;

    static constexpr WORD kMostText = 128;  // bytes, with the terminator
    TCHAR m_szFindWhat[kMostText] = {};
    TCHAR m_szReplaceWith[kMostText] = {};
};
