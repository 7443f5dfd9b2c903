#include "frame/dc_guards.h"
#include "support/list_window.h"
#include "support/picture.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace {

constexpr UINT kHeaderId = 90;
constexpr UINT kInnerId = 91;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
constexpr UINT kProbe = 5000;  // a notification code that no control uses
constexpr UINT kCommand = 5;

template <class Header>
class Open : public Header {
public:
    using Header::CalcBackgroundRect;
    using Header::CalcHeaderRect;
    using Header::CalcHeaderTextRect;
    using Header::m_bFillBody;
    using Header::m_hHeaderFont;
};

// In a parent with a font, not created yet.
template <class Header>
struct Window {
    bool Create(DWORD dwStyle = kChild) {
        CRect rc(10, 10, 210, 130);
        return header.Create(dwStyle, rc, &parent, kHeaderId);
    }
    CRect Bar() {
        CRect rc;
        header.CalcHeaderRect(rc);
        return rc;
    }
    CRect Body() {
        CRect rc;
        header.CalcBackgroundRect(rc);
        return rc;
    }
    // In the header's client pixels.
    CRect PlaceOf(CWnd& wnd) {
        CRect rc;
        wnd.GetWindowRect(&rc);
        header.ScreenToClient(&rc);
        return rc;
    }
    int Children() {
        int n = 0;
        for (HWND h = ::GetWindow(header.m_hWnd, GW_CHILD); h != nullptr;
             h = ::GetWindow(h, GW_HWNDNEXT)) {
            ++n;
        }
        return n;
    }
    LRESULT SendProbe(UINT nID) {
        NMHDR nm{parent.m_hWnd, nID, kProbe};
        return header.SendMessage(WM_NOTIFY, nID, reinterpret_cast<LPARAM>(&nm));
    }
    LRESULT SendCommand(UINT nID) {
        return header.SendMessage(WM_COMMAND, MAKEWPARAM(nID, kCommand),
                                  reinterpret_cast<LPARAM>(header.m_hWnd));
    }
    Picture Shown() {
        header.RedrawWindow();
        return Picture::OfClient(header.m_hWnd);
    }

    FontParent parent{CSize(300, 200)};
    Open<Header> header;
};

// A window of a plain class, as a dialog makes it for an item.
HWND MakeItem(CWnd& parent) {
    CWnd item;
    item.Create(nullptr, "", kChild, CRect(0, 0, 150, 90), &parent, kHeaderId);
    return item.UnsubclassWindow();
}

class SpyList : public QVListCtrlEx {
    DECLARE_DYNCREATE(SpyList)

public:
    ~SpyList() override { ++s_nDeleted; }
    BOOL Initialize(UINT nID, UINT nBitmapID, COLORREF crMask, int cx, CWnd* pParent) override {
        m_nBitmap = nBitmapID;
        m_crMask = crMask;
        m_cx = cx;
        return m_bAccepts && QVListCtrlEx::Initialize(nID, nBitmapID, crMask, cx, pParent);
    }
    UINT m_nBitmap = 0;
    COLORREF m_crMask = 0;
    int m_cx = 0;
    bool m_bAccepts = true;
    static int s_nDeleted;
};
int SpyList::s_nDeleted = 0;
IMPLEMENT_DYNCREATE(SpyList, QVListCtrlEx)

TEST(HeaderWnd, ABorderBecomesASunkenFrame) {
    for (const DWORD dwBorder : {DWORD{0}, DWORD{WS_BORDER}}) {
        Window<QVHeaderWnd> w;
        ASSERT_TRUE(w.Create(kChild | dwBorder));
        EXPECT_FALSE(w.header.GetStyle() & WS_BORDER);
        EXPECT_EQ((w.header.GetExStyle() & WS_EX_CLIENTEDGE) != 0, dwBorder != 0);
    }
}

