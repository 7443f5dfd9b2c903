// Strings: copies that share a text, cutting, searching, formats, buffers.
#include <afxwin.h>
#include <atlconv.h>

#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace {

using Change = std::function<void(CString&)>;

TEST(String, CopiesShareATextUntilOneOfThemChanges) {
    const Change changes[] = {
        [](CString& s) { s.SetAt(0, 'X'); },     [](CString& s) { s += 'x'; },
        [](CString& s) { s.MakeReverse(); },     [](CString& s) { s.MakeUpper(); },
        [](CString& s) { s.Insert(2, "in"); },   [](CString& s) { s.TrimRight(); },
        [](CString& s) { s.Replace('t', 'T'); }, [](CString& s) { s.Delete(0, 2); },
        [](CString& s) { s.Truncate(3); },       [](CString& s) { s.Empty(); },
        [](CString& s) { s = "new"; },           [](CString& s) { s.Format("%d", 7); },
        [](CString& s) { *s.GetBuffer(1) = 0; }, [](CString& s) { s.GetBufferSetLength(30); }};
    for (const Change& change : changes) {
        for (const bool bChangeTheCopy : {false, true}) {
            CString str("shared text ");
            CString copy(str);
            ASSERT_EQ(str.GetString(), copy.GetString());
            change(bChangeTheCopy ? copy : str);
            EXPECT_STREQ(bChangeTheCopy ? str : copy, "shared text ");
            EXPECT_NE(str.GetString(), copy.GetString());
        }
    }
}

TEST(String, ASourceMayBeAPartOfTheStringItself) {
    const struct {
        Change change;
        LPCTSTR lpszResult;
    } cases[] = {{[](CString& s) { s += s; }, "abcdefabcdef"},
                 {[](CString& s) { s = s.GetString() + 2; }, "cdef"},
                 {[](CString& s) { s.Append(s.GetString() + 1, 3); }, "abcdefbcd"},
                 {[](CString& s) { s.Insert(1, s); }, "aabcdefbcdef"},
                 {[](CString& s) { s.Replace(s.Mid(1, 2), s); }, "aabcdefdef"},
                 {[](CString& s) { s.Format("<%s>", s.GetString()); }, "<abcdef>"},
                 {[](CString& s) { s.AppendFormat("%s", s.GetString()); }, "abcdefabcdef"}};
    for (const auto& [change, lpszResult] : cases) {
        CString alone("abcdef");
        change(alone);
        EXPECT_STREQ(alone, lpszResult);
        CString str("abcdef");
        const CString copy(str);
        change(str);
        EXPECT_STREQ(str, lpszResult);
        EXPECT_STREQ(copy, "abcdef");
    }
}

TEST(String, CountsThatReachBeyondTheEndsAreCut) {
    const CString str("abcdef");
    EXPECT_STREQ(str.Mid(99), "");
    EXPECT_STREQ(str.Mid(5, INT_MAX), "f");
    EXPECT_STREQ(str.Mid(2, -1), "");
    for (const int nCount : {-1, 0, 1, 6, 99}) {
        const int nCut = std::clamp(nCount, 0, 6);
        EXPECT_STREQ(str.Left(nCount), std::string("abcdef").substr(0, nCut).c_str());
        EXPECT_STREQ(str.Right(nCount), std::string("abcdef").substr(6 - nCut).c_str());
    }
    CString changed(str);
    EXPECT_EQ(changed.Insert(99, "!"), 7);
    EXPECT_EQ(changed.Insert(-1, '>'), 8);
    EXPECT_STREQ(changed, ">abcdef!");
    EXPECT_EQ(changed.Delete(7, INT_MAX), 7);
    EXPECT_EQ(changed.Delete(7), 7) << "behind the end there is nothing";
    EXPECT_EQ(changed.Delete(0), 6);
    EXPECT_STREQ(changed, str);
}

TEST(String, FindsAndReplaces) {
    CString str("one two one");
    EXPECT_EQ(str.Find("one", 1), 8);
    EXPECT_EQ(str.Find("one", 12), -1);
    EXPECT_EQ(str.FindOneOf(""), -1);
    EXPECT_STREQ(str.SpanIncluding("neo"), "one");
    EXPECT_STREQ(str.SpanExcluding("x"), str);
    EXPECT_EQ(str.Replace("ne", "n"), 2);
    EXPECT_STREQ(str, "on two on");
    EXPECT_EQ(str.Replace("", "x"), 0);
    EXPECT_EQ(str.Replace("on", nullptr), 2);
    EXPECT_EQ(str.Remove(' '), 2);
    EXPECT_STREQ(str, "two");
    EXPECT_EQ((str = "aaa").Replace("aa", "a"), 1) << "what was put in is not looked at again";
    EXPECT_STREQ(CString(" \t\r\n a b \v\f").Trim(), "a b");
    EXPECT_STREQ(CString("xyaxy").TrimRight("yx"), "xya");
}

TEST(String, TokensLieBetweenDelimiters) {
    const LPCTSTR cases[][3] = {{"a,b", ",", "a|b|"},     {" a, b ,,c,", " ,", "a|b|c|"},
                                {",;,", ";,", ""},        {"", ",", ""},
                                {"whole", ",", "whole|"}, {"whole", "", "whole|"}};
    for (const auto& [lpszText, lpszDelimiters, lpszTokens] : cases) {
        const CString str(lpszText);
        CString strTokens;
        int nAt = 0;
        for (CString strToken = str.Tokenize(lpszDelimiters, nAt); nAt != -1;
             strToken = str.Tokenize(lpszDelimiters, nAt)) {
            strTokens += strToken + '|';
        }
        EXPECT_STREQ(strTokens, lpszTokens) << lpszText;
        EXPECT_STREQ(str.Tokenize(lpszDelimiters, nAt), "") << "from -1 on there are none";
    }
}

