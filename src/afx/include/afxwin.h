// Windows, dialogs, frames, controls and the application: the header that programs include.
#pragma once

#define __AFXWIN_H__

#include "afx/app/app.h"
#include "afx/app/command_line.h"
#include "afx/app/frame.h"
#include "afx/app/mdi_child.h"
#include "afx/app/mdi_frame.h"
#include "afx/app/mini_frame.h"
#include "afx/controls/bitmap_button.h"
#include "afx/controls/check_list_box.h"
#include "afx/controls/controls.h"
#include "afx/dialogs/dialog.h"
#include "afx/documents/ctrl_view.h"
#include "afx/documents/doc_manager.h"
#include "afx/documents/doc_template.h"
#include "afx/documents/document.h"
#include "afx/documents/multi_doc_template.h"
#include "afx/documents/scroll_view.h"
#include "afx/documents/view.h"
#include "afx/drawing/dc.h"
#include "afx/drawing/gdi.h"
#include "afx/drawing/menu.h"
#include "afx/window/cmdtarget.h"
#include "afx/window/wnd.h"

#include <afx.h>
#include <afxcoll.h>
#include <afxdll_.h>
#include <afxmsg_.h>
#include <afxres.h>
#include <atltypes.h>
