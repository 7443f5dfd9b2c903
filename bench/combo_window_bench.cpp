// The bitmap combo box in a real window, beside a bare combo box of the platform in the same
// process: same styles and stored strings. Nobody subclasses the bare one; its parent says at once
// how high its rows are.

#include "QVControls.h"
#include "window_bench.h"

#include <string>
#include <vector>

namespace {

using bench::Compare;
using bench::Frame;

constexpr int kRows = 10000;
constexpr UINT kCheckMarks = 30008;  // the library's own
constexpr int kImageWidth = 12;
constexpr UINT kBareId = 2;
constexpr UINT kBareHeight = 14;
constexpr DWORD kStyle =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS;
const CRect kRect(0, 0, 200, 300);

const std::vector<std::string>& Texts() {
    static const std::vector<std::string> s_texts = [] {
        std::vector<std::string> texts;
        for (int i = 0; i < kRows; ++i) {
            texts.push_back("row " + std::to_string(i * 7919 % kRows) + " of the combo box");
        }
        return texts;
    }();
    return s_texts;
}

class MeasuringFrame : public Frame {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_MEASUREITEM && wParam == kBareId) {
            reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = kBareHeight;
            return TRUE;
        }
        return Frame::WindowProc(message, wParam, lParam);
    }
};

double FillOurs(CWnd& parent) {
    QVBitmapComboBox combo;
    combo.Create(kStyle, kRect, &parent, 1);
    combo.Initialize(1, kCheckMarks, RGB(0, 128, 128), kImageWidth, &parent);
    return bench::Time([&] {
        for (const std::string& str : Texts()) {
            combo.AddBitmapString(1, str.c_str());
        }
    });
}

double FillBare(CWnd& parent) {
    HWND hCombo =
        ::CreateWindow("COMBOBOX", "", kStyle, 0, 0, kRect.right, kRect.bottom, parent.m_hWnd,
                       reinterpret_cast<HMENU>(UINT_PTR{kBareId}), nullptr, nullptr);
    std::vector<std::string> stored;
    for (const std::string& str : Texts()) {
        stored.push_back(str + "\t1");
    }
    const double time = bench::Time([&] {
        for (const std::string& str : stored) {
            ::SendMessage(hCombo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(str.c_str()));
        }
    });
    ::DestroyWindow(hCombo);
    return time;
}

}  // namespace

void MeasureCombo() {
    constexpr int kFills = 11;
    MeasuringFrame frame;
    Compare("boxes/combo-fill-10k", 1e3, "ms",
            bench::FastestPair([&] { return FillOurs(frame); }, [&] { return FillBare(frame); },
                               kFills));
}
