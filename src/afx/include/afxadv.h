// What only some programs use: the list of recent files, and where the bars of a frame lie.
#pragma once

#define __AFXADV_H__

#include "afx/app/dock_state.h"
#include "afx/app/recent_files.h"

#include <afxwin.h>
