#include "afx/ole/dispatch_driver.h"

#include "afx/ole/com_pointer.h"
#include "afx/ole/dispatch_call.h"

#include <afxwin.h>

#include <cstring>
#include <memory>
#include <new>
#include <ole2.h>

namespace {

BSTR Checked(BSTR bstr) {
    if (bstr == nullptr) {
        AfxThrowMemoryException();
    }
    return bstr;
}

BSTR CopyOf(LPCWSTR lpsz) {
    return Checked(::SysAllocString(lpsz != nullptr ? lpsz : L""));
}

BSTR TextOf(LPCSTR lpsz) {
    const int nBytes = lpsz != nullptr ? static_cast<int>(std::strlen(lpsz)) : 0;
    const int nUnits = nBytes > 0 ? ::MultiByteToWideChar(CP_ACP, 0, lpsz, nBytes, nullptr, 0) : 0;
    BSTR bstr = Checked(::SysAllocStringLen(nullptr, static_cast<UINT>(nUnits)));
    if (nUnits > 0) {
        ::MultiByteToWideChar(CP_ACP, 0, lpsz, nBytes, bstr, nUnits);
    }
    return bstr;
}

/// A program's parameters as an automation object takes them: last one first. Texts made for the
/// call go at its end; everything else stays the program's.
class CallParams {
public:
    CallParams() = default;
    ~CallParams();
    CallParams(const CallParams&) = delete;
    CallParams& operator=(const CallParams&) = delete;

    void Read(const BYTE* pbParamInfo, va_list argList);
    /// The last one read is the property's value.
    void NameValue() {
        if (m_params.cArgs > 0) {
            m_params.rgdispidNamedArgs = &m_idValue;
            m_params.cNamedArgs = 1;
        }
    }
    DISPPARAMS* Get() { return &m_params; }

private:
    static constexpr UINT kInPlace = 6;

    /// What belongs to a parameter besides what the object sees.
    struct Note {
        bool bText;         ///< made for the call
        BOOL* pbOfProgram;  ///< a truth value that the object may change
        VARIANT_BOOL bOfObject;
    };

    // A list can be handed on by reference only as a part of something.
    struct Arguments {
        va_list list;
    };

    void Make(UINT nParams);
    void ReadOne(BYTE chParam, VARIANTARG& arg, Note& note, Arguments& arguments);

