// Where the settings lie, and how they get there without loss.

#pragma once

#include "model/settings.h"

#include <afxwin.h>

// In the user's folder for applications.
CString UsersSettingsPath();
// No file: the defaults. A damaged one is set aside under another name; the message then names
// both and the line, and what that leads to; the defaults are in force. Empty: nothing to say.
CString LoadSettings(const CString& strPath, KeyedValues& settings,
                     LPCSTR pszOutcome = "the defaults are in force");
// Writes beside the file and then puts that in its place, so that there is a whole one at any
// time. False if that fails; the old file is as it was.
bool SaveSettings(const CString& strPath, const KeyedValues& settings);
