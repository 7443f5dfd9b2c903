// Containers and sites of ActiveX controls, for programs that derive from them.
#pragma once

#define __AFXOCC_H__

#include "afx/ole/control_container.h"
#include "afx/ole/control_site.h"
