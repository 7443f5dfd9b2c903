// Dates of automation: fields, text, comparison and arithmetic.
#include <afxdisp.h>

#include <ctime>
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr LCID kEnglish = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
constexpr LCID kGerman = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
constexpr double kSecond = 1.0 / 86400;

void ExpectFields(const COleDateTime& date, int nYear, int nMonth, int nDay, int nHour = 0,
                  int nMin = 0, int nSec = 0) {
    EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(std::vector<int>({date.GetYear(), date.GetMonth(), date.GetDay(), date.GetHour(),
                                date.GetMinute(), date.GetSecond()}),
              std::vector<int>({nYear, nMonth, nDay, nHour, nMin, nSec}));
}

COleDateTime Parsed(LPCTSTR lpszText, LCID lcid = kEnglish, DWORD dwFlags = 0) {
    COleDateTime date;
    EXPECT_TRUE(date.ParseDateTime(lpszText, dwFlags, lcid)) << lpszText;
    return date;
}

}  // namespace

TEST(OleDateTime, FieldsComeBackAsTheyWentIn) {
    // Around both ends, the zero day with its odd scale, and a rounding trap at each second.
    ExpectFields({100, 1, 1, 0, 0, 0}, 100, 1, 1);
    ExpectFields({9999, 12, 31, 23, 59, 59}, 9999, 12, 31, 23, 59, 59);
    ExpectFields({1899, 12, 29, 6, 0, 0}, 1899, 12, 29, 6);
    EXPECT_DOUBLE_EQ(COleDateTime(1899, 12, 29, 6, 0, 0).m_dt, -1.25);
    for (int nSecond = 0; nSecond < 86400; nSecond += 61) {
        const COleDateTime date(2024, 2, 29, nSecond / 3600, nSecond / 60 % 60, nSecond % 60);
        ASSERT_EQ(date.GetHour() * 3600 + date.GetMinute() * 60 + date.GetSecond(), nSecond);
    }
    const COleDateTime date(2024, 12, 31, 13, 14, 15);
    EXPECT_EQ(date.GetDayOfWeek(), 3);
    EXPECT_EQ(date.GetDayOfYear(), 366);
    SYSTEMTIME st;
    ASSERT_TRUE(date.GetAsSystemTime(st));
    EXPECT_EQ(COleDateTime(st), date);
}

TEST(OleDateTime, TimesOfOtherKindsBecomeLocalTime) {
    const __time64_t time = 1700000000;
    const struct tm local = *_localtime64(&time);
    ExpectFields(COleDateTime(time), local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                 local.tm_hour, local.tm_min, local.tm_sec);
    const ULONGLONG nUnits = (1700000000ULL + 11644473600ULL) * 10000000;
    const FILETIME ft{static_cast<DWORD>(nUnits), static_cast<DWORD>(nUnits >> 32)};
    EXPECT_EQ(COleDateTime(ft), COleDateTime(time));
    EXPECT_EQ(COleDateTime(__time64_t{-1} << 62).GetStatus(), COleDateTime::invalid);
}

TEST(OleDateTime, SettersKeepTheValueWhenTheyRefuse) {
    COleDateTime date(2001, 1, 1, 7, 30, 0);
    const DATE dtBefore = date.m_dt;
    EXPECT_EQ(date.SetDateTime(2001, 13, 1, 0, 0, 0), 1);
    EXPECT_EQ(date.SetDate(99, 1, 1), 1);
    EXPECT_EQ(date.SetDate(1925, 4, 35), 1);
    EXPECT_EQ(date.SetDate(10000, 1, 1), 1);
    EXPECT_EQ(date.SetTime(24, 0, 0), 1);
    EXPECT_EQ(date.SetTime(9, 60, 0), 1);
    EXPECT_EQ(date.m_dt, dtBefore);
    EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(date.GetYear(), COleDateTime::error);
    EXPECT_EQ(date.SetDate(2023, 2, 30), 0);
    ExpectFields(date, 2023, 3, 2);
    EXPECT_EQ(date.SetDate(2024, 3, 0), 0);
    ExpectFields(date, 2024, 2, 29);
}

TEST(OleDateTime, ReadsWhatTheLocaleWrites) {
    ExpectFields(Parsed("2024-05-17"), 2024, 5, 17);
    ExpectFields(Parsed("2024-05-17 13:45:30"), 2024, 5, 17, 13, 45, 30);
    ExpectFields(Parsed("3/4/2021"), 2021, 3, 4);
    ExpectFields(Parsed("3/4/2021 8:30:00 PM"), 2021, 3, 4, 20, 30);
    ExpectFields(Parsed("25 January 1996"), 1996, 1, 25);
    ExpectFields(Parsed("January 25, 1996 8:30:00"), 1996, 1, 25, 8, 30);
    ExpectFields(Parsed("03.04.2021", kGerman), 2021, 4, 3);
    ExpectFields(Parsed("20:30:00"), 1899, 12, 30, 20, 30);
    ExpectFields(Parsed("3/4/2021 20:30", kEnglish, VAR_TIMEVALUEONLY), 1899, 12, 30, 20, 30);
    ExpectFields(Parsed("3/4/2021 20:30", kEnglish, VAR_DATEVALUEONLY), 2021, 3, 4);
}

