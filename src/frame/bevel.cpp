#include "frame/bevel.h"

#include "frame/dc_guards.h"
#include "frame/text_out.h"

namespace qv {

namespace {

void DrawLine(CDC& dc, CRect& rect, int nTopLeft, int nBottomRight) {
    if (rect.Width() <= 0 || rect.Height() <= 0) {
        return;
    }
    dc.Draw3dRect(&rect, ::GetSysColor(nTopLeft), ::GetSysColor(nBottomRight));
    rect.DeflateRect(1, 1);
}

}  // namespace

void DrawBevel(CDC& dc, CRect& rect, bool bRaised) {
    if (bRaised) {
        DrawLine(dc, rect, COLOR_3DHILIGHT, COLOR_3DDKSHADOW);
        DrawLine(dc, rect, COLOR_3DLIGHT, COLOR_3DSHADOW);
    } else {
        DrawLine(dc, rect, COLOR_3DDKSHADOW, COLOR_3DHILIGHT);
        DrawLine(dc, rect, COLOR_3DSHADOW, COLOR_3DLIGHT);
    }
}

bool ShadeRect(CDC& dc, const CRect& rect) {
    static constexpr WORD kDither[] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};
    constexpr int kSide = 8;
    CBitmap bitmap;
    CBrush brush;
    if (!bitmap.CreateBitmap(kSide, kSide, 1, 1, kDither) || !brush.CreatePatternBrush(&bitmap)) {
        return false;
    }
    const ColorGuard colors(dc);
    dc.SetTextColor(::GetSysColor(COLOR_3DHILIGHT));
    dc.SetBkColor(::GetSysColor(COLOR_BTNFACE));
    dc.IntersectClipRect(&rect);
    dc.FillRect(&rect, &brush);
    return true;
}

bool DrawDisabledImage(CDC& dc, CImageList& images, int nImage, CPoint pt, CSize size) {
    CDC dcImage;
    CBitmap bitmap;
    if (!dcImage.CreateCompatibleDC(&dc) || !bitmap.CreateCompatibleBitmap(&dc, size.cx, size.cy)) {
        return false;
    }
    {
        // White is what engraving leaves out.
        const SelectGuard<CBitmap> selected(dcImage, &bitmap);
        dcImage.SetBkColor(::GetSysColor(COLOR_BTNFACE));
        dcImage.SetBkMode(TRANSPARENT);
        dcImage.PatBlt(0, 0, size.cx, size.cy, WHITENESS);
        images.Draw(&dcImage, nImage, CPoint(0, 0), ILD_NORMAL);
    }
    return dc.DrawState(pt, size, static_cast<HBITMAP>(bitmap), DST_BITMAP | DSS_DISABLED) != 0;
}

void DrawEngravedText(CDC& dc, int x, int y, std::string_view text) {
    const ColorGuard colors(dc);
    const int nOldMode = dc.SetBkMode(TRANSPARENT);
    DrawEngraved([&](int nOffset, COLORREF cr) {
        dc.SetTextColor(cr);
        DrawTextAt(dc, x + nOffset, y + nOffset, text);
    });
    dc.SetBkMode(nOldMode);
}

}  // namespace qv
