// The controls of the module under callers that ask anything, streams that hold anything, and
// containers that come and go.

#include "ocx/class_ids.h"
#include "ocx/com.h"
#include "ocx/qvocx.h"
#include "support/failing_heap.h"
#include "support/monkey.h"
#include "support/ole_site.h"
#include "support/pump.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <olectl.h>
#include <random>

namespace {

using ocx::Ref;

struct Kind {
    CLSID clsid;
    const char* pszName;
};

class ControlTest : public testing::TestWithParam<Kind> {
protected:
    ControlTest() { EXPECT_EQ(QVRegisterControls(), S_OK); }
    ~ControlTest() override {
        QVRevokeControls();
        EXPECT_EQ(QVOcxObjectCount(), 0);
    }
};

constexpr RECT kPlace = {10, 10, 210, 110};

/// A value of some kind, often one that does not fit; not the control itself, which would own
/// itself then. By reference it leads to `pPlace`, if there is one.
VARIANT RandomValue(std::mt19937& random, IDispatch* pObject, VARIANT* pPlace) {
    static constexpr VARTYPE kTypes[] = {
        VT_I4, VT_I4,    VT_I4,   VT_I2,    VT_BOOL,     VT_BSTR,    VT_BSTR, VT_R4,   VT_R8,
        VT_CY, VT_EMPTY, VT_NULL, VT_ERROR, VT_DISPATCH, VT_UNKNOWN, VT_UI1,  VT_DATE, VT_I8};
    static constexpr LONG kNumbers[] = {-1,    5,      10,      100,        1440,
                                        32767, -32768, 1000000, 0x7FFFFFFF, -0x7FFFFFFF - 1};
    static constexpr const wchar_t* kTexts[] = {
        nullptr, L"", L"1", L"-7", L"1e400", L"a\tb\rc", L"<1|>2|^3;A|B", L"\xD800", L"Arial"};
    const LONG nNumber = random() % 2 == 0 ? static_cast<LONG>(random() % 20)
                                           : kNumbers[random() % std::size(kNumbers)];
    VARIANT value = {};
    value.vt = kTypes[random() % std::size(kTypes)];
    switch (value.vt) {
        case VT_BSTR:
            value.bstrVal = ::SysAllocString(kTexts[random() % std::size(kTexts)]);
            break;
        case VT_DISPATCH:
        case VT_UNKNOWN:
            if (random() % 2 == 0) {
                (value.pdispVal = pObject)->AddRef();
            }
            break;
        case VT_ERROR:
            value.scode = DISP_E_PARAMNOTFOUND;
            break;
        case VT_R4:
            value.fltVal = static_cast<float>(nNumber);
            break;
        case VT_R8:
        case VT_DATE:
            value.dblVal = nNumber * 1e9;
            break;
        default:
            value.lVal = nNumber;
            break;
    }
    if (pPlace != nullptr && random() % 3 == 0) {
        ::VariantClear(pPlace);
        *pPlace = value;
        const bool bWhole = random() % 2 == 0 || value.vt <= VT_NULL;
        value.vt = VT_BYREF | (bWhole ? static_cast<VARTYPE>(VT_VARIANT) : pPlace->vt);
        value.byref = bWhole ? static_cast<void*>(pPlace) : &pPlace->lVal;
        if (random() % 8 == 0) {
            value.byref = nullptr;
        }
    }
    return value;
}

DISPID RandomId(std::mt19937& random) {
    switch (random() % 8) {
        case 0:
            return -620 + static_cast<DISPID>(random() % 130);
        case 1:
            return 1000 + static_cast<DISPID>(random() % 12);
        case 2:
            return static_cast<DISPID>(random());
        default:
            return static_cast<DISPID>(random() % 155);
    }
}

/// Saves the state, breaks some of it, and has it loaded.
void LoadBroken(IUnknown* pObject, std::mt19937& random) {
    const auto persist = Ref<IPersistStreamInit>::Of(pObject);
    Ref<IStream> stream;
    ::CreateStreamOnHGlobal(nullptr, TRUE, stream.Out());
    persist->Save(stream.Get(), FALSE);
    ULARGE_INTEGER nSize = {};
    LARGE_INTEGER nTo = {};
    stream->Seek(nTo, STREAM_SEEK_END, &nSize);
    for (unsigned n = random() % 4; n > 0 && nSize.QuadPart > 0; --n) {
        nTo.QuadPart = random() % nSize.QuadPart;
        stream->Seek(nTo, STREAM_SEEK_SET, nullptr);
        stream->Write(random() % 2 == 0 ? "\xFF" : "\x03", 1, nullptr);
    }
    nSize.QuadPart -= random() % 3 == 0 ? random() % (nSize.QuadPart + 1) : 0;
    stream->SetSize(nSize);
    nTo.QuadPart = 0;
    stream->Seek(nTo, STREAM_SEEK_SET, nullptr);
    EXPECT_NE(persist->Load(stream.Get()), E_UNEXPECTED);
}

TEST_P(ControlTest, AnyCallsInAnyOrderMonkey) {
    std::mt19937 random = MonkeyRandom(15);
    std::unique_ptr<OleSite> pSite;
    VARIANT place = {};
    // A font, which some properties take.
    FONTDESC font = {sizeof font, const_cast<wchar_t*>(L"Arial"), {}, FW_NORMAL, 0, 0, 0, 0};
    font.cySize.int64 = 90000;
    Ref<IDispatch> object;
    ::OleCreateFontIndirect(&font, IID_IDispatch, reinterpret_cast<void**>(object.Out()));
    for (int i = 0; i < MonkeySteps(); ++i) {
        if (pSite == nullptr || random() % 200 == 0) {
            pSite = std::make_unique<OleSite>(GetParam().clsid);
            ASSERT_NE(pSite->Object(), nullptr);
            pSite->m_onEvent = [&random, &site = *pSite](DISPID, DISPPARAMS&) {
                if (random() % 60 == 0) {
                    site.Close();
                } else if (random() % 60 == 0) {
                    ::DestroyWindow(site.Frame());
                }
            };
        }
        if (pSite->Window() == nullptr && ::IsWindow(pSite->Frame())) {
            pSite->Activate(kPlace, random() % 2 == 0 ? OLEIVERB_SHOW : OLEIVERB_INPLACEACTIVATE);
        }
        std::vector<VARIANT> values;
        for (unsigned n = random() % (random() % 8 == 0 ? 6 : 3); n > 0; --n) {
            values.push_back(RandomValue(random, object.Get(), n == 1 ? &place : nullptr));
        }
        DISPID idNamed =
            random() % 10 == 0 ? static_cast<DISPID>(random() % 3) - 4 : DISPID_PROPERTYPUT;
        const WORD wFlags = 1 << random() % 4 | (random() % 6 == 0 ? random() % 16 : 0);
        const bool bPut = (wFlags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
        const auto nValues = static_cast<UINT>(values.size());
        const UINT nNamed = (bPut ? 1U : 0U) ^ (random() % 12 == 0 ? 1U : 0U);
        DISPPARAMS params = {values.data(), &idNamed, nValues, std::min(nNamed, nValues)};
        VARIANT result = {};
        EXCEPINFO info = {};
        UINT nArgument = 0;
        const DISPID id = RandomId(random);
        const HRESULT hr = pSite->Dispatch()->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, wFlags,
                                                     &params, random() % 4 != 0 ? &result : nullptr,
                                                     random() % 4 != 0 ? &info : nullptr,
                                                     random() % 4 != 0 ? &nArgument : nullptr);
        EXPECT_TRUE(hr != E_UNEXPECTED && (SUCCEEDED(hr) || result.vt == VT_EMPTY))
            << "member " << id << " gives " << std::hex << hr;
        ::VariantClear(&result);
        for (VARIANT& value : values) {
            ::VariantClear(&value);
        }
        ::SysFreeString(info.bstrDescription);
        ::SysFreeString(info.bstrSource);
        const HWND hWnd = pSite->Window();
        switch (random() % 40) {
            case 0:
                LoadBroken(pSite->Object(), random);
                break;
            case 1:
                ::SetWindowPos(hWnd, nullptr, 0, 0, static_cast<int>(random() % 300),
                               static_cast<int>(random() % 200), SWP_NOZORDER | SWP_NOACTIVATE);
                break;
            case 2:
                ::SendMessageW(::GetFocus(), WM_KEYDOWN, VK_PRIOR + random() % 14, 0);
                break;
            case 3:
                ::SendMessageW(::GetFocus(), WM_CHAR, random() % 128, 0);
                break;
            case 4:
                ::SendMessageW(hWnd, WM_LBUTTONDOWN + random() % 6, 0,
                               MAKELPARAM(random() % 200, random() % 100));
                break;
            case 5:
                PumpPending();
                break;
            default:
                break;
        }
    }
    ::VariantClear(&place);
}

TEST_P(ControlTest, ThousandControlsComeAndGo_AndLeaveNothing) {
    DWORD nBefore = 0;
    for (int i = 0; i < 1040; ++i) {
        if (i == 40) {  // what is made once is there
            ::GetProcessHandleCount(::GetCurrentProcess(), &nBefore);
        }
        OleSite site(GetParam().clsid);
        site.m_bHidden = true;
        ASSERT_EQ(site.Activate(kPlace, i % 2 == 0 ? OLEIVERB_SHOW : OLEIVERB_INPLACEACTIVATE),
                  S_OK);
        ASSERT_NE(site.Window(), nullptr);
        if (i % 3 != 0) {
            ::DestroyWindow(site.Frame());
        }
        site.Close();
        site.LetGo();
        ASSERT_EQ(site.References(), 0);
        ASSERT_EQ(QVOcxObjectCount(), 0);
    }
    DWORD nAfter = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &nAfter);
    EXPECT_EQ(nAfter, nBefore);
}

