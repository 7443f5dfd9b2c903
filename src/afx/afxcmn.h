// Classes of the common controls.
#pragma once

#include "afx_imagelist.h"
#include "afxwin.h"

class CEdit;

#include "afx_header_ctrl.h"
#include "afx_list_ctrl.h"
#include "afx_range_ctrls.h"
#include "afx_tab_ctrl.h"
#include "afx_tooltip_ctrl.h"
#include "afx_tree_ctrl.h"
