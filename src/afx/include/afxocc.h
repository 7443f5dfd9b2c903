// Containers and sites of ActiveX controls, for programs that derive from them.
#pragma once

#include "afx/ole/control_container.h"
#include "afx/ole/control_site.h"
