// Lists without memory, in any order, and with a parent that takes them away while it is told of
// something, or asked.
#include "support/held_keys.h"
#include "support/list_window.h"
#include "support/monkey.h"
#include "support/mortal.h"
#include "support/test_app.h"
#include "window/refusals.h"

#include <afxext.h>

#include <functional>
#include <gtest/gtest.h>
#include <set>

namespace {

constexpr char kRow[] = "a new row of text\tu\tv";
constexpr char kHeadings[] = "a heading that is long\td";

// A list of three rows, and what operations need beside it.
struct Subject {
    explicit Subject(bool bHeaders) {
        list->ModifyDefStyle(LVS_SINGLESEL, 0);
        list->Create(kListId, CRect(0, 0, 400, 200), kListImages, kListImageMask, kListImageWidth,
                     &parent);
        list->AddStyle(RGB(255, 0, 0), RGB(0, 255, 0));
        if (bHeaders) {
            list->AddHeader("first heading of all\tb", lcdtString);
            list->AddHeader("c", lcdtDate);
        }
        for (const char* psz : {"beta row with a long text\tx\t2020-01-01",
                                "Alpha\t\033by\t2021-01-01", "gamma\tz\t1999-01-01"}) {
            list->InsertBitmapString(0, -1, psz);
        }
        list->SetItemData(1, 7);
        list->SelectItem(1);
        list->SaveSelections();
        list->SelectItem(0);
        list->UpdateWindow();
    }
    ~Subject() { parent.m_hook = nullptr; }
    // Texts and images that the parent supplies.
    void AskForAll() {
        for (int i = 0; i < list->GetItemCount(); ++i) {
            list->SetItemText(i, 0, LPSTR_TEXTCALLBACK);
            list->SetImage(i, I_IMAGECALLBACK);
        }
        list->ValidateRect(nullptr);
    }
    // All that the operations change.
    std::string State() {
        CString strText;
        list->MakeHeaderString(strText);
        std::string str = std::to_string(list->NumColumns()) + std::string(strText);
        for (int i = 0; i < list->NumColumns(); ++i) {
            for (const int n : {list->GetColWidth(i, nullptr), list->GetColFormat(i),
                                list->IsColumnExcludedFromPrinting(i),
                                static_cast<int>(list->ColumnSortType(i))}) {
                str += ' ' + std::to_string(n);
            }
        }
        for (int i = 0; i < list->GetItemCount(); ++i) {
            list->GetItemString(i, strText);
            str += '\n' + std::string(strText) + ' ' + std::to_string(list->GetItemData(i)) + ' ' +
                   std::to_string(list->GetItemState(i, LVIS_SELECTED));
        }
        return str;
    }

    FontParent parent{CSize(400, 200)};
    std::unique_ptr<Mortal<OpenList<QVSortingListCtrl>>> list =
        std::make_unique<Mortal<OpenList<QVSortingListCtrl>>>();
    CString strRead = "as it was";
    const CString strSample = "a sample that is rather long\tis it\tnot*";
    CPrintInfo info;
    CClientDC dc{nullptr};  // the screen
};

// What is done to a list, in a row, a column or a size n. What reports gives false where it could
// not.
struct Operation {
    template <class Act>
    Operation(const char* pszOperation, bool bWithHeaders, Act perform)
        : pszName(pszOperation),
          bHeaders(bWithHeaders),
          bReports(!std::is_void_v<std::invoke_result_t<Act, Subject&, int>>),
          act([perform](Subject& s, int n) {
              if constexpr (std::is_void_v<std::invoke_result_t<Act, Subject&, int>>) {
                  perform(s, n);
                  return true;
              } else {
                  return perform(s, n);
              }
          }) {}

