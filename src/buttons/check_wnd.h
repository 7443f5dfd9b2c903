// QVCheckWnd: a small square that shows a cross when it is set. It takes no input: the program says
// what it shows. Create it as a child window, or put a static in a dialog and attach to it by
// SubclassDlgItem. The box is as high as the window is wide; what of it lies below a window that is
// wider than high is cut off.

#pragma once

#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API QVCheckWnd : public CWnd {
    DECLARE_DYNAMIC(QVCheckWnd)

public:
    QVCheckWnd();
    ~QVCheckWnd() override;

    // Repaints, also if it is the state that was.
    void SetIsChecked(int bChecked);
    int Checked();

protected:
    // Draws the box into the client area.
    virtual void DrawWindow(CDC& dc);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

    int m_bChecked = FALSE;
};
