// Event sinks: handlers get arguments in their types, whatever a control sends.
#include "support/test_app.h"

#include <afxdisp.h>

#include <gtest/gtest.h>

namespace {

constexpr UINT kID = 7;
constexpr DISPID kShown = 8, kText = 9, kTruth = 10, kRange = 11, kThrows = 12;

class Sink : public CCmdTarget {
public:
    CString m_strHeard;

    BOOL OnShown(short* pnTab, short nKey) {
        m_strHeard.Format("shown %d %d", (*pnTab)++, nKey);
        return TRUE;
    }
    void OnText(LPCTSTR psz, long n) { m_strHeard.Format("text %s %ld", psz, n); }
    BOOL OnTruth(BOOL bIn, BOOL* pbOut) {
        m_strHeard.Format("truth %d", bIn);
        *pbOut = 5;
        return FALSE;
    }
    void OnRange(UINT nID) { m_strHeard.Format("range %u", nID); }
    void OnThrows() { AfxThrowOleDispatchException(3, "refused by the sink"); }
    void OnReflected() { m_strHeard = "reflected"; }
    BOOL OnRequest(BOOL* pbAllow) { return *pbAllow = FALSE, TRUE; }
    BOOL OnChanged() { return m_strHeard = "changed", TRUE; }

    DECLARE_EVENTSINK_MAP()
};

BEGIN_EVENTSINK_MAP(Sink, CCmdTarget)
    ON_EVENT(Sink, kID, kShown, &Sink::OnShown, VTS_PI2 VTS_I2)
    ON_EVENT(Sink, kID, kText, &Sink::OnText, VTS_BSTR VTS_I4)
    ON_EVENT(Sink, kID, kTruth, &Sink::OnTruth, VTS_BOOL VTS_PBOOL)
    ON_EVENT_RANGE(Sink, 20, 29, kRange, &Sink::OnRange, VTS_NONE)
    ON_EVENT(Sink, kID, kThrows, &Sink::OnThrows, VTS_NONE)
    ON_EVENT_REFLECT(Sink, kShown, &Sink::OnReflected, VTS_NONE)
    ON_PROPNOTIFY(Sink, kID, kText, &Sink::OnRequest, &Sink::OnChanged)
END_EVENTSINK_MAP()

/// What the control hears. Arguments in the order of the handler.
HRESULT Fire(CCmdTarget& sink, DISPID id, std::vector<VARIANTARG> args = {}, UINT nID = kID,
             int nKind = AFX_EVENT::event, BOOL bHandled = TRUE, EXCEPINFO* pInfo = nullptr) {
    std::reverse(args.begin(), args.end());
    DISPPARAMS params = {args.data(), nullptr, static_cast<UINT>(args.size()), 0};
    UINT nWrong = 99;
    AFX_EVENT event(nKind, id, &params, pInfo, &nWrong);
    EXPECT_EQ(sink.OnCmdMsg(nID, static_cast<int>(CN_EVENT), &event, nullptr), bHandled) << id;
    EXPECT_EQ(nWrong != 99, event.m_hResult == DISP_E_TYPEMISMATCH || event.m_hResult == E_POINTER);
    return nKind == AFX_EVENT::propRequest ? event.m_bPropChanged : event.m_hResult;
}

VARIANTARG ByRef(VARTYPE vt, void* pv) {
    VARIANTARG arg{};
    arg.vt = static_cast<VARTYPE>(vt | VT_BYREF);
    arg.byref = pv;
    return arg;
}

}  // namespace

TEST(EventSink, HandlersGetTheTypesThatTheyAskFor) {
    Sink sink;
    short nTab = 4;
    VARIANT_BOOL bTruth = VARIANT_FALSE;
    COleVariant text("some"), number(70000L), key(static_cast<short>(2)), digits("12");
    EXPECT_EQ(Fire(sink, kShown, {ByRef(VT_I2, &nTab), key}), S_OK);
    EXPECT_TRUE(sink.m_strHeard == "shown 4 2" && nTab == 5);
    EXPECT_EQ(Fire(sink, kText, {text, digits}), S_OK) << "converted";
    EXPECT_EQ(sink.m_strHeard, "text some 12");
    EXPECT_EQ(Fire(sink, kTruth, {number, ByRef(VT_BOOL, &bTruth)}, kID, AFX_EVENT::event, FALSE),
              S_OK);
    EXPECT_TRUE(sink.m_strHeard == "truth 1" && bTruth == VARIANT_TRUE);
    // A variable of a language without types serves as what it holds.
    EXPECT_EQ(Fire(sink, kShown, {ByRef(VT_VARIANT, static_cast<LPVARIANT>(key)), key}), S_OK);
    EXPECT_EQ(key.iVal, 3);

    EXPECT_EQ(Fire(sink, kRange, {}, 25), S_OK);
    EXPECT_EQ(sink.m_strHeard, "range 25");
    EXPECT_EQ(Fire(sink, kShown, {}, AFX_REFLECTED_EVENT), S_OK);
    EXPECT_EQ(sink.m_strHeard, "reflected");
    EXPECT_EQ(Fire(sink, kText, {}, kID, AFX_EVENT::propRequest), FALSE);
    EXPECT_EQ(Fire(sink, kText, {}, kID, AFX_EVENT::propChanged), S_OK);
    EXPECT_EQ(sink.m_strHeard, "changed");

    AFX_CMDHANDLERINFO info;
    AFX_EVENT event(AFX_EVENT::event, kThrows);
    EXPECT_TRUE(sink.OnCmdMsg(kID, static_cast<int>(CN_EVENT), &event, &info) &&
                info.pTarget == &sink);
}

TEST(EventSink, ArgumentsThatDoNotFitAreRefused) {
    Sink sink;
    long nTab = 4;
    COleVariant text("some"), number(70000L), key(static_cast<short>(2));
    EXPECT_EQ(Fire(sink, kShown, {key, key}), DISP_E_TYPEMISMATCH) << "no pointer";
    EXPECT_EQ(Fire(sink, kShown, {ByRef(VT_I4, &nTab), key}), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(Fire(sink, kShown, {ByRef(VT_I2, nullptr), key}), E_POINTER);
    EXPECT_EQ(Fire(sink, kText, {text, text}), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(Fire(sink, kShown, {key}), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(Fire(sink, kThrows, {key}), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(sink.m_strHeard, "");
}

TEST(EventSink, WhatAHandlerThrowsStaysOnThisSide) {
    Sink sink;
    TheTestApp().Forget();
    EXCEPINFO info{};
    EXPECT_EQ(Fire(sink, kThrows, {}, kID, AFX_EVENT::event, TRUE, &info), DISP_E_EXCEPTION);
    EXPECT_EQ(CString(info.bstrDescription), "refused by the sink");
    EXPECT_EQ(info.wCode, 3);
    for (BSTR bstr : {info.bstrDescription, info.bstrSource, info.bstrHelpFile}) {
        ::SysFreeString(bstr);
    }
    EXPECT_EQ(Fire(sink, kThrows), DISP_E_EXCEPTION) << "the control wants no text";
    EXPECT_EQ(TheTestApp().m_exceptions, std::vector<std::string>(2, "refused by the sink"));
    TheTestApp().Forget();
}
