// Parents that take the list away while they are told of something, or asked.
#include "support/list_window.h"
#include "support/mortal.h"
#include "support/test_app.h"

#include <afxext.h>

#include <functional>
#include <gtest/gtest.h>

namespace {

template <class List>
struct AttackedList {
    explicit AttackedList(const char* pszHeaders) : parent(CSize(400, 200)) {
        list->ModifyDefStyle(LVS_SINGLESEL, 0);
        list->Create(kListId, CRect(0, 0, 400, 200), kListImages, kListImageMask, kListImageWidth,
                     &parent);
        if (pszHeaders != nullptr) {
            list->QVListCtrlEx::AddHeader(pszHeaders);
        }
        for (const char* psz : {"b\tx", "a\ty", "c\tz"}) {
            list->InsertBitmapString(0, -1, psz);
        }
    }
    ~AttackedList() {
        parent.m_hook = nullptr;
        if (!bDeleted) {
            delete list;
        }
    }
    // Texts and images that the parent supplies.
    void AskForAll() {
        for (int i = 0; i < list->GetItemCount(); ++i) {
            list->SetItemText(i, 0, LPSTR_TEXTCALLBACK);
            list->SetImage(i, I_IMAGECALLBACK);
        }
    }
    // At the notification nCode, after nSkip of them.
    void Attack(UINT nCode, int nSkip, bool bDelete) {
        parent.m_hook = [this, nCode, nSkip, bDelete](NMHDR* pHdr, LRESULT*) mutable {
            if (pHdr->code == nCode && nSkip-- == 0) {
                bFired = true;
                bDeleted = bDelete;
                if (bDelete) {
                    delete list;
                } else {
                    list->DestroyWindow();
                }
            }
            return false;
        };
    }

