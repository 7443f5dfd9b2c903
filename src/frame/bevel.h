// Edges, faces and pictures in the 3-D system colours of the moment, as buttons and bars have them.
// Nothing here keeps an object beyond a call. May throw for want of memory or of the system's
// objects.

#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <string_view>

namespace qv {

// Draws the two-line frame of a raised or sunken face just inside rect, and shrinks rect to what
// lies within it. Lines that have no room are left out.
void DrawBevel(CDC& dc, CRect& rect, bool bRaised);

// Fills rect with the dithered face of what is switched on. The clip is cut to rect and stays so,
// for the picture that follows. False if the pattern cannot be made; nothing is drawn then.
bool ShadeRect(CDC& dc, const CRect& rect);

// Draws an image of the list, of that size, engraved at pt: what cannot be used. False if the
// picture cannot be made.
bool DrawDisabledImage(CDC& dc, CImageList& images, int nImage, CPoint pt, CSize size);

// A mark engraved in the face. draw(nOffset, cr) draws it that far to the right and down.
template <class Draw>
void DrawEngraved(Draw draw) {
    draw(1, ::GetSysColor(COLOR_3DHILIGHT));
    draw(0, ::GetSysColor(COLOR_GRAYTEXT));
}

// A text engraved in the face, at (x, y). Colours and background mode go back.
void DrawEngravedText(CDC& dc, int x, int y, std::string_view text);

}  // namespace qv
