// Texts to the clipboard and back.

#pragma once

#include <afxwin.h>

// In place of what is there. False if the clipboard does not have it now.
bool CopyText(CWnd& owner, const CString& strText);
// Whether there is a text.
bool ClipboardHasText();
// Empty: there is none, or another program has the clipboard open.
CString ClipboardText(CWnd& owner);
