// The controls of qvocx.dll: a tab strip, a text field and a flexible grid, behind the class ids
// that CTab, CfpText and CFlexGrid create. A program that may run where no such controls are
// installed offers these to itself:
//
//     QVRegisterControls();  // in InitInstance, behind AfxOleInit
//     QVRevokeControls();    // in ExitInstance
//
// Nothing is written to the registry by that, and controls that are installed on the machine win.

#pragma once

#include <windows.h>

#ifdef QVOCX_BUILD
#define QVOCX_API __declspec(dllexport)
#else
#define QVOCX_API __declspec(dllimport)
#endif

/// Makes the three classes known to the calling thread's apartment as far as nobody else has them:
/// a server in the registry that is not this file wins, whether it works or not, and so does one
/// that a manifest or another module of this process has made known. S_OK: at least one of ours is
/// known now; S_FALSE: all three are others'; else why it failed, with nothing left behind
/// (RPC_E_CHANGED_MODE: the thread is no single-threaded apartment, as AfxOleInit makes one;
/// CO_E_NOTINITIALIZED: it is none). Calls nest. The module stays in the process from then on.
QVOCX_API HRESULT QVRegisterControls();

/// Takes the last QVRegisterControls back. Controls that are there live on.
QVOCX_API void QVRevokeControls();
