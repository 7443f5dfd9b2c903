// QVBitmapButton: an owner-drawn push button that shows one image of an image list, in the 3-D
// system colours. It can be checked: a click moves it between up and down, as buttons of toolbars
// go, and a program may set it to a third state between them.
//
// Either Create it with BS_OWNERDRAW, or attach it by SubclassDlgItem to a button of a dialog that
// has that style. Give it its image by SetImageID. Clicks reach the parent as BN_CLICKED, by mouse,
// Space or a mnemonic in the window text, which is not drawn; the state has moved by then. The
// parent may take the button away in any notification.
//
//     BM_SETCHECK and BM_GETCHECK, or SetCheck and GetCheck: 0 up, 1 checked, 2 indeterminate. A
//     button that is not checkable keeps its state.
//
// The look: a checked button is sunken and its face dithered; an indeterminate one looks raised,
// its image greyed, as that of a disabled button that is up. A checked one shows its image in full
// colours, disabled or not. Without image list there are frame and face alone.
//
// Ownership: the image list is the caller's and must outlive its use; the tooltip is the button's.

#pragma once

#include "frame/accessible.h"
#include "frame/alive.h"
#include "frame/qv_api.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <memory>

namespace qv {
class SpacePress;
}

class QV_CONTROLS_API QVBitmapButton : public CButton, public QVAccessible {
    DECLARE_DYNAMIC(QVBitmapButton)

public:
    QVBitmapButton();
    ~QVBitmapButton() override;

    // Null: no image. An index that the list has not shows none either. Nothing is repainted.
    void SetImageID(CImageList* pImageList, int nImage);
    // Whether clicks and BM_SETCHECK move the state; so it is at first.
    void SetCheckable(int bCheckable);
    // A tooltip, or another text for it; the window is there already. The text nTextID of the
    // resources, 0 meaning that of the button's own id; without such a text nothing changes.
    void EnableToolTip(unsigned nTextID);
    void EnableToolTip(const char* pszText);

    // --- What a screen reader is told

    // The window text; without one the tooltip's, else that of the label before the button.
    CString GetAccessibleName(long nPart) override;
    // The tooltip's text, where it is not the name.
    CString GetAccessibleDescription(long nPart) override;
    // What a click would do: "Check" or "Uncheck", or "Press" where it moves no state.
    CString GetAccessibleAction(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    long GetAccessibleState(long nPart) override;
    // A click, which comes with the messages that are posted.
    BOOL DoAccessibleAction(long nPart) override;

    void DrawItem(LPDRAWITEMSTRUCT pDrawItem) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // Fills rect with the dithered face of a checked button and leaves the clip cut to it, for the
    // image that follows. FALSE, and nothing drawn, if the system has no brush for it.
    BOOL ShadeRect(CDC& dc, CRect& rect);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnSetCheck(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetCheck(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CImageList* m_pImageList = nullptr;  // not owned
    int m_nImage = 0;
    int m_nCheck = 0;  // 0 up, 1 checked, 2 indeterminate
    int m_bCheckable = TRUE;
    CToolTipCtrl* m_pToolTip = nullptr;  // owned
    int m_bIgnoreUp = FALSE;             // the release that ends a double click moves nothing

private:
    void Paint(const DRAWITEMSTRUCT& item);
    void DrawFace(CDC& dc, const DRAWITEMSTRUCT& item);
    void MoveCheck();
    CString TipText() const;

    const std::unique_ptr<qv::SpacePress> m_pSpace;
    qv::AliveToken m_alive;
};
