// Where the settings lie, and how they get there without loss.

#pragma once

#include "errors.h"
#include "model/settings.h"

// In the user's folder for applications.
CString UsersSettingsPath();
// Both: null where all went well, else the reason.
// No file: the defaults. A damaged one is set aside under another name; the reason then names both
// and the line, and what that leads to; the defaults are in force.
Failure LoadSettings(const CString& strPath, KeyedValues& settings,
                     LPCSTR pszOutcome = "the defaults are in force");
// Writes beside the file and then puts that in its place, so that there is a whole one at any
// time. If that fails the old file is as it was.
Failure SaveSettings(const CString& strPath, const KeyedValues& settings);
