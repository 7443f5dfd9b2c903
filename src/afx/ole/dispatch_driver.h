// COleDispatchDriver: the client's side of an automation object. Classes of programs derive from it
// and give each property and method of the object a member.
#pragma once

#include "afx/ole/ole_exceptions.h"
#include "afx/ole/param_types.h"

#include <cstdarg>

class QVAFX_API COleDispatchDriver {
public:
    COleDispatchDriver() = default;
    /// Takes the caller's reference over, which with bAutoRelease goes at the end.
    explicit COleDispatchDriver(LPDISPATCH lpDispatch, BOOL bAutoRelease = TRUE);
    /// Copies have references of their own.
    COleDispatchDriver(const COleDispatchDriver& dispatchSrc);
    const COleDispatchDriver& operator=(const COleDispatchDriver& dispatchSrc);
    ~COleDispatchDriver() { ReleaseDispatch(); }

    LPDISPATCH m_lpDispatch = nullptr;
    BOOL m_bAutoRelease = TRUE;  ///< whether the reference is let go of
    operator LPDISPATCH() const { return m_lpDispatch; }

    /// Makes an object of a class. FALSE on failure; pError tells which.
    BOOL CreateDispatch(REFCLSID clsid, COleException* pError = nullptr);
    BOOL CreateDispatch(LPCTSTR lpszProgID, COleException* pError = nullptr);
    void AttachDispatch(LPDISPATCH lpDispatch, BOOL bAutoRelease = TRUE);
    /// The reference is the caller's from here on.
    LPDISPATCH DetachDispatch();
    void ReleaseDispatch();

    /// Calls a method, or reads or writes a property. wFlags: DISPATCH_METHOD and its like. vtRet:
    /// the result's type, VT_EMPTY for none, to which what comes back is converted; pvRet: a short,
    /// long, float, double, CY, DATE, CString (VT_BSTR), LPDISPATCH, LPUNKNOWN, SCODE, BOOL or
    /// VARIANT, whose references and contents are the caller's. pbParamInfo: VTS_ constants, null
    /// for none; the parameters follow in that order.
    ///
    /// Throws a COleDispatchException if the object tells what is wrong, else a COleException.
    /// Without an object nothing happens, and the result stays as it was.
    void InvokeHelper(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                      const BYTE* pbParamInfo, ...);
    void InvokeHelperV(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                       const BYTE* pbParamInfo, va_list argList);
    /// vtProp: VT_I4 and its like, what a parameter of that type is written as; a text is an
    /// LPCTSTR.
    void SetProperty(DISPID dwDispID, VARTYPE vtProp, ...);
    void SetPropertyV(DISPID dwDispID, VARTYPE vtProp, va_list argList);
    void GetProperty(DISPID dwDispID, VARTYPE vtProp, void* pvProp) const;
};