TEST(HeaderWnd, TheBarFitsTheFontOfTheParents) {
    Window<QVHeaderWnd> w;
    ASSERT_TRUE(w.Create());
    EXPECT_EQ(w.header.m_hHeaderFont, static_cast<HFONT>(*w.parent.GetFont()));
    TextRecorder dc;
    const auto heightIn = [&dc](HFONT hFont) {
        const qv::SelectGuard<CFont> font(dc, hFont);
        TEXTMETRIC metrics;
        dc.GetTextMetrics(&metrics);
        return static_cast<int>(metrics.tmHeight) + 4;
    };
    EXPECT_EQ(w.header.HeaderHeight(), heightIn(w.header.m_hHeaderFont));
    RecordingParent bare;
    Open<QVHeaderWnd> fontless;
    CRect rc(0, 0, 100, 50);
    ASSERT_TRUE(fontless.Create(kChild, rc, &bare, kHeaderId));
    EXPECT_EQ(fontless.m_hHeaderFont, nullptr);
    EXPECT_EQ(fontless.HeaderHeight(), heightIn(nullptr));
}

TEST(HeaderWnd, AttachesToAnItemOnce) {
    Window<QVListHeaderWnd> w;
    EXPECT_EQ(w.header.Initialize(kHeaderId, &w.parent), 0) << "no such item";
    EXPECT_EQ(w.header.Initialize(kHeaderId, nullptr), 0);
    const HWND hItem = MakeItem(w.parent);
    ASSERT_EQ(w.header.Initialize(kHeaderId, &w.parent), 1);
    EXPECT_EQ(w.header.m_hWnd, hItem);
    EXPECT_EQ(w.PlaceOf(*w.header.GetListBox()), w.Body());
    EXPECT_EQ(w.header.Initialize(kHeaderId, &w.parent), 1);
    EXPECT_EQ(w.Children(), 1);

    Window<QVTreeHeaderWnd> tree;
    ASSERT_TRUE(tree.Create());
    EXPECT_EQ(tree.header.Initialize(kHeaderId, &tree.parent), 1);
    EXPECT_EQ(tree.Children(), 1);
    EXPECT_EQ(tree.header.GetTreeCtrl().GetStyle() & 0x37u, 0x37u);
}

TEST(HeaderWnd, ACaptionInvalidatesTheBarAlone) {
    Window<QVHeaderWnd> w;
    w.header.SetHeaderText("before");
    ASSERT_TRUE(w.Create());
    w.header.UpdateWindow();
    CRect rcText;
    w.header.CalcHeaderTextRect(rcText);
    EXPECT_GT(rcText.Width(), 0) << "kept until the window came";
    CRect rcDue;
    ASSERT_FALSE(w.header.GetUpdateRect(&rcDue));
    w.header.SetHeaderText("a longer one");
    EXPECT_TRUE(w.header.GetUpdateRect(&rcDue));
    EXPECT_EQ(rcDue, w.Bar());
    CRect rcLonger;
    w.header.CalcHeaderTextRect(rcLonger);
    EXPECT_GT(rcLonger.Width(), rcText.Width());
    w.header.SetHeaderText(59999u);
    CRect rcSame;
    w.header.CalcHeaderTextRect(rcSame);
    EXPECT_EQ(rcSame, rcLonger) << "no such string";
}

