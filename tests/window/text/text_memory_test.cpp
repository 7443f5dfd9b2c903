#include "support/failing_heap.h"
#include "support/list_window.h"
#include "support/text_window.h"

#include <afxext.h>

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>

namespace {

// Counts what its message handlers throw.
template <class Window>
class Watched : public Window {
public:
    int nLeft = 0;

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        try {
            return Window::WindowProc(nMessage, wParam, lParam);
        } catch (...) {
            ++nLeft;
            return 0;
        }
    }
};

// Each allocation of an operation is refused in turn, alone and with all later ones. One that asks
// for none cannot go wrong.
template <class Operation, class Check>
void RefuseEach(const char* pszWhat, Operation operation, Check check) {
    int nThrown = 0;
    for (const FailingHeap::Mode mode : {FailingHeap::kAllLater, FailingHeap::kJustOne}) {
        RefuseEachAllocation(
            mode,
            [&] {
                try {
                    operation();
                } catch (...) {
                    ++nThrown;
                }
            },
            [&](int) { check(); });
    }
    EXPECT_EQ(nThrown, 0) << pszWhat;
}

class TextMemory : public testing::Test {
protected:
    TextMemory() {
        w.Resize(200, 10);
        for (int i = 0; i < 40; ++i) {
            w.text.AddText("several words that wrap, with \x80 and \x95 among them", 0);
        }
        w.text.CalcLayout();
        std::ofstream(strPath) << "one\ntwo\n";
    }
    ~TextMemory() override { std::remove(strPath.c_str()); }

    static std::string TempFile() {
        char szDir[MAX_PATH];
        ::GetTempPath(MAX_PATH, szDir);
        return std::string(szDir) + "qv_text_memory.txt";
    }

    TextWindow<Watched<OpenText>> w;
    const std::string strPath = TempFile();
};

TEST_F(TextMemory, LayoutsKeepTheRowsThatThereAre) {
    const int nRows = w.text.NumRows();
    const auto kept = [&] {
        EXPECT_EQ(w.text.NumLines(), 40);
        EXPECT_GE(w.text.NumRows(), 40);
        EXPECT_TRUE(w.text.HasBar(SB_VERT));
    };
    int nStep = 0;
    RefuseEach(
        "resize",
        [&] {
            w.text.SetWindowPos(nullptr, 0, 0, ++nStep % 2 == 0 ? 200 : 150, 130,
                                SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW);
        },
        kept);
    RefuseEach(
        "exact layout", [&] { w.text.SetExactLayout(++nStep % 2 == 0); }, kept);
    w.text.SetExactLayout(FALSE);
    w.Resize(200, 10);
    w.text.CalcLayout();
    EXPECT_EQ(w.text.NumRows(), nRows);
    EXPECT_EQ(w.text.nLeft, 0);
}

TEST_F(TextMemory, PaintsAndScrollsLetNothingOut) {
    const Picture whole = w.text.Fresh();
    RefuseEach(
        "paint",
        [&] {
            ::InvalidateRect(w.text.m_hWnd, nullptr, FALSE);
            ::UpdateWindow(w.text.m_hWnd);
        },
        [&] { EXPECT_FALSE(::GetUpdateRect(w.text.m_hWnd, nullptr, FALSE)); });
    EXPECT_TRUE(w.text.Fresh() == whole);
    const auto send = [&](UINT nMessage, WPARAM wParam) {
        RefuseEach(
            "message", [&] { ::SendMessage(w.text.m_hWnd, nMessage, wParam, 0); },
            [&] { w.text.ScrollTo(5, 0); });
    };
    send(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA));
    send(WM_KEYDOWN, VK_NEXT);
    RefuseEach(
        "scroll", [&] { w.text.ScrollTo(20, 0); }, [&] { w.text.ScrollTo(5, 0); });
    EXPECT_EQ(w.text.nLeft, 0);
}

TEST_F(TextMemory, FilesAreReadAndWrittenOrRefused) {
    int bDone = 0;
    RefuseEach(
        "export", [&] { bDone = w.text.ExportData(strPath.c_str()); }, [] {});
    EXPECT_EQ(bDone, 1);
    std::ofstream(strPath) << "one\ntwo\n";
    RefuseEach(
        "load", [&] { bDone = w.text.LoadFile(strPath.c_str(), 0); },
        [&] { EXPECT_TRUE(!bDone || w.text.NumLines() == 2); });
    EXPECT_EQ(bDone, 1);
    EXPECT_STREQ(w.text.GetLineText(1), "two");
}

