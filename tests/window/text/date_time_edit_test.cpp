#include "support/monkey.h"
#include "support/real_input.h"
#include "support/text_window.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

constexpr UINT kDateId = 83;
const CRect kPlace(20, 20, 240, 48);

class OpenDate : public QVDateTimeEdit {
public:
    using QVDateTimeEdit::DoubleFormatCharacter;
    using QVDateTimeEdit::DoubleFormatString;
    using QVDateTimeEdit::m_strFormat;
    using QVDateTimeEdit::RemoveFormatString;

    std::string Date() {
        int n[3];
        GetDate(n[0], n[1], n[2]);
        return Joined(n);
    }
    std::string Time() {
        int n[3];
        GetTime(n[0], n[1], n[2]);
        return Joined(n);
    }
    bool ShowsText() {
        Invalidate(TRUE);
        const Picture picture = Picture::OfClient(m_hWnd);
        return picture.Count(::GetSysColor(COLOR_WINDOWTEXT), CRect(3, 3, 100, 25)) > 10;
    }

private:
    static std::string Joined(const int* p) {
        return std::to_string(p[0]) + "-" + std::to_string(p[1]) + "-" + std::to_string(p[2]);
    }
};

template <class Edit = OpenDate>
class Dated {
public:
    explicit Dated(DWORD dwStyle) : parent(CSize(300, 100)) {
        edit.Create(WS_CHILD | WS_VISIBLE | dwStyle, kPlace, &parent, kDateId);
    }
    FontParent parent;
    Edit edit;
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

TEST(DateEdit, TheUsersPicturesMakeTheFormat) {
    const UserSetting time(LOCALE_STIMEFORMAT, "h.mm.ss tt");
    const UserSetting date(LOCALE_SLONGDATE, "gg dddd, d MMMM yy");
    QVLocaleInfo locale;
    EXPECT_STREQ(locale.TimeFormat(), "h.mm.ss tt");
    EXPECT_STREQ(locale.LongDateFormat(), "gg dddd, d MMMM yy");
    const struct {
        DWORD dwStyle;
        int bSeconds;
        const char* pszFormat;
    } cases[] = {
        {DTS_TIMEFORMAT, 1, "h.mm.ss tt"}, {DTS_TIMEFORMAT, 0, "h.mm tt"},
        {DTS_UPDOWN, 0, "h.mm tt"},        {DTS_LONGDATEFORMAT, 0, "dddd, d MMMM yyyy"},
        {DTS_SHORTDATEFORMAT, 0, ""},      {DTS_SHORTDATECENTURYFORMAT, 0, "h.mm tt"},
    };
    for (const auto& c : cases) {
        Dated<> w(c.dwStyle);
        w.edit.SetShowSeconds(c.bSeconds);
        w.edit.SetTime(1, 2, 3);
        EXPECT_EQ(std::string(w.edit.m_strFormat), c.pszFormat) << c.dwStyle;
        w.edit.SetShowSeconds(!c.bSeconds);
        w.edit.SetTime(4, 5, 6);
        EXPECT_EQ(std::string(w.edit.m_strFormat), c.pszFormat) << "once and for all";
    }
}

TEST(DateEdit, ValuesGoInAndOutWithinTheRange) {
    Dated<> w(DTS_LONGDATEFORMAT | DTS_SHOWNONE);
    w.edit.SetDate(2003, 4, 5);
    EXPECT_EQ(w.edit.Date(), "2003-4-5");
    EXPECT_EQ(w.edit.Time(), "0-0-0");
    w.edit.SetDate(CTime(2011, 12, 31, 23, 59, 58));
    EXPECT_EQ(w.edit.Date(), "2011-12-31");
    w.edit.SetTime(CTime(2011, 12, 31, 23, 59, 58));
    EXPECT_EQ(w.edit.Date() + " " + w.edit.Time(), "2001-1-1 23-59-58");
    int nHour;
    int nMinute;
    w.edit.GetTime(nHour, nMinute);
    EXPECT_EQ(nHour * 100 + nMinute, 2359);
    CTime time;
    w.edit.GetTime(time);
    EXPECT_EQ(time, CTime(2001, 1, 1, 23, 59, 58));
    CTime range[2];
    EXPECT_EQ(w.edit.GetRange(&range[0], &range[1]), DWORD{GDTR_MIN | GDTR_MAX});
    EXPECT_EQ(range[0], CTime(1980, 1, 1, 0, 0, 0));
    EXPECT_EQ(range[1], CTime(2038, 1, 1, 0, 0, 0));
    for (const int nYear : {1979, 2039, 99, 10000, -1}) {
        w.edit.SetDate(nYear, 6, 1);
        EXPECT_TRUE(w.edit.Date() >= "1980" && w.edit.Date() <= "2038-1-1") << w.edit.Date();
    }
    w.edit.SetDate(2005, 6, 7);
    w.edit.SetDate(2005, 13, 1);
    w.edit.SetTime(25, 0, 0);
    EXPECT_EQ(w.edit.Date(), "2005-6-7");
    w.edit.SetDate(2005, 2, 31);
    EXPECT_EQ(w.edit.Date(), "2005-3-3");
    w.edit.CDateTimeCtrl::SetTime(static_cast<LPSYSTEMTIME>(nullptr));
    EXPECT_EQ(w.edit.Date() + w.edit.Time(), "-1--1--1-1--1--1");
}

TEST(DateEdit, EmptyTextBlanksUntilAValueComes) {
    for (const DWORD dwStyle : {DTS_TIMEFORMAT, DTS_SHORTDATEFORMAT}) {
        Dated<> w(dwStyle);
        w.edit.SetTime(1, 2, 3);
        EXPECT_TRUE(w.edit.ShowsText());
        const std::function<void()> kEnds[] = {
            [&] { w.edit.SetTime(1, 2, 3); }, [&] { w.edit.SetDate(2001, 1, 1); },
            [&] { w.edit.SetWindowText("x"); },
            [&] {
                ASSERT_TRUE(BringToFront(w.parent.m_hWnd));
                w.edit.SetFocus();
                w.parent.Forget();
                TypeKey(VK_UP);
                EXPECT_GE(w.parent.Count(DTN_DATETIMECHANGE), 1) << "the parent is told as well";
            }};
        for (const auto& end : kEnds) {
            EXPECT_EQ(w.edit.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("")), 1);
            EXPECT_TRUE(w.edit.IsBlank());
            EXPECT_FALSE(w.edit.ShowsText());
            EXPECT_EQ(w.edit.Date(), "2001-1-1") << "the picker keeps its value";
            EXPECT_EQ(w.edit.SendMessage(WM_SETTEXT, 0, 0), 0);
            EXPECT_TRUE(w.edit.IsBlank());
            end();
            EXPECT_FALSE(w.edit.IsBlank());
            EXPECT_TRUE(w.edit.ShowsText()) << dwStyle;
        }
    }
}

