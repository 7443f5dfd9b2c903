#include "support/pump.h"

void PumpPending() {
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
        if (!AfxPumpMessage()) {
            break;
        }
    }
}

bool PumpUntil(const std::function<bool()>& condition, DWORD dwTimeout) {
    const ULONGLONG nEnd = ::GetTickCount64() + dwTimeout;
    for (;;) {
        PumpPending();
        if (condition()) {
            return true;
        }
        const ULONGLONG nNow = ::GetTickCount64();
        if (nNow >= nEnd) {
            return false;
        }
        // Conditions may depend on more than messages, so look again now and then.
        constexpr DWORD kLookAgain = 20;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, kLookAgain, QS_ALLINPUT);
    }
}
