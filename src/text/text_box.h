// QVTextBox: a text that no user edits, in chosen colours, with an image at its left if wanted.
// With a list of texts it is a small chooser: a spin button inside its right edge steps through
// them.
//
// Set up what is to be chosen from with SetTextList, and attach the box to a static control of a
// dialog by Initialize or make it by Create. Texts go in and out by SetWindowText and
// GetWindowText. When the user has made a choice the parent gets WM_COMMAND with the box's id, high
// word 8 and lParam 0.
//
// A chooser looks like an input field. A click gives it the focus; then the up and down arrow keys
// step as the spin button does, up being the next text. It keeps its rectangle, and the spin button
// stays at its right edge, over the text: a chooser's text is best aligned left. The spin button
// takes 32,768 texts at most.
//
// Ownership: the box copies its texts. The image list is the caller's and must outlive the box.

#pragma once

#include "frame/accessible.h"
#include "frame/alive.h"
#include "frame/qv_api.h"

#include <afxcmn.h>

class QV_CONTROLS_API QVTextBox : public CStatic, public QVAccessible {
public:
    QVTextBox();
    ~QVTextBox() override;

    // From a dialog: attaches the box to the item nID of pParent, whose text it shows from then on,
    // whatever list it has. 1, or 0 if there is no such item.
    int Initialize(UINT nID, CWnd* pParent);
    // An empty child window at rc (client pixels of pParent). 0 on failure.
    int Create(UINT nID, const CRect& rc, CWnd* pParent);

    // The texts to choose from, TAB between them, without the blanks at their ends; the first one
    // shows. A spin button comes with a second text, also when the box has been there before. Its
    // range is that of the list it came with: with a shorter list, steps beyond its end show
    // nothing new. With null or an empty list no text shows. Without memory the list is empty.
    void SetTextList(const char* pszList);
    // A static edge around boxes made from now on. At first on.
    void SetShowBorder(int bShow);
    // For an enabled box; a disabled one is grey. None of these repaints. EnableSpin sets the
    // background of a window. Until a program sets one of them, both are the system's of the
    // moment.
    void SetTextColor(COLORREF cr);
    void SetTextBkColor(COLORREF cr);
    // Null or -1: none.
    void SetImage(CImageList* pImageList, int nImage);

    // --- What a screen reader is told: a text, or a chooser with its spin button

    // The text; that of the label before it for a chooser, whose value is the text.
    CString GetAccessibleName(long nPart) override;
    CString GetAccessibleValue(long nPart) override;
    CString GetAccessibleShortcut(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    long GetAccessibleState(long nPart) override;
    long GetAccessibleCount() override;
    HWND GetAccessibleWindow(long nPart) override;
    long AccessibleHitTest(CPoint pt) override;
    // A text of the list, in whichever case, as if the user stepped there.
    BOOL SetAccessibleValue(long nPart, const CString& strValue) override;

protected:
    // Ends quietly where a handler finds no memory; a window that is being made is not made then.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    // Makes the spin button, once, for the list there is. Needs the window.
    void EnableSpin();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnPaint();
    afx_msg void OnVScroll(UINT nCode, UINT nPos, CScrollBar* pBar);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnSysColorChange();
    // Always 1; null is an empty text. A text of the list, in whichever case, moves the spin
    // button.
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    // At most wParam bytes and no character in part; the rest of the buffer becomes 0. A text that
    // fills the buffer has no terminator. The number of bytes of the text.
    afx_msg LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTextLength(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnWindowPosChanging(WINDOWPOS* pPos);
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnNcHitTest(CPoint pt);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint pt);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CString m_strText;
    int m_bTextList = 0;
    // Index of the text that shows. -1: a text that is not in the list. Beyond the list after a
    // step there.
    int m_nCurText = 0;
    CStringArray m_aTexts;
    int m_bShowBorder = 1;
    CSpinButtonCtrl m_spin;
    COLORREF m_crText;
    COLORREF m_crTextBk;
    CImageList* m_pImageList = nullptr;
    int m_nImage = -1;

private:
    using CStatic::Create;

    bool IsChooser() const { return m_spin.m_hWnd != nullptr; }
    void TakeList(const char* pszList);
    CRect SpinRect() const;
    void PlaceSpin();
    void Step(int nSteps);
    void GoTo(int nPos);
    int FindText(const CString& strText) const;
    void TellText();
    // The room for the text, behind the image, which it draws.
    CRect DrawImage(CDC& dc, const CRect& rcClient);

    int m_nSystemBk = COLOR_BTNFACE;  // that the background is
    bool m_bOwnColors = false;        // a program's
    bool m_bKeepPlace = false;
    qv::AliveToken m_alive;
};
