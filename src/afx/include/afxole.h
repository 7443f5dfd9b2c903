// OLE, of which automation and controls are here.
#pragma once

#define __AFXOLE_H__

#include <afxdisp.h>
#include <afxext.h>

#include <ole2.h>
