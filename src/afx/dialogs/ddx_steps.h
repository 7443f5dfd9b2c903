// Steps of the exchange functions. Internal to the framework.
#pragma once

#include "afx/dialogs/dialog.h"

/// Tells the user, and ends the pass.
[[noreturn]] void AfxRejectValue(CDataExchange* pDX, UINT nIDPrompt);

CString AfxItemText(HWND hWnd);
/// Leaves a control alone that shows the text already: no flicker, no lost selection.
void AfxShowItemText(HWND hWnd, LPCTSTR lpszText);
