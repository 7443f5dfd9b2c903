// Handles that objects own: the count behind AfxGetOwnedHandleCount, and objects made to own one.
// Internal to the framework.
#pragma once

#include <windows.h>

#include <commctrl.h>

class CImageList;

void AfxCountOwnedHandle(int nChange);

/// A new object, the caller's, that owns the list; null for null. Without memory the list goes, and
/// CMemoryException is thrown.
CImageList* AfxNewImageList(HIMAGELIST hImageList);
