#include "support/list_window.h"
#include "support/pump.h"
#include "support/temp_file.h"
#include "support/text_window.h"

#include <afxext.h>
#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kYellow = RGB(255, 255, 0);
constexpr COLORREF kGrey = RGB(200, 200, 200);

// --- Life

TEST(TextLife, TakesThePlaceOfAControl) {
    FontParent parent(CSize(300, 200));
    CWnd place;
    place.CreateEx(0, "STATIC", "", WS_CHILD | WS_VISIBLE, 20, 30, 150, 90, parent.m_hWnd,
                   reinterpret_cast<HMENU>(UINT_PTR{kTextId}));
    const HWND hPlace = place.m_hWnd;
    OpenText text;
    EXPECT_FALSE(text.Initialize(kTextId + 1, &parent, 1)) << "no such control";
    EXPECT_EQ(text.m_hWnd, nullptr);
    ASSERT_TRUE(text.Initialize(kTextId, &parent, 1));
    EXPECT_FALSE(::IsWindow(hPlace));
    EXPECT_EQ(::GetDlgItem(parent.m_hWnd, kTextId), text.m_hWnd);
    CRect rc;
    text.GetWindowRect(&rc);
    parent.ScreenToClient(&rc);
    EXPECT_EQ(rc, CRect(20, 30, 170, 120));
    EXPECT_TRUE(text.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_EQ(text.GetStyle() & (WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER),
              DWORD{WS_CHILD | WS_VISIBLE | WS_TABSTOP});
    EXPECT_EQ(text.m_nCharHeight, text.Extent("O").cy);
    EXPECT_EQ(text.m_nCharWidth, text.Extent("O").cx);
    EXPECT_EQ(text.AddStyle(kRed, kGreen), 1) << "style 0 is there";
    EXPECT_TRUE(text.Initialize(kTextId, &parent, 0)) << "each further call adds a style";
    EXPECT_EQ(text.AddStyle(kRed, kGreen), 3);
    EXPECT_EQ(text.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS);
}

TEST(TextLife, ABorderBecomesASunkenEdge) {
    TextWindow<> plain;
    EXPECT_FALSE(plain.text.GetExStyle() & WS_EX_CLIENTEDGE);
    OpenText text;
    const CRect rc(0, 0, 50, 50);
    ASSERT_TRUE(text.CWnd::Create(nullptr, "", WS_CHILD | WS_BORDER, rc, &plain.parent, 5));
    EXPECT_TRUE(text.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_FALSE(text.GetStyle() & WS_BORDER);
}

// --- Painting

TEST(TextPaint, AStyleColoursItsRowToTheEnd) {
    TextWindow<> w;
    w.Resize(300, 6);
    w.text.AddStyle(kRed, kGreen);
    w.text.AddStyle(kBlue, kYellow);
    w.text.SetBkColor(kGrey);
    w.text.AddText("MMM", 1);
    w.text.AddText("", 2);
    w.text.AddText("x      ", 1);
    w.text.AddText("plain", -1);
    w.text.CalcLayout();
    const Picture picture = w.text.Fresh();
    const auto all = [](const CRect& rc) { return rc.Width() * rc.Height(); };
    const auto behind = [&](int nRow, const char* pszText) {
        CRect rc = w.text.RowRect(nRow);
        rc.left += w.text.Extent(pszText).cx + 2;
        return rc;
    };
    EXPECT_GT(picture.Count(kRed, w.text.RowRect(0)), 3);
    EXPECT_EQ(picture.Count(kGreen, behind(0, "MMM")), all(behind(0, "MMM")));
    EXPECT_EQ(picture.Count(kYellow, w.text.RowRect(1)), all(w.text.RowRect(1))) << "an empty line";
    EXPECT_EQ(picture.Count(kGreen, behind(2, "x")), all(behind(2, "x")));
    EXPECT_EQ(picture.Count(kGrey, behind(3, "plain")), all(behind(3, "plain")))
        << "style 0 follows the window";
    EXPECT_EQ(
        picture.Count(kGrey, CRect(0, 4 * w.text.m_nCharHeight, 300, 6 * w.text.m_nCharHeight)),
        300 * 2 * w.text.m_nCharHeight);
}

TEST(TextPaint, TheLastRowShowsInPart) {
    TextWindow<> w;
    const int h = w.text.m_nCharHeight;
    w.text.AddStyle(kRed, kGreen);
    w.Resize(300, 5, h / 2);
    w.Fill(9, 1);
    const Picture picture = w.text.Fresh();
    ASSERT_EQ(picture.Height(), 5 * h + h / 2);
    const CRect rcPart(150, 5 * h, picture.Width(), picture.Height());
    EXPECT_EQ(picture.Count(kGreen, rcPart), rcPart.Width() * rcPart.Height());
    EXPECT_GT(picture.Count(kRed, CRect(0, 5 * h, 100, picture.Height())), 0);
}

TEST(TextPaint, LongLinesWrapAndTabsStandOnMultiplesOfEight) {
    TextWindow<> w;
    w.text.AddStyle(kRed, kGreen);
    w.Resize(w.text.Extent("MMMM MM").cx, 6);
    for (const char* psz : {"\tI", "I", "MMMM MMMM"}) {
        w.text.AddText(psz, 1);
    }
    w.text.CalcLayout();
    EXPECT_EQ(w.text.NumRows(), 4);
    const Picture picture = w.text.Fresh();
    const int h = w.text.m_nCharHeight;
    EXPECT_EQ(picture.Count(kGreen, CRect(0, 0, 8, h)), 8 * h);
    const int nInk = picture.Count(kRed, CRect(0, h, 30, 2 * h));
    EXPECT_EQ(picture.Count(kRed, CRect(8, 0, 38, h)), nInk);
    for (const int nRow : {2, 3}) {
        EXPECT_GT(picture.Count(kRed, w.text.RowRect(nRow)), 2 * nInk);
    }
}

TEST(TextPaint, AfterAClearNothingThatIsGoneIsRead) {
    TextWindow<> w;
    w.text.AddStyle(kRed, kGreen);
    w.Fill(50, 1);
    w.text.ScrollTo(30, 0);
    w.text.ClearTextData();
    EXPECT_EQ(w.text.NumLines(), 0);
    EXPECT_EQ(w.text.GetLine(0), nullptr);
    const auto blank = [&] {
        const Picture picture = w.text.Fresh();
        return picture.Count(::GetSysColor(COLOR_WINDOW)) == picture.Width() * picture.Height();
    };
    EXPECT_TRUE(blank());
    w.text.AddText("x", 1);
    w.text.Fresh();
    w.text.CalcLayout();
    EXPECT_FALSE(blank());
    EXPECT_FALSE(w.text.HasBar(SB_VERT));
}

// Looks at the screen before each row is drawn.
class WatchedText : public OpenText {
public:
    int nRows = 0;
    int nErased = 0;

protected:
    void DrawText(CDC& dc, int nRow, const CString& strText, int nStyle, int nFrom,
                  int nTo) override {
        ++nRows;
        CClientDC dcScreen(this);
        const CRect rc = RowRect(nRow);
        nErased += dcScreen.GetPixel(rc.right - 20, rc.top + 1) != kRed ||
                   dcScreen.GetPixel(1, rc.bottom - 1) != kRed;
        QVTextWnd::DrawText(dc, nRow, strText, nStyle, nFrom, nTo);
    }
};

TEST(TextPaint, NothingIsErasedUnderARow) {
    TextWindow<WatchedText> w;
    w.Resize(300, 4);
    w.Fill(3);
    w.text.UpdateWindow();
    CClientDC(&w.text).FillSolidRect(0, 0, 300, 200, kRed);
    w.text.nRows = w.text.nErased = 0;
    w.text.Invalidate(TRUE);
    const Picture picture = Picture::OfClient(w.text.m_hWnd);
    EXPECT_EQ(w.text.nRows, 3);
    EXPECT_EQ(w.text.nErased, 0);
    EXPECT_EQ(picture.Count(kRed), 0);
}

TEST(TextPaint, KeepsNoHandles) {
    TextWindow<> w;
    w.text.AddStyle(kRed, kGreen);
    w.Fill(30, 1);
    w.text.Fresh();
    const long nHandles = AfxGetOwnedHandleCount();
    for (int i = 0; i < 2000; ++i) {
        w.text.Invalidate(FALSE);
        w.text.UpdateWindow();
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

// --- What comes out

std::string ClipboardText() {
    std::string strText;
    if (::OpenClipboard(nullptr)) {
        const HANDLE hText = ::GetClipboardData(CF_TEXT);
        if (const void* p = hText != nullptr ? ::GlobalLock(hText) : nullptr) {
            strText.append(static_cast<const char*>(p));
            ::GlobalUnlock(hText);
        }
        ::CloseClipboard();
    }
    return strText;
}

// The rows of each page as a caller gets them with one variable for the line: '|' between rows.
std::vector<std::string> PrintedPages(QVTextWnd& text, CDC& dc) {
    std::vector<std::string> pages;
    CString strText;
    int nStyle = -1;
    int nLine = 0;
    CPrintInfo info;
    for (int nPage = 1; nPage <= text.NumPages(); ++nPage) {
        info.m_nCurPage = static_cast<UINT>(nPage);
        std::string strPage;
        int bRow = text.StartPage(&dc, &info, strText, nStyle, nLine);
        for (; bRow; bRow = text.NextLine(&dc, &info, strText, nStyle, nLine)) {
            strPage.append(strText).append("/").append(std::to_string(nStyle)).append("|");
        }
        pages.push_back(strPage);
    }
    return pages;
}

// --- Files

class TextFile : public testing::Test {
protected:
    int Load(const std::string& strBytes, int nStyle = 0) {
        return w.text.LoadFile(TempFile(strBytes).Path(), nStyle);
    }
    // All lines, '|' between.
    std::string Lines() {
        std::string str;
        for (int i = 0; i < w.text.NumLines(); ++i) {
            str += i > 0 ? "|" : "";
            str += w.text.Text(i);
        }
        return str;
    }
    static std::string Exported(QVTextWnd& text) {
        const TempFile file;
        EXPECT_EQ(text.ExportData(file.Path()), 1);
        return file.Content();
    }

    TextWindow<> w;
    const std::string m_strNowhere = std::string(TempFile().Path()) + "\\no such folder";
};

TEST_F(TextFile, EveryKindOfLineEndEndsALineAndAZeroIsABlank) {
    using namespace std::string_literals;
    for (const auto& [strBytes, strLines] : {std::pair{"a\r\nb\n\nlast"s, "a|b||last"s},
                                             {"a\0b\0\r\n\0\0\nc"s, "a b |  |c"s},
                                             {""s, ""s},
                                             {"a\nb\n"s, "a|b"s}}) {
        EXPECT_EQ(Load(strBytes), 1);
        EXPECT_EQ(Lines(), strLines);
        EXPECT_EQ(w.text.NumRows(), w.text.NumLines());
    }
    EXPECT_EQ(w.text.LoadFile(m_strNowhere.c_str(), 0), 0);
    EXPECT_EQ(w.text.LoadFile(".", 0), 0) << "a directory";
    EXPECT_EQ(Lines(), "a|b") << "the lines of before";
    EXPECT_EQ(Load("one\r\n", 1), 1);
    EXPECT_EQ(Lines(), "bone") << "no such style yet: its letter shows";
    w.text.AddStyle(kRed, kGreen);
    EXPECT_EQ(Lines(), "one");
    EXPECT_GT(w.text.Fresh().Count(kGreen), 100);
}

TEST_F(TextFile, ALineMayHaveAMegabyte) {
    const std::string strLong(1024 * 1024, 'x');
    ASSERT_EQ(Load(std::string("a\n").append(strLong).append("\nb\n")), 1);
    ASSERT_EQ(w.text.NumLines(), 3);
    EXPECT_TRUE(w.text.Text(1) == strLong);
    EXPECT_EQ(w.text.Text(2), "b");
    EXPECT_GT(w.text.NumRows(), 1000);
    w.text.ScrollTo(w.text.NumRows(), 0);
    EXPECT_GT(w.text.Fresh().Count(::GetSysColor(COLOR_WINDOWTEXT)), 50);
}

// A disk or a network that goes away in the middle of a file.
class VanishingFile : public CStdioFile {
public:
    using CStdioFile::ReadString;
    LPTSTR ReadString(LPTSTR psz, UINT nMax) override {
        if (m_nLeft-- == 0) {
            AfxThrowFileException(CFileException::genericException, -1, GetFileName());
        }
        return CStdioFile::ReadString(psz, nMax);
    }

private:
    int m_nLeft = 2;
};

TEST_F(TextFile, WhatWasReadBeforeAFaultStaysAndShows) {
    const TempFile temp("one\ntwo\nthree\nfour\n");
    VanishingFile file;
    ASSERT_TRUE(file.Open(temp.Path(), CFile::modeRead | CFile::typeText));
    EXPECT_EQ(w.text.LoadFile(file, 0), 0);
    EXPECT_EQ(Lines(), "one|two");
    EXPECT_EQ(w.text.NumRows(), 2);
}

TEST_F(TextFile, ExportsLinesAndNotRows) {
    w.text.AddStyle(kRed, kGreen);
    w.text.AddText("red", 1);
    w.text.AddText("", 0);
    const std::string strLong(500, 'M');
    w.text.AddText(strLong.c_str(), 0);
    w.text.CalcLayout();
    ASSERT_GT(w.text.NumRows(), 3);
    EXPECT_EQ(Exported(w.text), std::string("red\r\n\r\n").append(strLong).append("\r\n"));
    w.text.ClearTextData();
    EXPECT_EQ(Exported(w.text), "");
    EXPECT_EQ(w.text.ExportData(m_strNowhere.c_str()), 0);
}

TEST_F(TextFile, LinesOfAWindowThatIsNotMadeYetComeOutWithoutCodes) {
    OpenText text;
    text.AddText("abc", 0);
    text.AddText("", 3);
    text.AddText("\033a plain escape", 1);
    EXPECT_EQ(Exported(text), "abc\r\n\r\n\033a plain escape\r\n");
    EXPECT_EQ(text.CopyToClipboard(), 1);
    EXPECT_EQ(ClipboardText(), "abc\r\n\r\n\033a plain escape\r\n\r\n");
    TextRecorder dc;
    text.FormatText(&dc, CSize(1000, 1000));
    EXPECT_EQ(PrintedPages(text, dc), std::vector<std::string>{"abc/0|/0|\033a plain escape/0|"});

    w.text.AddText("abc", 7);
    EXPECT_EQ(Exported(w.text), "habc\r\n") << "no such style: its letter shows, as in the window";
    EXPECT_STREQ(w.text.GetLineText(0), "abc");
    EXPECT_EQ(w.text.GetLineText(1), nullptr);
}

TEST_F(TextFile, AFullDiskIsAnException) {
    w.text.AddText("x", 0);
    try {
        if (!w.text.ExportData("Z:\\dev\\full")) {
            GTEST_SKIP() << "needs a device that is always full";
        }
        FAIL() << "nothing was said";
    } catch (CFileException* pException) {
        EXPECT_EQ(pException->m_cause, CFileException::diskFull);
        pException->Delete();
    }
}

// --- Clipboard

TEST(TextClipboard, AnotherProgramPastesWhatWasCopied) {
    TextWindow w;
    w.text.AddText("copied \xe9", 0);
    w.text.AddText("and more", 0);
    ASSERT_EQ(w.text.CopyToClipboard(), 1);
    char szProgram[MAX_PATH];
    ::GetModuleFileName(nullptr, szProgram, MAX_PATH);
    const TempFile file;
    CString strCommand;
    strCommand.Format("\"%s\" --paste-into \"%s\"", szProgram, file.Path());
    STARTUPINFO start{};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process{};
    ASSERT_TRUE(::CreateProcess(nullptr, strCommand.GetBuffer(), nullptr, nullptr, FALSE, 0,
                                nullptr, nullptr, &start, &process));
    // The other program may ask this one for the text.
    const bool bEnded =
        PumpUntil([&] { return ::WaitForSingleObject(process.hProcess, 10) == WAIT_OBJECT_0; });
    DWORD dwResult = 1;
    ::GetExitCodeProcess(process.hProcess, &dwResult);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    ASSERT_TRUE(bEnded);
    EXPECT_EQ(dwResult, 0u);
    EXPECT_EQ(file.Content(), "copied \xe9\r\nand more\r\n\r\n");
}

TEST(TextClipboard, HoldsAllLinesAndAnEmptyOne) {
    TextWindow<> w;
    EXPECT_EQ(w.text.CopyToClipboard(), 1);
    EXPECT_EQ(ClipboardText(), "\r\n");
    w.text.AddStyle(kRed, kGreen);
    w.text.AddText("a", 1);
    w.text.AddText("", 0);
    w.text.AddText("b\tc", 0);
    EXPECT_EQ(w.text.CopyToClipboard(), 1);
    EXPECT_EQ(ClipboardText(), "a\r\n\r\nb\tc\r\n\r\n");
    w.text.ClearTextData();
    ASSERT_TRUE(::OpenClipboard(w.parent.m_hWnd));
    EXPECT_EQ(w.text.CopyToClipboard(), 0) << "somebody else has it open";
    ::CloseClipboard();
    EXPECT_EQ(ClipboardText(), "a\r\n\r\nb\tc\r\n\r\n");
}

// --- Printing

TEST(TextPrint, PartnersStayLevel) {
    TextWindow<> a;
    TextWindow<> b;
    TextRecorder dc;
    a.text.SyncWith(&b.text, 1);
    a.text.AddText("MMMM MMMM", 0);
    a.text.AddText("x", 0);
    for (const char* psz : {"1", "2", "3"}) {
        b.text.AddText(psz, 0);
    }
    const CSize size(dc.GetTextExtent("MMMM MM", 7).cx, 2 * dc.GetTextExtent(" ", 1).cy);
    a.text.FormatText(&dc, size);
    EXPECT_EQ(PrintedPages(a.text, dc), (std::vector<std::string>{"MMMM /0|MMMM/0|", "x/0|/0|"}));
    EXPECT_EQ(PrintedPages(b.text, dc), (std::vector<std::string>{"1/0|/0|", "2/0|3/0|"}));
    a.text.FormatText(&dc, CSize(1000, size.cy / 2 - 1));
    EXPECT_EQ(a.text.NumPages() + b.text.NumPages(), 0) << "no row fits";
}

}  // namespace
