// An automation object that writes down what it is asked, and answers as it is told.
#pragma once

#include <afxdisp.h>
#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

/// "I4 5": an argument's type and value. What references lead to is read too.
inline std::string ArgumentText(const VARIANTARG& arg) {
    static const char* const kNames[] = {
        "EMPTY", "NULL", "I2",      "I4",      "R4",      "R8", "CY", "DATE", "BSTR", "DISPATCH",
        "ERROR", "BOOL", "VARIANT", "UNKNOWN", "DECIMAL", "15", "I1", "UI1",  "UI2",  "UI4"};
    std::string strText = kNames[arg.vt & VT_TYPEMASK];
    strText += (arg.vt & VT_BYREF) != 0 ? "*" : "";
    VARIANT plain{};
    if (arg.vt == VT_DISPATCH || arg.vt == VT_UNKNOWN) {
        return strText + (arg.punkVal != nullptr ? " object" : " null");
    }
    if (FAILED(::VariantCopyInd(&plain, const_cast<VARIANTARG*>(&arg)))) {
        return strText + " ?";
    }
    COleVariant text;
    text.Attach(plain);
    return FAILED(::VariantChangeType(text, text, 0, VT_BSTR))
               ? strText
               : strText + " " + CString(text.bstrVal).GetString();
}

class RecordingDispatch : public IDispatch {
public:
    virtual ~RecordingDispatch() = default;

    std::vector<std::string> m_calls;  ///< "57 put I4 3, I4 100"
    VARIANT m_answer{};                ///< given where a result is asked for; not owned
    HRESULT m_hResult = S_OK;
    std::function<void(EXCEPINFO&)> m_tell;     ///< fills in what is wrong
    std::function<void(DISPPARAMS&)> m_during;  ///< runs inside of the call
    LONG m_nRefs = 1;                           ///< the owner's; nothing is deleted

    /// The last call; empty if there was none since.
    std::string TakeCall() {
        const std::string strCall = m_calls.empty() ? "" : m_calls.back();
        m_calls.clear();
        return strCall;
    }

    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override {
        *ppv =
            iid == IID_IUnknown || iid == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr;
        if (*ppv == nullptr) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(++m_nRefs); }
    STDMETHODIMP_(ULONG) Release() override { return static_cast<ULONG>(--m_nRefs); }
    STDMETHODIMP GetTypeInfoCount(UINT* pnInfos) override { return *pnInfos = 0, S_OK; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD wFlags, DISPPARAMS* pParams, VARIANT* pResult,
                        EXCEPINFO* pInfo, UINT*) override {
        std::string strCall = std::to_string(id);
        strCall += wFlags == DISPATCH_METHOD           ? " call"
                   : wFlags == DISPATCH_PROPERTYGET    ? " get"
                   : wFlags == DISPATCH_PROPERTYPUT    ? " put"
                   : wFlags == DISPATCH_PROPERTYPUTREF ? " putref"
                                                       : " ?";
        for (UINT n = pParams->cArgs; n-- > 0;) {
            strCall += (n + 1 == pParams->cArgs ? " " : ", ") + ArgumentText(pParams->rgvarg[n]);
        }
        const bool bNamed =
            pParams->cNamedArgs == 1 && pParams->rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
        if (bNamed != ((wFlags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0)) {
            strCall += " with wrong names";
        }
        m_calls.push_back(strCall);
        if (m_during) {
            m_during(*pParams);
        }
        if (m_tell) {
            m_tell(*pInfo);
        }
        if (SUCCEEDED(m_hResult) && pResult != nullptr) {
            ::VariantCopy(pResult, &m_answer);
        }
        return m_hResult;
    }
};
