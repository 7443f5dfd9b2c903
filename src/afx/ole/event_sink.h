// Event sinks: handlers of what controls tell, by a map like that of messages.
//
//     class CMyDialog : public CDialog {
//         BOOL OnTabShown(short* pnTab, short* pnCancel);
//         DECLARE_EVENTSINK_MAP()
//     };
//     BEGIN_EVENTSINK_MAP(CMyDialog, CDialog)
//     ON_EVENT(CMyDialog, IDC_TAB, 8, &CMyDialog::OnTabShown, VTS_PI2 VTS_PI2)
//     END_EVENTSINK_MAP()
//
// A handler gives TRUE if that is all there is to do, FALSE to let others hear of it too; one that
// gives nothing is taken for TRUE. Its parameters have the types of the VTS_ constants, as written
// at COleDispatchDriver::InvokeHelper, which is checked as it is compiled. Arguments of other types
// are converted; where that is impossible the control is refused by DISP_E_TYPEMISMATCH, and the
// handler is not called. What pointers lead to is the control's.
//
// An event travels as a CN_EVENT command under the control's number; to the control's own object as
// AFX_REFLECTED_EVENT first. An exception of a handler goes to the thread, as one out of a message
// does, and the control gets a failure.
#pragma once

#include "afx/ole/param_types.h"
#include "afx/window/cmdtarget.h"

#include <tuple>
#include <type_traits>
#include <utility>

/// The number under which a control's own object hears of its events.
#define AFX_REFLECTED_EVENT ((UINT)(-1))

/// The extra pointer of a CN_EVENT command.
struct AFX_EVENT {
    enum { event, propRequest, propChanged, propDSCNotify };

    explicit AFX_EVENT(int eventKind, DISPID dispid = DISPID_UNKNOWN,
                       DISPPARAMS* pDispParams = nullptr, EXCEPINFO* pExcepInfo = nullptr,
                       UINT* puArgError = nullptr)
        : m_eventKind(eventKind),
          m_dispid(dispid),
          m_pDispParams(pDispParams),
          m_pExcepInfo(pExcepInfo),
          m_puArgError(puArgError) {}

    int m_eventKind;
    DISPID m_dispid;             ///< of the event, or of the property that changes
    DISPPARAMS* m_pDispParams;   ///< of an event
    EXCEPINFO* m_pExcepInfo;     ///< filled where a handler throws; may be null
    UINT* m_puArgError;          ///< which argument was refused; may be null
    BOOL m_bPropChanged = TRUE;  ///< the answer to propRequest: whether it may change
    HRESULT m_hResult = S_OK;    ///< for the control
};

typedef BOOL (*AFX_PFNEVENTCALL)(CCmdTarget* pTarget, UINT nID, AFX_EVENT& event);

/// One line of an event sink map. The last line of a map has no call.
struct AFX_EVENTSINKMAP_ENTRY {
    int nEventKind;
    DISPID dispid;
    UINT nCtrlIDFirst;  ///< controls' numbers, inclusive
    UINT nCtrlIDLast;
    AFX_PFNEVENTCALL pfnCall;
};

struct AFX_EVENTSINKMAP {
    const AFX_EVENTSINKMAP* (*pfnGetBaseMap)();
    const AFX_EVENTSINKMAP_ENTRY* lpEntries;
};

// Implementation only from now on

/// One argument of an event in the type that a handler asks for.
class QVAFX_API AfxEventValue {
public:
    AfxEventValue() { ::VariantInit(&m_value); }
    ~AfxEventValue();
    AfxEventValue(const AfxEventValue&) = delete;
    AfxEventValue& operator=(const AfxEventValue&) = delete;

    HRESULT Take(const VARIANTARG& arg, BYTE chParam);
    /// Gives the control the truth value that the handler left.
    void Finish();

    const VARIANT& Get() const { return m_value; }
    const CString& Text() const { return m_strText; }
    BOOL* Truth() { return &m_bTruth; }

private:
    HRESULT TakePointer(const VARIANTARG& arg, VARTYPE vt);

