// COleFont and CPicture: the font and picture objects that automation controls give away. Each has
// a reference of its own, which it lets go of at its end; copies have theirs. The getters ask the
// object, by whose dispatch exceptions they may be left; without an object they give 0.

#pragma once

#include "frame/qv_api.h"

#include <afxdisp.h>

class QV_CONTROLS_API COleFont : public COleDispatchDriver {
public:
    COleFont() = default;
    // Takes the caller's reference over.
    explicit COleFont(LPDISPATCH pDispatch) : COleDispatchDriver(pDispatch) {}

    CY GetSize();  // points
    BOOL GetBold();
    BOOL GetItalic();
    BOOL GetUnderline();
    BOOL GetStrikethrough();
    short GetWeight();   // FW_ constants
    short GetCharset();  // _CHARSET constants
};

class QV_CONTROLS_API CPicture : public COleDispatchDriver {
public:
    CPicture() = default;
    // Takes the caller's reference over.
    explicit CPicture(LPDISPATCH pDispatch) : COleDispatchDriver(pDispatch) {}

    // The bitmap's, metafile's or icon's handle, which stays the object's: the 32 bits of it that
    // mean something, to be extended with their sign.
    long GetHandle();
    long GetHPal();   // the palette's handle, likewise
    short GetType();  // PICTYPE_ constants
    long GetWidth();  // hundredths of a millimetre
    long GetHeight();
};
