// CString alone.
#pragma once

#define __CSTRINGT_H__

#include <afxstr.h>
