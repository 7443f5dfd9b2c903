// The calls that the wrappers' members are made of. What they give is 0, empty or null where there
// is no control to answer. pszTypes: VTS_ constants.

#pragma once

#include <afxdisp.h>
#include <afxwin.h>

namespace qv {

// object: a wrapper or a COleDispatchDriver.
template <class Result, class Object>
Result GetMember(const Object& object, DISPID id, VARTYPE vt) {
    Result result{};
    object.GetProperty(id, vt, &result);
    return result;
}

template <class... Arguments>
void InvokeAs(CWnd& wnd, DISPID id, WORD wFlags, VARTYPE vt, void* pResult, LPCSTR pszTypes,
              Arguments... arguments) {
    wnd.InvokeHelper(id, wFlags, vt, pResult, reinterpret_cast<const BYTE*>(pszTypes),
                     arguments...);
}

template <class Result, class... Arguments>
Result InvokeGet(CWnd& wnd, DISPID id, VARTYPE vt, LPCSTR pszTypes = nullptr,
                 Arguments... arguments) {
    Result result{};
    InvokeAs(wnd, id, DISPATCH_PROPERTYGET, vt, &result, pszTypes, arguments...);
    return result;
}

// The value comes last.
template <class... Arguments>
void InvokePut(CWnd& wnd, DISPID id, LPCSTR pszTypes, Arguments... arguments) {
    InvokeAs(wnd, id, DISPATCH_PROPERTYPUT, VT_EMPTY, nullptr, pszTypes, arguments...);
}

template <class... Arguments>
void InvokePutRef(CWnd& wnd, DISPID id, LPCSTR pszTypes, Arguments... arguments) {
    InvokeAs(wnd, id, DISPATCH_PROPERTYPUTREF, VT_EMPTY, nullptr, pszTypes, arguments...);
}

template <class... Arguments>
void InvokeMethod(CWnd& wnd, DISPID id, LPCSTR pszTypes = nullptr, Arguments... arguments) {
    InvokeAs(wnd, id, DISPATCH_METHOD, VT_EMPTY, nullptr, pszTypes, arguments...);
}

template <class Result, class... Arguments>
Result InvokeMethodFor(CWnd& wnd, DISPID id, VARTYPE vt, LPCSTR pszTypes = nullptr,
                       Arguments... arguments) {
    Result result{};
    InvokeAs(wnd, id, DISPATCH_METHOD, vt, &result, pszTypes, arguments...);
    return result;
}

}  // namespace qv
