// A text window that fills a parent on the screen.
#pragma once

#include "QVControls.h"
#include "support/picture.h"
#include "support/tree_window.h"

#include <string>

constexpr UINT kTextId = 79;

// What only derived classes see.
class OpenText : public QVTextWnd {
public:
    using QVTextWnd::CalculateLineRect;
    using QVTextWnd::m_bUseProportionalFont;
    using QVTextWnd::m_nCharHeight;
    using QVTextWnd::m_nCharWidth;
    using QVTextWnd::m_nHScrollPos;

    bool HasBar(int nBar) const {
        return (GetStyle() & (nBar == SB_VERT ? WS_VSCROLL : WS_HSCROLL)) != 0;
    }
    int BarMost(int nBar) {
        SCROLLINFO info{};
        info.cbSize = sizeof(info);
        return GetScrollInfo(nBar, &info, SIF_RANGE) ? info.nMax : -1;
    }
    int Scroll(UINT nMessage, UINT nCode, UINT nPos = 0) {
        SendMessage(nMessage, MAKEWPARAM(nCode, nPos));
        return nMessage == WM_VSCROLL ? VScrollPos() : m_nHScrollPos;
    }
    // The text of a line without its style code.
    std::string Text(int nLine) { return ParseStyleText(GetLine(nLine)); }
    CRect RowRect(int nRow) {
        CRect rc;
        CalculateLineRect(nRow, rc);
        return rc;
    }
    CSize Extent(const std::string& str) {
        CClientDC dc(this);
        ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
        return dc.GetTextExtent(str.c_str(), static_cast<int>(str.size()));
    }
    Picture Fresh() { return Picture::Fresh(*this); }
};

class GridText : public OpenText {
public:
    GridText() { m_bUseProportionalFont = 0; }
};

template <class Text = OpenText>
class TextWindow {
public:
    explicit TextWindow(CSize size = CSize(300, 200)) : parent(size) {
        CRect rc(CPoint(0, 0), size);
        text.Create(rc, &parent, kTextId, 0);
    }
    // A size in pixels across and rows down, without bars.
    void Resize(int cx, int nRows, int nMorePixels = 0) {
        text.SetWindowPos(nullptr, 0, 0, cx, nRows * text.m_nCharHeight + nMorePixels,
                          SWP_NOMOVE | SWP_NOZORDER);
    }
    void Fill(int nLines, int nStyle = 0) {
        text.ClearTextData();
        for (int i = 0; i < nLines; ++i) {
            text.AddText(("line " + std::to_string(i)).c_str(), nStyle);
        }
        text.CalcLayout();
    }

    FontParent parent;
    Text text;
};
