// How the library joins the application. Loading CONTROLS.dll puts its resources and classes into
// the chain of the module that loads it. Another module state joins by the one function below.

#pragma once

#include "frame/qv_api.h"

#include <afxwin.h>

// Call once from a module state other than the one that loaded the library, before the first use of
// one of its resources or dialogs. Gives the new chain entry, which the framework owns, or null
// without memory. A second call adds a second entry and does no harm.
extern "C" QV_CONTROLS_API CDynLinkLibrary* InitQVControlExtensionDLL();
