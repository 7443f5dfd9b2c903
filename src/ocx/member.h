// One row of a control's dispatch table.

#pragma once

#include <windows.h>

#include <oaidl.h>

namespace ocx {

/// A property or method as a container sees it. Properties with both directions, or with a setter
/// of its own for references, are one row.
struct Member {
    DISPID id;
    const wchar_t* pszName;
    WORD wFlags;  ///< what it may be asked: DISPATCH_METHOD, _PROPERTYGET, _PROPERTYPUT,
                  ///< _PROPERTYPUTREF
    VARTYPE vt;   ///< of the property, or the method's result (VT_EMPTY: none)
    VARTYPE vtArgs[5] =
        {};  ///< index arguments or the method's; VT_EMPTY ends them; VT_BYREF is out
};

}  // namespace ocx
