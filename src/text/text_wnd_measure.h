// What a text window lays out with: its port, its display font and its view.

#pragma once

#include "frame/font_measure.h"
#include "frame/wnd_port.h"
#include "text/text_wnd.h"

class QVTextWnd::Measure {
    // A bar that has nothing to scroll is disabled and stays.
    class Port : public qv::WndPort {
    public:
        explicit Port(CWnd& wnd) : WndPort(wnd), m_wnd(wnd) {}
        void SetScrollRange(int nBar, const qv::ScrollRange& range) override {
            SCROLLINFO info{};
            info.cbSize = sizeof(info);
            info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
            info.nMin = range.nMin;
            info.nMax = range.nMax;
            info.nPage = static_cast<UINT>(range.nPage);
            info.nPos = range.nPos;
            m_wnd.SetScrollInfo(nBar, &info, TRUE);
        }

    private:
        CWnd& m_wnd;
    };

    Port m_port;

public:
    explicit Measure(QVTextWnd& wnd)
        : m_port(wnd),
          splitter(font),
          view(wnd, m_port, wnd.m_lines, wnd.m_aStyles, wnd.m_rows, splitter) {}

    qv::FontMeasure font;
    qv::TextSplitter splitter;
    qv::TextView view;
    std::vector<int> starts;  // of the line that is being painted
};

// Lets go of the display font, also where something is thrown.
class QVTextWnd::FontScope {
public:
    FontScope(QVTextWnd& wnd, CFont& font) : m_wnd(wnd), m_font(font) {}
    ~FontScope() { m_wnd.CleanupDisplayFont(m_font); }
    FontScope(const FontScope&) = delete;
    FontScope& operator=(const FontScope&) = delete;

private:
    QVTextWnd& m_wnd;
    CFont& m_font;
};
