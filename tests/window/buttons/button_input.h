// Keys and mouse sent without waiting for them, for what runs a loop of its own meanwhile, and keys
// that stay down; and the images of the buttons.
#pragma once

#include <afxcmn.h>

#include <vector>

inline void SendKey(WORD vk, bool bUp) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = vk;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKey(vk, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = bUp ? KEYEVENTF_KEYUP : 0;
    ::SendInput(1, &input, sizeof input);
}
inline void SendKeys(const std::vector<WORD>& keys) {
    for (const WORD vk : keys) {
        SendKey(vk, false);
        SendKey(vk, true);
    }
}
inline void SendMouse(std::vector<DWORD> flags) {
    for (const DWORD dwFlags : flags) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = dwFlags;
        ::SendInput(1, &input, sizeof input);
    }
}

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr int kImageSide = 10;

/// A red and a blue square.
class TwoImages : public CImageList {
public:
    TwoImages() {
        Create(kImageSide, kImageSide, ILC_COLOR24, 2, 0);
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        CBitmap bitmap;
        bitmap.CreateBitmap(2 * kImageSide, kImageSide, 1, 32, nullptr);
        CBitmap* const pOld = dc.SelectObject(&bitmap);
        dc.FillSolidRect(0, 0, kImageSide, kImageSide, kRed);
        dc.FillSolidRect(kImageSide, 0, kImageSide, kImageSide, kBlue);
        dc.SelectObject(pOld);
        Add(&bitmap, static_cast<CBitmap*>(nullptr));
    }
};
