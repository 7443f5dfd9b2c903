// What a long operation tells of its progress: a plain function that it calls with one of the codes
// below, a value, and a pointer of the caller's that it hands through. The callback may throw to
// end the operation, as QVWaitDlgProgressCallback does with a heap QVStatus* when the user has
// cancelled: an operation must be in an order then in which it can be left.

#pragma once

#include <windows.h>

enum QVProgressCode : BYTE {
    qvpcRange = 1,     // the count that means all; the count so far is 0 again
    qvpcPosition = 2,  // the count so far
    qvpcStep = 3,      // what is to be added to the count so far
    qvpcText = 4,      // an LPCSTR, in the process's code page: what is being done
    qvpcTextID = 5     // the same as a string resource of the process
};

// Of a code that it does not know a callback takes no value. dwValue is wide enough for a pointer.
typedef void (*QVProgressCallback)(BYTE nCode, DWORD_PTR dwValue, void* pParam);
