// Conversions between 8-bit and wide text.
#pragma once

#define __ATLCONV_H__

#include "afx/values/text_convert.h"
