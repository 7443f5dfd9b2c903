// CTabView.
#pragma once

#include "afx/documents/pages_view.h"

#include <afxwin.h>
