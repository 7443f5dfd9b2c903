// Classes of the common controls.
#pragma once

#define __AFXCMN_H__

#include "afx/drawing/image_list.h"

#include <afxwin.h>

class CEdit;

#include "afx/controls/header_ctrl.h"
#include "afx/controls/list_ctrl.h"
#include "afx/controls/range_ctrls.h"
#include "afx/controls/rebar_ctrl.h"
#include "afx/controls/rich_edit_ctrl.h"
#include "afx/controls/small_ctrls.h"
#include "afx/controls/tab_ctrl.h"
#include "afx/controls/tool_bar_ctrl.h"
#include "afx/controls/tooltip_ctrl.h"
#include "afx/controls/tree_ctrl.h"
