// CImage, pictures in files.
#pragma once

#define __ATLIMAGE_H__

#include "afx/drawing/image.h"

#include <afxwin.h>
