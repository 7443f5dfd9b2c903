#include "support/list_window.h"
#include "support/temp_file.h"
#include "support/text_window.h"
#include "window/refusals.h"

#include <afxext.h>

#include <gtest/gtest.h>

namespace {

class TextMemory : public testing::Test {
protected:
    TextMemory() {
        w.Resize(200, 10);
        for (int i = 0; i < 40; ++i) {
            w.text.AddText("several words that wrap, with \x80 and \x95 among them", 0);
        }
        w.text.CalcLayout();
    }

    TextWindow<Watched<OpenText>> w;
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
    EXPECT_EQ(w.text.nThrown, 0);
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
    EXPECT_EQ(w.text.nThrown, 0);
}

TEST_F(TextMemory, FilesAreReadAndWrittenOrRefused) {
    int bDone = 0;
    const TempFile exported;
    RefuseEach(
        "export", [&] { bDone = w.text.ExportData(exported.Path()); }, [] {});
    EXPECT_EQ(bDone, 1);
    const TempFile file("one\ntwo\n");
    RefuseEach(
        "load", [&] { bDone = w.text.LoadFile(file.Path(), 0); },
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
        [&] { EXPECT_EQ(w.text.NumPages() * w.text.LinesPerPage(), 40); });
    EXPECT_EQ(w.text.NumPages(), 2);
    CPrintInfo info;
    info.m_nCurPage = 1;
    CString strText;
    int nStyle = 0, nLine = 0, bRow = 0;
    RefuseEach(
        "row", [&] { bRow = w.text.StartPage(&dc, &info, strText, nStyle, nLine); },
        [&] {
            EXPECT_EQ(bRow, strText == w.text.GetLineText(0));
            strText.Empty();
        });
    EXPECT_EQ(bRow, 1);
}

constexpr UINT kItemId = 6;
template <class Window>
class WindowMemory : public testing::Test {};
using Windows =
    testing::Types<OpenText, QVHeaderWnd, QVTreeHeaderWnd, QVTextHeaderWnd, QVListHeaderWnd>;
TYPED_TEST_SUITE(WindowMemory, Windows);

TYPED_TEST(WindowMemory, IsMadeOrTakesThePlaceOfAnItemOrNot) {
    FontParent parent(CSize(300, 200));
    CRect rc(0, 0, 150, 100);
    ExpectMadeOrNot<TypeParam>([&](auto& window) {
        if constexpr (std::is_same_v<TypeParam, OpenText>) {
            return window.Create(rc, &parent, 5, 1);
        } else {
            return window.Create(WS_CHILD | WS_VISIBLE, rc, &parent, 5);
        }
    });
    const auto item = [&] { return ::GetDlgItem(parent.m_hWnd, kItemId); };
    ExpectMadeOrNot<TypeParam>(
        [&](auto& window) {
            if (item() == nullptr) {
                ::CreateWindow("STATIC", "", WS_CHILD | WS_VISIBLE, 160, 0, 90, 90, parent.m_hWnd,
                               reinterpret_cast<HMENU>(UINT_PTR{kItemId}), nullptr, nullptr);
            }
            if constexpr (std::is_same_v<TypeParam, OpenText>) {
                return window.Initialize(kItemId, &parent, 0);
            } else {
                return window.Initialize(kItemId, &parent);
            }
        },
        [&] { EXPECT_NE(item(), nullptr) << "one of both is there"; });
}

template <class Header>
class CaptionMemory : public testing::Test {};
using Headers = testing::Types<QVHeaderWnd, QVTreeHeaderWnd, QVTextHeaderWnd, QVListHeaderWnd>;
TYPED_TEST_SUITE(CaptionMemory, Headers);

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
    EXPECT_EQ(header.nThrown, 0);
}

}  // namespace
