// QVCheckWnd: a small square that shows a cross when it is set. It takes no input: the program says
// what it shows. Create it as a child window, or put a static in a dialog and attach to it by
// SubclassDlgItem. The box is as high as the window is wide; what of it lies below a window that is
// wider than high is cut off. To a screen reader it is a check box that nobody can click, named by
// its window text or the text before it.

#pragma once

#include "frame/accessible.h"
#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API QVCheckWnd : public CWnd, public QVAccessible {
    DECLARE_DYNAMIC(QVCheckWnd)

public:
    QVCheckWnd();
    ~QVCheckWnd() override;

    // Repaints, also if it is the state that was.
    void SetIsChecked(int bChecked);
    int Checked();

    long GetAccessibleRole(long nPart) override;
    long GetAccessibleState(long nPart) override;

protected:
    // Draws the box into the client area.
    virtual void DrawWindow(CDC& dc);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    int m_bChecked = FALSE;
};
