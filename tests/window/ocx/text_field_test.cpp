#include "ocx/class_ids.h"
#include "ocx/com.h"
#include "ocx/qvocx.h"
#include "ocx/text_field_members.h"
#include "support/ole_site.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"

#include <QVControls.h>
#include <gtest/gtest.h>
#include <olectl.h>

namespace {

using Id = ocx::TextFieldId;

constexpr DISPID kChange = 1;
constexpr RECT kPlace = {20, 20, 170, 50};

class TextFieldTest : public testing::Test {
protected:
    TextFieldTest() {
        QVRegisterControls();
        m_pSite = std::make_unique<OleSite>(ocx::kTextFieldClass);
        EXPECT_EQ(m_pSite->Activate(kPlace), S_OK);
    }
    ~TextFieldTest() override {
        m_pSite.reset();
        QVRevokeControls();
        EXPECT_EQ(QVOcxObjectCount(), 0);
    }
    OleSite& Site() { return *m_pSite; }
    HWND Edit() { return ::GetWindow(Site().Window(), GW_CHILD); }
    void Focus() {
        ASSERT_TRUE(BringToFront(Site().Frame()));
        ::SetFocus(Site().Window());
        ASSERT_EQ(::GetFocus(), Edit());
    }
    void PutOnClipboard(const wchar_t* psz) {
        ASSERT_TRUE(::OpenClipboard(Site().Frame()));
        ::EmptyClipboard();
        const size_t cb = (wcslen(psz) + 1) * sizeof(wchar_t);
        const HGLOBAL hData = ::GlobalAlloc(GMEM_MOVEABLE, cb);
        memcpy(::GlobalLock(hData), psz, cb);
        ::GlobalUnlock(hData);
        ::SetClipboardData(CF_UNICODETEXT, hData);
        ::CloseClipboard();
    }

