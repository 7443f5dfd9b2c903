// CSplitterWndEx.
#pragma once

#include "afx/app/splitter_ex.h"

#include <afxext.h>
