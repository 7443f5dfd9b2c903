// CSplitterWndEx: a splitter under the name that newer programs give it. Included by
// afxsplitterwndex.h.
#pragma once

#include "afx/app/splitter.h"

/// Draws and does what its base does; there are no visual managers here that draw otherwise.
class QVAFX_API CSplitterWndEx : public CSplitterWnd {
    DECLARE_DYNCREATE(CSplitterWndEx)
};
