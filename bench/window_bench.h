// What the benchmarks in windows share: the parent window, and the lines of a comparison.

#pragma once

#include "bench.h"

#include <afxwin.h>

#include <string>

namespace bench {

// The parent of both sides, with a font that it tells.
class Frame : public CWnd {
public:
    explicit Frame(CSize size = CSize(400, 600)) {
        m_font.CreatePointFont(90, "Tahoma");
        CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP | WS_VISIBLE,
                 CRect(CPoint(0, 0), size), nullptr, 0);
    }
    ~Frame() override { DestroyWindow(); }
    CFont m_font;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == WM_GETFONT ? reinterpret_cast<LRESULT>(m_font.GetSafeHandle())
                                     : CWnd::WindowProc(message, wParam, lParam);
    }
};

inline void Compare(const char* pszName, double factor, const char* pszUnit, Pair pair) {
    const std::string strTheirs = std::string("platform-") + pszName;
    Figure(pszName, pair.ours * factor, pszUnit);
    Figure(strTheirs.c_str(), pair.theirs * factor, pszUnit);
    Ratio(pszName, pair.ours, pair.theirs);
}

}  // namespace bench

void MeasureButtons();
void MeasureTree();
void MeasureList();
void MeasureVirtualList();
void MeasureGrid();
void MeasureText();
void MeasureListBox();
void MeasureCombo();
void MeasureContainers();
void MeasureCommon();
void MeasureDialogs();
void MeasureActiveX();
