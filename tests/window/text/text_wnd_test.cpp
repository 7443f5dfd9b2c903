#include "support/list_window.h"
#include "support/temp_file.h"
#include "support/text_window.h"
#include "window/refusals.h"

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
    EXPECT_EQ(text.AddStyle(kRed, kGreen), 1) << "style 0 is there";
    EXPECT_TRUE(text.Initialize(kTextId, &parent, 0)) << "each further call adds a style";
    EXPECT_EQ(text.AddStyle(kRed, kGreen), 3);
    EXPECT_EQ(text.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS);
}

// --- Painting

TEST(TextPaint, AStyleColoursItsRowToTheEnd) {
    TextWindow<> w;
    w.Resize(300, 6);
    w.text.AddStyle(kRed, kGreen);
    w.text.AddStyle(kBlue, kYellow);
    w.text.SetBkColor(kGrey);
    const struct {
        const char* pszText;
        int nStyle, nInk;  // bytes that are seen
        COLORREF crBehind;
    } kLines[] = {{"MMM", 1, 3, kGreen},
                  {"", 2, 0, kYellow},
                  {"x      ", 1, 1, kGreen},
                  {"plain", -1, 5, kGrey}};  // style 0 follows the window
    for (const auto& line : kLines) {
        w.text.AddText(line.pszText, line.nStyle);
    }
    w.text.CalcLayout();
    const Picture picture = w.text.Fresh();
    const auto expectAll = [&](COLORREF cr, const CRect& rc) {
        EXPECT_EQ(picture.Count(cr, rc), rc.Width() * rc.Height());
    };
    EXPECT_GT(picture.Count(kRed, w.text.RowRect(0)), 3);
    for (int nRow = 0; nRow < 4; ++nRow) {
        CRect rc = w.text.RowRect(nRow);
        const auto nInk = static_cast<size_t>(kLines[nRow].nInk);
        rc.left += w.text.Extent(std::string(kLines[nRow].pszText, nInk)).cx + 2;
        expectAll(kLines[nRow].crBehind, rc);
    }
    expectAll(kGrey, CRect(0, 4 * w.text.m_nCharHeight, 300, 6 * w.text.m_nCharHeight));
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
    const int nInk = picture.Count(kRed, CRect(0, h, 30, 2 * h));
    EXPECT_EQ(picture.Count(kRed, CRect(0, 0, 38, h)), nInk);
    EXPECT_EQ(picture.Count(kRed, CRect(8, 0, 38, h)), nInk);
    for (const int nRow : {2, 3}) {
        EXPECT_GT(picture.Count(kRed, w.text.RowRect(nRow)), 2 * nInk);
    }
}

TEST(TextPaint, AfterAClearNothingThatIsGoneShows) {
    TextWindow<> w;
    w.text.AddStyle(kRed, kGreen);
    w.Fill(50, 1);
    w.text.ScrollTo(30, 0);
    w.text.ClearTextData();
    EXPECT_EQ(w.text.NumLines(), 0);
    EXPECT_EQ(w.text.GetLine(0), nullptr);
    const Picture picture = w.text.Fresh();
    EXPECT_EQ(picture.Count(::GetSysColor(COLOR_WINDOW)), picture.Width() * picture.Height());
    w.Fill(1, 1);
    EXPECT_GT(w.text.Fresh().Count(kRed), 0);
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

TEST_F(TextFile, ExportsLinesAndNotRows) {
    w.text.AddStyle(kRed, kGreen);
    w.text.AddText("red", 1);
    w.text.AddText("", 0);
    const std::string strLong(500, 'M');
    w.text.AddText(strLong.c_str(), 0);
    w.text.CalcLayout();
    ASSERT_GT(w.text.NumRows(), 3);
    EXPECT_EQ(Exported(w.text), "red\r\n\r\n" + strLong + "\r\n");
    EXPECT_EQ(w.text.ExportData(m_strNowhere.c_str()), 0);
}

TEST_F(TextFile, AFullDiskIsAnException) {
    w.text.AddText("x", 0);
    ExpectFullDiskIsTold([&](LPCTSTR pszFile) { return w.text.ExportData(pszFile); });
}

// --- Clipboard and paper

TEST(TextClipboard, IsRefusedWhileSomebodyElseHasItOpen) {
    TextWindow<> w;
    EXPECT_EQ(w.text.CopyToClipboard(), 1);
    ASSERT_TRUE(::OpenClipboard(w.parent.m_hWnd));
    EXPECT_EQ(w.text.CopyToClipboard(), 0);
    ::CloseClipboard();
}

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
    const auto rows = [](OpenText& text) {
        std::string strRows = std::to_string(text.NumPages());
        CString strText;
        for (int nRow = 0, nStyle, nLine; text.GetPrintRow(nRow, strText, nStyle, nLine); ++nRow) {
            strRows += '|' + std::string(strText);
        }
        return strRows;
    };
    EXPECT_EQ(rows(a.text), "2|MMMM |MMMM|x|");
    EXPECT_EQ(rows(b.text), "2|1||2|3");
    a.text.FormatText(&dc, CSize(1000, size.cy / 2 - 1));
    EXPECT_EQ(a.text.NumPages() + b.text.NumPages(), 0) << "no row fits";
}

}  // namespace
