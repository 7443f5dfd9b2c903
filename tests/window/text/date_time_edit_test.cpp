#include "window/text/edit_window.h"

namespace {

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

class OpenDate : public Watched<QVDateTimeEdit> {
public:
    using QVDateTimeEdit::m_strFormat;

    std::string Value() {
        int n[6];
        GetDate(n[0], n[1], n[2]);
        GetTime(n[3], n[4], n[5]);
        CString str;
        str.Format("%d-%d-%d %d:%d:%d", n[0], n[1], n[2], n[3], n[4], n[5]);
        return std::string(str);
    }
};

class DateEdit : public EditWindow<OpenDate> {
protected:
    void Make(DWORD dwStyle) {
        pEdit = std::make_unique<OpenDate>();
        pEdit->Create(WS_CHILD | WS_VISIBLE | dwStyle, CRect(20, 20, 240, 48), this, 1);
    }

    const UserSetting time{LOCALE_STIMEFORMAT, "h.mm.ss tt"};
    const UserSetting date{LOCALE_SLONGDATE, "gg dddd, d MMMM yy"};
};

TEST_F(DateEdit, TheUsersPicturesMakeTheFormatOnce) {
    for (const auto& [dwStyle, bSeconds, pszFormat] :
         {std::tuple<int, int, const char*>(DTS_TIMEFORMAT, 1, "h.mm.ss tt"),
          {DTS_UPDOWN, 0, "h.mm tt"},
          {DTS_LONGDATEFORMAT, 0, "dddd, d MMMM yyyy"},
          {DTS_SHORTDATEFORMAT, 0, ""}}) {
        Make(static_cast<DWORD>(dwStyle));
        for (const int bShow : {bSeconds, 1 - bSeconds}) {
            pEdit->SetShowSeconds(bShow);
            pEdit->SetTime(1, 2, 3);
            EXPECT_STREQ(pEdit->m_strFormat, pszFormat);
        }
    }
}

TEST_F(DateEdit, ValuesGoInAndOutWithinTheRange) {
    Make(DTS_LONGDATEFORMAT | DTS_SHOWNONE);
    const CTime last(2011, 12, 31, 23, 59, 58);
    const std::pair<std::function<void(OpenDate&)>, const char*> cases[] = {
        {[&](OpenDate& edit) { edit.SetDate(last); }, "2011-12-31 0:0:0"},
        {[&](OpenDate& edit) { edit.SetTime(last); }, "2001-1-1 23:59:58"},
        {[](OpenDate& edit) { edit.SetDate(2005, 13, 1); }, "2001-1-1 23:59:58"},
        {[](OpenDate& edit) { edit.SetDate(1980, 1, 1); }, "1980-1-1 0:0:0"},
        {[](OpenDate& edit) { edit.SetDate(1979, 12, 31); }, "1980-1-1 0:0:0"},
        {[](OpenDate& edit) { edit.SetDate(2038, 1, 1); }, "2038-1-1 0:0:0"},
        {[](OpenDate& edit) { edit.SetDate(2038, 1, 2); }, "2038-1-1 0:0:0"},
        {[](OpenDate& edit) { edit.SetDate(2005, 2, 31); }, "2005-3-3 0:0:0"},
        {[](CDateTimeCtrl& edit) { edit.SetTime(LPSYSTEMTIME{}); }, "-1--1--1 -1:-1:-1"}};
    for (const auto& [set, pszValue] : cases) {
        set(*pEdit);
        EXPECT_EQ(pEdit->Value(), pszValue);
    }
}

TEST_F(DateEdit, EmptyTextBlanksUntilAValueComes) {
    const auto showsText = [&] {
        pEdit->Invalidate(TRUE);
        const Picture shown = Picture::OfClient(pEdit->m_hWnd);
        return shown.Count(::GetSysColor(COLOR_WINDOWTEXT), CRect(3, 3, 100, 25)) > 10;
    };
    const std::function<void()> kEnds[] = {
        [&] { pEdit->SetTime(1, 2, 3); }, [&] { pEdit->SetDate(2001, 1, 1); },
        [&] { pEdit->SetWindowText("x"); }, [] { TypeKey(VK_UP); }};
    for (const DWORD dwStyle : {DTS_TIMEFORMAT, DTS_SHORTDATEFORMAT}) {
        Make(dwStyle);
        ASSERT_TRUE(BringToFront(m_hWnd));
        pEdit->SetFocus();
        pEdit->SetTime(1, 2, 3);
        for (const auto& end : kEnds) {
            const std::string strValue = pEdit->Value();
            EXPECT_EQ(pEdit->SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("")), 1);
            EXPECT_EQ(pEdit->SendMessage(WM_SETTEXT, 0, 0), 0);
            EXPECT_TRUE(pEdit->IsBlank() && !showsText());
            EXPECT_EQ(pEdit->Value(), strValue) << "the picker keeps it";
            end();
            EXPECT_TRUE(!pEdit->IsBlank() && showsText()) << dwStyle;
        }
        EXPECT_GE(Count(static_cast<UINT>(DTN_DATETIMECHANGE)), 1) << "the parent is told as well";
    }
}

using DateEditMonkey = DateEdit;

TEST_F(DateEditMonkey, SurvivesAnyOrderOfMessagesAndTheWantOfMemory) {
    DWORD dwStyle = 0;
    PlayInAnyOrder(pEdit, [&] { Make(DWORD{1} << ++dwStyle % 5); },
                   {[&](int n) { pEdit->SetTime(n, n, n), pEdit->SetDate(1970 + n * 2, n, n); },
                    [&](int n) { pEdit->SetDate(CTime(__time64_t{n} << (n + 5))); },
                    [&](int n) { pEdit->SetWindowText(n % 2 != 0 ? "" : "x"); },
                    [&](int n) { pEdit->SendMessage(WM_KEYDOWN, VK_PRIOR + (n + 5) % 8); }});
    Make(DTS_TIMEFORMAT);
    RefuseEach(
        "set", [&] { pEdit->SetTime(1, 2, 3), ::SetWindowText(pEdit->m_hWnd, ""); },
        [&] {
            const std::string strFormat(pEdit->m_strFormat);
            EXPECT_TRUE(strFormat.empty() || strFormat == "h.mm tt") << strFormat;
            EXPECT_EQ(pEdit->nThrown, 0);
            Make(DTS_TIMEFORMAT);
        });
}

}  // namespace