    FontParent parent;
    Mortal<OpenList<List>>* list = new Mortal<OpenList<List>>;
    bool bFired = false;
    bool bDeleted = false;
};

using Attacked = AttackedList<QVListCtrlEx>;

// What is done to the list, and whether it says that all is done. False also from what says
// nothing.
struct Attack {
    const char* pszName;
    UINT nCode;
    const char* pszHeaders;  // null: a single column
    std::function<void(Attacked&)> prepare;
    std::function<bool(Attacked&)> act;
};

void Nothing(Attacked&) {}
void Ask(Attacked& w) {
    w.AskForAll();
}
void Paint(Attacked& w) {
    w.list->Invalidate();
    w.list->UpdateWindow();
}
void SelectFirst(Attacked& w) {
    w.list->SelectItem(0);
}
void SelectNext(Attacked& w) {
    w.list->SelectItem(1);
}
void SelectAndSave(Attacked& w) {
    for (int i = 0; i < 3; ++i) {
        w.list->SetItemData(i, static_cast<DWORD_PTR>(i));
        w.list->SetItemState(i, LVIS_SELECTED, LVIS_SELECTED);
    }
    w.list->SaveSelections();
    w.list->SetItemState(-1, 0, LVIS_SELECTED);
}
bool Print(Attacked& w) {
    TextRecorder dc;
    CPrintInfo info;
    w.list->CalcPrintCols(&dc, 200);
    return w.list->PrintItems(&dc, &info, CRect(0, 0, 200, 500)) == 3;
}

template <class Act>
Attack Silent(const char* pszName, UINT nCode, const char* pszHeaders,
              std::function<void(Attacked&)> prepare, Act act) {
    return {pszName, nCode, pszHeaders, std::move(prepare), [act](Attacked& w) {
                act(w);
                return false;
            }};
}

const Attack kAttacks[] = {
    Silent("select, asked", LVN_ITEMCHANGING, "a\tb", SelectFirst, SelectNext),
    Silent("select, told", LVN_ITEMCHANGED, "a\tb", SelectFirst, SelectNext),
    Silent("restore", LVN_ITEMCHANGED, "a\tb", SelectAndSave,
           [](Attacked& w) { w.list->RestoreSelections(); }),
    Silent("delete", LVN_DELETEITEM, nullptr, Nothing, [](Attacked& w) { w.list->DeleteItem(1); }),
    Silent("empty", LVN_DELETEALLITEMS, nullptr, Nothing,
           [](Attacked& w) { w.list->DeleteAllItems(); }),
    Silent("fit", LVN_GETDISPINFO, nullptr, Ask, [](Attacked& w) { w.list->DeleteItem(1); }),
    Silent("size", LVN_GETDISPINFO, nullptr, Ask,
           [](Attacked& w) {
               w.list->SetWindowPos(nullptr, 0, 0, 300, 150, SWP_NOMOVE | SWP_NOZORDER);
           }),
    Silent("set up", LVN_GETDISPINFO, nullptr, Ask, [](Attacked& w) { w.list->SetupColumns(); }),
    {"insert", LVN_INSERTITEM, "a\tb", Nothing,
     [](Attacked& w) { return w.list->InsertBitmapString(0, 0, "x\ty") != -1; }},
    {"insert in one column", LVN_INSERTITEM, nullptr, Nothing,
     [](Attacked& w) { return w.list->InsertBitmapString(0, 0, "x") != -1; }},
    {"add", LVN_INSERTITEM, "a\tb", Nothing,
     [](Attacked& w) { return w.list->AddBitmapString(0, "x\ty", FALSE) != -1; }},
    {"add, asked", LVN_GETDISPINFO, "a\tb", Ask,
     [](Attacked& w) { return w.list->AddBitmapString(0, "x\ty", TRUE) != -1; }},
    {"change, asked", LVN_ITEMCHANGING, "a\tb", Nothing,
     [](Attacked& w) { return w.list->SetItemString(0, "x\ty") != FALSE; }},
    {"change, told", LVN_ITEMCHANGED, "a\tb", Nothing,
     [](Attacked& w) { return w.list->SetItemString(0, "x\ty") != FALSE; }},
    {"read", LVN_GETDISPINFO, "a\tb", Ask,
     [](Attacked& w) {
         CString str;
         return w.list->GetItemString(1, str) != FALSE;
     }},
    Silent("paint", LVN_GETDISPINFO, "a\tb", Ask, Paint),
    Silent("paint one column", LVN_GETDISPINFO, nullptr, Ask, Paint),
    {"print", LVN_GETDISPINFO, "a\tb", Ask, Print},
    {"export", LVN_GETDISPINFO, "a\tb", Ask,
     [](Attacked& w) { return w.list->ExportData("NUL", ',') != FALSE; }},
    Silent("focus", static_cast<UINT>(NM_SETFOCUS), "a\tb", Nothing,
           [](Attacked& w) { w.list->SetFocus(); }),
    Silent(
        "leave", static_cast<UINT>(NM_KILLFOCUS), "a\tb", [](Attacked& w) { w.list->SetFocus(); },
        [](Attacked& w) { ::SetFocus(w.parent.m_hWnd); }),
};

// At the first time that the parent is told, or at a later one: other texts, or the image.
TEST(ListAttack, TheListMayBeTakenAway) {
    TheTestApp().Forget();
    for (const Attack& attack : kAttacks) {
        for (const int nSkip : {0, 1, 2, 3}) {
            for (const bool bDelete : {true, false}) {
                SCOPED_TRACE(std::string(attack.pszName) + (bDelete ? ", deleted" : ""));
                Attacked w(attack.pszHeaders);
                attack.prepare(w);
                w.list->ValidateRect(nullptr);
                w.Attack(attack.nCode, nSkip, bDelete);
                const bool bDone = attack.act(w);
                EXPECT_TRUE(w.bFired || nSkip > 0);
                EXPECT_FALSE(w.bFired && bDone) << nSkip;
            }
        }
    }
    EXPECT_TRUE(TheTestApp().m_exceptions.empty());
}

TEST(SortingListAttack, TheListMayBeTakenAwayWhileTheRowsAreRead) {
    for (const bool bDelete : {true, false}) {
        for (const bool bAgain : {true, false}) {
            AttackedList<QVSortingListCtrl> w("a\tb");
            w.AskForAll();
            w.Attack(LVN_GETDISPINFO, 1, bDelete);
            bAgain ? w.list->ReSort() : w.list->SortOnHeader(0);
            EXPECT_TRUE(w.bFired);
        }
    }
}

}  // namespace
