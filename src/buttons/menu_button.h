// QVMenuButton: an owner-drawn push button with a caption and a small arrow, which drops a menu of
// strings below itself when it is pressed, by mouse, Space, a mnemonic, or Enter as the dialog's
// default button.
//
// Create it with BS_OWNERDRAW or attach it by SubclassDlgItem to a button with that style, and add
// the entries. Entry i has the command id m_nStartCmdID + i. Choosing it posts WM_COMMAND with that
// id and the button's window to the thread's main window, where ON_COMMAND handles it; the button
// itself sends its parent no click. Give each button a range of ids of its own, within 16 bits,
// that holds no control's id: where the main window is the button's parent, the button's own id
// among them would open the menu again.
//
// The caption is drawn as it stands, with the "&" of a mnemonic.
//
// The parent, or the main window, may take the button away while the menu is open or when an entry
// is chosen; an open menu closes then.

#pragma once

#include "frame/accessible.h"
#include "frame/alive.h"
#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API QVMenuButton : public CButton, public QVAccessible {
    DECLARE_DYNAMIC(QVMenuButton)

public:
    QVMenuButton();
    ~QVMenuButton() override;

    // Gives the index of the entry, or -1 without memory. "&" marks a mnemonic, as in any menu.
    int AddString(const CString& strItem);
    // 900 at first.
    void SetStartCmdID(unsigned nCmdID);

    // --- What a screen reader is told: its name is the caption

    // "Open" or "Close" for its menu.
    CString GetAccessibleAction(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    long GetAccessibleState(long nPart) override;
    // Opening is a click, which comes with the messages that are posted.
    BOOL DoAccessibleAction(long nPart) override;

    void DrawItem(LPDRAWITEMSTRUCT pDrawItem) override;

    // Tracks the menu; comes back when it has closed. Without memory no menu comes up. The button
    // may be gone afterwards.
    virtual void ShowMenu();
    // Entry nIndex was chosen; the menu has closed.
    virtual void OnMenuSelected(unsigned nIndex);

protected:
    // A triangle that points down, at the right edge of rect.
    void DrawArrow(CDC& dc, const CRect& rect, unsigned long crColor);

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnClicked();
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnDestroy();
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    unsigned m_nStartCmdID;
    CStringArray m_astrItems;

private:
    void Paint(const DRAWITEMSTRUCT& item);
    void CloseMenu();

    bool m_bMenuOpen = false;
    qv::AliveToken m_alive;
};
