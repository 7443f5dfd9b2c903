// All public headers of the library.

#pragma once

#include "buttons/bitmap_button.h"
#include "buttons/check_wnd.h"
#include "buttons/macro_button.h"
#include "buttons/menu_button.h"
#include "buttons/tool_button.h"
#include "containers/header_wnd.h"
#include "containers/list_header_wnd.h"
#include "containers/text_header_wnd.h"
#include "containers/tree_header_wnd.h"
#include "frame/cust_ctrl.h"
#include "frame/dc_guards.h"
#include "frame/qv_module.h"
#include "frame/styled_rows.h"
#include "grid/grid_ctrl.h"
#include "list/header_ctrl_ex.h"
#include "list/list_ctrl.h"
#include "list/sorting_list_ctrl.h"
#include "print/print_engine.h"
#include "text/text_wnd.h"
#include "tree/tree_ctrl.h"
