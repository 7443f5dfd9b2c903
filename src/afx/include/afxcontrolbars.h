// What wizard-made programs name of the larger set of bars, on the plain classes.
#pragma once

#define __AFXCONTROLBARS_H__

#include "afx/app/app_ex.h"
#include "afx/app/shell_manager.h"
#include "afx/app/splitter_ex.h"
#include "afx/app/visual_manager.h"
#include "afx/documents/pages_view.h"

#include <afxdialogex.h>
#include <afxext.h>
#include <afxwin.h>
