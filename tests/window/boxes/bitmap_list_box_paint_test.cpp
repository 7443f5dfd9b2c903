// What a row looks like, and what list boxes live through.
#include "support/list_box_window.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/picture.h"
#include "support/real_input.h"
#include "support/test_app.h"
#include "window/refusals.h"

#include <afxext.h>

#include <gtest/gtest.h>

namespace {

using BoxWindow = ListBoxWindow<>;

constexpr COLORREF kRed = RGB(200, 0, 0);
constexpr COLORREF kGreen = RGB(0, 200, 0);
constexpr COLORREF kPaper = RGB(250, 250, 200);
constexpr COLORREF kNone = static_cast<COLORREF>(-1);

// A row drawn on a context of its own.
struct DrawnRow {
    explicit DrawnRow(BoxWindow& w, int nRow, UINT nState = 0, UINT nAction = ODA_DRAWENTIRE)
        : dc(CSize(300, 60)) {
        dc.FillSolidRect(0, 0, 300, 60, kPaper);
        dc.SetBkColor(kPaper);
        dc.SetTextColor(RGB(1, 2, 3));
        DRAWITEMSTRUCT draw{ODT_LISTBOX,    kBoxId,   static_cast<UINT>(nRow), nAction, nState,
                            w.list->m_hWnd, dc.m_hDC, {0, 10, 300, 40},        0};
        w.parent.SendMessage(WM_DRAWITEM, kBoxId, reinterpret_cast<LPARAM>(&draw));
    }
    // Texts with their colours: "d" those of the context, "r" red, "p" paper.
    std::string Colors() const {
        std::string str;
        for (const auto& text : dc.texts) {
            str += (str.empty() ? "" : "|") + text.str + ":";
            str += text.crText == kRed ? 'r' : text.crText == kPaper ? 'p' : 'd';
        }
        return str;
    }
    int Count(COLORREF cr, int nRight = 300) const {
        int n = 0;
        for (int i = 0; i < nRight * 30; ++i) {
            n += dc.GetPixel(i / 30, 10 + i % 30) == cr;
        }
        return n;
    }
    TextRecorder dc;
};

TEST(BitmapListBoxPaint, StylesGoOnUntilTheNext) {
    BoxWindow w;
    w.list->AddStyle(kRed, kGreen);
    w.list->AddStyle(kRed, kNone);
    const int tabs[] = {60, 20120};
    w.list->UseTabs(tabs, 2);
    for (const char* psz : {"a\t\033bb\tc\td", "a\t\033cb", "a"}) {
        w.list->AddBitmapString(0, psz);
    }
    const DrawnRow row(w, 0);
    EXPECT_EQ(row.Colors(), "a:d|b:r|c:r") << "two stops, three fields";
    EXPECT_EQ(row.dc.texts[0].rc, CRect(6, 10, 54, 40));
    EXPECT_EQ(row.dc.texts[2].rc, CRect(126, 10, 294, 40));
    EXPECT_EQ(row.dc.texts[2].nFormat, static_cast<UINT>(DT_RIGHT | 0x8800));
    EXPECT_EQ(row.dc.GetTextColor(), RGB(1, 2, 3)) << "put back";
    EXPECT_EQ(row.dc.GetBkColor(), kPaper);
    EXPECT_EQ(DrawnRow(w, 0, ODS_SELECTED).Colors(), "a:p|b:p|c:p");
    EXPECT_EQ(DrawnRow(w, 1).Colors(), "a:d|b:r");
    EXPECT_GT(row.Count(kGreen), 0);
    EXPECT_EQ(DrawnRow(w, 1).Count(kGreen), 0) << "a background of -1 is none";
    w.list->ClearTabs();
    EXPECT_EQ(DrawnRow(w, 2).dc.All(), "") << "without stops and codes at once, as it is";
    const DrawnRow one(w, 0);
    EXPECT_EQ(one.dc.All(), "a");
    EXPECT_EQ(one.dc.texts[0].rc.right, 294) << "over the whole width";
    EXPECT_EQ(DrawnRow(w, 99).dc.All(), "");
    w.list->m_nTabs = 999;
    EXPECT_EQ(DrawnRow(w, 2).dc.All(), "a");
}

TEST(BitmapListBoxPaint, TheImageCellNeverShowsTheSelection) {
    BoxWindow w(0, true);
    w.list->AddBitmapString(1, "x");
    const COLORREF crHighlight = ::GetSysColor(COLOR_HIGHLIGHT);
    const DrawnRow row(w, 0, ODS_SELECTED);
    EXPECT_EQ(row.dc.GetPixel(kListImageWidth + 1, 39), kPaper) << "two pixels over the text";
    EXPECT_EQ(row.dc.GetPixel(kListImageWidth + 2, 39), crHighlight);
    EXPECT_EQ(row.dc.GetPixel(0, 10), kPaper);
    EXPECT_LT(row.Count(kPaper, kListImageWidth + 2), 30 * (kListImageWidth + 2) - 20)
        << "the image";
    const DrawnRow focus(w, 0, ODS_FOCUS, ODA_FOCUS);
    EXPECT_EQ(focus.dc.All(), "");
    EXPECT_EQ(focus.Count(kPaper, kListImageWidth + 2), 30 * (kListImageWidth + 2));
    EXPECT_LT(focus.Count(kPaper), 30 * 300) << "the focus alone, right of the cell";
    EXPECT_EQ(DrawnRow(w, 0, ODS_FOCUS).dc.GetPixel(299, 39), kPaper) << "by action, not state";
}

TEST(BitmapListBoxPaint, TheListOnTheScreenIsInsideItsFrame) {
    BoxWindow w(WS_BORDER, true, true);
    const int nGreen = w.list->AddStyle(RGB(0, 0, 0), kGreen);
    w.list->AddBitmapString(1, w.list->MakeStyleText("selected", nGreen));
    w.list->AddBitmapString(1, w.list->MakeStyleText("not", nGreen));
    ClickAt(w.list->m_hWnd, w.RowRect(0).CenterPoint());
    EXPECT_EQ(w.parent.CountCommands(LBN_SELCHANGE), 1);
    const Picture picture = Picture::OfClient(w.parent.m_hWnd);
    const CRect rcList = w.RectOf(*w.list);
    EXPECT_EQ(picture.Count(kGreen, w.RowRect(0) + rcList.TopLeft()), 0);
    EXPECT_GT(picture.Count(kGreen, w.RowRect(1) + rcList.TopLeft()), 50);
}

// --- A parent that takes the list away

using MortalWindow = ListBoxWindow<Mortal<OpenListBox>>;

enum class Cruelty { kDelete, kDestroy, kEmpty };

// The platform's own list ends the program if it goes inside WM_MEASUREITEM or WM_DELETEITEM.
TEST(BitmapListBoxAttack, TheListMayBeTakenAway) {
    const int tabs[] = {50, 90};
    const struct {
        const char* pszName;
        UINT nMessage;
        std::function<void(MortalWindow&)> act;
    } attacks[] = {
        {"paint", WM_DRAWITEM, [](MortalWindow& w) { w.list->RedrawWindow(); }},
        {"right button", WM_COMMAND,
         [](MortalWindow& w) { w.list->SendMessage(WM_RBUTTONDOWN, 0, MAKELPARAM(30, 20)); }},
        {"new header", WM_NOTIFY, [](MortalWindow& w) { w.list->AddHeader("x"); }},
        {"stops", WM_NOTIFY, [&](MortalWindow& w) { w.list->UseTabs(tabs, 1); }},
        {"fit", WM_NOTIFY, [](MortalWindow& w) { w.list->CalcTabsFromHeader(0); }},
        {"fit list", WM_NOTIFY, [](MortalWindow& w) { w.list->CalcListTabs(); }},
        {"click on a title", WM_NOTIFY,
         [](MortalWindow& w) { ClickAt(w.list->m_header.m_hWnd, CPoint(9, 9)); }},
    };
    TheTestApp().Forget();
    for (const auto& attack : attacks) {
        for (const Cruelty cruelty : {Cruelty::kDelete, Cruelty::kDestroy, Cruelty::kEmpty}) {
            SCOPED_TRACE(attack.pszName);
            MortalWindow w(LBS_EXTENDEDSEL, true, true);
            w.list->AddHeader("one");
            w.list->UseTabs(tabs, 2);
            for (int i = 0; i < 3; ++i) {
                w.list->AddBitmapString(i, "row\tx");
            }
            bool bFired = false;
            const auto strike = [&] {
                bFired = true;
                if (cruelty == Cruelty::kEmpty) {
                    w.list->ResetContent();
                } else if (cruelty == Cruelty::kDestroy) {
                    w.list->DestroyWindow();
                } else {
                    w.bDeleted = true;
                    delete w.list;
                }
            };
            if (attack.nMessage == WM_NOTIFY && attack.pszName[0] == 'c') {
                w.list->onSort = strike;
            } else {
                w.parent.onMessage = [&](UINT nMessage) {
                    if (nMessage == attack.nMessage && !bFired) {
                        strike();
                        return cruelty != Cruelty::kEmpty;
                    }
                    return false;
                };
            }
            attack.act(w);
            EXPECT_TRUE(bFired);
        }
    }
    EXPECT_TRUE(TheTestApp().m_exceptions.empty());
}

// --- Without memory

TEST(BitmapListBoxMemory, WhatWasThereStays) {
    BoxWindow w(LBS_EXTENDEDSEL, true, true);
    w.list->AddHeader("a title of some length");
    const int tabs[] = {50, 90};
    w.list->UseTabs(tabs, 2);
    const auto refill = [&] {
        w.list->ResetContent();
        for (int i = 0; i < 3; ++i) {
            w.list->AddBitmapString(i, "a row of some length\t\033ax");
        }
        w.list->SetSel(1);
    };
    TextRecorder dc;
    CPrintInfo info;
    const struct {
        const char* pszName;
        std::function<bool()> act;  // whether it says that it is done
    } operations[] = {
        {"add", [&] { return w.list->AddBitmapString(0, "another row of text") >= 0; }},
        {"find", [&] { return w.list->FindBitmapString(1, "a row of some length\t\033ax") >= 0; }},
        {"image", [&] { return w.list->SetImage(1, 2) == 1; }},
        {"text", [&] { return w.list->SetItemString(1, "another row of text") == 1; }},
        {"titles",
         [&] {
             CString str;
             return w.list->MakeHeaderString(str) == 1;
         }},
        {"paper", [&] { return w.list->PrintItems(&dc, &info, CRect(0, 0, 300, 900)) == 3; }},
        {"file", [&] { return w.list->ExportData("NUL", ',') == 1; }},
        {"paint", [&] { return w.list->RedrawWindow() != 0; }},
        {"selection", [&] { return w.list->SaveSelections(), w.list->RestoreSelections(), true; }},
    };
    for (const auto& operation : operations) {
        refill();
        bool bDone = false;
        RefuseEach(
            operation.pszName, [&] { bDone = false, bDone = operation.act(); },
            [&] {
                if (!bDone) {
                    EXPECT_EQ(w.list->GetCount(), 3);
                    EXPECT_EQ(w.Stored(1), "a row of some length\t\033ax\t1");
                    EXPECT_EQ(w.list->GetSel(1), 1);
                }
                refill();
            });
        EXPECT_TRUE(bDone) << operation.pszName;
    }
}

// --- Anything in any order

TEST(BitmapListBoxMonkey, SurvivesAnyOrderOfOperations) {
    BoxWindow w(LBS_EXTENDEDSEL | WS_BORDER, true, true);
    std::mt19937 random = MonkeyRandom(31);
    w.list->AddStyle(kRed, kNone);
    for (int i = 0; i < MonkeySteps(); ++i) {
        const int n = static_cast<int>(random() % 40) - 4;
        const std::function<void()> kDeeds[] = {
            [&] { w.list->InsertBitmapString(n, n, "\033brow\tx\t\033zy"); },
            [&] { w.list->AddBitmapString(n, nullptr); },
            [&] { w.list->AddString(n % 3 != 0 ? "plain" : ""); },
            [&] { w.list->SetImage(n, n), w.list->SetItemString(n, "a\tb\tc\td"); },
            [&] { w.list->DeleteString(static_cast<UINT>(n)); },
            [&] { random() % 30 == 0 ? w.list->ResetContent() : void(); },
            [&] { random() % 9 == 0 ? w.list->AddHeader("title") : void(); },
            [&] { random() % 40 == 0 ? w.list->ClearHeaders() : void(); },
            [&] { w.list->CalcTabsFromHeader(n); },
            [&] { w.list->SetTabValue(n, n * 11), w.list->SetTabFormat(n, n & 3); },
            [&] { n % 5 == 0 ? w.list->ClearTabs() : w.list->CalcListTabs(); },
            [&] {
                const int tabs[20] = {n * 5, n * 9 + 10000, n + 20300};
                w.list->UseTabs(tabs, n % 22);
            },
            [&] {
                HDITEM item{};
                item.cxy = n * 7;
                NMHEADER notification{{}, n, 0, &item};
                w.list->OnHdNotify(static_cast<int>(HDN_ENDTRACKA), &notification);
            },
            [&] { w.list->SaveSelections(), w.list->RestoreSelections(); },
            [&] { w.list->SetSel(n, n % 2), w.list->SetTopIndex(n); },
            [&] { w.list->SortByImageIndex(n % 2); },
            [&] { w.list->SetRedraw(n % 3); },
            [&] { w.list->SendMessage(WM_RBUTTONDOWN, 0, MAKELPARAM(n * 3, n * 5)); },
            [&] { w.list->SendMessage(WM_KEYDOWN, n % 2 ? VK_DOWN : VK_SPACE); },
            [&] { w.list->SetWindowPos(nullptr, 0, 0, n * 9, n * 6, SWP_NOMOVE | SWP_NOZORDER); },
            [&] { w.list->CompareToItem(n, "a\t\033bb", n); },
            [&] { w.list->Invalidate(), w.list->UpdateWindow(); }};
        kDeeds[random() % std::size(kDeeds)]();
        ASSERT_GE(w.list->m_nTabs, 0);
        ASSERT_LE(w.list->m_nTabs, 20);
    }
    EXPECT_TRUE(::IsWindow(w.list->m_hWnd));
}

TEST(BitmapListBoxMonkey, AThousandListsLeaveNothing) {
    FontParent parent(CSize(300, 200));
    const auto live = [&](bool bHeader) {
        OpenListBox list;
        list.Create(WS_CHILD | WS_BORDER, CRect(0, 0, 200, 100), &parent, kBoxId);
        list.SetHeader(bHeader ? kBoxHeaderId : 0);
        list.Initialize(kBoxId, kListImages, kListImageMask, 0, &parent);
        list.AddHeader("a");
        list.AddBitmapString(1, "x\t\033ay");
    };
    live(true);
    const LONG nHandles = AfxGetOwnedHandleCount();
    for (int i = 0; i < 1000; ++i) {
        live(i % 10 == 0);
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
    EXPECT_EQ(::GetWindow(parent.m_hWnd, GW_CHILD), nullptr);
}

}  // namespace
