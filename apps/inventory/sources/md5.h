// Checksums of files, as the package database keeps them.

#pragma once

#include <afxwin.h>

// In hexadecimal digits. Empty for what cannot be read and for what is no file, as a device.
CString Md5OfFile(const CString& strPath);
