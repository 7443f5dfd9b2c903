// CString alone.
#pragma once

#define __AFXSTR_H__

#include "afx/values/string.h"

#include <afx.h>
