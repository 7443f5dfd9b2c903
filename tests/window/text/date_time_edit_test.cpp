#include "support/monkey.h"
#include "support/real_input.h"
#include "support/text_window.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

class OpenDate : public Watched<QVDateTimeEdit> {
public:
    OpenDate(CWnd& parent, DWORD dwStyle) {
        Create(WS_CHILD | WS_VISIBLE | dwStyle, CRect(20, 20, 240, 48), &parent, 1);
    }
    using QVDateTimeEdit::m_strFormat;

    std::string Value() {
        int n[6];
        GetDate(n[0], n[1], n[2]);
        GetTime(n[3], n[4], n[5]);
        GetTime(n[3], n[4]);
        CString str;
        str.Format("%d-%d-%d %d:%d:%d", n[0], n[1], n[2], n[3], n[4], n[5]);
        return std::string(str);
    }
    bool ShowsText() {
        Invalidate(TRUE);
        const Picture picture = Picture::OfClient(m_hWnd);
        return picture.Count(::GetSysColor(COLOR_WINDOWTEXT), CRect(3, 3, 100, 25)) > 10;
    }
};

// Puts a setting of the user's back.
class UserSetting {
public:
    UserSetting(LCTYPE nType, const char* pszValue) : m_nType(nType) {
        ::GetLocaleInfo(LOCALE_USER_DEFAULT, nType, m_szOld, sizeof(m_szOld));
        ::SetLocaleInfo(LOCALE_USER_DEFAULT, nType, pszValue);
    }
    ~UserSetting() { ::SetLocaleInfo(LOCALE_USER_DEFAULT, m_nType, m_szOld); }

private:
    LCTYPE m_nType;
    char m_szOld[80] = "";
};

class DateEdit : public testing::Test, protected FontParent {
protected:
    DateEdit() : FontParent(CSize(300, 100)) {}
    const UserSetting time{LOCALE_STIMEFORMAT, "h.mm.ss tt"};
    const UserSetting date{LOCALE_SLONGDATE, "gg dddd, d MMMM yy"};
};

TEST_F(DateEdit, TheUsersPicturesMakeTheFormatOnce) {
    const std::tuple<DWORD, int, const char*> cases[] = {
        {DTS_TIMEFORMAT, 1, "h.mm.ss tt"},
        {DTS_TIMEFORMAT, 0, "h.mm tt"},
        {DTS_LONGDATEFORMAT, 0, "dddd, d MMMM yyyy"},
        {DTS_SHORTDATEFORMAT, 0, ""},
        {DTS_UPDOWN, 0, "h.mm tt"},
        {DTS_SHORTDATECENTURYFORMAT, 0, "h.mm tt"}};
    for (const auto& [dwStyle, bShow, pszFormat] : cases) {
        OpenDate edit(*this, dwStyle);
        for (const int bSeconds : {bShow, 1 - bShow}) {
            edit.SetShowSeconds(bSeconds);
            edit.SetTime(1, 2, 3);
            EXPECT_STREQ(edit.m_strFormat, pszFormat) << dwStyle;
        }
    }
}

TEST_F(DateEdit, ValuesGoInAndOutWithinTheRange) {
    OpenDate edit(*this, DTS_LONGDATEFORMAT | DTS_SHOWNONE);
    const CTime last(2011, 12, 31, 23, 59, 58);
    const std::pair<std::function<void()>, const char*> cases[] = {
        {[&] { edit.SetDate(last); }, "2011-12-31 0:0:0"},
        {[&] { edit.SetTime(last); }, "2001-1-1 23:59:58"},
        {[&] { edit.SetTime(25, 0, 0); }, "2001-1-1 23:59:58"},
        {[&] { edit.SetDate(2005, 13, 1); }, "2001-1-1 23:59:58"},
        {[&] { edit.SetDate(1980, 1, 1); }, "1980-1-1 0:0:0"},
        {[&] { edit.SetDate(1979, 12, 31); }, "1980-1-1 0:0:0"},
        {[&] { edit.SetDate(2038, 1, 1); }, "2038-1-1 0:0:0"},
        {[&] { edit.SetDate(2038, 1, 2); }, "2038-1-1 0:0:0"},
        {[&] { edit.SetDate(2005, 2, 31); }, "2005-3-3 0:0:0"},
        {[&] { edit.CDateTimeCtrl::SetTime(LPSYSTEMTIME{}); }, "-1--1--1 -1:-1:-1"}};
    for (const auto& [set, pszValue] : cases) {
        set();
        EXPECT_EQ(edit.Value(), pszValue);
    }
}

TEST_F(DateEdit, EmptyTextBlanksUntilAValueComes) {
    for (const DWORD dwStyle : {DTS_TIMEFORMAT, DTS_SHORTDATEFORMAT}) {
        OpenDate edit(*this, dwStyle);
        ASSERT_TRUE(BringToFront(m_hWnd));
        edit.SetFocus();
        edit.SetTime(1, 2, 3);
        const std::function<void()> kEnds[] = {
            [&] { edit.SetTime(1, 2, 3); }, [&] { edit.SetDate(2001, 1, 1); },
            [&] { edit.SetWindowText("x"); }, [] { TypeKey(VK_UP); }};
        for (const auto& end : kEnds) {
            const std::string strValue = edit.Value();
            EXPECT_EQ(edit.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("")), 1);
            EXPECT_EQ(edit.SendMessage(WM_SETTEXT, 0, 0), 0);
            EXPECT_TRUE(edit.IsBlank() && !edit.ShowsText());
            EXPECT_EQ(edit.Value(), strValue) << "the picker keeps it";
            end();
            EXPECT_TRUE(!edit.IsBlank() && edit.ShowsText()) << dwStyle;
        }
        EXPECT_GE(Count(static_cast<UINT>(DTN_DATETIMECHANGE)), 1) << "the parent is told as well";
    }
}

using DateEditMonkey = DateEdit;

TEST_F(DateEditMonkey, SurvivesAnyOrderOfMessagesAndTheWantOfMemory) {
    const LONG nHandles = AfxGetOwnedHandleCount();
    std::mt19937 random = MonkeyRandom(9);
    for (int nMade = 0; nMade < 1000; ++nMade) {
        constexpr DWORD kStyles[] = {DTS_TIMEFORMAT, DTS_LONGDATEFORMAT, DTS_UPDOWN, DTS_SHOWNONE};
        OpenDate edit(*this, kStyles[random() % 4]);
        for (int i = 0; i < MonkeySteps() / 500; ++i) {
            const int n = static_cast<int>(random() % 60) - 5;
            const std::function<void()> kDeeds[] = {
                [&] { edit.SetTime(n, n, n); }, [&] { edit.SetDate(1970 + n * 2, n, n); },
                [&] { edit.SetDate(CTime(__time64_t{n} << random() % 56)); },
                [&] { edit.SetWindowText(n % 2 != 0 ? "" : "x"); },
                [&] { edit.SendMessage(WM_KEYDOWN, VK_PRIOR + random() % 8); }};
            kDeeds[random() % std::size(kDeeds)]();
        }
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
    auto pEdit = std::unique_ptr<OpenDate>(new OpenDate(*this, DTS_TIMEFORMAT));
    RefuseEach(
        "set", [&] { pEdit->SetTime(1, 2, 3), ::SetWindowText(pEdit->m_hWnd, ""); },
        [&] {
            const std::string strFormat(pEdit->m_strFormat);
            EXPECT_TRUE(strFormat.empty() || strFormat == "h.mm tt") << strFormat;
            pEdit.reset(new OpenDate(*this, DTS_TIMEFORMAT));
        });
}

}  // namespace
