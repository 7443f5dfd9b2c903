// Synchronization between threads.
#pragma once

#define __AFXMT_H__

#include "afx/objects/sync.h"

#include <afxwin.h>
