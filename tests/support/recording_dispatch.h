// An automation object that writes down what it is asked, and answers as it is told.
#pragma once

#include "support/dispatch_call.h"

#include <functional>

class RecordingDispatch : public BareDispatch<IDispatch> {
public:
    virtual ~RecordingDispatch() = default;

    std::vector<std::string> m_calls;  ///< as DispatchCall tells them
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
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD wFlags, DISPPARAMS* pParams, VARIANT* pResult,
                        EXCEPINFO* pInfo, UINT*) override {
        m_calls.push_back(DispatchCall(id, wFlags, *pParams).Text());
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
