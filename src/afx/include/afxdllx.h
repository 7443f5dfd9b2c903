// For the one source file of an extension module that holds its DllMain.
#pragma once

#include <afxdll_.h>
