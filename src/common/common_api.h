// How the companion's classes cross the border of Common.dll.

#pragma once

#ifdef QVCOMMON_BUILD
#define QV_COMMON_API __declspec(dllexport)
#else
#define QV_COMMON_API __declspec(dllimport)
#endif
