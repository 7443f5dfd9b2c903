// All public headers of the library.

#pragma once

#include "frame/cust_ctrl.h"
#include "frame/qv_module.h"
#include "frame/styled_rows.h"
#include "grid/grid_ctrl.h"
#include "list/list_ctrl.h"
#include "list/sorting_list_ctrl.h"
#include "print/print_engine.h"
#include "text/text_wnd.h"
#include "tree/tree_ctrl.h"