TEST_F(TextMemory, PagesOfBeforeStayAndRowsComeTheNextTime) {
    TextRecorder dc;
    const int h = dc.GetTextExtent(" ", 1).cy;
    w.text.FormatText(&dc, CSize(1000, 10 * h));
    ASSERT_EQ(w.text.NumPages(), 4);
    RefuseEach(
        "format", [&] { w.text.FormatText(&dc, CSize(1000, 20 * h)); },
        [&] {
            EXPECT_EQ(w.text.NumPages() * w.text.LinesPerPage(), 40);
            EXPECT_EQ(w.text.NumPrintRows(), 40);
        });
    EXPECT_EQ(w.text.NumPages(), 2);
    CPrintInfo info;
    info.m_nCurPage = 1;
    CString strText;
    int nStyle = 0;
    int nLine = 0;
    int bRow = 0;
    const auto rows = [&](const char* pszWhat, auto get) {
        RefuseEach(
            pszWhat,
            [&] {
                strText.Empty();
                bRow = get();
            },
            [&] { EXPECT_EQ(bRow, strText == w.text.GetLineText(0)); });
        EXPECT_EQ(bRow, 1) << pszWhat;
    };
    rows("row", [&] { return w.text.GetPrintRow(3, strText, nStyle, nLine); });
    EXPECT_EQ(nLine, 3);
    rows("page", [&] { return w.text.StartPage(&dc, &info, strText, nStyle, nLine); });
    rows("current", [&] { return w.text.GetCurrentLine(&dc, strText, nStyle, nLine); });
}

TEST_F(TextMemory, AWindowIsMadeOrNot) {
    Watched<OpenText> text;
    int bDone = 0;
    RefuseEach(
        "create",
        [&] {
            CRect rc(0, 0, 50, 50);
            bDone = text.Create(rc, &w.parent, 5, 1);
        },
        [&] {
            EXPECT_EQ(bDone, text.m_hWnd != nullptr);
            text.DestroyWindow();
        });
    EXPECT_EQ(bDone, 1);
    const auto place = [&] {
        text.DestroyWindow();
        if (::GetDlgItem(w.parent.m_hWnd, 6) == nullptr) {
            ::CreateWindow("STATIC", "", WS_CHILD, 0, 0, 9, 9, w.parent.m_hWnd,
                           reinterpret_cast<HMENU>(6), nullptr, nullptr);
        }
    };
    place();
    RefuseEach(
        "initialize", [&] { bDone = text.Initialize(6, &w.parent, 0); },
        [&] {
            EXPECT_EQ(bDone, text.m_hWnd != nullptr);
            EXPECT_NE(::GetDlgItem(w.parent.m_hWnd, 6), nullptr) << "one of both is there";
            place();
        });
    EXPECT_EQ(bDone, 1);
    EXPECT_EQ(text.nLeft, 0);
}

template <class Header>
class CaptionMemory : public testing::Test {};
using Headers = testing::Types<QVHeaderWnd, QVTreeHeaderWnd, QVTextHeaderWnd, QVListHeaderWnd>;
TYPED_TEST_SUITE(CaptionMemory, Headers);

TYPED_TEST(CaptionMemory, AWindowIsMadeOrNot) {
    FontParent parent(CSize(300, 200));
    Watched<TypeParam> header;
    BOOL bDone = FALSE;
    RefuseEach(
        "create",
        [&] {
            CRect rc(0, 0, 150, 100);
            bDone = header.Create(WS_CHILD | WS_VISIBLE, rc, &parent, 7);
        },
        [&] {
            EXPECT_EQ(bDone, header.m_hWnd != nullptr);
            header.DestroyWindow();
        });
    EXPECT_TRUE(bDone);
    RefuseEach(
        "attach", [&] { bDone = header.Initialize(8, &parent); },
        [&] {
            EXPECT_EQ(bDone, header.m_hWnd != nullptr);
            header.DestroyWindow();
            if (::GetDlgItem(parent.m_hWnd, 8) == nullptr) {
                ::CreateWindow("STATIC", "", WS_CHILD | WS_VISIBLE, 160, 0, 90, 90, parent.m_hWnd,
                               reinterpret_cast<HMENU>(8), nullptr, nullptr);
            }
        });
    EXPECT_TRUE(bDone);
    EXPECT_EQ(header.nLeft, 0);
}

TYPED_TEST(CaptionMemory, CaptionsAndPaintsLetNothingOut) {
    FontParent parent(CSize(300, 200));
    Watched<TypeParam> header;
    CRect rc(0, 0, 150, 100);
    ASSERT_TRUE(header.Create(WS_CHILD | WS_VISIBLE, rc, &parent, 7));
    header.SetHeaderText("before");
    header.RedrawWindow();
    const Picture before = Picture::OfClient(header.m_hWnd);
    RefuseEach(
        "caption", [&] { header.SetHeaderText("a caption of some length"); }, [] {});
    const Picture after = Picture::OfClient(header.m_hWnd);
    EXPECT_FALSE(before == after);
    RefuseEach(
        "paint",
        [&] {
            ::RedrawWindow(header.m_hWnd, nullptr, nullptr,
                           RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_NOCHILDREN);
        },
        [] {});
    ::RedrawWindow(header.m_hWnd, nullptr, nullptr,
                   RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_TRUE(Picture::OfClient(header.m_hWnd) == after) << "with memory, all of it";
    EXPECT_EQ(header.nLeft, 0);
}

}  // namespace
