// An image list of one image in one colour.
#pragma once

#include <afxcmn.h>

#include <vector>

class OneColorImage : public CImageList {
public:
    OneColorImage(CSize size, COLORREF cr) {
        Create(size.cx, size.cy, ILC_COLOR24, 1, 0);
        const DWORD dwPixel = RGB(GetBValue(cr), GetGValue(cr), GetRValue(cr));
        CBitmap bitmap;
        bitmap.CreateBitmap(size.cx, size.cy, 1, 32,
                            std::vector<DWORD>(size.cx * size.cy, dwPixel).data());
        Add(&bitmap, static_cast<CBitmap*>(nullptr));
    }
};