    VARIANT m_value;
    CString m_strText;
    BOOL m_bTruth = FALSE;
    VARIANT_BOOL* m_pbOfControl = nullptr;
};

/// How a handler's parameter of type T is read: Fits tells for which bytes of a parameter string.
template <typename T>
struct AfxEventParam;

#define AFX_EVENT_PARAM_(T, fits, expression)                                      \
    template <>                                                                    \
    struct AfxEventParam<T> {                                                      \
        static constexpr bool Fits(int ch) { return fits; }                        \
        static T Get([[maybe_unused]] AfxEventValue& value) { return expression; } \
    };
AFX_EVENT_PARAM_(short, ch == VT_I2, value.Get().iVal)
AFX_EVENT_PARAM_(unsigned short, ch == VT_UI2 || ch == VT_I2, value.Get().uiVal)
AFX_EVENT_PARAM_(long, ch == VT_I4 || ch == VT_ERROR, value.Get().lVal)
AFX_EVENT_PARAM_(unsigned long, ch == VT_UI4 || ch == VT_I4, value.Get().ulVal)
AFX_EVENT_PARAM_(UINT, ch == VT_UI4 || ch == VT_I4, value.Get().ulVal)
AFX_EVENT_PARAM_(int, ch == VT_BOOL || ch == VT_I4,
                 value.Get().vt == VT_BOOL ? value.Get().boolVal != VARIANT_FALSE
                                           : value.Get().lVal)
AFX_EVENT_PARAM_(bool, ch == VT_BOOL, value.Get().boolVal != VARIANT_FALSE)
AFX_EVENT_PARAM_(signed char, ch == VT_I1, value.Get().cVal)
AFX_EVENT_PARAM_(char, ch == VT_I1, value.Get().cVal)
AFX_EVENT_PARAM_(BYTE, ch == VT_UI1, value.Get().bVal)
AFX_EVENT_PARAM_(LONGLONG, ch == VT_I8, value.Get().llVal)
AFX_EVENT_PARAM_(ULONGLONG, ch == VT_UI8, value.Get().ullVal)
AFX_EVENT_PARAM_(float, ch == VT_R4, value.Get().fltVal)
AFX_EVENT_PARAM_(double, ch == VT_R8 || ch == VT_DATE, value.Get().dblVal)
AFX_EVENT_PARAM_(CY, ch == VT_CY, value.Get().cyVal)
AFX_EVENT_PARAM_(const CY&, ch == VT_CY, value.Get().cyVal)
AFX_EVENT_PARAM_(LPCSTR, ch == AFX_VT_TEXT, value.Text().GetString())
AFX_EVENT_PARAM_(LPCWSTR, ch == VT_BSTR, value.Get().bstrVal)
AFX_EVENT_PARAM_(LPDISPATCH, ch == VT_DISPATCH, value.Get().pdispVal)
AFX_EVENT_PARAM_(LPUNKNOWN, ch == VT_UNKNOWN, value.Get().punkVal)
AFX_EVENT_PARAM_(VARIANT, ch == VT_VARIANT, value.Get())
AFX_EVENT_PARAM_(const VARIANT&, ch == VT_VARIANT, value.Get())
AFX_EVENT_PARAM_(short*, ch == (VT_I2 | AFX_VT_BYREF), value.Get().piVal)
AFX_EVENT_PARAM_(long*, ch == (VT_I4 | AFX_VT_BYREF) || ch == (VT_ERROR | AFX_VT_BYREF),
                 value.Get().plVal)
AFX_EVENT_PARAM_(unsigned long*, ch == (VT_UI4 | AFX_VT_BYREF) || ch == (VT_I4 | AFX_VT_BYREF),
                 value.Get().pulVal)
AFX_EVENT_PARAM_(float*, ch == (VT_R4 | AFX_VT_BYREF), value.Get().pfltVal)
AFX_EVENT_PARAM_(double*, ch == (VT_R8 | AFX_VT_BYREF) || ch == (VT_DATE | AFX_VT_BYREF),
                 value.Get().pdblVal)
