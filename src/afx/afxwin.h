// Windows, dialogs, frames, controls and the application: the header that programs include.
#pragma once

#include "afx.h"
#include "afxcoll.h"
#include "afxdll_.h"
#include "afxres.h"
#include "atltypes.h"

#include "afx_gdi.h"

#include "afx_cmdtarget.h"
#include "afx_wnd.h"

#include "afx_controls.h"
#include "afx_dialog.h"
#include "afx_frame.h"

#include "afx_app.h"
#include "afxmsg_.h"
