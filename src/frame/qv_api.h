// How the library's classes cross the border of CONTROLS.dll.

#pragma once

#ifdef QVCONTROLS_BUILD
#define QV_CONTROLS_API __declspec(dllexport)
#else
#define QV_CONTROLS_API __declspec(dllimport)
#endif
