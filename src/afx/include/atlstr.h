// CString alone, and the conversions between kinds of text.
#pragma once

#define __ATLSTR_H__

#include <afxstr.h>
#include <atlconv.h>
