// Automation's client side: parameters, results and failures of calls, and references.
#include "support/recording_dispatch.h"

#include <afxdisp.h>

#include <cstring>
#include <gtest/gtest.h>

namespace {

const BYTE* Info(const char* pszTypes) {
    return reinterpret_cast<const BYTE*>(pszTypes);
}

/// The exception that a call ends with, deleted behind the check.
template <class Exception, class Call>
void ExpectThrown(Call call, const std::function<void(Exception&)>& check) {
    try {
        call();
        ADD_FAILURE() << "nothing thrown";
    } catch (CException* e) {
        ASSERT_EQ(typeid(*e), typeid(Exception));
        check(*static_cast<Exception*>(e));
        e->Delete();
    }
}

CString Message(CException& e) {
    char szText[200] = "";
    EXPECT_TRUE(e.GetErrorMessage(szText, sizeof szText));
    return szText;
}

class Dispatch : public testing::Test {
protected:
    ~Dispatch() override {
        m_driver.ReleaseDispatch();
        EXPECT_EQ(m_object.m_nRefs, 0) << "references";
    }

    template <class T>
    T Got(VARTYPE vt) {
        T value{};
        m_driver.GetProperty(1, vt, &value);
        return value;
    }

    RecordingDispatch m_object;
    COleDispatchDriver m_driver{&m_object};
};

}  // namespace

TEST_F(Dispatch, ParametersArriveInTheTypesThatAreSaid) {
    CY cy{};
    cy.int64 = 12500;
    short n = 3;
    long l = 4;
    float flt = 0.5F;
    BOOL b = 7;
    COleVariant var("in", VT_BSTR);
    const auto calls = [&](const char* pszTypes, auto... arguments) {
        m_driver.InvokeHelper(5, DISPATCH_METHOD, VT_EMPTY, nullptr, Info(pszTypes), arguments...);
        return m_object.TakeCall();
    };
    EXPECT_EQ(calls(nullptr), "5 call");
    EXPECT_EQ(calls(VTS_I2 VTS_I4 VTS_R4 VTS_R8, -2, 70000L, 0.25F, 1.5),
              "5 call I2 -2, I4 70000, R4 0.25, R8 1.5");
    EXPECT_EQ(calls(VTS_CY VTS_BOOL VTS_BOOL VTS_SCODE, &cy, 5, 0, E_FAIL),
              "5 call CY 1.25, BOOL -1, BOOL 0, ERROR");
    EXPECT_EQ(calls(VTS_BSTR VTS_BSTR VTS_WBSTR, "text", nullptr, L"wide"),
              "5 call BSTR text, BSTR , BSTR wide");
    EXPECT_EQ(calls(VTS_DISPATCH VTS_UNKNOWN VTS_UI1, &m_object, nullptr, 200),
              "5 call DISPATCH object, UNKNOWN null, UI1 200");
    EXPECT_EQ(calls(VTS_VARIANT, static_cast<LPVARIANT>(var)), "5 call BSTR in");
    EXPECT_EQ(calls(VTS_VARIANT, nullptr), "5 call ERROR") << "left out";
    EXPECT_EQ(CString(var.bstrVal), "in") << "stays the caller's";
    // More than fit in place, and what the object writes comes back.
    m_object.m_during = [](DISPPARAMS& params) {
        *params.rgvarg[7].piVal += 1;
        *params.rgvarg[6].plVal += 1;
        *params.rgvarg[5].pfltVal += 1;
        *params.rgvarg[4].pboolVal = VARIANT_FALSE;
    };
    EXPECT_EQ(calls(VTS_PI2 VTS_PI4 VTS_PR4 VTS_PBOOL VTS_I2 VTS_I2 VTS_I2 VTS_BSTR, &n, &l, &flt,
                    &b, 1, 2, 3, "end"),
              "5 call I2* 3, I4* 4, R4* 0.5, BOOL* -1, I2 1, I2 2, I2 3, BSTR end");
    EXPECT_TRUE(n == 4 && l == 5 && flt == 1.5F && b == 0);
    m_object.m_during = nullptr;
    m_driver.SetProperty(9, VT_BSTR, "value");
    EXPECT_EQ(m_object.TakeCall(), "9 put BSTR value");
}

