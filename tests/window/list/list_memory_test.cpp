// Lists without memory: each allocation of an operation is refused once, alone and with all that
// follow.
#include "support/list_window.h"
#include "support/test_app.h"
#include "window/refusals.h"

#include <afxext.h>

#include <functional>
#include <gtest/gtest.h>

namespace {

// A parent that wants no memory for what it is told.
class QuietParent : public CWnd {
public:
    QuietParent() {
        CreateEx(0, AfxRegisterWndClass(0), "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 500, 300,
                 nullptr, nullptr);
    }
    ~QuietParent() override { DestroyWindow(); }
};

struct StarvedList {
    explicit StarvedList(CWnd& parent, bool bHeaders) {
        list.Create(kListId, CRect(0, 0, 400, 200), kListImages, kListImageMask, kListImageWidth,
                    &parent);
        list.ModifyStyle(LVS_SINGLESEL, 0);
        list.AddStyle(RGB(255, 0, 0), RGB(0, 255, 0));
        if (bHeaders) {
            list.AddHeader("first heading of all\tb", lcdtString);
            list.AddHeader("c", lcdtDate);
        }
        for (const char* psz : {"beta row with a long text\tx\t2020-01-01",
                                "Alpha\t\033by\t2021-01-01", "gamma\tz\t1999-01-01"}) {
            list.InsertBitmapString(0, -1, psz);
        }
        list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
        list.SetItemData(1, 7);
    }
    // All that the operations change.
    std::string State() {
        std::string str = std::to_string(list.NumColumns());
        CString strText;
        list.MakeHeaderString(strText);
        str += strText;
        for (int i = 0; i < list.NumColumns(); ++i) {
            str += ' ' + std::to_string(list.GetColWidth(i, nullptr)) + ' ' +
                   std::to_string(list.GetColFormat(i)) + ' ' +
                   std::to_string(list.IsColumnExcludedFromPrinting(i)) + ' ' +
                   std::to_string(list.ColumnSortType(i));
        }
        for (int i = 0; i < list.GetItemCount(); ++i) {
            list.GetItemString(i, strText);
            str += '\n';
            str += strText;
            str += ' ' + std::to_string(list.GetItemData(i)) + ' ' +
                   std::to_string(list.GetItemState(i, LVIS_SELECTED));
        }
        return str;
    }

