// What is behind a text window: its lines, their rows on screen and on paper, and what they are
// laid out with.

#pragma once

#include "frame/alive.h"
#include "frame/font_measure.h"
#include "frame/wnd_port.h"
#include "text/core/print_rows.h"
#include "text/core/text_selection.h"
#include "text/core/text_view.h"
#include "text/text_wnd.h"

class QVTextWnd::Core {
    class Port : public qv::WndPort {
    public:
        explicit Port(CWnd& wnd) : WndPort(wnd), m_wnd(wnd) {}
        // A bar that has nothing to scroll is disabled and stays.
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
        // Windows in the text scroll with it.
        void ScrollPixels(int dx, int dy, bool) override { m_wnd.ScrollWindow(dx, dy); }

    private:
        CWnd& m_wnd;
    };

    Port m_port;

public:
    explicit Core(QVTextWnd& wnd) : m_port(wnd), view(wnd, m_port, lines, wnd.m_aStyles, font) {}

    qv::TextLines lines;
    qv::PrintRows print;
    qv::FontMeasure font;
    qv::TextView view;
    qv::TextSelection selection;
    QVTextWnd* pSyncWnd = nullptr;  // there as long as view has a partner
};

// Lets go of the display font, also where something is thrown.
class QVTextWnd::FontScope {
public:
    explicit FontScope(CFont& font) : m_font(font) {}
    ~FontScope() { m_font.Detach(); }
    FontScope(const FontScope&) = delete;
    FontScope& operator=(const FontScope&) = delete;

private:
    CFont& m_font;
};