TEST(OleDateTime, TextThatIsNoDateLeavesNothing) {
    for (LPCTSTR lpszText : {"", "no date", "2024-13-45", "25:00:00", "17", "12/31/123456"}) {
        COleDateTime date(2001, 1, 1, 0, 0, 0);
        EXPECT_FALSE(date.ParseDateTime(lpszText)) << lpszText;
        EXPECT_EQ(date.GetStatus(), COleDateTime::invalid) << lpszText;
        EXPECT_EQ(date.m_dt, 0) << lpszText;
    }
    EXPECT_FALSE(COleDateTime().ParseDateTime(nullptr));
}

TEST(OleDateTime, FormatsByLocaleAndByCodes) {
    const COleDateTime date(2021, 4, 3, 20, 5, 9);
    EXPECT_STREQ(date.Format(0, kEnglish), "4/3/2021 8:05:09 PM");
    EXPECT_STREQ(COleDateTime(2021, 10, 13, 1, 0, 0).Format(VAR_DATEVALUEONLY, kGerman),
                 "13.10.2021");
    EXPECT_STREQ(COleDateTime(2021, 4, 3, 0, 0, 0).Format(0, kEnglish), "4/3/2021");
    EXPECT_STREQ(date.Format("%Y-%m-%d %H:%M:%S, day %j, 100%%"),
                 "2021-04-03 20:05:09, day 093, 100%");
    EXPECT_STREQ(date.Format(CString('x', 1000)), CString('x', 1000));
    COleDateTime nothing(date);
    nothing.SetStatus(COleDateTime::null);
    EXPECT_STREQ(nothing.Format(), "");
    nothing.SetStatus(COleDateTime::invalid);
    EXPECT_STREQ(nothing.Format("%Y"), "Not a date");
}

TEST(OleDateTime, ComparesByTheOrderOfTime) {
    const COleDateTime six(1899, 12, 29, 6, 0, 0);
    const COleDateTime seven(1899, 12, 29, 7, 0, 0);
    EXPECT_LT(six, seven);
    EXPECT_LT(seven, COleDateTime(1899, 12, 30, 0, 0, 0));
    COleDateTime a(six);
    COleDateTime b(seven);
    a.SetStatus(COleDateTime::null);
    EXPECT_NE(a, six);
    b.SetStatus(COleDateTime::null);
    EXPECT_EQ(a, b);
}

TEST(OleDateTime, SpansCarryDatesAcrossTheZeroDay) {
    COleDateTime date(1899, 12, 31, 6, 0, 0);
    date -= COleDateTimeSpan(2, 1, 30, 0);
    ExpectFields(date, 1899, 12, 29, 4, 30);
    date += COleDateTimeSpan(2, 1, 30, 0);
    ExpectFields(date, 1899, 12, 31, 6);
    ExpectFields(COleDateTime(2024, 2, 28, 23, 0, 0) + COleDateTimeSpan(0, 2, 0, 0), 2024, 2, 29,
                 1);
    const COleDateTimeSpan back = COleDateTime(1899, 12, 29, 6, 0, 0) - date;
    EXPECT_NEAR(back.m_span, -2, kSecond / 2);

    const COleDateTimeSpan span =
        COleDateTime(2024, 3, 1, 1, 2, 3) - COleDateTime(2024, 2, 28, 0, 0, 0);
    EXPECT_EQ(span.GetDays(), 2);
    EXPECT_EQ(span.GetHours(), 1);
    EXPECT_EQ(span.GetMinutes(), 2);
    EXPECT_EQ(span.GetSeconds(), 3);
    EXPECT_EQ(span.GetTotalHours(), 49);
    EXPECT_EQ((-span).GetTotalMinutes(), -(49 * 60 + 2));
}

TEST(OleDateTime, ArithmeticPassesOnWhatHasNoValue) {
    const COleDateTime last(9999, 12, 31, 12, 0, 0);
    const COleDateTime first(100, 1, 1, 12, 0, 0);
    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    COleDateTime null;
    null.SetStatus(COleDateTime::null);
    const COleDateTimeSpan day(1.0);
    EXPECT_EQ((last + day).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ((first - day).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ((first + day).GetStatus(), COleDateTime::valid);
    EXPECT_EQ((invalid + day).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ((null - invalid).GetStatus(), COleDateTimeSpan::null);
    EXPECT_EQ((invalid - last).GetStatus(), COleDateTimeSpan::invalid);
    EXPECT_EQ(COleDateTimeSpan(4000000.0).GetStatus(), COleDateTimeSpan::invalid);
}
