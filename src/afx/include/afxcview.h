// Views that are lists and trees.
#pragma once

#define __AFXCVIEW_H__

#include "afx/documents/list_view.h"
#include "afx/documents/tree_view.h"

#include <afxcmn.h>
#include <afxwin.h>
