// QVToolButton: a bitmap button beside an edit or a list. It does not latch, and hands the focus to
// a window of the program after each click of the mouse, so that work goes on there.

#pragma once

#include "buttons/bitmap_button.h"

class QV_CONTROLS_API QVToolButton : public QVBitmapButton {
    DECLARE_DYNAMIC(QVToolButton)

public:
    // Null: the focus stays. The object is not owned and must outlive the button; it needs a window
    // only when there is a click, and the parent may delete it in that click.
    explicit QVToolButton(CWnd* pFocusWnd = nullptr);
    ~QVToolButton() override;

protected:
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

    CWnd* m_pFocusWnd;

private:
    qv::AliveToken m_alive;
};