TEST(DateEdit, PicturesChangeByTheStepsOfDerivedClasses) {
    CString str = "y/ss";
    OpenDate::DoubleFormatCharacter(str, 'y');
    OpenDate::DoubleFormatString(str, "yy");
    OpenDate::RemoveFormatString(str, "ss");
    EXPECT_EQ(str, "yyyy");
}

TEST(DateEditMemory, WithoutMemoryTheControlStands) {
    Watched<OpenDate>* pEdit = nullptr;
    FontParent parent(CSize(300, 100));
    std::unique_ptr<Watched<OpenDate>> edit;
    RefuseEach(
        "set",
        [&] {
            if (pEdit != nullptr) {
                pEdit->SetTime(1, 2, 3);
                ::SetWindowText(pEdit->m_hWnd, "");
            }
        },
        [&] {
            edit = std::make_unique<Watched<OpenDate>>();
            edit->Create(WS_CHILD | DTS_TIMEFORMAT, kPlace, &parent, kDateId);
            pEdit = edit.get();
        });
}

TEST(DateEditMonkey, SurvivesAnyOrderOfMessages) {
    FontParent parent(CSize(300, 100));
    const LONG nHandles = AfxGetOwnedHandleCount();
    std::mt19937 random = MonkeyRandom(9);
    for (int nMade = 0; nMade < 1000; ++nMade) {
        constexpr DWORD kStyles[] = {DTS_TIMEFORMAT, DTS_LONGDATEFORMAT, DTS_UPDOWN, DTS_SHOWNONE};
        OpenDate edit;
        ASSERT_TRUE(edit.Create(WS_CHILD | kStyles[random() % 4], kPlace, &parent, kDateId));
        for (int i = 0; i < MonkeySteps() / 500; ++i) {
            const int n = static_cast<int>(random() % 60) - 5;
            const std::function<void()> kDeeds[] = {
                [&] { edit.SetTime(n, n, n); },
                [&] { edit.SetDate(1970 + n * 2, n, n); },
                [&] { edit.SetDate(CTime(__time64_t{n} << random() % 60)); },
                [&] { edit.SetWindowText(n % 2 != 0 ? "" : "x"); },
                [&] { edit.SendMessage(WM_KEYDOWN, VK_PRIOR + random() % 8); },
                [&] { edit.SetShowSeconds(n); }};
            kDeeds[random() % std::size(kDeeds)]();
        }
        ASSERT_GE(edit.Date(), "-1");
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

}  // namespace
