// A window of another thread, as another program's is.
#pragma once

#include "support/pump.h"

#include <atomic>
#include <thread>

/// It takes the foreground, and goes when this thread has lost the focus. FALSE if it is not let to
/// the front.
inline bool LoseFocusToOtherProgram() {
    std::atomic<HWND> hOther = nullptr;
    const std::jthread other([&](const std::stop_token& stop) {
        hOther = ::CreateWindow("STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                                nullptr, nullptr);
        ::SetForegroundWindow(hOther);
        while (!stop.stop_requested()) {
            ::Sleep(1);
        }
    });
    return PumpUntil([&] {
        return hOther != nullptr && ::GetForegroundWindow() == hOther && ::GetFocus() == nullptr;
    });
}
