// QVMsgBox: a question with the answers Yes and No, an icon, and a check box below if it is given a
// text ("Do not ask again").
//
//     QVMsgBox box(this);
//     box.SetPrompt("The file exists. Replace it?");
//     box.SetCheckString("Do not ask again");
//     if (box.DoModal() == IDYES) {
//         m_bAsks = !box.CheckState();
//
// Set it up, DoModal, read: setters do nothing to a dialog that is open. DoModal gives IDYES, IDNO,
// IDCANCEL for the close box and ESC, which leave the check state as it was set, or -1 if the
// dialog could not be made. Long prompts are wrapped; what does not fit into five lines is cut off.
// A string id that does not load gives an empty text. In prompt and check text & marks the letter
// behind it, and && stands for one.

#pragma once

#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API QVMsgBox : public CDialog {
public:
    explicit QVMsgBox(CWnd* pParent = nullptr);

    void SetPrompt(const CString& strPrompt);
    void SetPrompt(UINT nStringID);
    // Empty: "Message Box".
    void SetTitle(const CString& strTitle);
    void SetTitle(UINT nStringID);
    // Empty: no check box.
    void SetCheckString(const CString& strCheck);
    void SetCheckString(UINT nStringID);
    // 0 or 1. Without a check box it is what was set.
    void SetCheckState(int nState) { m_nCheck = nState; }
    int CheckState() const { return m_nCheck; }
    // 0: the check box shows its state and cannot be changed.
    void EnableCheck(BOOL bEnable) { m_bCheckEnabled = bEnable; }

    // IDI_QUESTION unless set. An icon of the system's by that name goes first, then one of the
    // application or of any of its modules; there is none if neither has it. A name has to be there
    // until the dialog is open; of a number the low 16 bits count.
    void SetIconID(UINT nID) { m_pszIcon = MAKEINTRESOURCE(nID); }
    void SetIconID(LPCSTR pszName) { m_pszIcon = pszName; }

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;

    afx_msg void OnClickYes();
    afx_msg void OnClickNo();
    DECLARE_MESSAGE_MAP()

    LPCSTR m_pszIcon = IDI_QUESTION;
    CStatic m_wndIcon;
    CButton m_btnCheck;
    CString m_strPrompt;
    CString m_strTitle;
    CString m_strCheck;
    BOOL m_bCheckEnabled = TRUE;
    int m_nCheck = 0;

private:
    void EndWith(int nAnswer);
};