AFX_EVENT_PARAM_(CY*, ch == (VT_CY | AFX_VT_BYREF), value.Get().pcyVal)
AFX_EVENT_PARAM_(BSTR*, ch == (VT_BSTR | AFX_VT_BYREF), value.Get().pbstrVal)
AFX_EVENT_PARAM_(BOOL*, ch == (VT_BOOL | AFX_VT_BYREF), value.Truth())
AFX_EVENT_PARAM_(LPDISPATCH*, ch == (VT_DISPATCH | AFX_VT_BYREF), value.Get().ppdispVal)
AFX_EVENT_PARAM_(LPUNKNOWN*, ch == (VT_UNKNOWN | AFX_VT_BYREF), value.Get().ppunkVal)
AFX_EVENT_PARAM_(VARIANT*, ch == (VT_VARIANT | AFX_VT_BYREF), value.Get().pvarVal)
AFX_EVENT_PARAM_(BYTE*, ch == (VT_UI1 | AFX_VT_BYREF), value.Get().pbVal)

/// Takes an event's arguments, which come last one first. Gives what the control is told.
QVAFX_API HRESULT AfxTakeEventValues(AFX_EVENT& event, const char* pszTypes, AfxEventValue* pValues,
                                     UINT nValues);

template <typename Call>
BOOL AfxHandledBy(Call call) {
    if constexpr (std::is_void_v<decltype(call())>) {
        call();
        return TRUE;
    } else {
        return static_cast<BOOL>(call());
    }
}

/// A handler whose parameters, behind the control's number if it takes that, are A.
template <typename... A>
struct AfxEventHandler {
    static constexpr bool Fits(const char* pszTypes) {
        if constexpr (sizeof...(A) == 0) {
            return pszTypes == nullptr || *pszTypes == 0;
        } else {
            bool bFit = pszTypes != nullptr;
            auto one = [&](bool (*pfnFits)(int)) {
                bFit = bFit && *pszTypes != 0 && pfnFits(*pszTypes);
                pszTypes += bFit ? 1 : 0;
            };
            (one(&AfxEventParam<A>::Fits), ...);
            return bFit && *pszTypes == 0;
        }
    }

    template <typename Handle>
    static BOOL Call(const char* pszTypes, AFX_EVENT& event, Handle handle) {
        // One more, since there are no arrays of none.
        AfxEventValue values[sizeof...(A) + 1];
        event.m_hResult = AfxTakeEventValues(event, pszTypes, values, sizeof...(A));
        return FAILED(event.m_hResult) || CallWith(values, handle, std::index_sequence_for<A...>());
    }

private:
    template <typename Handle, size_t... I>
    static BOOL CallWith([[maybe_unused]] AfxEventValue* pValues, Handle& handle,
                         std::index_sequence<I...>) {
        const BOOL bHandled =
            AfxHandledBy([&] { return handle(AfxEventParam<A>::Get(pValues[I])...); });
        (pValues[I].Finish(), ...);
        return bHandled;
    }
};

template <typename R, typename C, typename... A>
AfxEventHandler<A...> AfxHandlerOf(R (C::*)(A...));
template <typename R, typename C, typename... A>
AfxEventHandler<A...> AfxRangeHandlerOf(R (C::*)(UINT, A...));

#define AFX_EVENTSINK_ENTRY_(kind, dispid, id, idLast, ...)                     \
    {AFX_EVENT::kind, dispid, static_cast<UINT>(id), static_cast<UINT>(idLast), \
     []([[maybe_unused]] CCmdTarget* pTarget, [[maybe_unused]] UINT nID,        \
        [[maybe_unused]] AFX_EVENT& event) -> BOOL { __VA_ARGS__ }},

