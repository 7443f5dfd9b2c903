// What the controls of the module have in common, played through the tab strip.

#include "ocx/class_ids.h"
#include "ocx/com.h"
#include "ocx/tab_strip_members.h"
#include "support/failing_heap.h"
#include "support/ole_site.h"
#include "support/picture.h"

#include <gtest/gtest.h>
#include <olectl.h>
#include <vector>

namespace {

using ocx::Ref;
using Id = ocx::TabStripId;

VARIANT Value(LONG n, VARTYPE vt = VT_I4) {
    VARIANT value = {};
    value.vt = vt;
    value.lVal = n;
    return value;
}

class OcxControlTest : public testing::Test {
protected:
    OcxControlTest() { QVRegisterControls(); }
    ~OcxControlTest() override {
        QVRevokeControls();
        EXPECT_EQ(QVOcxObjectCount(), m_nObjects);
    }
    const long m_nObjects = QVOcxObjectCount();
};

using Variants = std::vector<VARIANT>;  // the last argument first, as in a call

TEST_F(OcxControlTest, CallsThatDoNotFitAMemberAreRefusedEachInItsWay) {
    const VARIANT object = Value(0, VT_DISPATCH);
    const VARIANT nothing = Value(0, VT_BYREF | VT_I4);
    const struct {
        const char* pszCase;
        DISPID id;
        WORD wFlags;
        Variants arguments;
        bool bNamed;
        HRESULT hr;
        UINT nArgument;
    } cases[] = {
        {"no such id", 4711, DISPATCH_METHOD, {}, false, DISP_E_MEMBERNOTFOUND, 99},
        {"a property as a method",
         Id::TabCount,
         DISPATCH_METHOD,
         {},
         false,
         DISP_E_MEMBERNOTFOUND,
         99},
        {"asked for both",
         Id::TabCount,
         DISPATCH_METHOD | DISPATCH_PROPERTYGET,
         {},
         false,
         S_OK,
         99},
        {"an index too many",
         Id::TabCount,
         DISPATCH_PROPERTYGET,
         {Value(0)},
         false,
         DISP_E_BADPARAMCOUNT,
         99},
        {"no value", Id::TabCount, DISPATCH_PROPERTYPUT, {}, true, DISP_E_BADPARAMCOUNT, 99},
        {"value without its name",
         Id::TabCount,
         DISPATCH_PROPERTYPUT,
         {Value(1)},
         false,
         DISP_E_PARAMNOTOPTIONAL,
         99},
        {"no number", Id::TabCount, DISPATCH_PROPERTYPUT, {object}, true, DISP_E_TYPEMISMATCH, 0},
        {"null reference",
         Id::TabHeight,
         DISPATCH_PROPERTYPUT,
         {nothing},
         true,
         DISP_E_TYPEMISMATCH,
         0},
        {"too large", Id::TabCount, DISPATCH_PROPERTYPUT, {Value(40000)}, true, DISP_E_OVERFLOW, 0},
        {"out of limits",
         Id::Orientation,
         DISPATCH_PROPERTYPUT,
         {Value(4)},
         true,
         DISP_E_EXCEPTION,
         0},
        {"only to read",
         Id::ClientLeft,
         DISPATCH_PROPERTYPUT,
         {Value(4)},
         true,
         DISP_E_EXCEPTION,
         0},
        {"second argument",
         Id::TabSetActiveTabPage,
         DISPATCH_METHOD,
         {object, Value(0)},
         false,
         DISP_E_TYPEMISMATCH,
         0},
        {"not honoured", Id::TabRemoveChild, DISPATCH_METHOD, {object}, false, E_NOTIMPL, 99},
    };
    OleSite site(ocx::kTabStripClass);
    for (const auto& one : cases) {
        SCOPED_TRACE(one.pszCase);
        Variants arguments = one.arguments;
        DISPID idNamed = DISPID_PROPERTYPUT;
        DISPPARAMS params = {arguments.data(), &idNamed, static_cast<UINT>(arguments.size()),
                             one.bNamed ? 1U : 0U};
        EXCEPINFO info = {};
        UINT nArgument = 99;
        VARIANT result = Value(7);
        EXPECT_EQ(site.Dispatch()->Invoke(one.id, IID_NULL, LOCALE_USER_DEFAULT, one.wFlags,
                                          &params, &result, &info, &nArgument),
                  one.hr);
        EXPECT_EQ(nArgument, one.nArgument);
        EXPECT_EQ(info.bstrDescription != nullptr, one.hr == DISP_E_EXCEPTION);
        ::SysFreeString(info.bstrDescription);
        ::SysFreeString(info.bstrSource);
    }
    wchar_t szName[] = L"tabcount";
    LPOLESTR pszName = szName;
    DISPID id = 0;
    EXPECT_EQ(site.Dispatch()->GetIDsOfNames(IID_NULL, &pszName, 1, LOCALE_USER_DEFAULT, &id),
              S_OK);
    EXPECT_EQ(id, Id::TabCount);
}

void FillState(OleSite& site) {
    site.Put(Id::TabCount, 3);
    site.Put(Id::Tab, 1);
    site.Put(Id::TabCaption, L"zwei\u00FC\u6F22");
    site.Put(Id::TabTag, L"");
    site.Put(Id::TabID, 70000);
    site.Put(Id::FontItalic, TRUE);
    site.Put(Id::FontSize, 14);
    site.Put(Id::BookColor, 0x123456);
    site.Put(Id::DataField, L"field");
    site.Put(Id::ActiveTab, 2);
}

void ExpectState(OleSite& site) {
    EXPECT_EQ(site.Number(Id::TabCount), 3);
    EXPECT_EQ(site.Number(Id::ActiveTab), 2);
    EXPECT_EQ(site.Number(Id::Tab), 1);
    EXPECT_EQ(site.Text(Id::TabCaption), L"zwei\u00FC\u6F22");
    EXPECT_EQ(site.Number(Id::TabID), 70000);
    EXPECT_EQ(site.Number(Id::FontItalic), VARIANT_TRUE);
    EXPECT_NEAR(site.Number(Id::FontSize), 14, 1);
    EXPECT_EQ(site.Number(Id::BookColor), 0x123456);
    EXPECT_EQ(site.Text(Id::DataField), L"field");
}

TEST_F(OcxControlTest, StateComesBackFromAStreamAndBadStreamsChangeNothing) {
    OleSite from(ocx::kTabStripClass);
    FillState(from);
    Ref<IStream> stream;
    ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, stream.Out()), S_OK);
    ASSERT_EQ(Ref<IPersistStreamInit>::Of(from.Object())->Save(stream.Get(), TRUE), S_OK);
    HGLOBAL hBytes = nullptr;
    ::GetHGlobalFromStream(stream.Get(), &hBytes);
    STATSTG stat = {};
    stream->Stat(&stat, STATFLAG_NONAME);
    const auto* pBytes = static_cast<const BYTE*>(::GlobalLock(hBytes));
    const std::vector<BYTE> bytes(pBytes, pBytes + stat.cbSize.LowPart);
    ::GlobalUnlock(hBytes);

    OleSite to(ocx::kTabStripClass);
    const auto load = [&](const std::vector<BYTE>& some) {
        Ref<IStream> source;
        ::CreateStreamOnHGlobal(nullptr, TRUE, source.Out());
        source->Write(some.data(), static_cast<ULONG>(some.size()), nullptr);
        source->Seek({}, STREAM_SEEK_SET, nullptr);
        return Ref<IPersistStreamInit>::Of(to.Object())->Load(source.Get());
    };
    ASSERT_EQ(load(bytes), S_OK);
    ExpectState(to);
    EXPECT_EQ(to.m_events, std::vector<DISPID>{}) << "loading is no event";
    for (size_t nLength = 0; nLength < bytes.size(); ++nLength) {
        EXPECT_EQ(load({bytes.begin(), bytes.begin() + nLength}), E_FAIL) << nLength;
    }
    // Anything in any byte is refused or taken, and the control can be asked afterwards.
    for (size_t n = 0; n < bytes.size(); ++n) {
        std::vector<BYTE> other = bytes;
        other[n] = static_cast<BYTE>(other[n] ^ (1 + n * 37 % 255));
        if (load(other) == E_FAIL) {
            continue;
        }
        EXPECT_GE(to.Number(Id::TabCount), 0);
        EXPECT_EQ(load(bytes), S_OK);
    }
    ExpectState(to);
}

