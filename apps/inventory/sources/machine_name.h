// The name of this machine.

#pragma once

#include <afxwin.h>

// Empty if the system does not tell it.
inline CString MachineName() {
    char szMachine[MAX_COMPUTERNAME_LENGTH + 1] = "";
    DWORD nLength = sizeof(szMachine);
    ::GetComputerName(szMachine, &nLength);
    return szMachine;
}
