// All public headers of the library.

#pragma once

#include "boxes/bitmap_list_box.h"
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
