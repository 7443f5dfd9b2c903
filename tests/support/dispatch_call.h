// Calls through IDispatch as the object sees them, for objects that write them down.
#pragma once

#include <afxdisp.h>
#include <afxwin.h>

#include <string>
#include <vector>

/// "I4 5": an argument's type and value. What references lead to is read too.
inline std::string ArgumentText(const VARIANT& arg) {
    static const char* const kNames[] = {
        "EMPTY", "NULL", "I2",      "I4",      "R4",      "R8", "CY", "DATE", "BSTR", "DISPATCH",
        "ERROR", "BOOL", "VARIANT", "UNKNOWN", "DECIMAL", "15", "I1", "UI1",  "UI2",  "UI4"};
    std::string strText = kNames[arg.vt & VT_TYPEMASK];
    strText += (arg.vt & VT_BYREF) != 0 ? "*" : "";
    VARIANT plain{};
    if (arg.vt == VT_DISPATCH || arg.vt == VT_UNKNOWN) {
        return strText + (arg.punkVal != nullptr ? " object" : " null");
    }
    if (FAILED(::VariantCopyInd(&plain, const_cast<VARIANT*>(&arg)))) {
        return strText + " ?";
    }
    COleVariant text;
    text.Attach(plain);
    return FAILED(::VariantChangeType(text, text, 0, VT_BSTR))
               ? strText
               : strText + " " + CString(text.bstrVal).GetString();
}

struct DispatchCall {
    DISPID id;
    WORD wFlags;
    std::vector<COleVariant> args;  ///< first one first; references lead where they led in the call
    bool bNamed;                    ///< the last one as a property's value, and no other

    DispatchCall(DISPID idMember, WORD wHow, const DISPPARAMS& params)
        : id(idMember),
          wFlags(wHow),
          args(std::make_reverse_iterator(params.rgvarg + params.cArgs),
               std::make_reverse_iterator(params.rgvarg)),
          bNamed(params.cNamedArgs == 1 && params.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT) {}

    bool IsPut() const { return (wFlags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0; }
    /// "57 put I4 3, I4 100"
    std::string Text() const {
        std::string strText = std::to_string(id) + (wFlags == DISPATCH_METHOD           ? " call"
                                                    : wFlags == DISPATCH_PROPERTYGET    ? " get"
                                                    : wFlags == DISPATCH_PROPERTYPUT    ? " put"
                                                    : wFlags == DISPATCH_PROPERTYPUTREF ? " putref"
                                                                                        : " ?");
        for (const COleVariant& arg : args) {
            strText += (&arg == args.data() ? " " : ", ") + ArgumentText(arg);
        }
        return strText + (bNamed == IsPut() ? "" : " with wrong names");
    }
};

/// IDispatch without types and names. Base has it among its interfaces.
template <class Base>
class BareDispatch : public Base {
public:
    STDMETHODIMP GetTypeInfoCount(UINT* pnInfos) override { return *pnInfos = 0, S_OK; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
};
