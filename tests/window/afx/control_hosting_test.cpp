// ActiveX controls in windows: a recording one, and the platform's own.
#include "support/failing_heap.h"
#include "support/fake_control.h"
#include "support/monkey.h"
#include "support/other_program.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/recording_parent.h"
#include "support/test_app.h"
#include "window/afx/hosting_test_ids.h"

#include <afxctl.h>
#include <afxocc.h>

#include <gtest/gtest.h>
#include <map>
#include <utility>

namespace {

constexpr CLSID kBrowser = {
    0x8856F961, 0x340A, 0x11D0, {0xA9, 0x6B, 0x00, 0xC0, 0x4F, 0xD7, 0x05, 0xA2}};
constexpr DWORD kShown = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
const CRect kPlace(10, 20, 110, 70);

/// Writes down events, and answers ambient properties of its own.
class Host : public RecordingParent {
public:
    std::vector<DISPID> m_events;
    std::vector<UINT> m_args;
    std::function<void(AFX_EVENT&)> m_onEvent;
    std::map<DISPID, LONG> m_ambient;
    CFont m_font;

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override {
        if (static_cast<UINT>(nCode) != CN_EVENT) {
            return RecordingParent::OnCmdMsg(nID, nCode, pExtra, pInfo);
        }
        auto& event = *static_cast<AFX_EVENT*>(pExtra);
        EXPECT_EQ(nID, UINT{IDC_HOSTED});
        m_events.push_back(event.m_dispid);
        if (m_onEvent) {
            m_onEvent(event);
        }
        return TRUE;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == WM_GETFONT ? reinterpret_cast<LRESULT>(m_font.m_hObject)
                                     : RecordingParent::WindowProc(message, wParam, lParam);
    }
    BOOL OnAmbientProperty(COleControlSite* pSite, DISPID dispid, VARIANT* pvar) override {
        const auto it = m_ambient.find(dispid);
        if (it == m_ambient.end()) {
            return RecordingParent::OnAmbientProperty(pSite, dispid, pvar);
        }
        V_VT(pvar) = VT_I4;
        V_I4(pvar) = it->second;
        return TRUE;
    }
};

/// A wrapper that hears of its own events first.
class Wrapper : public CWnd {
public:
    int m_nReflected = 0;
    bool m_bTakes = false;

private:
    BOOL OnOwnEvent(long) {
        ++m_nReflected;
        return m_bTakes;
    }
    DECLARE_EVENTSINK_MAP()
};

BEGIN_EVENTSINK_MAP(Wrapper, CWnd)
    ON_EVENT_REFLECT(Wrapper, 9, &Wrapper::OnOwnEvent, VTS_I4)
END_EVENTSINK_MAP()

class ControlHosting : public testing::Test {
protected:
    BOOL Create(CWnd& wrapper, DWORD dwStyle = kShown, CFile* pPersist = nullptr,
                BOOL bStorage = FALSE, BSTR bstrKey = nullptr, LPCTSTR lpszText = nullptr) {
        return wrapper.CreateControl(CLSID_FakeControl, lpszText, dwStyle, kPlace, &m_host,
                                     IDC_HOSTED, pPersist, bStorage, bstrKey);
    }
    /// Nothing of a control is left, but for references that the test has.
    void ExpectNothingLeft(const CWnd& wrapper, int nAlive = 0) {
        EXPECT_EQ(m_class.m_nAlive, nAlive);
        EXPECT_EQ(wrapper.m_hWnd, nullptr);
        EXPECT_EQ(wrapper.m_pCtrlSite, nullptr);
        EXPECT_EQ(::GetWindow(m_host.m_hWnd, GW_CHILD), nullptr);
    }