TEST_F(OcxControlTest, SinksMayLeaveWhileOthersAreTold) {
    OleSite site(ocx::kTabStripClass);
    OleSite other(ocx::kTabStripClass);
    Ref<IConnectionPoint> point;
    ASSERT_EQ(Ref<IConnectionPointContainer>::Of(site.Object())
                  ->FindConnectionPoint(IID_IDispatch, point.Out()),
              S_OK);
    DWORD dwCookie = 0;
    ASSERT_EQ(point->Advise(static_cast<IDispatch*>(&other), &dwCookie), S_OK);
    site.m_onEvent = [&](DISPID, DISPPARAMS&) { point->Unadvise(dwCookie); };
    site.Put(Id::TabCount, 2);
    EXPECT_EQ(site.m_events.size(), 1U);
    EXPECT_EQ(other.m_events.size(), 0U);
    EXPECT_EQ(point->Unadvise(dwCookie), CONNECT_E_NOCONNECTION);
    Ref<IOleControl>::Of(site.Object())->FreezeEvents(TRUE);
    site.Put(Id::ActiveTab, 1);
    EXPECT_EQ(site.m_events.size(), 1U) << "frozen";
}

TEST_F(OcxControlTest, OneFontStandsBehindTheObjectAndItsParts) {
    OleSite site(ocx::kTabStripClass);
    VARIANT result = {};
    DISPPARAMS params = {};
    ASSERT_EQ(site.Dispatch()->Invoke(Id::Font, IID_NULL, 0, DISPATCH_PROPERTYGET, &params, &result,
                                      nullptr, nullptr),
              S_OK);
    const auto font = Ref<IFont>::Of(result.pdispVal);
    ::VariantClear(&result);
    ASSERT_TRUE(font);
    const LONG nHeight = site.Number(Id::ClientTop);
    site.Put(Id::TabCount, 1);
    const LONG nWithTab = site.Number(Id::ClientTop);
    EXPECT_GT(nWithTab, nHeight);
    CY size = {};
    size.int64 = 300000;
    font->put_Size(size);
    EXPECT_NEAR(site.Number(Id::FontSize), 30, 1) << "as the font could be made";
    EXPECT_GT(site.Number(Id::ClientTop), nWithTab) << "the control heard of it";
    EXPECT_EQ(site.Put(Id::FontSize, -1), ocx::kInvalidValue);
}