#define AFX_EVENT_HANDLER_(theClass, pfnHandler, vtsParams, handlerOf, ...)                     \
    using Handler = decltype(handlerOf(pfnHandler));                                            \
    static_assert(Handler::Fits(vtsParams), "The handler's parameters are not of these types"); \
    return Handler::Call(vtsParams, event, [&](auto... args) {                                  \
        return (static_cast<theClass*>(pTarget)->*pfnHandler)(__VA_ARGS__ args...);             \
    });

// Handlers of events.
#define ON_EVENT(theClass, id, dispid, pfnHandler, vtsParams) \
    AFX_EVENTSINK_ENTRY_(event, dispid, id, id,               \
                         AFX_EVENT_HANDLER_(theClass, pfnHandler, vtsParams, AfxHandlerOf))
/// The handler's first parameter is the control's number, a UINT.
#define ON_EVENT_RANGE(theClass, idFirst, idLast, dispid, pfnHandler, vtsParams) \
    AFX_EVENTSINK_ENTRY_(                                                        \
        event, dispid, idFirst, idLast,                                          \
        AFX_EVENT_HANDLER_(theClass, pfnHandler, vtsParams, AfxRangeHandlerOf, nID, ))
/// Of the control's own object.
#define ON_EVENT_REFLECT(theClass, dispid, pfnHandler, vtsParams) \
    ON_EVENT(theClass, AFX_REFLECTED_EVENT, dispid, pfnHandler, vtsParams)

// Handlers of properties: BOOL OnRequest(BOOL* pbAllow), whether it may change, and BOOL
// OnChanged().
#define AFX_PROPNOTIFY_ENTRY_(kind, theClass, id, idLast, dispid, pfnHandler, ...)               \
    AFX_EVENTSINK_ENTRY_(kind, dispid, id, idLast, return AfxHandledBy([&] {                     \
                             return (static_cast<theClass*>(pTarget)->*pfnHandler)(__VA_ARGS__); \
                         });)
#define ON_PROPNOTIFY(theClass, id, dispid, pfnRequest, pfnChanged)          \
    AFX_PROPNOTIFY_ENTRY_(propRequest, theClass, id, id, dispid, pfnRequest, \
                          &event.m_bPropChanged)                             \
    AFX_PROPNOTIFY_ENTRY_(propChanged, theClass, id, id, dispid, pfnChanged)
/// With the control's number first.
#define ON_PROPNOTIFY_RANGE(theClass, idFirst, idLast, dispid, pfnRequest, pfnChanged)     \
    AFX_PROPNOTIFY_ENTRY_(propRequest, theClass, idFirst, idLast, dispid, pfnRequest, nID, \
                          &event.m_bPropChanged)                                           \
    AFX_PROPNOTIFY_ENTRY_(propChanged, theClass, idFirst, idLast, dispid, pfnChanged, nID)
#define ON_PROPNOTIFY_REFLECT(theClass, dispid, pfnRequest, pfnChanged) \
    ON_PROPNOTIFY(theClass, AFX_REFLECTED_EVENT, dispid, pfnRequest, pfnChanged)

#define DECLARE_EVENTSINK_MAP()                           \
protected:                                                \
    static const AFX_EVENTSINKMAP* GetThisEventSinkMap(); \
    const AFX_EVENTSINKMAP* GetEventSinkMap() const override;

#define BEGIN_EVENTSINK_MAP(theClass, baseClass)                \
    const AFX_EVENTSINKMAP* theClass::GetEventSinkMap() const { \
        return GetThisEventSinkMap();                           \
    }                                                           \
    const AFX_EVENTSINKMAP* theClass::GetThisEventSinkMap() {   \
        using TheBaseClass = baseClass;                         \
        static const AFX_EVENTSINKMAP_ENTRY eventsinkEntries[] = {
#define END_EVENTSINK_MAP()                                                           \
    { 0, 0, 0, 0, nullptr }                                                           \
    }                                                                                 \
    ;                                                                                 \
    static const AFX_EVENTSINKMAP eventsinkMap = {&TheBaseClass::GetThisEventSinkMap, \
                                                  eventsinkEntries};                  \
    return &eventsinkMap;                                                             \
    }
