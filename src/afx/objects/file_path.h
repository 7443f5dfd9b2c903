// Paths and names of files. Internal to the framework.
#pragma once

#include "afx/values/string.h"

/// What no file's name has.
constexpr char kAfxNotInFileNames[] = "\\/:*?\"<>|";

/// The path with drive and folders, or as it is where the system cannot complete it. pstrName gets
/// the file's name then, and is empty where there is none.
CString AfxWholePath(LPCTSTR lpszPath, CString* pstrName = nullptr);

/// By the file system's comparison, which knows no case and no language.
bool AfxSamePath(LPCTSTR lpszOne, LPCTSTR lpszOther);
