// Another program that asks a window what a screen reader asks: tools/say_window, whose head tells
// the questions. While it asks, this thread answers messages as any program does.
#pragma once

#include <afxwin.h>

#include <initializer_list>
#include <string>

class ScreenReader {
public:
    ScreenReader();
    ~ScreenReader();
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;

    /// The answer, its lines with '\n' between; "no answer" if none comes.
    std::string Ask(const std::string& strQuestion);
    /// The window that is meant from now on; what was heard before is forgotten.
    std::string Watch(HWND hWnd);

private:
    PROCESS_INFORMATION m_process{};
    HANDLE m_hToReader = nullptr;
    HANDLE m_hFromReader = nullptr;
};