TEST_P(ControlTest, ItsEndInEachEvent) {
    const std::function<void(OleSite&)> ends[] = {
        [](OleSite& site) { site.Close(); },
        [](OleSite& site) { site.LetGo(); },
        [](OleSite& site) { ::DestroyWindow(site.Frame()); },
    };
    for (const auto& end : ends) {
        std::size_t nEvents = 0;
        for (std::size_t nEnd = 0; nEnd <= nEvents; ++nEnd) {
            OleSite site(GetParam().clsid);
            site.Put(12, 3);  // tabs of the one that has tabs
            ASSERT_EQ(site.Activate(kPlace, OLEIVERB_SHOW), S_OK);
            site.m_events.clear();
            site.m_onEvent = [&](DISPID, DISPPARAMS&) {
                if (site.m_events.size() == nEnd + 1) {
                    end(site);
                }
            };
            for (const UINT nMessage :
                 {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_KEYDOWN, WM_CHAR, WM_KEYUP}) {
                ::SendMessageW(::GetFocus(), nMessage, nMessage < WM_KEYLAST ? VK_RIGHT : 0,
                               MAKELPARAM(40, 8));
            }
            nEvents = std::max(nEvents, site.m_events.size());
        }
        EXPECT_GE(nEvents, 6U);
    }
}

