// A combo box in a recording parent that has a font, on the screen.
#pragma once

#include "QVControls.h"
#include "support/tree_window.h"

#include <string>

constexpr UINT kComboId = 79;
constexpr UINT kComboImages = 30008;  // the library's own check marks
constexpr int kComboImageWidth = 12;
constexpr COLORREF kComboImageMask = RGB(0, 128, 128);
inline COLORREF g_aComboColors[] = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255)};

inline int SetUpCombo(QVBitmapComboBox& combo, CWnd* pParent, UINT nID = kComboId) {
    return combo.Initialize(nID, kComboImages, kComboImageMask, kComboImageWidth, pParent);
}
inline int SetUpCombo(QVColorComboBox& combo, CWnd* pParent, UINT nID = kComboId) {
    return combo.Initialize(nID, g_aComboColors, static_cast<int>(std::size(g_aComboColors)),
                            pParent);
}
inline int InsertRow(QVBitmapComboBox& combo, int nNumber, int nIndex, LPCSTR psz) {
    return combo.InsertBitmapString(nNumber, nIndex, psz);
}
inline int InsertRow(QVColorComboBox& combo, int nNumber, int nIndex, LPCSTR psz) {
    return combo.InsertColorString(nNumber, nIndex, psz);
}

template <class Combo>
class ComboWindow {
public:
    explicit ComboWindow(DWORD dwStyle = CBS_DROPDOWNLIST) : parent(CSize(300, 250)) {
        combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | dwStyle, CRect(10, 10, 160, 200), &parent,
                     kComboId);
        SetUpCombo(combo, &parent);
    }
    std::string Stored(int nIndex) {
        CString str;
        combo.GetLBText(nIndex, str);
        return std::string(str);
    }

    FontParent parent;
    Combo combo;
};
