// What a window shows: its client area as pixels.
#pragma once

#include <afxwin.h>

#include <vector>

class Picture {
public:
    /// Lets the window paint what is due, then copies its client area.
    static Picture OfClient(HWND hWnd);
    /// Of all its client area painted anew.
    static Picture Fresh(CWnd& wnd);
    /// What was drawn on a device context, from the upper left corner on.
    static Picture Of(HDC hDC, CSize size);

    int Width() const { return m_size.cx; }
    int Height() const { return m_size.cy; }
    /// CLR_INVALID outside.
    COLORREF At(int x, int y) const;
    /// Pixels of that colour in a rectangle (client coordinates), or in all.
    int Count(COLORREF cr) const;
    int Count(COLORREF cr, const RECT& rect) const;
    bool operator==(const Picture& other) const;

private:
    CSize m_size;
    std::vector<DWORD> m_pixels;  // rows from the top, 0x00RRGGBB
};