    DISPPARAMS m_params = {};
    DISPID m_idValue = DISPID_PROPERTYPUT;
    // As many of both as there are parameters are made: most calls have none.
    VARIANTARG m_inPlace[kInPlace];
    Note m_notesInPlace[kInPlace];
    std::unique_ptr<VARIANTARG[]> m_pMany;
    std::unique_ptr<Note[]> m_pManyNotes;
    Note* m_pNotes = m_notesInPlace;
};

void CallParams::Make(UINT nParams) {
    m_params.rgvarg = m_inPlace;
    if (nParams > kInPlace) {
        m_pMany.reset(new (std::nothrow) VARIANTARG[nParams]);
        m_pManyNotes.reset(new (std::nothrow) Note[nParams]);
        if (m_pMany == nullptr || m_pManyNotes == nullptr) {
            AfxThrowMemoryException();
        }
        m_params.rgvarg = m_pMany.get();
        m_pNotes = m_pManyNotes.get();
    }
    for (UINT n = 0; n < nParams; ++n) {
        ::VariantInit(&m_params.rgvarg[n]);
        m_pNotes[n] = {};
    }
    m_params.cArgs = nParams;
}

void CallParams::Read(const BYTE* pbParamInfo, va_list argList) {
    Make(static_cast<UINT>(std::strlen(reinterpret_cast<const char*>(pbParamInfo))));
    Arguments arguments;
    va_copy(arguments.list, argList);
    for (UINT n = m_params.cArgs; n-- > 0;) {
        ReadOne(*pbParamInfo++, m_params.rgvarg[n], m_pNotes[n], arguments);
    }
    va_end(arguments.list);
}

CallParams::~CallParams() {
    for (UINT n = 0; n < m_params.cArgs; ++n) {
        const Note& note = m_pNotes[n];
        if (note.bText) {
            ::SysFreeString(m_params.rgvarg[n].bstrVal);
        } else if (note.pbOfProgram != nullptr) {
            *note.pbOfProgram = note.bOfObject != VARIANT_FALSE;
        }
    }
}

void CallParams::ReadOne(BYTE chParam, VARIANTARG& arg, Note& note, Arguments& arguments) {
    const VARTYPE vt = AfxParamType(chParam);
    switch (vt) {
        case VT_I1:
        case VT_UI1:
            arg.bVal = static_cast<BYTE>(va_arg(arguments.list, int));
            break;
        case VT_I2:
        case VT_UI2:
            arg.iVal = static_cast<short>(va_arg(arguments.list, int));
            break;
        case VT_I4:
        case VT_UI4:
        case VT_ERROR:
            arg.lVal = va_arg(arguments.list, long);
            break;
        case VT_I8:
        case VT_UI8:
            arg.llVal = va_arg(arguments.list, LONGLONG);
            break;
        case VT_R4:
            arg.fltVal = static_cast<float>(va_arg(arguments.list, double));
            break;
        case VT_R8:
        case VT_DATE:
            arg.dblVal = va_arg(arguments.list, double);
            break;
        case VT_CY:
            arg.cyVal = *va_arg(arguments.list, const CY*);
            break;
        case VT_BSTR:
            arg.bstrVal = chParam == AFX_VT_TEXT ? TextOf(va_arg(arguments.list, LPCSTR))
                                                 : CopyOf(va_arg(arguments.list, LPCWSTR));
            note.bText = true;
            break;
        case VT_BOOL:
            arg.boolVal = va_arg(arguments.list, BOOL) ? VARIANT_TRUE : VARIANT_FALSE;
            break;
        case VT_DISPATCH:
        case VT_UNKNOWN:
            arg.punkVal = va_arg(arguments.list, LPUNKNOWN);
            break;
        case VT_VARIANT:
            // Its contents stay the program's.
            if (const auto* pvar = va_arg(arguments.list, const VARIANT*)) {
                std::memcpy(&arg, pvar, sizeof arg);
            } else {
                arg.vt = VT_ERROR;
                arg.scode = DISP_E_PARAMNOTFOUND;
            }
            return;
        case VT_BOOL | VT_BYREF:
            note.pbOfProgram = va_arg(arguments.list, BOOL*);
            if (note.pbOfProgram != nullptr) {
                note.bOfObject = *note.pbOfProgram ? VARIANT_TRUE : VARIANT_FALSE;
                arg.pboolVal = &note.bOfObject;
            }
            break;
        default:
            if ((vt & VT_BYREF) == 0) {
                AfxThrowOleException(DISP_E_BADVARTYPE);
            }
            arg.byref = va_arg(arguments.list, void*);
            break;
    }
    arg.vt = vt;
}

/// What an object tells about its failure; the texts go with it.
struct ToldFailure : EXCEPINFO {
    ToldFailure() : EXCEPINFO() {}
    // One by one: a list of them would be written and read again in every call that succeeds.
    ~ToldFailure() {
        Free(bstrSource);
        Free(bstrDescription);
        Free(bstrHelpFile);
    }
    ToldFailure(const ToldFailure&) = delete;
    ToldFailure& operator=(const ToldFailure&) = delete;

    [[noreturn]] void Throw();

private:
    static void Free(BSTR bstr) {
        if (bstr != nullptr) {
            ::SysFreeString(bstr);
        }
    }
};

void ToldFailure::Throw() {
    if (pfnDeferredFillIn != nullptr) {
        pfnDeferredFillIn(this);
    }
    auto pException = std::unique_ptr<COleDispatchException>(
        new (std::nothrow) COleDispatchException("", dwHelpContext, wCode));
    if (pException == nullptr) {
        AfxThrowMemoryException();
    }
    pException->m_scError = scode;
    pException->m_strSource = bstrSource;
    pException->m_strHelpFile = bstrHelpFile;
    pException->m_strDescription = bstrDescription;
    if (pException->m_strDescription.IsEmpty()) {
        COleException plain;
        plain.m_sc = scode != S_OK ? scode : DISP_E_EXCEPTION;
        char szText[512] = "";
        plain.GetErrorMessage(szText, sizeof szText);
        pException->m_strDescription = szText;
    }
    throw pException.release();
}

/// What an object gave back, until it is handed on.
struct Result : VARIANT {
    Result() { vt = VT_EMPTY; }
    ~Result() {
        if (vt >= VT_BSTR) {  // those before hold nothing
            ::VariantClear(this);
        }
    }
    Result(const Result&) = delete;
    Result& operator=(const Result&) = delete;