    const char* pszName;
    bool bHeaders;
    bool bReports;
    std::function<bool(Subject&, int)> act;
};

const Operation kOperations[] = {
    {"insert", true,
     [](Subject& s, int n) { return s.list->InsertBitmapString(0, n, kRow) != -1; }},
    {"insert in one column", false,
     [](Subject& s, int n) { return s.list->InsertBitmapString(0, n, "a new row") != -1; }},
    {"add by text", true,
     [](Subject& s, int n) { return s.list->AddBitmapString(n, "bb, a new row\tu", FALSE) != -1; }},
    {"add by number", true,
     [](Subject& s, int n) { return s.list->AddBitmapString(n, "5 new rows\tu", TRUE) != -1; }},
    {"change", true, [](Subject& s, int n) { return s.list->SetItemString(n, kRow) != FALSE; }},
    {"read", true, [](Subject& s, int n) { return s.list->GetItemString(n, s.strRead) != FALSE; }},
    {"headings", true,
     [](Subject& s, int) { return s.list->MakeHeaderString(s.strRead) == s.list->NumColumns(); }},
    {"add headings", true, [](Subject& s, int) { s.list->AddHeader(kHeadings, lcdtNumber); }},
    {"first headings", false, [](Subject& s, int) { s.list->AddHeader(kHeadings, lcdtNumber); }},
    {"sample", true, [](Subject& s, int) { s.list->SetupColumnsFromString(s.strSample); }},
    {"fit to headings", true, [](Subject& s, int n) { s.list->CalcColsFromHeader(n); }},
    {"fit", false, [](Subject& s, int) { s.list->SetupColumns(); }},
    {"delete", false, [](Subject& s, int n) { s.list->DeleteItem(n); }},
    {"empty", false, [](Subject& s, int) { s.list->DeleteAllItems(); }},
    {"align", true, [](Subject& s, int n) { s.list->SetColFormat(n, LVCFMT_RIGHT); }},
    {"style", true, [](Subject& s, int n) { s.list->SetColStyle(n, 1); }},
    {"exclude", true, [](Subject& s, int n) { s.list->ExcludeColumnFromPrinting(n); }},
    {"widths on paper", true,
     [](Subject& s, int) { return s.list->CalcPrintCols(&s.dc, 300) == s.list->NumColumns(); }},
    {"print headings", true,
     [](Subject& s, int) {
         s.list->BeginPrinting(&s.dc, &s.info);
         s.list->PrintHeader(&s.dc, CRect(0, 0, 300, 30));
         s.list->EndPrinting(&s.dc, &s.info);
     }},
    {"print", true,
     [](Subject& s, int) {
         s.list->CalcPrintCols(&s.dc, 300);
         return s.list->PrintItems(&s.dc, 0u, 2u, CRect(0, 0, 300, 900)) == 3;
     }},
    {"export", true, [](Subject& s, int) { return s.list->ExportData("NUL", ',') != FALSE; }},
    {"select", true, [](Subject& s, int n) { s.list->SelectItem(n); }},
    {"save selections", true, [](Subject& s, int) { s.list->SaveSelections(); }},
    {"restore selections", true, [](Subject& s, int) { s.list->RestoreSelections(); }},
    {"paint", true, [](Subject& s, int) { s.list->RedrawWindow(); }},
    {"paint one column", false, [](Subject& s, int) { s.list->RedrawWindow(); }},
    {"size", false,
     [](Subject& s, int n) {
         s.list->SetWindowPos(nullptr, 0, 0, 300 - n * 9, 150, SWP_NOMOVE | SWP_NOZORDER);
     }},
    {"focus", true,
     [](Subject& s, int) {
         s.list->SetFocus();
         ::SetFocus(s.parent.m_hWnd);
     }},
    {"sort", true, [](Subject& s, int n) { s.list->SortOnHeader(n); }},
    {"sort again", true, [](Subject& s, int) { s.list->ReSort(); }},
    {"sort by date", true, [](Subject& s, int) { s.list->SortOnHeader(2); }},
};

// At what it is told or asked first, or at something later: other texts, or the image.
TEST(ListAttack, MayBeTakenAwayByItsParent) {
    constexpr UINT kEvents[] = {LVN_ITEMCHANGING,   LVN_ITEMCHANGED, LVN_INSERTITEM, LVN_DELETEITEM,
                                LVN_DELETEALLITEMS, LVN_GETDISPINFO, NM_SETFOCUS,    NM_KILLFOCUS};
    TheTestApp().Forget();
    std::set<UINT> seen;
    for (const Operation& operation : kOperations) {
        for (const int nWay : {0, 1, 2, 3}) {
            const bool bAsks = nWay % 2 != 0;
            bool bGone = true;
            for (int nSkip = 0; bGone && nSkip < 6; ++nSkip) {
                SCOPED_TRACE(testing::Message() << operation.pszName << nWay << ' ' << nSkip);
                Subject s(operation.bHeaders);
                bAsks ? s.AskForAll() : void();
                bGone = false;
                s.parent.m_hook = [&, nLeft = nSkip](NMHDR* pHdr, LRESULT* pResult) mutable {
                    // The platform's list ends the program if it goes between the rows that it
                    // empties.
                    *pResult = pHdr->code == LVN_DELETEALLITEMS;
                    if (std::ranges::count(kEvents, pHdr->code) != 0 && nLeft-- == 0) {
                        seen.insert(pHdr->code);
                        bGone = true;
                        nWay < 2 ? s.list.reset() : void(s.list->DestroyWindow());
                    }
                    return true;
                };
                const bool bDone = operation.act(s, 1);
                EXPECT_FALSE(bGone && operation.bReports && bDone);
            }
        }
    }
    EXPECT_EQ(seen.size(), std::size(kEvents));
    EXPECT_TRUE(TheTestApp().m_exceptions.empty());
}

// Each allocation of an operation is refused once, alone and with all that follow.
TEST(ListMemory, WhatWasThereStays) {
    TheTestApp().Forget();
    for (const Operation& operation : kOperations) {
        SCOPED_TRACE(operation.pszName);
        std::unique_ptr<Subject> pList;
        std::string strBefore, strAfter;
        const auto fresh = [&] {
            pList.reset();
            pList = std::make_unique<Subject>(operation.bHeaders);
            pList->parent.BeQuiet();
            strBefore = pList->State();
        };
        fresh();
        ASSERT_TRUE(operation.act(*pList, 1));
        const std::string strDone = pList->State();
        fresh();
        bool bDone = false;
        RefuseEach(
            operation.pszName, [&] { bDone = false, bDone = operation.act(*pList, 1); },
            [&] {
                strAfter = pList->State();
                if (!bDone) {
                    EXPECT_EQ(strAfter, strBefore);
                    EXPECT_STREQ(pList->strRead, "as it was");
                } else if (operation.bReports || strAfter != strBefore) {
                    EXPECT_EQ(strAfter, strDone);
                }
                fresh();
            });
        EXPECT_EQ(strAfter, strDone);
    }
    EXPECT_TRUE(TheTestApp().m_exceptions.empty());
}

TEST(ListMemory, AListIsMadeOrNot) {
    FontParent parent(CSize(300, 200));
    ExpectMadeOrNot<QVListCtrlEx>(
        [&](auto& list) { return list.Create(kListId, CRect(0, 0, 50, 50), &parent); });
}

TEST(ListMonkey, SurvivesAnyOrderOfOperationsAndKeepsNoHandles) {
    std::vector<std::function<void(Subject&, int)>> deeds{
        [](Subject& s, int n) { s.list->InsertBitmapString(n, n, "\033brow\tx\t\033zy"); },
        [](Subject& s, int n) { s.list->SetColWidth(n, n * 9, nullptr); },
        [](Subject& s, int n) { s.list->SetColFormat(n, n % 4), s.list->SetColStyle(n, n); },
        [](Subject& s, int n) { s.list->SendMessage(LVM_DELETECOLUMN, static_cast<WPARAM>(n)); },
        [](Subject& s, int n) { n == 0 ? s.list->ClearHeaders() : void(); },
        [](Subject& s, int n) { s.list->SetImageFirstCol(n % 2); },
        [](Subject& s, int n) { s.list->Scroll(CSize(n * 5, n * 7)); },
        [](Subject& s, int n) { s.list->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, n * 20)); },
        [](Subject& s, int n) { s.list->EnableExpectedKeys(n % 2); },
        [](Subject& s, int n) { s.list->SendMessage(WM_CHAR, n % 2 ? 'n' : 'b'); },
        [](Subject& s, int n) { SendKey(s.list->m_hWnd, "AC13"[n & 3], true); },
        [](Subject& s, int) { s.list->SendMessage(WM_KEYDOWN, VK_DOWN); }};
    for (const Operation& operation : kOperations) {
        deeds.push_back(operation.act);
    }
    const LONG nHandles = AfxGetOwnedHandleCount();
    {
        Subject s(false);
        std::mt19937 random = MonkeyRandom(5);
        for (int i = 0; i < MonkeySteps(); ++i) {
            const int n = static_cast<int>(random() % 40) - 2;
            deeds[random() % deeds.size()](s, n);
        }
        EXPECT_TRUE(::IsWindow(s.list->m_hWnd));
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}

}  // namespace
