// A change of a list that reaches the screen in one piece.

#pragma once

#include <afxcmn.h>

namespace qv {

// While it lives the control draws nothing: by itself it sets one scroll bar after the other, and
// draws each at once. At the end rows and frame are drawn anew, and of the headings what the change
// has left of them. As with RedrawPause, a window that is told to hide meanwhile comes back.
//
// Leaves alone a control that draws nothing anyhow, and one with children of others.
class HeldScreen {
public:
    explicit HeldScreen(CListCtrl& list);
    ~HeldScreen();
    HeldScreen(const HeldScreen&) = delete;
    HeldScreen& operator=(const HeldScreen&) = delete;

private:
    CRect HeaderRect() const;
    void InvalidateRows() const;
    void InvalidateHeadings() const;

    HWND m_hList = nullptr;
    HWND m_hHeader = nullptr;      // null: not shown
    CRect m_rcHeader{0, 0, 0, 0};  // in the list, before the change
    bool m_bHeadingsDue = false;   // had to be drawn anyhow
};

}  // namespace qv
