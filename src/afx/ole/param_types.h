// Parameter strings of automation calls and events: a byte for each parameter. VTS_I4 VTS_BSTR, for
// one, stands for a number and a text.
#pragma once

#include <afx.h>

#include <oaidl.h>

// What each byte is made of, for the framework alone: the automation type, or one of the
// framework's own, and whether the parameter is a pointer to such a value.
#define AFX_VT_TEXT 14     // a text of the process's code page, which becomes a BSTR
#define AFX_VT_BYREF 0x40  // VT_BYREF in a byte

// By value. In a call: short, long, float, double, const CY*, DATE, LPCTSTR, LPDISPATCH, SCODE,
// BOOL, const VARIANT*, LPUNKNOWN.
#define VTS_I2 "\x02"
#define VTS_I4 "\x03"
#define VTS_R4 "\x04"
#define VTS_R8 "\x05"
#define VTS_CY "\x06"
#define VTS_DATE "\x07"
#define VTS_WBSTR "\x08"  // LPCWSTR
#define VTS_DISPATCH "\x09"
#define VTS_SCODE "\x0A"
#define VTS_BOOL "\x0B"
#define VTS_VARIANT "\x0C"
#define VTS_UNKNOWN "\x0D"
#define VTS_BSTR "\x0E"
#define VTS_I1 "\x10"
#define VTS_UI1 "\x11"
#define VTS_UI2 "\x12"
#define VTS_UI4 "\x13"
#define VTS_I8 "\x14"
#define VTS_UI8 "\x15"

// Pointers to values that the receiver may change: short*, long* and so on, BSTR*, BOOL*, VARIANT*.
#define VTS_PI2 "\x42"
#define VTS_PI4 "\x43"
#define VTS_PR4 "\x44"
#define VTS_PR8 "\x45"
#define VTS_PCY "\x46"
#define VTS_PDATE "\x47"
#define VTS_PBSTR "\x48"
#define VTS_PDISPATCH "\x49"
#define VTS_PSCODE "\x4A"
#define VTS_PBOOL "\x4B"
#define VTS_PVARIANT "\x4C"
#define VTS_PUNKNOWN "\x4D"
#define VTS_PI1 "\x50"
#define VTS_PUI1 "\x51"
#define VTS_PUI2 "\x52"
#define VTS_PUI4 "\x53"
#define VTS_PI8 "\x54"
#define VTS_PUI8 "\x55"

#define VTS_NONE nullptr

// Types of controls' properties.
#define VTS_COLOR VTS_I4
#define VTS_XPOS_PIXELS VTS_I4
#define VTS_YPOS_PIXELS VTS_I4
#define VTS_XSIZE_PIXELS VTS_I4
#define VTS_YSIZE_PIXELS VTS_I4
#define VTS_XPOS_HIMETRIC VTS_I4
#define VTS_YPOS_HIMETRIC VTS_I4
#define VTS_XSIZE_HIMETRIC VTS_I4
#define VTS_YSIZE_HIMETRIC VTS_I4
#define VTS_TRISTATE VTS_I2
#define VTS_OPTEXCLUSIVE VTS_BOOL
#define VTS_FONT VTS_DISPATCH
#define VTS_PICTURE VTS_DISPATCH
#define VTS_HANDLE VTS_I4
#define VTS_PCOLOR VTS_PI4
#define VTS_PXPOS_PIXELS VTS_PI4
#define VTS_PYPOS_PIXELS VTS_PI4
#define VTS_PXSIZE_PIXELS VTS_PI4
#define VTS_PYSIZE_PIXELS VTS_PI4
#define VTS_PTRISTATE VTS_PI2
#define VTS_POPTEXCLUSIVE VTS_PBOOL
#define VTS_PFONT VTS_PDISPATCH
#define VTS_PPICTURE VTS_PDISPATCH
#define VTS_PHANDLE VTS_PI4

/// The automation type of a byte of a parameter string.
constexpr VARTYPE AfxParamType(BYTE chParam) {
    const bool bByRef = (chParam & AFX_VT_BYREF) != 0;
    const BYTE chPlain = static_cast<BYTE>(chParam & ~AFX_VT_BYREF);
    const int vt = chPlain == AFX_VT_TEXT ? int{VT_BSTR} : chPlain;
    return static_cast<VARTYPE>(bByRef ? vt | VT_BYREF : vt);
}