TEST(HeaderWnd, PaintsARaisedBarAFrameLineAndTheBody) {
    Window<QVHeaderWnd> w;
    ASSERT_TRUE(w.Create());
    w.header.SetHeaderHeight(61);
    const Picture empty = w.Shown();
    const CRect rc = w.Bar();
    ASSERT_EQ(rc, CRect(0, 0, 200, 60));
    EXPECT_EQ(empty.Count(::GetSysColor(COLOR_BTNHIGHLIGHT), CRect(0, 0, 199, 1)), 199);
    EXPECT_EQ(empty.Count(::GetSysColor(COLOR_BTNSHADOW), CRect(0, 59, 200, 60)), 200);
    EXPECT_EQ(empty.Count(::GetSysColor(COLOR_BTNSHADOW), CRect(199, 0, 200, 60)), 60);
    EXPECT_EQ(empty.Count(::GetSysColor(COLOR_WINDOWFRAME), CRect(0, 60, 200, 61)), 200);
    EXPECT_EQ(empty.Count(::GetSysColor(COLOR_BTNFACE), CRect(1, 1, 199, 59)), 198 * 58);
    EXPECT_EQ(empty.Count(::GetSysColor(COLOR_WINDOW), w.Body()), 200 * 59);
    {
        CClientDC dc(&w.header);
        dc.FillSolidRect(CRect(0, 80, 200, 120), RGB(255, 0, 0));
    }
    w.header.m_bFillBody = FALSE;
    const LONG nHandles = AfxGetOwnedHandleCount();
    EXPECT_EQ(w.Shown().Count(RGB(255, 0, 0)), 200 * 40) << "the body is left alone";
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

TEST(HeaderWnd, TheCaptionKeepsToItsPlaceInTheBar) {
    Window<QVHeaderWnd> w;
    ASSERT_TRUE(w.Create());
    const int nTextHeight = w.header.HeaderHeight() - 4;
    w.header.SetHeaderHeight(61);
    w.header.SetHeaderText("&Wg with far more text than the bar of this window has room for");
    const Picture shown = w.Shown();
    const auto bare = [&](const CRect& rc) {
        return shown.Count(::GetSysColor(COLOR_BTNFACE), rc) == rc.Width() * rc.Height();
    };
    const int nTop = (60 - nTextHeight) / 2;
    EXPECT_TRUE(bare(CRect(1, 1, 199, nTop)) && bare(CRect(1, nTop + nTextHeight + 1, 199, 59)));
    EXPECT_TRUE(bare(CRect(1, 1, 6, 59)) && bare(CRect(194, 1, 199, 59)));
    EXPECT_FALSE(bare(CRect(6, 1, 10, 59)) || bare(CRect(170, 1, 194, 59))) << "cut at the right";
}

CWnd& Inner(QVListHeaderWnd& header) {
    return *header.GetListBox();
}
CWnd& Inner(QVTreeHeaderWnd& header) {
    return header.GetTreeCtrl();
}
CWnd& Inner(QVTextHeaderWnd& header) {
    return header.GetTextWnd();
}
void MakeTabStop(QVListHeaderWnd& header) {
    header.SetListStyle(header.GetListStyle() | WS_TABSTOP);
}
void MakeTabStop(QVTreeHeaderWnd& header) {
    header.SetTreeStyle(header.GetTreeStyle() | WS_TABSTOP);
}
void MakeTabStop(QVTextHeaderWnd&) {}  // its text is one always

template <class Header>
class InnerControl : public testing::Test {};
using Containers = testing::Types<QVListHeaderWnd, QVTreeHeaderWnd, QVTextHeaderWnd>;
TYPED_TEST_SUITE(InnerControl, Containers);

TYPED_TEST(InnerControl, MovesWithARestoredWindow) {
    Window<TypeParam> w;
    ASSERT_TRUE(w.Create());
    CWnd& control = Inner(w.header);
    EXPECT_EQ(w.PlaceOf(control), w.Body());
    w.header.MoveWindow(0, 0, 120, 80);
    EXPECT_EQ(w.Body(), CRect(0, w.header.HeaderHeight(), 120, 80));
    EXPECT_EQ(w.PlaceOf(control), w.Body());
    const CRect rcOff(5, 50, 50, 70);
    control.MoveWindow(&rcOff);
    w.header.SendMessage(WM_SIZE, SIZE_MINIMIZED, 0);
    w.header.SendMessage(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(120, 80));
    EXPECT_EQ(w.PlaceOf(control), rcOff);
}

// The Tab key of a dialog finds an inner tab stop, and the way out again.
TYPED_TEST(InnerControl, IsReachedByTab) {
    for (const DWORD dwOwn : {DWORD{0}, DWORD{WS_TABSTOP}}) {
        Window<TypeParam> w;
        MakeTabStop(w.header);
        ASSERT_TRUE(w.Create(kChild | dwOwn));
        EXPECT_TRUE(w.header.GetExStyle() & WS_EX_CONTROLPARENT);
        CButton behind;
        behind.Create("", kChild | WS_TABSTOP, CRect(0, 0, 10, 10), &w.parent, 5);
        const HWND hInner = Inner(w.header).m_hWnd;
        EXPECT_EQ(::GetNextDlgTabItem(w.parent.m_hWnd, behind.m_hWnd, FALSE), hInner);
        EXPECT_EQ(::GetNextDlgTabItem(w.parent.m_hWnd, hInner, FALSE), behind.m_hWnd);
    }
}

TEST(HeaderWnd, ATabStopLeadsToTheControlInside) {
    Window<QVListHeaderWnd> w;
    ASSERT_TRUE(w.Create(kChild | WS_TABSTOP));
    EXPECT_FALSE(w.header.GetExStyle() & WS_EX_CONTROLPARENT) << "its list is no tab stop";
    w.header.SetFocus();
    EXPECT_EQ(::GetFocus(), w.header.GetListBox()->m_hWnd);
    Window<QVTreeHeaderWnd> plain;
    ASSERT_TRUE(plain.Create());
    plain.header.SetFocus();
    EXPECT_EQ(::GetFocus(), plain.header.m_hWnd) << "no tab stop: the focus stays";
}

TEST(HeaderWnd, TheListIsOfTheClassThatIsGiven) {
    SpyList::s_nDeleted = 0;
    FontParent parent(CSize(300, 200));
    CRect rc(0, 0, 200, 100);
    {
        QVListHeaderWnd header(RUNTIME_CLASS(SpyList));
        header.SetListStyle(kChild | LVS_NOSORTHEADER);
        header.SetImageInfo(kListImages, kListImageMask, kListImageWidth);
        ASSERT_TRUE(header.Create(kChild, rc, &parent, kHeaderId));
        auto* pList = DYNAMIC_DOWNCAST(SpyList, header.GetListBox());
        ASSERT_NE(pList, nullptr);
        EXPECT_TRUE(pList->GetStyle() & LVS_NOSORTHEADER);
        EXPECT_EQ(pList->m_nBitmap, kListImages);
        EXPECT_EQ(pList->m_crMask, kListImageMask);
        EXPECT_EQ(pList->m_cx, kListImageWidth);
        EXPECT_NE(pList->GetImageList(LVSIL_SMALL), nullptr);
        pList->InsertBitmapString(0, -1, "row");
        CString strRow;
        EXPECT_TRUE(pList->GetItemString(0, strRow));
        header.DestroyWindow();
        EXPECT_EQ(SpyList::s_nDeleted, 0);
        ASSERT_TRUE(header.Create(kChild, rc, &parent, kHeaderId)) << "a second window";
        header.DestroyWindow();
        pList->m_bAccepts = false;
        EXPECT_FALSE(header.Create(kChild, rc, &parent, kHeaderId));
        EXPECT_EQ(header.m_hWnd, nullptr);
    }
    EXPECT_EQ(SpyList::s_nDeleted, 1);
    QVListHeaderWnd wrong(RUNTIME_CLASS(QVTreeCtrlEx));
    EXPECT_EQ(wrong.GetListBox(), nullptr);
    EXPECT_FALSE(wrong.Create(kChild, rc, &parent, kHeaderId));
    MakeItem(parent);
    EXPECT_EQ(wrong.Initialize(kHeaderId, &parent), 0);
}

TEST(HeaderWnd, NotificationsAndCommandsOfTheListReachTheGrandparent) {
    Window<QVListHeaderWnd> w;
    w.header.SetListID(kInnerId);
    ASSERT_TRUE(w.Create());
    w.parent.SetResult(kProbe, 77);
    EXPECT_EQ(w.SendProbe(kInnerId), 77);
    EXPECT_EQ(w.SendProbe(kInnerId + 1), 0) << "another control";
    EXPECT_EQ(w.parent.Count(kProbe), 1);
    EXPECT_EQ(w.SendCommand(kInnerId), 1);
    EXPECT_EQ(w.SendCommand(kInnerId + 1), 0);
    ASSERT_EQ(w.parent.m_commands.size(), 1u);
    EXPECT_EQ(w.parent.m_commands[0].id, kInnerId);
    EXPECT_EQ(w.parent.m_commands[0].code, kCommand);
    EXPECT_EQ(w.parent.m_commands[0].hwnd, w.header.m_hWnd);
}

TEST(HeaderWnd, TheTreeAsksTheGrandparentAndForwardsNoCommands) {
    Window<QVTreeHeaderWnd> w;
    w.header.SetTreeID(kInnerId);
    ASSERT_TRUE(w.Create());
    QVTreeCtrlEx& tree = w.header.GetTreeCtrl();
    const HTREEITEM hFirst = tree.InsertItem("first", 0, 0, nullptr, TVI_LAST);
    const HTREEITEM hSecond = tree.InsertItem("second", 0, 0, nullptr, TVI_LAST);
    tree.SelectItem(hFirst);
    w.parent.SetResult(TVN_SELCHANGING, 1);
    tree.SendMessage(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(w.parent.Count(TVN_SELCHANGING), 1);
    EXPECT_EQ(tree.GetSelectedItem(), hFirst) << "refused";
    w.parent.SetResult(TVN_SELCHANGING, 0);
    tree.SendMessage(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(tree.GetSelectedItem(), hSecond);
    EXPECT_EQ(w.parent.Count(TVN_SELCHANGED), 1);
    w.SendCommand(kInnerId);
    EXPECT_TRUE(w.parent.m_commands.empty());
}

TEST(HeaderWnd, WithoutAnIdNothingIsForwarded) {
    const auto expect = [](auto& w) {
        ASSERT_TRUE(w.Create());
        w.parent.Forget();
        w.SendProbe(static_cast<UINT>(-1));
        w.SendCommand(0xFFFF);
        EXPECT_TRUE(w.parent.m_notifications.empty() && w.parent.m_commands.empty());
    };
    Window<QVTreeHeaderWnd> tree;
    expect(tree);
    Window<QVListHeaderWnd> list;
    expect(list);
}

TEST(HeaderWnd, AParentMayDestroyItInANotification) {
    Window<QVTreeHeaderWnd> w;
    w.header.SetTreeID(kInnerId);
    ASSERT_TRUE(w.Create());
    QVTreeCtrlEx& tree = w.header.GetTreeCtrl();
    tree.InsertItem("a", 0, 0, nullptr, TVI_LAST);
    w.parent.m_hook = [&](NMHDR* pHeader, LRESULT* pResult) {
        *pResult = 0;
        return pHeader->code == TVN_SELCHANGING && w.header.DestroyWindow();
    };
    tree.SendMessage(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(w.header.m_hWnd, nullptr);
    EXPECT_EQ(tree.m_hWnd, nullptr);

    // The object too.
    auto pHeader = std::make_unique<QVListHeaderWnd>();
    pHeader->SetListID(kInnerId);
    CRect rc(0, 0, 200, 100);
    ASSERT_TRUE(pHeader->Create(kChild, rc, &w.parent, kHeaderId));
    w.parent.m_hook = [&](NMHDR*, LRESULT* pResult) {
        pHeader.reset();
        *pResult = 78;
        return true;
    };
    NMHDR nm{w.parent.m_hWnd, kInnerId, kProbe};
    EXPECT_EQ(pHeader->SendMessage(WM_NOTIFY, kInnerId, reinterpret_cast<LPARAM>(&nm)), 78);
    EXPECT_EQ(pHeader, nullptr);
}

TEST(HeaderCtrlEx, AddsAColumnForEachField) {
    FontParent parent(CSize(400, 100));
    QVHeaderCtrlEx header;
    ASSERT_TRUE(header.Create(kChild | HDS_HORZ, CRect(0, 0, 400, 25), &parent, kHeaderId));
    const auto column = [&](int nCol) {
        char szText[400] = "none";
        HDITEM item{};
        item.mask = HDI_TEXT | HDI_FORMAT | HDI_WIDTH;
        item.pszText = szText;
        item.cchTextMax = sizeof(szText);
        EXPECT_TRUE(header.GetItem(nCol, &item));
        EXPECT_EQ(item.cxy, 100);
        return szText + std::to_string(item.fmt & HDF_JUSTIFYMASK);
    };
    header.AddHeader("");
    EXPECT_EQ(header.GetItemCount(), 0);
    header.AddHeader("<Left\t>Right\tMiddle\t");
    ASSERT_EQ(header.GetItemCount(), 3) << "none behind the last TAB";
    EXPECT_EQ(column(0), "Left" + std::to_string(HDF_LEFT));
    EXPECT_EQ(column(1), "Right" + std::to_string(HDF_RIGHT));
    EXPECT_EQ(column(2), "Middle" + std::to_string(HDF_CENTER));
    header.AddHeader((std::string(300, 'x') + "\ty").c_str());
    EXPECT_EQ(column(0), std::string(254, 'x') + std::to_string(HDF_CENTER)) << "in front, and cut";
    EXPECT_EQ(column(2), "Left" + std::to_string(HDF_LEFT));
}

}  // namespace