TEST_F(Dispatch, ResultsComeInTheTypeThatIsAsked) {
    m_object.m_answer = COleVariant(42L).Detach();
    EXPECT_TRUE(Got<short>(VT_I2) == 42 && Got<long>(VT_I4) == 42 && Got<float>(VT_R4) == 42.0F);
    EXPECT_TRUE(Got<double>(VT_R8) == 42 && Got<CY>(VT_CY).int64 == 420000);
    EXPECT_TRUE(Got<BOOL>(VT_BOOL) == TRUE && Got<CString>(VT_BSTR) == "42");
    EXPECT_EQ(Got<VARIANT>(VT_VARIANT).lVal, 42);
    m_object.m_answer.vt = VT_EMPTY;
    EXPECT_TRUE(Got<long>(VT_I4) == 0 && Got<LPDISPATCH>(VT_DISPATCH) == nullptr);
    EXPECT_EQ(Got<CString>(VT_BSTR), "");
    COleVariant text("no number", VT_BSTR);
    m_object.m_answer = text;
    ExpectThrown<COleException>([&] { Got<long>(VT_I4); },
                                [](COleException& e) {
                                    EXPECT_EQ(e.m_sc, DISP_E_TYPEMISMATCH);
                                    EXPECT_FALSE(Message(e).IsEmpty());
                                });
    m_object.m_answer.vt = VT_DISPATCH;
    m_object.m_answer.pdispVal = &m_object;
    COleDispatchDriver(Got<LPDISPATCH>(VT_DISPATCH))
        .InvokeHelper(3, DISPATCH_METHOD, VT_EMPTY, nullptr, nullptr);
    EXPECT_EQ(m_object.TakeCall(), "3 call") << "an object with a reference of its own";
}

TEST_F(Dispatch, FailuresTellWhatTheObjectTold) {
    m_object.m_hResult = DISP_E_EXCEPTION;
    m_object.m_tell = [](EXCEPINFO& info) {
        info.pfnDeferredFillIn = [](EXCEPINFO* pInfo) -> HRESULT {
            pInfo->wCode = 1004;
            pInfo->bstrDescription = ::SysAllocString(L"Too wide");
            pInfo->bstrSource = ::SysAllocString(L"Grid");
            pInfo->dwHelpContext = 12;
            return S_OK;
        };
    };
    const auto call = [&] { Got<long>(VT_I4); };
    ExpectThrown<COleDispatchException>(call, [](COleDispatchException& e) {
        EXPECT_TRUE(e.m_wCode == 1004 && e.m_strSource == "Grid" && e.m_dwHelpContext == 12);
        EXPECT_EQ(Message(e), "Too wide");
    });
    m_object.m_tell = [](EXCEPINFO& info) { info.scode = E_ACCESSDENIED; };
    ExpectThrown<COleDispatchException>(
        call, [](COleDispatchException& e) { EXPECT_FALSE(Message(e).IsEmpty()); });
    m_object.m_hResult = DISP_E_MEMBERNOTFOUND;
    ExpectThrown<COleException>(call,
                                [](COleException& e) { EXPECT_EQ(e.m_sc, DISP_E_MEMBERNOTFOUND); });
}

TEST_F(Dispatch, ReferencesAreCounted) {
    {
        COleDispatchDriver copy(m_driver);
        COleDispatchDriver other;
        other = copy;
        const COleDispatchDriver& same = other;
        other = same;
        EXPECT_EQ(m_object.m_nRefs, 3);
        EXPECT_EQ(other.DetachDispatch(), &m_object);
        EXPECT_EQ(m_object.Release(), 2u);
        const COleDispatchDriver borrowed(&m_object, FALSE);
    }
    EXPECT_EQ(m_object.m_nRefs, 1);
    // Let go of inside of its own call.
    m_object.m_during = [this](DISPPARAMS&) {
        m_driver.ReleaseDispatch();
        EXPECT_EQ(m_object.m_nRefs, 1);
    };
    EXPECT_EQ(Got<long>(VT_I4), 0);
    m_object.m_during = nullptr;
    long nUntouched = 5;
    m_driver.GetProperty(1, VT_I4, &nUntouched);
    EXPECT_TRUE(nUntouched == 5 && m_object.m_calls.size() == 1) << "no object, no call";
}

TEST(OleVariant, OwnsWhatIsInIt) {
    COleVariant text("17");
    COleVariant copy(text);
    copy.ChangeType(VT_I4);
    EXPECT_TRUE(copy == COleVariant(17L) && CString(text.bstrVal) == "17" && !(copy == text));
}
