// How the library's classes cross the border of CONTROLS.dll.

#pragma once

#if defined(UNICODE) || defined(_UNICODE)
#error "QVControls takes 8-bit text: build with _MBCS and without UNICODE and _UNICODE, and let the program's manifest say activeCodePage UTF-8."
#endif

#ifdef QVCONTROLS_BUILD
#define QV_CONTROLS_API __declspec(dllexport)
#else
#define QV_CONTROLS_API __declspec(dllimport)
#endif
