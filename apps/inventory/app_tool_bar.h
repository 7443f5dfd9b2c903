// AppToolBar: the commands that are wanted most, as buttons below the menu. Their tooltips are the
// commands' strings, their states those of the commands.

#pragma once

#include <afxext.h>

class AppToolBar : public CToolBar {
public:
    // With pictures of a size that fits the screen's.
    BOOL Make(CFrameWnd& frame);
};
