// Part of <afxcontrolbars.h>, for programs that include it alone.
#pragma once

#define __AFXSHELLMANAGER_H__

#include "afx/app/shell_manager.h"

#include <afxwin.h>
