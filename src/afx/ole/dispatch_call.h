// How a program's call becomes one of IDispatch. Internal to the framework.
#pragma once

#include <windows.h>

#include <cstdarg>
#include <oaidl.h>

/// What COleDispatchDriver::InvokeHelperV does, for whoever has the object without a driver. A
/// reference is held for as long as the call lasts.
void InvokeDispatch(LPDISPATCH pDispatch, DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                    const BYTE* pbParamInfo, va_list argList);

/// Ends a list of arguments whatever is thrown.
struct AfxListEnd {
    va_list& list;
    ~AfxListEnd() { va_end(list); }
};
