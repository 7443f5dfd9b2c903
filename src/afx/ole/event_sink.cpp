#include "afx/ole/event_sink.h"

#include "afx/ole/ole_exceptions.h"
#include "afx/window/wnd_state.h"

#include <afxwin.h>

#include <cstring>

AfxEventValue::~AfxEventValue() {
    ::VariantClear(&m_value);  // leaves what a reference leads to alone
}

HRESULT AfxEventValue::Take(const VARIANTARG& arg, BYTE chParam) {
    const VARTYPE vt = AfxParamType(chParam);
    if ((vt & VT_BYREF) != 0) {
        return TakePointer(arg, vt);
    }
    HRESULT hResult = ::VariantCopyInd(&m_value, const_cast<VARIANTARG*>(&arg));
    if (SUCCEEDED(hResult) && vt != VT_VARIANT && m_value.vt != vt) {
        hResult = ::VariantChangeType(&m_value, &m_value, 0, vt);
    }
    if (SUCCEEDED(hResult) && chParam == AFX_VT_TEXT) {
        m_strText = m_value.bstrVal;
    }
    return hResult;
}

HRESULT AfxEventValue::TakePointer(const VARIANTARG& arg, VARTYPE vt) {
    const VARIANTARG* pArg = &arg;
    // A variant of the control's serves as the variable that it holds.
    VARIANTARG inside;
    if (arg.vt == (VT_VARIANT | VT_BYREF) && vt != arg.vt && arg.pvarVal != nullptr) {
        const VARIANT& variable = *arg.pvarVal;
        inside.vt = static_cast<VARTYPE>(variable.vt | VT_BYREF);
        inside.byref = (variable.vt & VT_BYREF) != 0
                           ? variable.byref
                           : const_cast<void*>(static_cast<const void*>(&variable.byref));
        pArg = &inside;
    }
    if (pArg->vt != vt) {
        return DISP_E_TYPEMISMATCH;
    }
    if (pArg->byref == nullptr) {
        return E_POINTER;
    }
    m_value.vt = vt;
    m_value.byref = pArg->byref;
    if (vt == (VT_BOOL | VT_BYREF)) {
        m_pbOfControl = pArg->pboolVal;
        m_bTruth = *m_pbOfControl != VARIANT_FALSE;
    }
    return S_OK;
}

void AfxEventValue::Finish() {
    if (m_pbOfControl != nullptr) {
        *m_pbOfControl = m_bTruth ? VARIANT_TRUE : VARIANT_FALSE;
    }
}

HRESULT AfxTakeEventValues(AFX_EVENT& event, const char* pszTypes, AfxEventValue* pValues,
                           UINT nValues) {
    const DISPPARAMS* pParams = event.m_pDispParams;
    const UINT nArgs = pParams != nullptr ? pParams->cArgs : 0;
    if (nArgs != nValues) {
        return DISP_E_BADPARAMCOUNT;
    }
    if (nArgs != 0 && (pParams->cNamedArgs != 0 || pParams->rgvarg == nullptr)) {
        return pParams->rgvarg == nullptr ? E_INVALIDARG : DISP_E_NONAMEDARGS;
    }
    for (UINT n = 0; n < nValues; ++n) {
        const UINT nArgument = nArgs - 1 - n;
        const HRESULT hResult =
            pValues[n].Take(pParams->rgvarg[nArgument], static_cast<BYTE>(pszTypes[n]));
        if (FAILED(hResult)) {
            if (event.m_puArgError != nullptr) {
                *event.m_puArgError = nArgument;
            }
            return hResult;
        }
    }
    return S_OK;
}

const AFX_EVENTSINKMAP* CCmdTarget::GetThisEventSinkMap() {
    static const AFX_EVENTSINKMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static const AFX_EVENTSINKMAP map = {nullptr, entries};
    return &map;
}

const AFX_EVENTSINKMAP* CCmdTarget::GetEventSinkMap() const {
    return GetThisEventSinkMap();
}

namespace {

const AFX_EVENTSINKMAP_ENTRY* FindEntry(const AFX_EVENTSINKMAP* pMap, UINT nID,
                                        const AFX_EVENT& event) {
    for (; pMap != nullptr;
         pMap = pMap->pfnGetBaseMap != nullptr ? pMap->pfnGetBaseMap() : nullptr) {
        for (const AFX_EVENTSINKMAP_ENTRY* p = pMap->lpEntries; p->pfnCall != nullptr; ++p) {
            if (p->nEventKind == event.m_eventKind && p->dispid == event.m_dispid &&
                nID >= p->nCtrlIDFirst && nID <= p->nCtrlIDLast) {
                return p;
            }
        }
    }
    return nullptr;
}

/// Tells the control about the exception that is being handled.
void TellControl(AFX_EVENT& event) {
    try {
        throw;
    } catch (const CException* e) {
        if (event.m_pExcepInfo != nullptr) {
            COleDispatchException::Process(event.m_pExcepInfo, e);
            event.m_hResult = DISP_E_EXCEPTION;
        } else {
            event.m_hResult = COleException::Process(e);
        }
    } catch (const std::bad_alloc&) {
        event.m_hResult = E_OUTOFMEMORY;
    } catch (...) {
        event.m_hResult = E_UNEXPECTED;
    }
}

}  // namespace

BOOL CCmdTarget::OnEvent(UINT idCtrl, AFX_EVENT* pEvent, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const AFX_EVENTSINKMAP_ENTRY* pEntry = FindEntry(GetEventSinkMap(), idCtrl, *pEvent);
    if (pEntry == nullptr) {
        return FALSE;
    }
    if (pHandlerInfo != nullptr) {
        pHandlerInfo->pTarget = this;
        pHandlerInfo->pfnCall = nullptr;
        return TRUE;
    }
    try {
        // The handler may delete this object.
        return pEntry->pfnCall(this, idCtrl, *pEvent);
    } catch (...) {
        TellControl(*pEvent);
        AfxProcessCurrentException(nullptr, WM_NULL);
        return TRUE;
    }
}
