// Running the message queue from a test. Waits are for a condition; the timeout only ends a wait
// that will never succeed.
#pragma once

#include <afxwin.h>

#include <functional>

constexpr DWORD kPumpTimeout = 20000;  // milliseconds

/// Dispatches what is in the queue, through the application's PreTranslateMessage as usual.
void PumpPending();

/// Dispatches messages until the condition holds. FALSE after the timeout.
bool PumpUntil(const std::function<bool()>& condition, DWORD dwTimeout = kPumpTimeout);
