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

/// Makes the three classes known in this process as far as the machine has none of its own under
/// the same ids. S_OK: at least one of ours is known now; S_FALSE: all three are the machine's;
/// else why it failed, with nothing left behind. Calls nest. COM must be initialised in the calling
/// thread, which has to be a single-threaded apartment, as the framework's AfxOleInit leaves it.
QVOCX_API HRESULT QVRegisterControls();

/// Takes the last QVRegisterControls back. Controls that are there live on.
QVOCX_API void QVRevokeControls();