TEST(String, ComparesWithStringsAndTexts) {
    const CString a("alpha");
    const CString b("beta");
    EXPECT_GT(a.Compare("Alpha"), 0);
    EXPECT_EQ(a.CompareNoCase("ALPHA"), 0);
    EXPECT_EQ(a.CollateNoCase("ALPHA"), 0);
    EXPECT_GT(a.Compare(nullptr), 0);
    EXPECT_TRUE(a == "alpha" && "alpha" == a && a != b && a != "beta" && "beta" != a);
    EXPECT_TRUE(a < b && a < "beta" && "aleph" < a && b > a && b > "alpha" && "beta" > a);
    EXPECT_TRUE(a <= a && a <= "alpha" && "alpha" <= a && a >= a && a >= "alpha" && "alpha" >= a);
    EXPECT_FALSE(b <= a || b <= "alpha" || "beta" <= a || a >= b || a >= "beta" || "alpha" >= b);
}

TEST(String, FormatsAsThePrintFunctionsDo) {
    const CString name("name");
    const CString strLong('y', 5000);
    CString str("before");
    str.Format("%s|%6s|%-6s|%.2s|%c%%", name.GetString(), "ab", "ab", name.GetString(), 'c');
    EXPECT_STREQ(str, "name|    ab|ab    |na|c%");
    str.Format("%I64d %S %ls %hs", INT64_MIN, L"wide", L"wide", "narrow");
    EXPECT_STREQ(str, "-9223372036854775808 wide wide narrow");
    str.Format("%s%s", strLong, strLong.GetString());
    EXPECT_STREQ(str, strLong + strLong);
    str = "x";
    str.Format("%s%s", str, CStringW(L"W").GetLength() == 1 ? str : name);
    str.AppendFormat(" %S %d", CStringW(L"wide"), 5);
    EXPECT_STREQ(str, "xx wide 5");
    str.FormatMessage("%2!d! of %1", name, 7);
    EXPECT_STREQ(str, "7 of name");
}

TEST(String, BuffersHaveTheRoomThatWasAskedFor) {
    CString str("text");
    LPSTR lpsz = str.GetBuffer(500);
    EXPECT_STREQ(lpsz, "text");
    std::fill_n(lpsz, 500, 'z');
    str.ReleaseBuffer(500);
    EXPECT_STREQ(str, CString('z', 500));
    lstrcpy(str.GetBuffer(2), "ab");
    str.ReleaseBuffer();
    EXPECT_EQ(str.GetLength(), 2) << "up to the first zero";
    memcpy(str.GetBufferSetLength(3), "x\0y", 3);
    EXPECT_EQ(str.GetLength(), 3);
    EXPECT_THROW(str.GetAt(-1), CInvalidArgException*);
    EXPECT_THROW(str.SetAt(4, 'x'), CInvalidArgException*);
    EXPECT_STREQ(CString(static_cast<LPCSTR>(nullptr), 5), "");
    EXPECT_STREQ(CString('x', -1), "");
}

TEST(String, GoesOverToOtherKindsOfText) {
    ::SetEnvironmentVariable("QV_TEST_VARIABLE", "its value");
    CString str("before");
    EXPECT_TRUE(str.GetEnvironmentVariable("QV_TEST_VARIABLE"));
    EXPECT_STREQ(str, "its value");
    EXPECT_FALSE(str.GetEnvironmentVariable("QV_NO_SUCH_VARIABLE"));
    EXPECT_STREQ(str, "");

    BSTR bstr = CString("one").AllocSysString();
    CString("two").SetSysString(&bstr);
    VARIANT var;
    var.vt = VT_BSTR;
    var.bstrVal = bstr;
    EXPECT_STREQ(CString(var), "two");
    ::VariantClear(&var);
    var.vt = VT_I4;
    var.lVal = -5;
    EXPECT_STREQ(CString(var), "-5");
    var.vt = VT_UNKNOWN;
    var.punkVal = nullptr;
    EXPECT_STREQ(CString(var), "");

    USES_CONVERSION;
    EXPECT_STREQ(W2T(T2W("there and back")), "there and back");
    EXPECT_EQ(A2W(nullptr), nullptr);
    CStringW strWide(CString("wide"));
    strWide += L" text";
    EXPECT_STREQ(CW2A(strWide.Mid(5)), "text");
    strWide.Format(L"%s %d", L"of", 3);
    EXPECT_STREQ(CString(strWide), "of 3");
}

TEST(String, PartsOfAListLieBetweenSeparators) {
    const struct {
        int nPart;
        const char* pszPart;  ///< null: there is none
    } cases[] = {{0, "a"}, {1, ""}, {2, "b"}, {3, ""}, {4, nullptr}, {-1, nullptr}};
    for (const auto& [nPart, pszPart] : cases) {
        CString str("a||b|");
        EXPECT_EQ(AfxExtractSubString(str, str, nPart, '|') != FALSE, pszPart != nullptr);
        EXPECT_STREQ(str, pszPart != nullptr ? pszPart : "");
    }
}

}  // namespace