    std::unique_ptr<OleSite> m_pSite;
};

TEST_F(TextFieldTest, WhatIsTypedAndPasted_IsHeldToTheRules) {
    const struct {
        DISPID id;
        const wchar_t* pszValue;
        const wchar_t* pszText;  // typed
        const wchar_t* pszPasted;
        const wchar_t* pszExpected;
    } cases[] = {
        {Id::AutoCase, L"1", L"ab c", L"\x00E4z", L"AB C\x00C4Z"},
        {Id::AutoCase, L"3", L"ab c", L" de'f", L"Ab C De'f"},
        {Id::CharValidationText, L"0-9", L"1a2", L"b3\r\n4", L"123"},
        {Id::MaxLength, L"3", L"ab", L"\xD83D\xDE00x", L"ab\xD83D\xDE00"},
        {Id::UserEntry, L"1", L"ab", L"x", L""},
        {Id::ControlType, L"2", L"ab", L"", L""},
        {Id::NoSpecialKeys, L"1", L"ab", L"x", L"ab"},
        {Id::MultiLine, L"-1", L"ab", L"\nc", L"ab\r\nc"},
    };
    for (const auto& c : cases) {
        m_pSite = std::make_unique<OleSite>(ocx::kTextFieldClass);
        ASSERT_EQ(Site().Put(c.id, c.pszValue), S_OK);
        ASSERT_EQ(Site().Activate(kPlace, OLEIVERB_UIACTIVATE), S_OK);
        ASSERT_TRUE(BringToFront(Site().Frame()));
        PutOnClipboard(c.pszPasted);
        TypeText(CString(c.pszText));
        TypeKey('V', false, true);
        EXPECT_EQ(Site().Text(Id::Text), c.pszExpected) << c.id << " " << c.pszValue;
        EXPECT_EQ(Site().Number(Id::DataChanged), *c.pszExpected != 0 ? -1 : 0);
    }
}

TEST_F(TextFieldTest, AKeyIsToldInItsEvents_WhichMayChangeIt) {
    Focus();
    Site().m_events.clear();
    TypeKey('A');
    EXPECT_EQ(Site().m_events,
              (std::vector<DISPID>{DISPID_KEYDOWN, DISPID_KEYPRESS, kChange, DISPID_KEYUP}));
    Site().m_onEvent = [](DISPID id, DISPPARAMS& params) {
        if (id == DISPID_KEYPRESS) {
            short& nKey = *params.rgvarg[0].piVal;
            nKey = nKey == 'b' ? 'x' : 0;
        }
    };
    TypeText("bc");
    EXPECT_EQ(Site().Text(Id::Text), L"ax");
    ClickAt(Edit(), {5, 5});
    EXPECT_EQ(Site().m_events.back(), DISPID_CLICK);
    Site().Put(Id::Text, L"b");  // by the program: told as well, and no change of the user's
    EXPECT_EQ(Site().m_events.back(), kChange);
}

TEST_F(TextFieldTest, MovingAndRestyling_KeepTextSelectionAndFocus) {
    Focus();
    TypeText("one two");
    ::SetWindowPos(Site().Window(), nullptr, 5, 5, 200, 40, SWP_NOZORDER);
    Site().Put(Id::BorderWidth, 3);
    Site().Put(Id::BackColor, RGB(255, 255, 0));
    EXPECT_TRUE(::SendMessageW(Edit(), EM_CANUNDO, 0, 0));
    Site().Put(Id::SelStart, 2);
    Site().Put(Id::SelLength, 99);
    for (const auto& [id, nValue] : {std::pair<DISPID, LONG>(Id::MultiLine, 1),
                                     {Id::ScrollV, 1},
                                     {Id::AlignTextH, 2},
                                     {Id::HideSelection, 0},
                                     {Id::MultiLine, 0}}) {
        const HWND hOld = Edit();
        EXPECT_EQ(Site().Put(id, nValue), S_OK);
        EXPECT_NE(Edit(), hOld) << id;
        EXPECT_EQ(Site().Text(Id::Text), L"one two");
        EXPECT_EQ(Site().Text(Id::SelText), L"e two") << id;
        EXPECT_TRUE(::GetFocus() == Edit() && Site().Number(Id::DataChanged) == -1) << id;
    }
    Site().Close();
    EXPECT_EQ(Site().Text(Id::SelText), L"e two");
    ASSERT_EQ(Site().Activate(kPlace, OLEIVERB_UIACTIVATE), S_OK);
    EXPECT_EQ(Site().Text(Id::Text), L"one two");
    // A handler that has the edit made anew while the platform's is at work.
    Site().m_onEvent = [this](DISPID id, DISPPARAMS&) {
        if (id == kChange) {
            Site().Put(Id::MultiLine, Site().Number(Id::MultiLine) == 0 ? 1 : 0);
        }
    };
    Site().Put(Id::SelStart, 7);
    TypeText("ab");
    EXPECT_EQ(Site().Text(Id::Text), L"one twoab");
}

TEST_F(TextFieldTest, ValuesOfTheWindowAndOfTheState) {
    ::SetWindowTextW(Site().Window(), L"window");
    EXPECT_EQ(Site().Text(Id::Text), L"window");
    wchar_t sz[4] = L"";
    EXPECT_EQ(::GetWindowTextW(Site().Window(), sz, 4), 3);
    EXPECT_STREQ(sz, L"win");
    Site().Put(Id::MaxLength, 4);
    EXPECT_EQ(Site().Text(Id::FpBoundVal), L"window");  // what is there is not lost
    EXPECT_EQ(Site().Number(Id::IsValid), 0);
    EXPECT_EQ(Site().Put(Id::AlignTextV, 7), ocx::kInvalidValue);
    EXPECT_EQ(Site().Put(Id::PasswordChar, L"\xD83D\xDE00"), ocx::kInvalidValue);
    EXPECT_EQ(Site().Put(Id::PasswordChar, L"*#"), S_OK);
    EXPECT_EQ(Site().Text(Id::PasswordChar), L"*");
    Site().Put(Id::SelText, L"ab");  // there is no room
    EXPECT_EQ(Site().Text(Id::Text), L"window");

    ocx::Ref<IStream> stream;
    ::CreateStreamOnHGlobal(nullptr, TRUE, stream.Out());
    ASSERT_EQ(ocx::Ref<IPersistStreamInit>::Of(Site().Object())->Save(stream.Get(), TRUE), S_OK);
    OleSite other(ocx::kTextFieldClass);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    ASSERT_EQ(ocx::Ref<IPersistStreamInit>::Of(other.Object())->Load(stream.Get()), S_OK);
    EXPECT_EQ(other.Text(Id::Text), L"window");
    EXPECT_EQ(other.Number(Id::MaxLength), 4);
    Site().Put(Id::IsNull, -1);
    EXPECT_EQ(Site().Text(Id::Text), L"");
}

TEST_F(TextFieldTest, FramesAndColoursShow) {
    constexpr COLORREF crMark = RGB(200, 10, 60);
    const struct {
        std::vector<std::pair<DISPID, LONG>> values;
        CPoint point;
    } cases[] = {
        {{{Id::Appearance, 0}, {Id::BorderColor, crMark}}, {0, 0}},
        {{{Id::ThreeDOutsideStyle, 2}, {Id::ThreeDOutsideHighlightColor, crMark}}, {0, 0}},
        {{{Id::ThreeDFrameWidth, 3}, {Id::ThreeDInsideShadowColor, crMark}}, {4, 15}},
        {{{Id::BorderDropShadow, 1}, {Id::BorderDropShadowColor, crMark}}, {149, 10}},
        {{{Id::BackColor, crMark}}, {75, 15}},
        {{{Id::AllowNull, 0}, {Id::InvalidColor, crMark}, {Id::NullColor, crMark}}, {75, 15}},
    };
    for (const auto& c : cases) {
        m_pSite = std::make_unique<OleSite>(ocx::kTextFieldClass);
        ASSERT_EQ(Site().Activate(kPlace), S_OK);
        for (const auto& [id, nValue] : c.values) {
            EXPECT_EQ(Site().Put(id, nValue), S_OK);
        }
        EXPECT_EQ(Picture::OfClient(Site().Window()).At(c.point.x, c.point.y), crMark)
            << "case " << &c - cases;
    }
    // The text in its colour, in the line's middle; in grey once it is disabled.
    Site().Put(Id::Text, L"WWWW");
    Site().Put(Id::ForeColor, crMark);
    const auto count = [&](const RECT& rect) {
        return Picture::OfClient(Site().Window()).Count(crMark, rect);
    };
    EXPECT_GT(count({0, 0, 75, 30}), 0);
    EXPECT_EQ(count({75, 0, 150, 30}), 0);
    Site().Put(Id::AlignTextH, 1);
    EXPECT_EQ(count({0, 0, 75, 30}), 0);
    EXPECT_GT(count({75, 0, 150, 30}), 0);
    Site().Put(Id::Redraw, 0L);
    Site().Put(Id::Enabled, 0L);
    Site().Put(Id::Redraw, 1);
    EXPECT_EQ(count({0, 0, 150, 30}), 0);
    EXPECT_GT(Picture::OfClient(Site().Window()).Count(::GetSysColor(COLOR_GRAYTEXT)), 0);
}

TEST_F(TextFieldTest, TabLeadsThroughFieldsAndStripsOfADialog) {
    AfxEnableControlContainer();
    const struct {
        DLGTEMPLATE head = {WS_POPUP | WS_CAPTION | WS_VISIBLE, 0, 0, 10, 10, 200, 80};
        WORD wRest[3] = {};
    } plain;
    CDialog dlg;
    ASSERT_TRUE(dlg.CreateIndirect(&plain.head));
    CfpText fields[2];
    for (int n = 0; n < 2; ++n) {
        ASSERT_TRUE(fields[n].Create("name", WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                     CRect(5, 5 + 30 * n, 105, 27 + 30 * n), &dlg, 3201 + n));
    }
    CString strName;
    fields[1].GetWindowText(strName);
    EXPECT_TRUE(strName == "name" && fields[1].GetText() == "name");
    fields[1].SetWindowText("");
    fields[1].SetMultiLine(TRUE);
    CTab strip;
    ASSERT_TRUE(strip.Create(nullptr, WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(110, 5, 190, 50),
                             &dlg, 3203));
    strip.SetTabCount(2);
    ASSERT_TRUE(BringToFront(dlg.m_hWnd));
    fields[0].SetFocus();
    TypeText("a");
    TypeKey(VK_TAB);
    TypeText("b");
    TypeKey(VK_TAB);
    TypeKey(strip.GetOrientation() < 2 ? VK_RIGHT : VK_DOWN);
    TypeKey(VK_TAB);
    TypeText("c");  // over the first one, which is selected
    EXPECT_EQ(strip.GetActiveTab(), 1);
    EXPECT_EQ(fields[0].GetText(), "c");
    EXPECT_EQ(fields[1].GetText(), "b");
    dlg.DestroyWindow();
}

}  // namespace
