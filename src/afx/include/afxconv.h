// The conversions under their older header.
#pragma once

#define __AFXCONV_H__

#include <atlconv.h>
