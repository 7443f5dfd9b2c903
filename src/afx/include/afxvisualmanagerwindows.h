// Part of <afxcontrolbars.h>, for programs that include it alone.
#pragma once

#define __AFXVISUALMANAGERWINDOWS_H__

#include "afx/app/visual_manager.h"

#include <afxwin.h>
