// How a text window measures its display font.

#pragma once

#include "frame/font_measure.h"
#include "text/text_wnd.h"

class QVTextWnd::Measure {
public:
    Measure() : splitter(font) {}

    qv::FontMeasure font;
    qv::TextSplitter splitter;
    std::vector<int> starts;  // of the line that is being painted
};
