// Part of <afxcontrolbars.h>, for programs that include it alone.
#pragma once

#define __AFXWINAPPEX_H__

#include "afx/app/app_ex.h"

#include <afxwin.h>