    void GiveAs(VARTYPE vtRet, void* pvRet);
};

void Result::GiveAs(VARTYPE vtRet, void* pvRet) {
    if (vtRet == VT_VARIANT) {
        std::memcpy(pvRet, static_cast<VARIANT*>(this), sizeof(VARIANT));
        vt = VT_EMPTY;
        return;
    }
    if (vt == VT_EMPTY && (vtRet == VT_DISPATCH || vtRet == VT_UNKNOWN)) {
        vt = vtRet;  // no object
        punkVal = nullptr;
    }
    if (vt != vtRet) {
        const SCODE sc = ::VariantChangeType(this, this, 0, vtRet);
        if (FAILED(sc)) {
            AfxThrowOleException(sc);
        }
    }
    switch (vtRet) {
        case VT_I1:
        case VT_UI1:
            *static_cast<BYTE*>(pvRet) = bVal;
            break;
        case VT_I2:
        case VT_UI2:
            *static_cast<short*>(pvRet) = iVal;
            break;
        case VT_I4:
        case VT_UI4:
        case VT_ERROR:
            *static_cast<long*>(pvRet) = lVal;
            break;
        case VT_I8:
        case VT_UI8:
            *static_cast<LONGLONG*>(pvRet) = llVal;
            break;
        case VT_R4:
            *static_cast<float*>(pvRet) = fltVal;
            break;
        case VT_R8:
        case VT_DATE:
            *static_cast<double*>(pvRet) = dblVal;
            break;
        case VT_CY:
            *static_cast<CY*>(pvRet) = cyVal;
            break;
        case VT_BSTR:
            *static_cast<CString*>(pvRet) = bstrVal;
            break;
        case VT_BOOL:
            *static_cast<BOOL*>(pvRet) = boolVal != VARIANT_FALSE;
            break;
        case VT_DISPATCH:
        case VT_UNKNOWN:
            *static_cast<LPUNKNOWN*>(pvRet) = punkVal;
            vt = VT_EMPTY;
            break;
        default:
            AfxThrowOleException(DISP_E_BADVARTYPE);
    }
}

}  // namespace

static void Call(LPDISPATCH pDispatch, DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                 DISPPARAMS* pParams) {
    const AfxComPtr<IDispatch> stay(pDispatch);  // whatever becomes of the driver meanwhile
    Result result;
    ToldFailure failure;
    UINT nArgument = 0;
    const HRESULT hResult =
        pDispatch->Invoke(dwDispID, IID_NULL, LOCALE_USER_DEFAULT, wFlags, pParams,
                          vtRet != VT_EMPTY ? &result : nullptr, &failure, &nArgument);
    if (hResult == DISP_E_EXCEPTION) {
        failure.Throw();
    }
    if (FAILED(hResult)) {
        AfxThrowOleException(hResult);
    }
    if (vtRet != VT_EMPTY && pvRet != nullptr) {
        result.GiveAs(vtRet, pvRet);
    }
}

// Apart, so that a property without parameters does not pay for them: programs ask for those by the
// million.
[[gnu::noinline]] static void CallWithParams(LPDISPATCH pDispatch, DISPID dwDispID, WORD wFlags,
                                             VARTYPE vtRet, void* pvRet, const BYTE* pbParamInfo,
                                             va_list argList) {
    CallParams params;
    params.Read(pbParamInfo, argList);
    if ((wFlags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
        params.NameValue();
    }
    Call(pDispatch, dwDispID, wFlags, vtRet, pvRet, params.Get());
}

void InvokeDispatch(LPDISPATCH pDispatch, DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                    const BYTE* pbParamInfo, va_list argList) {
    if (pbParamInfo != nullptr) {
        CallWithParams(pDispatch, dwDispID, wFlags, vtRet, pvRet, pbParamInfo, argList);
        return;
    }
    DISPPARAMS none = {};
    Call(pDispatch, dwDispID, wFlags, vtRet, pvRet, &none);
}

COleDispatchDriver::COleDispatchDriver(LPDISPATCH lpDispatch, BOOL bAutoRelease)
    : m_lpDispatch(lpDispatch), m_bAutoRelease(bAutoRelease) {}

COleDispatchDriver::COleDispatchDriver(const COleDispatchDriver& dispatchSrc)
    : m_lpDispatch(dispatchSrc.m_lpDispatch) {
    if (m_lpDispatch != nullptr) {
        m_lpDispatch->AddRef();
    }
}

const COleDispatchDriver& COleDispatchDriver::operator=(const COleDispatchDriver& dispatchSrc) {
    if (m_lpDispatch != dispatchSrc.m_lpDispatch) {
        COleDispatchDriver copy(dispatchSrc);
        AttachDispatch(copy.DetachDispatch());
    }
    return *this;
}

BOOL COleDispatchDriver::CreateDispatch(REFCLSID clsid, COleException* pError) {
    ReleaseDispatch();
    m_bAutoRelease = TRUE;
    void* pvDispatch = nullptr;
    SCODE sc = ::CoCreateInstance(clsid, nullptr, CLSCTX_ALL, IID_IDispatch, &pvDispatch);
    if (sc == E_INVALIDARG) {  // from systems that know no servers of other machines
        sc = ::CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                IID_IDispatch, &pvDispatch);
    }
    if (pError != nullptr) {
        pError->m_sc = sc;
    }
    m_lpDispatch = static_cast<LPDISPATCH>(pvDispatch);
    return SUCCEEDED(sc);
}