TEST_P(ControlTest, WithoutMemory_CallsFail_AndNothingIsLeft) {
    const auto refuse = [](FailingHeap::Mode mode) {
        return RefuseEachAllocation(
            mode,
            [] {
                OleSite site(GetParam().clsid);
                site.m_bHidden = true;
                if (site.Object() != nullptr && SUCCEEDED(site.Activate(kPlace))) {
                    ::SetWindowTextW(site.Window(), L"a");
                    site.Put(DISPID_BACKCOLOR, L"1");
                    ::UpdateWindow(site.Window());
                }
            },
            [](int) { ASSERT_EQ(QVOcxObjectCount(), 0); });
    };
    EXPECT_GT(refuse(FailingHeap::kAllLater), 0);
    EXPECT_GT(refuse(FailingHeap::kJustOne), 0);
}

TEST_P(ControlTest, AContainerThatKnowsNothingOfActivationGetsAPicture) {
    OleSite site(GetParam().clsid, false);
    EXPECT_TRUE(FAILED(site.Activate(kPlace)));
    EXPECT_EQ(site.Window(), nullptr);
    SIZEL size = {5000, 1500};
    EXPECT_EQ(site.Object()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
    CClientDC dc(CWnd::FromHandle(site.Frame()));
    ::ShowWindow(site.Frame(), SW_SHOWNA);
    dc.FillSolidRect(0, 0, 200, 60, RGB(1, 2, 3));
    const RECT rect = {0, 0, 200, 60};
    EXPECT_EQ(::OleDraw(site.Object(), DVASPECT_CONTENT, dc, &rect), S_OK);
    EXPECT_NE(dc.GetPixel(100, 30), RGB(1, 2, 3));
}

INSTANTIATE_TEST_SUITE_P(Controls, ControlTest,
                         testing::Values(Kind{ocx::kTabStripClass, "TabStrip"},
                                         Kind{ocx::kTextFieldClass, "TextField"},
                                         Kind{ocx::kFlexGridClass, "FlexGrid"}),
                         [](const auto& tested) { return tested.param.pszName; });

}  // namespace