    FakeControlClass m_class{CLSID_FakeControl};
    Host m_host;
};

TEST_F(ControlHosting, WindowIsTheWrappersAndAChildOfItsParent_AllGoesWithIt) {
    const LONG nHandles = AfxGetOwnedHandleCount();
    for (const DWORD dwStyle : {kShown, kShown & ~WS_VISIBLE, kShown | WS_DISABLED}) {
        m_class.m_steps.clear();
        m_class.m_values[DISPID_ENABLED] = COleVariant(1L);
        m_class.m_values.erase(DISPID_CAPTION);
        if ((dwStyle & WS_DISABLED) == 0) {  // the others have their window's text
            m_class.m_values[DISPID_CAPTION] = COleVariant("");
        }
        CWnd wrapper;
        ASSERT_TRUE(Create(wrapper, dwStyle, nullptr, FALSE, nullptr, "Text"));
        EXPECT_EQ(wrapper.m_hWnd, m_class.m_control->m_hWnd);
        EXPECT_EQ(::GetParent(wrapper.m_hWnd), m_host.m_hWnd);
        EXPECT_EQ(m_host.GetDlgItem(IDC_HOSTED), &wrapper);
        EXPECT_EQ(wrapper.GetStyle() & (WS_VISIBLE | WS_TABSTOP | WS_DISABLED),
                  dwStyle & (WS_VISIBLE | WS_TABSTOP | WS_DISABLED));
        CString strText;
        wrapper.GetWindowText(strText);
        EXPECT_EQ(strText, "Text");
        EXPECT_EQ(m_class.Count("extent 2646 1323"), 1) << "at 96 dots an inch";
        EXPECT_EQ(V_VT(&m_class.m_values[DISPID_ENABLED]), dwStyle & WS_DISABLED ? VT_BOOL : VT_I4);
        EXPECT_FALSE(Create(wrapper)) << "it has one";
        wrapper.DestroyWindow();
        ExpectNothingLeft(wrapper);
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

TEST_F(ControlHosting, StepThatFailsLeavesNothing) {
    for (const bool bSiteFirst : {false, true}) {
        m_class.m_dwMiscStatus = bSiteFirst ? OLEMISC_SETCLIENTSITEFIRST : 0;
        for (const char* pszStep : {"create", "site", "new", "verb -5", "window", "get window"}) {
            m_class.m_hook = [&](const std::string& step) {
                return step == pszStep ? E_FAIL : S_OK;
            };
            CWnd wrapper;
            EXPECT_FALSE(Create(wrapper)) << pszStep;
            ExpectNothingLeft(wrapper);
        }
    }
    m_class.m_hook = [](const std::string& step) { return step == "advise" ? E_FAIL : S_OK; };
    CWnd silent;
    EXPECT_TRUE(Create(silent)) << "one without events";
    CWnd nobody;
    EXPECT_FALSE(nobody.CreateControl("{no class id}", nullptr, kShown, kPlace, &m_host, 1));
    EXPECT_FALSE(nobody.CreateControl("No.Such.Control", nullptr, kShown, kPlace, &m_host, 1));
}

TEST_F(ControlHosting, WhateverEndsItInAnyStep_NothingIsTouchedAfterwards) {
    for (const char* pszStep : {"site", "new", "advise", "verb -5", "get window", "rect 0 0 9 9",
                                "deactivate", "close", "invoke 5"}) {
        for (const bool bParent : {false, true}) {
            auto pHost = std::make_unique<Host>();
            auto pWrapper = std::make_unique<CWnd>();
            bool bDone = false;
            m_class.m_hook = [&](const std::string& step) {
                if (step == pszStep && !std::exchange(bDone, true)) {
                    if (bParent) {
                        pHost->DestroyWindow();
                    } else {
                        pWrapper.reset();
                    }
                }
                return S_OK;
            };
            CWnd* const pThis = pWrapper.get();
            pThis->CreateControl(CLSID_FakeControl, nullptr, kShown, kPlace, pHost.get(),
                                 IDC_HOSTED);
            if (pWrapper != nullptr && pWrapper->m_hWnd != nullptr) {
                pThis->MoveWindow(0, 0, 9, 9);
            }
            if (pWrapper != nullptr) {
                try {
                    pThis->InvokeHelper(5, DISPATCH_METHOD, VT_EMPTY, nullptr, nullptr);
                } catch (COleException* e) {
                    e->Delete();
                }
            }
            if (pWrapper != nullptr) {
                pThis->DestroyWindow();
            }
            EXPECT_TRUE(bDone) << pszStep;
            EXPECT_EQ(m_class.m_nAlive, 0) << pszStep << bParent;
        }
    }
}

TEST_F(ControlHosting, SavedStateComesFromStreamOrStorage_NewOnesFromNowhere) {
    for (const bool bStorage : {false, true}) {
        m_class.m_bStorage = bStorage;
        CMemFile file;
        file.Write("xxstate", 7);
        file.Seek(2, CFile::begin);
        AfxComPtr<ILockBytes> pBytes;
        if (bStorage) {
            AfxComPtr<IStorage> pStorage;
            AfxComPtr<IStream> pStream;
            HGLOBAL hBytes = nullptr;
            ::CreateILockBytesOnHGlobal(nullptr, FALSE, pBytes.Put());
            constexpr DWORD kMode = STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
            ::StgCreateDocfileOnILockBytes(pBytes.Get(), kMode, 0, pStorage.Put());
            pStorage->CreateStream(L"State", kMode, 0, 0, pStream.Put());
            pStream->Write("state", 5, nullptr);
            pStream.Reset();
            pStorage.Reset();
            ::GetHGlobalFromILockBytes(pBytes.Get(), &hBytes);
            file.Write(::GlobalLock(hBytes), static_cast<UINT>(::GlobalSize(hBytes)));
            ::GlobalUnlock(hBytes);
            file.Seek(2, CFile::begin);
        }
        {
            CWnd loaded;
            ASSERT_TRUE(Create(loaded, kShown, &file, bStorage));
            EXPECT_EQ(m_class.m_control->m_strState, "state");
            CWnd wrong;
            file.SeekToBegin();
            EXPECT_FALSE(Create(wrong, kShown, &file, !bStorage)) << "it is of the other kind";
        }
        CWnd made;
        EXPECT_TRUE(Create(made));
        EXPECT_EQ(m_class.Count(bStorage ? "new storage" : "new"), 1);
    }
}

TEST_F(ControlHosting, LicenceKeyAndOwnSize) {
    m_class.m_strLicence = L"key";
    CWnd refused;
    EXPECT_FALSE(Create(refused));
    CWnd wrapper;
    const COleVariant key = COleVariant("key");
    const CPoint point(3, 4);
    ASSERT_TRUE(wrapper.CreateControl(CLSID_FakeControl, nullptr, kShown, &point, nullptr, &m_host,
                                      IDC_HOSTED, nullptr, FALSE, V_BSTR(&key)));
    EXPECT_EQ(wrapper.m_pCtrlSite->m_rect, CRect(point, CSize(96, 48)));
}

TEST_F(ControlHosting, BothSidesMayMoveIt) {
    CWnd wrapper;
    ASSERT_TRUE(Create(wrapper));
    auto where = [&] {
        CRect rect;
        wrapper.GetWindowRect(rect);
        m_host.ScreenToClient(rect);
        EXPECT_EQ(wrapper.m_pCtrlSite->m_rect, rect);
        return rect;
    };
    wrapper.MoveWindow(1, 2, 96, 48);
    EXPECT_EQ(m_class.m_steps.back(), "rect 1 2 96 48");
    EXPECT_EQ(m_class.Count("extent 2540 1270"), 1);
    ::SetWindowPos(wrapper.m_hWnd, nullptr, 5, 6, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(m_class.m_steps.back(), "rect 5 6 96 48") << "and no extent, since it keeps its size";
    const CRect rcWish(7, 8, 57, 38);
    m_class.m_control->SiteAs<IOleInPlaceSite>()->OnPosRectChange(rcWish);
    EXPECT_EQ(where(), rcWish);
    m_class.m_hook = [](const std::string& step) {
        return step.starts_with("extent") ? E_FAIL : S_OK;
    };
    wrapper.MoveWindow(0, 0, 200, 200);
    EXPECT_EQ(where(), CRect(0, 0, 50, 30)) << "one that keeps its size";
}

TEST_F(ControlHosting, EventsReachTheWrapperThenTheParent_NotWhileItIsMade) {
    Wrapper wrapper;
    m_class.m_hook = [&](const std::string& step) {
        return step == "verb -5" ? m_class.m_control->Fire(1) : S_OK;
    };
    ASSERT_TRUE(Create(wrapper));
    FakeControl& control = *m_class.m_control;
    EXPECT_TRUE(m_host.m_events.empty());
    control.Fire(9, {COleVariant(1L)});
    EXPECT_EQ(wrapper.m_nReflected, 1);
    EXPECT_EQ(m_host.m_events, std::vector<DISPID>{9});
    wrapper.m_bTakes = true;
    control.Fire(9, {COleVariant(1L)});
    control.TellChanged(11);
    m_host.m_onEvent = [](AFX_EVENT& event) { event.m_bPropChanged = FALSE; };
    EXPECT_EQ(control.AskToChange(12), S_FALSE);
    EXPECT_EQ(m_host.m_events, (std::vector<DISPID>{9, 11, 12}));
    m_host.m_onEvent = [](AFX_EVENT&) { AfxThrowUserException(); };
    EXPECT_TRUE(FAILED(control.Fire(1))) << "the exception stays here";
    TheTestApp().Forget();
    // The handler takes the control away, whose call is under way.
    const AfxComPtr<FakeControl> stay(&control);
    m_host.m_onEvent = [&](AFX_EVENT&) { wrapper.DestroyWindow(); };
    control.Fire(1);
    EXPECT_EQ(control.m_pEventSink.Get(), nullptr);
    ExpectNothingLeft(wrapper, 1);
}

TEST_F(ControlHosting, SiteOutlivesItsWindow_AndFailsThen) {
    CWnd wrapper;
    ASSERT_TRUE(Create(wrapper));
    const auto pSite = m_class.m_control->SiteAs<IOleInPlaceSite>();
    const auto pClient = m_class.m_control->SiteAs<IOleClientSite>();
    AfxComPtr<IOleContainer> pContainer;
    ASSERT_EQ(pClient->GetContainer(pContainer.Put()), S_OK);
    const AfxComPtr<IDispatch> pSink = m_class.m_control->m_pEventSink;
    m_host.DestroyWindow();
    HWND hWnd = m_host.m_hWnd;
    EXPECT_TRUE(FAILED(pSite->GetWindow(&hWnd)));
    EXPECT_TRUE(FAILED(pContainer.As<IOleInPlaceFrame>()->GetWindow(&hWnd)));
    EXPECT_TRUE(FAILED(pSite->OnPosRectChange(kPlace)));
    EXPECT_TRUE(FAILED(pSite->OnInPlaceDeactivate()));
    DISPPARAMS none = {};
    EXPECT_EQ(pSink->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              S_OK);
    EXPECT_EQ(m_class.m_nAlive, 0);
}

TEST_F(ControlHosting, ControlMayLeaveItsWindowAndMakeAnother) {
    CWnd wrapper;
    ASSERT_TRUE(Create(wrapper));
    const auto pSite = m_class.m_control->SiteAs<IOleInPlaceSite>();
    pSite->OnInPlaceDeactivate();
    EXPECT_EQ(wrapper.m_hWnd, nullptr);
    m_class.m_control->DropWindow();
    wrapper.m_pCtrlSite->DoVerb(OLEIVERB_UIACTIVATE);
    EXPECT_EQ(wrapper.m_hWnd, m_class.m_control->m_hWnd);
    // A window that goes without a word takes the control along.
    const AfxComPtr<FakeControl> stay(m_class.m_control);
    stay->DropWindow();
    EXPECT_EQ(wrapper.m_pCtrlSite, nullptr);
    EXPECT_EQ(m_class.Count("close"), 1);
}

TEST_F(ControlHosting, AmbientPropertiesComeFromTheWindow) {
    CWnd wrapper;
    ASSERT_TRUE(Create(wrapper));
    FakeControl& control = *m_class.m_control;
    LOGFONT log = {};
    log.lfHeight = 150;
    log.lfItalic = TRUE;
    m_host.m_font.CreatePointFontIndirect(&log);
    const COleVariant ambientFont = control.Ambient(DISPID_AMBIENT_FONT);
    ASSERT_EQ(ambientFont.vt, VT_DISPATCH);
    COleDispatchDriver driver(V_DISPATCH(&ambientFont), FALSE);
    BOOL bItalic = FALSE;
    CY cySize = {};
    driver.GetProperty(DISPID_FONT_ITALIC, VT_BOOL, &bItalic);
    driver.GetProperty(DISPID_FONT_SIZE, VT_CY, &cySize);
    EXPECT_TRUE(bItalic);
    EXPECT_NEAR(static_cast<double>(cySize.int64), 150000, 10000) << "as near as the face comes";
    EXPECT_EQ(control.Ambient(DISPID_AMBIENT_USERMODE).boolVal, VARIANT_TRUE);
    EXPECT_EQ(control.Ambient(DISPID_AMBIENT_SHOWHATCHING).boolVal, VARIANT_FALSE);
    EXPECT_EQ(control.Ambient(12345).vt, VT_EMPTY);
    m_host.m_ambient = {{DISPID_AMBIENT_BACKCOLOR, 0x123456}, {12345, 7}};
    EXPECT_EQ(control.Ambient(DISPID_AMBIENT_BACKCOLOR).lVal, 0x123456);
    EXPECT_EQ(control.Ambient(12345).lVal, 7);
    // Pixels are the container's units.
    POINTL himetric = {2540, 1270};
    POINTF pixels = {};
    control.SiteAs<IOleControlSite>()->TransformCoords(
        &himetric, &pixels, XFORMCOORDS_HIMETRICTOCONTAINER | XFORMCOORDS_SIZE);
    EXPECT_EQ(pixels.x, 96);
    EXPECT_EQ(pixels.y, 48);
}

TEST_F(ControlHosting, FocusAndKeys) {
    m_class.m_mnemonics = {{FALT, 'k', 1}};
    CWnd wrapper;
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(200, 0, 300, 20), &m_host, 2);
    ASSERT_TRUE(Create(wrapper));
    COleControlContainer& container = *m_host.m_pCtrlCont;
    ASSERT_TRUE(ClickAt(wrapper.m_hWnd, CPoint(5, 5)));
    EXPECT_EQ(container.m_pSiteUIActive, wrapper.m_pCtrlSite);
    ASSERT_TRUE(LoseFocusToOtherProgram());
    EXPECT_EQ(container.m_pSiteUIActive, wrapper.m_pCtrlSite) << "the focus comes back";
    ASSERT_TRUE(BringToFront(m_host.m_hWnd));
    wrapper.SetFocus();
    TypeKey('X');
    EXPECT_GE(m_class.Count("translate 88"), 1);
    edit.SetFocus();
    EXPECT_EQ(container.m_pSiteUIActive, nullptr);
    EXPECT_EQ(m_class.Count("ui deactivate"), 1);
    TypeKey('K', false, false, true);
    EXPECT_EQ(m_class.Count("mnemonic"), 1);
    EXPECT_EQ(CWnd::GetFocus(), &wrapper);
}

TEST_F(ControlHosting, ControlsWithoutAWindow) {
    m_class.m_dwMiscStatus = OLEMISC_INVISIBLEATRUNTIME;
    {
        CWnd wrapper;
        ASSERT_TRUE(Create(wrapper));
        EXPECT_EQ(wrapper.m_hWnd, nullptr);
        EXPECT_EQ(m_host.GetDlgItem(IDC_HOSTED), &wrapper);
        m_class.m_control->Fire(1);
        EXPECT_EQ(m_host.m_events.size(), 1u);
    }
    EXPECT_EQ(m_class.m_nAlive, 0);
}

/// Its own code gets memory; only ours has none.
TEST_F(ControlHosting, WithoutMemoryNothingIsLeft) {
    CWnd wrapper;
    BOOL bMade = FALSE;
    const int nRefused = RefuseEachAllocation(
        FailingHeap::kJustOne,
        [&] {
            try {
                bMade = wrapper.CreateControl(kBrowser, nullptr, kShown, kPlace, &m_host, 1);
            } catch (CException* e) {
                e->Delete();
            } catch (const std::bad_alloc&) {
            }
        },
        [&](int nSucceeding) {
            EXPECT_EQ(wrapper.m_pCtrlSite != nullptr, bMade != FALSE) << nSucceeding;
            EXPECT_EQ(wrapper.m_hWnd != nullptr, bMade != FALSE) << nSucceeding;
            wrapper.DestroyWindow();
            bMade = FALSE;
        });
    EXPECT_GE(nRefused, 3);
}

// The platform's browser: a document is not shown where its engine is switched off, but the control
// has its members and tells its events.
TEST_F(ControlHosting, BrowserOfThePlatformAnswersAndTells) {
    constexpr DISPID kNavigate = 104;
    constexpr DISPID kVisible = 402;
    constexpr DISPID kBeforeNavigate = 250;
    constexpr DISPID kOnVisible = 254;
    CWnd browser;
    ASSERT_TRUE(browser.CreateControl(kBrowser, nullptr, kShown, kPlace, &m_host, IDC_HOSTED));
    CRect rect;
    browser.GetWindowRect(rect);
    m_host.ScreenToClient(rect);
    EXPECT_EQ(rect, kPlace);
    BOOL bVisible = FALSE;
    browser.GetProperty(kVisible, VT_BOOL, &bVisible);
    EXPECT_TRUE(bVisible);
    browser.SetProperty(kVisible, VT_BOOL, FALSE);
    browser.GetProperty(kVisible, VT_BOOL, &bVisible);
    EXPECT_FALSE(bVisible);
    EXPECT_EQ(m_host.m_events, std::vector<DISPID>{kOnVisible});
    COleVariant none;
    V_VT(&none) = VT_ERROR;
    V_ERROR(&none) = DISP_E_PARAMNOTFOUND;
    static const BYTE kParams[] = VTS_BSTR VTS_VARIANT VTS_VARIANT VTS_VARIANT VTS_VARIANT;
    CString strUrl;
    m_host.m_onEvent = [&](AFX_EVENT& event) {
        if (event.m_dispid == kBeforeNavigate && event.m_pDispParams->cArgs == 7) {
            COleVariant url;
            ::VariantCopyInd(&url, &event.m_pDispParams->rgvarg[5]);
            strUrl = V_BSTR(&url);
        }
    };
    browser.InvokeHelper(kNavigate, DISPATCH_METHOD, VT_EMPTY, nullptr, kParams, "about:blank",
                         &none, &none, &none, &none);
    EXPECT_TRUE(PumpUntil([&] { return !strUrl.IsEmpty(); }));
    EXPECT_EQ(strUrl, "about:blank");
}

TEST_F(ControlHosting, Monkey) {
    std::unique_ptr<CWnd> pWrapper;
    auto act = [&](auto deed) {
        return [&pWrapper, deed](int n) {
            if (pWrapper->m_hWnd != nullptr) {
                deed(*pWrapper, n);
            }
        };
    };
    PlayInAnyOrder<CWnd>(pWrapper,
                         [&] {
                             pWrapper = std::make_unique<CWnd>();
                             ASSERT_TRUE(Create(*pWrapper));
                         },
                         {
                             act([](CWnd& w, int n) { w.MoveWindow(n, n, n, n); }),
                             act([](CWnd& w, int n) { w.ShowWindow(n % 2); }),
                             act([](CWnd& w, int n) { w.EnableWindow(n % 2); }),
                             act([](CWnd& w, int) { w.SetFocus(); }),
                             act([](CWnd& w, int) { w.DestroyWindow(); }),
                             act([](CWnd& w, int n) {
                                 constexpr UINT kMessages[] = {
                                     WM_SIZE,       WM_SETFOCUS, WM_KILLFOCUS, WM_CLOSE,
                                     WM_GETDLGCODE, BM_CLICK,    BM_SETSTYLE,  WM_ENABLE};
                                 w.SendMessage(kMessages[abs(n) % _countof(kMessages)]);
                             }),
                             act([&](CWnd&, int n) { m_class.m_control->Fire(n); }),
                             act([&](CWnd&, int) { m_class.m_control->InPlaceDeactivate(); }),
                         });
    EXPECT_EQ(m_class.m_nAlive, 0);
}

}  // namespace
