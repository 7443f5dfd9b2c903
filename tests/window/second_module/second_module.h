// An extension module for tests: a class and resources of its own.
#pragma once

#include <afxwin.h>

#ifdef SECOND_MODULE_BUILD
#define SECOND_MODULE_API __declspec(dllexport)
#else
#define SECOND_MODULE_API __declspec(dllimport)
#endif

class SECOND_MODULE_API ModuleObject : public CObject {
    DECLARE_DYNAMIC(ModuleObject)
};
