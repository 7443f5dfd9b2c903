// The seam between core and a real window: what core asks of its window, answered by a CWnd.

#pragma once

#include "base/window_port.h"
#include "frame/rectangles.h"

#include <afxwin.h>

namespace qv {

class WndPort : public WindowPort {
public:
    explicit WndPort(CWnd& wnd) : m_wnd(wnd) {}

    bool HasWindow() const override;
    Rect ClientRect() const override;
    unsigned Style() const override;
    int VerticalBarWidth() const override;
    int HorizontalBarHeight() const override;
    void ShowScrollBar(int nBar, bool bShow) override;
    void SetScrollRange(int nBar, const ScrollRange& range) override;
    bool GetScrollPosition(int nBar, bool bTrack, int& nPos) const override;
    void ScrollPixels(int dx, int dy, bool bErase) override;
    void Invalidate(const Rect& rect, bool bErase) override;
    void InvalidateAll() override;
    void Update() override;

    // Draws the scroll bars that have changed since they were drawn last. To be called when the
    // window paints.
    void DrawBars();

private:
    CWnd& m_wnd;
    bool m_bBarDue[2] = {};  // by SB_HORZ, SB_VERT
};

}  // namespace qv
