#include "frame/dc_guards.h"
#include "support/list_window.h"
#include "support/picture.h"

#include <gtest/gtest.h>
#include <memory>
#include <utility>

namespace {

constexpr UINT kHeaderId = 90;
constexpr UINT kInnerId = 91;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
constexpr UINT kProbe = 5000;  // a notification code that no control uses
constexpr UINT kCommand = 5;

template <class Header>
class Open : public Header {
public:
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
    // In the header's client pixels.
    CRect PlaceOf(CWnd& wnd) {
        CRect rc;
        wnd.GetWindowRect(&rc);
        header.ScreenToClient(&rc);
        return rc;
    }
    LRESULT SendProbe(UINT nID) {
        NMHDR nm{parent.m_hWnd, nID, kProbe};
        return header.SendMessage(WM_NOTIFY, nID, reinterpret_cast<LPARAM>(&nm));
    }
    LRESULT SendCommand(UINT nID) {
        return header.SendMessage(WM_COMMAND, MAKEWPARAM(nID, kCommand),
                                  reinterpret_cast<LPARAM>(header.m_hWnd));
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
    static inline int s_nDeleted = 0;
};
IMPLEMENT_DYNCREATE(SpyList, QVListCtrlEx)

TEST(HeaderWnd, ABorderIsSunkenAndTheBarFitsTheFontOfTheParents) {
    FontParent withFont(CSize(300, 200));
    RecordingParent without;
    for (CWnd* pParent : std::initializer_list<CWnd*>{&withFont, &without}) {
        const bool bBorder = pParent == &without;
        Open<QVHeaderWnd> header;
        CRect rc(0, 0, 100, 50);
        ASSERT_TRUE(header.Create(kChild | (bBorder ? WS_BORDER : 0), rc, pParent, kHeaderId));
        EXPECT_FALSE(header.GetStyle() & WS_BORDER);
        EXPECT_EQ((header.GetExStyle() & WS_EX_CLIENTEDGE) != 0, bBorder);
        const CFont* pFont = pParent->GetFont();
        EXPECT_EQ(header.m_hHeaderFont, pFont != nullptr ? static_cast<HFONT>(*pFont) : nullptr);
        TextRecorder dc;
        const qv::SelectGuard<CFont> font(dc, header.m_hHeaderFont);
        TEXTMETRIC metrics;
        dc.GetTextMetrics(&metrics);
        EXPECT_EQ(header.HeaderHeight(), metrics.tmHeight + 4);
    }
}

TEST(HeaderWnd, AttachesToAnItemOnce) {
    Window<QVListHeaderWnd> w;
    EXPECT_EQ(w.header.Initialize(kHeaderId, &w.parent), 0) << "no such item";
    EXPECT_EQ(w.header.Initialize(kHeaderId, nullptr), 0);
    const HWND hItem = MakeItem(w.parent);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(w.header.Initialize(kHeaderId, &w.parent), 1);
        EXPECT_EQ(w.header.m_hWnd, hItem);
        EXPECT_EQ(w.header.GetListBox()->GetWindow(GW_HWNDNEXT), nullptr) << "one list";
    }
    EXPECT_EQ(w.PlaceOf(*w.header.GetListBox()), CRect(0, w.header.HeaderHeight(), 150, 90));
    EXPECT_FALSE(w.header.GetExStyle() & WS_EX_CONTROLPARENT) << "its list is no tab stop";
}

TEST(HeaderWnd, PaintsARaisedBarWithItsCaption_AFrameLineAndTheBody) {
    Window<QVHeaderWnd> w;
    ASSERT_TRUE(w.Create());
    const int nTextHeight = w.header.HeaderHeight() - 4;
    w.header.SetHeaderHeight(61);
    const LONG nHandles = AfxGetOwnedHandleCount();
    const auto look = [&] {
        w.header.RedrawWindow();
        return Picture::OfClient(w.header.m_hWnd);
    };
    const Picture empty = look();
    for (const auto& [nColor, rc] : {std::pair{COLOR_BTNHIGHLIGHT, CRect(0, 0, 199, 1)},
                                     {COLOR_BTNSHADOW, CRect(0, 59, 200, 60)},
                                     {COLOR_BTNSHADOW, CRect(199, 0, 200, 60)},
                                     {COLOR_WINDOWFRAME, CRect(0, 60, 200, 61)},
                                     {COLOR_BTNFACE, CRect(1, 1, 199, 59)},
                                     {COLOR_WINDOW, CRect(0, 61, 200, 120)}}) {
        EXPECT_EQ(empty.Count(::GetSysColor(nColor), rc), rc.Width() * rc.Height()) << nColor;
    }
    CClientDC(&w.header).FillSolidRect(CRect(0, 80, 200, 120), RGB(255, 0, 0));
    w.header.m_bFillBody = FALSE;
    EXPECT_EQ(look().Count(RGB(255, 0, 0)), 200 * 40) << "the body is left alone";

    w.header.SetHeaderText("&Wg with far more text than the bar of this window has room for");
    CRect rc;
    EXPECT_TRUE(w.header.GetUpdateRect(&rc));
    EXPECT_EQ(rc, CRect(0, 0, 200, 60)) << "the bar alone";
    w.header.CalcHeaderTextRect(rc);
    EXPECT_GT(rc.right, 200) << "as wide as the text";
    const Picture shown = look();
    const auto bare = [&](const CRect& rcPart) {
        return shown.Count(::GetSysColor(COLOR_BTNFACE), rcPart) ==
               rcPart.Width() * rcPart.Height();
    };
    const int nTop = (60 - nTextHeight) / 2;
    EXPECT_TRUE(bare(CRect(1, 1, 199, nTop)) && bare(CRect(1, nTop + nTextHeight + 1, 199, 59)));
    EXPECT_TRUE(bare(CRect(1, 1, 6, 59)) && bare(CRect(194, 1, 199, 59)));
    EXPECT_FALSE(bare(CRect(6, 1, 10, 59)) || bare(CRect(170, 1, 194, 59))) << "cut at the right";
    w.header.SetHeaderText(59999u);
    EXPECT_FALSE(w.header.GetUpdateRect(&rc)) << "no such string";
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

// inner gives the control inside, makeTabStop has it made a tab stop.
template <class Header>
void CheckInner(CWnd& (*inner)(Header&), void (*makeTabStop)(Header&)) {
    for (const bool bOwn : {false, true}) {
        Window<Header> w;
        makeTabStop(w.header);
        ASSERT_TRUE(w.Create(kChild | (bOwn ? WS_TABSTOP : 0)));
        CWnd& control = inner(w.header);
        EXPECT_TRUE(w.header.GetExStyle() & WS_EX_CONTROLPARENT);
        CButton behind;
        behind.Create("", kChild | WS_TABSTOP, CRect(0, 0, 10, 10), &w.parent, 5);
        EXPECT_EQ(::GetNextDlgTabItem(w.parent, behind, FALSE), control.m_hWnd);
        EXPECT_EQ(::GetNextDlgTabItem(w.parent, control, FALSE), behind.m_hWnd);
        w.header.SetFocus();
        EXPECT_EQ(::GetFocus(), bOwn ? control.m_hWnd : w.header.m_hWnd);

        const int nTop = w.header.HeaderHeight();
        EXPECT_EQ(w.PlaceOf(control), CRect(0, nTop, 200, 120));
        w.header.MoveWindow(0, 0, 120, 80);
        EXPECT_EQ(w.PlaceOf(control), CRect(0, nTop, 120, 80));
        const CRect rcOff(5, 50, 50, 70);
        control.MoveWindow(&rcOff);
        w.header.SendMessage(WM_SIZE, SIZE_MINIMIZED, 0);
        w.header.SendMessage(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(120, 80));
        EXPECT_EQ(w.PlaceOf(control), rcOff) << "follows a restored window alone";
    }
}

TEST(HeaderWnd, TheControlInsideFillsTheBodyAndIsReachedByTab) {
    CheckInner<QVListHeaderWnd>(
        [](QVListHeaderWnd& header) -> CWnd& { return *header.GetListBox(); },
        [](QVListHeaderWnd& header) { header.SetListStyle(header.GetListStyle() | WS_TABSTOP); });
    CheckInner<QVTreeHeaderWnd>(
        [](QVTreeHeaderWnd& header) -> CWnd& { return header.GetTreeCtrl(); },
        [](QVTreeHeaderWnd& header) { header.SetTreeStyle(header.GetTreeStyle() | WS_TABSTOP); });
    CheckInner<QVTextHeaderWnd>(
        [](QVTextHeaderWnd& header) -> CWnd& { return header.GetTextWnd(); },
        [](QVTextHeaderWnd&) {});  // its text is one always
}

TEST(HeaderWnd, TheListIsOfTheClassThatIsGiven) {
    SpyList::s_nDeleted = 0;
    FontParent parent(CSize(300, 200));
    CRect rc(0, 0, 200, 100);
    {
        QVListHeaderWnd header(RUNTIME_CLASS(SpyList));
        header.SetListStyle(kChild | LVS_NOSORTHEADER);
        header.SetImageInfo(kListImages, kListImageMask, kListImageWidth);
        auto* pList = DYNAMIC_DOWNCAST(SpyList, header.GetListBox());
        ASSERT_NE(pList, nullptr);
        for (int i = 0; i < 2; ++i) {  // a second window
            ASSERT_TRUE(header.Create(kChild, rc, &parent, kHeaderId));
            EXPECT_TRUE(pList->GetStyle() & LVS_NOSORTHEADER);
            EXPECT_NE(pList->GetImageList(LVSIL_SMALL), nullptr);
            header.DestroyWindow();
        }
        EXPECT_EQ(SpyList::s_nDeleted, 0);
    }
    EXPECT_EQ(SpyList::s_nDeleted, 1);
    QVListHeaderWnd wrong(RUNTIME_CLASS(QVTreeCtrlEx));
    EXPECT_EQ(wrong.GetListBox(), nullptr);
    EXPECT_FALSE(wrong.Create(kChild, rc, &parent, kHeaderId));
    MakeItem(parent);
    EXPECT_EQ(wrong.Initialize(kHeaderId, &parent), 0);
}

// Both forward notifications, a list its commands too; nothing comes of a control without an id.
TEST(HeaderWnd, TheGrandparentHearsOfTheControlInside) {
    const auto check = [](auto& w, UINT nID, bool bCommands) {
        ASSERT_TRUE(w.Create());
        w.parent.Forget();
        w.parent.SetResult(kProbe, 77);
        EXPECT_EQ(w.SendProbe(kInnerId), nID == kInnerId ? 77 : 0);
        w.SendProbe(kInnerId + 1), w.SendProbe(static_cast<UINT>(-1));
        EXPECT_EQ(w.parent.Count(kProbe), nID == kInnerId ? 1 : 0);
        EXPECT_EQ(w.SendCommand(kInnerId), bCommands ? 1 : 0);
        w.SendCommand(kInnerId + 1), w.SendCommand(0xFFFF);
        ASSERT_EQ(w.parent.m_commands.size(), bCommands ? 1u : 0u);
        EXPECT_TRUE(!bCommands || (w.parent.m_commands[0].id == kInnerId &&
                                   w.parent.m_commands[0].code == kCommand &&
                                   w.parent.m_commands[0].hwnd == w.header.m_hWnd));
    };
    for (const UINT nID : {kInnerId, static_cast<UINT>(-1)}) {
        Window<QVListHeaderWnd> list;
        list.header.SetListID(nID);
        check(list, nID, nID == kInnerId);
        Window<QVTreeHeaderWnd> tree;
        tree.header.SetTreeID(nID);
        check(tree, nID, false);
    }
}

TEST(HeaderWnd, AParentMayDeleteItInANotification) {
    FontParent parent(CSize(300, 200));
    const auto check = [&](auto pHeader) {
        CRect rc(0, 0, 200, 100);
        ASSERT_TRUE(pHeader->Create(kChild, rc, &parent, kHeaderId));
        parent.m_hook = [&](NMHDR*, LRESULT* pResult) {
            pHeader.reset();
            *pResult = 78;
            return true;
        };
        NMHDR nm{parent.m_hWnd, kInnerId, kProbe};
        EXPECT_EQ(pHeader->SendMessage(WM_NOTIFY, kInnerId, reinterpret_cast<LPARAM>(&nm)), 78);
        EXPECT_EQ(pHeader, nullptr);
        parent.m_hook = nullptr;
    };
    auto pList = std::make_unique<QVListHeaderWnd>();
    pList->SetListID(kInnerId);
    check(std::move(pList));
    auto pTree = std::make_unique<QVTreeHeaderWnd>();
    pTree->SetTreeID(kInnerId);
    check(std::move(pTree));
}

TEST(HeaderCtrlEx, AddsAColumnForEachFieldInFront) {
    FontParent parent(CSize(400, 100));
    QVHeaderCtrlEx header;
    ASSERT_TRUE(header.Create(kChild | HDS_HORZ, CRect(0, 0, 400, 25), &parent, kHeaderId));
    for (const char* pszHeaders : {"", "Old", "<Left\t>Right\tMiddle\t"}) {
        header.AddHeader(pszHeaders);
    }
    ASSERT_EQ(header.GetItemCount(), 4) << "none behind the last TAB";
    const std::pair<const char*, int> columns[] = {
        {"Left", HDF_LEFT}, {"Right", HDF_RIGHT}, {"Middle", HDF_CENTER}, {"Old", HDF_CENTER}};
    for (int nCol = 0; nCol < 4; ++nCol) {
        char szText[40] = "";
        HDITEM item{};
        item.mask = HDI_TEXT | HDI_FORMAT | HDI_WIDTH;
        item.pszText = szText;
        item.cchTextMax = sizeof(szText);
        EXPECT_TRUE(header.GetItem(nCol, &item));
        EXPECT_STREQ(szText, columns[nCol].first);
        EXPECT_EQ(item.fmt & HDF_JUSTIFYMASK, columns[nCol].second);
        EXPECT_EQ(item.cxy, 100);
    }
}

}  // namespace
