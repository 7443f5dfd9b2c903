// How a text window measures its display font.

#pragma once

#include "frame/wnd_port.h"
#include "text/text_wnd.h"

class QVTextWnd::Measure {
public:
    explicit Measure(CWnd& wnd) : font(wnd), splitter(font) {}

    qv::FontMeasure font;
    qv::TextSplitter splitter;
    std::vector<int> starts;  // of the line that is being painted
};