BOOL COleDispatchDriver::CreateDispatch(LPCTSTR lpszProgID, COleException* pError) {
    CLSID clsid = CLSID_NULL;
    BSTR bstrProgID = TextOf(lpszProgID);
    const SCODE sc = ::CLSIDFromProgID(bstrProgID, &clsid);
    ::SysFreeString(bstrProgID);
    if (pError != nullptr) {
        pError->m_sc = sc;
    }
    return SUCCEEDED(sc) && CreateDispatch(clsid, pError);
}

void COleDispatchDriver::AttachDispatch(LPDISPATCH lpDispatch, BOOL bAutoRelease) {
    ReleaseDispatch();
    m_lpDispatch = lpDispatch;
    m_bAutoRelease = bAutoRelease;
}

LPDISPATCH COleDispatchDriver::DetachDispatch() {
    LPDISPATCH pDispatch = m_lpDispatch;
    m_lpDispatch = nullptr;
    return pDispatch;
}

void COleDispatchDriver::ReleaseDispatch() {
    LPDISPATCH pDispatch = DetachDispatch();
    if (pDispatch != nullptr && m_bAutoRelease) {
        pDispatch->Release();
    }
}

void COleDispatchDriver::InvokeHelperV(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                                       const BYTE* pbParamInfo, va_list argList) {
    if (m_lpDispatch != nullptr) {
        InvokeDispatch(m_lpDispatch, dwDispID, wFlags, vtRet, pvRet, pbParamInfo, argList);
    }
}

void COleDispatchDriver::InvokeHelper(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                                      const BYTE* pbParamInfo, ...) {
    va_list argList;
    va_start(argList, pbParamInfo);
    const AfxListEnd end{argList};
    InvokeHelperV(dwDispID, wFlags, vtRet, pvRet, pbParamInfo, argList);
}

void COleDispatchDriver::GetProperty(DISPID dwDispID, VARTYPE vtProp, void* pvProp) const {
    // Only a call that may change the object is not for a const one.
    const_cast<COleDispatchDriver*>(this)->InvokeHelper(dwDispID, DISPATCH_PROPERTYGET, vtProp,
                                                        pvProp, nullptr);
}

void COleDispatchDriver::SetPropertyV(DISPID dwDispID, VARTYPE vtProp, va_list argList) {
    const VARTYPE vtPlain = static_cast<VARTYPE>(vtProp & ~VT_BYREF);
    const int nType = vtProp == VT_BSTR ? AFX_VT_TEXT : vtPlain;
    const BYTE abInfo[] = {
        static_cast<BYTE>((vtProp & VT_BYREF) != 0 ? nType | AFX_VT_BYREF : nType), 0};
    InvokeHelperV(dwDispID, DISPATCH_PROPERTYPUT, VT_EMPTY, nullptr, abInfo, argList);
}

void COleDispatchDriver::SetProperty(DISPID dwDispID, VARTYPE vtProp, ...) {
    va_list argList;
    va_start(argList, vtProp);
    const AfxListEnd end{argList};
    SetPropertyV(dwDispID, vtProp, argList);
}