    OpenList<QVSortingListCtrl> list;
    CString strRead = "as it was";
    const CString strSample = "a sample that is rather long\tis it\tnot*";
    CPrintInfo info;
    CClientDC dc{nullptr};  // the screen
};

// False: it says that it could not. What says nothing gives true.
struct Operation {
    const char* pszName;
    bool bHeaders;
    bool bReports;
    std::function<bool(StarvedList&)> act;
};

template <class Act>
Operation Silent(const char* pszName, bool bHeaders, Act act) {
    return {pszName, bHeaders, false, [act](StarvedList& w) {
                act(w);
                return true;
            }};
}

const Operation kOperations[] = {
    {"insert", true, true,
     [](StarvedList& w) {
         return w.list.InsertBitmapString(0, 1, "a new row of text\tu\tv") != -1;
     }},
    {"insert in one column", false, true,
     [](StarvedList& w) { return w.list.InsertBitmapString(0, 1, "a new row of text") != -1; }},
    {"add by text", true, true,
     [](StarvedList& w) {
         return w.list.AddBitmapString(0, "bb, a new row of text\tu", FALSE) != -1;
     }},
    {"add by number", true, true,
     [](StarvedList& w) { return w.list.AddBitmapString(0, "5 new rows of text\tu", TRUE) != -1; }},
    {"change", true, true,
     [](StarvedList& w) {
         return w.list.SetItemString(1, "another text for this row\tand\tmore of it") != FALSE;
     }},
    {"read", true, true,
     [](StarvedList& w) { return w.list.GetItemString(0, w.strRead) != FALSE; }},
    {"headings", true, true,
     [](StarvedList& w) { return w.list.MakeHeaderString(w.strRead) == 3; }},
    Silent("add headings", true,
           [](StarvedList& w) { w.list.AddHeader("a heading that is long\td", lcdtNumber); }),
    Silent("first headings", false,
           [](StarvedList& w) { w.list.AddHeader("a heading that is long\td", lcdtNumber); }),
    Silent("sample", true, [](StarvedList& w) { w.list.SetupColumnsFromString(w.strSample); }),
    Silent("fit to headings", true, [](StarvedList& w) { w.list.CalcColsFromHeader(1); }),
    Silent("fit", false, [](StarvedList& w) { w.list.SetupColumns(); }),
    {"delete", false, true, [](StarvedList& w) { return w.list.DeleteItem(0) != FALSE; }},
    Silent("align", true, [](StarvedList& w) { w.list.SetColFormat(2, LVCFMT_RIGHT); }),
    Silent("style", true, [](StarvedList& w) { w.list.SetColStyle(2, 1); }),
    Silent("exclude", true, [](StarvedList& w) { w.list.ExcludeColumnFromPrinting(1); }),
    {"widths on paper", true, true,
     [](StarvedList& w) { return w.list.CalcPrintCols(&w.dc, 300) == 3; }},
    {"print", true, true,
     [](StarvedList& w) {
         CPrintInfo& info = w.info;
         CDC& dc = w.dc;
         w.list.BeginPrinting(&dc, &info);
         w.list.PrintHeader(&dc, CRect(0, 0, 300, 30));
         const bool bAll = w.list.PrintItems(&dc, 0u, 2u, CRect(0, 0, 300, 900)) == 3;
         w.list.EndPrinting(&dc, &info);
         return bAll;
     }},
    {"export", true, true, [](StarvedList& w) { return w.list.ExportData("NUL", ',') != FALSE; }},
    Silent("selection", true,
           [](StarvedList& w) {
               w.list.SaveSelections();
               w.list.RestoreSelections();
           }),
    Silent("paint", true,
           [](StarvedList& w) {
               w.list.Invalidate();
               w.list.UpdateWindow();
           }),
    Silent("size", false,
           [](StarvedList& w) {
               w.list.SetWindowPos(nullptr, 0, 0, 390, 190, SWP_NOMOVE | SWP_NOZORDER);
               w.list.UpdateWindow();
           }),
    Silent("sort", true, [](StarvedList& w) { w.list.SortOnHeader(1); }),
    Silent("sort again", true, [](StarvedList& w) { w.list.ReSort(); }),
    Silent("sort by date", true, [](StarvedList& w) { w.list.SortOnHeader(2); }),
};

TEST(ListMemory, WhatWasThereStays) {
    QuietParent parent;
    TheTestApp().Forget();
    for (const Operation& operation : kOperations) {
        std::unique_ptr<StarvedList> pList;
        std::string strBefore, strAfter;
        const auto fresh = [&] {
            pList.reset();
            pList = std::make_unique<StarvedList>(parent, operation.bHeaders);
            pList->list.UpdateWindow();
            strBefore = pList->State();
        };
        fresh();
        ASSERT_TRUE(operation.act(*pList)) << operation.pszName;
        const std::string strDone = pList->State();
        fresh();
        bool bDone = false;
        RefuseEach(
            operation.pszName,
            [&] {
                bDone = false;
                bDone = operation.act(*pList);
            },
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
        EXPECT_EQ(strAfter, strDone) << operation.pszName;
        EXPECT_TRUE(TheTestApp().m_exceptions.empty()) << operation.pszName;
    }
}

TEST(ListMemoryAtCreation, AListThatCannotBeMadeLeavesNoWindow) {
    QuietParent parent;
    auto pList = std::make_unique<QVListCtrlEx>();
    BOOL bMade = FALSE;
    RefuseEach(
        "create", [&] { bMade = pList->Create(kListId, CRect(0, 0, 50, 50), &parent); },
        [&] {
            EXPECT_EQ(bMade != FALSE, pList->m_hWnd != nullptr);
            pList = std::make_unique<QVListCtrlEx>();
        });
    EXPECT_TRUE(bMade);
}

TEST(ListMemoryAtCreation, AHeaderTakesItsColumnsWithout) {
    QuietParent parent;
    QVHeaderCtrlEx header;
    header.Create(WS_CHILD, CRect(0, 0, 300, 20), &parent, 5);
    const CString strHeaders("a title that is long enough\t<b");
    {
        const FailingHeap heap(0);
        header.AddHeader(strHeaders);
    }
    EXPECT_EQ(header.GetItemCount(), 2);
}

}  // namespace