TEST_F(OcxControlTest, ContainersDrawItWhereTheyWantInWhateverUnits) {
    OleSite site(ocx::kTabStripClass);
    site.Put(Id::PageColor, 0x0000FF);
    SIZEL size = {2540, 2540};  // 96 pixels at 96 to an inch
    site.Object()->SetExtent(DVASPECT_CONTENT, &size);
    CClientDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 100, 100);
    CBitmap* pOld = dc.SelectObject(&bitmap);
    dc.PatBlt(0, 0, 100, 100, WHITENESS);
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(1000, 1000);
    dc.SetViewportExt(100, 100);
    const RECTL bounds = {200, 300, 800, 900};
    const auto view = Ref<IViewObject>::Of(site.Object());
    EXPECT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, &bounds, nullptr,
                         nullptr, 0),
              S_OK);
    EXPECT_EQ(dc.GetWindowExt(), CSize(1000, 1000));
    dc.SetMapMode(MM_TEXT);
    const Picture picture = Picture::Of(dc, CSize(100, 100));
    dc.SelectObject(pOld);
    const int nInside = picture.Count(0x0000FF, CRect(20, 30, 80, 90));
    EXPECT_GT(nInside, 50 * 50);
    EXPECT_EQ(picture.Count(0x0000FF), nInside) << "outside of its place";
}

TEST_F(OcxControlTest, KeysThatItNeedsComeToItAndOthersGoToTheContainer) {
    OleSite site(ocx::kTabStripClass);
    site.Put(Id::TabCount, 2);
    site.Activate({0, 0, 300, 200}, OLEIVERB_UIACTIVATE);
    const auto active = Ref<IOleInPlaceActiveObject>::Of(site.Object());
    MSG msg = {};
    msg.hwnd = site.Window();
    msg.message = WM_KEYDOWN;
    msg.wParam = VK_RIGHT;
    EXPECT_EQ(active->TranslateAccelerator(&msg), S_OK);
    EXPECT_EQ(site.Number(Id::ActiveTab), 1);
    msg.wParam = VK_F2;
    EXPECT_EQ(active->TranslateAccelerator(&msg), S_FALSE);

    site.Put(Id::TabCaption, L"&Old");
    CONTROLINFO info = {};
    info.cb = sizeof info;
    ASSERT_EQ(Ref<IOleControl>::Of(site.Object())->GetControlInfo(&info), S_OK);
    EXPECT_EQ(info.cAccel, 2) << "in both cases";
    ::DestroyAcceleratorTable(info.hAccel);
}

TEST_F(OcxControlTest, WantOfMemoryIsAnAnswerAndLeavesAWholeControl) {
    OleSite site(ocx::kTabStripClass);
    site.Activate({0, 0, 300, 200});
    LONG nCount = 0;
    const int nRefused = RefuseEachAllocation(
        FailingHeap::kJustOne,
        [&] {
            site.Put(Id::TabCount, ++nCount % 50 + 1);
            site.Put(Id::TabCaption, L"a caption that is longer than a small string");
            ::RedrawWindow(site.Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        },
        [&](int) {
            EXPECT_GE(site.Number(Id::TabCount), 0);
            EXPECT_LT(site.Number(Id::ActiveTab), std::max(site.Number(Id::TabCount), 1L));
        });
    EXPECT_GT(nRefused, 3);
    EXPECT_EQ(site.Put(Id::TabCount, 20), S_OK);
    EXPECT_EQ(site.Number(Id::TabCount), 20);
}

}  // namespace
