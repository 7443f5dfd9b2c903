// The controls in real windows: window_bench [tree | list | virtual | grid | text | boxes |
// buttons | containers | common | dialogs | activex]; all without an argument.

#include "window_bench.h"

#include <cstring>

namespace {

CWinApp theApp("Bench");

}  // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL)) {
        return 1;
    }
    const auto asked = [&](const char* pszArea) {
        return argc < 2 || std::strcmp(argv[1], pszArea) == 0;
    };
    std::printf("in windows\n");
    if (asked("tree")) {
        MeasureTree();
    }
    if (asked("list")) {
        MeasureList();
    }
    if (asked("virtual")) {
        MeasureVirtualList();
    }
    if (asked("grid")) {
        MeasureGrid();
    }
    if (asked("text")) {
        MeasureText();
    }
    if (asked("boxes")) {
        MeasureListBox();
        MeasureCombo();
    }
    if (asked("buttons")) {
        MeasureButtons();
    }
    if (asked("containers")) {
        MeasureContainers();
    }
    if (asked("common")) {
        MeasureCommon();
    }
    if (asked("dialogs")) {
        MeasureDialogs();
    }
    if (asked("activex")) {
        MeasureActiveX();
    }
    return 0;
}
